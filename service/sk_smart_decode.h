#pragma once
// Decoders of a disk's SMART reply: the ATA attribute page and the NVMe health page.
// They are plain C++ over a bounded view of the reply buffer so that they can be fed
// arbitrary bytes; the service wraps their texts for the windows.

#include <cstddef>
#include <cstdint>
#include <string>

// Size of the reply the driver fills.
constexpr std::size_t SK_SMART_REPLY_SIZE = 8192;
constexpr std::size_t SK_SMART_ATA_SLOTS = 30;
constexpr std::size_t SK_SMART_ATA_SLOT_SIZE = 12;

// A reply buffer and how much of it may be read. Every read past `size` gives 0, so a
// short or hostile buffer is never read beyond its end.
struct SK_SmartView
{
    const std::uint8_t *data = nullptr;
    std::size_t size = 0;

    std::uint8_t u8(std::size_t at) const { return data && at < size ? data[at] : 0; }
    std::uint16_t u16(std::size_t at) const;
    std::uint32_t u32(std::size_t at) const;
    std::uint64_t u64(std::size_t at) const;
};

// One 12-byte slot of the ATA attribute page.
struct SK_SmartAttribute
{
    std::uint8_t id = 0;
    std::uint8_t current = 0;
    std::uint8_t threshold = 0;
    std::uint8_t raw[6] = {};

    std::uint64_t raw48() const;
    std::uint16_t word(int n) const;
};

// The values of the overview table; empty where the disk gave none.
struct SK_SmartOverview
{
    std::string powerOnHours;
    std::string temperature;
    std::string powerCycles;
};

// The page's version word says whether attributes follow: 0, or a low byte of 255,
// means they don't.
bool SK_SmartHasAtaAttributes(const SK_SmartView &view);
SK_SmartAttribute SK_SmartAtaSlot(const SK_SmartView &view, std::size_t slot);

// The raw value as an unsigned 48-bit number, with its trailing blank.
std::string SK_SmartRawNumber(const SK_SmartAttribute &attribute);
// The raw value of a temperature attribute: the current value, and the lifetime
// minimum and maximum where the drive keeps them in a form we recognise.
std::string SK_SmartRawTemperature(const SK_SmartAttribute &attribute);

// Name of an attribute of the report, padded to 22 characters; null for ids the report
// passes over.
const char *SK_SmartAttributeName(std::uint8_t id);

// Fills the overview from the ATA attribute walk; a slot overwrites what an earlier one
// set. SSDs report their temperature as id 190, other disks as id 194.
void SK_SmartWalkAtaOverview(const SK_SmartView &view, bool isSsd, SK_SmartOverview &overview);
// The overview of an ATA disk; nothing when the page has no attributes.
SK_SmartOverview SK_SmartAtaOverview(const SK_SmartView &view, bool isSsd);
// The overview of an NVMe disk from its health page. The ATA walk runs over the same
// bytes afterwards, as the console always did, and may overwrite a field.
SK_SmartOverview SK_SmartNvmeOverview(const SK_SmartView &view, bool isSsd);

// The full reports; the ATA one is empty when the page has no attributes.
std::string SK_SmartAtaReport(const SK_SmartView &view);
std::string SK_SmartNvmeReport(const SK_SmartView &view);
