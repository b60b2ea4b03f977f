#include "commands/sk_firmware.h"

#include "commands/sk_diagnostics.h"

#include <algorithm>

namespace {

// The image's header, then its PCI pairs and its region table.
namespace header {
constexpr std::size_t Magic = 0, PciPairs = 4, Regions = 8;
} // namespace header
namespace pciPair {
constexpr std::size_t Vendor = 0, Device = 2;
} // namespace pciPair
namespace regionEntry {
constexpr std::size_t Address = 0, Offset = 4, Size = 8;
} // namespace regionEntry

// Firmware read (4117).
namespace firmwareRead {
constexpr std::size_t Controller = 36, Size = 48, Address = 52;
} // namespace firmwareRead

std::uint32_t pciPairCount(const std::uint8_t *image)
{
    return SK_GetU32(image, header::PciPairs);
}

std::uint32_t regionCount(const std::uint8_t *image)
{
    return SK_GetU32(image, header::Regions);
}

std::uint64_t regionTableAt(const std::uint8_t *image)
{
    return SK_FIRMWARE_HEADER_SIZE + std::uint64_t{pciPairCount(image)} * SK_FIRMWARE_PCI_PAIR_SIZE;
}

// Sends `size` bytes as numbered blocks of up to 4096 bytes. `describe(request)` fills
// the fields that name the target; each block gets its own fresh core, since a block
// the driver takes may move the generation on. One request serves every block, so the
// lock and the allocation are spelt out here.
template <class Describe>
std::uint32_t sendBlocks(const SK_CoreEntry *core, const char *tag, std::uint32_t command,
                         const std::uint8_t *data, std::uint32_t size, std::uint32_t option,
                         Describe &&describe)
{
    SKTL_LockGuard lock;
    SKTL_AlignedBuffer request(SK_BLOCK_REQUEST_SIZE, tag);
    if (!request.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    const std::uint32_t crc = SK_Crc32(data, size);
    const std::uint32_t blocks = (size + SK_FIRMWARE_BLOCK_SIZE - 1) / SK_FIRMWARE_BLOCK_SIZE;
    for (std::uint32_t block = 0; block < blocks; ++block) {
        const std::uint32_t offset = block * SK_FIRMWARE_BLOCK_SIZE;
        const std::uint32_t length = std::min(SK_FIRMWARE_BLOCK_SIZE, size - offset);
        const std::uint32_t status =
            SK_RetryRequest(core, request, [&](SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                const std::uint32_t described = describe(open, r);
                if (described != SK_STS_SUCCESS)
                    return described;
                SK_PutU32(r, SK_HDR_OPTION, option);
                SK_PutU32(r, SK_FirmwareBlock::TotalSize, size);
                SK_PutU32(r, SK_FirmwareBlock::Crc, crc);
                SK_PutU32(r, SK_FirmwareBlock::Sequence, block);
                SK_PutU32(r, SK_FirmwareBlock::BlockCount, blocks);
                SK_PutU32(r, SK_FirmwareBlock::Offset, offset);
                SK_PutU32(r, SK_FirmwareBlock::Size, length);
                SK_PutU32(r, SK_FirmwareBlock::Last, block + 1 == blocks ? 1 : 0);
                std::memcpy(r + SK_FIRMWARE_DATA_AT, data + offset, length);
                return open.SK_ConfigWrite(r, SK_BLOCK_REQUEST_SIZE, command);
            });
        if (status != SK_STS_SUCCESS)
            return status;
    }
    return SK_STS_SUCCESS;
}

} // namespace

std::uint32_t SK_Crc32(const std::uint8_t *data, std::size_t size)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (std::size_t i = 0; data && i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

std::uint32_t SK_CheckFirmwareImage(const std::uint8_t *image, std::uint32_t size)
{
    if (!image)
        return SKTL_STS_INVALID_PARAMETER;
    if (size < SK_FIRMWARE_HEADER_SIZE || size % 4 != 0 ||
        SK_GetU32(image, header::Magic) != SK_FIRMWARE_MAGIC)
        return SK_STS_INVALID_BUFFER;
    std::uint32_t sum = 0;
    for (std::uint32_t at = 0; at < size; at += 4)
        sum += SK_GetU32(image, at);
    if (sum != 0)
        return SK_STS_INVALID_CHECKSUM;
    const std::uint64_t tablesEnd =
        regionTableAt(image) + std::uint64_t{regionCount(image)} * SK_FIRMWARE_REGION_ENTRY_SIZE;
    if (tablesEnd > size)
        return SK_STS_INVALID_BUFFER;
    for (std::uint32_t i = 0; i < regionCount(image); ++i) {
        SK_FirmwareRegion region{};
        SK_FirmwareImageRegion(image, size, i, &region);
        if (region.Size == 0 || region.Size > SK_FIRMWARE_REGION_MAX ||
            std::uint64_t{region.Offset} + region.Size > size)
            return SK_STS_INVALID_BUFFER;
    }
    return SK_STS_SUCCESS;
}

bool SK_FirmwareImageRegion(const std::uint8_t *image, std::uint32_t size, std::uint32_t index,
                            SK_FirmwareRegion *regionOut)
{
    if (!image || !regionOut || size < SK_FIRMWARE_HEADER_SIZE || index >= regionCount(image))
        return false;
    const std::uint64_t at =
        regionTableAt(image) + std::uint64_t{index} * SK_FIRMWARE_REGION_ENTRY_SIZE;
    if (at + SK_FIRMWARE_REGION_ENTRY_SIZE > size)
        return false;
    const auto entry = static_cast<std::size_t>(at);
    regionOut->Address = SK_GetU32(image, entry + regionEntry::Address);
    regionOut->Offset = SK_GetU32(image, entry + regionEntry::Offset);
    regionOut->Size = SK_GetU32(image, entry + regionEntry::Size);
    return true;
}

std::uint32_t SK_ApiUpdateFirmwareInit(const SK_CoreEntry *core, std::uint64_t controllerId,
                                       const std::uint8_t *image, std::uint32_t size)
{
    if (!core)
        return SKTL_STS_INVALID_PARAMETER;
    const std::uint32_t status = SK_CheckFirmwareImage(image, size);
    if (status != SK_STS_SUCCESS)
        return status;
    for (std::uint32_t i = 0; i < pciPairCount(image); ++i) {
        const std::size_t at = SK_FIRMWARE_HEADER_SIZE + i * SK_FIRMWARE_PCI_PAIR_SIZE;
        if (SK_ApiDirectCheckControllerPCIID(
                core, controllerId, SK_GetU16(image, at + pciPair::Vendor),
                SK_GetU16(image, at + pciPair::Device)) == SK_STS_SUCCESS)
            return SK_STS_SUCCESS;
    }
    return SK_STS_INVALID_PCI_ID;
}

std::uint32_t SK_ApiUpdateFirmwareRegion(const SK_CoreEntry *core, std::uint64_t controllerId,
                                         std::uint32_t address, const std::uint8_t *data,
                                         std::uint32_t size, std::uint32_t option)
{
    if (!core || !data || size == 0)
        return SKTL_STS_INVALID_PARAMETER;
    if (size > SK_FIRMWARE_REGION_MAX)
        return SK_STS_IO_SIZE_TOO_LARGE;
    return sendBlocks(core, __func__, SK_CMD_FIRMWARE_BLOCK, data, size, option,
                      [&](const SK_Core &, std::uint8_t *r) -> std::uint32_t {
                          SK_PutU64(r, SK_FirmwareBlock::Device, controllerId);
                          SK_PutU32(r, SK_FirmwareBlock::Address, address);
                          return SK_STS_SUCCESS;
                      });
}

std::uint32_t SK_ApiUpdateHDDFirmware(const SK_CoreEntry *core, const char *diskName,
                                      const std::uint8_t *image, std::uint32_t size,
                                      std::uint32_t option)
{
    if (!core || !diskName || !image || size == 0)
        return SKTL_STS_INVALID_PARAMETER;
    if (size > SK_HDD_FIRMWARE_MAX)
        return SK_STS_IO_SIZE_TOO_LARGE;
    const std::uint32_t status = SK_CheckDiskName(core, diskName);
    if (status != SK_STS_SUCCESS)
        return status;
    return sendBlocks(core, __func__, SK_CMD_HDD_FIRMWARE, image, size, option,
                      [&](const SK_Core &open, std::uint8_t *r) -> std::uint32_t {
                          const SK_C_PhysicalDevice *disk = SK_LookupDisk(open, diskName);
                          if (!disk)
                              return SK_STS_PHYSICAL_DEVICE_NOT_FOUND;
                          SK_PutU64(r, SK_FirmwareBlock::Device, disk->ID);
                          SK_PutU16(r, SK_FirmwareBlock::DeviceRoute, disk->DeviceRoute);
                          SK_PutU16(r, SK_FirmwareBlock::CoreRoute, disk->CoreRoute);
                          return SK_STS_SUCCESS;
                      });
}

std::uint32_t SK_ApiReadFirmware(const SK_CoreEntry *core, std::uint64_t controllerId,
                                 std::uint32_t address, std::uint8_t *buffer, std::uint32_t size)
{
    if (!core || !buffer)
        return SKTL_STS_INVALID_PARAMETER;
    return SK_ReadInto(core, __func__, SK_READ_FIRMWARE, buffer, size,
                       [&](const SK_Core &, std::uint8_t *r) -> std::uint32_t {
                           SK_PutU64(r, firmwareRead::Controller, controllerId);
                           SK_PutU32(r, firmwareRead::Size, size);
                           SK_PutU32(r, firmwareRead::Address, address);
                           return SK_STS_SUCCESS;
                       });
}
