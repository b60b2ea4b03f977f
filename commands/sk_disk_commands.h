#pragma once
// Commands aimed at disks: per-disk settings, spares, initialise, rescan, the buzzer,
// and the data paths that read or write through a disk.

#include "commands/sk_command_frame.h"

// Pass-through descriptor given by the caller. `Kind` chooses how the rest is read:
// 1: a 96-byte command block from byte 4 and its length at byte 100;
// 2: a 16-byte block from byte 4 and its length at byte 20;
// 3: the direction in byte 4, a 48-byte block from byte 4 and its length at byte 52;
//    16 bytes of the reply come back into the descriptor at byte 40.
struct SK_PassThrough
{
    std::uint32_t Kind;
    std::uint8_t Body[100];
};
static_assert(sizeof(SK_PassThrough) == 104, "SK_PassThrough is a 104-byte descriptor");

constexpr std::uint32_t SK_PASS_THROUGH_READ_MAX = 0x10000;
constexpr std::uint32_t SK_PASS_THROUGH_WRITE_MAX = 4096;
constexpr std::uint32_t SK_PASS_THROUGH_DATA_AT = 1024;
constexpr std::uint32_t SK_METADATA_READ_MAX = 0x20000;

// Fields of the initialise request (command 4), also sent for a legacy disk that a
// deleted array leaves behind.
namespace SK_InitializeRequest {
constexpr std::size_t All = 32, Count = 36, Mode = 40, References = 44;
} // namespace SK_InitializeRequest

// Sends `subcode` (SK_DISK_...) to each of `count` named disks, one request a disk,
// or with `all` to every disk of type 4608, 4610 or 4611. Stops at the first disk
// that fails.
// Returns 1; 7 with no list and no `all`; 63 for a name of another core; 8; 11 for an
// unknown name; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiManagePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                         const SK_DeviceName *list, std::uint32_t all,
                                         std::uint32_t subcode, std::uint32_t option);

// Sends a subcode with a reply (16398 to 16404, the SMART reads) to one disk and reads
// `replySize` bytes of the reply (read code 4116) into `replyBuffer`, on the same
// channel. The read sends 8192 bytes from `replyBuffer` first, so it must be a tracked
// block (SKTL_Alloc) of at least 8192 bytes; the reply starts at its first byte.
// Returns the reply read's status (43 or 30: the disk has no SMART data; 6 for an
// untracked buffer); 7 for a count other than 1, a missing buffer, or a subcode without
// a reply, which has then already been sent; 63; 8; 11; 38; 48; otherwise the
// command's status.
std::uint32_t SK_ApiManagePhysicalDeviceBuf(const SK_CoreEntry *core, std::uint32_t count,
                                            const SK_DeviceName *list, std::uint32_t all,
                                            std::uint32_t subcode, std::uint8_t *replyBuffer,
                                            std::uint32_t replySize, std::uint32_t reserved,
                                            std::uint32_t option);

// Sends `subcode` once for the whole list (or every disk of type 4608, 4610 or 4611
// with `all`); a list with no names goes as an empty list.
// Returns 1; 7 with no list and no `all`; 63; 8; 11; 38; 48; otherwise the driver's
// status.
std::uint32_t SK_ApiDirectManagePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                               const SK_DeviceName *list, std::uint32_t all,
                                               std::uint32_t subcode, std::uint32_t option);

// Adds (`add` with a count above 0) or removes spares: global spares with `global` 1,
// else dedicated spares of `arrayName`.
// Returns 1; 7; 62 for an array name and 63 for a disk name of another core; 8; 10;
// 11; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiManageSpare(const SK_CoreEntry *core, const char *arrayName,
                                std::uint32_t count, const SK_DeviceName *list, std::uint32_t add,
                                std::uint32_t global, std::uint32_t option);

// Initialises `count` named disks, or every disk with `all` after deleting every array
// of the core; `mode` 1 clears the driver's metadata.
// Returns 1; 7; 63; 8; 11; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiInitializePhysicalDevice(const SK_CoreEntry *core, std::uint32_t count,
                                             const SK_DeviceName *list, std::uint32_t all,
                                             std::uint32_t mode, std::uint32_t option);

// Asks the driver to look for disks again (command 16), on `core` or with `allCores`
// on every core found.
// Returns 1; 7; 8 without a control device or when no core is found; 26 or 48 from the
// enumeration; 38; otherwise the driver's status.
std::uint32_t SK_ApiRescan(const SK_CoreEntry *core, std::uint32_t allCores, std::uint32_t option);

// Turns the controller's buzzer on (command 45) or off (46); sent once, never retried.
// Returns 1; 7; 8; 26 or 48 from the enumeration; otherwise the driver's status.
std::uint32_t SK_ApiBuzz(const SK_CoreEntry *core, std::uint32_t allCores, std::uint32_t reserved,
                         std::uint32_t on);

// Passes a command block through to the named disk, reading up to 0x10000 bytes into
// `data` (read code 4123) or writing up to 4096 bytes from it (4124). `statusOut`
// receives the device status, the first two words of the reply.
// Returns 1; 6 for a size over the limit; 7 for a bad descriptor or argument; 63; 8;
// 11; 38; 48; otherwise the read's status.
std::uint32_t SK_ApiPhysicalDevicePassThroughRead(const SK_CoreEntry *core, const char *name,
                                                  std::uint32_t mode, SK_PassThrough *descriptor,
                                                  std::uint8_t *data, std::uint32_t size,
                                                  std::uint32_t *statusOut);
std::uint32_t SK_ApiPhysicalDevicePassThroughWrite(const SK_CoreEntry *core, const char *name,
                                                   std::uint32_t mode, SK_PassThrough *descriptor,
                                                   const std::uint8_t *data, std::uint32_t size,
                                                   std::uint32_t *statusOut);

// Reads `size` bytes of the driver's metadata area of the named disk from `sector`
// (read code 4121) into `buffer`.
// Returns 1; 6 for more than 0x20000 bytes; 7; 63; 8; 11; 38; 48; otherwise the
// read's status.
std::uint32_t SK_ApiReadDiskMetaData(const SK_CoreEntry *core, const char *name,
                                     std::uint8_t *buffer, std::uint64_t sector, std::uint32_t size,
                                     std::uint32_t option);

// 1 when `data` starts with one of the two headers that mark valid metadata, else 0.
std::uint32_t SK_IsValidMetaDataHeader(const std::uint8_t *data, std::uint32_t size);
