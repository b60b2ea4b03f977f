#include "commands/sk_disk_commands.h"

#include "commands/sk_array_tasks.h"
#include "commands/sk_lifecycle.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

// Fields of the disk command (29).
namespace disk {
constexpr std::size_t Subcode = 32, Count = 36, References = 40;
} // namespace disk

namespace manage = SK_ManageRequest;
namespace initialize = SK_InitializeRequest;

// Pass-through reads (4123, 4124). The caller's command block is copied to Block; the
// data travels from SK_PASS_THROUGH_DATA_AT, which the request quotes at DataAt. The
// reply starts with the device's two status words.
namespace passRequest {
constexpr std::size_t Reference = 36, Block = 52, Length = 148, Size = 152, Mode = 156,
                      DataAt = 160, Direction = 164;
constexpr std::size_t Completion = Block + 36; // the answered block's last 16 bytes
constexpr std::size_t CompletionSize = 16;
constexpr std::size_t Status = 0, Status2 = 4;
} // namespace passRequest

// Where the fields lie in the caller's descriptor, SK_PassThrough.
namespace descriptorAt {
constexpr std::size_t Block = offsetof(SK_PassThrough, Body), Direction = Block, Completion = 40;
constexpr std::size_t Length1 = 100, Length2 = 20, Length3 = 52;
} // namespace descriptorAt

// Buzzer request (commands 45 and 46).
namespace buzz {
constexpr std::size_t On = 32;
} // namespace buzz

// Metadata read (4121): the disk's reference, the first sector and the sector count.
namespace metadata {
constexpr std::size_t Reference = 36, Sector = 52, Sectors = 60;
} // namespace metadata

// The three signature words that open a metadata header.
namespace signature {
constexpr std::size_t First = 0, Second = 4, Third = 8, Size = 12;
} // namespace signature

// Disks that "all" means: plain, unknown and legacy disks, never a core's own entry.
bool isManagedDisk(const SK_C_PhysicalDevice &d)
{
    return d.DeviceType == SK_DEVICE_TYPE_DISK || d.DeviceType == SK_DEVICE_TYPE_UNKNOWN ||
           d.DeviceType == SK_DEVICE_TYPE_LEGACY;
}

std::vector<const SK_C_PhysicalDevice *> managedDisks(const SK_Core &open)
{
    std::vector<const SK_C_PhysicalDevice *> disks;
    for (std::uint32_t i = 0; open.Disks && i < open.DiskCount; ++i) {
        if (open.Disks[i] && isManagedDisk(*open.Disks[i]))
            disks.push_back(open.Disks[i]);
    }
    return disks;
}

// A disk request is the list form with one reference.
static_assert(SK_ListRequestSize(1) == SK_DISK_REQUEST_SIZE);

// Sends the setting `subcode` for one disk (command 29) on `open`; 11 when the core
// has no such disk.
std::uint32_t sendDiskSetting(SK_Core &open, std::uint8_t *r, const SK_C_PhysicalDevice *d,
                              std::uint32_t subcode, std::uint32_t option)
{
    if (!d)
        return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
    SK_PutU32(r, SK_HDR_OPTION, option);
    SK_PutU32(r, disk::Subcode, subcode);
    SK_PutU32(r, disk::Count, 1);
    SK_PutDiskReference(r, disk::References, *d);
    return open.SK_ConfigWrite(r, SK_DISK_REQUEST_SIZE, SK_CMD_MANAGE_DISK);
}

// Runs `send(entry)` for `core`, or with `allCores` for each core the enumeration
// finds (a block of one entry: only one core exists). Stops at the first failure.
template <class Send>
std::uint32_t forCores(const SK_CoreEntry *core, std::uint32_t allCores, const char *tag,
                       Send &&send)
{
    if (!allCores)
        return send(core);
    auto *entries = static_cast<SK_CoreEntry *>(SKTL_Alloc(sizeof(SK_CoreEntry), tag));
    if (!entries)
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint32_t found = 0;
    std::uint32_t status = SK_ApiGetCoreList(entries, sizeof(SK_CoreEntry), &found);
    if (status == SK_STS_SUCCESS && found == 0)
        status = SK_STS_INVALID_CORE_HANDLE;
    for (std::uint32_t i = 0; status == SK_STS_SUCCESS && i < found; ++i)
        status = send(&entries[i]);
    SKTL_Free(entries);
    return status;
}

