#pragma once
// The configuration image the drivers answer to read code 4096.

#include "emulator/sk_emu_model.h"

#include <vector>

namespace sk_emu {

// Layout constants of the image, as the drivers write it.
namespace image {
constexpr std::size_t MaxSize = 0x10000;
constexpr std::size_t HeaderSize = 512;
constexpr std::size_t GenerationAt = 52;
constexpr std::uint32_t TagDisk = 9660;
constexpr std::uint32_t TagArray = 9661;
constexpr std::uint32_t TagController = 9662;
constexpr std::uint32_t TagEnclosure = 9663;
constexpr std::size_t DiskSize = 256;
constexpr std::size_t DiskSizePrevious = 128;
constexpr std::size_t ControllerSize = 136;
constexpr std::size_t EnclosureSize = 64;
constexpr std::size_t ArrayFixedSize = 512;
constexpr std::size_t MemberSize = 64;
constexpr std::size_t ReferenceSize = 16;
} // namespace image

struct ImageOptions
{
    bool previousFormat = false; // 128-byte disk records
    std::uint32_t channelId = 0; // echoed in the header
};

// Writes the whole image: the core's own device first, then controllers, disks,
// enclosures and arrays. Records that would pass 0x10000 bytes are left out, so the
// image never exceeds it. An array in a transform appears twice with one device
// number: its source layout, then its destination layout.
std::vector<std::uint8_t> writeImage(const Model &model, const ImageOptions &options);

// Position of each array record and its layout in an image, for tools that annotate it.
std::size_t arrayRecordSize(const Layout &layout, const Array &array);

} // namespace sk_emu
