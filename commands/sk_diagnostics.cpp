#include "commands/sk_diagnostics.h"

#include <cinttypes>
#include <cstdio>

namespace {

constexpr std::uint32_t kTraceRequestSize = 512;
constexpr std::uint32_t kTraceStateWords = 5;
constexpr std::uint32_t kTraceItemSize = 256;
constexpr std::uint32_t kMessageWords = 9;
constexpr std::uint32_t kWwidRequestSize = 8192;

// Error injection request (command 9): the disk by its routes.
namespace inject {
constexpr std::size_t DeviceRoute = 32, CoreRoute = 34, Type = 36, Start = 40, Size = 44;
} // namespace inject

// Error setting request (commands 12, 13 and 32).
namespace setError {
constexpr std::size_t Kind = 32, Value = 36, Count = 40, References = 44;
} // namespace setError

// Trace state reply (4110): consecutive words from its start.
namespace traceState {
constexpr std::size_t Words = 0;
} // namespace traceState

// Message request (command 39): the words one after another.
namespace message {
constexpr std::size_t Words = 32;
} // namespace message

// PCI ID check (command 41). The controller's ID goes where the option usually is.
namespace pciCheck {
constexpr std::size_t Controller = SK_HDR_OPTION, Vendor = 40, Device = 44;
} // namespace pciCheck

// WWID request (command 47).
namespace wwid {
constexpr std::size_t First = 32, Second = 40;
} // namespace wwid

// Array map read (4125): the array's reference, the size asked for and the option.
namespace arrayMap {
constexpr std::size_t Reference = 36, Size = 52, Option = 56;
} // namespace arrayMap

// Counters C10 to C45, one line each, in report order.
const char *const kCounterLabels[] = {"IocCount:",
                                      "CleanBufferCount:",
                                      "DirtyBufferCount:",
                                      "FreeBufferCount:",
                                      "StreamHits:",
                                      "SK_InitConfigFlushDone:",
                                      "SK_ConfigRescanOn:",
                                      "SK_LogMemoryIsNV:",
                                      "SK_DoSmart:",
                                      "SK_SmartPollInterval:",
                                      "BusIocActiveMax:",
                                      "CoreIocActiveMax:",
                                      "MemMoveActive:",
                                      "MemMoveActiveMax:",
                                      "MemXorActive:",
                                      "MemXorActiveMax:",
                                      "DirectIoActive:",
                                      "SimpleIoActive:",
                                      "pLockWaitingQueueHead:",
                                      "pLockWaitingQueueTail:",
                                      "pDataMemoryWaitingQueueHead:",
                                      "pIocWaitingQueueHeadReserved:",
                                      "SK_ReservedIocCount:",
                                      "SK_BuffersInProgress:",
                                      "BootDirtyBuffers:",
                                      "BusIocTotalSectorsRead:",
                                      "BusIocTotalSectorsWrite:",
                                      "CoreTotalSectorsRead:",
                                      "CoreTotalSectorsWrite:",
                                      "MergeTotal:",
                                      "MergeBlocked:",
                                      "TouchedRegionMapWrites:",
                                      "BootTimeLogEntryCount:",
                                      "SK_BuffersInProgressLimit:",
                                      "SK_ActiveBuffersLimitUpper:",
                                      "PagePromoteCount:"};
constexpr std::uint32_t kFirstCounterLine = 10;
// The four queue heads are addresses and print as such.
constexpr std::uint32_t kFirstPointerCounter = 28, kLastPointerCounter = 31;

// Cache figures K0 to K21.
const char *const kCacheLabels[] = {"ReadCacheAccess:",    "StreamReadLookups:",
                                    "StreamPrefetches:",   "StreamDataHit:",
                                    "StripeWrites:",       "StripeWritesPartial:",
                                    "NonStripeWrites:",    "WriteCacheAccess:",
                                    "ReadGhostCacheHit:",  "ReadCacheHit:",
                                    "WriteGhostCacheHit:", "WriteCacheHit:",
                                    "ReadDataBlocked:",    "WriteDataBlocked:",
                                    "ParityReadAccess:",   "ParityReadHit:",
                                    "RMWCacheAccess:",     "RMWCacheHit:",
                                    "OldDataReadAccess:",  "OldDataReadHit:",
                                    "FlushAccessed:",      "FlushResourcePoolAccessed:"};

// Latency and strategy figures L0 to L15; L3 and L4 share one indexed label.
const char *const kLatencyLabels[] = {
    "WorstLatency:",           "WorstLatencyRoute:",      "WorstLatencyDevice:",
    "WorstLatencyLower[%2u]:", "WorstLatencyLower[%2u]:", "WorstSimpleIoLatency:",
    "WorstDirectIoLatency:",   "WorstFileIoLatency:",     "TwoTripWriteRate:",
    "OneTripWriteRate:",       "DoWriteBypass:",          "WriteBypassThreshold:",
    "UnbufferedStrategy:",     "BufferedStrategy:",       "WriteCacheStrategy:",
    "ReadCacheStrategy:"};
constexpr std::uint32_t kFirstLowerLatency = 3;

class ReportWriter
{
public:
    ReportWriter(char *text, std::uint32_t size) : m_text(text), m_size(size)
    {
        if (m_size)
            m_text[0] = '\0';
    }

