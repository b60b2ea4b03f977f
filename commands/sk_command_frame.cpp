#include "commands/sk_command_frame.h"

namespace {

// A device reference: ID, routes, and a zero word.
namespace reference {
constexpr std::size_t Id = 0, DeviceRoute = 8, CoreRoute = 10, Reserved = 12;
} // namespace reference

std::uint32_t checkName(const SK_CoreEntry *core, const char *name, std::uint32_t refusal)
{
    if (!core || !name)
        return refusal;
    const std::uint32_t number = SK_ParseCoreNumber(name);
    return number != 0 && number == core->CoreNumber ? SK_STS_SUCCESS : refusal;
}

std::uint32_t checkList(const SK_CoreEntry *core, const SK_DeviceName *list, std::uint32_t count,
                        std::uint32_t refusal)
{
    if (!list)
        return count == 0 ? SK_STS_SUCCESS : refusal;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (checkName(core, list[i], refusal) != SK_STS_SUCCESS)
            return refusal;
    }
    return SK_STS_SUCCESS;
}

// 7 without a core, with neither a count nor `all`, or with a count but no list;
// `refusal` for a name of another core.
std::uint32_t checkListArguments(const SK_CoreEntry *core, std::uint32_t count,
                                 const SK_DeviceName *list, std::uint32_t all,
                                 std::uint32_t refusal)
{
    if (!core || (count == 0 && !all))
        return SKTL_STS_INVALID_PARAMETER;
    if (all)
        return SK_STS_SUCCESS;
    if (!list)
        return SKTL_STS_INVALID_PARAMETER;
    return checkList(core, list, count, refusal);
}

// Writes the reference of `record` (an array or a disk), or answers `missing`.
template <class Record>
std::uint32_t putFound(const Record *record, std::uint32_t missing, std::uint8_t *request,
                       std::size_t offset)
{
    if (!record)
        return missing;
    SK_PutReference(request, offset, record->ID, record->DeviceRoute, record->CoreRoute);
    return SK_STS_SUCCESS;
}

} // namespace

void SK_PutReference(std::uint8_t *request, std::size_t offset, std::uint64_t id,
                     std::uint16_t deviceRoute, std::uint16_t coreRoute)
{
    SK_PutU64(request, offset + reference::Id, id);
    SK_PutU16(request, offset + reference::DeviceRoute, deviceRoute);
    SK_PutU16(request, offset + reference::CoreRoute, coreRoute);
    SK_PutU32(request, offset + reference::Reserved, 0);
}

void SK_PutArrayReference(std::uint8_t *request, std::size_t offset,
                          const SK_C_LogicalDevice &array)
{
    SK_PutReference(request, offset, array.ID, array.DeviceRoute, array.CoreRoute);
}

void SK_PutDiskReference(std::uint8_t *request, std::size_t offset, const SK_C_PhysicalDevice &disk)
{
    SK_PutReference(request, offset, disk.ID, disk.DeviceRoute, disk.CoreRoute);
}

std::uint32_t SK_CheckArrayName(const SK_CoreEntry *core, const char *name)
{
    return checkName(core, name, SK_STS_INVALID_LOGICAL_DEVICE);
}

std::uint32_t SK_CheckDiskName(const SK_CoreEntry *core, const char *name)
{
    return checkName(core, name, SK_STS_INVALID_DEVICE_LIST);
}

std::uint32_t SK_CheckDiskList(const SK_CoreEntry *core, const SK_DeviceName *list,
                               std::uint32_t count)
{
    return checkList(core, list, count, SK_STS_INVALID_DEVICE_LIST);
}

const SK_C_LogicalDevice *SK_LookupArray(const SK_Core &core, const char *name)
{
    const std::uint32_t i = SK_FindArrayByName(core, name);
    return i < core.ArrayCount ? core.Arrays[i] : nullptr;
}

const SK_C_PhysicalDevice *SK_LookupDisk(const SK_Core &core, const char *name)
{
    const std::uint32_t i = SK_FindDiskByName(core, name);
    return i < core.DiskCount ? core.Disks[i] : nullptr;
}

const SK_C_LogicalDevice *SK_LookupArrayById(const SK_Core &core, std::uint64_t id)
{
    const std::uint32_t i = SK_FindArrayById(core, id);
    return i < core.ArrayCount ? core.Arrays[i] : nullptr;
}

const SK_C_PhysicalDevice *SK_LookupDiskById(const SK_Core &core, std::uint64_t id)
{
    const std::uint32_t i = SK_FindDiskById(core, id);
    return i < core.DiskCount ? core.Disks[i] : nullptr;
}

std::uint32_t SK_ResolveArray(const SK_Core &core, const char *name, std::uint8_t *request,
                              std::size_t offset)
{
    return putFound(SK_LookupArray(core, name), SK_STS_LOGICAL_DEVICE_NOT_FOUND, request, offset);
}

std::uint32_t SK_ResolveDisk(const SK_Core &core, const char *name, std::uint8_t *request,
                             std::size_t offset)
{
    return putFound(SK_LookupDisk(core, name), SK_STS_PHYSICAL_DEVICE_NOT_FOUND, request, offset);
}

std::uint32_t SK_ResolveDiskList(const SK_Core &core, const SK_DeviceName *list,
                                 std::uint32_t count, std::uint8_t *request, std::size_t offset)
{
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t status =
            SK_ResolveDisk(core, list[i], request, offset + i * SK_REFERENCE_SIZE);
        if (status != SK_STS_SUCCESS)
            return status;
    }
    return SK_STS_SUCCESS;
}

std::uint32_t SK_CheckArrayListArguments(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all)
{
    return checkListArguments(core, count, list, all, SK_STS_INVALID_LOGICAL_DEVICE);
}

std::uint32_t SK_CheckDiskListArguments(const SK_CoreEntry *core, std::uint32_t count,
                                        const SK_DeviceName *list, std::uint32_t all)
{
    return checkListArguments(core, count, list, all, SK_STS_INVALID_DEVICE_LIST);
}
