#pragma once
// Firmware of the controllers and of disks: checking an image, sending it region by
// region in 4096-byte blocks, and reading firmware back.
//
// Controller firmware image, little-endian u32 words that sum to 0:
//   0   magic SK_FIRMWARE_MAGIC
//   4   number of PCI pairs
//   8   number of regions
//   12  balance word (chosen so that the words sum to 0)
//   16  PCI pairs, 4 bytes each: u16 vendor, u16 device
//   then regions, 12 bytes each: u32 target address, u32 offset in the image, u32 size
//
// A block request (command 37 for a controller region, 49 for a disk image) is 5120
// bytes: a 1024-byte header and up to 4096 bytes of data from byte 1024. Header fields
// behind the request header:
//   32  u64 controller ID (37) or disk ID (49); for 49 the disk's routes at 40 and 42
//   44  size of the whole region or image
//   48  CRC-32 of the whole region or image
//   52  sequence number of this block, from 0
//   56  number of blocks
//   60  offset of this block in the region or image
//   64  bytes of data in this block
//   68  1 on the last block
//   72  target address of the region (37)

#include "commands/sk_command_frame.h"

constexpr std::uint32_t SK_FIRMWARE_MAGIC = 0x9012000;
constexpr std::uint32_t SK_FIRMWARE_HEADER_SIZE = 16;
constexpr std::uint32_t SK_FIRMWARE_PCI_PAIR_SIZE = 4;
constexpr std::uint32_t SK_FIRMWARE_REGION_ENTRY_SIZE = 12;
constexpr std::uint32_t SK_FIRMWARE_BLOCK_SIZE = 4096;
constexpr std::uint32_t SK_FIRMWARE_DATA_AT = 1024;
constexpr std::uint32_t SK_FIRMWARE_REGION_MAX = 0x200000;
constexpr std::uint32_t SK_HDD_FIRMWARE_MAX = 0x300000;

// Offsets of the block request header.
namespace SK_FirmwareBlock {
constexpr std::size_t Device = 32, DeviceRoute = 40, CoreRoute = 42, TotalSize = 44, Crc = 48,
                      Sequence = 52, BlockCount = 56, Offset = 60, Size = 64, Last = 68,
                      Address = 72;
} // namespace SK_FirmwareBlock

// CRC-32 with the polynomial 0xEDB88320, starting from all ones, inverted at the end.
std::uint32_t SK_Crc32(const std::uint8_t *data, std::size_t size);

// One region of a checked image.
struct SK_FirmwareRegion
{
    std::uint32_t Address;
    std::uint32_t Offset;
    std::uint32_t Size;
};

// Checks a controller image: it starts with the magic, is a whole number of words,
// its words sum to 0, and its tables and regions lie inside it, each region at most
// 0x200000 bytes.
// Returns 1; 7 for a null image; 21 (SK_STS_INVALID_BUFFER) for a bad magic, length,
// table or region; 72 (SK_STS_INVALID_CHECKSUM) when the words don't sum to 0.
std::uint32_t SK_CheckFirmwareImage(const std::uint8_t *image, std::uint32_t size);

// Region `index` of a checked image; false when there is no such region.
bool SK_FirmwareImageRegion(const std::uint8_t *image, std::uint32_t size, std::uint32_t index,
                            SK_FirmwareRegion *regionOut);

// Checks the image and that it is meant for the controller: one of its PCI pairs must
// be the controller's (command 41).
// Returns 1; 7; 21 or 72 for a bad image; 73 when no pair matches.
std::uint32_t SK_ApiUpdateFirmwareInit(const SK_CoreEntry *core, std::uint64_t controllerId,
                                       const std::uint8_t *image, std::uint32_t size);

// Sends one region of `size` bytes to the controller's `address` in blocks of up to
// 4096 bytes (command 37), each with the region's CRC-32; the last block is flagged.
// Returns 1; 7 for a null argument or an empty region; 71 (SK_STS_IO_SIZE_TOO_LARGE)
// for a region above 0x200000 bytes; 8; 38; 48; otherwise the driver's status, and the
// blocks after a refused one are not sent.
std::uint32_t SK_ApiUpdateFirmwareRegion(const SK_CoreEntry *core, std::uint64_t controllerId,
                                         std::uint32_t address, const std::uint8_t *data,
                                         std::uint32_t size, std::uint32_t option);

// Sends a disk firmware image of at most 0x300000 bytes to the named disk (command
// 49), in blocks of 4096 bytes with one CRC-32 over the whole image.
// Returns 1; 7; 71 for a larger image; 63; 8; 11; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiUpdateHDDFirmware(const SK_CoreEntry *core, const char *diskName,
                                      const std::uint8_t *image, std::uint32_t size,
                                      std::uint32_t option);

// Reads `size` bytes of the controller's firmware from `address` (read code 4117) into
// `buffer`.
// Returns the read's status; 7; 8; 48.
std::uint32_t SK_ApiReadFirmware(const SK_CoreEntry *core, std::uint64_t controllerId,
                                 std::uint32_t address, std::uint8_t *buffer, std::uint32_t size);
