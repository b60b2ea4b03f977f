#pragma once
// SK_ConfigSnapshot: the flat picture of the configuration the application reads,
// filled from the token report by SK_ParseConfig. Fixed capacities, plain strides:
// callers walk Disks and Arrays by stride and compare, so the layouts are kept to
// their sizes (292 bytes a disk, 15420 an array slot).

#include <cstdint>

constexpr std::uint32_t SK_SNAPSHOT_CONTROLLERS = 19;
constexpr std::uint32_t SK_SNAPSHOT_DISKS = 304;
constexpr std::uint32_t SK_SNAPSHOT_ARRAYS = 384;
constexpr std::uint32_t SK_SNAPSHOT_MEMBERS = 32;
constexpr std::uint32_t SK_SNAPSHOT_SPARES = 303;
constexpr std::uint32_t SK_SNAPSHOT_ENCLOSURES = 76;

#pragma pack(push, 4)

struct SK_ConfigController
{
    std::int32_t Number;
    char Name[17];
    char BiosBuild[33];
    std::uint64_t MaxArraySize;
    std::uint64_t SerialNumber;
    char BuildName[32];
    std::int32_t NumberOfPorts;
    std::uint16_t PciVendorID;
    std::uint16_t PciDeviceID;
    std::uint16_t PciSubVendorID;
    std::uint16_t PciSubDeviceID;
    std::uint64_t ControllerId;
    std::uint16_t OrigPciVendorID;
    std::uint16_t OrigPciDeviceID;
    std::uint32_t PciLocation;
};

struct SK_ConfigDisk
{
    char Type[8];
    char State[12];
    char Name[40];
    std::int32_t Route;
    std::int32_t Device;
    std::uint64_t DiskId;
    std::uint64_t Capacity;
    std::uint32_t GlobalSpare;
    std::uint32_t Features;
    std::uint64_t LargestFreeSpace;
    std::uint64_t TotalFreeSpace;
    char SerialNumber[64];
    char Model[64];
    char FirmwareRevision[32];
    std::uint32_t PortType;
    std::int32_t ControllerNumber;
    std::int32_t Channel;
    char VendorId[9];
};

struct SK_ConfigMember
{
    std::int32_t Route;
    std::int32_t Device;
    std::uint64_t DiskId;
    std::uint64_t Offset;
    std::uint64_t Size;
    std::uint64_t DataOffset;
    std::uint64_t DataSize;
    char Error[32];
};

struct SK_ConfigSpare
{
    std::int32_t Route;
    std::int32_t Device;
    std::uint64_t DiskId;
};

struct SK_ConfigArray
{
    char Name[40];
    std::int32_t Route;
    std::int32_t Device;
    std::uint64_t ArrayId;
    std::uint64_t Capacity;
    std::int32_t FirstCount;
    std::int32_t SecondCount;
    char Cache[4];
    std::int32_t CacheTagSize;
    char State[12];
    char Type[12];
    std::uint32_t Generation;
    std::uint64_t TransformProtectStart;
    std::int32_t TransformProtectSize;
    float TransformPercentComplete;
    char TransformType[16];
    char TransformState[16];
    std::int32_t DistributedSpareCount;
    std::int32_t PreferredLogicalElement;
    std::int32_t TaskPriority;
    std::uint32_t Attributes;
    char DisplayName[40];
    std::int32_t ReferenceCount;
    std::uint64_t CopyFromId;
    std::uint64_t CopyToId;
    char OsName[64];
    SK_ConfigMember Members[SK_SNAPSHOT_MEMBERS];
    std::int32_t SpareCount;
    SK_ConfigSpare Spares[SK_SNAPSHOT_SPARES];
};

// Two array records with one device number share a slot, one in each half.
struct SK_ConfigArraySlot
{
    std::int32_t HalfCount;
    SK_ConfigArray Half[2];
};

struct SK_ConfigEnclosure
{
    std::uint64_t EnclosureId;
    char Name[40];
    char Vendor[9];
    char Product[17];
    char Revision[5];
    char SerialNumber[9];
};

struct SK_ConfigSnapshot
{
    std::int32_t ControllerCount;
    SK_ConfigController Controllers[SK_SNAPSHOT_CONTROLLERS];
    std::int32_t DiskCount;
    SK_ConfigDisk Disks[SK_SNAPSHOT_DISKS];
    std::int32_t ArrayCount;
    SK_ConfigArraySlot Arrays[SK_SNAPSHOT_ARRAYS];
    std::int32_t EnclosureCount;
    SK_ConfigEnclosure Enclosures[SK_SNAPSHOT_ENCLOSURES];
};

#pragma pack(pop)

static_assert(sizeof(SK_ConfigDisk) == 292, "disk stride is part of the snapshot's contract");
static_assert(sizeof(SK_ConfigMember) == 80, "member stride");
static_assert(sizeof(SK_ConfigSpare) == 16, "spare stride");
static_assert(sizeof(SK_ConfigArray) == 7708, "array half stride");
static_assert(sizeof(SK_ConfigArraySlot) == 15420, "array slot stride");
