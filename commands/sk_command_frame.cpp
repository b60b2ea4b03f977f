#include "commands/sk_command_frame.h"

namespace {

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

} // namespace

void SK_PutReference(std::uint8_t *request, std::size_t offset, std::uint64_t id,
                     std::uint16_t deviceRoute, std::uint16_t coreRoute)
{
    SK_PutU64(request, offset, id);
    SK_PutU16(request, offset + 8, deviceRoute);
    SK_PutU16(request, offset + 10, coreRoute);
    SK_PutU32(request, offset + 12, 0);
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

std::uint32_t SK_CheckArrayList(const SK_CoreEntry *core, const SK_DeviceName *list,
                                std::uint32_t count)
{
    return checkList(core, list, count, SK_STS_INVALID_LOGICAL_DEVICE);
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
    const SK_C_LogicalDevice *array = SK_LookupArray(core, name);
    if (!array)
        return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
    SK_PutArrayReference(request, offset, *array);
    return SK_STS_SUCCESS;
}

std::uint32_t SK_ResolveDisk(const SK_Core &core, const char *name, std::uint8_t *request,
                             std::size_t offset)
{
    const SK_C_PhysicalDevice *disk = SK_LookupDisk(core, name);
    if (!disk)
        return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
    SK_PutDiskReference(request, offset, *disk);
    return SK_STS_SUCCESS;
}

std::uint32_t SK_ResolveArrayList(const SK_Core &core, const SK_DeviceName *list,
                                  std::uint32_t count, std::uint8_t *request, std::size_t offset)
{
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t status =
            SK_ResolveArray(core, list[i], request, offset + i * SK_REFERENCE_SIZE);
        if (status != SK_STS_SUCCESS)
            return status;
    }
    return SK_STS_SUCCESS;
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
    if (!core || (count == 0 && !all))
        return SKTL_STS_INVALID_PARAMETER;
    if (all)
        return SK_STS_SUCCESS;
    if (!list)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_CheckArrayList(core, list, count);
}