    void line(const char *label, const char *value)
    {
        if (m_position >= m_size)
            return;
        const int written = std::snprintf(m_text + m_position, m_size - m_position, "%-*s%s\n",
                                          SK_STATS_LABEL_WIDTH, label, value);
        if (written < 0 || static_cast<std::uint32_t>(written) >= m_size - m_position) {
            // A line that does not fit is left out whole, and nothing comes after it.
            m_text[m_position] = '\0';
            m_position = m_size;
            return;
        }
        m_position += static_cast<std::uint32_t>(written);
        ++m_lines;
    }

    std::uint32_t lines() const { return m_lines; }

private:
    char *m_text;
    std::uint32_t m_size;
    std::uint32_t m_position = 0;
    std::uint32_t m_lines = 0;
};

std::uint64_t wide(const std::uint8_t *r, int i)
{
    return SK_GetU64(r, SK_StatsRecord::Wide + 8 * static_cast<std::size_t>(i));
}

std::uint32_t counter(const std::uint8_t *r, std::uint32_t i)
{
    return SK_GetU32(r, SK_StatsRecord::Counters + 4 * static_cast<std::size_t>(i));
}

double megabytes(std::uint64_t sectors)
{
    return static_cast<double>(sectors) / static_cast<double>(SK_STATS_SECTORS_PER_MB);
}

// "%.2f (%.2f/%.2f)": read and written together, then each.
void throughputLine(ReportWriter &out, const char *label, std::uint64_t read, std::uint64_t written)
{
    char value[96];
    std::snprintf(value, sizeof value, "%.2f (%.2f/%.2f)", megabytes(read + written),
                  megabytes(read), megabytes(written));
    out.line(label, value);
}

void numberLine(ReportWriter &out, const char *label, std::uint64_t number)
{
    char value[32];
    std::snprintf(value, sizeof value, "%" PRIu64, number);
    out.line(label, value);
}

void pairLine(ReportWriter &out, const char *label, std::uint64_t a, std::uint64_t b)
{
    char value[48];
    std::snprintf(value, sizeof value, "%" PRIu64 "/%" PRIu64, a, b);
    out.line(label, value);
}

void textLine(ReportWriter &out, const char *label, const std::uint8_t *field)
{
    char value[33] = {};
    std::memcpy(value, field, 32);
    out.line(label, value);
}

// A request of `size` bytes with only the option set, sent by `command`.
std::uint32_t sendPlain(const SK_CoreEntry *core, const char *tag, std::uint32_t size,
                        std::uint32_t command, std::uint32_t option)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_RunCommand(core, size, tag, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
        SK_PutU32(r, SK_HDR_OPTION, option);
        return open.SK_ConfigWrite(r, size, command);
    });
}

// A read of `readCode` into an 8192-byte block; `take(reply)` copies what the caller
// wants when the read was made. A block that can't be allocated is answered with
// `noMemory`, which is not 48 for every caller, so the frame is spelt out here.
template <class Take>
std::uint32_t readReply(const SK_CoreEntry *core, const char *tag, std::uint32_t readCode,
                        std::uint32_t noMemory, Take &&take)
{
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer reply(SK_READ_REPLY_SIZE, tag);
    if (!reply.ok())
        return noMemory;
    const std::uint32_t status =
        SK_RetryRequest(core, reply, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            return open.SK_ConfigRead(r, SK_READ_REPLY_SIZE, readCode, 0);
        });
    if (status == SK_STS_SUCCESS)
        take(reply.data());
    return status;
}

