#include "config/sk_config_reader.h"

#include "config/sk_config_report.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <type_traits>

namespace {

constexpr char kDefaultDelimiters[3] = {'\n', '\r', ' '};
constexpr const char *kBlockTag = "SK_ParseConfig";

// The last byte of the text area always reads as the end, so that the longest token
// still fits the token area with its terminator.
char textAt(const SK_Tokenizer &t, std::uint32_t position)
{
    return position < SK_REPORT_TEXT_SIZE - 1 ? t.Text[position] : '\0';
}

bool isDelimiter(const SK_Tokenizer &t, char c)
{
    return std::memchr(t.Delimiters, c, sizeof t.Delimiters) != nullptr;
}

void closeQuote(SK_Tokenizer &t)
{
    t.QuoteOpen = 0;
    std::memcpy(t.Delimiters, kDefaultDelimiters, sizeof t.Delimiters);
}

std::int32_t toInt(const char *value)
{
    const long long n = std::strtoll(value, nullptr, 10);
    if (n > INT_MAX)
        return INT_MAX;
    if (n < INT_MIN)
        return INT_MIN;
    return static_cast<std::int32_t>(n);
}

std::uint64_t toHex64(const char *value)
{
    return std::strtoull(value, nullptr, 16);
}

bool is(const char *token, const char *key)
{
    return token && std::strcmp(token, key) == 0;
}

// --- Fields of a record line -----------------------------------------------------------

// A converter stores a value into the `size` bytes of a member. Snapshot records are
// packed, so a member is written bytewise, never through a typed pointer.
using Converter = bool (*)(char *member, std::size_t size, const char *value);

template <class T>
void store(char *member, T value)
{
    std::memcpy(member, &value, sizeof value);
}

template <class T>
bool decimal(char *member, std::size_t, const char *value)
{
    static_assert(std::is_same_v<T, std::int32_t>, "decimal fields are 32-bit signed");
    store(member, toInt(value));
    return true;
}

template <class T>
bool hex(char *member, std::size_t, const char *value)
{
    static_assert(std::is_unsigned_v<T>, "hexadecimal fields are unsigned");
    store(member, static_cast<T>(toHex64(value)));
    return true;
}

template <class T>
bool real(char *member, std::size_t, const char *value)
{
    static_assert(std::is_same_v<T, float>, "real fields are floats");
    store(member, std::strtof(value, nullptr));
    return true;
}

// "Y" or "N"; anything else ends the parse.
template <class T>
bool yesNo(char *member, std::size_t, const char *value)
{
    static_assert(std::is_same_v<T, std::uint32_t>, "flags are 32-bit unsigned");
    if (!is(value, "Y") && !is(value, "N"))
        return false;
    store(member, static_cast<T>(is(value, "Y") ? 1 : 0));
    return true;
}

template <class T>
bool text(char *member, std::size_t size, const char *value)
{
    static_assert(std::is_array_v<T>, "text fields are character arrays");
    SK_CopyText(member, size, value);
    return true;
}

// One "KEY: value" pair of a line of `Record`: the key, how its value is read, and
// where it is stored.
template <class Record>
struct Field
{
    const char *key;
    Converter convert;
    std::size_t at;
    std::size_t size;
    bool optional;
};

#define SK_FIELD_OF(Record, key, convert, member, optional)                                        \
    Field<Record>                                                                                  \
    {                                                                                              \
        key, convert<decltype(Record::member)>, offsetof(Record, member), sizeof(Record::member),  \
            optional                                                                               \
    }
#define SK_FIELD(Record, key, convert, member) SK_FIELD_OF(Record, key, convert, member, false)
#define SK_OPTIONAL_FIELD(Record, key, convert, member)                                            \
    SK_FIELD_OF(Record, key, convert, member, true)

// A controller line after its number.
const Field<SK_ConfigController> kControllerFields[] = {
    SK_FIELD(SK_ConfigController, "CN:", text, Name),
    SK_FIELD(SK_ConfigController, "CSN:", hex, SerialNumber),
    SK_FIELD(SK_ConfigController, "BB:", text, BiosBuild),
    SK_FIELD(SK_ConfigController, "MX:", hex, MaxArraySize),
    SK_FIELD(SK_ConfigController, "NP:", decimal, NumberOfPorts),
    SK_FIELD(SK_ConfigController, "VI:", hex, PciVendorID),
    SK_FIELD(SK_ConfigController, "DI:", hex, PciDeviceID),
    SK_FIELD(SK_ConfigController, "SVI:", hex, PciSubVendorID),
    SK_FIELD(SK_ConfigController, "SDI:", hex, PciSubDeviceID),
    SK_OPTIONAL_FIELD(SK_ConfigController, "ID:", hex, ControllerId),
    SK_OPTIONAL_FIELD(SK_ConfigController, "OVI:", hex, OrigPciVendorID),
    SK_OPTIONAL_FIELD(SK_ConfigController, "ODI:", hex, OrigPciDeviceID),
    SK_OPTIONAL_FIELD(SK_ConfigController, "LOC:", hex, PciLocation),
};

// A disk line after its kind: the part every disk has...
const Field<SK_ConfigDisk> kDiskFields[] = {
    SK_FIELD(SK_ConfigDisk, "ST:", text, State),
    SK_FIELD(SK_ConfigDisk, "ID:", hex, DiskId),
    SK_FIELD(SK_ConfigDisk, "NM:", text, Name),
};

// ...and, after its controller number, the part a disk behind a controller adds.
const Field<SK_ConfigDisk> kAttachedDiskFields[] = {
    SK_FIELD(SK_ConfigDisk, "CH:", decimal, Channel),
    SK_FIELD(SK_ConfigDisk, "RT:", decimal, Route),
    SK_FIELD(SK_ConfigDisk, "HD:", decimal, Device),
    SK_FIELD(SK_ConfigDisk, "FE:", hex, Features),
    SK_FIELD(SK_ConfigDisk, "GS:", yesNo, GlobalSpare),
    SK_FIELD(SK_ConfigDisk, "SI:", hex, Capacity),
    SK_OPTIONAL_FIELD(SK_ConfigDisk, "LS:", hex, LargestFreeSpace),
    SK_OPTIONAL_FIELD(SK_ConfigDisk, "TS:", hex, TotalFreeSpace),
    SK_FIELD(SK_ConfigDisk, "MO:", text, Model),
    SK_FIELD(SK_ConfigDisk, "SN:", text, SerialNumber),
    SK_FIELD(SK_ConfigDisk, "FW:", text, FirmwareRevision),
    SK_FIELD(SK_ConfigDisk, "PT:", hex, PortType),
    SK_FIELD(SK_ConfigDisk, "VI:", text, VendorId),
};

// The identity at the head of an array line, held until the line's slot is known.
struct ArrayHead
{
    char State[sizeof SK_ConfigArray::State];
    std::uint64_t Id;
    char Name[sizeof SK_ConfigArray::Name];
    char OsName[sizeof SK_ConfigArray::OsName];
    std::int32_t Route;
    std::int32_t Device;
};

const Field<ArrayHead> kArrayHeadFields[] = {
    SK_FIELD(ArrayHead, "ST:", text, State),    SK_FIELD(ArrayHead, "ID:", hex, Id),
    SK_FIELD(ArrayHead, "NM:", text, Name),     SK_FIELD(ArrayHead, "OSN:", text, OsName),
    SK_FIELD(ArrayHead, "RT:", decimal, Route), SK_FIELD(ArrayHead, "HD:", decimal, Device),
};

constexpr const char *kCacheTagKey = "CTS:";
// An array's type keeps eight characters.
constexpr std::size_t kArrayTypeSize = 9;

// The rest of an array line.
const Field<SK_ConfigArray> kArrayFields[] = {
    SK_FIELD(SK_ConfigArray, "SI:", hex, Capacity),
    SK_FIELD(SK_ConfigArray, "1ST:", decimal, FirstCount),
    SK_FIELD(SK_ConfigArray, "2ND:", decimal, SecondCount),
    SK_FIELD(SK_ConfigArray, "CA:", text, Cache),
    SK_FIELD(SK_ConfigArray, kCacheTagKey, decimal, CacheTagSize),
    {"TY:", text<char[12]>, offsetof(SK_ConfigArray, Type), kArrayTypeSize, false},
    SK_FIELD(SK_ConfigArray, "GE:", hex, Generation),
    SK_FIELD(SK_ConfigArray, "TPST:", hex, TransformProtectStart),
    SK_FIELD(SK_ConfigArray, "TPSI:", decimal, TransformProtectSize),
    SK_FIELD(SK_ConfigArray, "TPC:", real, TransformPercentComplete),
    SK_FIELD(SK_ConfigArray, "TP:", decimal, TaskPriority),
    SK_FIELD(SK_ConfigArray, "TTY:", text, TransformType),
    SK_OPTIONAL_FIELD(SK_ConfigArray, "TST:", text, TransformState),
    SK_FIELD(SK_ConfigArray, "DS:", decimal, DistributedSpareCount),
    SK_FIELD(SK_ConfigArray, "PRE:", decimal, PreferredLogicalElement),
    SK_FIELD(SK_ConfigArray, "AT:", hex, Attributes),
    SK_FIELD(SK_ConfigArray, "RC:", decimal, ReferenceCount),
    SK_FIELD(SK_ConfigArray, "CF:", hex, CopyFromId),
    SK_FIELD(SK_ConfigArray, "CT:", hex, CopyToId),
    SK_FIELD(SK_ConfigArray, "DP:", text, DisplayName),
};

// A member line after its index.
const Field<SK_ConfigMember> kMemberFields[] = {
    SK_FIELD(SK_ConfigMember, "RT:", decimal, Route),
    SK_FIELD(SK_ConfigMember, "HD:", decimal, Device),
    SK_FIELD(SK_ConfigMember, "ID:", hex, DiskId),
    SK_FIELD(SK_ConfigMember, "SO:", hex, Offset),
    SK_FIELD(SK_ConfigMember, "SS:", hex, Size),
    SK_FIELD(SK_ConfigMember, "DO:", hex, DataOffset),
    SK_FIELD(SK_ConfigMember, "DS:", hex, DataSize),
    SK_OPTIONAL_FIELD(SK_ConfigMember, "ER:", text, Error),
};

// A spare line after its index.
const Field<SK_ConfigSpare> kSpareFields[] = {
    SK_FIELD(SK_ConfigSpare, "RT:", decimal, Route),
    SK_FIELD(SK_ConfigSpare, "HD:", decimal, Device),
    SK_FIELD(SK_ConfigSpare, "ID:", hex, DiskId),
};

// An enclosure line after its index.
const Field<SK_ConfigEnclosure> kEnclosureFields[] = {
    SK_FIELD(SK_ConfigEnclosure, "ID:", hex, EnclosureId),
    SK_FIELD(SK_ConfigEnclosure, "NM:", text, Name),
    SK_FIELD(SK_ConfigEnclosure, "VID:", text, Vendor),
    SK_FIELD(SK_ConfigEnclosure, "PID:", text, Product),
    SK_FIELD(SK_ConfigEnclosure, "REV:", text, Revision),
    SK_FIELD(SK_ConfigEnclosure, "SN:", text, SerialNumber),
};

#undef SK_OPTIONAL_FIELD
#undef SK_FIELD
#undef SK_FIELD_OF

// One pass of the reader over a tokenizer that holds a report. Every handler reads
// one line shape; a handler that returns false has met a missing token, a wrong key
// or an index past a limit, which ends the parse.
class ReportReader
{
public:
    ReportReader(SK_Tokenizer &tokenizer, SK_ConfigSnapshot &snapshot)
        : m_t(tokenizer), m_s(snapshot)
    {
    }

