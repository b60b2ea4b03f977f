#include "config/sk_config_report.h"

#include "config/sk_config_lookup.h"
#include "config/sk_device_records.h"
#include "config/sk_logical_device.h"
#include "config/sk_record_factory.h"
#include "config/sk_report_writer.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <cstdio>

namespace {

constexpr const char *kSizeLine = "BufferSize:         \n";
constexpr std::uint32_t kSizeFieldWidth = 6;
// The size line's own line end; the patch never reaches it.
constexpr std::uint32_t kSizeLineEnd = 20;

// Build text of the core: the inquiry text of the first disk record, which is the
// core's own device.
const char *buildString(const SK_Core &core)
{
    if (core.DiskCount == 0 || !core.Disks || !core.Disks[0] || !core.Disks[0]->Inquiry[0])
        return "NONE";
    return core.Disks[0]->Inquiry;
}

void patchSizeLine(char *buffer, std::uint32_t length)
{
    char digits[16];
    const int n = std::snprintf(digits, sizeof digits, "%-6u", length);
    // Six columns hold any length the reader accepts; a longer one runs into the two
    // blanks behind the field but never over the line end.
    const std::uint32_t room = kSizeLineEnd - SK_REPORT_SIZE_COLUMN;
    const std::uint32_t count =
        n > 0 && static_cast<std::uint32_t>(n) < room ? static_cast<std::uint32_t>(n) : room;
    std::memcpy(buffer + SK_REPORT_SIZE_COLUMN, digits, count);
    if (count <= kSizeFieldWidth)
        buffer[SK_REPORT_SIZE_COLUMN + kSizeFieldWidth] = ' ';
}

} // namespace

std::uint32_t SK_BufferPrintConfig(SK_Core &core, char *buffer, std::uint32_t size,
                                   std::uint32_t resolveOsNames, std::uint32_t compact,
                                   std::uint32_t xml)
{
    if (!buffer)
        return SKTL_STS_INVALID_PARAMETER;
    core.Printing = 1;
    core.ReportBuffer = buffer;
    core.ReportSize = size;
    core.ReportPosition = 0;
    if (size < SK_REPORT_MIN_SIZE) {
        if (size > 0)
            buffer[0] = '\0';
        core.ReportLength = 0;
        core.Printing = 0;
        core.ReportBuffer = nullptr;
        return SK_STS_BUFFER_TOO_SMALL;
    }

    SK_ReportWriter w(buffer, size, 0, compact, xml, 0);
    w.put(kSizeLine);
    w.open("Core");
    w.number("CO", "Number", static_cast<std::int32_t>(core.CoreNumber));
    w.number("GE", "Generation", static_cast<std::int32_t>(core.Generation & 0xFFFFFFFFu));
    w.text("NM", "Name", core.ChannelPath);
    w.text("BN", "Build", buildString(core));
    w.endLine();
    std::uint32_t position = w.position();

    for (std::uint32_t i = 0; core.Controllers && i < core.ControllerCount && position < size;
         ++i) {
        if (core.Controllers[i])
            position = core.Controllers[i]->BufferPrint(i, position, buffer, size, compact, xml);
    }
    for (std::uint32_t i = 0; core.Disks && i < core.DiskCount && position < size; ++i) {
        if (core.Disks[i])
            position = core.Disks[i]->BufferPrint(i, position, buffer, size, compact, xml);
    }
    for (std::uint32_t i = 0; core.Arrays && i < core.ArrayCount && position < size; ++i) {
        if (core.Arrays[i])
            position = core.Arrays[i]->BufferPrint(i, position, buffer, size, resolveOsNames,
                                                   compact, xml);
    }
    for (std::uint32_t i = 0; core.Enclosures && i < core.EnclosureCount && position < size; ++i) {
        if (core.Enclosures[i])
            position = core.Enclosures[i]->BufferPrint(i, position, buffer, size, compact, xml);
    }

    w = SK_ReportWriter(buffer, size, position, compact, xml, 1);
    w.close("Core");
    position = w.position();

    patchSizeLine(buffer, position);
    core.ReportPosition = position;
    core.ReportLength = position;
    core.Printing = 0;
    core.ReportBuffer = nullptr;
    return SK_STS_SUCCESS;
}

std::uint32_t SK_ApiGetCoreConfigString(const SK_CoreEntry *core, char *buffer, std::uint32_t size,
                                        std::uint32_t resolveOsNames, std::uint32_t allCores,
                                        std::uint32_t compact, std::uint32_t xml)
{
    if (!buffer || (!core && !allCores))
        return SKTL_STS_INVALID_PARAMETER;
    SK_InstallConfigRecords();
    SKTL_LockGuard lock;

    SK_CoreEntry found{};
    const SK_CoreEntry *entry = core;
    if (allCores) {
        std::uint32_t count = 0;
        const std::uint32_t status = SK_ApiGetCoreList(&found, sizeof found, &count);
        if (status != SK_STS_SUCCESS)
            return status;
        if (count == 0)
            return SK_STS_INVALID_CORE_HANDLE;
        entry = &found;
    }
    SK_Core channel(entry->BusName, entry->CoreName, 0);
    if (channel.Handle == 0)
        return SK_STS_INVALID_CORE_HANDLE;
    return SK_BufferPrintConfig(channel, buffer, size, resolveOsNames, compact, xml);
}

std::uint32_t SK_ApiGetDellConfigString(char *buffer, std::uint32_t size)
{
    if (!buffer)
        return SKTL_STS_INVALID_PARAMETER;
    if (size < SK_REPORT_MIN_SIZE)
        return SK_STS_BUFFER_TOO_SMALL;
    std::snprintf(buffer, size, "%s  **Device**\n    %24s = %s\n    %24s = %s\n    %24s = %s\n",
                  kSizeLine, "DeviceName", "HDDCONTROLLER0", "DeviceMnemonic", "VORRAID:0",
                  "DeviceTypeString", "VORRAID");
    return SK_STS_SUCCESS;
}
