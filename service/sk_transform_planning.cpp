// Transform planning: the change of an existing array to another type, disk set or
// size, judged and carried out in the manner of the create.

#include "service/sk_planning.h"
#include "service/sk_service_state.h"

using namespace sk_service;

const QList<QString> transformErrorList = withNewlines({
    "array not found",
    "size must be at least 100MB",
    "no disks were selected",
    "an even number of disks must be supplied for this RAID type",
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
    "RAID10 must have an even number of 4 to 8 disks",
    "--d-spare option requires at least 6 disks for RAID10",
    "RAID10n requires a minimum of 6 disks",
    "--d-spare option requires at least 9 disks for RAID10n",
    "sub-member must be 2 or greater for RAID10n",
    "RAID5 requires at least 3 drives",
    "RAID5 is limited to 8 drives",
    "RAID5 allows a maximum of 8 drives",
    "RAID6 requires at least 4 drives",
    "RAID6 is limited to 8 drives",
    "RAID6 allows a maximum of 16 drives",
    "error, no RAID type specified",
    "a disk selected not present or valid",
    "The transform failed because one of the drives is displaying SMART errors",
    "Support for the selected raid level is disabled",
    "error determining maximum possible size, check arguments",
    "transform size exceeds maximum possible size",
    "transform size required not possible with selected drives",
    "transform operation failed",
});

namespace {

using namespace SK_TransformVerdict;

constexpr int kHighestArrayId = 24;
// Offset in a transform info reply of the largest size the driver offers (u64, MiB).
constexpr std::size_t kTransformInfoMaxMiB = 32;
constexpr qint32 kSmallestSize = 100;
constexpr qint32 kQuerySize = 101;

// Not a verdict: the count is fine and the driver is asked.
constexpr int kAsk = 1;

// The count tests per type. 0 ends the transform with a plain 0, which the dialog
// shows as "not possible with selected drives".
int countVerdict(const QString &type, int n)
{
    static const QStringList known = {
        QStringLiteral("VOLUME"),  QStringLiteral("RAIDABLE"), QStringLiteral("RAID0"),
        QStringLiteral("RAID1"),   QStringLiteral("RAID1N"),   QStringLiteral("RAID10"),
        QStringLiteral("RAID10N"), QStringLiteral("RAID5"),    QStringLiteral("RAID6"),
        QStringLiteral("RAID50"),  QStringLiteral("RAID60")};
    if (!known.contains(type))
        return NoType;
    if (n == 0)
        return NoDisks;
    if (type == QLatin1String("VOLUME"))
        return n > 8 ? VolumeTooMany : kAsk;
    if (type == QLatin1String("RAIDABLE"))
        return n > 1 ? RaidableNotOne : kAsk;
    if (type == QLatin1String("RAID0"))
        return n < 2 || n > 8 ? Raid0Count : kAsk;
    if (type == QLatin1String("RAID1"))
        return n != 2 ? Raid1Count : kAsk;
    if (type == QLatin1String("RAID1N"))
        return n < 3 ? Raid1nTooFew : n > 8 ? Raid1nTooMany : kAsk;
    if (type == QLatin1String("RAID10"))
        return n < 4 || n % 2 != 0 || n > 8 ? Raid10Count : kAsk;
    if (type == QLatin1String("RAID10N"))
        return n < 6 ? Raid10nTooFew : Raid10nSubMember;
    if (type == QLatin1String("RAID5"))
        return n < 3 ? Raid5TooFew : n > 8 ? Raid5TooMany : kAsk;
    if (type == QLatin1String("RAID6")) {
        // The RAID 6 rows sit a step off against the create: too few disks give a
        // plain 0 and too many the "requires at least 4" row. Kept as the drivers'
        // tool answers.
        if (n < 4)
            return 0;
        return n > 8 ? Raid6Count : kAsk;
    }
    return 0; // RAID50, RAID60: no transform path
}

} // namespace

int SK_RaidApi::TransformArray(SK_Create params, int arrayId, bool queryMaxOnly)
{
    RefreshConfig();
    const SK_ConfigArray *array =
        arrayId >= 1 && arrayId <= kHighestArrayId ? GetArrayRecord(arrayId, true) : nullptr;
    if (!array)
        return ArrayNotFound;
    const qint32 wanted = queryMaxOnly ? kQuerySize : params.size;
    if (wanted < kSmallestSize)
        return SizeTooSmall;
    quint64 wantedMiB = ToBinaryMB(wanted);

    const int n = params.diskCount;
    const int verdict = countVerdict(params.type, n);
    if (verdict != kAsk)
        return verdict;
    SK_CreateShape shape;
    CreateShape(params.type, n, shape);

    DiskSlots names;
    if (!fillDiskSlots(*this, params, names))
        return DiskNotUsable;

    // The array's name goes in a copy of its own: the re-read overwrites the picture.
    char arrayName[sizeof array->Name] = {};
    SK_CopyText(arrayName, sizeof arrayName, array->Name);
    const quint64 ownMiB = array->Capacity >> 11;
    std::uint8_t info[SK_TRANSFORM_INFO_SIZE] = {};
    const std::uint32_t status = SK_ApiGetTransformInfo(
        Channel(), arrayName, shape.driverType, static_cast<std::uint32_t>(n), 0, 0, 1, shape.first,
        shape.second, names.drives, names.spares, 0, 0, 0, 1, info);
    if (status != SK_STS_SUCCESS)
        return status == SK_STS_DEVICE_SMART_ERROR ? SmartErrors : NoMaximum;
    const quint64 maxMiB = SK_GetU64(info, kTransformInfoMaxMiB);
    if (queryMaxOnly)
        return ToDecimalMB(maxMiB);

    if (wantedMiB == 0)
        wantedMiB = ownMiB;
    // Unlike the create, an oversized transform is refused, not clamped.
    if (wantedMiB > maxMiB)
        return 0;
    const std::uint32_t done = SK_ApiTransformLogicalDevice(
        Channel(), arrayName, shape.driverType, static_cast<std::uint32_t>(n), 0, 0, wantedMiB,
        shape.first, shape.second, names.drives, names.spares, 0, 0, 0, 0);
    return done == SK_STS_SUCCESS ? 1 : 0;
}
