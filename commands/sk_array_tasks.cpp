#include "commands/sk_array_tasks.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kTaskPollDelayMs = 100;
constexpr std::uint32_t kTaskPollIntervalMs = 1000;

namespace manage = SK_ManageRequest;

// Drive letter request (command 10). The array's ID goes where the option usually is.
namespace lettering {
constexpr std::size_t Id = SK_HDR_OPTION, Number = 40, Letter = 44, Flag = 48;
} // namespace lettering

// Task control request (command 34).
namespace task {
constexpr std::size_t Action = 32, All = 36, Count = 40, References = 44;
} // namespace task

// Offline request (command 17).
namespace offline {
constexpr std::size_t Count = 32, References = 36;
} // namespace offline

// Sends one management request for the named array. `fill(request)` adds the
// subcode's own fields; `idOut` receives the ID of the array it found.
template <class Fill>
std::uint32_t manageArray(const SK_CoreEntry *core, const char *name, const char *tag,
                          std::uint32_t subcode, std::uint32_t option, std::uint64_t *idOut,
                          Fill &&fill)
{
    if (!core || !name)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckArrayName(core, name);
    if (status != SK_STS_SUCCESS)
        return status;

    return SK_RunCommand(
        core, SK_PLAIN_REQUEST_SIZE, tag, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const SK_C_LogicalDevice *array = SK_LookupArray(open, name);
            if (!array)
                return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
            if (idOut)
                *idOut = array->ID;
            SK_PutU32(r, SK_HDR_OPTION, option);
            SK_PutU32(r, manage::Subcode, subcode);
            SK_PutArrayReference(r, manage::Reference, *array);
            fill(r);
            return open.SK_ConfigWrite(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_MANAGE_ARRAY);
        });
}

// A task command started with `option` and without `noWait` returns when the task
// has ended.
std::uint32_t waitForStartedTask(const SK_CoreEntry *core, std::uint32_t status, std::uint64_t id,
                                 std::uint32_t noWait, std::uint32_t option)
{
    if (status != SK_STS_SUCCESS || option == 0 || noWait == 1 || id == 0)
        return status;
    return SK_ApiWaitForTask(core, id, kTaskPollDelayMs);
}

std::uint32_t startTask(const SK_CoreEntry *core, const char *name, const char *tag,
                        std::uint32_t subcode, std::uint32_t noWait, std::uint32_t option)
{
    std::uint64_t id = 0;
    const std::uint32_t status =
        manageArray(core, name, tag, subcode, option, &id, [&](std::uint8_t *r) {
            SK_PutU32(r, manage::Count, 0);
            if (noWait == 1)
                SK_PutU32(r, manage::Value, SK_MANAGE_NO_WAIT);
        });
    return waitForStartedTask(core, status, id, noWait, option);
}

// Drive letter request by route, for the array `find` picks on the fresh core.
template <class Find>
std::uint32_t driveLetter(const SK_CoreEntry *core, const char *tag, std::uint32_t number,
                          std::uint32_t letter, std::uint32_t flag, Find &&find)
{
    return SK_RunCommand(
        core, SK_PLAIN_REQUEST_SIZE, tag, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
            const SK_C_LogicalDevice *array = find(open);
            // The request travels through the route of the first member.
            if (!array || array->ElementCount == 0 || !array->Elements || !array->Elements[0])
                return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
            SK_PutU64(r, lettering::Id, array->ID);
            SK_PutU32(r, lettering::Number, number);
            SK_PutU32(r, lettering::Letter, letter);
            SK_PutU32(r, lettering::Flag, flag);
            return open.SK_ConfigWriteRoute(r, SK_PLAIN_REQUEST_SIZE, SK_CMD_DRIVE_LETTER,
                                            array->Elements[0]->CoreRoute);
        });
}

} // namespace

