#include "config/sk_config_lookup.h"

#include "config/sk_record_factory.h"
#include "driver/sk_image.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <cstdio>
#include <memory>
#include <new>

namespace {

constexpr const char *kOnlyCoreName = "Core1";
constexpr const char *kLocalBus = ".";
constexpr std::uint32_t kMaxCores = 8;

template <class Record, class Match>
std::uint32_t findRecord(Record *const *table, std::uint32_t count, Match &&match)
{
    for (std::uint32_t i = 0; table && i < count; ++i) {
        if (table[i] && match(*table[i]))
            return i;
    }
    return count;
}

std::uint64_t packRoutes(std::uint16_t deviceRoute, std::uint16_t coreRoute)
{
    return std::uint64_t{deviceRoute} | (std::uint64_t{coreRoute} << 16);
}

// Visits the cores of the system, each as an opened SK_Core, until `visit` returns
// true. Returns true when a visit did.
template <class Visit>
bool forEachCore(Visit &&visit)
{
    SK_CoreEntry entries[kMaxCores] = {};
    std::uint32_t count = 0;
    if (SK_ApiGetCoreList(entries, sizeof entries, &count) != SK_STS_SUCCESS)
        return false;
    for (std::uint32_t i = 0; i < count; ++i) {
        SK_Core core(entries[i].BusName, entries[i].CoreName, 0);
        if (core.Handle != 0 && visit(entries[i], core))
            return true;
    }
    return false;
}

// Runs `lookup` on a fresh core for `entry`; 0 when it can't be opened.
template <class Lookup>
std::uint64_t withCore(const SK_CoreEntry *entry, Lookup &&lookup)
{
    if (!entry)
        return 0;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;
    SK_Core core(entry->BusName, entry->CoreName, 0);
    if (core.Handle == 0)
        return 0;
    return lookup(core);
}

bool isKnownTag(std::uint32_t tag)
{
    return tag == SK_TAG_DISK || tag == SK_TAG_ARRAY || tag == SK_TAG_CONTROLLER ||
           tag == SK_TAG_ENCLOSURE;
}

} // namespace

std::uint32_t SK_DeviceNameMatches(const char *recordName, const char *name)
{
    if (!recordName || !name || !*name)
        return 0;
    std::size_t recordLength = strnlen(recordName, SK_DEVICE_NAME_SIZE);
    if (recordLength > 0 && recordName[recordLength - 1] == ' ')
        --recordLength;
    const std::size_t length = strnlen(name, SK_DEVICE_NAME_SIZE + 1);
    return length == recordLength && std::memcmp(recordName, name, length) == 0 ? 1 : 0;
}

std::uint32_t SK_FindDiskByName(const SK_Core &core, const char *name)
{
    return findRecord(core.Disks, core.DiskCount, [name](const SK_C_PhysicalDevice &disk) {
        return SK_DeviceNameMatches(disk.Name, name) != 0;
    });
}

std::uint32_t SK_FindDiskById(const SK_Core &core, std::uint64_t id)
{
    return findRecord(core.Disks, core.DiskCount,
                      [id](const SK_C_PhysicalDevice &disk) { return id != 0 && disk.ID == id; });
}

std::uint32_t SK_FindArrayByName(const SK_Core &core, const char *name)
{
    return findRecord(core.Arrays, core.ArrayCount, [name](const SK_C_LogicalDevice &array) {
        return SK_DeviceNameMatches(array.Name, name) != 0;
    });
}

std::uint32_t SK_FindArrayById(const SK_Core &core, std::uint64_t id)
{
    return findRecord(core.Arrays, core.ArrayCount,
                      [id](const SK_C_LogicalDevice &array) { return id != 0 && array.ID == id; });
}

std::uint32_t SK_FindControllerById(const SK_Core &core, std::uint64_t id)
{
    return findRecord(
        core.Controllers, core.ControllerCount,
        [id](const SK_C_ControllerDevice &controller) { return id != 0 && controller.ID == id; });
}

