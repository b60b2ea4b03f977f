#include "service/sk_raidapi.h"

#include "service/sk_applog.h"
#include "service/sk_service_state.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>

// The process-wide picture and channel table. The picture has static storage: views
// keep pointers into it, and a re-read overwrites its records in place.
namespace sk_service {

SK_ConfigSnapshot &picture()
{
    static SK_ConfigSnapshot snapshot{};
    return snapshot;
}

ChannelTable &channels()
{
    static ChannelTable table{};
    return table;
}

std::mutex &pictureMutex()
{
    static std::mutex mutex;
    return mutex;
}

// The new picture is read aside and copied in at once, so a worker building the array
// list never sees the counts cleared half way through a re-read, and a command on
// another thread never finds the channel table emptied.
void readConfiguration()
{
    ChannelTable table{};
    if (SK_ApiGetCoreList(table.cores, sizeof table.cores, &table.count) != SK_STS_SUCCESS)
        table.count = 0;
    auto fresh = std::make_unique<SK_ConfigSnapshot>();
    SK_ParseConfig(&table.cores[0], fresh.get(), 0, 0);

    std::lock_guard<std::mutex> lock(pictureMutex());
    channels() = table;
    std::memcpy(&picture(), fresh.get(), sizeof(SK_ConfigSnapshot));
}

bool textIs(const char *field, const char *word)
{
    return field && std::strcmp(field, word) == 0;
}

int memberCount(const SK_ConfigArray &layout)
{
    const long long n = static_cast<long long>(layout.FirstCount) * layout.SecondCount;
    return static_cast<int>(std::clamp<long long>(n, 0, SK_SNAPSHOT_MEMBERS));
}

int spareCount(const SK_ConfigArray &layout)
{
    return std::clamp<int>(layout.SpareCount, 0, SK_SNAPSHOT_SPARES);
}

} // namespace sk_service

using namespace sk_service;

namespace {

constexpr std::uint32_t kPortNvme = 0x80000000u;
constexpr std::uint32_t kPortFlash = 0x80000800u;
constexpr std::uint32_t kPortAdvancedTrim = 1u << 22;
constexpr std::uint32_t kPortSimpleTrim = 1u << 20;
constexpr std::uint32_t kPortHotSwap = 1u << 23;
constexpr std::uint32_t kFeatureSmart = 1u << 2;
constexpr std::uint32_t kAttributeHidden = 0x200;

int clampedCount(std::int32_t count, std::uint32_t capacity)
{
    return std::clamp<int>(count, 0, static_cast<int>(capacity));
}

bool isCoreEntry(const SK_ConfigDisk &disk)
{
    return textIs(disk.Type, "Core");
}

// Both layouts of the slot at `index`: the array itself and, during a transform, its
// destination.
int layoutsOf(int index, const SK_ConfigArray *out[2])
{
    const SK_ConfigArraySlot &slot = picture().Arrays[index];
    out[0] = &slot.Half[0];
    out[1] = slot.HalfCount >= 2 ? &slot.Half[1] : nullptr;
    return out[1] ? 2 : 1;
}

bool layoutHasDisk(const SK_ConfigArray &layout, int disk)
{
    const int n = memberCount(layout);
    for (int i = 0; i < n; ++i) {
        if (layout.Members[i].Device == disk)
            return true;
    }
    return false;
}

} // namespace

SK_RaidApi::SK_RaidApi(QObject *parent) : QObject(parent)
{
    readConfiguration();
}

SK_RaidApi::~SK_RaidApi() = default;

void SK_RaidApi::RefreshConfig()
{
    readConfiguration();
}

bool SK_RaidApi::Rescan()
{
    return SK_ApiRescan(Channel(), 0, 0) == SK_STS_SUCCESS;
}

void SK_RaidApi::SetLogPath(const QString &path)
{
    logPath = path;
    SK_AppLog::setFilePath(path);
}

const SK_CoreEntry *SK_RaidApi::Channel()
{
    return &channels().cores[0];
}

int SK_RaidApi::CoreCount()
{
    return static_cast<int>(channels().count);
}

// --- Lookups ---

int SK_RaidApi::GetDiskCount() const
{
    return picture().DiskCount;
}

int SK_RaidApi::GetArrayCount() const
{
    return picture().ArrayCount;
}

