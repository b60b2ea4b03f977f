#pragma once
// Little-endian byte access for the emulated drivers. Deliberately separate from the
// console's own helpers: the two sides of the protocol are written independently so
// the protocol tests compare two readings of the same layout.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace sk_emu::wire {

inline std::uint32_t u8(const std::uint8_t *p, std::size_t at)
{
    return p[at];
}
inline std::uint32_t u16(const std::uint8_t *p, std::size_t at)
{
    return static_cast<std::uint32_t>(p[at] | (p[at + 1] << 8));
}
inline std::uint32_t u32(const std::uint8_t *p, std::size_t at)
{
    return static_cast<std::uint32_t>(p[at]) | static_cast<std::uint32_t>(p[at + 1]) << 8 |
           static_cast<std::uint32_t>(p[at + 2]) << 16 |
           static_cast<std::uint32_t>(p[at + 3]) << 24;
}
inline std::uint64_t u64(const std::uint8_t *p, std::size_t at)
{
    return u32(p, at) | static_cast<std::uint64_t>(u32(p, at + 4)) << 32;
}

inline void put8(std::uint8_t *p, std::size_t at, std::uint32_t v)
{
    p[at] = static_cast<std::uint8_t>(v);
}
inline void put16(std::uint8_t *p, std::size_t at, std::uint32_t v)
{
    p[at] = static_cast<std::uint8_t>(v);
    p[at + 1] = static_cast<std::uint8_t>(v >> 8);
}
inline void put32(std::uint8_t *p, std::size_t at, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        p[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
}
inline void put64(std::uint8_t *p, std::size_t at, std::uint64_t v)
{
    put32(p, at, static_cast<std::uint32_t>(v));
    put32(p, at + 4, static_cast<std::uint32_t>(v >> 32));
}
// Writes text into a fixed field without a terminator when it fills the field.
inline void putText(std::uint8_t *p, std::size_t at, std::size_t width, const std::string &text)
{
    std::memset(p + at, 0, width);
    std::memcpy(p + at, text.data(), text.size() < width ? text.size() : width);
}

} // namespace sk_emu::wire
