// Create planning: the one place where a create request is judged and carried out.
// The create dialog runs the very same judgement in query mode while the user edits,
// so what it shows is what the commit will say.

#include "service/sk_planning.h"
#include "service/sk_service_state.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace sk_service;

// The texts keep the option words of the drivers' command line tool and its repeats:
// the verdict numbers index them, so rows nothing raises stay in place.
const QList<QString> createErrorList = withNewlines({
    "create would exceed maximum number of arrays allowed",
    "create size must be at least 100MB",
    "--no-sync and --zero options can't both be specified",
    "--leave-existing-data and --zero options can not be specified at the same time",
    "no disks were selected",
    "--spare-disk option not available for selected RAID type",
    "--priority option not available for selected RAID type",
    "--d-spare option not available for selected RAID type",
    "--sub-member option not available for selected RAID type",
    "--no-sync option not available for selected RAID type",
    "VOLUME is limited to 8 drives",
    "--disk must be one for RAIDAble",
    "--more than one disk selected, only one disk may be selected for RAIDAble",
    "RAID0 requires at least 2 to 8 drives",
    "RAID1 requires 2 drives",
    "RAID1n requires 3 or more drives",
    "RAID1n is limited to 8 drives",
    "--d-spare option requires at least 6 disks for RAID10",
    "RAID10 must have an even number of 4 to 8 disks",
    "an even number of disks must be supplied for this RAID type",
    "--d-spare option requires at least 9 disks for RAID10n",
    "RAID10n requires a minimum of 6 disks",
    "number of disks not evenly divisible by sub count",
    "sub-member must be 2 or greater for RAID10n",
    "--d-spare option requires at least 4 disks for RAID5",
    "RAID5 requires at least 3 drives",
    "RAID5 is limited to 8 drives",
    "RAID5 allows a maximum of 8 drives",
    "You cannot select physical drives for RTIER",
    "You must select 2 VDs for RTIER",
    "--d-spare option requires at least 5 disks for RAID6",
    "RAID6 requires at least 4 drives",
    "RAID6 is limited to 8 drives",
    "RAID6 allows a maximum of 16 drives",
    "--d-spare option requires at least 8 disks for RAID50",
    "must select at least 6 drives for a RAID50",
    "--sub-member must be 3 or greater for RAID50",
    "number of disks not evenly divisible by sub count",
    "--d-spare option requires at least 10 disks for RAID60",
    "must select at least 8 drives for a RAID60",
    "--sub-member must be 4 or greater for RAID60",
    "error, no RAID type specified",
    "a disk selected not present or valid",
    "The create failed because one of the drives is displaying SMART errors",
    "Support for the selected raid level is disabled",
    "error determining maximum possible size, check arguments",
    "create size exceeds maximum possible size",
    "create operation failed",
});

