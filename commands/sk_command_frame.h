#pragma once
// The frame every SK_Api... command follows: the codes of the write commands and read
// codes, request sizes, device references, the name checks made before the lock and
// the resolution of names against a freshly built core.
//
// A command checks what needs no lock (a name must carry the core number of its
// entry), takes the library lock, allocates its request by the aligned pattern tagged
// with its own name, and then tries at most three times (SK_WithFreshCore): build a
// core, resolve every name into a 16-byte reference, send. Only a stale generation
// (38) goes round again. SK_RunCommand is that frame; a command writes only its try.

#include "config/sk_config_lookup.h"
#include "config/sk_vocabulary.h"
#include "driver/sk_retry.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <algorithm>
#include <cstring>
#include <utility>

// --- Write commands ------------------------------------------------------------------

constexpr std::uint32_t SK_CMD_CREATE = 2;
constexpr std::uint32_t SK_CMD_DELETE = 3;
constexpr std::uint32_t SK_CMD_INITIALIZE = 4;
constexpr std::uint32_t SK_CMD_MANAGE_ARRAY = 7;
constexpr std::uint32_t SK_CMD_TRANSFORM = 8;
constexpr std::uint32_t SK_CMD_INJECT_ERROR = 9;
constexpr std::uint32_t SK_CMD_DRIVE_LETTER = 10;
constexpr std::uint32_t SK_CMD_SET_ERROR = 12;
constexpr std::uint32_t SK_CMD_SET_ERROR_MODE1 = 13;
constexpr std::uint32_t SK_CMD_SPLIT = 14;
constexpr std::uint32_t SK_CMD_RESCAN = 16;
constexpr std::uint32_t SK_CMD_OFFLINE = 17;
constexpr std::uint32_t SK_CMD_TRACE_MODE1 = 19;
constexpr std::uint32_t SK_CMD_TRACE_MODE0 = 20;
constexpr std::uint32_t SK_CMD_TRACE_MODE3 = 21;
constexpr std::uint32_t SK_CMD_TRACE_MODE2 = 22;
constexpr std::uint32_t SK_CMD_MANAGE_DISK = 29;
constexpr std::uint32_t SK_CMD_SET_ERROR_MODE2 = 32;
constexpr std::uint32_t SK_CMD_TASK_CONTROL = 34;
constexpr std::uint32_t SK_CMD_COPY = 35;
constexpr std::uint32_t SK_CMD_COMMIT_PREVIOUS = 36;
constexpr std::uint32_t SK_CMD_FIRMWARE_BLOCK = 37;
constexpr std::uint32_t SK_CMD_SEND_MESSAGE = 39;
constexpr std::uint32_t SK_CMD_CHECK_PCI_ID = 41;
constexpr std::uint32_t SK_CMD_BUZZ_ON = 45;
constexpr std::uint32_t SK_CMD_BUZZ_OFF = 46;
constexpr std::uint32_t SK_CMD_SET_WWID = 47;
constexpr std::uint32_t SK_CMD_HDD_FIRMWARE = 49;

// --- Read codes ----------------------------------------------------------------------

constexpr std::uint32_t SK_READ_STATS = 4103;
constexpr std::uint32_t SK_READ_STATS_RESET = 4104;
constexpr std::uint32_t SK_READ_DRIVER_INFO0 = 4105;
constexpr std::uint32_t SK_READ_DRIVER_INFO1 = 4106;
constexpr std::uint32_t SK_READ_TRANSFORM_INFO = 4108;
constexpr std::uint32_t SK_READ_CREATE_INFO = 4109;
constexpr std::uint32_t SK_READ_TRACE_STATE = 4110;
constexpr std::uint32_t SK_READ_TRACE_ITEM = 4111;
constexpr std::uint32_t SK_READ_DRIVER_INFO2 = 4114;
constexpr std::uint32_t SK_READ_DISK_REPLY = 4116;
constexpr std::uint32_t SK_READ_FIRMWARE = 4117;
constexpr std::uint32_t SK_READ_METADATA = 4121;
constexpr std::uint32_t SK_READ_PASS_THROUGH_READ = 4123;
constexpr std::uint32_t SK_READ_PASS_THROUGH_WRITE = 4124;
constexpr std::uint32_t SK_READ_ARRAY_MAP = 4125;

// --- Subcodes of the array management command (7) -------------------------------------

