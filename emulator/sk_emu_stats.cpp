#include "emulator/sk_emu_stats.h"

#include "emulator/sk_emu_wire.h"

#include <cmath>

namespace sk_emu {

using namespace wire;

namespace {

constexpr double kPi = 3.14159265358979323846;

// Integral of base * (1 + depth * sin(2 pi t / period)) over [t0, t1] seconds.
double drifting(double base, double depth, double period, double t0, double t1)
{
    const double w = 2 * kPi / period;
    return base * ((t1 - t0) - depth / w * (std::cos(w * t1) - std::cos(w * t0)));
}

// How many disk sectors one host sector costs on average, by level.
double diskFactor(const Layout &layout, bool isWrite)
{
    if (!isWrite)
        return 1.0;
    switch (layout.type) {
    case code::TypeMirrorStripe:
        return layout.secondCount > 1 ? layout.secondCount : 1.0;
    case code::TypeParity:
        return 2.0; // read-modify-write of data and parity
    case code::TypeDoubleParity:
        return 3.0;
    default:
        return 1.0;
    }
}

bool carriesIo(const Array &array)
{
    return !array.hidden() && array.state != code::ArrayOffline;
}

// Disk sectors per second a running task moves at full priority: the drivers give a
// task the share of the disks its priority asks for.
constexpr double kTaskSectorsPerSecond = 40000.0; // ~20 MB/s

// Shares of a running task's disk traffic that are reads and writes, by kind: a check
// only reads, zeroing and erasing only write, the others copy.
void taskShares(const Task &task, double &readShare, double &writeShare)
{
    readShare = writeShare = 0;
    if (task.state != code::TaskStarted)
        return;
    switch (task.type) {
    case code::TaskCheck:
        readShare = 1.0;
        break;
    case code::TaskZero:
    case code::TaskSecureErase:
        writeShare = 1.0;
        break;
    case code::TaskNone:
        break;
    default:
        readShare = writeShare = 0.5;
        break;
    }
}

} // namespace

void Statistics::advance(const Model &model, std::uint64_t nowMs)
{
    if (!m_started) {
        m_started = true;
        m_lastMs = nowMs;
        return;
    }
    if (nowMs <= m_lastMs)
        return;
    const double t0 = m_lastMs / 1000.0, t1 = nowMs / 1000.0;
    m_lastMs = nowMs;

    int index = 0;
    for (const Array &array : model.arrays) {
        ++index;
        // A task's own traffic reaches the disks only, in large requests, also on a
        // hidden array (an erase hides it first).
        double readShare = 0, writeShare = 0;
        taskShares(array.task, readShare, writeShare);
        if (readShare + writeShare > 0) {
            const double moved = kTaskSectorsPerSecond * array.priority / 100.0 * (t1 - t0);
            m_busRead += moved * readShare;
            m_busWrite += moved * writeShare;
            m_busRequests += moved / 256.0; // 128 KiB per request
        }
        if (!carriesIo(array))
            continue;
        // Each array gets its own phase so the figures don't move in lockstep.
        const double phase = index * 37.0;
        const double reads = drifting(9000.0, 0.6, 180.0, t0 + phase, t1 + phase);  // ~4.6 MB/s
        const double writes = drifting(5000.0, 0.8, 240.0, t0 + phase, t1 + phase); // ~2.6 MB/s
        m_coreRead += reads;
        m_coreWrite += writes;
        m_busRead += reads * diskFactor(array.layout, false);
        m_busWrite += writes * diskFactor(array.layout, true);
        m_coreRequests += (reads + writes) / 64.0; // 32 KiB per request
        m_busRequests += (reads + writes * diskFactor(array.layout, true)) / 48.0;
    }
}

void Statistics::resetInterval()
{
    m_allCoreRead += static_cast<std::uint64_t>(m_coreRead);
    m_allCoreWrite += static_cast<std::uint64_t>(m_coreWrite);
    m_allBusRead += static_cast<std::uint64_t>(m_busRead);
    m_allBusWrite += static_cast<std::uint64_t>(m_busWrite);
    m_allCoreRequests += static_cast<std::uint64_t>(m_coreRequests);
    m_allBusRequests += static_cast<std::uint64_t>(m_busRequests);
    m_hostTotal = m_allCoreRead + m_allCoreWrite;
    m_diskTotal = m_allBusRead + m_allBusWrite;
    m_coreRead = m_coreWrite = m_busRead = m_busWrite = 0;
    m_coreRequests = m_busRequests = 0;
}

void Statistics::fill(const Model &model, std::uint64_t nowMs, std::uint8_t *r)
{
    advance(model, nowMs);
    putText(r, stats::BuildAt, 32, model.host.driverBuild);
    putText(r, stats::HardwareAt, 32, model.controllers.empty() ? "" : model.controllers[0].name);

    const auto coreRead = static_cast<std::uint64_t>(m_coreRead);
    const auto coreWrite = static_cast<std::uint64_t>(m_coreWrite);
    const auto busRead = static_cast<std::uint64_t>(m_busRead);
    const auto busWrite = static_cast<std::uint64_t>(m_busWrite);
    const auto coreRequests = static_cast<std::uint32_t>(m_coreRequests);
    const auto busRequests = static_cast<std::uint32_t>(m_busRequests);

    auto wide = [&](int i, std::uint64_t v) { put64(r, stats::Wide64At + 8 * i, v); };
    wide(stats::HostTotalSectors, m_hostTotal + coreRead + coreWrite);
    wide(stats::DiskTotalSectors, m_diskTotal + busRead + busWrite);
    wide(stats::BusSectorsRead, busRead);
    wide(stats::BusSectorsWrite, busWrite);
    wide(stats::CoreSectorsRead, coreRead);
    wide(stats::CoreSectorsWrite, coreWrite);
    wide(stats::AvailableMemory, 512ull << 20);

    auto counter = [&](int i, std::uint64_t v) {
        put32(r, stats::CountersAt + 4 * i, static_cast<std::uint32_t>(v));
    };
    const std::uint32_t active = coreRequests ? 1 + coreRequests % 7 : 0;
    counter(stats::RunMode, 1);
    counter(stats::DebugMode, 0);
    counter(stats::BusIoSize, busRequests ? (busRead + busWrite) / busRequests : 0);
    counter(stats::CoreIoSize, coreRequests ? (coreRead + coreWrite) / coreRequests : 0);
    counter(stats::BusRequests, busRequests);
    counter(stats::CoreRequests, coreRequests);
    counter(stats::BusIocTotalRequests, busRequests);
    counter(stats::BusIocActive, active + 1);
    counter(stats::CoreIocActive, active);
    counter(stats::CoreIocTotalRequests, coreRequests);
    counter(stats::IocCount, 1024);
    counter(stats::CleanBufferCount, 3000 + coreRequests % 500);
    counter(stats::DirtyBufferCount, coreWrite / 64 % 400);
    counter(stats::FreeBufferCount, 8192 - 3000 - coreRequests % 500);
    counter(stats::StreamHits, coreRead / 256);
    counter(stats::InitConfigFlushDone, 1);
    counter(stats::ConfigRescanOn, 0);
    counter(stats::LogMemoryIsNV, 0);
    counter(stats::DoSmart, 1);
    counter(stats::SmartPollInterval, 60);
    counter(stats::BusIocActiveMax, 64);
    counter(stats::CoreIocActiveMax, 48);
    counter(stats::ReservedIocCount, 32);
    counter(stats::BuffersInProgress, active);
    counter(stats::BusIocTotalSectorsRead, m_allBusRead + busRead);
    counter(stats::BusIocTotalSectorsWrite, m_allBusWrite + busWrite);
    counter(stats::CoreTotalSectorsRead, m_allCoreRead + coreRead);
    counter(stats::CoreTotalSectorsWrite, m_allCoreWrite + coreWrite);
    counter(stats::MergeTotal, (m_allCoreRequests + coreRequests) / 9);
    counter(stats::BuffersInProgressLimit, 4096);
    counter(stats::ActiveBuffersLimitUpper, 6144);

    const std::uint32_t cache[stats::CacheFigures] = {static_cast<std::uint32_t>(coreRead / 8),
                                                      static_cast<std::uint32_t>(coreRead / 64),
                                                      static_cast<std::uint32_t>(coreRead / 128),
                                                      static_cast<std::uint32_t>(coreRead / 160),
                                                      static_cast<std::uint32_t>(coreWrite / 128),
                                                      static_cast<std::uint32_t>(coreWrite / 512),
                                                      static_cast<std::uint32_t>(coreWrite / 256),
                                                      static_cast<std::uint32_t>(coreWrite / 8),
                                                      0,
                                                      static_cast<std::uint32_t>(coreRead / 24),
                                                      0,
                                                      static_cast<std::uint32_t>(coreWrite / 20),
                                                      0,
                                                      0,
                                                      static_cast<std::uint32_t>(busWrite / 64),
                                                      static_cast<std::uint32_t>(busWrite / 96),
                                                      static_cast<std::uint32_t>(busWrite / 80),
                                                      static_cast<std::uint32_t>(busWrite / 120),
                                                      0,
                                                      0,
                                                      static_cast<std::uint32_t>(coreWrite / 512),
                                                      0};
    for (int i = 0; i < stats::CacheFigures; ++i)
        put32(r, stats::CacheAt + 4 * i, cache[i]);

    auto latency = [&](int i, std::uint32_t v) { put32(r, stats::LatencyAt + 4 * i, v); };
    latency(stats::WorstLatency, coreRequests ? 12 + coreRequests % 40 : 0);
    latency(stats::WorstLatencyRoute, model.arrays.empty() ? 0 : model.arrays.front().route);
    latency(stats::WorstLatencyDevice, 1);
    latency(stats::WorstSimpleIoLatency, 4);
    latency(stats::WorstDirectIoLatency, 6);
    latency(stats::WorstFileIoLatency, 9);
    latency(stats::TwoTripWriteRate, 12);
    latency(stats::OneTripWriteRate, 88);
    latency(stats::WriteBypassThreshold, 256);
    latency(stats::BufferedStrategy, 1);
    latency(stats::WriteCacheStrategy, 1);
    latency(stats::ReadCacheStrategy, 1);
}

} // namespace sk_emu