namespace {

using namespace SK_CreateVerdict;

constexpr int kMaxArraysBeforeCreate = 11;
constexpr qint32 kSmallestSize = 100;
constexpr qint32 kQuerySize = 101;

// The count tests of each type, in the order the verdicts must come. 0: the count is
// fine. The nested levels and tiers have no create path here and always end in a
// verdict.
int countVerdict(const QString &type, int n, bool skipInit)
{
    if (type == QLatin1String("RTIER"))
        return n != 0 ? TierWithDisks : TierWithoutArrays;
    // "LEGACY" is no such word here: legacy arrays come from elsewhere.
    static const QStringList known = {
        QStringLiteral("VOLUME"),  QStringLiteral("RAIDABLE"), QStringLiteral("RAID0"),
        QStringLiteral("RAID1"),   QStringLiteral("RAID1N"),   QStringLiteral("RAID10"),
        QStringLiteral("RAID10N"), QStringLiteral("RAID5"),    QStringLiteral("RAID6"),
        QStringLiteral("RAID50"),  QStringLiteral("RAID60")};
    if (!known.contains(type))
        return NoType;
    if (n == 0)
        return NoDisks;
    if (type == QLatin1String("VOLUME")) {
        if (skipInit)
            return SkipInitNotAvailable;
        return n > 8 ? VolumeTooMany : 0;
    }
    if (type == QLatin1String("RAIDABLE")) {
        if (n > 1)
            return RaidableNotOne;
        return skipInit ? SkipInitNotAvailable : 0;
    }
    if (type == QLatin1String("RAID0")) {
        if (skipInit)
            return SkipInitNotAvailable;
        return n < 2 || n > 8 ? Raid0Count : 0;
    }
    if (type == QLatin1String("RAID1"))
        return n != 2 ? Raid1Count : 0;
    if (type == QLatin1String("RAID1N"))
        return n < 3 ? Raid1nTooFew : n > 8 ? Raid1nTooMany : 0;
    if (type == QLatin1String("RAID10"))
        return n < 4 || n % 2 != 0 || n > 8 ? Raid10Count : 0;
    if (type == QLatin1String("RAID10N"))
        return n < 6 ? Raid10nTooFew : Raid10nSubCount;
    if (type == QLatin1String("RAID5"))
        return n < 3 ? Raid5TooFew : n > 8 ? Raid5TooMany : 0;
    if (type == QLatin1String("RAID6"))
        return n < 4 ? Raid6TooFew : n > 8 ? Raid6TooMany : 0;
    if (type == QLatin1String("RAID50"))
        return n < 6 ? Raid50TooFew : Raid50SubMember;
    // RAID60 with enough disks answers with the plain "--sub-member option not
    // available" row rather than its own "must be 4 or greater" row; kept as the
    // drivers' tool answers it.
    return n < 8 ? Raid60TooFew : SubMemberNotAvailable;
}

int infoVerdict(std::uint32_t status)
{
    if (status == SK_STS_DEVICE_SMART_ERROR)
        return SmartErrors;
    if (status == SK_STS_UNSUPPORT_FEATURE_SET)
        return LevelDisabled;
    return NoMaximum;
}

enum class DiskClass { Hdd, SataSsd, Nvme };

DiskClass classOf(const SK_RaidApi &api, int disk)
{
    const SK_ConfigDisk *record = api.GetDiskRecord(api.GetDiskIndex(disk));
    if (!record)
        return DiskClass::Hdd;
    if (record->PortType & 0x80000000u)
        return DiskClass::Nvme;
    if (record->PortType & 0x800u)
        return DiskClass::SataSsd;
    return DiskClass::Hdd;
}

// Trim as the array's type needs it: striped and single disk arrays need the simple
// kind, mirrors the advanced one, parity arrays never report it.
bool trimFor(const SK_RaidApi &api, const char *type, const QList<int> &disks)
{
    std::uint32_t bit = 0;
    if (textIs(type, "VOLUME") || textIs(type, "RAIDABLE") || textIs(type, "LEGACY") ||
        textIs(type, "RAID0"))
        bit = 1u << 20;
    else if (textIs(type, "RAID1") || textIs(type, "RAID10"))
        bit = 1u << 22;
    else
        return false;
    return std::all_of(disks.begin(), disks.end(), [&](int disk) {
        const SK_ConfigDisk *record = api.GetDiskRecord(api.GetDiskIndex(disk));
        return record && (record->PortType & bit) != 0;
    });
}

QList<int> diskList(const SK_Create &params)
{
    QList<int> disks;
    const int n = std::clamp<int>(params.diskCount, 0, SK_MAX_LIST_DISKS);
    for (int i = 0; i < n; ++i)
        disks.append(static_cast<int>(params.disks[i]));
    return disks;
}

} // namespace

namespace sk_service {

bool fillDiskSlots(const SK_RaidApi &api, const SK_Create &params, DiskSlots &names)
{
    std::memset(&names, 0, sizeof names);
    const int n = std::clamp<int>(params.diskCount, 0, SK_MAX_LIST_DISKS);
    for (int i = 0; i < n; ++i) {
        const SK_ConfigDisk *disk =
            api.GetDiskRecord(api.GetValidDiskIndex(static_cast<int>(params.disks[i])));
        if (!disk)
            return false;
        SK_CopyText(names.drives[i], sizeof names.drives[i], disk->Name);
    }
    return true;
}

} // namespace sk_service

// --- Tables and conversions ---

bool SK_RaidApi::CreateShape(const QString &type, int diskCount, SK_CreateShape &shape)
{
    const auto n = static_cast<quint32>(diskCount);
    struct Row
    {
        const char *type;
        quint32 driverType, first, second;
        bool skipInit;
    };
    // 0 in a count stands for "the number of disks", 0xFFFF for half of it.
    constexpr quint32 all = 0, half = 0xFFFF;
    static const Row rows[] = {
        {"VOLUME", 7159, all, 1, false}, {"RAIDABLE", 7163, 1, 1, false},
        {"RAID0", 7158, all, 1, false},  {"RAID1", 7158, 1, 2, true},
        {"RAID1N", 7158, 1, all, true},  {"RAID10", 7158, half, 2, true},
        {"RAID5", 7157, 1, all, true},   {"RAID6", 7162, 1, all, true},
    };
    auto count = [n](quint32 value) { return value == all ? n : value == half ? n / 2 : value; };
    for (const Row &row : rows) {
        if (type == QLatin1String(row.type)) {
            shape =
                SK_CreateShape{row.driverType, count(row.first), count(row.second), row.skipInit};
            return true;
        }
    }
    return false;
}

quint32 SK_RaidApi::CacheWord(const QString &cache)
{
    if (cache == QLatin1String("NC"))
        return 0;
    if (cache == QLatin1String("R"))
        return kCacheRead;
    if (cache == QLatin1String("W"))
        return kCacheWrite;
    return kCacheRead | kCacheWrite;
}

qint32 SK_RaidApi::CacheTagSizeOfRow(int row)
{
    static const qint32 sizes[] = {0, 64, 128, 256};
    return row >= 0 && row < 4 ? sizes[row] : 0;
}

// The multiplication happens in single precision, as the drivers' tools do it: sizes
// above 2^24 megabytes lose their low bits here.
quint64 SK_RaidApi::ToBinaryMB(qint32 decimalMB)
{
    const float bytes = static_cast<float>(decimalMB) * 1000000.0f;
    return static_cast<quint64>(static_cast<double>(bytes) * std::ldexp(1.0, -20) + 0.5);
}