int SK_RaidApi::GetControllerCount() const
{
    return clampedCount(picture().ControllerCount, SK_SNAPSHOT_CONTROLLERS);
}

SK_ConfigController *SK_RaidApi::GetControllerRecord(int index) const
{
    if (index < 0 || index >= GetControllerCount())
        return nullptr;
    return &picture().Controllers[index];
}

SK_ConfigDisk *SK_RaidApi::GetDiskRecord(int index) const
{
    if (index < 0 || index >= clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS))
        return nullptr;
    return &picture().Disks[index];
}

SK_ConfigArray *SK_RaidApi::GetArrayByIndex(int index, bool first) const
{
    if (index < 0 || index >= clampedCount(picture().ArrayCount, SK_SNAPSHOT_ARRAYS))
        return nullptr;
    SK_ConfigArraySlot &slot = picture().Arrays[index];
    if (first)
        return &slot.Half[0];
    return slot.HalfCount >= 2 ? &slot.Half[1] : nullptr;
}

SK_ConfigArray *SK_RaidApi::GetArrayRecord(int id, bool first) const
{
    return GetArrayByIndex(GetArrayIndex(id), first);
}

// An empty table answers -1; a negative count answers 0, as the table walk it
// replaces did.
int SK_RaidApi::GetDiskIndex(int id) const
{
    const std::int32_t count = picture().DiskCount;
    if (count < 0)
        return 0;
    const int n = clampedCount(count, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        if (picture().Disks[i].Device == id)
            return i;
    }
    return -1;
}

// The usable disk test: locked disks, disks with a SMART error and anything that
// isn't a plain disk are never offered for an array.
int SK_RaidApi::GetValidDiskIndex(int id) const
{
    const int index = GetDiskIndex(id);
    const SK_ConfigDisk *disk = GetDiskRecord(index);
    if (!disk)
        return -1;
    if (textIs(disk->State, "Locked") || textIs(disk->State, "SMART_Error") ||
        textIs(disk->State, "SMART_error") || !textIs(disk->Type, "Disk"))
        return -1;
    return index;
}

int SK_RaidApi::GetArrayIndex(int id) const
{
    const int n = clampedCount(picture().ArrayCount, SK_SNAPSHOT_ARRAYS);
    for (int i = 0; i < n; ++i) {
        if (picture().Arrays[i].Half[0].Device == id)
            return i;
    }
    return -1;
}

int SK_RaidApi::GetDiskIdByPort(int controller, int channel) const
{
    const int n = clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        const SK_ConfigDisk &disk = picture().Disks[i];
        if (!isCoreEntry(disk) && disk.ControllerNumber == controller && disk.Channel == channel)
            return disk.Device;
    }
    return -1;
}

const char *SK_RaidApi::GetDiskNameById(quint64 deviceId) const
{
    const int n = clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        if (picture().Disks[i].DiskId == deviceId)
            return picture().Disks[i].Name;
    }
    return nullptr;
}

int SK_RaidApi::GetArrayIdByDeviceId(quint64 deviceId) const
{
    const int n = clampedCount(picture().ArrayCount, SK_SNAPSHOT_ARRAYS);
    for (int i = 0; i < n; ++i) {
        if (picture().Arrays[i].Half[0].ArrayId == deviceId)
            return picture().Arrays[i].Half[0].Device;
    }
    return -1;
}

QList<int> SK_RaidApi::GetDiskIds() const
{
    QList<int> ids;
    const int n = clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        if (!isCoreEntry(picture().Disks[i]))
            ids.append(picture().Disks[i].Device);
    }
    return ids;
}

QList<LogicalDrive *> SK_RaidApi::GetArrayList() const
{
    std::lock_guard<std::mutex> lock(pictureMutex());
    QList<LogicalDrive *> list;
    const int n = clampedCount(picture().ArrayCount, SK_SNAPSHOT_ARRAYS);
    for (int i = 0; i < n; ++i)
        list.append(&picture().Arrays[i].Half[0]);
    return list;
}

// --- Disk queries ---

namespace {

bool portBits(const SK_RaidApi &api, int disk, std::uint32_t mask, bool all = false)
{
    const SK_ConfigDisk *record = api.GetDiskRecord(api.GetDiskIndex(disk));
    if (!record)
        return false;
    return all ? (record->PortType & mask) == mask : (record->PortType & mask) != 0;
}

} // namespace

