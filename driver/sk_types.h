#pragma once
// Basic types shared by the whole plain C++ half: handles, core entries and the
// little-endian field access every byte layout of the driver protocol goes through.

#include <cstddef>
#include <cstdint>
#include <cstring>

// Handle of an open device; 0 means "not open".
using SK_Handle = std::uint64_t;

// Names one driver instance (36 bytes, passed by pointer through every command).
struct SK_CoreEntry
{
    std::uint32_t CoreNumber;
    char BusName[16];
    char CoreName[16];
};
static_assert(sizeof(SK_CoreEntry) == 36, "SK_CoreEntry is a 36-byte wire value");

// Little-endian field access at byte offsets. The driver protocol is little-endian
// whatever the host is, so no layout is ever read through a struct cast.
inline std::uint16_t SK_GetU16(const void *base, std::size_t offset)
{
    const auto *p = static_cast<const std::uint8_t *>(base) + offset;
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

inline std::uint32_t SK_GetU32(const void *base, std::size_t offset)
{
    const auto *p = static_cast<const std::uint8_t *>(base) + offset;
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

inline std::uint64_t SK_GetU64(const void *base, std::size_t offset)
{
    return static_cast<std::uint64_t>(SK_GetU32(base, offset)) |
           (static_cast<std::uint64_t>(SK_GetU32(base, offset + 4)) << 32);
}

inline void SK_PutU16(void *base, std::size_t offset, std::uint16_t value)
{
    auto *p = static_cast<std::uint8_t *>(base) + offset;
    p[0] = static_cast<std::uint8_t>(value);
    p[1] = static_cast<std::uint8_t>(value >> 8);
}

inline void SK_PutU32(void *base, std::size_t offset, std::uint32_t value)
{
    auto *p = static_cast<std::uint8_t *>(base) + offset;
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

inline void SK_PutU64(void *base, std::size_t offset, std::uint64_t value)
{
    SK_PutU32(base, offset, static_cast<std::uint32_t>(value));
    SK_PutU32(base, offset + 4, static_cast<std::uint32_t>(value >> 32));
}

// Copies a C string into a fixed field, always terminated, never past the field.
inline void SK_CopyText(char *field, std::size_t fieldSize, const char *text)
{
    if (fieldSize == 0)
        return;
    std::size_t n = text ? std::strlen(text) : 0;
    if (n >= fieldSize)
        n = fieldSize - 1;
    if (n)
        std::memcpy(field, text, n);
    field[n] = '\0';
}
