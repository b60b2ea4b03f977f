#pragma once
// Commands that make, change and remove arrays, and the two planning reads that ask
// the driver what a create or a transform would yield. Capacities of these calls count
// binary megabytes.

#include "commands/sk_command_frame.h"

// Bytes of the planning replies copied to the caller's block.
constexpr std::uint32_t SK_CREATE_INFO_SIZE = 176;
constexpr std::uint32_t SK_TRANSFORM_INFO_SIZE = 144;
// Offset in a create info reply of the largest size the driver offers (u64, MiB).
constexpr std::uint32_t SK_CREATE_INFO_MAX_MIB = 24;

// Spare names a create or transform reads at most; only four fit in front of the
// drive references, which a longer spare list overwrites.
constexpr std::uint32_t SK_MAX_SPARE_NAMES = 8;
constexpr std::uint32_t SK_DISPLAY_NAME_SIZE = 32;

// The cache tag code of a create for `cacheTagSize` (64: 1, 128: 2, 256: 3; 0: 3 when
// a drive of the list is NVMe, else 1). Returns 1 and stores the code, or 7 for any
// other size.
std::uint32_t SK_CacheTagCode(std::uint32_t cacheTagSize, bool anyNvmeDrive,
                              std::uint32_t *codeOut);

// A new array ID drawn from `seed` (normally the time): two 16-bit draws make the
// high word, and a generator seeded from that word makes the low one. Never 0.
std::uint64_t SK_MakeArrayId(std::uint32_t seed);

// Creates an array (command 2) of `type` (7157, 7158, 7159, 7162, 7163 or 7165) over
// `driveCount` drives shaped `first` x `second`; for 7165 the drives are two arrays.
// `stripe` is sent at 48, `policy` at 52, `capacity` (MiB) at 56. At most eight spare
// names are read; names that don't resolve are left out of the spare count. The name
// is cut at 32 bytes. With `id` 0 a new ID is drawn, avoiding IDs in use. With `wait`
// set the call returns when the array's task ends. With `newNameOut` (80 bytes) the
// new array's device name is written there.
// Returns 1; 7 for bad shapes, types, a zero capacity or a cache tag size other than
// 0, 64, 128 or 256 (printing "invalid cachetag size=%d\n"); 61, 62 or 63 for the
// device lists; 8 without a control device; 10 or 11 for unknown names or when the new
// array can't be found afterwards; 3 when the name can't be composed; 38 after three
// stale tries; 48 when the request can't be allocated; otherwise the driver's status.
std::uint32_t SK_ApiCreateLogicalDevice(const SK_CoreEntry *core, std::uint32_t type,
                                        std::uint32_t driveCount, std::uint32_t spareCount,
                                        std::uint32_t stripe, std::uint32_t cacheTagSize,
                                        std::uint32_t policy, std::uint64_t capacity,
                                        std::uint32_t first, std::uint32_t second,
                                        const SK_DeviceName *drives, const SK_DeviceName *spares,
                                        const char *name, std::uint32_t nameLength,
                                        std::uint32_t p0, std::uint32_t p1, std::uint32_t p2,
                                        std::uint64_t id, std::uint32_t wait, char *newNameOut);

// Asks the driver what a create of that shape would yield (read code 4109, the create
// fields four bytes further on, the policy with bit 0x2000). The capacity may be 0.
// 176 bytes of the reply are copied to `infoOut` whenever the read was made, also
// when the driver refused it. `reserved` is not used.
// Returns the read's status; 7, 61, 62, 63, 8, 10, 11, 38 or 48 as for the create.
std::uint32_t SK_ApiGetCreateInfo(const SK_CoreEntry *core, std::uint32_t type,
                                  std::uint32_t driveCount, std::uint32_t spareCount,
                                  std::uint32_t stripe, std::uint32_t cacheTagSize,
                                  std::uint32_t policy, std::uint64_t capacity, std::uint32_t first,
                                  std::uint32_t second, const SK_DeviceName *drives,
                                  const SK_DeviceName *spares, std::uint32_t p0, std::uint32_t p1,
                                  std::uint32_t p2, std::uint32_t reserved, std::uint32_t option,
                                  std::uint8_t *infoOut);

// Transforms the named array (command 8) into `type` (7157, 7158, 7159, 7162 or 7163)
// over `driveCount` drives; waits for the task with `wait` set.
// Returns 1; 7, 61, 62, 63, 8, 10, 11, 38 or 48; 9 when a waited transform failed;
// otherwise the driver's status.
std::uint32_t SK_ApiTransformLogicalDevice(const SK_CoreEntry *core, const char *arrayName,
                                           std::uint32_t type, std::uint32_t driveCount,
                                           std::uint32_t spareCount, std::uint32_t stripe,
                                           std::uint64_t capacity, std::uint32_t first,
                                           std::uint32_t second, const SK_DeviceName *drives,
                                           const SK_DeviceName *spares, std::uint32_t p0,
                                           std::uint32_t p1, std::uint32_t p2, std::uint32_t wait);

// Asks what a transform would yield (read code 4108); 144 bytes of the reply go to
// `infoOut` whenever the read was made. The capacity may be 0.
// Returns the read's status; before any read 7, 61, 62, 63, 8, 10, 11, 38 or 48.
std::uint32_t SK_ApiGetTransformInfo(const SK_CoreEntry *core, const char *arrayName,
                                     std::uint32_t type, std::uint32_t driveCount,
                                     std::uint32_t spareCount, std::uint32_t stripe,
                                     std::uint64_t capacity, std::uint32_t first,
                                     std::uint32_t second, const SK_DeviceName *drives,
                                     const SK_DeviceName *spares, std::uint32_t p0,
                                     std::uint32_t p1, std::uint32_t p2, std::uint32_t option,
                                     std::uint8_t *infoOut);

// Deletes `count` named arrays, or every array of the core with `all`, in one request
// (command 3). An array that others are built on is refused unless `force` is set.
// Afterwards each deleted legacy array (7161) whose first member is a legacy disk
// (4611) has that disk's metadata cleared (command 4).
// Returns 1 (also with `all` on a core without arrays); 7 with neither a count nor
// `all`; 62 or 63 for names; 8; 10 for an unknown name or a core without arrays;
// 77 for an array in use; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiDeleteLogicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                        const SK_DeviceName *list, std::uint32_t all,
                                        std::uint32_t force, std::uint32_t option);

// Splits the named array (command 14). Only a 7158 or 7159 shape with a non-zero first
// count is sent as given; anything else goes as type 7158 with no drives.
// Returns 1; 7; 61, 62, 63; 8; 10, 11; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiSplitLogicalDevice(const SK_CoreEntry *core, const char *arrayName,
                                       std::uint32_t type, std::uint32_t driveCount,
                                       std::uint32_t first, std::uint32_t second,
                                       const SK_DeviceName *drives, std::uint32_t parameter,
                                       std::uint32_t option);

// Copies one array onto another (command 35). `start` and `size` are sent shifted left
// by 11 bits. With `wait` the call returns when the target's task ends.
// Returns 1; 7; 62 when a name is of another core; 8; 10; 38; 48; 9 when a waited copy
// failed; otherwise the driver's status.
std::uint32_t SK_ApiCopyLogicalDevice(const SK_CoreEntry *core, const char *source,
                                      const char *target, std::uint64_t start, std::uint64_t size,
                                      std::uint32_t p0, std::uint32_t p1, std::uint32_t wait);

// Asks the driver to go back to the configuration of `generation` (command 36).
// Returns 1; 7; 8; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiCommitPreviousConfig(const SK_CoreEntry *core, std::uint64_t generation,
                                         std::uint32_t option);
