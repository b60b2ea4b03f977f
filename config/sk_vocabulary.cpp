#include "config/sk_vocabulary.h"

#include "driver/sk_status.h"

#include <cstdio>

const char *const SK_ArrayTypeNames[SK_ARRAY_TYPE_NAME_COUNT] = {
    "VOLUME", "RAID0",  "RAID1", "RAID1N", "RAID10",   "RAID10N",  "RAID5",   "RAID50",
    "RAID6",  "RAID60", "RAW",   "LEGACY", "RAIDABLE", "RAIDTIER", "PROMISE", "UNKNOWN",
};

const char *SK_DeviceTypeWord(std::uint32_t deviceType)
{
    switch (deviceType) {
    case SK_DEVICE_TYPE_DISK:
        return "Disk";
    case SK_DEVICE_TYPE_CORE:
        return "Core";
    case SK_DEVICE_TYPE_LEGACY:
        return "Legacy";
    case SK_DEVICE_TYPE_PROMISE:
        return "Promise";
    default:
        return "Unknown";
    }
}

const char *SK_DeviceStateWord(std::uint32_t deviceState)
{
    switch (deviceState) {
    case SK_DEVICE_STATE_ONLINE:
        return "Online";
    case SK_DEVICE_STATE_OFFLINE:
        return "Offline";
    case SK_DEVICE_STATE_SMART_ERROR:
        return "SMART_error";
    case SK_DEVICE_STATE_LOCKED:
        return "Locked";
    default:
        return "Unknown";
    }
}

bool SK_IsCommandDisk(std::uint32_t deviceType)
{
    // Unsigned wrap makes every type below 4608 fail the range test too.
    return deviceType - SK_DEVICE_TYPE_DISK < 4 && deviceType != SK_DEVICE_TYPE_CORE;
}

const char *SK_ArrayStateWord(std::uint32_t state, std::uint32_t taskType)
{
    switch (state) {
    case SK_ARRAY_STATE_NORMAL:
        return taskType == SK_TASK_CREATE ? "READY" : "NORMAL";
    case SK_ARRAY_STATE_CRITICAL:
        return "CRITICAL";
    case SK_ARRAY_STATE_OFFLINE:
        return "OFFLINE";
    case SK_ARRAY_STATE_OUTDATE:
        return "OUTDATE";
    case SK_ARRAY_STATE_LOCKED:
        return "LOCKED";
    default:
        return "UNKNOWN";
    }
}

