#pragma once
// Reading the token report back into SK_ConfigSnapshot: the tokenizer and the reader.

#include "config/sk_config_snapshot.h"
#include "driver/sk_types.h"

// Bound of a report the reader takes.
constexpr std::uint32_t SK_REPORT_TEXT_SIZE = 0x80000;

// The reader's one scratch block: the report text, the read position, the area the
// current token is copied to, the delimiter set and the open-quote mark.
struct SK_Tokenizer
{
    char Text[SK_REPORT_TEXT_SIZE];
    std::uint32_t Position;
    char Token[SK_REPORT_TEXT_SIZE];
    char Delimiters[3];
    std::uint32_t QuoteOpen;
};
static_assert(sizeof(SK_Tokenizer) == 0x10000C, "the reader allocates exactly one block");

// Prepares a tokenizer for the text now in its Text area: position 0, the delimiters
// line feed, carriage return and blank, no quote open. Returns 1, or 7 for null.
std::uint32_t SK_ResetTokenizer(SK_Tokenizer *tokenizer);

// The next token of the report, or null at the end of the text. Tokens are separated
// by blanks and line ends; a value between carets keeps its blanks and may be empty;
// a leading "{" is dropped. The token lives in the Token area until the next call.
// Never reads past the Text area, terminated or not.
const char *SK_NextToken(SK_Tokenizer *tokenizer);

// Reads a report from `text` (`length` bytes, read up to the first zero byte) into
// `snapshot`. Returns 1 on success and 0 on failure: a missing token or wrong key, an
// index past a limit (disk 304, array 384, member 32, enclosure 76, controller 19,
// spare 303), a report of 0x80000 bytes or more, or no memory. What was read before a
// failure stays in the snapshot.
std::uint32_t SK_ParseConfigText(const char *text, std::size_t length, SK_ConfigSnapshot *snapshot);

// Fills `snapshot` from the compact token report of `core` (SK_ApiGetCoreConfigString
// with 0x80000 bytes). `reserved` is not used. Returns 1 on success, 0 on failure:
// no memory, the report request failing (counts stay 0) or the report failing to
// read as above.
std::uint32_t SK_ParseConfig(const SK_CoreEntry *core, SK_ConfigSnapshot *snapshot,
                             std::uint32_t reserved, std::uint32_t resolveOsNames);