// An error injection for the named disk, sent plainly or by the disk's route.
std::uint32_t injectError(const SK_CoreEntry *core, const char *diskName, std::uint32_t type,
                          std::uint32_t start, std::uint32_t size, std::uint32_t option,
                          bool byRoute, const char *tag)
{
    if (!core || !diskName)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckDiskName(core, diskName);
    if (status != SK_STS_SUCCESS)
        return status;
    return SK_RunCommand(
        core, SK_PLAIN_REQUEST_SIZE, tag, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const SK_C_PhysicalDevice *disk = SK_LookupDisk(open, diskName);
            if (!disk)
                return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
            SK_PutU32(r, SK_HDR_OPTION, option);
            SK_PutU16(r, inject::DeviceRoute, disk->DeviceRoute);
            SK_PutU16(r, inject::CoreRoute, disk->CoreRoute);
            SK_PutU32(r, inject::Type, type);
            SK_PutU32(r, inject::Start, start);
            SK_PutU32(r, inject::Size, size);
            if (byRoute)
                return open.SK_ConfigWriteRoute(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_INJECT_ERROR,
                                                disk->CoreRoute);
            return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_INJECT_ERROR);
        });
}

} // namespace

std::uint32_t SK_FormatStatsReport(const std::uint8_t *r, char *text, std::uint32_t textSize)
{
    if (!r || !text || textSize == 0)
        return 0;
    ReportWriter out(text, textSize);
    textLine(out, "BUILD:", r + SK_StatsRecord::Build);
    textLine(out, "Hardware:", r + SK_StatsRecord::Hardware);
    out.line("RunMode:", counter(r, 0) == 1 ? "PCI" : "External");
    out.line("DebugMode:", counter(r, 1) == 1 ? "ON" : "OFF");
    numberLine(out, "HostTotalMB:", wide(r, 0) / SK_STATS_SECTORS_PER_MB);
    numberLine(out, "DiskTotalMB:", wide(r, 1) / SK_STATS_SECTORS_PER_MB);
    throughputLine(out, "TotalBusR/W:", wide(r, 2), wide(r, 3));
    throughputLine(out, "TotalCoreR/W:", wide(r, 4), wide(r, 5));
    pairLine(out, "BusMB/CoreMB:", wide(r, 1) / SK_STATS_SECTORS_PER_MB,
             wide(r, 0) / SK_STATS_SECTORS_PER_MB);
    pairLine(out, "BusIoSize/CoreIoSize:", counter(r, 2), counter(r, 3));
    pairLine(out, "BusRequests/CoreRequests:", counter(r, 4), counter(r, 5));
    numberLine(out, "BusIocTotalRequests:", counter(r, 6));
    numberLine(out, "BusIocActive:", counter(r, 7));
    numberLine(out, "CoreIocActive:", counter(r, 8));
    numberLine(out, "CoreIocTotalRequests:", counter(r, 9));
    numberLine(out, "AvailableMemory:", wide(r, 6));

    for (std::uint32_t i = 0; i < sizeof kCounterLabels / sizeof *kCounterLabels; ++i) {
        const std::uint32_t index = kFirstCounterLine + i;
        if (index >= kFirstPointerCounter && index <= kLastPointerCounter) {
            char value[16];
            std::snprintf(value, sizeof value, "%08x", counter(r, index));
            out.line(kCounterLabels[i], value);
        } else {
            numberLine(out, kCounterLabels[i], counter(r, index));
        }
    }
    for (std::uint32_t i = 0; i < sizeof kCacheLabels / sizeof *kCacheLabels; ++i)
        numberLine(out, kCacheLabels[i], SK_GetU32(r, SK_StatsRecord::Cache + 4 * i));
    for (std::uint32_t i = 0; i < sizeof kLatencyLabels / sizeof *kLatencyLabels; ++i) {
        const std::uint32_t value = SK_GetU32(r, SK_StatsRecord::Latency + 4 * i);
        if (i == kFirstLowerLatency || i == kFirstLowerLatency + 1) {
            char label[32];
            std::snprintf(label, sizeof label, "WorstLatencyLower[%2u]:", i - kFirstLowerLatency);
            numberLine(out, label, value);
        } else {
            numberLine(out, kLatencyLabels[i], value);
        }
    }
    return out.lines();
}