std::uint32_t SK_ArrayTypeIndexOf(std::uint32_t type, std::uint32_t firstCount,
                                  std::uint32_t secondCount)
{
    switch (type) {
    case SK_ARRAY_TYPE_VOLUME:
        return SK_ARRAY_INDEX_VOLUME;
    case SK_ARRAY_TYPE_LEGACY:
        return SK_ARRAY_INDEX_LEGACY;
    case SK_ARRAY_TYPE_RAIDABLE:
        return SK_ARRAY_INDEX_RAIDABLE;
    case SK_ARRAY_TYPE_TIER:
        return SK_ARRAY_INDEX_RAIDTIER;
    case SK_ARRAY_TYPE_PROMISE:
        return SK_ARRAY_INDEX_PROMISE;
    case SK_ARRAY_TYPE_MIRROR:
        if (firstCount > 1 && secondCount == 1)
            return SK_ARRAY_INDEX_RAID0;
        if (firstCount == 1 && secondCount == 2)
            return SK_ARRAY_INDEX_RAID1;
        if (firstCount == 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID1N;
        if (firstCount > 1 && secondCount == 2)
            return SK_ARRAY_INDEX_RAID10;
        if (firstCount > 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID10N;
        return SK_ARRAY_INDEX_UNKNOWN;
    case SK_ARRAY_TYPE_PARITY:
        if (firstCount == 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID5;
        if (firstCount > 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID50;
        return SK_ARRAY_INDEX_UNKNOWN;
    case SK_ARRAY_TYPE_DUAL_PARITY:
        if (firstCount == 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID6;
        if (firstCount > 1 && secondCount > 2)
            return SK_ARRAY_INDEX_RAID60;
        return SK_ARRAY_INDEX_UNKNOWN;
    default:
        return SK_ARRAY_INDEX_UNKNOWN;
    }
}

const char *SK_ArrayTypeWord(std::uint32_t index)
{
    return index < SK_ARRAY_TYPE_NAME_COUNT ? SK_ArrayTypeNames[index]
                                            : SK_ArrayTypeNames[SK_ARRAY_INDEX_UNKNOWN];
}

const char *SK_TaskTypeWord(std::uint32_t taskType)
{
    switch (taskType) {
    case SK_TASK_NONE:
        return "NOT_ACTIVE";
    case SK_TASK_TRANSFORM:
        return "TRANSFORM";
    case SK_TASK_CREATE:
        return "CREATE";
    case SK_TASK_CHECK:
        return "CHECK";
    case SK_TASK_COPY:
        return "COPY";
    case SK_TASK_RESTORE:
        return "RESTORE";
    case SK_TASK_CHECK_BITMAP:
        return "CHECK_BITMAP";
    case SK_TASK_FLUSH_BITMAP:
        return "FLUSH_BITMAP";
    case SK_TASK_ZERO:
        return "ZERO";
    case SK_TASK_SECURE_ERASE:
        return "SECURE_ERASE";
    case SK_TASK_TIER_MOVE:
        return "TIER_MOVE";
    default:
        return "UNKNOWN";
    }
}

const char *SK_TaskStateWord(std::uint32_t taskState)
{
    switch (taskState) {
    case SK_TASK_STATE_NONE:
        return "NOT_ACTIVE";
    case SK_TASK_STATE_STARTED:
        return "STARTED";
    case SK_TASK_STATE_PAUSED:
        return "PAUSED";
    case SK_TASK_STATE_SHUTDOWN:
        return "SHUTDOWN";
    case SK_TASK_STATE_FAILED:
        return "FAILED";
    case SK_TASK_STATE_STOPPED:
        return "STOPPED";
    case SK_TASK_STATE_COMPLETED:
        return "COMPLETED";
    case SK_TASK_STATE_NOT_COMPLETED:
        return "NOT_COMPLETED";
    case SK_TASK_STATE_REMOVED:
        return "REMOVED";
    case SK_TASK_STATE_NOT_ACTIVE:
        return "NOT_ACTIVE";
    default:
        return "UNKNOWN";
    }
}

const char *SK_CachePolicyWord(std::uint32_t cachePolicy)
{
    const bool read = (cachePolicy & SK_CACHE_READ) != 0;
    const bool write = (cachePolicy & SK_CACHE_WRITE) != 0;
    if (read && write)
        return "RW";
    if (read)
        return "R";
    if (write)
        return "W";
    return "NC";
}

const char *SK_MemberFlagsWord(std::uint32_t flags)
{
    const bool fail = (flags & SK_MEMBER_FAIL) != 0;
    const bool offline = (flags & SK_MEMBER_OFFLINE) != 0;
    const bool failNp = (flags & SK_MEMBER_FAIL_NP) != 0;
    if (fail && offline)
        return "Fail_Offline";
    if (failNp && offline)
        return "Fail(NP)_Offline";
    if (fail)
        return "Fail";
    if (offline)
        return "Offline";
    if (failNp)
        return "Fail(NP)";
    return "NoError";
}

float SK_PercentComplete(std::uint32_t thousandths)
{
    return static_cast<float>(thousandths) * 100.0f / 100000.0f;
}

std::uint32_t SK_FormatPercent(std::uint32_t thousandths, char *out, std::size_t outSize)
{
    if (!out || outSize == 0)
        return SKTL_STS_INVALID_PARAMETER;
    std::snprintf(out, outSize, "%3.4f", static_cast<double>(SK_PercentComplete(thousandths)));
    return SK_STS_SUCCESS;
}