std::uint64_t SK_ArrayIdByName(const SK_Core &core, const char *name)
{
    const std::uint32_t index = SK_FindArrayByName(core, name);
    return index < core.ArrayCount ? core.Arrays[index]->ID : 0;
}

std::uint32_t SK_ApiGetCoreList(SK_CoreEntry *coreList, std::uint32_t sizeInBytes,
                                std::uint32_t *count)
{
    if (!count || (!coreList && sizeInBytes != 0))
        return SKTL_STS_INVALID_PARAMETER;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;
    *count = 0;

    std::uint32_t found = 0;
    // Only one driver instance exists; several controllers appear inside it.
    std::unique_ptr<SK_Core> core(new (std::nothrow) SK_Core(kLocalBus, kOnlyCoreName, 0));
    if (!core)
        return SK_STS_NO_MEMORY_AVAILABLE;
    if (core->Handle != 0) {
        if ((std::uint64_t{found} + 1) * sizeof(SK_CoreEntry) > sizeInBytes)
            return SK_STS_BUFFER_TOO_SMALL;
        SK_CoreEntry &entry = coreList[found++];
        std::memset(&entry, 0, sizeof entry);
        entry.CoreNumber = SK_ParseCoreNumber(kOnlyCoreName);
        SK_CopyText(entry.BusName, sizeof entry.BusName, kLocalBus);
        SK_CopyText(entry.CoreName, sizeof entry.CoreName, kOnlyCoreName);
    }
    *count = found;
    return SK_STS_SUCCESS;
}

std::uint64_t SK_ApiGetControllerSerial(const SK_CoreEntry *core, std::uint32_t index)
{
    return withCore(core, [index](const SK_Core &c) -> std::uint64_t {
        if (!c.Controllers || index >= c.ControllerCount || !c.Controllers[index])
            return 0;
        return c.Controllers[index]->SerialNumber;
    });
}

std::uint64_t SK_ApiGetArrayRoute(const SK_CoreEntry *core, std::uint64_t id)
{
    return withCore(core, [id](const SK_Core &c) -> std::uint64_t {
        const std::uint32_t i = SK_FindArrayById(c, id);
        return i < c.ArrayCount ? packRoutes(c.Arrays[i]->DeviceRoute, c.Arrays[i]->CoreRoute) : 0;
    });
}

std::uint64_t SK_ApiGetDiskRoute(const SK_CoreEntry *core, std::uint64_t id)
{
    return withCore(core, [id](const SK_Core &c) -> std::uint64_t {
        const std::uint32_t i = SK_FindDiskById(c, id);
        return i < c.DiskCount ? packRoutes(c.Disks[i]->DeviceRoute, c.Disks[i]->CoreRoute) : 0;
    });
}

std::uint32_t SK_ApiFindControllerBySerial(SK_CoreEntry *entryOut, std::uint64_t serial,
                                           char *nameOut)
{
    if (!entryOut || !nameOut)
        return SKTL_STS_INVALID_PARAMETER;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;
    const bool found = forEachCore([&](const SK_CoreEntry &entry, const SK_Core &core) {
        const std::uint32_t i = findRecord(core.Controllers, core.ControllerCount,
                                           [serial](const SK_C_ControllerDevice &controller) {
                                               return controller.SerialNumber == serial;
                                           });
        if (i == core.ControllerCount)
            return false;
        *entryOut = entry;
        SK_CopyText(nameOut, sizeof core.Controllers[i]->Name, core.Controllers[i]->Name);
        return true;
    });
    return found ? SK_STS_SUCCESS : SK_STS_CONTROLLER_DEVICE_NOT_FOUND;
}

std::uint32_t SK_ApiFindArrayById(SK_CoreEntry *entryOut, std::uint64_t id, char *nameOut)
{
    if (!entryOut || !nameOut)
        return SKTL_STS_INVALID_PARAMETER;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;
    const bool found = forEachCore([&](const SK_CoreEntry &entry, const SK_Core &core) {
        const std::uint32_t i = SK_FindArrayById(core, id);
        if (i == core.ArrayCount)
            return false;
        *entryOut = entry;
        SK_CopyText(nameOut, SK_DEVICE_NAME_SIZE, core.Arrays[i]->Name);
        return true;
    });
    return found ? SK_STS_SUCCESS : SK_STS_LOGICAL_DEVICE_NOT_FOUND;
}