std::uint32_t SK_BufferPrintApiGetStats(const SK_CoreEntry *core, char *text, std::uint32_t,
                                        std::uint32_t reset, std::uint32_t)
{
    if (!core || !text)
        return SKTL_STS_INVALID_PARAMETER;
    return readReply(
        core, __func__, reset ? SK_READ_STATS_RESET : SK_READ_STATS, SK_STS_SPACE_NOT_ALLOCATED,
        [&](const std::uint8_t *reply) { SK_FormatStatsReport(reply, text, SK_STATS_TEXT_SIZE); });
}

std::uint32_t SK_ApiInjectError(const SK_CoreEntry *core, const char *diskName, std::uint32_t type,
                                std::uint32_t option)
{
    return injectError(core, diskName, type, 0, 0, option, false, __func__);
}

std::uint32_t SK_ApiInjectErrorDisk(const SK_CoreEntry *core, const char *diskName,
                                    std::uint32_t type, std::uint32_t start, std::uint32_t size,
                                    std::uint32_t option)
{
    return injectError(core, diskName, type, start, size, option, false, __func__);
}

std::uint32_t SK_ApiDirectInjectError(const SK_CoreEntry *core, const char *diskName,
                                      std::uint32_t type, std::uint32_t start, std::uint32_t size,
                                      std::uint32_t option)
{
    return injectError(core, diskName, type, start, size, option, true, __func__);
}

std::uint32_t SK_ApiSetError(const SK_CoreEntry *core, std::uint32_t mode, std::uint32_t kind,
                             std::uint32_t value, std::uint32_t count, const SK_DeviceName *list,
                             std::uint32_t option)
{
    if (!core || (count != 0 && !list))
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckDiskList(core, list, count);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t command = mode == 1   ? SK_CMD_SET_ERROR_MODE1
                                  : mode == 2 ? SK_CMD_SET_ERROR_MODE2
                                              : SK_CMD_SET_ERROR;
    const std::uint32_t size = SK_ListRequestSize(count);
    return SK_RunCommand(
        core, size, __func__, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            for (std::uint32_t i = 0; i < count; ++i) {
                // A name may be a disk's or an array's; the record says which.
                const std::size_t at = setError::References + i * SK_REFERENCE_SIZE;
                if (const SK_C_PhysicalDevice *disk = SK_LookupDisk(open, list[i]))
                    SK_PutDiskReference(r, at, *disk);
                else if (const SK_C_LogicalDevice *array = SK_LookupArray(open, list[i]))
                    SK_PutArrayReference(r, at, *array);
                else
                    return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
            }
            SK_PutU32(r, SK_HDR_OPTION, option);
            SK_PutU32(r, setError::Kind, kind);
            SK_PutU32(r, setError::Value, value);
            SK_PutU32(r, setError::Count, count);
            return open.SK_ConfigWrite(r, size, command);
        });
}

std::uint32_t SK_DebugTrace(const SK_CoreEntry *core, std::uint32_t mode)
{
    static const std::uint32_t commands[] = {SK_CMD_TRACE_MODE0, SK_CMD_TRACE_MODE1,
                                             SK_CMD_TRACE_MODE2, SK_CMD_TRACE_MODE3};
    if (mode >= sizeof commands / sizeof *commands)
        return SKTL_STS_INVALID_PARAMETER;
    return sendPlain(core, __func__, kTraceRequestSize, commands[mode], 0);
}

std::uint32_t SK_DebugTraceGetState(const SK_CoreEntry *core, std::uint32_t *stateOut)
{
    if (!core || !stateOut)
        return SKTL_STS_INVALID_PARAMETER;
    return readReply(core, __func__, SK_READ_TRACE_STATE, SK_STS_NO_MEMORY_AVAILABLE,
                     [&](const std::uint8_t *reply) {
                         for (std::uint32_t i = 0; i < kTraceStateWords; ++i)
                             stateOut[i] = SK_GetU32(reply, traceState::Words + 4 * i);
                     });
}

