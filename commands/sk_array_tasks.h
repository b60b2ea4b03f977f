#pragma once
// Commands that start or steer background work on an existing array, most of them
// subcodes of the array management command (7), and the wait for a task to end.

#include "commands/sk_command_frame.h"

// Fields of the array management request (command 7). The array's reference fills 36
// to 51; a spare list starts at Spares.
namespace SK_ManageRequest {
constexpr std::size_t Subcode = 32, Reference = 36, Count = 52, Value = 56, Text = 60, Spares = 92;
} // namespace SK_ManageRequest

// Waits for the task of the array with `id` to end: sleeps `delayMs`, then polls the
// configuration once a second until the array is gone, has no task and no progress,
// or shows a failed transform. The library lock is released around every sleep, which
// is alertable, so other commands run meanwhile.
// Returns 1; 9 (SK_STS_TRANSFORM_FAILURE) after a failed transform; 7 for an ID of 0;
// 8 without a control device.
std::uint32_t SK_ApiWaitForTask(const SK_CoreEntry *core, std::uint64_t id, std::uint32_t delayMs);

// Starts (mode 0) or stops (mode 1) a consistency check of the named array. With
// `noWait` 1 the driver is asked not to hold the request; otherwise, with `option`
// set, the call waits until the check ends.
// Returns 1; 7 for a null argument; 62 for a name of another core; 8; 10; 38; 48; 9
// when the waited task failed; otherwise the driver's status.
std::uint32_t SK_ApiCheckLogicalDevice(const SK_CoreEntry *core, const char *name,
                                       std::uint32_t mode, std::uint32_t noWait,
                                       std::uint32_t option);

// As SK_ApiCheckLogicalDevice for the array with that ID. Returns as it, and 10 when
// no array has that ID.
std::uint32_t SK_ApiCheckLogicalDeviceById(const SK_CoreEntry *core, std::uint64_t id,
                                           std::uint32_t mode, std::uint32_t noWait,
                                           std::uint32_t option);

// Starts a secure erase of the named array; `noWait` and `option` as for a check.
// Returns as SK_ApiCheckLogicalDevice.
std::uint32_t SK_ApiSecureEraseLogicalDevice(const SK_CoreEntry *core, const char *name,
                                             std::uint32_t noWait, std::uint32_t option);

// Pauses, resumes or removes (SK_TASK_ACTION_...) the tasks of `count` named arrays,
// or of every array with `all` (command 34).
// Returns 1 (also with `all` on a core without arrays); 7 with neither a count nor
// `all`; 62; 8; 10 for an unknown name or a core without arrays; 38; 48; otherwise
// the driver's status.
std::uint32_t SK_ApiTaskControlLogicalDevice(const SK_CoreEntry *core, std::uint32_t action,
                                             std::uint32_t count, const SK_DeviceName *list,
                                             std::uint32_t all, std::uint32_t option);

// Takes `count` named arrays, or every array with `all`, offline (command 17).
// Returns as SK_ApiTaskControlLogicalDevice.
std::uint32_t SK_ApiOfflineLogicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all,
                                         std::uint32_t option);

// Drive letter request for the named array (command 10): `number` at 40, `letter` at
// 44, `flag` (1 assigns, 0 removes) at 48. It goes through the route of the array's
// first member, so it quotes no generation; the array ID fills the header words where
// other commands carry their option, so `option` is not sent.
// Returns 1; 7; 62; 8; 10 for an unknown array or one without members; 38; 48;
// otherwise the transfer's result.
std::uint32_t SK_ApiDriveLetter(const SK_CoreEntry *core, const char *name, std::uint32_t number,
                                std::uint32_t letter, std::uint32_t flag, std::uint32_t option);
std::uint32_t SK_ApiDriveLetterById(const SK_CoreEntry *core, std::uint64_t id,
                                    std::uint32_t number, std::uint32_t letter, std::uint32_t flag,
                                    std::uint32_t option);

// Sets the display name of the named array: at most 32 bytes of `text`, cut at
// `length`, not terminated when all 32 are used.
// Returns 1; 7; 62; 8; 10; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiManageDevicePrivateLogicalDevice(const SK_CoreEntry *core, const char *name,
                                                     const char *text, std::uint32_t length,
                                                     std::uint32_t option);

// The routine behind the small setters: subcode at 32, the array at 36 to 46, `value`
// at 56.
// Returns 1; 7; 62; 8; 10; 38; 48; otherwise the driver's status.
std::uint32_t SK_SimpleManageLogicalDevice(const SK_CoreEntry *core, const char *name,
                                           std::uint32_t subcode, std::uint32_t value,
                                           std::uint32_t option);

// The manage command (31915): array attribute bits, the high 16 bits of `value` the
// mask of bits to change and the low 16 bits their new state.
std::uint32_t SK_ApiManageLogicalDevice(const SK_CoreEntry *core, const char *name,
                                        std::uint32_t value, std::uint32_t option);
// The cache command (31912): `value` a cache policy word (SK_CachePolicyWord).
std::uint32_t SK_ApiCacheLogicalDevice(const SK_CoreEntry *core, const char *name,
                                       std::uint32_t value, std::uint32_t option);
// The priority command (31914): the task priority, 1 to 99.
std::uint32_t SK_ApiPriorityLogicalDevice(const SK_CoreEntry *core, const char *name,
                                          std::uint32_t value, std::uint32_t option);
// The one-shot (31917) that removes every dedicated spare of the array.
std::uint32_t SK_ApiRemoveSparesLogicalDevice(const SK_CoreEntry *core, const char *name,
                                              std::uint32_t option);

// Values of the small setters.
// Cache policy word of "NC", "R", "W" and "RW"; any other word (or null) reads "RW".
std::uint32_t SK_CachePolicyWord(const char *word);
// Attribute word that hides (1) or shows (0) an array: 0x2000200 or 0x2000000.
std::uint32_t SK_HiddenAttributeValue(std::uint32_t hidden);
// Attribute word that turns the background array scan on (1) or off (0).
std::uint32_t SK_BackgroundScanValue(std::uint32_t state);
