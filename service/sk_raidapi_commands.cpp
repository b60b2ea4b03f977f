// The commands of SK_RaidApi: each finds its array or disk in the picture, refuses
// what its rules forbid without sending anything, and reduces the driver's status to
// a yes or no. The caller has its own words for a refusal.

#include "service/sk_raidapi.h"
#include "service/sk_service_state.h"

#include <algorithm>

#include <memory>
#include <vector>

using namespace sk_service;

namespace {

bool succeeded(std::uint32_t status)
{
    return status == SK_STS_SUCCESS;
}

// A device list of one name.
struct OneName
{
    explicit OneName(const char *name) { SK_CopyText(list[0], sizeof list[0], name); }
    SK_DeviceName list[1];
};

// The spare refusal shared by both assign commands: a disk that is a dedicated spare
// of any array. The loop counter stands in for the array id here, so arrays are
// looked at by the numbers 0 up to the array count; the drivers' own tools judge
// spares that way and the console follows them.
bool sparesOfCounterArrays(const SK_RaidApi &api, int disk)
{
    for (int i = 0; i < api.GetArrayCount(); ++i) {
        if (api.IsDedicatedSpareOf(i, disk))
            return true;
    }
    return false;
}

std::uint32_t cachePolicyWord(const QString &cacheText)
{
    return SK_CachePolicyWord(cacheText.toLatin1().constData());
}

} // namespace

// --- Spares ---

bool SK_RaidApi::AssignGlobalSpare(int disk)
{
    const SK_ConfigDisk *record = GetDiskRecord(GetValidDiskIndex(disk));
    if (!record || DiskIsGlobalSpare(disk) || DiskUseCount(disk) >= 1 ||
        sparesOfCounterArrays(*this, disk))
        return false;
    OneName name(record->Name);
    return succeeded(SK_ApiManageSpare(Channel(), nullptr, 1, name.list, 1, 1, 1));
}

bool SK_RaidApi::RemoveGlobalSpare(int disk)
{
    if (!DiskIsGlobalSpare(disk))
        return false;
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    if (!record)
        return false;
    OneName name(record->Name);
    return succeeded(SK_ApiManageSpare(Channel(), nullptr, 1, name.list, 0, 1, 1));
}

bool SK_RaidApi::AssignDedicatedSpare(int array, int disk)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    const SK_ConfigDisk *record = GetDiskRecord(GetValidDiskIndex(disk));
    if (!target || !record || DiskUseCount(disk) >= 1 || spareCount(*target) >= 4 ||
        !ArrayIsRedundant(array) || sparesOfCounterArrays(*this, disk) ||
        !DiskFitsAsSpare(array, disk))
        return false;
    OneName name(record->Name);
    return succeeded(SK_ApiManageSpare(Channel(), target->Name, 1, name.list, 1, 0, 1));
}

bool SK_RaidApi::RemoveDedicatedSpare(int array, int disk)
{
    if (!IsDedicatedSpareOf(array, disk) || ArrayHasTask(array))
        return false;
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    OneName name(record->Name);
    return succeeded(SK_ApiManageSpare(Channel(), target->Name, 1, name.list, 0, 0, 1));
}

bool SK_RaidApi::RemoveArraySpares(int array)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target)
        return false;
    return succeeded(SK_ApiRemoveSparesLogicalDevice(Channel(), target->Name, 1));
}

// --- Array life ---

// Legacy and foreign arrays carry their own metadata on the first member disk; it is
// cleared before the driver forgets the array.
bool SK_RaidApi::DeleteArray(int id)
{
    RefreshConfig();
    const SK_ConfigArray *target = GetArrayRecord(id, true);
    if (!target || ArrayIsSystem(id) || target->ReferenceCount != 0)
        return false;
    bool anyDone = false;
    if ((textIs(target->Type, "LEGACY") || textIs(target->Type, "PROMISE")) &&
        memberCount(*target) > 0) {
        const SK_ConfigDisk *disk = GetDiskRecord(GetDiskIndex(target->Members[0].Device));
        if (disk) {
            OneName name(disk->Name);
            anyDone = succeeded(SK_ApiInitializePhysicalDevice(Channel(), 1, name.list, 0, 0, 0));
        }
    }
    OneName name(target->Name);
    const bool deleted = succeeded(SK_ApiDeleteLogicalDevice(Channel(), 1, name.list, 0, 0, 0));
    return anyDone || deleted;
}

bool SK_RaidApi::HideArray(int id)
{
    RefreshConfig();
    const SK_ConfigArray *target = GetArrayRecord(id, true);
    if (!target || ArrayIsSystem(id) || target->ReferenceCount != 0 || ArrayIsHidden(id) ||
        ArrayHasTask(id))
        return false;
    return succeeded(
        SK_ApiManageLogicalDevice(Channel(), target->Name, SK_HiddenAttributeValue(1), 0));
}

