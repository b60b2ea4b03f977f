#include "commands/sk_lifecycle.h"

#include "commands/sk_array_tasks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

constexpr std::uint32_t kIdRounds = 5;
constexpr std::uint32_t kIdRetryDelayMs = 1000;
constexpr std::uint32_t kTaskPollDelayMs = 100;
constexpr std::uint32_t kNvmePort = 0x80000000u;
constexpr std::uint32_t kClearMetadata = 1;

// Create request (command 2).
namespace create {
constexpr std::size_t Type = 32, DriveCount = 36, SpareCount = 40, CacheTag = 44, Stripe = 48,
                      Policy = 52, Capacity = 56, Id = 64, First = 72, Second = 76, P2 = 80,
                      P1 = 84, P0 = 88, Name = 92, Spares = 124, Drives = 188;
// The planning read (4109) carries the same fields this much further on.
constexpr std::size_t InfoShift = 4;
} // namespace create

// Transform request (command 8) and its planning read (4108).
namespace transform {
constexpr std::size_t Type = 32, Id = 36, DeviceRoute = 44, CoreRoute = 46, DriveCount = 52,
                      SpareCount = 56, Stripe = 60, Capacity = 64, First = 72, Second = 76, P2 = 80,
                      P1 = 84, P0 = 88, Spares = 92, Drives = 156;
constexpr std::size_t InfoShift = 4;
} // namespace transform

bool isCreateType(std::uint32_t type)
{
    switch (type) {
    case SK_ARRAY_TYPE_PARITY:
    case SK_ARRAY_TYPE_MIRROR:
    case SK_ARRAY_TYPE_VOLUME:
    case SK_ARRAY_TYPE_DUAL_PARITY:
    case SK_ARRAY_TYPE_RAIDABLE:
    case SK_ARRAY_TYPE_TIER:
        return true;
    default:
        return false;
    }
}

bool isTransformType(std::uint32_t type)
{
    return type != SK_ARRAY_TYPE_TIER && isCreateType(type);
}

// The layout must account for every drive, and both counts must be real.
bool shapeMatches(std::uint32_t first, std::uint32_t second, std::uint32_t driveCount,
                  const SK_DeviceName *drives)
{
    return drives && first != 0 && second != 0 &&
           std::uint64_t{first} * second == std::uint64_t{driveCount};
}

std::uint32_t checkCacheTagSize(std::uint32_t cacheTagSize)
{
    std::uint32_t code = 0;
    const std::uint32_t status = SK_CacheTagCode(cacheTagSize, false, &code);
    if (status != SK_STS_SUCCESS) {
        std::printf("invalid cachetag size=%d\n", static_cast<int>(cacheTagSize));
        std::fflush(stdout);
    }
    return status;
}

// Spare names beyond the list's end are never read.
std::uint32_t spareNamesTaken(std::uint32_t spareCount, const SK_DeviceName *spares)
{
    return spares ? std::min(spareCount, SK_MAX_SPARE_NAMES) : 0;
}

// Both lists must name the one core of the entry.
std::uint32_t checkLists(const SK_CoreEntry *core, std::uint32_t driveCount,
                         std::uint32_t spareCount, const SK_DeviceName *drives,
                         const SK_DeviceName *spares)
{
    std::uint32_t number = 0;
    const std::uint32_t status =
        SK_ValidateCoreDeviceLists(core, driveCount, spareCount, drives, spares, &number);
    if (status != SK_STS_SUCCESS)
        return status;
    return number == core->CoreNumber ? SK_STS_SUCCESS : SK_STS_INVALID_LOGICAL_DEVICE;
}

// Writes the drive references from `offset`: disks, or arrays for a tier. Notes
// whether any drive is an NVMe disk, which decides the default cache tag.
std::uint32_t putDrives(const SK_Core &core, std::uint32_t type, const SK_DeviceName *drives,
                        std::uint32_t count, std::uint8_t *request, std::size_t offset,
                        bool &anyNvme)
{
    anyNvme = false;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t at = offset + i * SK_REFERENCE_SIZE;
        if (type == SK_ARRAY_TYPE_TIER) {
            const std::uint32_t status = SK_ResolveArray(core, drives[i], request, at);
            if (status != SK_STS_SUCCESS)
                return status;
            continue;
        }
        const SK_C_PhysicalDevice *disk = SK_LookupDisk(core, drives[i]);
        if (!disk)
            return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
        SK_PutDiskReference(request, at, *disk);
        if (disk->PortType & kNvmePort)
            anyNvme = true;
    }
    return SK_STS_SUCCESS;
}