std::uint32_t SK_ApiWaitForTask(const SK_CoreEntry *core, std::uint64_t id, std::uint32_t delayMs)
{
    if (!core || id == 0)
        return SKTL_STS_INVALID_PARAMETER;
    SKTL_Sleep(delayMs);
    bool failed = false;
    for (;;) {
        {
            SKTL_LockGuard lock;
            SK_Core open(core->BusName, core->CoreName, 0);
            if (open.Handle == 0)
                return SK_STS_INVALID_CORE_HANDLE;
            const SK_C_LogicalDevice *array = SK_LookupArrayById(open, id);
            if (!array)
                break;
            if (array->TaskType == SK_TASK_NONE && array->PercentComplete == 0)
                break;
            if (array->TaskType == SK_TASK_TRANSFORM && array->TaskState == SK_TASK_STATE_FAILED) {
                failed = true;
                break;
            }
        }
        // Other commands run while this one sleeps.
        SKTL_Sleep(kTaskPollIntervalMs);
    }
    return failed ? static_cast<std::uint32_t>(SK_STS_TRANSFORM_FAILURE)
                  : static_cast<std::uint32_t>(SK_STS_SUCCESS);
}

std::uint32_t SK_ApiCheckLogicalDevice(const SK_CoreEntry *core, const char *name,
                                       std::uint32_t mode, std::uint32_t noWait,
                                       std::uint32_t option)
{
    return startTask(core, name, __func__, mode == 1 ? SK_MANAGE_CHECK_MODE1 : SK_MANAGE_CHECK,
                     noWait, option);
}

std::uint32_t SK_ApiCheckLogicalDeviceById(const SK_CoreEntry *core, std::uint64_t id,
                                           std::uint32_t mode, std::uint32_t noWait,
                                           std::uint32_t option)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    char name[SK_DEVICE_NAME_SIZE] = {};
    {
        SKTL_LockGuard lock;
        SK_Core open(core->BusName, core->CoreName, 0);
        if (open.Handle == 0)
            return SK_STS_INVALID_CORE_HANDLE;
        const SK_C_LogicalDevice *array = SK_LookupArrayById(open, id);
        if (!array)
            return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
        SK_CopyText(name, sizeof name, array->Name);
    }
    // Record names of devices below 10 end in a blank that a searched name must not have.
    const std::size_t length = std::strlen(name);
    if (length > 0 && name[length - 1] == ' ')
        name[length - 1] = '\0';
    return SK_ApiCheckLogicalDevice(core, name, mode, noWait, option);
}

std::uint32_t SK_ApiSecureEraseLogicalDevice(const SK_CoreEntry *core, const char *name,
                                             std::uint32_t noWait, std::uint32_t option)
{
    return startTask(core, name, __func__, SK_MANAGE_SECURE_ERASE, noWait, option);
}

std::uint32_t SK_ApiTaskControlLogicalDevice(const SK_CoreEntry *core, std::uint32_t action,
                                             std::uint32_t count, const SK_DeviceName *list,
                                             std::uint32_t all, std::uint32_t option)
{
    const std::uint32_t status = SK_CheckArrayListArguments(core, count, list, all);
    if (status != SK_STS_SUCCESS)
        return status;
    const SK_ArrayListShape shape{SK_CMD_TASK_CONTROL, task::Count, task::References, __func__};
    return SK_SendArrayList(core, count, list, all, option, shape, SK_AnyArray{},
                            [&](std::uint8_t *r) {
                                SK_PutU32(r, task::Action, action);
                                SK_PutU32(r, task::All, all);
                            });
}

std::uint32_t SK_ApiOfflineLogicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all,
                                         std::uint32_t option)
{
    const std::uint32_t status = SK_CheckArrayListArguments(core, count, list, all);
    if (status != SK_STS_SUCCESS)
        return status;
    const SK_ArrayListShape shape{SK_CMD_OFFLINE, offline::Count, offline::References, __func__};
    return SK_SendArrayList(core, count, list, all, option, shape, SK_AnyArray{},
                            [](std::uint8_t *) {});
}