    bool run()
    {
        const char *token = next();
        while (token) {
            if (!is(token, "BufferSize:") && !is(token, "CO:") && !is(token, "CD:"))
                m_controllersOpen = false;

            bool ok = true;
            bool fetch = true; // false: `token` already holds the next line's first token
            if (is(token, "BufferSize:")) {
                next();
            } else if (is(token, "CO:")) {
                ok = readCore();
            } else if (is(token, "CD:")) {
                ok = readController();
            } else if (is(token, "PD:")) {
                ok = readDisk(token, fetch);
            } else if (is(token, "LD:")) {
                ok = readArray();
                if (ok) {
                    // Only a member, spare, parent or enclosure line may follow a head
                    // directly; anything else is dropped here.
                    token = next();
                    fetch = !(is(token, "LE:") || is(token, "PA:") || is(token, "SP:") ||
                              is(token, "SEP:"));
                    if (!token)
                        return true;
                }
            } else if (is(token, "LE:")) {
                ok = readMember();
            } else if (is(token, "PA:")) {
                ok = readParent();
            } else if (is(token, "SP:")) {
                ok = readSpare();
            } else if (is(token, "SEP:")) {
                ok = readEnclosure();
            } else if (is(token, "Done:")) {
                return true;
            }
            if (!ok)
                return false;
            if (fetch)
                token = next();
        }
        return true;
    }

private:
    const char *next() { return SK_NextToken(&m_t); }

