#pragma once
// The statistics report, error injection, the debug trace and the small driver
// queries: driver information, messages, PCI and WWID, the array map.

#include "commands/sk_command_frame.h"

// The statistics report: 90 lines, each a label padded to 30 columns and its value.
constexpr std::uint32_t SK_STATS_TEXT_SIZE = 8192;
constexpr std::uint32_t SK_STATS_LINE_COUNT = 90;
constexpr int SK_STATS_LABEL_WIDTH = 30;
// Sectors of the driver's megabyte figures (1953 x 512 bytes, about 1,000,000).
constexpr std::uint64_t SK_STATS_SECTORS_PER_MB = 1953;

// Where the statistics record lies in its 8192-byte reply.
namespace SK_StatsRecord {
constexpr std::size_t Build = 512;    // char[32], not necessarily terminated
constexpr std::size_t Hardware = 544; // char[32]
constexpr std::size_t Wide = 576;     // 7 x u64
constexpr std::size_t Counters = 632; // 51 x u32
constexpr std::size_t Cache = 836;    // 32 x u32, 22 used
constexpr std::size_t Latency = 964;  // 52 x u32, 16 used
constexpr std::size_t End = 1172;
} // namespace SK_StatsRecord

// Writes the report of the statistics record in `reply` (at least SK_StatsRecord::End
// bytes) into `text`, terminated, cut at `textSize`. Returns the number of lines
// written, SK_STATS_LINE_COUNT when everything fit.
std::uint32_t SK_FormatStatsReport(const std::uint8_t *reply, char *text, std::uint32_t textSize);

// Reads the driver's statistics (read code 4104 with `reset`, which starts a new
// interval, else 4103) and writes the report into `text`, which holds 8192 bytes.
// `lines` and `reserved` are kept for the callers; the report always has all lines.
// Returns the read's status (1 on success); 7 for a null argument; 8 without a control
// device; 5 when the reply block can't be allocated.
std::uint32_t SK_BufferPrintApiGetStats(const SK_CoreEntry *core, char *text, std::uint32_t lines,
                                        std::uint32_t reset, std::uint32_t reserved);

// Injects an error of `type` on the named disk (command 9): its routes at 32 and 34,
// the type at 36, the range `start` and `size` at 40 and 44. The Direct form goes by
// the disk's route and so quotes no generation.
// Returns 1; 7; 63; 8; 11; 38; 48; otherwise the driver's (or the transfer's) status.
std::uint32_t SK_ApiInjectError(const SK_CoreEntry *core, const char *diskName, std::uint32_t type,
                                std::uint32_t option);
std::uint32_t SK_ApiInjectErrorDisk(const SK_CoreEntry *core, const char *diskName,
                                    std::uint32_t type, std::uint32_t start, std::uint32_t size,
                                    std::uint32_t option);
std::uint32_t SK_ApiDirectInjectError(const SK_CoreEntry *core, const char *diskName,
                                      std::uint32_t type, std::uint32_t start, std::uint32_t size,
                                      std::uint32_t option);

// Sets an error condition on `count` named devices (disks or arrays): command 13 for
// `mode` 1, 32 for mode 2, else 12; `kind` at 32, `value` at 36.
// Returns 1; 7; 63; 8; 11; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiSetError(const SK_CoreEntry *core, std::uint32_t mode, std::uint32_t kind,
                             std::uint32_t value, std::uint32_t count, const SK_DeviceName *list,
                             std::uint32_t option);

// Switches the driver's debug trace: mode 0 sends 20, 1 sends 19, 2 sends 22, 3 sends
// 21, as a 512-byte request.
// Returns 1; 7 for another mode; 8; 38; 48; otherwise the driver's status.
std::uint32_t SK_DebugTrace(const SK_CoreEntry *core, std::uint32_t mode);

// The trace state (read code 4110): five words from the start of the reply.
// Returns the read's status; 7; 8; 48.
std::uint32_t SK_DebugTraceGetState(const SK_CoreEntry *core, std::uint32_t *stateOut);

// One trace item (read code 4111): 256 bytes from the start of the reply.
// Returns the read's status; 7; 8; 48.
std::uint32_t SK_DebugTraceGetTraceItem(const SK_CoreEntry *core, std::uint8_t *itemOut);

// Driver information: `selector` 0, 1 or 2 reads 4105, 4106 or 4114; `size` bytes of
// the reply go to `buffer`.
// Returns the read's status; 7 for another selector or a null argument; 8; 48.
std::uint32_t SK_ApiGetDriverInfo(const SK_CoreEntry *core, std::uint32_t selector,
                                  std::uint8_t *buffer, std::uint32_t size);

// Writes a message into the driver's event log (command 39): nine words from 32, the
// message number first.
// Returns 1; 7; 8; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiSendMessage(const SK_CoreEntry *core, const std::uint32_t *words,
                                std::uint32_t option);

// Asks whether the controller with `controllerId` carries that PCI vendor and device
// (command 41).
// Returns 1 when it does, and 73 (SK_STS_INVALID_PCI_ID) for any other outcome,
// including a missing control device.
std::uint32_t SK_ApiDirectCheckControllerPCIID(const SK_CoreEntry *core, std::uint64_t controllerId,
                                               std::uint32_t vendor, std::uint32_t device);

// Sets the two 64-bit words of a controller's WWID (command 47, 8192 bytes).
// Returns 1; 7; 8; 38; 48; otherwise the driver's status.
std::uint32_t SK_ApiSetControllerWwid(const SK_CoreEntry *core, std::uint64_t first,
                                      std::uint64_t second);

// Reads the map of the named array (read code 4125) into `buffer`, which holds
// SK_ARRAY_MAP_SIZE bytes.
// Returns the read's status; 7; 62; 8; 10; 48.
constexpr std::uint32_t SK_ARRAY_MAP_SIZE = 0x400000;
std::uint32_t SK_ApiGetArrayMap(const SK_CoreEntry *core, const char *arrayName,
                                std::uint8_t *buffer, std::uint32_t option);