// Writes the references of the spares that resolve, from `offset`, and returns how
// many. They are written after the drives, so a long spare list runs over them.
std::uint32_t putSpares(const SK_Core &core, const SK_DeviceName *spares, std::uint32_t count,
                        std::uint8_t *request, std::size_t offset)
{
    std::uint32_t resolved = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (SK_ResolveDisk(core, spares[i], request, offset + resolved * SK_REFERENCE_SIZE) ==
            SK_STS_SUCCESS)
            ++resolved;
    }
    return resolved;
}

// Draws an ID no array of the core has. Between rounds the lock is let go for a
// second so the time, and with it the seed, moves on.
std::uint32_t drawArrayId(const SK_CoreEntry *core, std::uint64_t &id)
{
    const auto now = static_cast<std::uint32_t>(std::time(nullptr));
    for (std::uint32_t round = 0;; ++round) {
        bool taken = false;
        {
            SK_Core probe(core->BusName, core->CoreName, 0);
            if (probe.Handle == 0)
                return SK_STS_INVALID_CORE_HANDLE;
            id = SK_MakeArrayId(now + round);
            taken = SK_LookupArrayById(probe, id) != nullptr;
        }
        if (!taken || round + 1 >= kIdRounds)
            return SK_STS_SUCCESS;
        SKTL_Unlock();
        SKTL_Sleep(kIdRetryDelayMs);
        SKTL_Lock();
    }
}

// Clears the metadata of one legacy disk that a deleted legacy array leaves behind.
void resetLegacyDisk(const SK_CoreEntry *core, std::uint64_t diskId, std::uint32_t option)
{
    SKTL_AlignedBuffer request(SK_PaddedListRequestSize(1), "SK_ApiDeleteLogicalDevice");
    if (!request.ok())
        return;
    std::uint8_t *r = request.data();
    SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::memset(r, 0, request.size());
        const SK_C_PhysicalDevice *disk = SK_LookupDiskById(open, diskId);
        if (!disk)
            return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, 36, 1);
        SK_PutU32(r, 40, kClearMetadata);
        SK_PutDiskReference(r, 44, *disk);
        return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()),
                                   SK_CMD_INITIALIZE);
    });
}

std::uint32_t waitIfAsked(const SK_CoreEntry *core, std::uint32_t status, std::uint32_t wait,
                          std::uint64_t id)
{
    if (status != SK_STS_SUCCESS || !wait || id == 0)
        return status;
    return SK_ApiWaitForTask(core, id, kTaskPollDelayMs);
}

std::uint32_t draw16()
{
    return static_cast<std::uint32_t>(std::rand()) & 0xFFFFu;
}

} // namespace

std::uint32_t SK_CacheTagCode(std::uint32_t cacheTagSize, bool anyNvmeDrive, std::uint32_t *codeOut)
{
    std::uint32_t code = 0;
    switch (cacheTagSize) {
    case 0:
        code = anyNvmeDrive ? 3 : 1;
        break;
    case 64:
        code = 1;
        break;
    case 128:
        code = 2;
        break;
    case 256:
        code = 3;
        break;
    default:
        return SKTL_STS_INVALID_PARAMETER;
    }
    if (codeOut)
        *codeOut = code;
    return SK_STS_SUCCESS;
}

std::uint64_t SK_MakeArrayId(std::uint32_t seed)
{
    std::srand(seed);
    const std::uint32_t high = (draw16() << 16) | draw16();
    std::srand((high & 0xFFFFu) + seed);
    const std::uint32_t low = (draw16() << 16) | draw16();
    const std::uint64_t id = (std::uint64_t{high} << 32) | low;
    return id != 0 ? id : 1;
}