constexpr std::uint32_t SK_MANAGE_CHECK = 31904;
constexpr std::uint32_t SK_MANAGE_DEDICATED_SPARE_ADD = 31906;
constexpr std::uint32_t SK_MANAGE_DEDICATED_SPARE_REMOVE = 31907;
constexpr std::uint32_t SK_MANAGE_GLOBAL_SPARE_ADD = 31908;
constexpr std::uint32_t SK_MANAGE_GLOBAL_SPARE_REMOVE = 31909;
constexpr std::uint32_t SK_MANAGE_PLAIN = 31910;
constexpr std::uint32_t SK_MANAGE_CHECK_MODE1 = 31911;
constexpr std::uint32_t SK_MANAGE_CACHE = 31912;
constexpr std::uint32_t SK_MANAGE_VALUE = 31913;
constexpr std::uint32_t SK_MANAGE_PRIORITY = 31914;
constexpr std::uint32_t SK_MANAGE_ATTRIBUTES = 31915;
constexpr std::uint32_t SK_MANAGE_DISPLAY_NAME = 31916;
constexpr std::uint32_t SK_MANAGE_REMOVE_SPARES = 31917;
constexpr std::uint32_t SK_MANAGE_SECURE_ERASE = 31918;

// Bit at offset 56 of a check or secure erase that asks the driver not to hold the
// request until the task is under way.
constexpr std::uint32_t SK_MANAGE_NO_WAIT = 0x10000000u;

// --- Subcodes of the disk command (29) ----------------------------------------------

constexpr std::uint32_t SK_DISK_WRITE_CACHE_ON = 16384;
constexpr std::uint32_t SK_DISK_WRITE_CACHE_OFF = 16385;
constexpr std::uint32_t SK_DISK_READ_AHEAD_ON = 16386;
constexpr std::uint32_t SK_DISK_READ_AHEAD_OFF = 16387;
constexpr std::uint32_t SK_DISK_IDENTIFY_ON = 16389;
constexpr std::uint32_t SK_DISK_REPLY_FIRST = 16398; // first subcode with a reply
constexpr std::uint32_t SK_DISK_SMART_NVME = 16400;
constexpr std::uint32_t SK_DISK_SMART_ATA = 16404; // last subcode with a reply
constexpr std::uint32_t SK_DISK_SMART_POLLING_ON = 16411;
constexpr std::uint32_t SK_DISK_SMART_POLLING_OFF = 16412;
constexpr std::uint32_t SK_DISK_PREPARE_REMOVAL = 16417;
constexpr std::uint32_t SK_DISK_LED_STATE_BASE = 16418; // plus 1 to 10
constexpr std::uint32_t SK_DISK_IDENTIFY_OFF = 16428;

// Actions of the task control command (34).
constexpr std::uint32_t SK_TASK_ACTION_PAUSE = 24576;
constexpr std::uint32_t SK_TASK_ACTION_RESUME = 24577;
constexpr std::uint32_t SK_TASK_ACTION_REMOVE = 24578;

// Policy bits of a create; the planning read adds SK_POLICY_QUERY itself.
constexpr std::uint32_t SK_POLICY_BACKGROUND_SCAN = 0x400;
constexpr std::uint32_t SK_POLICY_SKIP_INIT = 0x1000;
constexpr std::uint32_t SK_POLICY_QUERY = 0x2000;
constexpr std::uint32_t SK_POLICY_LEAVE_DATA = 0x4000;
constexpr std::uint32_t SK_POLICY_ZERO_CREATE = 0x10000;
constexpr std::uint32_t SK_POLICY_KEEP_HOT_DATA = 0x40000;

// --- Sizes ---------------------------------------------------------------------------

constexpr std::uint32_t SK_REFERENCE_SIZE = 16;
constexpr std::uint32_t SK_PLAIN_REQUEST_SIZE = 1024;
constexpr std::uint32_t SK_DISK_REQUEST_SIZE = 1536;
constexpr std::uint32_t SK_BLOCK_REQUEST_SIZE = 5120; // 1024-byte header, 4096 bytes of data
constexpr std::uint32_t SK_READ_REPLY_SIZE = 8192;

// Size of a request that carries `count` device references: the references plus room
// for the fixed fields, in whole sectors.
constexpr std::uint32_t SK_ListRequestSize(std::uint32_t count)
{
    return (count * SK_REFERENCE_SIZE + 1535u) & ~511u;
}

// The other list form: 64 references' worth of fixed fields in front of the list.
constexpr std::uint32_t SK_PaddedListRequestSize(std::uint32_t count)
{
    return ((count + 64u) * SK_REFERENCE_SIZE + 511u) & ~511u;
}