// Under the lock, one plain request serves `send(entry, request)` for each core that
// forCores() picks.
template <class Send>
std::uint32_t sendToCores(const SK_CoreEntry *core, std::uint32_t allCores, const char *tag,
                          Send &&send)
{
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_PLAIN_REQUEST_SIZE, tag);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    return forCores(core, allCores, tag,
                    [&](const SK_CoreEntry *entry) { return send(entry, request); });
}

std::uint32_t roundUp512(std::uint32_t size)
{
    return (size + 511u) & ~511u;
}

// Shared by both directions: the request, the transfer and the device status.
std::uint32_t passThrough(const SK_CoreEntry *core, const char *name, std::uint32_t mode,
                          SK_PassThrough *descriptor, std::uint8_t *readInto,
                          const std::uint8_t *writeFrom, std::uint32_t size,
                          std::uint32_t *statusOut, const char *tag)
{
    const bool isRead = readInto != nullptr;
    if (!core || !name || !descriptor || (size != 0 && !readInto && !writeFrom))
        return SKTL_STS_INVALID_PARAMETER;
    if (size > (isRead ? SK_PASS_THROUGH_READ_MAX : SK_PASS_THROUGH_WRITE_MAX))
        return SKTL_STS_INVALID_BUFFER;

    const auto *body = reinterpret_cast<const std::uint8_t *>(descriptor);
    std::size_t blockSize = 0;
    std::size_t lengthAt = 0;
    switch (descriptor->Kind) {
    case 1:
        blockSize = 96;
        lengthAt = descriptorAt::Length1;
        break;
    case 2:
        blockSize = 16;
        lengthAt = descriptorAt::Length2;
        break;
    case 3:
        blockSize = 48;
        lengthAt = descriptorAt::Length3;
        break;
    default:
        return SKTL_STS_INVALID_PARAMETER;
    }
    const std::uint32_t status = SK_CheckDiskName(core, name);
    if (status != SK_STS_SUCCESS)
        return status;

    const std::uint32_t bufferSize =
        roundUp512(std::max(size + SK_PASS_THROUGH_DATA_AT, SK_READ_REPLY_SIZE));
    bool readMade = false;
    const auto attempt = [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
        const SK_C_PhysicalDevice *disk = SK_LookupDisk(open, name);
        if (!disk)
            return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
        SK_PutU32(r, SK_HDR_OPTION, 1);
        SK_PutDiskReference(r, passRequest::Reference, *disk);
        std::memcpy(r + passRequest::Block, body + descriptorAt::Block, blockSize);
        SK_PutU32(r, passRequest::Length, SK_GetU32(body, lengthAt));
        SK_PutU32(r, passRequest::Size, size);
        SK_PutU32(r, passRequest::Mode, mode);
        SK_PutU32(r, passRequest::DataAt, SK_PASS_THROUGH_DATA_AT);
        if (descriptor->Kind == 3)
            r[passRequest::Direction] = body[descriptorAt::Direction];
        if (!isRead && size != 0)
            std::memcpy(r + SK_PASS_THROUGH_DATA_AT, writeFrom, size);
        readMade = true;
        return open.SK_ConfigRead(
            r, bufferSize, isRead ? SK_READ_PASS_THROUGH_READ : SK_READ_PASS_THROUGH_WRITE, 0);
    };
    // Once a transfer was made the device status is handed back, also when the driver
    // refused it, from the block as the last try left it.
    const auto finish = [&](std::uint32_t sent, const std::uint8_t *r) -> std::uint32_t {
        if (!readMade)
            return sent;
        if (statusOut) {
            statusOut[0] = SK_GetU32(r, passRequest::Status);
            statusOut[1] = SK_GetU32(r, passRequest::Status2);
        }
        if (descriptor->Kind == 3) {
            // The driver answers the block in place; its last 16 bytes carry the completion.
            std::memcpy(reinterpret_cast<std::uint8_t *>(descriptor) + descriptorAt::Completion,
                        r + passRequest::Completion, passRequest::CompletionSize);
        }
        if (sent == SK_STS_SUCCESS && isRead && size != 0)
            std::memcpy(readInto, r + SK_PASS_THROUGH_DATA_AT, size);
        return sent;
    };
    return SK_RunCommand(core, bufferSize, tag, attempt, finish);
}

} // namespace

