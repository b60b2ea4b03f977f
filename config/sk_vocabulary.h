#pragma once
// The words the configuration report uses for the numbers of the image: device types
// and states, array states and types, task types and states, cache policy, member
// flags. The report is the contract between the library and the application, so
// every word here is fixed.

#include <cstddef>
#include <cstdint>

// Disk device types.
constexpr std::uint32_t SK_DEVICE_TYPE_DISK = 4608;
constexpr std::uint32_t SK_DEVICE_TYPE_CORE = 4609;
constexpr std::uint32_t SK_DEVICE_TYPE_UNKNOWN = 4610;
constexpr std::uint32_t SK_DEVICE_TYPE_LEGACY = 4611;
constexpr std::uint32_t SK_DEVICE_TYPE_PROMISE = 4612;

// Disk device states. 12291 is deliberately absent: it reads "Unknown".
constexpr std::uint32_t SK_DEVICE_STATE_ONLINE = 12288;
constexpr std::uint32_t SK_DEVICE_STATE_OFFLINE = 12289;
constexpr std::uint32_t SK_DEVICE_STATE_SMART_ERROR = 12290;
constexpr std::uint32_t SK_DEVICE_STATE_LOCKED = 12292;

// A disk whose spare state is this is a global spare.
constexpr std::uint32_t SK_SPARE_STATE_GLOBAL = 256;

// Array states.
constexpr std::uint32_t SK_ARRAY_STATE_NORMAL = 512;
constexpr std::uint32_t SK_ARRAY_STATE_CRITICAL = 513;
constexpr std::uint32_t SK_ARRAY_STATE_OFFLINE = 514;
constexpr std::uint32_t SK_ARRAY_STATE_OUTDATE = 515;
constexpr std::uint32_t SK_ARRAY_STATE_LOCKED = 516;

// Array types as the driver numbers them.
constexpr std::uint32_t SK_ARRAY_TYPE_PARITY = 7157; // RAID5, RAID50
constexpr std::uint32_t SK_ARRAY_TYPE_MIRROR = 7158; // RAID0, RAID1, RAID10 and N forms
constexpr std::uint32_t SK_ARRAY_TYPE_VOLUME = 7159;
constexpr std::uint32_t SK_ARRAY_TYPE_LEGACY = 7161;
constexpr std::uint32_t SK_ARRAY_TYPE_DUAL_PARITY = 7162; // RAID6, RAID60
constexpr std::uint32_t SK_ARRAY_TYPE_RAIDABLE = 7163;
constexpr std::uint32_t SK_ARRAY_TYPE_PROMISE = 7164;
constexpr std::uint32_t SK_ARRAY_TYPE_TIER = 7165;

// Indexes of the one table of array type names; the application's text tables are
// indexed the same way.
enum SK_ArrayTypeIndex : std::uint32_t {
    SK_ARRAY_INDEX_VOLUME = 0,
    SK_ARRAY_INDEX_RAID0 = 1,
    SK_ARRAY_INDEX_RAID1 = 2,
    SK_ARRAY_INDEX_RAID1N = 3,
    SK_ARRAY_INDEX_RAID10 = 4,
    SK_ARRAY_INDEX_RAID10N = 5,
    SK_ARRAY_INDEX_RAID5 = 6,
    SK_ARRAY_INDEX_RAID50 = 7,
    SK_ARRAY_INDEX_RAID6 = 8,
    SK_ARRAY_INDEX_RAID60 = 9,
    SK_ARRAY_INDEX_RAW = 10,
    SK_ARRAY_INDEX_LEGACY = 11,
    SK_ARRAY_INDEX_RAIDABLE = 12,
    SK_ARRAY_INDEX_RAIDTIER = 13,
    SK_ARRAY_INDEX_PROMISE = 14,
    SK_ARRAY_INDEX_UNKNOWN = 15,
};
constexpr std::uint32_t SK_ARRAY_TYPE_NAME_COUNT = 16;
extern const char *const SK_ArrayTypeNames[SK_ARRAY_TYPE_NAME_COUNT];