// --- References ----------------------------------------------------------------------

// Writes a 16-byte device reference at `offset`: u64 ID, u16 DeviceRoute, u16 CoreRoute
// and a zero word.
void SK_PutReference(std::uint8_t *request, std::size_t offset, std::uint64_t id,
                     std::uint16_t deviceRoute, std::uint16_t coreRoute);
void SK_PutArrayReference(std::uint8_t *request, std::size_t offset,
                          const SK_C_LogicalDevice &array);
void SK_PutDiskReference(std::uint8_t *request, std::size_t offset,
                         const SK_C_PhysicalDevice &disk);

// --- Checks made before the lock -----------------------------------------------------

// 1 when `name` carries the core number of `core` (a number that is not 0), else 62
// for an array name and 63 for a disk name.
std::uint32_t SK_CheckArrayName(const SK_CoreEntry *core, const char *name);
std::uint32_t SK_CheckDiskName(const SK_CoreEntry *core, const char *name);
// The same over a list of disks; the first failure is returned.
std::uint32_t SK_CheckDiskList(const SK_CoreEntry *core, const SK_DeviceName *list,
                               std::uint32_t count);

// --- Resolution on an open core (the caller holds the lock) ---------------------------

// The record of that name, or null.
const SK_C_LogicalDevice *SK_LookupArray(const SK_Core &core, const char *name);
const SK_C_PhysicalDevice *SK_LookupDisk(const SK_Core &core, const char *name);
const SK_C_LogicalDevice *SK_LookupArrayById(const SK_Core &core, std::uint64_t id);
const SK_C_PhysicalDevice *SK_LookupDiskById(const SK_Core &core, std::uint64_t id);

// Writes the reference of the named array (or disk) at `offset`. Returns 1, or 10
// (11 for a disk) when the core has no such record; the request is then left alone.
std::uint32_t SK_ResolveArray(const SK_Core &core, const char *name, std::uint8_t *request,
                              std::size_t offset);
std::uint32_t SK_ResolveDisk(const SK_Core &core, const char *name, std::uint8_t *request,
                             std::size_t offset);

// Writes the references of `count` disk names from `offset`, 16 bytes apart. Returns 1
// or the status of the first name that can't be resolved.
std::uint32_t SK_ResolveDiskList(const SK_Core &core, const SK_DeviceName *list,
                                 std::uint32_t count, std::uint8_t *request, std::size_t offset);

// --- The body of a command ------------------------------------------------------------

// The tries of a command whose request is already allocated: `attempt(core, request)`
// runs by SK_WithFreshCore, and the request is cleared once each fresh core is built,
// so no try sees what an earlier one wrote or read. For commands that allocate or
// lock in their own way, or send more than once; the caller holds the lock.
// Returns 8 when the control device can't be opened, else the last status.
template <class Attempt>
std::uint32_t SK_RetryRequest(const SK_CoreEntry *core, const SKTL_AlignedBuffer &request,
                              Attempt &&attempt)
{
    std::uint8_t *bytes = request.data();
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        std::memset(bytes, 0, request.size());
        return attempt(open, bytes);
    });
}

// The body of a command: under the library lock, with an aligned request of `size`
// bytes tagged `tag`, `attempt(core, request)` runs on a fresh core, at most three
// times while the driver answers 38; the request is cleared before every try. Then
// `finish(status, request)` gives the result from the last status and the request as
// the tries left it (a reply the driver wrote into it, say).
// Returns 48 when the request can't be allocated, and `finish` is not called.
template <class Attempt, class Finish>
std::uint32_t SK_RunCommand(const SK_CoreEntry *core, std::uint32_t size, const char *tag,
                            Attempt &&attempt, Finish &&finish)
{
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(size, tag);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    const std::uint32_t status = SK_RetryRequest(core, request, attempt);
    return finish(status, static_cast<const std::uint8_t *>(request.data()));
}

// The same when nothing is left to do after the tries. Returns 48 when the request
// can't be allocated, 8 when the control device can't be opened, else the last status.
template <class Attempt>
std::uint32_t SK_RunCommand(const SK_CoreEntry *core, std::uint32_t size, const char *tag,
                            Attempt &&attempt)
{
    return SK_RunCommand(core, size, tag, std::forward<Attempt>(attempt),
                         [](std::uint32_t status, const std::uint8_t *) { return status; });
}

