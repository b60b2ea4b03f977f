#include "service/sk_smart_decode.h"

#include <algorithm>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

#if defined(__MINGW32__)
#define SK_PRINTF_LIKE __attribute__((format(__MINGW_PRINTF_FORMAT, 1, 2)))
#elif defined(__GNUC__)
#define SK_PRINTF_LIKE __attribute__((format(printf, 1, 2)))
#else
#define SK_PRINTF_LIKE
#endif

// The report's texts come from printf formats; keep them so.
SK_PRINTF_LIKE std::string format(const char *pattern, ...);

std::string format(const char *pattern, ...)
{
    char text[256];
    va_list args;
    va_start(args, pattern);
    const int length = std::vsnprintf(text, sizeof text, pattern, args);
    va_end(args);
    if (length < 0)
        return std::string();
    return std::string(text,
                       std::min<std::size_t>(static_cast<std::size_t>(length), sizeof text - 1));
}

struct NamedId
{
    std::uint8_t id;
    const char *name;
};

constexpr NamedId kAttributeNames[] = {
    {1, "Raw Read Error Rate   "},   {2, "Throughput Performance"},
    {3, "Spinup Time           "},   {4, "Spinup Count          "},
    {5, "Reallocation Count    "},   {6, "Read Margin           "},
    {7, "Seek Error Rate       "},   {8, "Seek Time Performance "},
    {9, "Poweron Time (Hours)  "},   {10, "Spin Retry Count      "},
    {11, "Calibration Retries   "},  {12, "Power Cycle Count     "},
    {187, "Reported Uncorrect    "}, {189, "High Fly Writes       "},
    {190, "Airflow Temperature   "}, {192, "Emergency Retracts    "},
    {193, "Load/Unload Cycles    "}, {194, "Temperature Celsius   "},
    {195, "Recovered ECC Errors  "}, {196, "Reallocation Events   "},
    {197, "Pending Sectors       "}, {198, "Uncorrectable Reads   "},
    {199, "CRC Errors            "}, {200, "Write Error Rate      "},
    {201, "Off Track Errors      "}, {202, "DAM Error Rate        "},
    {203, "ECC Error Rate        "}, {204, "Soft ECC Corrections  "},
    {205, "Thermal Asperity Rate "}, {207, "Spin High Current     "},
};

constexpr std::uint8_t kIdSpinupTime = 3;
constexpr std::uint8_t kIdPowerOnHours = 9;
constexpr std::uint8_t kIdPowerCycles = 12;
constexpr std::uint8_t kIdAirflowTemperature = 190;
constexpr std::uint8_t kIdTemperature = 194;

const char *thresholdWord(std::uint8_t id, int current, int threshold)
{
    if (threshold == 0)
        return "Always Passing ";
    // A temperature crosses its threshold from below.
    const bool normal = id == kIdTemperature ? current < threshold : current > threshold;
    return normal ? "Value is Normal" : "WARNING - THRESHOLD CROSSED!";
}

std::string rawText(const SK_SmartAttribute &a)
{
    std::string text;
    if (a.id == kIdSpinupTime) {
        text = a.word(1) != 0 ? format("%d (Average %d)", a.word(0), a.word(1))
                              : format("%d", a.word(0));
    } else if (a.id == kIdTemperature) {
        text = SK_SmartRawTemperature(a);
    } else {
        text = SK_SmartRawNumber(a);
    }
    return text.empty() ? SK_SmartRawNumber(a) : text;
}

std::string attributeHeading(unsigned id, const char *name)
{
    return format(" - Attribute ID:      0x%02x (%s), \n", id, name);
}

} // namespace

std::uint16_t SK_SmartView::u16(std::size_t at) const
{
    return static_cast<std::uint16_t>(u8(at) | (u8(at + 1) << 8));
}

std::uint32_t SK_SmartView::u32(std::size_t at) const
{
    return static_cast<std::uint32_t>(u16(at)) | (static_cast<std::uint32_t>(u16(at + 2)) << 16);
}

std::uint64_t SK_SmartView::u64(std::size_t at) const
{
    return static_cast<std::uint64_t>(u32(at)) | (static_cast<std::uint64_t>(u32(at + 4)) << 32);
}

std::uint64_t SK_SmartAttribute::raw48() const
{
    std::uint64_t value = 0;
    for (int b = 5; b >= 0; --b)
        value = (value << 8) | raw[b];
    return value;
}

std::uint16_t SK_SmartAttribute::word(int n) const
{
    return static_cast<std::uint16_t>(raw[2 * n] | (raw[2 * n + 1] << 8));
}

bool SK_SmartHasAtaAttributes(const SK_SmartView &view)
{
    const std::uint16_t version = view.u16(0);
    return version != 0 && (version & 0xFF) != 0xFF;
}

SK_SmartAttribute SK_SmartAtaSlot(const SK_SmartView &view, std::size_t slot)
{
    const std::size_t at = 2 + SK_SMART_ATA_SLOT_SIZE * slot;
    SK_SmartAttribute a;
    a.id = view.u8(at);
    a.current = view.u8(at + 3);
    for (std::size_t b = 0; b < 6; ++b)
        a.raw[b] = view.u8(at + 5 + b);
    a.threshold = view.u8(at + 11);
    return a;
}

std::string SK_SmartRawNumber(const SK_SmartAttribute &attribute)
{
    return format("%" PRIu64 " ", attribute.raw48());
}

