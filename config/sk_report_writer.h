#pragma once
// Appends the items of the configuration report to a caller's buffer, in either of
// its two shapes: token text ("key: value ") or tagged text ("<Tag>value</Tag>").
// Every write is bounded by the buffer: text that doesn't fit is cut, the buffer
// stays terminated, and the position never passes size - 1.

#include <cstdint>

// Room a record must find left in the buffer before it prints anything, and the
// smaller room of one member, spare or parent line.
constexpr std::uint32_t SK_RECORD_PRINT_ROOM = 512;
constexpr std::uint32_t SK_LINE_PRINT_ROOM = 256;

class SK_ReportWriter
{
public:
    // `depth` is the nesting of the record's own element in tagged form.
    SK_ReportWriter(char *buffer, std::uint32_t size, std::uint32_t position, std::uint32_t compact,
                    std::uint32_t xml, std::uint32_t depth);

    // True when at least `room` bytes are left behind the position.
    bool hasRoom(std::uint32_t room) const;
    std::uint32_t position() const { return m_position; }
    bool xml() const { return m_xml; }

    // A literal piece of text, whatever the shape.
    void put(const char *text);

    // Items. In token form each is "key: value "; in tagged form "<tag>value</tag>".
    void text(const char *key, const char *tag, const char *value);  // "NONE" when empty
    void caret(const char *key, const char *tag, const char *value); // "^value^", "NONE"
    void number(const char *key, const char *tag, std::int32_t value);
    void hex16(const char *key, const char *tag, std::uint32_t value);
    void hex32(const char *key, const char *tag, std::uint32_t value);
    void hex64(const char *key, const char *tag, std::uint64_t value);
    void percent(const char *key, const char *tag, float value);

    // Opens and closes an element of the tagged form; nothing in token form.
    void open(const char *tag);
    void close(const char *tag);
    // Ends a record's line in token form.
    void endLine();
    // The extra line break of the plain token form inside a long line.
    void plainBreak();

private:
    void element(const char *tag, const char *value);
    void indent();

    char *m_buffer;
    std::uint32_t m_size;
    std::uint32_t m_position;
    bool m_compact;
    bool m_xml;
    std::uint32_t m_depth;
};

// Makes a text field safe between carets: each "^" within the first `width` bytes
// becomes "_".
void SK_CaretSafe(char *field, std::uint32_t width);

// The treatment of a disk serial and firmware revision: leading blanks stay, every
// later blank within `width` bytes becomes "_".
void SK_BlankSafe(char *field, std::uint32_t width);
