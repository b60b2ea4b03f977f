#pragma once
// The drivers' statistics, answered to read codes 4103 (read) and 4104 (read, then
// start a new interval). The reply record and the place of every figure in it are
// documented in docs/statistics-reply.md; that table is the contract with the
// console's report formatter.

#include "emulator/sk_emu_model.h"

#include <cstdint>
#include <vector>

namespace sk_emu {

namespace stats {
constexpr std::size_t RecordAt = 512;
constexpr std::size_t BuildAt = 512;    // char[32]
constexpr std::size_t HardwareAt = 544; // char[32]
constexpr std::size_t Wide64At = 576;   // 7 x u64
constexpr std::size_t CountersAt = 632; // 51 x u32
constexpr std::size_t CacheAt = 836;    // 32 x u32
constexpr std::size_t LatencyAt = 964;  // 52 x u32
constexpr std::size_t RecordEnd = 1172;

// Indexes into the u64 block.
enum Wide : int {
    HostTotalSectors,
    DiskTotalSectors,
    BusSectorsRead,   // this interval
    BusSectorsWrite,  // this interval
    CoreSectorsRead,  // this interval
    CoreSectorsWrite, // this interval
    AvailableMemory,
};

// Indexes into the first u32 block.
enum Counter : int {
    RunMode,      // 0 External, 1 PCI
    DebugMode,    // 0 OFF, 1 ON
    BusIoSize,    // average sectors per disk request, this interval
    CoreIoSize,   // average sectors per host request, this interval
    BusRequests,  // disk requests, this interval
    CoreRequests, // host requests, this interval
    BusIocTotalRequests,
    BusIocActive,
    CoreIocActive,
    CoreIocTotalRequests,
    IocCount,
    CleanBufferCount,
    DirtyBufferCount,
    FreeBufferCount,
    StreamHits,
    InitConfigFlushDone,
    ConfigRescanOn,
    LogMemoryIsNV,
    DoSmart,
    SmartPollInterval,
    BusIocActiveMax,
    CoreIocActiveMax,
    MemMoveActive,
    MemMoveActiveMax,
    MemXorActive,
    MemXorActiveMax,
    DirectIoActive,
    SimpleIoActive,
    LockWaitingQueueHead,
    LockWaitingQueueTail,
    DataMemoryWaitingQueueHead,
    IocWaitingQueueHeadReserved,
    ReservedIocCount,
    BuffersInProgress,
    BootDirtyBuffers,
    BusIocTotalSectorsRead,
    BusIocTotalSectorsWrite,
    CoreTotalSectorsRead,
    CoreTotalSectorsWrite,
    MergeTotal,
    MergeBlocked,
    TouchedRegionMapWrites,
    BootTimeLogEntryCount,
    BuffersInProgressLimit,
    ActiveBuffersLimitUpper,
    PagePromoteCount,
    CounterCount = 51,
};

// The cache block holds, in order, the 22 cache figures of the report from
// ReadCacheAccess to FlushResourcePoolAccessed; the rest is reserved.
constexpr int CacheFigures = 22;

// Indexes into the latency block.
enum Latency : int {
    WorstLatency,
    WorstLatencyRoute,
    WorstLatencyDevice,
    WorstLatencyLower0,
    WorstLatencyLower1,
    WorstSimpleIoLatency,
    WorstDirectIoLatency,
    WorstFileIoLatency,
    TwoTripWriteRate,
    OneTripWriteRate,
    DoWriteBypass,
    WriteBypassThreshold,
    UnbufferedStrategy,
    BufferedStrategy,
    WriteCacheStrategy,
    ReadCacheStrategy,
};
} // namespace stats

// A workload that moves with the clock: each healthy array sees host reads and writes
// whose rate drifts smoothly over minutes; the disks see what the level makes of them,
// plus the traffic of every running task, by its priority.
class Statistics
{
public:
    // Brings the counters up to `nowMs`.
    void advance(const Model &model, std::uint64_t nowMs);
    // Writes the reply record into `reply` (at least RecordEnd bytes).
    void fill(const Model &model, std::uint64_t nowMs, std::uint8_t *reply);
    // Starts a new interval.
    void resetInterval();

    std::uint64_t hostTotalSectors() const { return m_hostTotal; }
    std::uint64_t diskTotalSectors() const { return m_diskTotal; }

private:
    bool m_started = false;
    std::uint64_t m_lastMs = 0;
    std::uint64_t m_hostTotal = 0, m_diskTotal = 0;
    double m_coreRead = 0, m_coreWrite = 0, m_busRead = 0, m_busWrite = 0; // interval sectors
    double m_coreRequests = 0, m_busRequests = 0;                          // interval
    std::uint64_t m_allCoreRequests = 0, m_allBusRequests = 0;
    std::uint64_t m_allCoreRead = 0, m_allCoreWrite = 0, m_allBusRead = 0, m_allBusWrite = 0;
};

} // namespace sk_emu