bool SK_RaidApi::IsNvmeDisk(int disk) const
{
    return portBits(*this, disk, kPortNvme);
}

bool SK_RaidApi::IsFlashDisk(int disk) const
{
    return portBits(*this, disk, kPortFlash);
}

bool SK_RaidApi::DiskHasAdvancedTrim(int disk) const
{
    return portBits(*this, disk, kPortAdvancedTrim);
}

bool SK_RaidApi::DiskHasSimpleTrim(int disk) const
{
    return portBits(*this, disk, kPortSimpleTrim);
}

bool SK_RaidApi::DiskHasHotSwap(int disk) const
{
    return portBits(*this, disk, kPortHotSwap);
}

bool SK_RaidApi::DiskSmartEnabled(int disk) const
{
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    return record && (record->Features & 0xff & kFeatureSmart) != 0;
}

bool SK_RaidApi::DiskIsGlobalSpare(int disk) const
{
    const int n = clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        const SK_ConfigDisk &record = picture().Disks[i];
        if (!isCoreEntry(record) && record.Device == disk && record.GlobalSpare != 0)
            return true;
    }
    return false;
}

bool SK_RaidApi::CapacityAtLeast(int id, quint64 megabytes) const
{
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(id));
    return record && record->Capacity * 512 / 1000000 >= megabytes;
}

// --- Membership and state ---

bool SK_RaidApi::IsMember(int array, int disk) const
{
    const int index = GetArrayIndex(array);
    if (index < 0)
        return false;
    const SK_ConfigArray *layouts[2];
    const int n = layoutsOf(index, layouts);
    for (int l = 0; l < n; ++l) {
        if (layoutHasDisk(*layouts[l], disk))
            return true;
    }
    return false;
}

int SK_RaidApi::DiskUseCount(int disk) const
{
    int uses = 0;
    for (const LogicalDrive *array : GetArrayList()) {
        if (IsMember(array->Device, disk))
            ++uses;
    }
    return uses;
}

bool SK_RaidApi::DiskIsDedicatedSpare(int disk) const
{
    if (GetValidDiskIndex(disk) < 0)
        return false;
    const int n = clampedCount(picture().ArrayCount, SK_SNAPSHOT_ARRAYS);
    for (int i = 0; i < n; ++i) {
        const SK_ConfigArray *layouts[2];
        const int count = layoutsOf(i, layouts);
        for (int l = 0; l < count; ++l) {
            for (int s = 0; s < spareCount(*layouts[l]); ++s) {
                if (layouts[l]->Spares[s].Device == disk)
                    return true;
            }
        }
    }
    return false;
}

bool SK_RaidApi::IsDedicatedSpareOf(int array, int disk) const
{
    const int index = GetArrayIndex(array);
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    if (index < 0 || !record)
        return false;
    const SK_ConfigArray *layouts[2];
    const int n = layoutsOf(index, layouts);
    for (int l = 0; l < n; ++l) {
        for (int s = 0; s < spareCount(*layouts[l]); ++s) {
            const SK_ConfigSpare &spare = layouts[l]->Spares[s];
            if (spare.Device == record->Device && spare.DiskId == record->DiskId)
                return true;
        }
    }
    return false;
}

bool SK_RaidApi::DiskIsInSystemArray(int disk) const
{
    for (const LogicalDrive *array : GetArrayList()) {
        if (IsMember(array->Device, disk) && ArrayIsSystem(array->Device))
            return true;
    }
    return false;
}

bool SK_RaidApi::DiskIsInRestore(int disk) const
{
    for (const LogicalDrive *array : GetArrayList()) {
        if (IsMember(array->Device, disk) && textIs(array->TransformType, "RESTORE"))
            return true;
    }
    return false;
}

bool SK_RaidApi::ElementIsFailed(int array, int disk) const
{
    const int index = GetArrayIndex(array);
    if (index < 0)
        return false;
    const SK_ConfigArray *layouts[2];
    const int n = layoutsOf(index, layouts);
    for (int l = 0; l < n; ++l) {
        for (int m = 0; m < memberCount(*layouts[l]); ++m) {
            const SK_ConfigMember &member = layouts[l]->Members[m];
            if (member.Device == disk && textIs(member.Error, "Fail"))
                return true;
        }
    }
    return false;
}