std::uint32_t SK_ApiCreateLogicalDevice(const SK_CoreEntry *core, std::uint32_t type,
                                        std::uint32_t driveCount, std::uint32_t spareCount,
                                        std::uint32_t stripe, std::uint32_t cacheTagSize,
                                        std::uint32_t policy, std::uint64_t capacity,
                                        std::uint32_t first, std::uint32_t second,
                                        const SK_DeviceName *drives, const SK_DeviceName *spares,
                                        const char *name, std::uint32_t nameLength,
                                        std::uint32_t p0, std::uint32_t p1, std::uint32_t p2,
                                        std::uint64_t id, std::uint32_t wait, char *newNameOut)
{
    if (!core || !isCreateType(type) || !shapeMatches(first, second, driveCount, drives) ||
        capacity == 0)
        return SKTL_STS_INVALID_PARAMETER;
    std::uint32_t status = checkCacheTagSize(cacheTagSize);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t spareNames = spareNamesTaken(spareCount, spares);
    status = checkLists(core, driveCount, spareNames, drives, spares);
    if (status != SK_STS_SUCCESS)
        return status;

    {
        SKTL_LockGuard lock;
        SKTL_AlignedBuffer request(SK_ListRequestSize(driveCount), __func__);
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        if (id == 0) {
            status = drawArrayId(core, id);
            if (status != SK_STS_SUCCESS)
                return status;
        }
        std::uint8_t *r = request.data();
        status = SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
            std::memset(r, 0, request.size());
            bool anyNvme = false;
            std::uint32_t resolved =
                putDrives(open, type, drives, driveCount, r, create::Drives, anyNvme);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            std::uint32_t tagCode = 0;
            SK_CacheTagCode(cacheTagSize, anyNvme, &tagCode);
            SK_PutU32(r, SK_HDR_OPTION, 0);
            SK_PutU32(r, create::Type, type);
            SK_PutU32(r, create::DriveCount, driveCount);
            SK_PutU32(r, create::SpareCount,
                      putSpares(open, spares, spareNames, r, create::Spares));
            SK_PutU32(r, create::CacheTag, tagCode);
            SK_PutU32(r, create::Stripe, stripe);
            SK_PutU32(r, create::Policy, policy);
            SK_PutU64(r, create::Capacity, capacity);
            SK_PutU64(r, create::Id, id);
            SK_PutU32(r, create::First, first);
            SK_PutU32(r, create::Second, second);
            SK_PutU32(r, create::P2, p2);
            SK_PutU32(r, create::P1, p1);
            SK_PutU32(r, create::P0, p0);
            if (name) {
                const std::size_t length =
                    std::min<std::size_t>(nameLength, strnlen(name, SK_DISPLAY_NAME_SIZE));
                std::memcpy(r + create::Name, name, length);
            }
            return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()),
                                       SK_CMD_CREATE);
        });
    }
    if (status != SK_STS_SUCCESS)
        return status;

    // The wait's verdict is not the create's: the array exists either way.
    waitIfAsked(core, status, wait, id);
    const std::uint64_t routes = SK_ApiGetArrayRoute(core, id);
    const auto deviceRoute = static_cast<std::uint16_t>(routes);
    const auto coreRoute = static_cast<std::uint16_t>(routes >> 16);
    if (deviceRoute == 0 && coreRoute == 0)
        return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
    if (newNameOut) {
        SKTL_LockGuard lock;
        SK_Core open(core->BusName, core->CoreName, 0);
        if (open.Handle == 0)
            return SK_STS_FAILURE;
        char composed[sizeof open.RoutePrefix + 32];
        std::snprintf(composed, sizeof composed, "%s%d%s%s%d", open.RoutePrefix,
                      static_cast<int>(coreRoute), "/", "Device", static_cast<int>(deviceRoute));
        SK_CopyText(newNameOut, SK_DEVICE_NAME_SIZE, composed);
    }
    return SK_STS_SUCCESS;
}