// A read of `readCode` whose reply, `size` bytes of it, goes to `out` when the driver
// answers 1. The driver is asked for `size` in whole sectors, in a block never smaller
// than the 8192 bytes every read sends first; before each try `fill(core, request)`
// writes what names the thing read, or refuses with a status.
// Returns the read's status; 48 when the block can't be allocated; 8 without a
// control device; a refusal of `fill`.
template <class Fill>
std::uint32_t SK_ReadInto(const SK_CoreEntry *core, const char *tag, std::uint32_t readCode,
                          std::uint8_t *out, std::uint32_t size, Fill &&fill)
{
    const std::uint32_t readSize = (std::max(size, 1u) + 511u) & ~511u;
    return SK_RunCommand(
        core, std::max(readSize, SK_READ_REPLY_SIZE), tag,
        [&](SK_Core &open, std::uint8_t *request) -> std::uint32_t {
            const std::uint32_t filled = fill(open, request);
            if (filled != SK_STS_SUCCESS)
                return filled;
            return open.SK_ConfigRead(request, readSize, readCode, 0);
        },
        [&](std::uint32_t status, const std::uint8_t *reply) {
            if (status == SK_STS_SUCCESS)
                std::memcpy(out, reply, size);
            return status;
        });
}

// --- List commands -------------------------------------------------------------------

// Checks of a list command made before the lock: 7 without a core, with neither a
// count nor `all`, or with a count but no list; 62 for a name of another core.
// Returns 1 otherwise. With `all` the list is not looked at.
std::uint32_t SK_CheckArrayListArguments(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all);
// The same for a list command over disks; 63 for a name of another core.
std::uint32_t SK_CheckDiskListArguments(const SK_CoreEntry *core, std::uint32_t count,
                                        const SK_DeviceName *list, std::uint32_t all);

// Where a list command over arrays keeps its count and references.
struct SK_ArrayListShape
{
    std::uint32_t command;
    std::size_t countAt;
    std::size_t referencesAt;
    const char *tag; // names the command's request allocation
};

// The frame of a list command over arrays, under the lock and in the three-try loop:
// on a core without arrays the result is 1 with `all` and 10 otherwise, and nothing is
// sent. Otherwise every array (with `all`) or every named array (10 for an unknown
// name) is passed to `visit(core, array, index)`, which may refuse with a status, and
// its reference written; then the option, the count, and `fill(request)` for the
// command's own fields. The request is (count + 64) x 16 bytes in whole sectors.
template <class Visit, class Fill>
std::uint32_t SK_SendArrayList(const SK_CoreEntry *core, std::uint32_t count,
                               const SK_DeviceName *list, std::uint32_t all, std::uint32_t option,
                               const SK_ArrayListShape &shape, Visit &&visit, Fill &&fill)
{
    SKTL_LockGuard lock;
    return SK_WithFreshCore(core, [&](SK_Core &open) -> std::uint32_t {
        if (open.ArrayCount == 0)
            return all ? SK_STS_SUCCESS : SK_STS_LOGICAL_DEVICE_NOT_FOUND;
        const std::uint32_t wanted = all ? open.ArrayCount : count;
        SKTL_AlignedBuffer request(SK_PaddedListRequestSize(wanted), shape.tag);
        if (!request.ok())
            return SK_STS_NO_MEMORY_AVAILABLE;
        std::uint8_t *bytes = request.data();
        std::uint32_t written = 0;
        for (std::uint32_t i = 0; i < wanted; ++i) {
            const SK_C_LogicalDevice *array = all ? open.Arrays[i] : SK_LookupArray(open, list[i]);
            if (!array) {
                if (all)
                    continue; // a record that could not be built names nothing
                return SK_STS_LOGICAL_DEVICE_NOT_FOUND;
            }
            const std::uint32_t verdict = visit(open, *array, i);
            if (verdict != SK_STS_SUCCESS)
                return verdict;
            SK_PutArrayReference(bytes, shape.referencesAt + written * SK_REFERENCE_SIZE, *array);
            ++written;
        }
        SK_PutU32(bytes, SK_HDR_OPTION, option);
        SK_PutU32(bytes, shape.countAt, written);
        fill(bytes);
        return open.SK_ConfigWrite(bytes, static_cast<std::uint32_t>(request.size()),
                                   shape.command);
    });
}

// A visitor of SK_SendArrayList that takes every array.
struct SK_AnyArray
{
    std::uint32_t operator()(const SK_Core &, const SK_C_LogicalDevice &, std::uint32_t) const
    {
        return SK_STS_SUCCESS;
    }
};
