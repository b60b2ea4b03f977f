#pragma once
// The emulated host's model of one RAID stack: controllers, disks, enclosures,
// arrays, volumes, the event log and facts about the host. It holds driver values
// (type codes, states, bit words) so the image is written from it field by field.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sk_emu {

// Driver vocabularies, as the drivers number them.
namespace code {
constexpr std::uint32_t DiskTypeDisk = 4608;
constexpr std::uint32_t DiskTypeCore = 4609;
constexpr std::uint32_t DiskTypeUnknown = 4610;
constexpr std::uint32_t DiskTypeLegacy = 4611;
constexpr std::uint32_t DiskTypeForeign = 4612;

constexpr std::uint32_t DiskOnline = 12288;
constexpr std::uint32_t DiskOffline = 12289;
constexpr std::uint32_t DiskSmartError = 12290;
constexpr std::uint32_t DiskLocked = 12292;

constexpr std::uint32_t SpareGlobal = 256;

constexpr std::uint32_t ArrayNormal = 512;
constexpr std::uint32_t ArrayCritical = 513;
constexpr std::uint32_t ArrayOffline = 514;
constexpr std::uint32_t ArrayOutdated = 515;
constexpr std::uint32_t ArrayLocked = 516;

constexpr std::uint32_t TypeParity = 7157;       // RAID 5 / 50
constexpr std::uint32_t TypeMirrorStripe = 7158; // RAID 0 / 1 / 10
constexpr std::uint32_t TypeVolume = 7159;
constexpr std::uint32_t TypeLegacy = 7161;
constexpr std::uint32_t TypeDoubleParity = 7162; // RAID 6 / 60
constexpr std::uint32_t TypeRaidable = 7163;
constexpr std::uint32_t TypeForeign = 7164;
constexpr std::uint32_t TypeTier = 7165;

constexpr std::uint32_t TaskNone = 0;
constexpr std::uint32_t TaskTransform = 21332;
constexpr std::uint32_t TaskCreate = 21333;
constexpr std::uint32_t TaskCheck = 21334;
constexpr std::uint32_t TaskCopy = 21335;
constexpr std::uint32_t TaskRestore = 21336;
constexpr std::uint32_t TaskZero = 21339;
constexpr std::uint32_t TaskSecureErase = 21340;
constexpr std::uint32_t TaskTierMove = 21342;

constexpr std::uint32_t TaskStateNone = 0;
constexpr std::uint32_t TaskStarted = 41377;
constexpr std::uint32_t TaskPaused = 41378;
constexpr std::uint32_t TaskFailed = 41380;
constexpr std::uint32_t TaskCompleted = 41382;

constexpr std::uint32_t CacheRead = 0x80000000u;
constexpr std::uint32_t CacheWrite = 0x40000000u;

constexpr std::uint32_t AttributeHidden = 0x200;

constexpr std::uint32_t MemberFailed = 0x10;
constexpr std::uint32_t MemberOffline = 0x20;
constexpr std::uint32_t MemberNotPresent = 0x4000;

// Disk feature bits.
constexpr std::uint32_t FeatureWriteCache = 1u << 22;
constexpr std::uint32_t FeatureReadAhead = 1u << 24;
// SMART polling sits in the low byte, where the console reads it, apart from the cache bits.
constexpr std::uint32_t FeatureSmartPolling = 1u << 2;

// Port type bits.
constexpr std::uint32_t Port1_5G = 1u << 0;
constexpr std::uint32_t Port3G = 1u << 1;
constexpr std::uint32_t Port6G = 1u << 2;
constexpr std::uint32_t PortNvmeGen4 = 1u << 3;
constexpr std::uint32_t PortNvmeGen5 = 1u << 4;
constexpr std::uint32_t PortNvmeX2 = 1u << 5;
constexpr std::uint32_t PortNvmeX4 = 1u << 6;
constexpr std::uint32_t PortNvmeX8 = 1u << 7;
constexpr std::uint32_t PortSata = 1u << 8;
constexpr std::uint32_t PortNcq = 1u << 9;
constexpr std::uint32_t PortSsd = 1u << 11;
constexpr std::uint32_t PortExternal = 1u << 12;
constexpr std::uint32_t Port4Kn = 1u << 15;
constexpr std::uint32_t PortSas = 1u << 16;
constexpr std::uint32_t PortRemovable = 1u << 23;
constexpr std::uint32_t PortNvmeGen2 = 1u << 28;
constexpr std::uint32_t PortNvme = 1u << 31;
} // namespace code