    // The value behind a required key, or null when the key is wrong or missing.
    const char *field(const char *key)
    {
        if (!is(next(), key))
            return nullptr;
        return next();
    }

    // An optional key in the reader's strict sense: one token is taken; if it is the
    // key its value is read into `value`, otherwise the token is dropped and `value`
    // stays null. False only when the key is there without a value.
    bool optional(const char *key, const char *&value)
    {
        value = nullptr;
        if (!is(next(), key))
            return true;
        value = next();
        return value != nullptr;
    }

    template <std::size_t N>
    static void copy(char (&field)[N], const char *value)
    {
        SK_CopyText(field, N, value);
    }

    // Reads the fields of `table` in order into `record`. Returns null, or the key of
    // the first field that is missing, has a wrong key or a value it can't take. Once
    // the walk reaches the first optional field, every optional field is cleared, so
    // one the line lacks reads as zero or no text.
    template <class Record, std::size_t N>
    const char *readFields(Record &record, const Field<Record> (&table)[N])
    {
        auto *bytes = reinterpret_cast<char *>(&record);
        bool cleared = false;
        for (std::size_t i = 0; i < N; ++i) {
            const Field<Record> &f = table[i];
            const char *value = nullptr;
            if (f.optional) {
                if (!cleared) {
                    for (std::size_t j = i; j < N; ++j) {
                        if (table[j].optional)
                            std::memset(bytes + table[j].at, 0, table[j].size);
                    }
                    cleared = true;
                }
                if (!optional(f.key, value))
                    return f.key;
                if (!value)
                    continue;
            } else if (!(value = field(f.key))) {
                return f.key;
            }
            if (!f.convert(bytes + f.at, f.size, value))
                return f.key;
        }
        return nullptr;
    }