std::uint32_t SK_ApiManagePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all,
                                         std::uint32_t subcode, std::uint32_t option)
{
    std::uint32_t status = SK_CheckDiskListArguments(core, count, list, all);
    if (status != SK_STS_SUCCESS)
        return status;

    // One request serves every disk, each with its own tries, so the lock and the
    // allocation are spelt out here.
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_DISK_REQUEST_SIZE, __func__);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;

    std::vector<std::uint64_t> everyDisk;
    if (all) {
        SK_Core open(core->BusName, core->CoreName, 0);
        if (open.Handle == 0)
            return SK_STS_INVALID_CORE_HANDLE;
        for (const SK_C_PhysicalDevice *d : managedDisks(open))
            everyDisk.push_back(d->ID);
    }
    const std::size_t targets = all ? everyDisk.size() : count;
    // Each disk is its own request on a fresh core: a setting raises the generation,
    // so the next disk's request must quote the new one.
    for (std::size_t i = 0; i < targets; ++i) {
        status = SK_RetryRequest(core, request, [&](SK_Core &open, std::uint8_t *r) {
            const SK_C_PhysicalDevice *d =
                all ? SK_LookupDiskById(open, everyDisk[i]) : SK_LookupDisk(open, list[i]);
            return sendDiskSetting(open, r, d, subcode, option);
        });
        if (status != SK_STS_SUCCESS)
            return status;
    }
    return SK_STS_SUCCESS;
}

std::uint32_t SK_ApiManagePhysicalDeviceBuf(const SK_CoreEntry *core, std::uint32_t count,
                                            const SK_DeviceName *list, std::uint32_t,
                                            std::uint32_t subcode, std::uint8_t *replyBuffer,
                                            std::uint32_t replySize, std::uint32_t,
                                            std::uint32_t option)
{
    if (!core || !list || count != 1)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckDiskName(core, list[0]);
    if (status != SK_STS_SUCCESS)
        return status;

    return SK_RunCommand(
        core, SK_DISK_REQUEST_SIZE, __func__, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const std::uint32_t sent =
                sendDiskSetting(open, r, SK_LookupDisk(open, list[0]), subcode, option);
            if (sent != SK_STS_SUCCESS)
                return sent;
            // The driver keeps the reply for the channel that asked, so it is read on the
            // same core before the channel closes.
            if (subcode < SK_DISK_REPLY_FIRST || subcode > SK_DISK_SMART_ATA || !replyBuffer)
                return SKTL_STS_INVALID_PARAMETER;
            return open.SK_ConfigRead(replyBuffer, replySize, SK_READ_DISK_REPLY, 0);
        });
}

std::uint32_t SK_ApiDirectManagePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                               const SK_DeviceName *list, std::uint32_t all,
                                               std::uint32_t subcode, std::uint32_t option)
{
    if (!core || (!list && !all))
        return SKTL_STS_INVALID_PARAMETER;
    if (!all) {
        const std::uint32_t status = SK_CheckDiskList(core, list, count);
        if (status != SK_STS_SUCCESS)
            return status;
    }

    SKTL_LockGuard lock;
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::vector<const SK_C_PhysicalDevice *> disks;
        if (all) {
            disks = managedDisks(open);
        } else {
            for (std::uint32_t i = 0; i < count; ++i) {
                const SK_C_PhysicalDevice *d = SK_LookupDisk(open, list[i]);
                if (!d)
                    return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
                disks.push_back(d);
            }
        }
        const auto n = static_cast<std::uint32_t>(disks.size());
        SKTL_AlignedBuffer request(SK_ListRequestSize(n), "SK_ApiDirectManagePhysicalDevice");
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        std::uint8_t *r = request.data();
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, disk::Subcode, subcode);
        SK_PutU32(r, disk::Count, n);
        for (std::uint32_t i = 0; i < n; ++i)
            SK_PutDiskReference(r, disk::References + i * SK_REFERENCE_SIZE, *disks[i]);
        return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()),
                                   SK_CMD_MANAGE_DISK);
    });
}

