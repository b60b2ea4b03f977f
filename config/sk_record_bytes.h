#pragma once
// Bounded little-endian access to one record of the configuration image. Every field
// is read through here with the length the image walk measured, so a record cut short
// reads as zeroes past its end instead of reading whatever follows it.

#include "driver/sk_types.h"

class SK_RecordBytes
{
public:
    SK_RecordBytes(const std::uint8_t *record, std::uint32_t length)
        : m_record(record), m_length(record ? length : 0)
    {
    }

    bool fits(std::uint64_t offset, std::uint64_t width) const
    {
        return offset <= m_length && width <= m_length - offset;
    }
    std::uint16_t u16(std::uint32_t offset) const
    {
        return fits(offset, 2) ? SK_GetU16(m_record, offset) : 0;
    }
    std::uint32_t u32(std::uint32_t offset) const
    {
        return fits(offset, 4) ? SK_GetU32(m_record, offset) : 0;
    }
    std::uint64_t u64(std::uint32_t offset) const
    {
        return fits(offset, 8) ? SK_GetU64(m_record, offset) : 0;
    }
    std::uint8_t u8(std::uint32_t offset) const { return fits(offset, 1) ? m_record[offset] : 0; }

    // Copies a text field of `width` bytes into `out` (width + 1 bytes), stopping at
    // the first zero byte, and terminates it. A field past the end reads as empty.
    void text(std::uint32_t offset, std::uint32_t width, char *out) const
    {
        std::uint32_t n = 0;
        if (fits(offset, width)) {
            for (; n < width && m_record[offset + n] != 0; ++n)
                out[n] = static_cast<char>(m_record[offset + n]);
        }
        out[n] = '\0';
    }

    // Copies `width` raw bytes (zero past the end of the record).
    void bytes(std::uint32_t offset, std::uint32_t width, char *out) const
    {
        for (std::uint32_t i = 0; i < width; ++i)
            out[i] = static_cast<char>(u8(offset + i));
    }

    const std::uint8_t *data() const { return m_record; }
    std::uint32_t length() const { return m_length; }

private:
    const std::uint8_t *m_record;
    std::uint32_t m_length;
};