    bool readCore()
    {
        if (!next())
            return false;
        const char *build = nullptr;
        if (!field("GE:") || !field("NM:") || !(build = field("BN:")))
            return false;
        // The build string belongs to the controller line that comes next.
        if (m_controllerSlot >= SK_SNAPSHOT_CONTROLLERS)
            return false;
        copy(m_s.Controllers[m_controllerSlot].BuildName, build);
        return true;
    }

    bool readController()
    {
        const char *value = next();
        if (!value || m_controllerSlot >= SK_SNAPSHOT_CONTROLLERS)
            return false;
        SK_ConfigController &c = m_s.Controllers[m_controllerSlot];
        c.Number = toInt(value);
        if (readFields(c, kControllerFields))
            return false;
        ++m_controllerSlot;
        if (m_controllersOpen)
            m_s.ControllerCount = static_cast<std::int32_t>(m_controllerSlot);
        return true;
    }

    // `token` and `fetch` hand the first token of the next line back to the loop when
    // a core device's line ends early.
    bool readDisk(const char *&token, bool &fetch)
    {
        const char *value = next();
        if (!value)
            return false;
        const std::int32_t index = toInt(value);
        if (index < 0 || index >= static_cast<std::int32_t>(SK_SNAPSHOT_DISKS))
            return false;
        if (!(value = field("TY:")))
            return false;
        if (!is(value, "Disk") && !is(value, "Core") && !is(value, "Legacy") &&
            !is(value, "Promise") && !is(value, "Unknown"))
            return true; // not a kind this console knows: the line is passed over

        SK_ConfigDisk &d = m_s.Disks[index];
        std::memset(&d, 0, sizeof d);
        copy(d.Type, value);
        if (readFields(d, kDiskFields))
            return false;

        token = next();
        if (!is(token, "CD:")) {
            // The core's own device: its line ends behind the name.
            ++m_s.DiskCount;
            fetch = false;
            return true;
        }
        if (!(value = next()))
            return false;
        d.ControllerNumber = toInt(value);
        if (readFields(d, kAttachedDiskFields))
            return false;
        ++m_s.DiskCount;
        return true;
    }