std::uint32_t SK_ApiManageSpare(const SK_CoreEntry *core, const char *arrayName,
                                std::uint32_t count, const SK_DeviceName *list, std::uint32_t add,
                                std::uint32_t global, std::uint32_t option)
{
    if (!core || (count != 0 && !list) || (global != 1 && !arrayName))
        return SKTL_STS_INVALID_PARAMETER;
    std::uint32_t status = SK_STS_SUCCESS;
    if (global != 1) {
        status = SK_CheckArrayName(core, arrayName);
        if (status != SK_STS_SUCCESS)
            return status;
    }
    status = SK_CheckDiskList(core, list, count);
    if (status != SK_STS_SUCCESS)
        return status;
    const bool adding = add && count > 0;
    const std::uint32_t subcode =
        global == 1 ? (adding ? SK_MANAGE_GLOBAL_SPARE_ADD : SK_MANAGE_GLOBAL_SPARE_REMOVE)
                    : (adding ? SK_MANAGE_DEDICATED_SPARE_ADD : SK_MANAGE_DEDICATED_SPARE_REMOVE);

    const std::uint32_t size = SK_ListRequestSize(count);
    return SK_RunCommand(
        core, size, __func__, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            SK_PutU32(r, SK_HDR_OPTION, option);
            SK_PutU32(r, manage::Subcode, subcode);
            if (global != 1) {
                const std::uint32_t resolved =
                    SK_ResolveArray(open, arrayName, r, manage::Reference);
                if (resolved != SK_STS_SUCCESS)
                    return resolved;
            }
            SK_PutU32(r, manage::Count, count);
            const std::uint32_t resolved = SK_ResolveDiskList(open, list, count, r, manage::Spares);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            return open.SK_ConfigWrite(r, size, SK_CMD_MANAGE_ARRAY);
        });
}

std::uint32_t SK_ApiInitializePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                             const SK_DeviceName *list, std::uint32_t all,
                                             std::uint32_t mode, std::uint32_t option)
{
    const std::uint32_t status = SK_CheckDiskListArguments(core, count, list, all);
    if (status != SK_STS_SUCCESS)
        return status;

    SKTL_LockGuard lock;
    // A disk can't be wiped under an array: every array of the core goes first. What
    // can't be deleted the driver refuses to wipe, so the verdict is the initialise's.
    if (all)
        SK_ApiDeleteLogicalDevice(core, 0, nullptr, 1, 0, option);
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        const std::uint32_t n = all ? open.DiskCount : count;
        SKTL_AlignedBuffer request(SK_PaddedListRequestSize(n), "SK_ApiInitializePhysicalDevice");
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        std::uint8_t *r = request.data();
        std::uint32_t written = 0;
        if (all) {
            for (std::uint32_t i = 0; open.Disks && i < open.DiskCount; ++i) {
                if (open.Disks[i])
                    SK_PutDiskReference(r, initialize::References + (written++) * SK_REFERENCE_SIZE,
                                        *open.Disks[i]);
            }
        } else {
            const std::uint32_t resolved =
                SK_ResolveDiskList(open, list, count, r, initialize::References);
            if (resolved != SK_STS_SUCCESS)
                return resolved;
            written = count;
        }
        SK_PutU32(r, SK_HDR_OPTION, option);
        SK_PutU32(r, initialize::All, all);
        SK_PutU32(r, initialize::Count, written);
        SK_PutU32(r, initialize::Mode, mode);
        return open.SK_ConfigWrite(r, static_cast<std::uint32_t>(request.size()),
                                   SK_CMD_INITIALIZE);
    });
}

