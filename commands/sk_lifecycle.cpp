#include "commands/sk_lifecycle.h"

#include "commands/sk_array_tasks.h"
#include "commands/sk_disk_commands.h"

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
// The array's reference fills 36 to 51: ID, DeviceRoute at 44, CoreRoute at 46.
constexpr std::size_t Type = 32, Reference = 36, DriveCount = 52, SpareCount = 56, Stripe = 60,
                      Capacity = 64, First = 72, Second = 76, P2 = 80, P1 = 84, P0 = 88,
                      Spares = 92, Drives = 156;
constexpr std::size_t InfoShift = 4;
} // namespace transform

// Delete request (command 3).
namespace deletion {
constexpr std::size_t All = 32, Count = 36, References = 40;
} // namespace deletion

// Split request (command 14).
namespace split {
// The array's reference fills 36 to 51.
constexpr std::size_t Type = 32, Reference = 36, DriveCount = 52, First = 56, Second = 60,
                      Parameter = 64, Drives = 68;
} // namespace split

// Copy request (command 35): two array references, then the range in sectors.
namespace copy {
constexpr std::size_t Source = 32, Target = 48, Start = 64, Size = 72, P0 = 80, P1 = 84;
} // namespace copy

// Request going back to a kept generation (command 36).
namespace commit {
constexpr std::size_t Generation = 32;
} // namespace commit

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

// The shape of an array as a create, a transform and their planning reads send it.
struct Layout
{
    std::uint32_t type, driveCount, spareCount, stripe;
    std::uint64_t capacity;
    std::uint32_t first, second;
    const SK_DeviceName *drives, *spares;
    std::uint32_t p0, p1, p2;

    // Spare names beyond the list's end are never read.
    std::uint32_t spareNames() const
    {
        return spares ? std::min(spareCount, SK_MAX_SPARE_NAMES) : 0;
    }
};

// Checks of a create or its planning read made before the lock, once its shape is
// known to be sound: the cache tag size, then both lists.
std::uint32_t checkCreate(const SK_CoreEntry *core, std::uint32_t cacheTagSize, const Layout &l)
{
    const std::uint32_t status = checkCacheTagSize(cacheTagSize);
    if (status != SK_STS_SUCCESS)
        return status;
    return checkLists(core, l.driveCount, l.spareNames(), l.drives, l.spares);
}

// The same for a transform or its planning read: the array's name, then both lists.
std::uint32_t checkTransform(const SK_CoreEntry *core, const char *arrayName, const Layout &l)
{
    const std::uint32_t status = SK_CheckArrayName(core, arrayName);
    if (status != SK_STS_SUCCESS)
        return status;
    return checkLists(core, l.driveCount, l.spareNames(), l.drives, l.spares);
}

// Writes the fields of a create, `shift` bytes further on for its planning read,
// except the option, the ID and the display name. Returns 1, or 10 or 11 for a drive
// that can't be resolved.
std::uint32_t putCreate(const SK_Core &open, const Layout &l, std::uint32_t cacheTagSize,
                        std::uint32_t policy, std::uint8_t *r, std::size_t shift)
{
    bool anyNvme = false;
    const std::uint32_t resolved =
        putDrives(open, l.type, l.drives, l.driveCount, r, create::Drives + shift, anyNvme);
    if (resolved != SK_STS_SUCCESS)
        return resolved;
    std::uint32_t tagCode = 0;
    SK_CacheTagCode(cacheTagSize, anyNvme, &tagCode);
    SK_PutU32(r, create::Type + shift, l.type);
    SK_PutU32(r, create::DriveCount + shift, l.driveCount);
    SK_PutU32(r, create::SpareCount + shift,
              putSpares(open, l.spares, l.spareNames(), r, create::Spares + shift));
    SK_PutU32(r, create::CacheTag + shift, tagCode);
    SK_PutU32(r, create::Stripe + shift, l.stripe);
    SK_PutU32(r, create::Policy + shift, policy);
    SK_PutU64(r, create::Capacity + shift, l.capacity);
    SK_PutU32(r, create::First + shift, l.first);
    SK_PutU32(r, create::Second + shift, l.second);
    SK_PutU32(r, create::P2 + shift, l.p2);
    SK_PutU32(r, create::P1 + shift, l.p1);
    SK_PutU32(r, create::P0 + shift, l.p0);
    return SK_STS_SUCCESS;
}

