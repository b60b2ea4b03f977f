#pragma once
// Reading the driver's event log by cursor, rendering an entry as one line of wide
// text, taking such a line apart again, and writing an event into the log.

#include "driver/sk_types.h"

#include <cstdint>

// Status values of an event read.
constexpr std::uint32_t SK_STS_VALID_USER_MESSAGE_LINE = 53;
constexpr std::uint32_t SK_STS_NO_USER_MESSAGE_LINE = 54;

// Reads the entry at `*cursor` (or the next one the log still holds) and writes it
// into `textOut` (at most `textSize` wide characters) as
// "%05d: [%02x] (%05d) %s - %s =END= (%d)(%d)(%d)(%d)(%d)(%d)(%d)(%d)\n":
// number, entry byte, message number, priority word, text, raw parameters.
// `*cursor` becomes the driver's cursor. With `wait` set an empty log is asked again
// every second, the library lock given up while waiting.
// Returns 53 with a line, 54 with an empty text, 8 without a control device, 5 when
// memory is short, or the status of a failed read.
std::uint32_t SK_ApiGetUserMessage(const SK_CoreEntry *core, wchar_t *textOut,
                                   std::uint32_t textSize, std::uint32_t *cursor, int wait,
                                   std::uint32_t language);

// Takes a line of SK_ApiGetUserMessage apart: the message number into `code`, the
// priority word into `priority` ("VL" 0, "IN" 1, "WA" 2, "CR" 3, "LG" 4, others 0),
// the text from the first non-blank behind the word, so beginning with the line's
// "- ", into `text` (which holds `textLimit` + 2 wide characters) and the eight raw
// parameters. Returns 53, or 7 at the first part that doesn't read. The entry byte
// is read as decimal digits, so a byte printed with a letter a to f refuses the line.
std::uint32_t SK_ParseUserMessageLine(const wchar_t *line, std::int32_t *code,
                                      std::uint32_t *priority, wchar_t *text,
                                      std::uint32_t textLimit, std::int32_t *params);

// Writes one event into the driver's log through the control device. Returns 1, or 3
// with a line on standard output saying why not.
std::uint32_t SK_ReportEvent(std::uint32_t messageId, std::uint32_t p1, std::uint32_t p2,
                             std::uint32_t p3, std::uint32_t p4, std::uint32_t p5, std::uint32_t p6,
                             std::uint32_t p7, std::uint32_t p8);

// The event code the log-writing request carries for a message of `priority`.
std::uint32_t SK_EventCode(std::uint32_t messageId, std::uint32_t priority);