std::uint32_t SK_ApiFindDiskById(SK_CoreEntry *entryOut, std::uint64_t id, char *nameOut)
{
    if (!entryOut || !nameOut)
        return SKTL_STS_INVALID_PARAMETER;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;
    const bool found = forEachCore([&](const SK_CoreEntry &entry, const SK_Core &core) {
        const std::uint32_t i = SK_FindDiskById(core, id);
        if (i == core.DiskCount)
            return false;
        *entryOut = entry;
        SK_CopyText(nameOut, SK_DEVICE_NAME_SIZE, core.Disks[i]->Name);
        return true;
    });
    return found ? SK_STS_SUCCESS : SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
}

std::uint32_t SK_CommonCore(const SK_DeviceName *list, std::uint32_t count)
{
    if (!list || count == 0)
        return 0;
    const std::uint32_t first = SK_ParseCoreNumber(list[0]);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t number = SK_ParseCoreNumber(list[i]);
        if (number == 0 || number != first)
            return 0;
    }
    return first;
}

std::uint32_t SK_BuildCoreList(const SK_CoreEntry *core, SK_CoreEntry *out, std::uint32_t,
                               const SK_DeviceName *list, std::uint32_t count)
{
    if (!list || !core || !out)
        return 0;
    std::uint32_t perCore[3] = {};
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t number = SK_ParseCoreNumber(list[i]);
        if (number == 1 || number == 2)
            ++perCore[number];
    }
    // Only core 1 exists; a list naming core 2 alone addresses nothing.
    if (perCore[1] == 0)
        return 0;
    std::memset(out, 0, sizeof *out);
    SK_CopyText(out->BusName, sizeof out->BusName, core->BusName);
    out->CoreNumber = 1;
    SK_CopyText(out->CoreName, sizeof out->CoreName, kOnlyCoreName);
    return 1;
}

std::uint32_t SK_FilterByCore(std::uint32_t coreNumber, SK_DeviceName *out,
                              const SK_DeviceName *list, std::uint32_t count)
{
    if (out == list)
        return count;
    if (!out || !list)
        return 0;
    std::uint32_t copied = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (SK_ParseCoreNumber(list[i]) == coreNumber)
            std::memcpy(out[copied++], list[i], SK_DEVICE_NAME_SIZE);
    }
    return copied;
}

std::uint32_t SK_ValidateCoreDeviceLists(const SK_CoreEntry *core, std::uint32_t count1,
                                         std::uint32_t count2, const SK_DeviceName *list1,
                                         const SK_DeviceName *list2, std::uint32_t *coreOut)
{
    if (!core || !coreOut)
        return SKTL_STS_INVALID_PARAMETER;
    if ((count1 == 0 && count2 == 0) || (!list1 && !list2))
        return SK_STS_INVALID_DEVICE_LIST;
    SKTL_LockGuard lock;
    auto *scratch =
        static_cast<SK_CoreEntry *>(SKTL_Alloc(sizeof(SK_CoreEntry), "SK_ValidateCoreDeviceLists"));
    if (!scratch)
        return SK_STS_NO_MEMORY_AVAILABLE;

    std::uint32_t status = SK_STS_SUCCESS;
    std::uint32_t second = 0;
    std::uint32_t first = 0;
    if (SK_BuildCoreList(core, scratch, sizeof *scratch, list1, count1) == 0) {
        status = SK_STS_INVALID_DEVICE_LIST;
        goto out;
    }
    if (count2 != 0) {
        if (SK_BuildCoreList(core, scratch, sizeof *scratch, list2, count2) < 1) {
            status = SK_STS_INVALID_DEVICE_LIST;
            goto out;
        }
        second = SK_CommonCore(list2, count2);
    }
    first = SK_CommonCore(list1, count1);
    if (second != 0 && second != first) {
        status = SK_STS_DEVICE_LIST_SPAN_MULTI_CORE;
        goto out;
    }
    if (first == 0) {
        status = SK_STS_INVALID_DEVICE_LIST;
        goto out;
    }
    *coreOut = first;
out:
    SKTL_Free(scratch);
    return status;
}

