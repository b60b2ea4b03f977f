#include "config/sk_report_writer.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>

SK_ReportWriter::SK_ReportWriter(char *buffer, std::uint32_t size, std::uint32_t position,
                                 std::uint32_t compact, std::uint32_t xml, std::uint32_t depth)
    : m_buffer(buffer), m_size(buffer ? size : 0), m_position(position), m_compact(compact != 0),
      m_xml(xml != 0), m_depth(depth)
{
    if (m_size == 0)
        m_position = 0;
    else if (m_position >= m_size)
        m_position = m_size - 1;
}

bool SK_ReportWriter::hasRoom(std::uint32_t room) const
{
    return m_position < m_size && m_size - m_position >= room;
}

void SK_ReportWriter::put(const char *text)
{
    if (m_size == 0 || !text)
        return;
    const std::size_t length = std::strlen(text);
    const std::size_t room = m_size - 1 - m_position;
    const std::size_t n = length < room ? length : room;
    std::memcpy(m_buffer + m_position, text, n);
    m_position += static_cast<std::uint32_t>(n);
    m_buffer[m_position] = '\0';
}

void SK_ReportWriter::indent()
{
    if (m_compact)
        return;
    for (std::uint32_t i = 0; i < m_depth; ++i)
        put("  ");
}

void SK_ReportWriter::element(const char *tag, const char *value)
{
    indent();
    put("<");
    put(tag);
    put(">");
    put(value);
    put("</");
    put(tag);
    put(">");
    if (!m_compact)
        put("\n");
}

void SK_ReportWriter::text(const char *key, const char *tag, const char *value)
{
    if (m_xml) {
        element(tag, value ? value : "");
        return;
    }
    put(key);
    put(": ");
    put(value && *value ? value : "NONE");
    put(" ");
}

void SK_ReportWriter::caret(const char *key, const char *tag, const char *value)
{
    if (m_xml || !value || !*value) {
        text(key, tag, value);
        return;
    }
    put(key);
    put(": ^");
    put(value);
    put("^ ");
}

void SK_ReportWriter::number(const char *key, const char *tag, std::int32_t value)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "%d", value);
    text(key, tag, digits);
}

void SK_ReportWriter::hex16(const char *key, const char *tag, std::uint32_t value)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "0x%04x", value);
    text(key, tag, digits);
}

void SK_ReportWriter::hex32(const char *key, const char *tag, std::uint32_t value)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "0x%08x", value);
    text(key, tag, digits);
}

void SK_ReportWriter::hex64(const char *key, const char *tag, std::uint64_t value)
{
    char digits[24];
    std::snprintf(digits, sizeof digits, "0x%016" PRIx64, value);
    text(key, tag, digits);
}

void SK_ReportWriter::percent(const char *key, const char *tag, float value)
{
    char digits[48];
    std::snprintf(digits, sizeof digits, "%3.4f", static_cast<double>(value));
    text(key, tag, digits);
}

void SK_ReportWriter::open(const char *tag)
{
    if (!m_xml)
        return;
    indent();
    put("<");
    put(tag);
    put(">");
    if (!m_compact)
        put("\n");
    ++m_depth;
}

void SK_ReportWriter::close(const char *tag)
{
    if (!m_xml)
        return;
    if (m_depth > 0)
        --m_depth;
    indent();
    put("</");
    put(tag);
    put(">");
    if (!m_compact)
        put("\n");
}

void SK_ReportWriter::endLine()
{
    if (!m_xml)
        put("\n");
}

void SK_ReportWriter::plainBreak()
{
    if (!m_xml && !m_compact)
        put("\n");
}

void SK_CaretSafe(char *field, std::uint32_t width)
{
    for (std::uint32_t i = 0; i < width && field[i]; ++i) {
        if (field[i] == '^')
            field[i] = '_';
    }
}

void SK_BlankSafe(char *field, std::uint32_t width)
{
    std::uint32_t i = 0;
    while (i < width && field[i] == ' ')
        ++i;
    for (; i < width && field[i]; ++i) {
        if (field[i] == ' ')
            field[i] = '_';
    }
}
