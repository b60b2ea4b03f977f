// The default scenario: an engineering workstation as a customer would have it after a
// few weeks of use.

#include "emulator/sk_emu_events.h"
#include "emulator/sk_emu_scenario.h"

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

// Temperature raw value: current in the low word, lifetime min and max above it.
std::uint64_t temperatureRaw(std::uint64_t now, std::uint64_t low, std::uint64_t high)
{
    return now | (low << 16) | (high << 32);
}

Disk sataSsd(std::uint64_t id, std::uint32_t port, const char *serial, std::uint64_t hours,
             std::uint64_t cycles, std::uint64_t celsius)
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
    d.smartVersion = 1;
    d.smart = {attr(5, 100, 100, 0, 10, 0x33),        attr(9, 98, 98, hours, 0),
               attr(12, 99, 99, cycles, 0),           attr(177, 99, 99, 6, 0, 0x13),
               attr(179, 100, 100, 0, 10, 0x13),      attr(181, 100, 100, 0, 10),
               attr(182, 100, 100, 0, 10),            attr(183, 100, 100, 0, 10, 0x13),
               attr(187, 100, 100, 0, 0),             attr(190, 100 - celsius, 61, celsius, 0),
               attr(195, 200, 200, 0, 0, 0x1A),       attr(199, 100, 100, 0, 0, 0x3E),
               attr(235, 99, 99, 41, 0, 0x12),        attr(241, 99, 99, 18236541234ull, 0, 0x32)};
    return d;
}

Disk sataHdd(std::uint64_t id, std::uint32_t port, const char *model, const char *serial,
             const char *firmware, std::uint64_t hours, std::uint64_t cycles,
             std::uint64_t celsius)
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
    d.smartVersion = 10;
    d.smart = {attr(1, 82, 64, 158217064, 44, 0x0F),
               attr(3, 92, 91, 0, 0, 0x03),
               attr(4, 100, 100, cycles + 3, 20, 0x32),
               attr(5, 100, 100, 0, 10, 0x33),
               attr(7, 86, 60, 412698755, 45, 0x0F),
               attr(9, 96, 96, hours, 0, 0x32),
               attr(10, 100, 100, 0, 97, 0x13),
               attr(12, 100, 100, cycles, 20, 0x32),
               attr(187, 100, 100, 0, 0, 0x32),
               attr(188, 100, 100, 0, 0, 0x32),
               attr(190, 100 - celsius, 58, 0x2A1D0000ull | celsius, 40, 0x22),
               attr(192, 100, 100, 14, 0, 0x32),
               attr(193, 99, 99, 2811, 0, 0x32),
               attr(194, static_cast<std::uint8_t>(celsius), 42, temperatureRaw(celsius, 19, 42), 0, 0x22),
               attr(197, 100, 100, 0, 0, 0x12),
               attr(198, 100, 100, 0, 0, 0x10),
               attr(199, 200, 200, 0, 0, 0x3E)};
    return d;
}

Disk nvmeDisk(std::uint64_t id, std::uint32_t port)
{
    Disk d;
    d.id = id;
    d.port = port;
    d.capacity = kNvme2TB;
    d.portType = code::PortNvme | code::PortNvmeGen4 | code::PortNvmeX4;
    d.features = code::FeatureWriteCache | code::FeatureSmartPolling;
    d.model = "Samsung SSD 990 PRO 2TB";
    d.serial = "S7HENJ0X308215L";
    d.firmware = "4B2QJXD7";
    d.vendor = "NVMe";
    NvmeHealth h;
    h.temperatureKelvin = 311;
    h.availableSpare = 100;
    h.spareThreshold = 10;
    h.percentUsed = 1;
    h.dataUnitsRead = 18446521;
    h.dataUnitsWritten = 9925113;
    h.hostReads = 212458913;
    h.hostWrites = 140337402;
    h.busyMinutes = 391;
    h.powerCycles = 212;
    h.powerOnHours = 1873;
    h.unsafeShutdowns = 9;
    d.nvme = h;
    return d;
}

Array array(std::uint64_t id, std::uint16_t route, const char *name, std::uint32_t type,
            std::uint32_t first, std::uint32_t second, const std::vector<std::uint64_t> &disks,
            std::uint64_t extent)
{
    Array a;
    a.id = id;
    a.route = route;
    a.name = name;
    a.layout.type = type;
    a.layout.firstCount = first;
    a.layout.secondCount = second;
    for (std::uint64_t disk : disks)
        a.layout.members.push_back(Member{disk, 0, extent, 0, extent, 0});
    a.layout.capacity = layoutCapacity(type, first, second, extent, extent * disks.size());
    a.generation = 1;
    a.cachePolicy = code::CacheRead | code::CacheWrite;
    return a;
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
    m.disks = {sataSsd(ssdA, 0, "S6PUNX0T512345X", 3412, 211, 33),
               sataSsd(ssdB, 1, "S6PUNX0T512398K", 3409, 211, 34),
               sataHdd(hdd1, 2, "ST4000NM000A-2HZ100", "WX20B1HK", "TN05", 14021, 96, 37),
               sataHdd(hdd2, 3, "ST4000NM000A-2HZ100", "WX20B1LQ", "TN05", 14019, 96, 38),
               sataHdd(hdd3, 4, "ST4000NM000A-2HZ100", "WX20C8N3", "TN05", 9867, 71, 36),
               sataHdd(spare, 5, "WDC WD40EFZX-68AWUN0", "WD-WX42D91N7T1H", "81.00B81", 2210,
                       14, 31),
               nvmeDisk(nvme, 6)};
    m.disks[5].globalSpare = true;

    Array system = array(0x3C71A9E2D0045B11ull, 1, "System", code::TypeMirrorStripe, 1, 2,
                         {ssdA, ssdB}, usableExtent(kSsd1TB));
    system.priority = 50;
    Array data = array(0x3C71A9E2D0046E27ull, 2, "Data", code::TypeParity, 1, 3,
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