struct SmartAttribute
{
    std::uint8_t id = 0;
    std::uint16_t flags = 0;
    std::uint8_t current = 0;
    std::uint8_t worst = 0;
    std::uint64_t raw = 0; // 48 bits used
    std::uint8_t threshold = 0;
};

// The fields of the NVMe SMART / health log page the console reads.
struct NvmeHealth
{
    std::uint8_t criticalWarning = 0;
    std::uint16_t temperatureKelvin = 0;
    std::uint8_t availableSpare = 100;
    std::uint8_t spareThreshold = 10;
    std::uint8_t percentUsed = 0;
    std::uint64_t dataUnitsRead = 0;
    std::uint64_t dataUnitsWritten = 0;
    std::uint64_t hostReads = 0;
    std::uint64_t hostWrites = 0;
    std::uint64_t busyMinutes = 0;
    std::uint64_t powerCycles = 0;
    std::uint64_t powerOnHours = 0;
    std::uint64_t unsafeShutdowns = 0;
    std::uint64_t mediaErrors = 0;
    std::uint64_t errorLogEntries = 0;
};

struct Controller
{
    std::uint64_t id = 0;
    std::string name;
    std::string biosBuild;
    std::uint64_t maxArraySectors = 0;
    std::uint64_t serial = 0;
    std::uint32_t ports = 0;
    std::uint16_t pciVendor = 0, pciDevice = 0, pciSubVendor = 0, pciSubDevice = 0;
    std::uint16_t origPciVendor = 0, origPciDevice = 0;
    std::uint32_t pciLocation = 0;
};

struct Disk
{
    std::uint64_t id = 0;
    std::uint32_t controller = 0; // index into the controllers
    std::uint32_t port = 0;       // channel on that controller
    std::uint32_t type = code::DiskTypeDisk;
    std::uint32_t state = code::DiskOnline;
    bool globalSpare = false;
    bool attached = true;       // physically there; a pulled disk stays listed until a rescan
    std::uint64_t capacity = 0; // sectors
    std::uint32_t portType = 0;
    std::uint32_t features = 0;
    std::string model, serial, firmware, vendor;
    std::uint16_t smartVersion = 0; // 0: no ATA attributes
    std::vector<SmartAttribute> smart;
    std::optional<NvmeHealth> nvme;
    std::uint32_t ledState = 0;  // identify / extended LED state
    bool awaitingRescan = false; // plugged in; comes online with the next rescan

    bool isNvme() const { return (portType & code::PortNvme) != 0; }
};

struct Enclosure
{
    std::uint64_t id = 0;
    std::uint32_t controller = 0;
    std::uint32_t slot = 0;
    std::string vendor, product, revision, serial;
};

struct Member
{
    std::uint64_t disk = 0;   // disk ID; 0 for a missing member
    std::uint64_t offset = 0; // sectors
    std::uint64_t size = 0;   // sectors
    std::uint64_t dataOffset = 0;
    std::uint64_t dataSize = 0;
    std::uint32_t flags = 0;
};

struct Task
{
    std::uint32_t type = code::TaskNone;
    std::uint32_t state = code::TaskStateNone;
    std::uint32_t progress = 0; // thousandths of a percent, 0 to 100000
};

struct Layout
{
    std::uint32_t type = code::TypeMirrorStripe;
    std::uint32_t firstCount = 1;
    std::uint32_t secondCount = 1;
    std::uint64_t capacity = 0;  // sectors
    std::vector<Member> members; // row by row: firstCount x secondCount
};

struct Array
{
    std::uint64_t id = 0;
    std::uint16_t route = 0; // device route, the array number in events
    std::string name;        // display name, at most 32 bytes
    std::uint32_t state = code::ArrayNormal;
    Layout layout;
    std::optional<Layout> target;       // destination layout while a transform runs
    std::vector<std::uint64_t> spares;  // dedicated spare disk IDs
    std::vector<std::uint64_t> parents; // arrays built on this one
    Task task;
    std::uint32_t priority = 50;
    std::uint32_t attributes = 0;
    std::uint32_t cachePolicy = 0;
    std::uint32_t cacheTagSize = 0;
    std::uint32_t referenceCount = 0;
    std::uint64_t generation = 0;
    std::uint64_t copyFrom = 0, copyTo = 0;