std::string SK_SmartRawTemperature(const SK_SmartAttribute &attribute)
{
    const unsigned w0 = attribute.word(0), w1 = attribute.word(1), w2 = attribute.word(2);
    const unsigned b2 = attribute.raw[2], b3 = attribute.raw[3], b4 = attribute.raw[4],
                   b5 = attribute.raw[5];
    std::string text = format("%u", w0);
    if (w1 == 0 && w2 == 0)
        return text;
    // Drives keep the lifetime extremes either as two words or as two bytes; anything
    // else is shown byte by byte.
    bool known = true;
    unsigned first = 0, second = 0;
    if (b3 == 0) {
        first = w1;
        second = w2;
    } else if (w2 == 0) {
        first = b2;
        second = b3;
    } else {
        known = false;
    }
    const unsigned low = std::min(first, second), high = std::max(first, second);
    if (known && low <= w0 && w0 <= high)
        return text + format(" (Lifetime Min/Max %u/%u)", low, high);
    return text + format(" (%u %u %u %u)", b5, b4, b3, b2);
}

const char *SK_SmartAttributeName(std::uint8_t id)
{
    for (const NamedId &entry : kAttributeNames) {
        if (entry.id == id)
            return entry.name;
    }
    return nullptr;
}

void SK_SmartWalkAtaOverview(const SK_SmartView &view, bool isSsd, SK_SmartOverview &overview)
{
    const std::uint8_t temperatureId = isSsd ? kIdAirflowTemperature : kIdTemperature;
    for (std::size_t slot = 0; slot < SK_SMART_ATA_SLOTS; ++slot) {
        const SK_SmartAttribute a = SK_SmartAtaSlot(view, slot);
        if (a.id == kIdPowerOnHours)
            overview.powerOnHours = SK_SmartRawNumber(a);
        else if (a.id == kIdPowerCycles)
            overview.powerCycles = SK_SmartRawNumber(a);
        else if (a.id == temperatureId)
            overview.temperature = SK_SmartRawTemperature(a);
    }
}

SK_SmartOverview SK_SmartAtaOverview(const SK_SmartView &view, bool isSsd)
{
    SK_SmartOverview overview;
    if (SK_SmartHasAtaAttributes(view))
        SK_SmartWalkAtaOverview(view, isSsd, overview);
    return overview;
}

SK_SmartOverview SK_SmartNvmeOverview(const SK_SmartView &view, bool isSsd)
{
    SK_SmartOverview overview;
    overview.powerOnHours = std::to_string(view.u64(128));
    overview.powerCycles = std::to_string(view.u64(112));
    overview.temperature = std::to_string(static_cast<int>(view.u16(1)) - 273);
    if (SK_SmartHasAtaAttributes(view))
        SK_SmartWalkAtaOverview(view, isSsd, overview);
    return overview;
}

std::string SK_SmartAtaReport(const SK_SmartView &view)
{
    if (!SK_SmartHasAtaAttributes(view))
        return std::string();
    std::string report =
        format("\n===============================\nSMART ATTRIBUTES:  Version %d\n", view.u16(0));
    report += "\n===============================\n";
    for (std::size_t slot = 0; slot < SK_SMART_ATA_SLOTS; ++slot) {
        const SK_SmartAttribute a = SK_SmartAtaSlot(view, slot);
        const char *name = SK_SmartAttributeName(a.id);
        if (!name)
            continue;
        int current = a.current;
        if (a.id == kIdTemperature) // some drives report it as a signed byte
            current = std::abs(static_cast<int>(static_cast<std::int8_t>(a.current)));
        report += attributeHeading(a.id, name);
        report += format("     Threshold Value: %03d, \n", a.threshold);
        report += format("     Current Value: %03d (%s),\n", current,
                         thresholdWord(a.id, current, a.threshold));
        report += format("     Raw Value: %s\n\n", rawText(a).c_str());
    }
    return report;
}

std::string SK_SmartNvmeReport(const SK_SmartView &view)
{
    struct Byte
    {
        unsigned id;
        const char *name;
        int value;
    };
    struct Counter
    {
        unsigned id;
        const char *name;
        std::size_t at;
    };
    const Byte bytes[] = {
        {0x00, "Critical Warning", view.u8(0)},
        {0x01, "Temperature in Celsius", static_cast<int>(view.u16(1)) - 273},
        {0x03, "0..100% remaining spare capacity", view.u8(3)},
        {0x04, "0..100% threshold before SMART error", view.u8(4)},
        {0x05, "Percent of device life used", view.u8(5)},
    };
    const Counter wide[] = {
        {20, "Data units read (512 Byte)", 32},
        {30, "Data units written (512 byte)", 48},
        {40, "Number of read commands issued", 64},
        {50, "Number of write commands issued", 80},
    };
    const Counter narrow[] = {
        {60, "Controller busy time MSQ minutes", 96},
        {70, "Power cycle count", 112},
        {80, "Power on hours", 128},
        {90, "Unsafe shutdown count", 144},
        {160, "Media errors", 160},
        {176, "Number of Error Information Log Entries", 176},
    };

    std::string report = "\n===============================\nNVMe SMART ATTRIBUTES\n";
    report += "===============================\n";
    for (const Byte &b : bytes) {
        report += attributeHeading(b.id, b.name);
        report += format("     Current Value: %03d\n\n", b.value);
    }
    for (const Counter &c : wide) {
        report += attributeHeading(c.id, c.name);
        report += format("     Current Value: %03lld\n\n", static_cast<long long>(view.u64(c.at)));
    }
    for (const Counter &c : narrow) {
        report += attributeHeading(c.id, c.name);
        report += format("     Current Value: %03d\n\n", static_cast<int>(view.u32(c.at)));
    }
    return report;
}