std::uint32_t SK_DebugTraceGetTraceItem(const SK_CoreEntry *core, std::uint8_t *itemOut)
{
    if (!core || !itemOut)
        return SKTL_STS_INVALID_PARAMETER;
    return readReply(
        core, __func__, SK_READ_TRACE_ITEM, SK_STS_NO_MEMORY_AVAILABLE,
        [&](const std::uint8_t *reply) { std::memcpy(itemOut, reply, kTraceItemSize); });
}

std::uint32_t SK_ApiGetDriverInfo(const SK_CoreEntry *core, std::uint32_t selector,
                                  std::uint8_t *buffer, std::uint32_t size)
{
    static const std::uint32_t readCodes[] = {SK_READ_DRIVER_INFO0, SK_READ_DRIVER_INFO1,
                                              SK_READ_DRIVER_INFO2};
    if (!core || !buffer || selector >= sizeof readCodes / sizeof *readCodes)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_ReadInto(
        core, __func__, readCodes[selector], buffer, size,
        [](const SK_Core &, std::uint8_t *) -> std::uint32_t { return SK_STS_SUCCESS; });
}

std::uint32_t SK_ApiSendMessage(const SK_CoreEntry *core, const std::uint32_t *words,
                                std::uint32_t option)
{
    if (!core || !words)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_RunCommand(core, SK_PLAIN_REQUEST_SIZE, __func__,
                         [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                             SK_PutU32(r, SK_HDR_OPTION, option);
                             for (std::uint32_t i = 0; i < kMessageWords; ++i)
                                 SK_PutU32(r, message::Words + 4 * i, words[i]);
                             return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE,
                                                        SK_CMD_SEND_MESSAGE);
                         });
}

std::uint32_t SK_ApiDirectCheckControllerPCIID(const SK_CoreEntry *core, std::uint64_t controllerId,
                                               std::uint32_t vendor, std::uint32_t device)
{
    if (!core)
        return SK_STS_INVALID_PCI_ID;
    // Any refusal, a request that can't be allocated among them, is a "no".
    const std::uint32_t status =
        SK_RunCommand(core, SK_PLAIN_REQUEST_SIZE, __func__,
                      [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                          SK_PutU64(r, pciCheck::Controller, controllerId);
                          SK_PutU32(r, pciCheck::Vendor, vendor);
                          SK_PutU32(r, pciCheck::Device, device);
                          return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_CHECK_PCI_ID);
                      });
    return status == SK_STS_SUCCESS ? static_cast<std::uint32_t>(SK_STS_SUCCESS)
                                    : static_cast<std::uint32_t>(SK_STS_INVALID_PCI_ID);
}

std::uint32_t SK_ApiSetControllerWwid(const SK_CoreEntry *core, std::uint64_t first,
                                      std::uint64_t second)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_RunCommand(core, kWwidRequestSize, __func__,
                         [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                             SK_PutU64(r, wwid::First, first);
                             SK_PutU64(r, wwid::Second, second);
                             return open.SK_ConfigWrite(r, kWwidRequestSize, SK_CMD_SET_WWID);
                         });
}

std::uint32_t SK_ApiGetArrayMap(const SK_CoreEntry *core, const char *arrayName,
                                std::uint8_t *buffer, std::uint32_t option)
{
    if (!core || !arrayName || !buffer)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckArrayName(core, arrayName);
    if (status != SK_STS_SUCCESS)
        return status;
    // The map is a whole number of sectors larger than 8192 bytes: the driver is asked
    // for the map's size, in a block of that size.
    static_assert(SK_ARRAY_MAP_SIZE % 512 == 0 && SK_ARRAY_MAP_SIZE >= SK_READ_REPLY_SIZE);
    return SK_ReadInto(core, __func__, SK_READ_ARRAY_MAP, buffer, SK_ARRAY_MAP_SIZE,
                       [&](const SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                           const SK_C_LogicalDevice *array = SK_LookupArray(open, arrayName);
                           if (!array)
                               return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
                           SK_PutU32(r, SK_HDR_OPTION, 1);
                           SK_PutArrayReference(r, arrayMap::Reference, *array);
                           SK_PutU32(r, arrayMap::Size, SK_ARRAY_MAP_SIZE);
                           SK_PutU32(r, arrayMap::Option, option);
                           return SK_STS_SUCCESS;
                       });
}