// A cache array counts as system when it holds the system volume through one of its
// member arrays, unless it only caches reads: then the member carries the data alone.
bool SK_RaidApi::ArrayIsSystem(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    if (!record)
        return false;
    if (HoldsSystemDrive(array))
        return true;
    if (!textIs(record->Type, "RAIDCACHE") || textIs(record->Cache, "R"))
        return false;
    for (int m = 0; m < memberCount(*record); ++m) {
        const int member = GetArrayIdByDeviceId(record->Members[m].DiskId);
        if (member >= 0 && HoldsSystemDrive(member))
            return true;
    }
    return false;
}

bool SK_RaidApi::ArrayHasTask(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    return record && !textIs(record->TransformType, "NOT_ACTIVE");
}

bool SK_RaidApi::ArrayIsHidden(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    return record && (record->Attributes & kAttributeHidden) != 0;
}

bool SK_RaidApi::ArrayIsChecking(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    return record && textIs(record->TransformType, "CHECK");
}

bool SK_RaidApi::ArrayIsNormal(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    return record && textIs(record->State, "NORMAL");
}

bool SK_RaidApi::TypeIsRedundant(const QString &type)
{
    static const QStringList redundant = {QStringLiteral("RAID1"),  QStringLiteral("RAID1N"),
                                          QStringLiteral("RAID10"), QStringLiteral("RAID10N"),
                                          QStringLiteral("RAID5"),  QStringLiteral("RAID50"),
                                          QStringLiteral("RAID6"),  QStringLiteral("RAID60")};
    return redundant.contains(type);
}

bool SK_RaidApi::ArrayIsRedundant(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    return record && TypeIsRedundant(SK_FieldText(record->Type));
}

bool SK_RaidApi::TypeIsNested(const QString &type)
{
    return type == QLatin1String("RAID10") || type == QLatin1String("RAID60") ||
           type == QLatin1String("RAID50") || type == QLatin1String("RAID10N");
}

bool SK_RaidApi::TypeIsPlain(const char *type)
{
    if (!type)
        return true;
    return !textIs(type, "RAIDTIER") && !textIs(type, "RAIDCACHE") && !textIs(type, "LEGACY") &&
           !textIs(type, "RAIDABLE");
}

bool SK_RaidApi::ArrayIsTierPart(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    if (!record)
        return false;
    for (const LogicalDrive *other : GetArrayList()) {
        if (!textIs(other->Type, "RAIDTIER") && !textIs(other->Type, "RAIDCACHE"))
            continue;
        for (int m = 0; m < memberCount(*other); ++m) {
            if (other->Members[m].DiskId == record->ArrayId)
                return true;
        }
    }
    return false;
}

namespace {

// Calls `visit` with the disk id of every element of every layout of the array.
template <typename Visit>
bool anyMemberDisk(int index, Visit visit)
{
    if (index < 0)
        return false;
    const SK_ConfigArray *layouts[2];
    const int n = layoutsOf(index, layouts);
    for (int l = 0; l < n; ++l) {
        for (int m = 0; m < memberCount(*layouts[l]); ++m) {
            if (visit(layouts[l]->Members[m]))
                return true;
        }
    }
    return false;
}

} // namespace

bool SK_RaidApi::ArrayHasSharedDisk(int array) const
{
    return anyMemberDisk(GetArrayIndex(array), [this](const SK_ConfigMember &member) {
        return DiskUseCount(member.Device) >= 2;
    });
}

bool SK_RaidApi::ArrayUsesSystemDisk(int array) const
{
    return anyMemberDisk(GetArrayIndex(array), [this](const SK_ConfigMember &member) {
        return DiskIsInSystemArray(member.Device);
    });
}

// The disk's size is taken in decimal megabytes and the members' in binary ones: a
// spare is accepted a little smaller than the smallest member. Kept as the drivers'
// own tools judge it.
bool SK_RaidApi::DiskFitsAsSpare(int array, int disk) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    const SK_ConfigDisk *candidate = GetDiskRecord(GetDiskIndex(disk));
    if (!record || !candidate)
        return false;
    if (spareCount(*record) > 3 || DiskIsGlobalSpare(disk) || record->SecondCount < 2)
        return false;
    return candidate->Capacity * 512 / 1000000 >= SmallestMemberMB(GetArrayIndex(array));
}