bool SK_RaidApi::UnhideArray(int id)
{
    RefreshConfig();
    const SK_ConfigArray *target = GetArrayRecord(id, true);
    if (!target || target->ReferenceCount != 0 || !ArrayIsHidden(id) || ArrayHasTask(id))
        return false;
    if (!succeeded(
            SK_ApiManageLogicalDevice(Channel(), target->Name, SK_HiddenAttributeValue(0), 0)))
        return false;
    // The operating system sees the array's disk only after the driver looked again.
    SK_ApiRescan(Channel(), 0, 0);
    return true;
}

// The array is hidden first so no volume of it stays mounted while it is overwritten.
bool SK_RaidApi::SecureEraseArray(int id)
{
    RefreshConfig();
    const SK_ConfigArray *target = GetArrayRecord(id, true);
    if (!target || ArrayIsSystem(id) || target->ReferenceCount != 0)
        return false;
    char name[SK_DEVICE_NAME_SIZE];
    SK_CopyText(name, sizeof name, target->Name);
    HideArray(id);
    return succeeded(SK_ApiSecureEraseLogicalDevice(Channel(), name, 1, 0));
}

// The driver stores the display name as bytes of the system's 8-bit code page.
bool SK_RaidApi::RenameArray(int array, const QString &name)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target || ArrayHasTask(array))
        return false;
    const QByteArray text = name.toLocal8Bit();
    return succeeded(SK_ApiManageDevicePrivateLogicalDevice(
        Channel(), target->Name, text.constData(), static_cast<std::uint32_t>(text.size()), 0));
}

bool SK_RaidApi::SetArrayCache(int array, const QString &cacheText)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target || ArrayHasTask(array))
        return false;
    return succeeded(
        SK_ApiCacheLogicalDevice(Channel(), target->Name, cachePolicyWord(cacheText), 0));
}

// The check goes out whatever the picture says; only the answer looks at it.
bool SK_RaidApi::CheckArray(int id)
{
    const SK_ConfigArray *target = GetArrayRecord(id, true);
    const bool known = target != nullptr;
    const bool busy = ArrayHasTask(id);
    char name[SK_DEVICE_NAME_SIZE] = {};
    if (target)
        SK_CopyText(name, sizeof name, target->Name);
    const std::uint32_t status = SK_ApiCheckLogicalDevice(Channel(), name, 0, 1, 0);
    return succeeded(status) && known && !busy;
}

bool SK_RaidApi::ConsistencyCheck(int array, bool stop)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target)
        return false;
    return succeeded(SK_ApiCheckLogicalDevice(Channel(), target->Name, stop ? 1 : 0, 1, 0));
}

bool SK_RaidApi::SetBackgroundScan(int array, bool on)
{
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target)
        return false;
    return succeeded(
        SK_ApiManageLogicalDevice(Channel(), target->Name, SK_BackgroundScanValue(on ? 1 : 0), 0));
}

// --- Tasks ---

bool SK_RaidApi::TaskControl(int array, const QString &action)
{
    std::uint32_t code = 0;
    if (action == QLatin1String("pause"))
        code = SK_TASK_ACTION_PAUSE;
    else if (action == QLatin1String("resume"))
        code = SK_TASK_ACTION_RESUME;
    else if (action == QLatin1String("remove"))
        code = SK_TASK_ACTION_REMOVE;
    else
        return false;
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target || !ArrayHasTask(array))
        return false;
    const bool paused = textIs(target->TransformState, "PAUSED");
    if ((code == SK_TASK_ACTION_PAUSE && paused) || (code == SK_TASK_ACTION_RESUME && !paused))
        return false;
    // A transform can't be dropped halfway: the data lies in two layouts.
    if (code == SK_TASK_ACTION_REMOVE && textIs(target->TransformType, "TRANSFORM"))
        return false;
    OneName name(target->Name);
    return succeeded(SK_ApiTaskControlLogicalDevice(Channel(), code, 1, name.list, 0, 0));
}

// The user's scale runs the other way round from the driver's: level 1 is the
// highest priority, 99 percent, and level 10 the lowest, 1 percent.
bool SK_RaidApi::SetTaskPriority(int array, int level)
{
    // The task may have ended while the priority dialog was open.
    RefreshConfig();
    const SK_ConfigArray *target = GetArrayRecord(array, true);
    if (!target || !ArrayHasTask(array))
        return false;
    int percent = 110 - level * 10;
    if (percent == 100)
        percent = 99;
    if (percent <= 10)
        percent = 1;
    return succeeded(SK_ApiPriorityLogicalDevice(Channel(), target->Name,
                                                 static_cast<std::uint32_t>(percent), 0));
}

int SK_RaidApi::TaskPriorityLevel(int percent)
{
    if (percent < 10)
        return 10;
    const int capped = percent > 90 ? 100 : percent;
    return 11 - capped / 10;
}

// --- Disks ---

namespace {

// Why a disk may not be initialised: it carries data of a system legacy array, or of
// a healthy member of any other array.
bool initialiseRefused(const SK_RaidApi &api, int disk)
{
    const SK_ConfigDisk *record = api.GetDiskRecord(api.GetDiskIndex(disk));
    if (!record || textIs(record->Type, "Core"))
        return true;
    for (const LogicalDrive *array : api.GetArrayList()) {
        if (!api.IsMember(array->Device, disk))
            continue;
        if (textIs(array->Type, "LEGACY") ? api.ArrayIsSystem(array->Device)
                                          : !api.ElementIsFailed(array->Device, disk))
            return true;
    }
    return false;
}

} // namespace

