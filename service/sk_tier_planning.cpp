// Tier planning: two existing arrays joined into a tier or a cache array. A tier
// names arrays where other arrays name disks, and failure has no words: 0 says all.

#include "service/sk_planning.h"
#include "service/sk_service_state.h"

#include <algorithm>

using namespace sk_service;

namespace {

constexpr std::uint32_t kTierDriverType = 7165;
constexpr int kMaxArraysBeforeCreate = 11;
constexpr int kHighestArrayId = 24;
// A tier smaller than this many binary megabytes isn't worth creating.
constexpr quint64 kSmallestTierMiB = 50;

// A tier's part: a plain array that isn't part of a tier already.
const SK_ConfigArray *tierCandidate(const SK_RaidApi &api, int array)
{
    const SK_ConfigArray *record = api.GetArrayRecord(array, true);
    if (!record || api.ArrayIsTierPart(array) || !SK_RaidApi::TypeIsPlain(record->Type))
        return nullptr;
    return record;
}

template <typename Test>
bool allMembers(const SK_ConfigArray &record, Test test)
{
    for (int m = 0; m < memberCount(record); ++m) {
        if (!test(record.Members[m].Device))
            return false;
    }
    return true;
}

} // namespace

// The cold side keeps the data: no flash disk among its members.
bool SK_RaidApi::ArrayCanBeColdTier(int array) const
{
    const SK_ConfigArray *record = tierCandidate(*this, array);
    return record && allMembers(*record, [this](int disk) { return !IsFlashDisk(disk); });
}

bool SK_RaidApi::ArrayCanBeHotTier(int array) const
{
    const SK_ConfigArray *record = tierCandidate(*this, array);
    return record && allMembers(*record, [this](int disk) { return IsFlashDisk(disk); });
}

int SK_RaidApi::CreateTier(SK_Tier params, bool queryMaxOnly)
{
    const QByteArray localName = params.name.toLocal8Bit();
    RefreshConfig();
    if (GetArrayCount() > kMaxArraysBeforeCreate || params.arrayCount != 2)
        return 0;

    SK_DeviceName refs[2] = {};
    SK_DeviceName spares[SK_MAX_SPARE_NAMES] = {};
    int withVolumes = 0;
    for (int i = 0; i < 2; ++i) {
        const int id = static_cast<int>(params.arrays[i]);
        if (id == 0 || id > kHighestArrayId)
            return 0;
        const SK_ConfigArray *array = GetArrayRecord(id, true);
        if (!array)
            return 0;
        if (!DriveLetters(id).isEmpty())
            ++withVolumes;
        // At most one of the pair may hold volumes.
        if (withVolumes > 1) {
            params.coldHasNoVolumes = 0;
            return 0;
        }
        SK_CopyText(refs[i], sizeof refs[i], array->Name);
    }

    const quint32 cacheWord = CacheWord(params.cache);
    // Volumes on the hot array survive only with the write cache in front of them.
    if (params.hotHasVolumes && !(cacheWord & kCacheWrite))
        return 0;

    std::uint8_t info[SK_CREATE_INFO_SIZE] = {};
    if (SK_ApiGetCreateInfo(Channel(), kTierDriverType, 2, 0, cacheWord, 0, 0, 0, 1, 2, refs,
                            spares, 0, 0, 0, 0, 1, info) != SK_STS_SUCCESS)
        return 0;
    const quint64 maxMiB = SK_GetU64(info, SK_CREATE_INFO_MAX_MIB);
    if (queryMaxOnly)
        return ToDecimalMB(maxMiB);

    if (maxMiB < kSmallestTierMiB)
        return 0;
    const quint32 flags = params.hotHasVolumes ? kTierHotHasVolumes : 0;
    const std::uint32_t status = SK_ApiCreateLogicalDevice(
        Channel(), kTierDriverType, 2, 0, cacheWord, 0, flags, maxMiB, 1, 2, refs, spares,
        localName.constData(), static_cast<std::uint32_t>(localName.size()), 0, 0, 0, 0, 0,
        nullptr);
    return status == SK_STS_SUCCESS ? 1 : 0;
}