// Writes the fields of a transform of the named array, `shift` bytes further on for
// its planning read, except the option; `idOut` receives the array's ID once every
// name is resolved. Returns 1, or 10 or 11 for a name that can't be resolved.
std::uint32_t putTransform(const SK_Core &open, const char *arrayName, const Layout &l,
                           std::uint8_t *r, std::size_t shift, std::uint64_t *idOut)
{
    const SK_C_LogicalDevice *array = SK_LookupArray(open, arrayName);
    if (!array)
        return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
    bool anyNvme = false; // a transform sends no cache tag
    const std::uint32_t resolved =
        putDrives(open, l.type, l.drives, l.driveCount, r, transform::Drives + shift, anyNvme);
    if (resolved != SK_STS_SUCCESS)
        return resolved;
    if (idOut)
        *idOut = array->ID;
    SK_PutU32(r, transform::Type + shift, l.type);
    SK_PutArrayReference(r, transform::Reference + shift, *array);
    SK_PutU32(r, transform::DriveCount + shift, l.driveCount);
    SK_PutU32(r, transform::SpareCount + shift,
              putSpares(open, l.spares, l.spareNames(), r, transform::Spares + shift));
    SK_PutU32(r, transform::Stripe + shift, l.stripe);
    SK_PutU64(r, transform::Capacity + shift, l.capacity);
    SK_PutU32(r, transform::First + shift, l.first);
    SK_PutU32(r, transform::Second + shift, l.second);
    SK_PutU32(r, transform::P2 + shift, l.p2);
    SK_PutU32(r, transform::P1 + shift, l.p1);
    SK_PutU32(r, transform::P0 + shift, l.p0);
    return SK_STS_SUCCESS;
}

