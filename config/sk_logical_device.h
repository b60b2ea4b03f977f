#pragma once
// Array records of the configuration image: a 512-byte fixed part followed by the
// member table, the parent table and the dedicated spare table. SK_C_LogicalDevice
// owns one SK_C_LogicalElement per member and plain references for parents and spares.

#include "config/sk_device_records.h"

// Layout of the variable part of an array record.
constexpr std::uint32_t SK_MEMBER_ENTRY_SIZE = 64;
constexpr std::uint32_t SK_REFERENCE_ENTRY_SIZE = 16;

// A parent or dedicated spare: the device reference triple and the kept word.
struct SK_C_DeviceReference
{
    std::uint64_t ID;
    std::uint16_t DeviceRoute;
    std::uint16_t CoreRoute;
    std::uint32_t Kept;
};

// The packed route word of a reference: DeviceRoute in bits 0-15, CoreRoute in bits
// 16-31 and the low 16 bits of the kept word in bits 32-47.
std::uint64_t SK_PackRoute(const SK_C_DeviceReference &reference);

// 1 when the reference's packed route equals `route`, else 0.
std::uint32_t SK_ReferenceMatchesRoute(const SK_C_DeviceReference &reference, std::uint64_t route);

// One member: an extent of a disk. Built from a 64-byte member table entry.
class SK_C_LogicalElement
{
public:
    explicit SK_C_LogicalElement(const std::uint8_t *entry);
    virtual ~SK_C_LogicalElement();

    // Appends the member line at `position`; with less than 256 bytes left it prints
    // nothing. Returns the new position.
    std::uint32_t BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                              std::uint32_t size, std::uint32_t compact, std::uint32_t xml);

    std::uint64_t ID = 0;
    std::uint16_t DeviceRoute = 0;
    std::uint16_t CoreRoute = 0;
    std::uint32_t Kept = 0;
    std::uint64_t Offset = 0;
    std::uint64_t Size = 0;
    std::uint64_t DataOffset = 0;
    std::uint64_t DataSize = 0;
    std::uint32_t Flags = 0;
};

class SK_C_LogicalDevice
{
public:
    // Checks that the member, parent and spare tables that the fixed part announces
    // fit inside `length` bytes, and that the record is at least its fixed part long.
    // Returns 1, 7 for a null record, or 27 (SK_STS_OUT_OF_BOUNDS) when they don't.
    static std::uint32_t SK_CheckRecord(const std::uint8_t *record, std::uint32_t length);

    // Builds the array from `length` bytes of `record`. A record that fails
    // SK_CheckRecord keeps its fixed fields but gets empty tables (its member, parent
    // and spare counts read 0), so every walk over the tables stays inside them.
    SK_C_LogicalDevice(const std::uint8_t *record, const char *routePrefix,
                       std::uint32_t coreNumber, std::uint32_t length);
    virtual ~SK_C_LogicalDevice();

    SK_C_LogicalDevice(const SK_C_LogicalDevice &) = delete;
    SK_C_LogicalDevice &operator=(const SK_C_LogicalDevice &) = delete;

    // Appends the head line, then member, spare and parent lines. With
    // `resolveOsNames` set a visible array's operating-system disk number is looked
    // up through the platform; otherwise, and when that fails, "NONE" is printed.
    // With less than 512 bytes left nothing is printed. Returns the new position.
    std::uint32_t BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                              std::uint32_t size, std::uint32_t resolveOsNames,
                              std::uint32_t compact, std::uint32_t xml);

    // Index of the array's type in SK_ArrayTypeNames, and the word itself.
    std::uint32_t SK_TypeIndex() const;
    const char *SK_TypeName() const;
    // 1 when the hidden attribute (0x200) is set, else 0.
    std::uint32_t SK_IsHidden() const;
    // Index in Spares of the reference with this ID and both routes, or SpareCount.
    std::uint32_t SK_FindSpare(std::uint64_t id, std::uint16_t deviceRoute,
                               std::uint16_t coreRoute) const;
    // Number of entries of Elements (FirstCount times SecondCount).
    std::uint32_t SK_ElementSlots() const { return FirstCount * SecondCount; }

    std::uint32_t State = 0;
    std::uint32_t Type = 0;
    std::uint32_t TaskType = 0;
    std::uint32_t TaskState = 0;
    std::uint64_t ID = 0;
    std::uint16_t DeviceRoute = 0;
    std::uint16_t CoreRoute = 0;
    std::uint32_t Kept1 = 0;
    std::uint64_t Kept2 = 0;
    std::uint16_t Kept3 = 0;
    std::uint16_t Kept4 = 0;
    std::uint32_t Kept5 = 0;
    std::uint16_t Kept6 = 0;
    std::uint16_t Kept7 = 0;
    std::uint32_t Kept8 = 0;
    std::uint32_t Kept9 = 0;
    std::uint32_t Kept10 = 0;
    std::uint32_t Kept11 = 0;
    std::uint64_t Capacity = 0;
    std::uint64_t TransformProtectStart = 0;
    std::uint64_t Generation = 0;
    std::uint64_t CopyFromID = 0;
    std::uint64_t CopyToID = 0;
    std::uint32_t ElementCount = 0;
    std::uint32_t FirstCount = 0;
    std::uint32_t SecondCount = 0;
    std::uint32_t ParentCount = 0;
    std::uint32_t TransformProtectSize = 0;
    std::uint32_t CacheTagSize = 0;
    std::uint32_t CachePolicy = 0;
    std::uint32_t SpareCount = 0;
    std::uint32_t RecordLength = 0;
    std::uint32_t PercentComplete = 0;
    std::uint32_t Attributes = 0;
    std::uint32_t DistributedSpareCount = 0;
    std::uint32_t PreferredLogicalElement = 0;
    std::uint32_t TaskPriority = 0;
    std::uint32_t ReferenceCount = 0;
    std::uint32_t CoreNumber = 0;
    // Row by row: entry i * SecondCount + j is member j of row i. Null entries are
    // members whose allocation failed.
    SK_C_LogicalElement **Elements = nullptr;
    SK_C_DeviceReference **Parents = nullptr;
    SK_C_DeviceReference **Spares = nullptr;
    char Name[SK_DEVICE_NAME_SIZE] = {};
    char DisplayName[32] = {}; // not terminated when all 32 bytes are used
};