std::uint32_t SK_ApiGetCreateInfo(const SK_CoreEntry *core, std::uint32_t type,
                                  std::uint32_t driveCount, std::uint32_t spareCount,
                                  std::uint32_t stripe, std::uint32_t cacheTagSize,
                                  std::uint32_t policy, std::uint64_t capacity, std::uint32_t first,
                                  std::uint32_t second, const SK_DeviceName *drives,
                                  const SK_DeviceName *spares, std::uint32_t p0, std::uint32_t p1,
                                  std::uint32_t p2, std::uint32_t, std::uint32_t option,
                                  std::uint8_t *infoOut)
{
    if (!core || !isCreateType(type) || !shapeMatches(first, second, driveCount, drives))
        return SKTL_STS_INVALID_PARAMETER;
    std::uint32_t status = checkCacheTagSize(cacheTagSize);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t spareNames = spareNamesTaken(spareCount, spares);
    status = checkLists(core, driveCount, spareNames, drives, spares);
    if (status != SK_STS_SUCCESS)
        return status;

    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_READ_REPLY_SIZE, __func__);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint8_t *r = request.data();
    constexpr std::size_t s = create::InfoShift;
    bool readMade = false;
    status = SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        // A refused read leaves a reply in the buffer, so every try starts afresh.
        std::memset(r, 0, request.size());
        bool anyNvme = false;
        const std::uint32_t resolved =
            putDrives(open, type, drives, driveCount, r, create::Drives + s, anyNvme);
        if (resolved != SK_STS_SUCCESS)
            return resolved;
        std::uint32_t tagCode = 0;
        SK_CacheTagCode(cacheTagSize, anyNvme, &tagCode);
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, create::Type + s, type);
        SK_PutU32(r, create::DriveCount + s, driveCount);
        SK_PutU32(r, create::SpareCount + s,
                  putSpares(open, spares, spareNames, r, create::Spares + s));
        SK_PutU32(r, create::CacheTag + s, tagCode);
        SK_PutU32(r, create::Stripe + s, stripe);
        SK_PutU32(r, create::Policy + s, policy | SK_POLICY_QUERY);
        SK_PutU64(r, create::Capacity + s, capacity);
        SK_PutU32(r, create::First + s, first);
        SK_PutU32(r, create::Second + s, second);
        SK_PutU32(r, create::P2 + s, p2);
        SK_PutU32(r, create::P1 + s, p1);
        SK_PutU32(r, create::P0 + s, p0);
        readMade = true;
        return open.SK_ConfigRead(r, SK_READ_REPLY_SIZE, SK_READ_CREATE_INFO, 0);
    });
    if (readMade && infoOut)
        std::memcpy(infoOut, r, SK_CREATE_INFO_SIZE);
    return status;
}

std::uint32_t SK_ApiTransformLogicalDevice(const SK_CoreEntry *core, const char *arrayName,
                                           std::uint32_t type, std::uint32_t driveCount,
                                           std::uint32_t spareCount, std::uint32_t stripe,
                                           std::uint64_t capacity, std::uint32_t first,
                                           std::uint32_t second, const SK_DeviceName *drives,
                                           const SK_DeviceName *spares, std::uint32_t p0,
                                           std::uint32_t p1, std::uint32_t p2, std::uint32_t wait)
{
    if (!core || !arrayName || !isTransformType(type) ||
        !shapeMatches(first, second, driveCount, drives) || capacity == 0)
        return SKTL_STS_INVALID_PARAMETER;
    std::uint32_t status = SK_CheckArrayName(core, arrayName);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t spareNames = spareNamesTaken(spareCount, spares);
    status = checkLists(core, driveCount, spareNames, drives, spares);
    if (status != SK_STS_SUCCESS)
        return status;

    std::uint64_t arrayId = 0;
    {
        SKTL_LockGuard lock;
        SKTL_AlignedBuffer request(SK_ListRequestSize(driveCount), __func__);
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        std::uint8_t *r = request.data();
        status = SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
            std::memset(r, 0, request.size());
            const SK_C_LogicalDevice *array = SK_LookupArray(open, arrayName);
            if (!array)
                return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
            bool anyNvme = false;
            const std::uint32_t resolved =
                putDrives(open, type, drives, driveCount, r, transform::Drives, anyNvme);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            arrayId = array->ID;
            SK_PutU32(r, transform::Type, type);
            SK_PutU64(r, transform::Id, array->ID);
            SK_PutU16(r, transform::DeviceRoute, array->DeviceRoute);
            SK_PutU16(r, transform::CoreRoute, array->CoreRoute);
            SK_PutU32(r, transform::DriveCount, driveCount);
            SK_PutU32(r, transform::SpareCount,
                      putSpares(open, spares, spareNames, r, transform::Spares));
            SK_PutU32(r, transform::Stripe, stripe);
            SK_PutU64(r, transform::Capacity, capacity);
            SK_PutU32(r, transform::First, first);
            SK_PutU32(r, transform::Second, second);
            SK_PutU32(r, transform::P2, p2);
            SK_PutU32(r, transform::P1, p1);
            SK_PutU32(r, transform::P0, p0);
            return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()),
                                       SK_CMD_TRANSFORM);
        });
    }
    return waitIfAsked(core, status, wait, arrayId);
}