std::uint32_t SK_ApiRescan(const SK_CoreEntry *core, std::uint32_t allCores, std::uint32_t option)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    return sendToCores(
        core, allCores, __func__,
        [&](const SK_CoreEntry *entry, const SKTL_AlignedBuffer &request) {
            return SK_RetryRequest(entry, request, [&](SK_Core &open, std::uint8_t *r) {
                SK_PutU32(r, SK_HDR_OPTION, option);
                return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_RESCAN);
            });
        });
}

std::uint32_t SK_ApiBuzz(const SK_CoreEntry *core, std::uint32_t allCores, std::uint32_t,
                         std::uint32_t on)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    // Each core is tried once, without going round on 38.
    return sendToCores(
        core, allCores, __func__,
        [&](const SK_CoreEntry *entry, const SKTL_AlignedBuffer &request) -> std::uint32_t {
            SK_Core open(entry->BusName, entry->CoreName, 0);
            if (open.Handle == 0)
                return SK_STS_INVALID_CORE_HANDLE;
            std::uint8_t *r = request.data();
            std::memset(r, 0, request.size());
            SK_PutU32(r, buzz::On, on);
            return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE,
                                       on ? SK_CMD_BUZZ_ON : SK_CMD_BUZZ_OFF);
        });
}

std::uint32_t SK_ApiPhysicalDevicePassThroughRead(const SK_CoreEntry *core, const char *name,
                                                  std::uint32_t mode, SK_PassThrough *descriptor,
                                                  std::uint8_t *data, std::uint32_t size,
                                                  std::uint32_t *statusOut)
{
    if (!data)
        return SKTL_STS_INVALID_PARAMETER;
    return passThrough(core, name, mode, descriptor, data, nullptr, size, statusOut, __func__);
}

std::uint32_t SK_ApiPhysicalDevicePassThroughWrite(const SK_CoreEntry *core, const char *name,
                                                   std::uint32_t mode, SK_PassThrough *descriptor,
                                                   const std::uint8_t *data, std::uint32_t size,
                                                   std::uint32_t *statusOut)
{
    if (!data && size != 0)
        return SKTL_STS_INVALID_PARAMETER;
    static const std::uint8_t nothing[1] = {};
    return passThrough(core, name, mode, descriptor, nullptr, data ? data : nothing, size,
                       statusOut, __func__);
}

std::uint32_t SK_ApiReadDiskMetaData(const SK_CoreEntry *core, const char *name,
                                     std::uint8_t *buffer, std::uint64_t sector, std::uint32_t size,
                                     std::uint32_t option)
{
    if (!core || !name || !buffer)
        return SKTL_STS_INVALID_PARAMETER;
    if (size > SK_METADATA_READ_MAX)
        return SKTL_STS_INVALID_BUFFER;
    const std::uint32_t status = SK_CheckDiskName(core, name);
    if (status != SK_STS_SUCCESS)
        return status;

    return SK_ReadInto(core, __func__, SK_READ_METADATA, buffer, size,
                       [&](const SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                           const std::uint32_t resolved =
                               SK_ResolveDisk(open, name, r, metadata::Reference);
                           if (resolved != SK_STS_SUCCESS)
                               return resolved;
                           SK_PutU32(r, SK_HDR_OPTION, option);
                           SK_PutU64(r, metadata::Sector, sector);
                           SK_PutU32(r, metadata::Sectors, size / 512);
                           return SK_STS_SUCCESS;
                       });
}

std::uint32_t SK_IsValidMetaDataHeader(const std::uint8_t *data, std::uint32_t size)
{
    if (!data || size < signature::Size)
        return 0;
    const std::uint32_t a = SK_GetU32(data, signature::First),
                        b = SK_GetU32(data, signature::Second),
                        c = SK_GetU32(data, signature::Third);
    const bool formE = a == 0x5AEAA55Au && b == 0xA55AEAA5u && c == 0x5AA55AEAu;
    const bool formF = a == 0x5AFAA55Au && b == 0xA55AFAA5u && c == 0x5AA55AFAu;
    return formE || formF ? 1 : 0;
}
