// The default scenario: an engineering workstation as a customer would have it after a
// few weeks of use.

#include "emulator/sk_emu_events.h"
#include "emulator/sk_emu_scenario.h"

#include <algorithm>

namespace sk_emu {

namespace {

constexpr std::uint64_t kSsd1TB = 1953525168;  // 1,000,204,886,016 bytes
constexpr std::uint64_t kHdd4TB = 7814037168;  // 4,000,787,030,016 bytes
constexpr std::uint64_t kNvme2TB = 3907029168; // 2,000,398,934,016 bytes

// Member extents are whole MiB and leave the driver's metadata area free.
std::uint64_t usableExtent(std::uint64_t capacity)
{
    return (capacity - kMetadataSectors) / 2048 * 2048;
}

SmartAttribute attr(std::uint8_t id, std::uint8_t current, std::uint8_t worst, std::uint64_t raw,
                    std::uint8_t threshold, std::uint16_t flags = 0x32)
{
    return SmartAttribute{id, flags, current, worst, raw, threshold};
}

// A number that stays the same for one drive on every run, so that values which differ
// between drives of one model (error rates, load cycles) are not all alike.
std::uint64_t driveSeed(const char *serial, std::uint64_t capacity)
{
    std::uint64_t hash = 1469598103934665603ull; // FNV-1a
    for (const char *c = serial; *c; ++c)
        hash = (hash ^ static_cast<unsigned char>(*c)) * 1099511628211ull;
    return hash ^ capacity;
}

std::uint64_t spread(std::uint64_t seed, unsigned salt, std::uint64_t low, std::uint64_t high)
{
    return low + ((seed >> (salt % 48)) ^ (seed * (salt + 1))) % (high - low + 1);
}

// Temperature raw value as most hard disks keep it: the current value in the low word,
// the lifetime minimum and maximum in the two words above.
std::uint64_t temperatureRaw(std::uint64_t now, std::uint64_t low, std::uint64_t high)
{
    return now | (low << 16) | (high << 32);
}

std::uint8_t percentLeft(std::uint64_t used, std::uint64_t life)
{
    return static_cast<std::uint8_t>(100 - std::min<std::uint64_t>(99, used * 100 / life));
}

// How a disk has lived so far.
struct Usage
{
    std::uint64_t hours;
    std::uint64_t cycles;
    std::uint64_t celsius;
    std::uint64_t reallocated = 0; // grown defects: sectors moved to the spare area
};

Disk sataSsd(std::uint64_t id, std::uint32_t port, const char *serial, const Usage &u)
{
    Disk d;
    d.id = id;
    d.port = port;
    d.capacity = kSsd1TB;
    d.portType = code::PortSata | code::Port6G | code::PortSsd;
    d.features = code::FeatureWriteCache | code::FeatureReadAhead | code::FeatureSmartPolling;
    d.model = "Samsung SSD 870 EVO 1TB";
    d.serial = serial;
    d.firmware = "SVT02B6Q";
    d.vendor = "ATA";
    const std::uint64_t seed = driveSeed(serial, d.capacity);
    // A system mirror writes about 2.6 GB an hour; each block takes a program/erase
    // cycle for every 600 hours or so.
    const std::uint64_t lbasWritten = u.hours * spread(seed, 1, 4900000, 5600000);
    const std::uint64_t wear = u.hours / 600 + spread(seed, 2, 0, 2);
    d.smartVersion = 1;
    d.smart = {attr(5, 100, 100, u.reallocated, 10, 0x33),
               attr(9, percentLeft(u.hours, 100000), percentLeft(u.hours, 100000), u.hours, 0),
               attr(12, 99, 99, u.cycles, 0),
               attr(177, percentLeft(wear, 600), percentLeft(wear, 600), wear, 0, 0x13),
               attr(179, 100, 100, 0, 10, 0x13),
               attr(181, 100, 100, 0, 10),
               attr(182, 100, 100, 0, 10),
               attr(183, 100, 100, 0, 10, 0x13),
               attr(187, 100, 100, 0, 0),
               attr(190, static_cast<std::uint8_t>(100 - u.celsius), 61, u.celsius, 0),
               attr(195, 200, 200, 0, 0, 0x1A),
               attr(199, 100, 100, 0, 0, 0x3E),
               attr(235, 99, 99, u.cycles / 5 + spread(seed, 3, 0, 6), 0, 0x12),
               attr(241, 99, 99, lbasWritten, 0, 0x32)};
    return d;
}

Disk hardDisk(std::uint64_t id, std::uint32_t port, const char *model, const char *serial,
              const char *firmware)
{
    Disk d;
    d.id = id;
    d.port = port;
    d.capacity = kHdd4TB;
    // The hard disks sit in the hot-swap bays of the front cage.
    d.portType = code::PortSata | code::Port6G | code::PortNcq | code::PortRemovable;
    d.features = code::FeatureWriteCache | code::FeatureReadAhead | code::FeatureSmartPolling;
    d.model = model;
    d.serial = serial;
    d.firmware = firmware;
    d.vendor = "ATA";
    return d;
}

// Size of a drive's spare area in sectors: the reallocation count's value reaches its
// threshold when nearly all of it is used.
constexpr std::uint64_t kSpareSectors = 3400;

Disk seagateHdd(std::uint64_t id, std::uint32_t port, const char *serial, const Usage &u)
{
    Disk d = hardDisk(id, port, "ST4000NM000A-2HZ100", serial, "TN05");
    const std::uint64_t seed = driveSeed(serial, d.capacity);
    const std::uint64_t errorRate = spread(seed, 1, 20000000, 240000000);
    const std::uint64_t seekErrors = u.hours * 30000 + spread(seed, 2, 0, 9999999);
    const std::uint64_t loadCycles = u.hours / 5 + spread(seed, 3, 0, 400);
    const std::uint64_t retracts = u.cycles / 7 + spread(seed, 4, 0, 5);
    const std::uint64_t low = 19 + spread(seed, 5, 0, 3),
                        high = u.celsius + 5 + spread(seed, 6, 0, 4);
    const std::uint8_t spare = percentLeft(u.reallocated, kSpareSectors);
    // A drive that moves sectors also reports the reads it could not correct.
    const std::uint64_t pending = u.reallocated / 200, uncorrectable = u.reallocated / 450;
    d.smartVersion = 10;
    d.smart = {
        attr(1, 82, 64, errorRate, 44, 0x0F),
        attr(3, 92, 91, 0, 0, 0x03),
        attr(4, 100, 100, u.cycles + 3, 20, 0x32),
        attr(5, spare, spare, u.reallocated, 10, 0x33),
        attr(7, 86, 60, seekErrors, 45, 0x0F),
        attr(9, percentLeft(u.hours, 87600), percentLeft(u.hours, 87600), u.hours, 0),
        attr(10, 100, 100, 0, 97, 0x13),
        attr(12, 100, 100, u.cycles, 20, 0x32),
        attr(18, 100, 100, 0, 1, 0x0B),
        attr(187, static_cast<std::uint8_t>(100 - uncorrectable),
             static_cast<std::uint8_t>(100 - uncorrectable), uncorrectable, 0, 0x32),
        attr(188, 100, 100, 0, 0, 0x32),
        attr(190, static_cast<std::uint8_t>(100 - u.celsius), static_cast<std::uint8_t>(100 - high),
             (high << 24) | (low << 16) | u.celsius, 40, 0x22),
        attr(192, 100, 100, retracts, 0, 0x32),
        attr(193, percentLeft(loadCycles, 600000), percentLeft(loadCycles, 600000), loadCycles, 0),
        attr(194, static_cast<std::uint8_t>(u.celsius), static_cast<std::uint8_t>(high),
             temperatureRaw(u.celsius, low, high), 0, 0x22),
        attr(195, 82, 64, errorRate, 0, 0x1A),
        attr(197, 100, 100, pending, 0, 0x12),
        attr(198, 100, 100, pending, 0, 0x10),
        attr(199, 200, 200, 0, 0, 0x3E),
        attr(200, 100, 100, 0, 1, 0x23),
        attr(240, 100, 253, u.hours - u.hours / 40, 0, 0),
        attr(241, 100, 253, u.hours * spread(seed, 7, 1100000, 1500000), 0, 0),
        attr(242, 100, 253, u.hours * spread(seed, 8, 2600000, 3900000), 0, 0)};
    return d;
}

Disk westernDigitalHdd(std::uint64_t id, std::uint32_t port, const char *serial, const Usage &u)
{
    Disk d = hardDisk(id, port, "WDC WD40EFZX-68AWUN0", serial, "81.00B81");
    const std::uint64_t seed = driveSeed(serial, d.capacity);
    const std::uint64_t spinUpMs = spread(seed, 1, 6200, 6900);
    const std::uint8_t spare = static_cast<std::uint8_t>(
        200 - std::min<std::uint64_t>(199, u.reallocated * 200 / kSpareSectors));
    // These drives keep the temperature's current value only; the normalised value
    // counts down from about 150.
    const auto tempValue = static_cast<std::uint8_t>(150 - u.celsius);
    d.smartVersion = 16;
    d.smart = {attr(1, 200, 200, 0, 51, 0x2F),
               attr(3, static_cast<std::uint8_t>(300 - spinUpMs / 50),
                    static_cast<std::uint8_t>(296 - spinUpMs / 50), spinUpMs, 21, 0x27),
               attr(4, 100, 100, u.cycles + 1, 0),
               attr(5, spare, spare, u.reallocated, 140, 0x33),
               attr(7, 200, 200, 0, 0, 0x2E),
               attr(9, percentLeft(u.hours, 87600), percentLeft(u.hours, 87600), u.hours, 0),
               attr(10, 100, 253, 0, 0),
               attr(11, 100, 253, 0, 0),
               attr(12, 100, 100, u.cycles, 0),
               attr(192, 200, 200, u.cycles / 9 + spread(seed, 2, 0, 3), 0),
               attr(193, 200, 200, u.hours / 30 + spread(seed, 3, 0, 90), 0),
               attr(194, tempValue, static_cast<std::uint8_t>(tempValue - 11), u.celsius, 0, 0x22),
               attr(196, 200, 200, 0, 0),
               attr(197, 200, 200, 0, 0),
               attr(198, 100, 253, 0, 0, 0x30),
               attr(199, 200, 200, 0, 0),
               attr(200, 100, 253, 0, 0, 0x08)};
    return d;
}

Disk nvmeDisk(std::uint64_t id, std::uint32_t port, const char *serial, const Usage &u)
{
    Disk d;
    d.id = id;
    d.port = port;
    d.capacity = kNvme2TB;
    d.portType = code::PortNvme | code::PortNvmeGen4 | code::PortNvmeX4;
    d.features = code::FeatureWriteCache | code::FeatureSmartPolling;
    d.model = "Samsung SSD 990 PRO 2TB";
    d.serial = serial;
    d.firmware = "4B2QJXD7";
    d.vendor = "NVMe";
    const std::uint64_t seed = driveSeed(serial, d.capacity);
    // A build and scratch disk: data units are 1000 sectors of 512 bytes, about 5 TB
    // written a thousand hours; commands average some 45 KB.
    NvmeHealth h;
    h.temperatureKelvin = static_cast<std::uint16_t>(273 + u.celsius);
    h.availableSpare = 100;
    h.spareThreshold = 10;
    h.dataUnitsRead = u.hours * spread(seed, 1, 9500, 10200);
    h.dataUnitsWritten = u.hours * spread(seed, 2, 5100, 5500);
    h.hostReads = h.dataUnitsRead * 11 + spread(seed, 3, 0, 999999);
    h.hostWrites = h.dataUnitsWritten * 14 + spread(seed, 4, 0, 999999);
    h.percentUsed = static_cast<std::uint8_t>(h.dataUnitsWritten / 2400000 / 5 + 1);
    h.busyMinutes = u.hours / 5 + spread(seed, 5, 0, 20);
    h.powerCycles = u.cycles;
    h.powerOnHours = u.hours;
    h.unsafeShutdowns = u.cycles / 25 + spread(seed, 6, 0, 2);
    d.nvme = h;
    return d;
}

} // namespace

Model defaultScenario()
{
    Model m;
    m.generation = 27;

    HostFacts &h = m.host;
    h.computerName = "WS-ENG-0417";
    h.elevated = true;
    h.systemDrive = 'C';
    h.driverBuild = "SKRAID-9.0.0.1182";
    h.drivers = {{"skraid.sys", "9.0.0.1182", true},
                 {"skcfg.sys", "9.0.0.1182", true},
                 {"skbottom.sys", "9.0.0.1182", true}};

    Controller c;
    c.id = 0x564F520000A10001ull;
    c.name = "VOR-SATA-RAID";
    c.biosBuild = "9.0.0.1182";
    c.maxArraySectors = 0xFFFFFFFFFFull;
    c.serial = 0x00000000A7C31D04ull;
    c.ports = 8;
    c.pciVendor = c.origPciVendor = 0x1F3C;
    c.pciDevice = 0x43B6;
    c.origPciDevice = 0x43B0;
    c.pciSubVendor = 0x1F3C;
    c.pciSubDevice = 0x1002;
    c.pciLocation = 0x0017; // bus 0, device 23, function 0
    m.controllers.push_back(c);

    const std::uint64_t ssdA = 0x5002538F41A2C7E1ull, ssdB = 0x5002538F41A2C80Aull;
    const std::uint64_t hdd1 = 0x5000C500E4B1D203ull, hdd2 = 0x5000C500E4B1F961ull,
                        hdd3 = 0x5000C500E4B2117Cull, spare = 0x50014EE2C0A93F15ull,
                        nvme = 0x002538B331A0C4D2ull;
    // The third hard disk dropped out of the data array once and has been moving
    // sectors to its spare area since: its reallocation count is past the threshold.
    m.disks = {sataSsd(ssdA, 0, "S6PUNX0T512345X", {3412, 211, 33}),
               sataSsd(ssdB, 1, "S6PUNX0T512398K", {3409, 211, 34}),
               seagateHdd(hdd1, 2, "WX20B1HK", {14021, 96, 37}),
               seagateHdd(hdd2, 3, "WX20B1LQ", {14019, 96, 38}),
               seagateHdd(hdd3, 4, "WX20C8N3", {9867, 71, 36, 3128}),
               westernDigitalHdd(spare, 5, "WD-WX42D91N7T1H", {2210, 14, 31}),
               nvmeDisk(nvme, 6, "S7HENJ0X308215L", {1873, 212, 38})};
    m.disks[5].globalSpare = true;

    Array system = plainArray(0x3C71A9E2D0045B11ull, 1, "System", code::TypeMirrorStripe, 1, 2,
                              {ssdA, ssdB}, usableExtent(kSsd1TB));
    system.priority = 50;
    Array data = plainArray(0x3C71A9E2D0046E27ull, 2, "Data", code::TypeParity, 1, 3,
                            {hdd1, hdd2, hdd3}, usableExtent(kHdd4TB));
    data.cachePolicy = code::CacheRead;
    data.generation = 4;
    m.arrays = {system, data};

    m.volumes = {Volume{'C', {system.id}, {}, true, ""}, Volume{'D', {data.id}, {}, false, ""}};

    m.nextEventNumber = 3;
    m.logEvent(event::LogInitialized);
    m.logEvent(event::CreateInitiated, {1});
    m.logEvent(event::CreateCompleted, {1});
    m.logEvent(event::CreateInitiated, {2});
    m.logEvent(event::CreateCompleted, {2});
    m.logEvent(event::GlobalSpareAssigned, {0, 5});
    m.logEvent(event::LogFound);
    m.logEvent(event::CheckInitiated, {2});
    m.logEvent(event::CheckCompleted, {2});
    m.logEvent(event::DeviceDisconnected, {0, 4});
    m.logEvent(event::ArrayCritical, {2});
    m.logEvent(event::DeviceConnected, {0, 4});
    m.logEvent(event::RescanReceived);
    m.logEvent(event::RebuildInitiated, {2});
    m.logEvent(event::RebuildCompleted, {2});
    m.logEvent(event::LogFound);
    return m;
}

} // namespace sk_emu
