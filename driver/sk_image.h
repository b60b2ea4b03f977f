#pragma once
// Layout facts of the configuration image that the channel needs to size the record
// tables: the header, the record tags and how long each record is.

#include "driver/sk_types.h"

constexpr std::uint32_t SK_IMAGE_SIZE = 0x10000;
constexpr std::uint32_t SK_IMAGE_HEADER_SIZE = 512;
constexpr std::uint32_t SK_IMAGE_GENERATION_OFFSET = 52;

constexpr std::uint32_t SK_TAG_DISK = 9660;
constexpr std::uint32_t SK_TAG_ARRAY = 9661;
constexpr std::uint32_t SK_TAG_CONTROLLER = 9662;
constexpr std::uint32_t SK_TAG_ENCLOSURE = 9663;

constexpr std::uint32_t SK_DISK_RECORD_SIZE = 256;
constexpr std::uint32_t SK_DISK_RECORD_SIZE_PREVIOUS = 128;
constexpr std::uint32_t SK_CONTROLLER_RECORD_SIZE = 136;
constexpr std::uint32_t SK_ENCLOSURE_RECORD_SIZE = 64;
constexpr std::uint32_t SK_ARRAY_FIXED_SIZE = 512;
constexpr std::uint32_t SK_ARRAY_LENGTH_OFFSET = 144;

// One record found by the walk.
struct SK_ImageRecord
{
    std::uint32_t tag;
    std::uint32_t offset;
    std::uint32_t length;
};

// Walks the records from offset 512 and calls `visit(record)` for each, in image order.
// The walk ends at tag 0, at an unknown tag, at the end of `size`, and at a record that
// could not be real: an array shorter than its fixed part or any record running past
// the image. Records before such a point are kept. `previous` selects the 128-byte disk
// records of a previous-generation image. Returns the number of records visited.
template <class Visitor>
std::uint32_t SK_WalkImage(const std::uint8_t *image, std::uint32_t size, bool previous,
                           Visitor &&visit)
{
    std::uint32_t visited = 0;
    std::uint32_t offset = SK_IMAGE_HEADER_SIZE;
    while (offset <= size && size - offset >= 4) {
        const std::uint32_t tag = SK_GetU32(image, offset);
        std::uint32_t length = 0;
        switch (tag) {
        case SK_TAG_DISK:
            length = previous ? SK_DISK_RECORD_SIZE_PREVIOUS : SK_DISK_RECORD_SIZE;
            break;
        case SK_TAG_CONTROLLER:
            length = SK_CONTROLLER_RECORD_SIZE;
            break;
        case SK_TAG_ENCLOSURE:
            length = SK_ENCLOSURE_RECORD_SIZE;
            break;
        case SK_TAG_ARRAY:
            if (size - offset < SK_ARRAY_LENGTH_OFFSET + 4)
                return visited;
            length = SK_GetU32(image, offset + SK_ARRAY_LENGTH_OFFSET);
            if (length < SK_ARRAY_FIXED_SIZE)
                return visited;
            break;
        default:
            return visited; // tag 0 or unknown: the list ends here
        }
        if (length > size - offset)
            return visited;
        visit(SK_ImageRecord{tag, offset, length});
        ++visited;
        offset += length;
    }
    return visited;
}