int SK_RaidApi::ToDecimalMB(quint64 binaryMB)
{
    const float bytes = static_cast<float>(binaryMB) * 1048576.0f;
    return static_cast<int>(static_cast<quint64>(static_cast<double>(bytes) / 1000000.0 + 0.5));
}

// --- The create ---

int SK_RaidApi::CreateArray(SK_Create params, bool queryMaxOnly)
{
    const QByteArray localName = params.name.toLocal8Bit();
    RefreshConfig();
    // The limit holds in query mode too, so the dialog shows it as soon as it opens.
    if (GetArrayCount() > kMaxArraysBeforeCreate)
        return TooManyArrays;
    const qint32 wanted = queryMaxOnly ? kQuerySize : params.size;
    if (wanted < kSmallestSize)
        return SizeTooSmall;
    const quint64 wantedMiB = ToBinaryMB(wanted);
    const quint32 cacheWord = CacheWord(params.cache);
    quint32 flags = (params.leaveData ? kCreateLeaveData : 0) |
                    (params.zeroCreate ? kCreateZero : 0) |
                    (params.backgroundScan ? kCreateBackgroundScan : 0);
    if (params.skipInit && params.zeroCreate)
        return SkipInitWithZero;
    if (params.leaveData && params.zeroCreate)
        return LeaveDataWithZero;

    const int n = params.diskCount;
    if (const int verdict = countVerdict(params.type, n, params.skipInit); verdict != 0)
        return verdict;
    SK_CreateShape shape;
    CreateShape(params.type, n, shape);
    if (params.skipInit && shape.takesSkipInit)
        flags |= kCreateSkipInit;

    DiskSlots names;
    if (!fillDiskSlots(*this, params, names))
        return DiskNotUsable;

    std::uint8_t info[SK_CREATE_INFO_SIZE] = {};
    const std::uint32_t status =
        SK_ApiGetCreateInfo(Channel(), shape.driverType, static_cast<std::uint32_t>(n), 0, 0,
                            static_cast<std::uint32_t>(params.cacheTagSize), 0, 0, shape.first,
                            shape.second, names.drives, names.spares, 0, 0, 0, 0, 1, info);
    if (status != SK_STS_SUCCESS)
        return infoVerdict(status);
    const quint64 maxMiB = SK_GetU64(info, SK_CREATE_INFO_MAX_MIB);
    if (queryMaxOnly)
        return ToDecimalMB(maxMiB);

    // An oversized request is clamped, never refused: refusing is the dialog's part.
    const quint64 size = std::min(wantedMiB, maxMiB);
    const std::uint32_t created = SK_ApiCreateLogicalDevice(
        Channel(), shape.driverType, static_cast<std::uint32_t>(n), 0, cacheWord,
        static_cast<std::uint32_t>(params.cacheTagSize), flags, size, shape.first, shape.second,
        names.drives, names.spares, localName.constData(),
        static_cast<std::uint32_t>(localName.size()), 0, 0, 0, 0, 0, nullptr);
    return created == SK_STS_SUCCESS ? 1 : 0;
}

// --- The dialogs' own tests ---

bool SK_RaidApi::IsValidArrayName(const QString &name) const
{
    static const QString forbidden = QStringLiteral("()^,.=|\"-[]");
    if (std::any_of(forbidden.begin(), forbidden.end(),
                    [&name](QChar c) { return name.contains(c); }))
        return false;
    // "NONE" stands for no name at all and may be used many times.
    if (name == QLatin1String("NONE"))
        return true;
    const QList<LogicalDrive *> arrays = GetArrayList();
    return std::none_of(arrays.begin(), arrays.end(), [&name](const LogicalDrive *array) {
        return QString::fromLocal8Bit(array->DisplayName) == name;
    });
}

bool SK_RaidApi::HasDriveMixing(const SK_Create &params) const
{
    const QList<int> disks = diskList(params);
    return std::any_of(disks.begin(), disks.end(), [&](int disk) {
        return classOf(*this, disk) != classOf(*this, disks.first());
    });
}

bool SK_RaidApi::DiskMixesWithArray(int array, int disk) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    if (!record)
        return false;
    const DiskClass candidate = classOf(*this, disk);
    for (int m = 0; m < memberCount(*record); ++m) {
        const int member = record->Members[m].Device;
        if (GetValidDiskIndex(member) >= 0 && classOf(*this, member) != candidate)
            return true;
    }
    return false;
}

bool SK_RaidApi::ArrayCanTrim(const SK_Create &params) const
{
    return trimFor(*this, params.type.toLatin1().constData(), diskList(params));
}

bool SK_RaidApi::ArrayCanTrimExisting(int array) const
{
    const SK_ConfigArray *record = GetArrayRecord(array, true);
    if (!record)
        return false;
    QList<int> disks;
    for (int m = 0; m < memberCount(*record); ++m)
        disks.append(record->Members[m].Device);
    return trimFor(*this, record->Type, disks);
}
