#pragma once
// The configuration report: the text through which the library hands the records of
// an SK_Core to the application. Token text, compact (read back by SK_ParseConfig) or
// plain (the developer dump), and tagged text.

#include "driver/sk_core.h"

// Smallest buffer the writer accepts; below it the report is left empty.
constexpr std::uint32_t SK_REPORT_MIN_SIZE = 32768;
// Column where the report's length is patched into the size line.
constexpr std::uint32_t SK_REPORT_SIZE_COLUMN = 12;

// Writes the report of `core` into `buffer` (capacity `size`, always terminated): the
// size line, the core line, then every controller, disk, array and enclosure. A record
// that no longer finds room is left out. Afterwards core.ReportLength holds the length.
// Returns 1; 7 for a null buffer; 26 (SK_STS_BUFFER_TOO_SMALL) when `size` is below
// 32768, leaving an empty report and ReportLength 0.
std::uint32_t SK_BufferPrintConfig(SK_Core &core, char *buffer, std::uint32_t size,
                                   std::uint32_t resolveOsNames, std::uint32_t compact,
                                   std::uint32_t xml);

// Builds an SK_Core for `core` (or for the first core found when `allCores` is set)
// under the library lock and writes its report into `buffer`.
// Returns 1; 7 for a null buffer or entry; 8 when the control device can't be opened
// or no core exists; 26 for a buffer under 32768; 48 when the enumeration can't
// allocate.
std::uint32_t SK_ApiGetCoreConfigString(const SK_CoreEntry *core, char *buffer, std::uint32_t size,
                                        std::uint32_t resolveOsNames, std::uint32_t allCores,
                                        std::uint32_t compact, std::uint32_t xml);

// A fixed report in the older vendor format, reading no device data. Its size field
// stays unpatched. Returns 1; 7 for a null buffer; 26 for a buffer under 32768.
std::uint32_t SK_ApiGetDellConfigString(char *buffer, std::uint32_t size);
