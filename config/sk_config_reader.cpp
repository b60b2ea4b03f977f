#include "config/sk_config_reader.h"

#include "config/sk_config_report.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <climits>
#include <cstdio>
#include <cstdlib>

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

std::uint32_t toHex32(const char *value)
{
    return static_cast<std::uint32_t>(toHex64(value));
}

std::uint16_t toHex16(const char *value)
{
    return static_cast<std::uint16_t>(toHex64(value));
}

bool is(const char *token, const char *key)
{
    return token && std::strcmp(token, key) == 0;
}

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
                    fetch = !(is(token, "LE:") || is(token, "PA:") || is(token, "SP:")
                              || is(token, "SEP:"));
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
    static void copy(char (&field)[N], const char *value, std::size_t limit = N)
    {
        SK_CopyText(field, limit < N ? limit : N, value);
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
        if (!(value = field("CN:")))
            return false;
        copy(c.Name, value);
        if (!(value = field("CSN:")))
            return false;
        c.SerialNumber = toHex64(value);
        if (!(value = field("BB:")))
            return false;
        copy(c.BiosBuild, value);
        if (!(value = field("MX:")))
            return false;
        c.MaxArraySize = toHex64(value);
        if (!(value = field("NP:")))
            return false;
        c.NumberOfPorts = toInt(value);
        if (!(value = field("VI:")))
            return false;
        c.PciVendorID = toHex16(value);
        if (!(value = field("DI:")))
            return false;
        c.PciDeviceID = toHex16(value);
        if (!(value = field("SVI:")))
            return false;
        c.PciSubVendorID = toHex16(value);
        if (!(value = field("SDI:")))
            return false;
        c.PciSubDeviceID = toHex16(value);

        c.ControllerId = 0;
        c.OrigPciVendorID = c.OrigPciDeviceID = 0;
        c.PciLocation = 0;
        if (!optional("ID:", value))
            return false;
        if (value)
            c.ControllerId = toHex64(value);
        if (!optional("OVI:", value))
            return false;
        if (value)
            c.OrigPciVendorID = toHex16(value);
        if (!optional("ODI:", value))
            return false;
        if (value)
            c.OrigPciDeviceID = toHex16(value);
        if (!optional("LOC:", value))
            return false;
        if (value)
            c.PciLocation = toHex32(value);

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
        if (!is(value, "Disk") && !is(value, "Core") && !is(value, "Legacy")
            && !is(value, "Promise") && !is(value, "Unknown"))
            return true; // not a kind this console knows: the line is passed over

        SK_ConfigDisk &d = m_s.Disks[index];
        std::memset(&d, 0, sizeof d);
        copy(d.Type, value);
        if (!(value = field("ST:")))
            return false;
        copy(d.State, value);
        if (!(value = field("ID:")))
            return false;
        d.DiskId = toHex64(value);
        if (!(value = field("NM:")))
            return false;
        copy(d.Name, value);

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
        if (!(value = field("CH:")))
            return false;
        d.Channel = toInt(value);
        if (!(value = field("RT:")))
            return false;
        d.Route = toInt(value);
        if (!(value = field("HD:")))
            return false;
        d.Device = toInt(value);
        if (!(value = field("FE:")))
            return false;
        d.Features = toHex32(value);
        if (!(value = field("GS:")))
            return false;
        if (is(value, "Y"))
            d.GlobalSpare = 1;
        else if (is(value, "N"))
            d.GlobalSpare = 0;
        else
            return false;
        if (!(value = field("SI:")))
            return false;
        d.Capacity = toHex64(value);
        if (!optional("LS:", value))
            return false;
        if (value)
            d.LargestFreeSpace = toHex64(value);
        if (!optional("TS:", value))
            return false;
        if (value)
            d.TotalFreeSpace = toHex64(value);
        if (!(value = field("MO:")))
            return false;
        copy(d.Model, value);
        if (!(value = field("SN:")))
            return false;
        copy(d.SerialNumber, value);
        if (!(value = field("FW:")))
            return false;
        copy(d.FirmwareRevision, value);
        if (!(value = field("PT:")))
            return false;
        d.PortType = toHex32(value);
        if (!(value = field("VI:")))
            return false;
        copy(d.VendorId, value);
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

        // The head's identity is held until the slot is known.
        char state[12], name[40], osName[64];
        std::uint64_t id = 0;
        std::int32_t route = 0, device = 0;
        if (!(value = field("ST:")))
            return false;
        copy(state, value);
        if (!(value = field("ID:")))
            return false;
        id = toHex64(value);
        if (!(value = field("NM:")))
            return false;
        copy(name, value);
        if (!(value = field("OSN:")))
            return false;
        copy(osName, value);
        if (!(value = field("RT:")))
            return false;
        route = toInt(value);
        if (!(value = field("HD:")))
            return false;
        device = toInt(value);

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
        copy(a.State, state);
        a.ArrayId = id;
        copy(a.Name, name);
        copy(a.OsName, osName);
        a.Route = route;
        a.Device = device;
        if (!(value = field("SI:")))
            return false;
        a.Capacity = toHex64(value);
        if (!(value = field("1ST:")))
            return false;
        a.FirstCount = toInt(value);
        if (!(value = field("2ND:")))
            return false;
        a.SecondCount = toInt(value);
        if (!(value = field("CA:")))
            return false;
        copy(a.Cache, value);
        if (!(value = field("CTS:"))) {
            std::printf("Failed to find CTS token\n");
            return false;
        }
        a.CacheTagSize = toInt(value);
        if (!(value = field("TY:")))
            return false;
        copy(a.Type, value, 9);
        if (!(value = field("GE:")))
            return false;
        a.Generation = toHex32(value);
        if (!(value = field("TPST:")))
            return false;
        a.TransformProtectStart = toHex64(value);
        if (!(value = field("TPSI:")))
            return false;
        a.TransformProtectSize = toInt(value);
        if (!(value = field("TPC:")))
            return false;
        a.TransformPercentComplete = std::strtof(value, nullptr);
        if (!(value = field("TP:")))
            return false;
        a.TaskPriority = toInt(value);
        if (!(value = field("TTY:")))
            return false;
        copy(a.TransformType, value);
        if (!optional("TST:", value))
            return false;
        if (value)
            copy(a.TransformState, value);
        if (!(value = field("DS:")))
            return false;
        a.DistributedSpareCount = toInt(value);
        if (!(value = field("PRE:")))
            return false;
        a.PreferredLogicalElement = toInt(value);
        if (!(value = field("AT:")))
            return false;
        a.Attributes = toHex32(value);
        if (!(value = field("RC:")))
            return false;
        a.ReferenceCount = toInt(value);
        if (!(value = field("CF:")))
            return false;
        a.CopyFromId = toHex64(value);
        if (!(value = field("CT:")))
            return false;
        a.CopyToId = toHex64(value);
        if (!(value = field("DP:")))
            return false;
        copy(a.DisplayName, value);
        a.SpareCount = 0;
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
        if (!(value = field("RT:")))
            return false;
        m.Route = toInt(value);
        if (!(value = field("HD:")))
            return false;
        m.Device = toInt(value);
        if (!(value = field("ID:")))
            return false;
        m.DiskId = toHex64(value);
        if (!(value = field("SO:")))
            return false;
        m.Offset = toHex64(value);
        if (!(value = field("SS:")))
            return false;
        m.Size = toHex64(value);
        if (!(value = field("DO:")))
            return false;
        m.DataOffset = toHex64(value);
        if (!(value = field("DS:")))
            return false;
        m.DataSize = toHex64(value);
        if (!optional("ER:", value))
            return false;
        copy(m.Error, value ? value : "");
        return true;
    }

    bool readSpare()
    {
        if (!next() || !m_array)
            return false;
        if (m_array->SpareCount < 0
            || m_array->SpareCount >= static_cast<std::int32_t>(SK_SNAPSHOT_SPARES))
            return false;
        SK_ConfigSpare &sp = m_array->Spares[m_array->SpareCount];
        const char *value = nullptr;
        if (!(value = field("RT:")))
            return false;
        sp.Route = toInt(value);
        if (!(value = field("HD:")))
            return false;
        sp.Device = toInt(value);
        if (!(value = field("ID:")))
            return false;
        sp.DiskId = toHex64(value);
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
        if (!(value = field("ID:")))
            return false;
        e.EnclosureId = toHex64(value);
        if (!(value = field("NM:")))
            return false;
        copy(e.Name, value);
        if (!(value = field("VID:")))
            return false;
        copy(e.Vendor, value);
        if (!(value = field("PID:")))
            return false;
        copy(e.Product, value);
        if (!(value = field("REV:")))
            return false;
        copy(e.Revision, value);
        if (!(value = field("SN:")))
            return false;
        copy(e.SerialNumber, value);
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

std::uint32_t SK_ParseConfigText(const char *text, std::size_t length,
                                 SK_ConfigSnapshot *snapshot)
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

std::uint32_t SK_ParseConfig(const SK_CoreEntry *core, SK_ConfigSnapshot *snapshot,
                             std::uint32_t, std::uint32_t resolveOsNames)
{
    if (!snapshot)
        return 0;
    clearCounts(*snapshot);
    SK_Tokenizer *t = allocateTokenizer();
    if (!t)
        return 0;
    std::uint32_t result = 0;
    if (SK_ApiGetCoreConfigString(core, t->Text, SK_REPORT_TEXT_SIZE, resolveOsNames, 0, 1, 0)
        == SK_STS_SUCCESS)
        result = readBlock(*t, *snapshot);
    SKTL_Free(t);
    return result;
}