    bool hidden() const { return (attributes & code::AttributeHidden) != 0; }
};

// A mounted volume of the host and the arrays or plain disks it lies on.
struct Volume
{
    char letter = 'C';
    std::vector<std::uint64_t> arrays;
    std::vector<std::uint64_t> disks;
    bool inUse = false;    // a lock request fails
    std::string ejectVeto; // non-empty: the eject is vetoed by this
    // Faults of the device eject path, for the branches a real system shows rarely.
    std::uint32_t ejectVetoes = 0; // with ejectVeto: it lifts after this many requests; 0 never
    std::uint32_t ejectError = 0;  // non-zero: the eject fails with this code, no veto
    bool noDeviceNumber = false;   // the storage device number query fails
    bool unlisted = false;         // the disk device is missing from the device list
};

struct Event
{
    std::uint32_t number = 0;
    std::uint16_t message = 0;
    std::uint8_t entryByte = 0;
    std::array<std::uint32_t, 8> params{};
};

struct DriverFile
{
    std::string name;    // "skraid.sys"
    std::string version; // "9.3.0.1042"
    bool loaded = true;
};

struct HostFacts
{
    std::string computerName = "WORKSTATION";
    bool elevated = true;
    char systemDrive = 'C';
    bool notifierRunning = false;
    std::string driverBuild;
    std::vector<DriverFile> drivers;
    std::uint32_t parameterArrayCount = 0;
    std::uint32_t parameterFileCount = 0;
    std::vector<std::string> disabledLevels; // "RAID6": the drivers refuse to build it
};

// Faults waiting to strike the next requests. They live in the model so a tool can
// arm them in the state file of a running console.
struct PendingFaults
{
    std::uint32_t refuseCount = 0; // requests refused with refuseStatus
    std::uint32_t refuseStatus = 0;
    std::uint32_t staleWrites = 0; // write commands answered with 38
    std::uint32_t failedTransfers = 0;
};

struct Model
{
    std::uint64_t generation = 1;
    HostFacts host;
    std::vector<Controller> controllers;
    std::vector<Disk> disks;
    std::vector<Enclosure> enclosures;
    std::vector<Array> arrays;
    std::vector<Volume> volumes;
    std::vector<Event> events;
    std::uint32_t eventCapacity = 512;
    std::uint32_t nextEventNumber = 3;
    PendingFaults faults;

    Disk *findDisk(std::uint64_t id);
    const Disk *findDisk(std::uint64_t id) const;
    Array *findArray(std::uint64_t id);
    const Array *findArray(std::uint64_t id) const;
    Array *findArrayByRoute(std::uint32_t route);
    const Array *findArrayByRoute(std::uint32_t route) const;

    // Appends an event; the log is a ring that drops its oldest entries.
    void logEvent(std::uint16_t message, std::initializer_list<std::uint32_t> params = {});
};

// Sectors the driver keeps at the end of each disk for its metadata.
constexpr std::uint64_t kMetadataSectors = 2048;

// Device routes: the core's own device is route 0/0; disks live under the route of
// their controller (1 + controller index) at port + 1; arrays under route 0.
inline std::uint16_t diskCoreRoute(const Disk &disk)
{
    return static_cast<std::uint16_t>(1 + disk.controller);
}
inline std::uint16_t diskDeviceRoute(const Disk &disk)
{
    return static_cast<std::uint16_t>(1 + disk.port);
}

// Free extents of a disk outside every member extent, largest first semantics left to
// the caller: returned in disk order.
struct Extent
{
    std::uint64_t offset;
    std::uint64_t size;
};
std::vector<Extent> freeExtents(const Model &model, const Disk &disk);

// Capacity a layout offers from its member extents, by the arithmetic of its level.
std::uint64_t layoutCapacity(std::uint32_t type, std::uint32_t firstCount,
                             std::uint32_t secondCount, std::uint64_t smallestMember,
                             std::uint64_t sumOfMembers);

// An array of one layout whose members each give `extent` sectors from the start of
// their disk, cached for reads and writes: the shape scenarios build their arrays from.
Array plainArray(std::uint64_t id, std::uint16_t route, const char *name, std::uint32_t type,
                 std::uint32_t first, std::uint32_t second, const std::vector<std::uint64_t> &disks,
                 std::uint64_t extent);

// How many members may fail before the layout loses data.
std::uint32_t layoutTolerance(const Layout &layout);

} // namespace sk_emu