    bool readArray()
    {
        const char *value = next();
        if (!value)
            return false;
        const std::int32_t index = toInt(value);
        if (index < 0 || index >= static_cast<std::int32_t>(SK_SNAPSHOT_ARRAYS))
            return false;

        ArrayHead head{};
        if (readFields(head, kArrayHeadFields))
            return false;
        const std::int32_t device = head.Device;

        // Two records in a row with one device number are the two halves of one slot;
        // a third overwrites the second half.
        SK_ConfigArray *half = nullptr;
        if (device == m_lastArrayDevice && m_s.ArrayCount > 0) {
            SK_ConfigArraySlot &slot = m_s.Arrays[m_s.ArrayCount - 1];
            slot.HalfCount = 2;
            half = &slot.Half[1];
        } else {
            if (m_s.ArrayCount >= static_cast<std::int32_t>(SK_SNAPSHOT_ARRAYS))
                return false;
            SK_ConfigArraySlot &slot = m_s.Arrays[m_s.ArrayCount++];
            std::memset(&slot, 0, sizeof slot);
            slot.HalfCount = 1;
            half = &slot.Half[0];
        }
        m_lastArrayDevice = device;
        std::memset(half, 0, sizeof *half);
        m_array = half;

        SK_ConfigArray &a = *half;
        copy(a.State, head.State);
        a.ArrayId = head.Id;
        copy(a.Name, head.Name);
        copy(a.OsName, head.OsName);
        a.Route = head.Route;
        a.Device = device;
        if (const char *failed = readFields(a, kArrayFields)) {
            if (is(failed, kCacheTagKey))
                std::printf("Failed to find CTS token\n");
            return false;
        }
        return true;
    }

    bool readMember()
    {
        const char *value = next();
        if (!value || !m_array)
            return false;
        const std::int32_t index = toInt(value);
        if (index < 0 || index >= static_cast<std::int32_t>(SK_SNAPSHOT_MEMBERS))
            return false;
        SK_ConfigMember &m = m_array->Members[index];
        std::memset(&m, 0, sizeof m);
        return readFields(m, kMemberFields) == nullptr;
    }

    bool readSpare()
    {
        if (!next() || !m_array)
            return false;
        if (m_array->SpareCount < 0 ||
            m_array->SpareCount >= static_cast<std::int32_t>(SK_SNAPSHOT_SPARES))
            return false;
        if (readFields(m_array->Spares[m_array->SpareCount], kSpareFields))
            return false;
        ++m_array->SpareCount;
        return true;
    }

    bool readParent()
    {
        // Parents are checked for form only; the snapshot has no place for them.
        return next() && m_array && field("RT:") && field("HD:") && field("ID:");
    }

    bool readEnclosure()
    {
        const char *value = next();
        if (!value)
            return false;
        const std::int32_t index = toInt(value);
        if (index < 0 || index >= static_cast<std::int32_t>(SK_SNAPSHOT_ENCLOSURES))
            return false;
        SK_ConfigEnclosure &e = m_s.Enclosures[index];
        std::memset(&e, 0, sizeof e);
        if (readFields(e, kEnclosureFields))
            return false;
        ++m_s.EnclosureCount;
        return true;
    }

