#include "config/sk_logical_device.h"

#include "config/sk_record_bytes.h"
#include "config/sk_report_writer.h"
#include "config/sk_vocabulary.h"
#include "driver/sk_platform.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <cstdio>
#include <new>

namespace {

constexpr const char *kTableTag = "SK_C_LogicalDevice::SK_C_LogicalDevice";

// Array record layout.
constexpr std::uint32_t kState = 8;
constexpr std::uint32_t kType = 12;
constexpr std::uint32_t kTaskType = 16;
constexpr std::uint32_t kTaskState = 24;
constexpr std::uint32_t kId = 44;
constexpr std::uint32_t kDeviceRoute = 52;
constexpr std::uint32_t kCoreRoute = 54;
constexpr std::uint32_t kKept1 = 56;
constexpr std::uint32_t kKept2 = 60;
constexpr std::uint32_t kKept3 = 68;
constexpr std::uint32_t kKept4 = 70;
constexpr std::uint32_t kKept5 = 72;
constexpr std::uint32_t kKept6 = 76;
constexpr std::uint32_t kKept7 = 78;
constexpr std::uint32_t kCapacity = 80;
constexpr std::uint32_t kProtectStart = 88;
constexpr std::uint32_t kGeneration = 96;
constexpr std::uint32_t kElementCount = 104;
constexpr std::uint32_t kFirstCount = 108;
constexpr std::uint32_t kSecondCount = 112;
constexpr std::uint32_t kParentCount = 116;
constexpr std::uint32_t kKept8 = 120;
constexpr std::uint32_t kProtectSize = 124;
constexpr std::uint32_t kCachePolicy = 128;
constexpr std::uint32_t kKept9 = 132;
constexpr std::uint32_t kKept10 = 136;
constexpr std::uint32_t kSpareCount = 140;
constexpr std::uint32_t kRecordLength = SK_ARRAY_LENGTH_OFFSET;
constexpr std::uint32_t kPercent = 148;
constexpr std::uint32_t kAttributes = 152;
constexpr std::uint32_t kKept11 = 156;
constexpr std::uint32_t kDistributedSpares = 160;
constexpr std::uint32_t kPreferred = 164;
constexpr std::uint32_t kPriority = 168;
constexpr std::uint32_t kDisplayName = 176;
constexpr std::uint32_t kReferenceCount = 208;
constexpr std::uint32_t kCopyFrom = 212;
constexpr std::uint32_t kCopyTo = 220;
constexpr std::uint32_t kSubstitute0 = 252;
constexpr std::uint32_t kSubstitute1 = 260;
constexpr std::uint32_t kCacheTagSize = 272;

// Member entry layout.
constexpr std::uint32_t kMemberId = 0;
constexpr std::uint32_t kMemberDeviceRoute = 8;
constexpr std::uint32_t kMemberCoreRoute = 10;
constexpr std::uint32_t kMemberKept = 12;
constexpr std::uint32_t kMemberOffset = 16;
constexpr std::uint32_t kMemberSize = 24;
constexpr std::uint32_t kMemberDataOffset = 32;
constexpr std::uint32_t kMemberDataSize = 40;
constexpr std::uint32_t kMemberFlags = 48;

// Bytes the three tables need behind the fixed part, in 64 bits so that absurd counts
// can't wrap around into a small number.
std::uint64_t tableBytes(std::uint32_t first, std::uint32_t second, std::uint32_t parents,
                         std::uint32_t spares)
{
    return std::uint64_t{first} * second * SK_MEMBER_ENTRY_SIZE +
           (std::uint64_t{parents} + spares) * SK_REFERENCE_ENTRY_SIZE;
}

template <class T>
T **allocateTable(std::uint32_t count)
{
    if (count == 0)
        return nullptr;
    void *table = SKTL_Alloc(std::size_t{count} * sizeof(T *), kTableTag);
    if (table)
        std::memset(table, 0, std::size_t{count} * sizeof(T *));
    return static_cast<T **>(table);
}

SK_C_DeviceReference *readReference(const std::uint8_t *entry)
{
    auto *reference = new (std::nothrow) SK_C_DeviceReference;
    if (!reference)
        return nullptr;
    reference->ID = SK_GetU64(entry, 0);
    reference->DeviceRoute = SK_GetU16(entry, 8);
    reference->CoreRoute = SK_GetU16(entry, 10);
    reference->Kept = SK_GetU32(entry, 12);
    return reference;
}

std::int32_t asInt(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

void printReference(SK_ReportWriter &w, const char *key, const char *tag, std::uint32_t index,
                    const SK_C_DeviceReference &reference)
{
    w.open(tag);
    w.number(key, "Number", asInt(index));
    w.number("RT", "CoreRoute", reference.CoreRoute);
    w.number("HD", "DeviceRoute", reference.DeviceRoute);
    w.hex64("ID", "ID", reference.ID);
    w.endLine();
    w.close(tag);
}

} // namespace

std::uint64_t SK_PackRoute(const SK_C_DeviceReference &reference)
{
    return std::uint64_t{reference.DeviceRoute} | (std::uint64_t{reference.CoreRoute} << 16) |
           (std::uint64_t{reference.Kept & 0xFFFFu} << 32);
}

std::uint32_t SK_ReferenceMatchesRoute(const SK_C_DeviceReference &reference, std::uint64_t route)
{
    return SK_PackRoute(reference) == route ? 1 : 0;
}

// ---------------------------------------------------------------------------------
// Member

SK_C_LogicalElement::SK_C_LogicalElement(const std::uint8_t *entry)
{
    const SK_RecordBytes bytes(entry, SK_MEMBER_ENTRY_SIZE);
    ID = bytes.u64(kMemberId);
    DeviceRoute = bytes.u16(kMemberDeviceRoute);
    CoreRoute = bytes.u16(kMemberCoreRoute);
    Kept = bytes.u32(kMemberKept);
    Offset = bytes.u64(kMemberOffset);
    Size = bytes.u64(kMemberSize);
    DataOffset = bytes.u64(kMemberDataOffset);
    DataSize = bytes.u64(kMemberDataSize);
    Flags = bytes.u32(kMemberFlags);
}

SK_C_LogicalElement::~SK_C_LogicalElement() = default;

std::uint32_t SK_C_LogicalElement::BufferPrint(std::uint32_t index, std::uint32_t position,
                                               char *buffer, std::uint32_t size,
                                               std::uint32_t compact, std::uint32_t xml)
{
    SK_ReportWriter w(buffer, size, position, compact, xml, 2);
    if (!w.hasRoom(SK_LINE_PRINT_ROOM))
        return position;
    w.open("LogicalElement");
    w.number("LE", "Number", asInt(index));
    w.number("RT", "CoreRoute", CoreRoute);
    w.number("HD", "DeviceRoute", DeviceRoute);
    w.hex64("ID", "ID", ID);
    w.hex64("SO", "Offset", Offset);
    w.hex64("SS", "Size", Size);
    w.hex64("DO", "DataOffset", DataOffset);
    w.hex64("DS", "DataSize", DataSize);
    w.text("ER", "Error", SK_MemberFlagsWord(Flags));
    w.endLine();
    w.close("LogicalElement");
    return w.position();
}

// ---------------------------------------------------------------------------------
// Array

std::uint32_t SK_C_LogicalDevice::SK_CheckRecord(const std::uint8_t *record, std::uint32_t length)
{
    if (!record)
        return SKTL_STS_INVALID_PARAMETER;
    if (length < SK_ARRAY_FIXED_SIZE)
        return SK_STS_OUT_OF_BOUNDS;
    const std::uint64_t tables =
        tableBytes(SK_GetU32(record, kFirstCount), SK_GetU32(record, kSecondCount),
                   SK_GetU32(record, kParentCount), SK_GetU32(record, kSpareCount));
    if (tables > length - SK_ARRAY_FIXED_SIZE)
        return SK_STS_OUT_OF_BOUNDS;
    return SK_STS_SUCCESS;
}

SK_C_LogicalDevice::SK_C_LogicalDevice(const std::uint8_t *record, const char *routePrefix,
                                       std::uint32_t coreNumber, std::uint32_t length)
{
    const SK_RecordBytes bytes(record, length);
    State = bytes.u32(kState);
    Type = bytes.u32(kType);
    TaskType = bytes.u32(kTaskType);
    TaskState = bytes.u32(kTaskState);
    ID = bytes.u64(kId);
    DeviceRoute = bytes.u16(kDeviceRoute);
    CoreRoute = bytes.u16(kCoreRoute);
    Kept1 = bytes.u32(kKept1);
    Kept2 = bytes.u64(kKept2);
    Kept3 = bytes.u16(kKept3);
    Kept4 = bytes.u16(kKept4);
    Kept5 = bytes.u32(kKept5);
    Kept6 = bytes.u16(kKept6);
    Kept7 = bytes.u16(kKept7);
    Capacity = bytes.u64(kCapacity);
    TransformProtectStart = bytes.u64(kProtectStart);
    Generation = bytes.u64(kGeneration);
    ElementCount = bytes.u32(kElementCount);
    FirstCount = bytes.u32(kFirstCount);
    SecondCount = bytes.u32(kSecondCount);
    ParentCount = bytes.u32(kParentCount);
    Kept8 = bytes.u32(kKept8);
    TransformProtectSize = bytes.u32(kProtectSize);
    CachePolicy = bytes.u32(kCachePolicy);
    Kept9 = bytes.u32(kKept9);
    Kept10 = bytes.u32(kKept10);
    SpareCount = bytes.u32(kSpareCount);
    RecordLength = bytes.u32(kRecordLength);
    PercentComplete = bytes.u32(kPercent);
    Attributes = bytes.u32(kAttributes);
    Kept11 = bytes.u32(kKept11);
    DistributedSpareCount = bytes.u32(kDistributedSpares);
    PreferredLogicalElement = bytes.u32(kPreferred);
    TaskPriority = bytes.u32(kPriority);
    ReferenceCount = bytes.u32(kReferenceCount);
    CopyFromID = bytes.u64(kCopyFrom);
    CopyToID = bytes.u64(kCopyTo);
    CacheTagSize = bytes.u32(kCacheTagSize);
    CoreNumber = coreNumber;
    bytes.bytes(kDisplayName, sizeof DisplayName, DisplayName);
    SK_ComposeDeviceName(Name, routePrefix ? routePrefix : "", CoreRoute, DeviceRoute);

    if (SK_CheckRecord(record, length) != SK_STS_SUCCESS) {
        // Tables the record can't hold are not read at all: better an array without
        // members than members made of the bytes behind it.
        FirstCount = SecondCount = ParentCount = SpareCount = 0;
        return;
    }

    std::uint32_t offset = SK_ARRAY_FIXED_SIZE;
    const std::uint32_t slots = SK_ElementSlots();
    Elements = allocateTable<SK_C_LogicalElement>(slots);
    if (!Elements)
        FirstCount = SecondCount = 0;
    for (std::uint32_t i = 0; Elements && i < slots; ++i, offset += SK_MEMBER_ENTRY_SIZE)
        Elements[i] = new (std::nothrow) SK_C_LogicalElement(record + offset);
    if (!Elements)
        offset += slots * SK_MEMBER_ENTRY_SIZE;

    // The driver hands the identities of the first two members over separately when
    // they are being swapped; only the low words are compared, as the driver does.
    if (bytes.u32(kSubstitute0) != bytes.u32(kSubstitute1)) {
        if (SK_ElementSlots() > 0 && Elements[0])
            Elements[0]->ID = bytes.u64(kSubstitute0);
        if (SK_ElementSlots() > 1 && Elements[1])
            Elements[1]->ID = bytes.u64(kSubstitute1);
    }

    Parents = allocateTable<SK_C_DeviceReference>(ParentCount);
    if (!Parents)
        ParentCount = 0;
    for (std::uint32_t i = 0; i < ParentCount; ++i, offset += SK_REFERENCE_ENTRY_SIZE)
        Parents[i] = readReference(record + offset);
    Spares = allocateTable<SK_C_DeviceReference>(SpareCount);
    if (!Spares)
        SpareCount = 0;
    for (std::uint32_t i = 0; i < SpareCount; ++i, offset += SK_REFERENCE_ENTRY_SIZE)
        Spares[i] = readReference(record + offset);
}

SK_C_LogicalDevice::~SK_C_LogicalDevice()
{
    if (Elements) {
        for (std::uint32_t i = 0; i < SK_ElementSlots(); ++i)
            delete Elements[i];
        SKTL_Free(Elements);
    }
    if (Parents) {
        for (std::uint32_t i = 0; i < ParentCount; ++i)
            delete Parents[i];
        SKTL_Free(Parents);
    }
    if (Spares) {
        for (std::uint32_t i = 0; i < SpareCount; ++i)
            delete Spares[i];
        SKTL_Free(Spares);
    }
}

std::uint32_t SK_C_LogicalDevice::SK_TypeIndex() const
{
    return SK_ArrayTypeIndexOf(Type, FirstCount, SecondCount);
}

const char *SK_C_LogicalDevice::SK_TypeName() const
{
    return SK_ArrayTypeWord(SK_TypeIndex());
}

std::uint32_t SK_C_LogicalDevice::SK_IsHidden() const
{
    return (Attributes & SK_ATTRIBUTE_HIDDEN) != 0 ? 1 : 0;
}

std::uint32_t SK_C_LogicalDevice::SK_FindSpare(std::uint64_t id, std::uint16_t deviceRoute,
                                               std::uint16_t coreRoute) const
{
    for (std::uint32_t i = 0; i < SpareCount; ++i) {
        const SK_C_DeviceReference *spare = Spares[i];
        if (spare && spare->ID == id && spare->DeviceRoute == deviceRoute &&
            spare->CoreRoute == coreRoute)
            return i;
    }
    return SpareCount;
}

std::uint32_t SK_C_LogicalDevice::BufferPrint(std::uint32_t index, std::uint32_t position,
                                              char *buffer, std::uint32_t size,
                                              std::uint32_t resolveOsNames, std::uint32_t compact,
                                              std::uint32_t xml)
{
    SK_ReportWriter w(buffer, size, position, compact, xml, 1);
    if (!w.hasRoom(SK_RECORD_PRINT_ROOM))
        return position;

    SK_CaretSafe(DisplayName, sizeof DisplayName);
    char displayName[sizeof DisplayName + 1] = {};
    std::memcpy(displayName, DisplayName, sizeof DisplayName);

    char osName[16] = "NONE";
    if (resolveOsNames && !SK_IsHidden()) {
        std::uint32_t diskNumber = 0;
        if (SK_CurrentPlatform().system().findOsDiskNumber(CoreNumber, DeviceRoute, diskNumber) ==
            SK_STS_SUCCESS)
            std::snprintf(osName, sizeof osName, "%u", diskNumber);
    }

    w.open("LogicalDevice");
    w.number("LD", "Number", asInt(index));
    w.text("ST", "State", SK_ArrayStateWord(State, TaskType));
    w.hex64("ID", "ID", ID);
    w.text("NM", "Name", Name);
    w.text("OSN", "OSName", osName);
    w.number("RT", "CoreRoute", CoreRoute);
    w.number("HD", "DeviceRoute", DeviceRoute);
    w.hex64("SI", "Capacity", Capacity);
    w.number("1ST", "FirstCount", asInt(FirstCount));
    w.number("2ND", "SecondCount", asInt(SecondCount));
    w.text("CA", "Cache", SK_CachePolicyWord(CachePolicy));
    w.number("CTS", "CacheTagSize", asInt(CacheTagSize));
    w.text("TY", "Type", SK_TypeName());
    w.hex32("GE", "Generation", static_cast<std::uint32_t>(Generation));
    w.hex64("TPST", "TransformProtectStart", TransformProtectStart);
    w.number("TPSI", "TransformProtectSize", asInt(TransformProtectSize));
    w.percent("TPC", "TransformPercentComplete", SK_PercentComplete(PercentComplete));
    w.number("TP", "TaskPriority", asInt(TaskPriority));
    w.text("TTY", "TransformType", SK_TaskTypeWord(TaskType));
    w.text("TST", "TransformState", SK_TaskStateWord(TaskState));
    w.number("DS", "DistributedSpareCount", asInt(DistributedSpareCount));
    w.number("PRE", "PreferredLogicalElement", asInt(PreferredLogicalElement));
    w.hex16("AT", "Attributes", Attributes & 0xFFFFu);
    w.number("RC", "ReferenceCount", asInt(ReferenceCount));
    w.hex64("CF", "CopyFromID", CopyFromID);
    w.hex64("CT", "CopyToID", CopyToID);
    if (xml) {
        // Only the tagged form needs its ampersands escaped; the copy keeps the record.
        char escaped[sizeof DisplayName * 5 + 1] = {};
        std::size_t n = 0;
        for (const char *c = displayName; *c; ++c) {
            const char *piece = *c == '&' ? "&amp;" : nullptr;
            if (piece) {
                std::memcpy(escaped + n, piece, 5);
                n += 5;
            } else {
                escaped[n++] = *c;
            }
        }
        w.text("DP", "DeviceName", escaped);
    } else if (displayName[0]) {
        w.caret("DP", "DeviceName", displayName);
        w.put(" ");
    } else {
        w.text("DP", "DeviceName", displayName);
    }
    w.endLine();

    for (std::uint32_t i = 0; Elements && i < SK_ElementSlots(); ++i) {
        if (Elements[i])
            w = SK_ReportWriter(
                buffer, size, Elements[i]->BufferPrint(i, w.position(), buffer, size, compact, xml),
                compact, xml, 2);
    }
    for (std::uint32_t i = 0; i < SpareCount; ++i) {
        if (Spares[i] && w.hasRoom(SK_LINE_PRINT_ROOM))
            printReference(w, "SP", "DedicatedSpare", i, *Spares[i]);
    }
    for (std::uint32_t i = 0; i < ParentCount; ++i) {
        if (Parents[i] && w.hasRoom(SK_LINE_PRINT_ROOM))
            printReference(w, "PA", "Parent", i, *Parents[i]);
    }
    w.close("LogicalDevice");
    return w.position();
}