quint64 SK_RaidApi::SmallestMemberMB(int index) const
{
    quint64 smallest = 0;
    bool found = false;
    anyMemberDisk(index, [&](const SK_ConfigMember &member) {
        if (std::strncmp(member.Error, "Fail", 4) == 0)
            return false;
        const SK_ConfigDisk *disk = GetDiskRecord(GetValidDiskIndex(member.Device));
        if (!disk)
            return false;
        if (!found || disk->Capacity < smallest)
            smallest = disk->Capacity;
        found = true;
        return false;
    });
    return found ? smallest * 512 / (1024 * 1024) : 0;
}

// The array behind a tier or cache array that carries the volumes: the second
// element first (the cold side), then the first.
int SK_RaidApi::TierMemberLookup(int index) const
{
    const SK_ConfigArray *record = GetArrayByIndex(index, true);
    if (!record)
        return -1;
    int lastTried = -1;
    for (int element : {1, 0}) {
        if (element >= memberCount(*record))
            continue;
        lastTried = GetArrayIdByDeviceId(record->Members[element].DiskId);
        if (lastTried >= 0 && !DriveLetters(lastTried).isEmpty())
            return lastTried;
    }
    return lastTried;
}

bool SK_RaidApi::DiskCanBeInitialized(int disk, bool onlyType) const
{
    const SK_ConfigDisk *record = GetDiskRecord(GetDiskIndex(disk));
    if (!record)
        return false;
    if (onlyType && !textIs(record->Type, "Disk"))
        return false;
    if (isCoreEntry(*record))
        return false;
    for (const LogicalDrive *array : GetArrayList()) {
        if (!IsMember(array->Device, disk))
            continue;
        if (textIs(array->Type, "LEGACY")) {
            if (ArrayIsSystem(array->Device))
                return false;
        } else if (!ElementIsFailed(array->Device, disk)) {
            return false;
        }
    }
    return true;
}

bool SK_RaidApi::AnyDiskCanBeInitialized(bool onlyType) const
{
    const int n = clampedCount(picture().DiskCount, SK_SNAPSHOT_DISKS);
    for (int i = 0; i < n; ++i) {
        if (DiskCanBeInitialized(picture().Disks[i].Device, onlyType))
            return true;
    }
    return false;
}

bool SK_RaidApi::CanRemoveDisk(int disk) const
{
    if (!GetDiskRecord(GetDiskIndex(disk)))
        return false;
    if (DiskIsInSystemArray(disk) || DiskIsDedicatedSpare(disk) || DiskIsInRestore(disk))
        return false;
    return DiskHasHotSwap(disk);
}

bool SK_RaidApi::ArrayIsBigger(int a, int b) const
{
    const SK_ConfigArray *first = GetArrayRecord(a, true);
    const SK_ConfigArray *second = GetArrayRecord(b, true);
    return first && second && first->Capacity > second->Capacity;
}

bool SK_RaidApi::IsAdministrator() const
{
    return SK_CurrentPlatform().system().isElevated();
}

bool SK_RaidApi::DriverIsLoaded(const QString &file) const
{
    std::vector<std::string> drivers;
    if (!SK_CurrentPlatform().system().loadedDrivers(drivers))
        return false;
    // Exactly, case included: a module's base name is compared as the system lists it.
    return std::any_of(drivers.begin(), drivers.end(), [&file](const std::string &name) {
        return QString::fromStdString(name) == file;
    });
}

QString SK_RaidApi::ComputerName() const
{
    return QString::fromStdString(SK_CurrentPlatform().system().computerName());
}

QString SK_RaidApi::OsDiskNumber(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    if (!record)
        return QString();
    std::uint32_t diskNumber = 0;
    if (SK_CurrentPlatform().system().findOsDiskNumber(channels().cores[0].CoreNumber,
                                                       static_cast<std::uint32_t>(record->Device),
                                                       diskNumber) != SK_STS_SUCCESS)
        return QString();
    return QString::number(diskNumber);
}

bool SK_RaidApi::IsProcessRunning(const QString &imageName) const
{
    return SK_CurrentPlatform().system().isProcessRunning(imageName.toStdString());
}