// Task types.
constexpr std::uint32_t SK_TASK_NONE = 0;
constexpr std::uint32_t SK_TASK_TRANSFORM = 21332;
constexpr std::uint32_t SK_TASK_CREATE = 21333;
constexpr std::uint32_t SK_TASK_CHECK = 21334;
constexpr std::uint32_t SK_TASK_COPY = 21335;
constexpr std::uint32_t SK_TASK_RESTORE = 21336;
constexpr std::uint32_t SK_TASK_CHECK_BITMAP = 21337;
constexpr std::uint32_t SK_TASK_FLUSH_BITMAP = 21338;
constexpr std::uint32_t SK_TASK_ZERO = 21339;
constexpr std::uint32_t SK_TASK_SECURE_ERASE = 21340;
constexpr std::uint32_t SK_TASK_TIER_MOVE = 21342;

// Task states.
constexpr std::uint32_t SK_TASK_STATE_NONE = 0;
constexpr std::uint32_t SK_TASK_STATE_STARTED = 41377;
constexpr std::uint32_t SK_TASK_STATE_PAUSED = 41378;
constexpr std::uint32_t SK_TASK_STATE_SHUTDOWN = 41379;
constexpr std::uint32_t SK_TASK_STATE_FAILED = 41380;
constexpr std::uint32_t SK_TASK_STATE_STOPPED = 41381;
constexpr std::uint32_t SK_TASK_STATE_COMPLETED = 41382;
constexpr std::uint32_t SK_TASK_STATE_NOT_COMPLETED = 41383;
constexpr std::uint32_t SK_TASK_STATE_REMOVED = 41384;
constexpr std::uint32_t SK_TASK_STATE_NOT_ACTIVE = 41385;

// Cache policy bits and the hidden attribute of an array.
constexpr std::uint32_t SK_CACHE_READ = 0x80000000u;
constexpr std::uint32_t SK_CACHE_WRITE = 0x40000000u;
constexpr std::uint32_t SK_ATTRIBUTE_HIDDEN = 0x200;

// Member flag bits.
constexpr std::uint32_t SK_MEMBER_FAIL = 0x10;
constexpr std::uint32_t SK_MEMBER_OFFLINE = 0x20;
constexpr std::uint32_t SK_MEMBER_FAIL_NP = 0x4000;

// "Disk", "Core", "Unknown", "Legacy", "Promise"; any other value "Unknown".
const char *SK_DeviceTypeWord(std::uint32_t deviceType);

// "Online", "Offline", "SMART_error", "Locked"; any other value "Unknown".
const char *SK_DeviceStateWord(std::uint32_t deviceState);

// True for the disks that commands addressing "all disks" act on: types 4608, 4610
// and 4611 (type minus 4608 below 4, and not the core's own device).
bool SK_IsCommandDisk(std::uint32_t deviceType);

// Array state word; a normal array with a create task running reads "READY".
const char *SK_ArrayStateWord(std::uint32_t state, std::uint32_t taskType);

// Index into SK_ArrayTypeNames of a type with its two counts; combinations outside
// the table give SK_ARRAY_INDEX_UNKNOWN.
std::uint32_t SK_ArrayTypeIndexOf(std::uint32_t type, std::uint32_t firstCount,
                                  std::uint32_t secondCount);

// The name at an index of the table, "UNKNOWN" for an index past it.
const char *SK_ArrayTypeWord(std::uint32_t index);

// Task type and task state words; values outside the tables read "UNKNOWN".
const char *SK_TaskTypeWord(std::uint32_t taskType);
const char *SK_TaskStateWord(std::uint32_t taskState);

// "RW", "R", "W" or "NC" from the read (bit 31) and write (bit 30) cache bits.
const char *SK_CachePolicyWord(std::uint32_t cachePolicy);

// Member flags word; the tests run in a fixed order and the first match wins, so
// 0x4030 reads "Fail_Offline".
const char *SK_MemberFlagsWord(std::uint32_t flags);

// Task progress in percent from thousandths of a percent, in single precision.
float SK_PercentComplete(std::uint32_t thousandths);

// Writes the progress as the report prints it ("%3.4f"). Returns 1, or 7 without room.
std::uint32_t SK_FormatPercent(std::uint32_t thousandths, char *out, std::size_t outSize);
