#pragma once
// Hand-made configuration images for the config tests. The layouts are written out
// here byte by byte from the record formats, independently of the readers under test.

#include "driver/sk_types.h"

#include <string>
#include <vector>

namespace images {

using Bytes = std::vector<std::uint8_t>;

// The `width` bytes at `at`, checked: a record built past its own end is a mistake in
// the test itself.
inline std::uint8_t *field(Bytes &b, std::size_t at, std::size_t width)
{
    return &b.at(at + width - 1) - (width - 1);
}
inline void put16(Bytes &b, std::size_t at, std::uint16_t v)
{
    SK_PutU16(field(b, at, 2), 0, v);
}
inline void put32(Bytes &b, std::size_t at, std::uint32_t v)
{
    SK_PutU32(field(b, at, 4), 0, v);
}
inline void put64(Bytes &b, std::size_t at, std::uint64_t v)
{
    SK_PutU64(field(b, at, 8), 0, v);
}
inline void putText(Bytes &b, std::size_t at, const std::string &text, std::size_t width)
{
    for (std::size_t i = 0; i < width && i < text.size(); ++i)
        b[at + i] = static_cast<std::uint8_t>(text[i]);
}

struct Disk
{
    std::uint64_t id = 0x1000;
    std::uint16_t device = 3, core = 1;
    std::uint64_t capacity = 0x74706db0;
    std::uint32_t type = 4608, state = 12288, spare = 0, features = 4, port = 2;
    std::string firmware = "1.00", model = "ExampleDisk 1TB", serial = "ABC123";
    char controllerDigit = '0', channelDigit = '2';
    std::string inquiry; // replaces model, serial and digits when set (core device)
    std::uint64_t largest = 0, total = 0;
    std::string vendor = "EXAMPLE";
};

inline Bytes diskRecord(const Disk &d, std::size_t length = 256)
{
    Bytes b(256, 0);
    put32(b, 0, 9660);
    put64(b, 4, d.id);
    put16(b, 12, d.device);
    put16(b, 14, d.core);
    put64(b, 28, d.capacity);
    put32(b, 36, d.type);
    put32(b, 44, d.state);
    put32(b, 48, d.spare);
    put32(b, 84, d.features);
    put32(b, 88, d.port);
    putText(b, 128, d.firmware, 8);
    if (d.inquiry.empty()) {
        putText(b, 136, d.model, 40);
        putText(b, 176, d.serial, 20);
        b[196] = static_cast<std::uint8_t>(d.controllerDigit);
        b[197] = static_cast<std::uint8_t>(d.channelDigit);
    } else {
        putText(b, 136, d.inquiry, 64);
    }
    put64(b, 200, d.largest);
    put64(b, 208, d.total);
    putText(b, 216, d.vendor, 8);
    b.resize(length);
    return b;
}

struct Controller
{
    std::uint64_t id = 0x77;
    std::string name = "Controller0", bios = "9.3.0-27";
    std::uint64_t maxArray = 0x100000000ull, serial = 0x1234;
    std::uint32_t ports = 8, number = 0;
    std::uint64_t controllerId = 0xaabbccdd;
};

inline Bytes controllerRecord(const Controller &c)
{
    Bytes b(136, 0);
    put32(b, 0, 9662);
    put64(b, 4, c.id);
    putText(b, 36, c.name, 16);
    putText(b, 56, c.bios, 32);
    put64(b, 88, c.maxArray);
    put64(b, 96, c.serial);
    put32(b, 104, c.ports);
    put16(b, 108, 0x1e5d);
    put16(b, 110, 0x0a10);
    put32(b, 112, c.number);
    put16(b, 116, 0x1e5d);
    put16(b, 118, 0x0a10);
    put64(b, 120, c.controllerId);
    put16(b, 128, 0x1e5d);
    put16(b, 130, 0x0a01);
    put32(b, 132, 5);
    return b;
}

struct Enclosure
{
    std::uint64_t id = 0x99;
    std::uint16_t device = 9, core = 0;
    std::string vendor = "EXAMPLE", product = "BACKPLANE", revision = "1.0", serial = "12345678";
};

inline Bytes enclosureRecord(const Enclosure &e)
{
    Bytes b(64, 0);
    put32(b, 0, 9663);
    put64(b, 4, e.id);
    put16(b, 12, e.device);
    put16(b, 14, e.core);
    putText(b, 20, e.vendor, 8);
    putText(b, 28, e.product, 16);
    putText(b, 44, e.revision, 4);
    putText(b, 48, e.serial, 8);
    return b;
}

struct Member
{
    std::uint64_t id = 0x1000;
    std::uint16_t device = 3, core = 1;
    std::uint64_t offset = 0x800, size = 0x74700000;
    std::uint32_t flags = 0;
};

struct Reference
{
    std::uint64_t id;
    std::uint16_t device, core;
    std::uint32_t kept = 0;
};

struct Array
{
    std::uint32_t state = 512, type = 7159, task = 0, taskState = 0;
    std::uint64_t id = 0x1122334455667788ull;
    std::uint16_t device = 1, core = 0;
    std::uint64_t capacity = 0x74700000, generation = 42;
    std::uint32_t first = 1, second = 1, cache = 0xC0000000u, percent = 0, attributes = 0;
    std::string displayName = "Array 1";
    std::uint64_t substitute0 = 0, substitute1 = 0;
    std::vector<Member> members = std::vector<Member>(1);
    std::vector<Reference> parents, spares;
    long long lengthOverride = -1;                 // record length field when >= 0
    long long countOverride[4] = {-1, -1, -1, -1}; // first, second, parents, spares
};

inline Bytes arrayRecord(const Array &a)
{
    const std::size_t length =
        512 + a.members.size() * 64 + (a.parents.size() + a.spares.size()) * 16;
    auto field = [&](int i, std::size_t actual) {
        return static_cast<std::uint32_t>(a.countOverride[i] >= 0 ? a.countOverride[i]
                                                                  : static_cast<long long>(actual));
    };
    Bytes b(length, 0);
    put32(b, 0, 9661);
    put32(b, 8, a.state);
    put32(b, 12, a.type);
    put32(b, 16, a.task);
    put32(b, 24, a.taskState);
    put64(b, 44, a.id);
    put16(b, 52, a.device);
    put16(b, 54, a.core);
    put64(b, 80, a.capacity);
    put64(b, 96, a.generation);
    put32(b, 104, static_cast<std::uint32_t>(a.members.size()));
    put32(b, 108, field(0, a.first));
    put32(b, 112, field(1, a.second));
    put32(b, 116, field(2, a.parents.size()));
    put32(b, 128, a.cache);
    put32(b, 140, field(3, a.spares.size()));
    put32(b, 144,
          a.lengthOverride >= 0 ? static_cast<std::uint32_t>(a.lengthOverride)
                                : static_cast<std::uint32_t>(length));
    put32(b, 148, a.percent);
    put32(b, 152, a.attributes);
    put32(b, 168, 30); // task priority
    putText(b, 176, a.displayName, 32);
    put64(b, 252, a.substitute0);
    put64(b, 260, a.substitute1);
    put32(b, 272, 64); // cache tag size
    std::size_t at = 512;
    for (const Member &m : a.members) {
        put64(b, at, m.id);
        put16(b, at + 8, m.device);
        put16(b, at + 10, m.core);
        put64(b, at + 16, m.offset);
        put64(b, at + 24, m.size);
        put64(b, at + 32, m.offset);
        put64(b, at + 40, m.size);
        put32(b, at + 48, m.flags);
        at += 64;
    }
    for (const auto *table : {&a.parents, &a.spares}) {
        for (const Reference &r : *table) {
            put64(b, at, r.id);
            put16(b, at + 8, r.device);
            put16(b, at + 10, r.core);
            put32(b, at + 12, r.kept);
            at += 16;
        }
    }
    return b;
}

// A whole image: the 512-byte header with the generation, then the records.
class Image
{
public:
    explicit Image(std::uint64_t generation = 42) : m_bytes(512, 0)
    {
        put64(m_bytes, 52, generation);
    }
    Image &add(const Bytes &record)
    {
        m_bytes.insert(m_bytes.end(), record.begin(), record.end());
        return *this;
    }
    Image &word(std::uint32_t value)
    {
        m_bytes.resize(m_bytes.size() + 4);
        put32(m_bytes, m_bytes.size() - 4, value);
        return *this;
    }
    const Bytes &bytes() const { return m_bytes; }
    std::uint32_t size() const { return static_cast<std::uint32_t>(m_bytes.size()); }

private:
    Bytes m_bytes;
};

// The core's own device record, carrying the driver's build text.
inline Bytes coreDevice(const std::string &build = "Build-9.3.0-27")
{
    Disk d;
    d.id = 1;
    d.device = d.core = 0;
    d.type = 4609;
    d.inquiry = build;
    d.firmware.clear();
    d.vendor.clear();
    return diskRecord(d);
}

// Turns a case description into a test name.
inline std::string caseName(std::string text)
{
    for (char &c : text) {
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')))
            c = '_';
    }
    return text;
}

} // namespace images