bool SK_RaidApi::InitializeDisks(const SK_InitDisks &disks)
{
    bool anyDone = false;
    const int count = std::clamp<int>(disks.diskCount, 0, SK_MAX_LIST_DISKS);
    for (int i = 0; i < count; ++i) {
        const int disk = static_cast<int>(disks.disks[i]);
        if (initialiseRefused(*this, disk))
            continue;
        OneName name(GetDiskRecord(GetDiskIndex(disk))->Name);
        if (succeeded(
                SK_ApiInitializePhysicalDevice(Channel(), 1, name.list, 0, disks.clearMetadata, 0)))
            anyDone = true;
    }
    // Cleared metadata makes former members look like new disks: let the driver see them.
    if (anyDone && disks.clearMetadata)
        SK_ApiRescan(Channel(), 0, 0);
    return anyDone;
}

// NVMe drives keep their own cache settings; the request goes only to the others.
bool SK_RaidApi::ManageDiskCache(const SK_DiskManage &disks)
{
    bool lastSucceeded = false;
    const int count = std::clamp<int>(disks.diskCount, 0, SK_MAX_LIST_DISKS);
    for (int i = 0; i < count; ++i) {
        const int disk = static_cast<int>(disks.disks[i]);
        const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
        if (!record || textIs(record->Type, "Core") || IsNvmeDisk(disk))
            continue;
        OneName name(record->Name);
        std::vector<std::uint32_t> subcodes;
        if (disks.readOn)
            subcodes.push_back(SK_DISK_READ_AHEAD_ON);
        if (disks.readOff)
            subcodes.push_back(SK_DISK_READ_AHEAD_OFF);
        if (disks.writeOn)
            subcodes.push_back(SK_DISK_WRITE_CACHE_ON);
        if (disks.writeOff)
            subcodes.push_back(SK_DISK_WRITE_CACHE_OFF);
        for (std::uint32_t subcode : subcodes)
            lastSucceeded =
                succeeded(SK_ApiManagePhysicalDevice(Channel(), 1, name.list, 0, subcode, 0));
    }
    return lastSucceeded;
}

// A negative count only rescans; an empty list does nothing. A disk the picture no
// longer holds ends the command before the rescan. The drivers' answers to the sends
// aren't looked at: the rescan's answer is the result.
bool SK_RaidApi::ManageDiskSmart(const SK_DiskManage &disks)
{
    if (disks.diskCount == 0)
        return false;
    const int count = std::min<int>(disks.diskCount, SK_MAX_LIST_DISKS);
    for (int i = 0; i < count; ++i) {
        const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(static_cast<int>(disks.disks[i])));
        if (!record || textIs(record->Type, "Core"))
            return false;
        OneName name(record->Name);
        SK_ApiManagePhysicalDevice(
            Channel(), 1, name.list, 0,
            disks.smartOn ? SK_DISK_SMART_POLLING_ON : SK_DISK_SMART_POLLING_OFF, 0);
    }
    // The polling state shows in the disk's features only after the driver looked again.
    return Rescan();
}

bool SK_RaidApi::BlinkDisk(int disk, bool on)
{
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    if (!record || textIs(record->Type, "Core"))
        return false;
    OneName name(record->Name);
    return succeeded(SK_ApiManagePhysicalDevice(
        Channel(), 1, name.list, 0, on ? SK_DISK_IDENTIFY_ON : SK_DISK_IDENTIFY_OFF, 0));
}

// All member disks light up together: one request names the whole list of the last
// layout, the one the array is heading for during a transform.
bool SK_RaidApi::BlinkArray(int array, bool on, int pattern)
{
    const SK_ConfigArray *layout = GetArrayRecord(array, false);
    if (!layout)
        layout = GetArrayRecord(array, true);
    if (!layout)
        return false;
    const int members = memberCount(*layout);
    std::unique_ptr<SK_DeviceName[]> names(new SK_DeviceName[std::max(members, 1)]());
    std::uint32_t count = 0;
    for (int m = 0; m < members; ++m) {
        const SK_ConfigDisk *disk = GetDiskRecord(GetDiskIndex(layout->Members[m].Device));
        if (disk)
            SK_CopyText(names[count++], sizeof(SK_DeviceName), disk->Name);
    }
    std::uint32_t subcode = SK_DISK_IDENTIFY_OFF;
    if (on)
        subcode = pattern != 0 ? SK_DISK_LED_STATE_BASE + static_cast<std::uint32_t>(pattern)
                               : SK_DISK_IDENTIFY_ON;
    return succeeded(
        SK_ApiDirectManagePhysicalDevice(Channel(), count, names.get(), 0, subcode, 0));
}

bool SK_RaidApi::PrepareDiskRemoval(int disk)
{
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    if (!record || !DiskHasHotSwap(disk))
        return false;
    OneName name(record->Name);
    return succeeded(
        SK_ApiManagePhysicalDevice(Channel(), 1, name.list, 0, SK_DISK_PREPARE_REMOVAL, 0));
}