std::uint32_t SK_ApiGetTransformInfo(const SK_CoreEntry *core, const char *arrayName,
                                     std::uint32_t type, std::uint32_t driveCount,
                                     std::uint32_t spareCount, std::uint32_t stripe,
                                     std::uint64_t capacity, std::uint32_t first,
                                     std::uint32_t second, const SK_DeviceName *drives,
                                     const SK_DeviceName *spares, std::uint32_t p0,
                                     std::uint32_t p1, std::uint32_t p2, std::uint32_t option,
                                     std::uint8_t *infoOut)
{
    if (!core || !arrayName || !isTransformType(type) ||
        !shapeMatches(first, second, driveCount, drives))
        return SKTL_STS_INVALID_PARAMETER;
    std::uint32_t status = SK_CheckArrayName(core, arrayName);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t spareNames = spareNamesTaken(spareCount, spares);
    status = checkLists(core, driveCount, spareNames, drives, spares);
    if (status != SK_STS_SUCCESS)
        return status;

    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_READ_REPLY_SIZE, __func__);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint8_t *r = request.data();
    constexpr std::size_t s = transform::InfoShift;
    bool readMade = false;
    status = SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::memset(r, 0, request.size());
        const SK_C_LogicalDevice *array = SK_LookupArray(open, arrayName);
        if (!array)
            return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
        bool anyNvme = false;
        const std::uint32_t resolved =
            putDrives(open, type, drives, driveCount, r, transform::Drives + s, anyNvme);
        if (resolved != SK_STS_SUCCESS)
            return resolved;
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, transform::Type + s, type);
        SK_PutU64(r, transform::Id + s, array->ID);
        SK_PutU16(r, transform::DeviceRoute + s, array->DeviceRoute);
        SK_PutU16(r, transform::CoreRoute + s, array->CoreRoute);
        SK_PutU32(r, transform::DriveCount + s, driveCount);
        SK_PutU32(r, transform::SpareCount + s,
                  putSpares(open, spares, spareNames, r, transform::Spares + s));
        SK_PutU32(r, transform::Stripe + s, stripe);
        SK_PutU64(r, transform::Capacity + s, capacity);
        SK_PutU32(r, transform::First + s, first);
        SK_PutU32(r, transform::Second + s, second);
        SK_PutU32(r, transform::P2 + s, p2);
        SK_PutU32(r, transform::P1 + s, p1);
        SK_PutU32(r, transform::P0 + s, p0);
        readMade = true;
        return open.SK_ConfigRead(r, SK_READ_REPLY_SIZE, SK_READ_TRANSFORM_INFO, 0);
    });
    if (readMade && infoOut)
        std::memcpy(infoOut, r, SK_TRANSFORM_INFO_SIZE);
    return status;
}

std::uint32_t SK_ApiDeleteLogicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                        const SK_DeviceName *list, std::uint32_t all,
                                        std::uint32_t force, std::uint32_t option)
{
    std::uint32_t status = SK_CheckArrayListArguments(core, count, list, all);
    if (status != SK_STS_SUCCESS)
        return status;
    if (!all) {
        SK_CoreEntry addressed{};
        if (SK_BuildCoreList(core, &addressed, sizeof addressed, list, count) == 0)
            return SK_STS_INVALID_DEVICE_LIST;
    }

    SKTL_LockGuard lock;
    // Legacy disks whose arrays go with this request; their metadata is cleared after.
    std::vector<std::uint64_t> legacyDisks;
    const SK_ArrayListShape shape{SK_CMD_DELETE, 36, 40, __func__};
    status = SK_SendArrayList(
        core, count, list, all, option, shape,
        [&](const SK_Core &open, const SK_C_LogicalDevice &array, std::uint32_t index) {
            if (index == 0)
                legacyDisks.clear();
            if (array.ReferenceCount != 0 && !force)
                return static_cast<std::uint32_t>(SK_STS_LOGICAL_DEVICE_IN_USE);
            if (array.Type == SK_ARRAY_TYPE_LEGACY && array.ElementCount > 0 && array.Elements &&
                array.Elements[0]) {
                const SK_C_PhysicalDevice *disk = SK_LookupDiskById(open, array.Elements[0]->ID);
                if (disk && disk->DeviceType == SK_DEVICE_TYPE_LEGACY)
                    legacyDisks.push_back(disk->ID);
            }
            return static_cast<std::uint32_t>(SK_STS_SUCCESS);
        },
        [&](std::uint8_t *r) { SK_PutU32(r, 32, all); });
    if (status != SK_STS_SUCCESS)
        return status;
    for (const std::uint64_t disk : legacyDisks)
        resetLegacyDisk(core, disk, option);
    return status;
}