std::uint32_t SK_ApiDriveLetter(const SK_CoreEntry *core, const char *name, std::uint32_t number,
                                std::uint32_t letter, std::uint32_t flag, std::uint32_t)
{
    if (!core || !name)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckArrayName(core, name);
    if (status != SK_STS_SUCCESS)
        return status;
    return driveLetter(core, __func__, number, letter, flag,
                       [name](const SK_Core &open) { return SK_LookupArray(open, name); });
}

std::uint32_t SK_ApiDriveLetterById(const SK_CoreEntry *core, std::uint64_t id,
                                    std::uint32_t number, std::uint32_t letter, std::uint32_t flag,
                                    std::uint32_t)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    return driveLetter(core, __func__, number, letter, flag,
                       [id](const SK_Core &open) { return SK_LookupArrayById(open, id); });
}

std::uint32_t SK_ApiManageDevicePrivateLogicalDevice(const SK_CoreEntry *core, const char *name,
                                                     const char *text, std::uint32_t length,
                                                     std::uint32_t option)
{
    if (!text)
        return SKTL_STS_INVALID_PARAMETER;
    const std::size_t kept = std::min<std::size_t>(length, strnlen(text, 32));
    return manageArray(core, name, __func__, SK_MANAGE_DISPLAY_NAME, option, nullptr,
                       [&](std::uint8_t *r) {
                           SK_PutU32(r, manage::Count, 0);
                           std::memcpy(r + manage::Text, text, kept);
                       });
}

std::uint32_t SK_SimpleManageLogicalDevice(const SK_CoreEntry *core, const char *name,
                                           std::uint32_t subcode, std::uint32_t value,
                                           std::uint32_t option)
{
    return manageArray(core, name, __func__, subcode, option, nullptr,
                       [&](std::uint8_t *r) { SK_PutU32(r, manage::Value, value); });
}

std::uint32_t SK_ApiManageLogicalDevice(const SK_CoreEntry *core, const char *name,
                                        std::uint32_t value, std::uint32_t option)
{
    return SK_SimpleManageLogicalDevice(core, name, SK_MANAGE_ATTRIBUTES, value, option);
}

std::uint32_t SK_ApiCacheLogicalDevice(const SK_CoreEntry *core, const char *name,
                                       std::uint32_t value, std::uint32_t option)
{
    return SK_SimpleManageLogicalDevice(core, name, SK_MANAGE_CACHE, value, option);
}

std::uint32_t SK_ApiPriorityLogicalDevice(const SK_CoreEntry *core, const char *name,
                                          std::uint32_t value, std::uint32_t option)
{
    return SK_SimpleManageLogicalDevice(core, name, SK_MANAGE_PRIORITY, value, option);
}

std::uint32_t SK_ApiRemoveSparesLogicalDevice(const SK_CoreEntry *core, const char *name,
                                              std::uint32_t option)
{
    return SK_SimpleManageLogicalDevice(core, name, SK_MANAGE_REMOVE_SPARES, 0, option);
}

std::uint32_t SK_CachePolicyWord(const char *word)
{
    if (word && std::strcmp(word, "NC") == 0)
        return 0;
    if (word && std::strcmp(word, "R") == 0)
        return SK_CACHE_READ;
    if (word && std::strcmp(word, "W") == 0)
        return SK_CACHE_WRITE;
    return SK_CACHE_READ | SK_CACHE_WRITE;
}

std::uint32_t SK_HiddenAttributeValue(std::uint32_t hidden)
{
    return (SK_ATTRIBUTE_HIDDEN << 16) | (hidden ? SK_ATTRIBUTE_HIDDEN : 0);
}

std::uint32_t SK_BackgroundScanValue(std::uint32_t state)
{
    return ((state ? 1u : 0u) + 0x10000u) << 10;
}