// A planning read of `readCode`: `put(core, request)` writes the fields or refuses
// with a status, then the option goes in and the read is made. `infoSize` bytes of
// the reply go to `infoOut` whenever a read was made, also when the driver refused
// it, from the block as the last try left it.
template <class Put>
std::uint32_t planningRead(const SK_CoreEntry *core, const char *tag, std::uint32_t readCode,
                           std::uint32_t option, std::uint8_t *infoOut, std::size_t infoSize,
                           Put &&put)
{
    bool readMade = false;
    return SK_RunCommand(
        core, SK_READ_REPLY_SIZE, tag,
        [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const std::uint32_t resolved = put(open, r);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            SK_PutU32(r, SK_HDR_OPTION, option);
            readMade = true;
            return open.SK_ConfigRead(r, SK_READ_REPLY_SIZE, readCode, 0);
        },
        [&](std::uint32_t read, const std::uint8_t *reply) {
            if (readMade && infoOut)
                std::memcpy(infoOut, reply, infoSize);
            return read;
        });
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
    const std::uint32_t size = SK_PaddedListRequestSize(1);
    SK_RunCommand(core, size, "SK_ApiDeleteLogicalDevice",
                  [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                      const SK_C_PhysicalDevice *disk = SK_LookupDiskById(open, diskId);
                      if (!disk)
                          return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
                      SK_PutU32(r, SK_HDR_OPTION, option);
                      SK_PutU32(r, SK_InitializeRequest::Count, 1);
                      SK_PutU32(r, SK_InitializeRequest::Mode, kClearMetadata);
                      SK_PutDiskReference(r, SK_InitializeRequest::References, *disk);
                      return open.SK_ConfigWrite(r, size, SK_CMD_INITIALIZE);
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
    const Layout layout{type,   driveCount, spareCount, stripe, capacity, first,
                        second, drives,     spares,     p0,     p1,       p2};
    std::uint32_t status = checkCreate(core, cacheTagSize, layout);
    if (status != SK_STS_SUCCESS)
        return status;

    {
        // The ID is drawn between the allocation and the first try, with the lock let
        // go between its rounds, so the lock and the allocation are spelt out here.
        SKTL_LockGuard lock;
        const std::uint32_t size = SK_ListRequestSize(driveCount);
        SKTL_AlignedBuffer request(size, __func__);
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        if (id == 0) {
            status = drawArrayId(core, id);
            if (status != SK_STS_SUCCESS)
                return status;
        }
        status =
            SK_RetryRequest(core, request, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                const std::uint32_t resolved = putCreate(open, layout, cacheTagSize, policy, r, 0);
                if (resolved != SK_STS_SUCCESS)
                    return resolved;
                SK_PutU32(r, SK_HDR_OPTION, 0);
                SK_PutU64(r, create::Id, id);
                if (name) {
                    const std::size_t length =
                        std::min<std::size_t>(nameLength, strnlen(name, SK_DISPLAY_NAME_SIZE));
                    std::memcpy(r + create::Name, name, length);
                }
                return open.SK_ConfigWrite(r, size, SK_CMD_CREATE);
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
    const Layout layout{type,   driveCount, spareCount, stripe, capacity, first,
                        second, drives,     spares,     p0,     p1,       p2};
    const std::uint32_t status = checkCreate(core, cacheTagSize, layout);
    if (status != SK_STS_SUCCESS)
        return status;

    return planningRead(core, __func__, SK_READ_CREATE_INFO, option, infoOut, SK_CREATE_INFO_SIZE,
                        [&](const SK_Core &open, std::uint8_t *r) {
                            return putCreate(open, layout, cacheTagSize, policy | SK_POLICY_QUERY,
                                             r, create::InfoShift);
                        });
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
    const Layout layout{type,   driveCount, spareCount, stripe, capacity, first,
                        second, drives,     spares,     p0,     p1,       p2};
    std::uint32_t status = checkTransform(core, arrayName, layout);
    if (status != SK_STS_SUCCESS)
        return status;

    std::uint64_t arrayId = 0;
    const std::uint32_t size = SK_ListRequestSize(driveCount);
    status =
        SK_RunCommand(core, size, __func__, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const std::uint32_t resolved = putTransform(open, arrayName, layout, r, 0, &arrayId);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            return open.SK_ConfigWrite(r, size, SK_CMD_TRANSFORM);
        });
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
    const Layout layout{type,   driveCount, spareCount, stripe, capacity, first,
                        second, drives,     spares,     p0,     p1,       p2};
    const std::uint32_t status = checkTransform(core, arrayName, layout);
    if (status != SK_STS_SUCCESS)
        return status;

    return planningRead(core, __func__, SK_READ_TRANSFORM_INFO, option, infoOut,
                        SK_TRANSFORM_INFO_SIZE, [&](const SK_Core &open, std::uint8_t *r) {
                            return putTransform(open, arrayName, layout, r, transform::InfoShift,
                                                nullptr);
                        });
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
    const SK_ArrayListShape shape{SK_CMD_DELETE, deletion::Count, deletion::References, __func__};
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
        [&](std::uint8_t *r) { SK_PutU32(r, deletion::All, all); });
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
    const std::uint32_t status =
        checkLists(core, 1, sentCount, arrayList, sentCount ? drives : nullptr);
    if (status != SK_STS_SUCCESS)
        return status;

    const std::uint32_t size = SK_ListRequestSize(sentCount);
    return SK_RunCommand(
        core, size, __func__, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            std::uint32_t resolved = SK_ResolveArray(open, arrayName, r, split::Reference);
            if (resolved == SK_STS_SUCCESS)
                resolved = SK_ResolveDiskList(open, drives, sentCount, r, split::Drives);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            SK_PutU32(r, SK_HDR_OPTION, option);
            SK_PutU32(r, split::Type, sentType);
            SK_PutU32(r, split::DriveCount, sentCount);
            SK_PutU32(r, split::First, keepShape ? first : 0);
            SK_PutU32(r, split::Second, keepShape ? second : 0);
            SK_PutU32(r, split::Parameter, parameter);
            return open.SK_ConfigWrite(r, size, SK_CMD_SPLIT);
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

    std::uint64_t targetId = 0;
    const std::uint32_t status =
        SK_RunCommand(core, SK_PLAIN_REQUEST_SIZE, __func__,
                      [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                          const SK_C_LogicalDevice *from = SK_LookupArray(open, source);
                          const SK_C_LogicalDevice *to = SK_LookupArray(open, target);
                          if (!from || !to)
                              return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
                          targetId = to->ID;
                          SK_PutArrayReference(r, copy::Source, *from);
                          SK_PutArrayReference(r, copy::Target, *to);
                          SK_PutU64(r, copy::Start, start << 11);
                          SK_PutU64(r, copy::Size, size << 11);
                          SK_PutU32(r, copy::P0, p0);
                          SK_PutU32(r, copy::P1, p1);
                          return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_COPY);
                      });
    return waitIfAsked(core, status, wait, targetId);
}

std::uint32_t SK_ApiCommitPreviousConfig(const SK_CoreEntry *core, std::uint64_t generation,
                                         std::uint32_t option)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_RunCommand(core, SK_PLAIN_REQUEST_SIZE, __func__,
                         [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                             SK_PutU32(r, SK_HDR_OPTION, option);
                             SK_PutU64(r, commit::Generation, generation);
                             return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE,
                                                        SK_CMD_COMMIT_PREVIOUS);
                         });
}