// ---------------------------------------------------------------------------------
// Older enumeration

namespace {

constexpr std::uint32_t kW2kpIdReadSize = 512;
constexpr std::uint32_t kW2kpRequestSize = 1024;
constexpr std::uint32_t kW2kpDiskLength = 1024;
constexpr std::uint32_t kW2kpDiskDevice = 12;
constexpr std::uint32_t kW2kpDiskRoute = 14;
constexpr std::uint32_t kW2kpDiskSize = 28;
constexpr std::uint32_t kW2kpArrayDevice = 52;
constexpr std::uint32_t kW2kpArrayRoute = 54;
constexpr std::uint32_t kW2kpArraySize = 80;
constexpr std::uint32_t kW2kpArrayMinLength = SK_ARRAY_LENGTH_OFFSET + 4;
constexpr std::uint32_t kW2kpConfigDevice = 65534;
constexpr std::size_t kW2kpPathSize = 80;

void composeRow(std::uint8_t *row, char *path, std::uint64_t size, std::uint32_t kind,
                const char *prefix, std::uint32_t route, std::uint32_t device)
{
    char digits[32] = {};
    std::uint32_t depth = 0;
    // The route's octal digits, low digit first, each closed by "_".
    do {
        digits[depth * 2] = static_cast<char>('0' + (route & 7u));
        digits[depth * 2 + 1] = '_';
        route >>= 3;
        ++depth;
    } while (route != 0 && depth * 2 + 2 < sizeof digits);
    std::snprintf(path, kW2kpPathSize, "%s%s%u", prefix, digits, device);

    std::memset(row, 0, W2KP_ROW_SIZE);
    SK_PutU64(row, 0, size);
    SK_PutU32(row, 8, kind);
    SK_PutU32(row, 12, depth);
    SK_CopyText(reinterpret_cast<char *>(row + W2KP_ROW_PATH), W2KP_ROW_SIZE - W2KP_ROW_PATH, path);
}

} // namespace