    SK_Tokenizer &m_t;
    SK_ConfigSnapshot &m_s;
    std::uint32_t m_controllerSlot = 0;
    bool m_controllersOpen = true;
    std::int32_t m_lastArrayDevice = -1;
    SK_ConfigArray *m_array = nullptr; // the array half that member lines belong to
};

void clearCounts(SK_ConfigSnapshot &snapshot)
{
    snapshot.ControllerCount = 0;
    snapshot.DiskCount = 0;
    snapshot.ArrayCount = 0;
    snapshot.EnclosureCount = 0;
}

SK_Tokenizer *allocateTokenizer()
{
    auto *t = static_cast<SK_Tokenizer *>(SKTL_Alloc(sizeof(SK_Tokenizer), kBlockTag));
    if (t)
        std::memset(t, 0, sizeof *t);
    return t;
}

std::uint32_t readBlock(SK_Tokenizer &t, SK_ConfigSnapshot &snapshot)
{
    SK_ResetTokenizer(&t);
    ReportReader reader(t, snapshot);
    return reader.run() ? 1 : 0;
}

} // namespace

std::uint32_t SK_ResetTokenizer(SK_Tokenizer *tokenizer)
{
    if (!tokenizer)
        return SKTL_STS_INVALID_PARAMETER;
    tokenizer->Position = 0;
    closeQuote(*tokenizer);
    return SK_STS_SUCCESS;
}

const char *SK_NextToken(SK_Tokenizer *tokenizer)
{
    if (!tokenizer)
        return nullptr;
    SK_Tokenizer &t = *tokenizer;
    std::uint32_t position = t.Position;
    if (!t.QuoteOpen) {
        while (textAt(t, position) != '\0' && isDelimiter(t, textAt(t, position)))
            ++position;
        if (textAt(t, position) == '^') {
            ++position;
            t.QuoteOpen = 1;
            std::memset(t.Delimiters, '^', sizeof t.Delimiters);
        }
    }

    std::uint32_t start = position;
    if (t.QuoteOpen) {
        if (textAt(t, position) == '\0') {
            t.Position = position;
            closeQuote(t);
            return nullptr;
        }
        while (textAt(t, position) != '\0' && textAt(t, position) != '^')
            ++position;
        closeQuote(t);
    } else {
        if (textAt(t, position) == '\0') {
            t.Position = position;
            return nullptr;
        }
        while (textAt(t, position) != '\0' && !isDelimiter(t, textAt(t, position)))
            ++position;
    }
    std::uint32_t length = position - start;
    // The read position moves one past the delimiter that ended the token.
    t.Position = textAt(t, position) != '\0' ? position + 1 : position;

    if (length > 0 && t.Text[start] == '{') {
        ++start;
        --length;
    }
    std::memcpy(t.Token, t.Text + start, length);
    t.Token[length] = '\0';
    return t.Token;
}

std::uint32_t SK_ParseConfigText(const char *text, std::size_t length, SK_ConfigSnapshot *snapshot)
{
    if (!snapshot)
        return 0;
    clearCounts(*snapshot);
    if (!text)
        return 0;
    const std::size_t used = strnlen(text, length);
    if (used >= SK_REPORT_TEXT_SIZE)
        return 0;
    SK_Tokenizer *t = allocateTokenizer();
    if (!t)
        return 0;
    std::memcpy(t->Text, text, used);
    const std::uint32_t result = readBlock(*t, *snapshot);
    SKTL_Free(t);
    return result;
}

std::uint32_t SK_ParseConfig(const SK_CoreEntry *core, SK_ConfigSnapshot *snapshot, std::uint32_t,
                             std::uint32_t resolveOsNames)
{
    if (!snapshot)
        return 0;
    clearCounts(*snapshot);
    SK_Tokenizer *t = allocateTokenizer();
    if (!t)
        return 0;
    std::uint32_t result = 0;
    if (SK_ApiGetCoreConfigString(core, t->Text, SK_REPORT_TEXT_SIZE, resolveOsNames, 0, 1, 0) ==
        SK_STS_SUCCESS)
        result = readBlock(*t, *snapshot);
    SKTL_Free(t);
    return result;
}