std::uint32_t SK_ApiSplitLogicalDevice(const SK_CoreEntry *core, const char *arrayName,
                                       std::uint32_t type, std::uint32_t driveCount,
                                       std::uint32_t first, std::uint32_t second,
                                       const SK_DeviceName *drives, std::uint32_t parameter,
                                       std::uint32_t option)
{
    if (!core || !arrayName)
        return SKTL_STS_INVALID_PARAMETER;
    // Only a mirror or volume shape is split as given; anything else leaves one mirror.
    const bool keepShape =
        first != 0 && (type == SK_ARRAY_TYPE_MIRROR || type == SK_ARRAY_TYPE_VOLUME);
    const std::uint32_t sentType = keepShape ? type : SK_ARRAY_TYPE_MIRROR;
    const std::uint32_t sentCount = keepShape ? driveCount : 0;
    if (sentCount != 0 && !drives)
        return SKTL_STS_INVALID_PARAMETER;

    SK_DeviceName arrayList[1] = {};
    SK_CopyText(arrayList[0], sizeof arrayList[0], arrayName);
    std::uint32_t status = checkLists(core, 1, sentCount, arrayList, sentCount ? drives : nullptr);
    if (status != SK_STS_SUCCESS)
        return status;

    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_ListRequestSize(sentCount), __func__);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint8_t *r = request.data();
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::memset(r, 0, request.size());
        const SK_C_LogicalDevice *array = SK_LookupArray(open, arrayName);
        if (!array)
            return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
        const std::uint32_t resolved = SK_ResolveDiskList(open, drives, sentCount, r, 68);
        if (resolved != SK_STS_SUCCESS)
            return resolved;
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, 32, sentType);
        SK_PutU64(r, 36, array->ID);
        SK_PutU16(r, 44, array->DeviceRoute);
        SK_PutU16(r, 46, array->CoreRoute);
        SK_PutU32(r, 52, sentCount);
        SK_PutU32(r, 56, keepShape ? first : 0);
        SK_PutU32(r, 60, keepShape ? second : 0);
        SK_PutU32(r, 64, parameter);
        return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()), SK_CMD_SPLIT);
    });
}

std::uint32_t SK_ApiCopyLogicalDevice(const SK_CoreEntry *core, const char *source,
                                      const char *target, std::uint64_t start, std::uint64_t size,
                                      std::uint32_t p0, std::uint32_t p1, std::uint32_t wait)
{
    if (!core || !source || !target)
        return SKTL_STS_INVALID_PARAMETER;
    if (SK_CheckArrayName(core, source) != SK_STS_SUCCESS ||
        SK_CheckArrayName(core, target) != SK_STS_SUCCESS)
        return SK_STS_INVALID_LOGICAL_DEVICE;

    std::uint32_t status = SK_STS_SUCCESS;
    std::uint64_t targetId = 0;
    {
        SKTL_LockGuard lock;
        SKTL_AlignedBuffer request(SK_PLAIN_REQUEST_SIZE, __func__);
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        std::uint8_t *r = request.data();
        status = SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
            std::memset(r, 0, request.size());
            const SK_C_LogicalDevice *from = SK_LookupArray(open, source);
            const SK_C_LogicalDevice *to = SK_LookupArray(open, target);
            if (!from || !to)
                return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
            targetId = to->ID;
            SK_PutU64(r, 32, from->ID);
            SK_PutU16(r, 40, from->DeviceRoute);
            SK_PutU16(r, 42, from->CoreRoute);
            SK_PutU64(r, 48, to->ID);
            SK_PutU16(r, 56, to->DeviceRoute);
            SK_PutU16(r, 58, to->CoreRoute);
            SK_PutU64(r, 64, start << 11);
            SK_PutU64(r, 72, size << 11);
            SK_PutU32(r, 80, p0);
            SK_PutU32(r, 84, p1);
            return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_COPY);
        });
    }
    return waitIfAsked(core, status, wait, targetId);
}

std::uint32_t SK_ApiCommitPreviousConfig(const SK_CoreEntry *core, std::uint64_t generation,
                                         std::uint32_t option)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_PLAIN_REQUEST_SIZE, __func__);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint8_t *r = request.data();
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::memset(r, 0, request.size());
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU64(r, 32, generation);
        return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_COMMIT_PREVIOUS);
    });
}