std::uint32_t W2KP_EnumerateForCore(SK_Handle handle, char *pathScratch, std::uint8_t *rows,
                                    std::uint32_t maxRows, std::uint32_t *rowCount)
{
    if (handle == 0 || !rows || !rowCount)
        return SKTL_STS_INVALID_PARAMETER;
    *rowCount = 0;
    SKTL_LockGuard lock;
    char localPath[kW2kpPathSize];
    char *path = pathScratch ? pathScratch : localPath;

    SKTL_AlignedBuffer image(W2KP_IMAGE_SIZE, "W2KP_EnumerateForCore");
    if (!image.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    std::uint8_t *bytes = image.data();

    std::uint32_t status =
        SKTL_DeviceTransfer(true, handle, bytes, 0, kW2kpIdReadSize, nullptr, nullptr);
    if (status != SK_STS_SUCCESS)
        return status;
    const std::uint32_t channel = SK_GetU32(bytes, 0);

    std::memset(bytes, 0, kW2kpRequestSize);
    SK_PutU32(bytes, SK_HDR_COMMAND, SK_COMMAND_READ);
    SK_PutU32(bytes, SK_HDR_CHANNEL, channel);
    SK_PutU32(bytes, SK_HDR_READ_CODE, SK_READ_CONFIG);
    SK_PutU32(bytes, SK_HDR_PARAMETER, 0);
    status = SKTL_DeviceTransfer(false, handle, bytes, 0, kW2kpRequestSize, nullptr, nullptr);
    if (status != SK_STS_SUCCESS)
        return status;

    std::memset(bytes, 0, W2KP_IMAGE_SIZE);
    status = SKTL_DeviceTransfer(true, handle, bytes, std::uint64_t{channel} << 9, W2KP_IMAGE_SIZE,
                                 nullptr, nullptr);
    if (status != SK_STS_SUCCESS)
        return status;

    std::uint32_t offset = SK_IMAGE_HEADER_SIZE;
    std::uint32_t count = 0;
    for (;;) {
        if (W2KP_IMAGE_SIZE - offset < 4)
            return SK_STS_OUT_OF_BOUNDS;
        const std::uint32_t tag = SK_GetU32(bytes, offset);
        if (tag == SK_TAG_CONTROLLER)
            break;
        std::uint64_t length = 0;
        std::uint64_t size = 0;
        std::uint32_t kind = 0, route = 0, device = 0;
        const char *prefix = nullptr;
        if (tag == SK_TAG_DISK) {
            length = kW2kpDiskLength;
            if (length > W2KP_IMAGE_SIZE - offset)
                return SK_STS_OUT_OF_BOUNDS;
            device = SK_GetU16(bytes, offset + kW2kpDiskDevice);
            route = SK_GetU16(bytes, offset + kW2kpDiskRoute);
            size = SK_GetU64(bytes, offset + kW2kpDiskSize);
            kind = W2KP_KIND_DISK;
            prefix = "\\\\.\\disk";
        } else if (tag == SK_TAG_ARRAY) {
            if (W2KP_IMAGE_SIZE - offset < kW2kpArrayMinLength)
                return SK_STS_OUT_OF_BOUNDS;
            // This format counts the array's length in 32-bit words.
            length = std::uint64_t{SK_GetU32(bytes, offset + SK_ARRAY_LENGTH_OFFSET)} * 4;
            if (length < kW2kpArrayMinLength || length > W2KP_IMAGE_SIZE - offset)
                return SK_STS_OUT_OF_BOUNDS;
            device = SK_GetU16(bytes, offset + kW2kpArrayDevice);
            route = SK_GetU16(bytes, offset + kW2kpArrayRoute);
            size = SK_GetU64(bytes, offset + kW2kpArraySize);
            kind = W2KP_KIND_ARRAY;
            prefix = "\\\\.\\array";
        } else {
            return SK_STS_OUT_OF_BOUNDS;
        }
        if (count >= maxRows)
            return SK_STS_OUT_OF_BOUNDS;
        if (device > kW2kpConfigDevice) {
            kind = W2KP_KIND_CONFIG;
            size = 0;
            device = 0;
            prefix = "\\\\.\\config";
        }
        composeRow(rows + std::size_t{count} * W2KP_ROW_SIZE, path, size, kind, prefix, route,
                   device);
        *rowCount = ++count;
        offset += static_cast<std::uint32_t>(length);
    }
    return SK_STS_SUCCESS;
}

std::uint32_t SK_CheckImage(const std::uint8_t *image, std::uint32_t size, bool previous)
{
    if (!image)
        return SKTL_STS_INVALID_PARAMETER;
    if (size < SK_IMAGE_HEADER_SIZE)
        return SK_STS_OUT_OF_BOUNDS;
    std::uint32_t end = SK_IMAGE_HEADER_SIZE;
    bool tablesFit = true;
    SK_WalkImage(image, size, previous, [&](const SK_ImageRecord &record) {
        end = record.offset + record.length;
        if (record.tag == SK_TAG_ARRAY &&
            SK_C_LogicalDevice::SK_CheckRecord(image + record.offset, record.length) !=
                SK_STS_SUCCESS)
            tablesFit = false;
    });
    if (!tablesFit)
        return SK_STS_OUT_OF_BOUNDS;
    if (size - end < 4)
        return SK_STS_SUCCESS;
    // The walk stopped early on a known tag only when that record couldn't be real.
    return isKnownTag(SK_GetU32(image, end)) ? SK_STS_OUT_OF_BOUNDS : SK_STS_SUCCESS;
}
