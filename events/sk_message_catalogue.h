#pragma once
// The driver's message catalogue: for every message number a priority and one text in
// each of 36 languages. The driver logs only numbers and parameters; this table turns
// them into words.

#include <cstdint>

constexpr int SK_MESSAGE_COUNT = 133;
constexpr int SK_LANGUAGE_COUNT = 36;
// Wide characters a translated text may hold, terminator included.
constexpr int SK_MESSAGE_TEXT_SIZE = 255;

// Language numbers of the catalogue.
enum SK_Language : std::uint32_t {
    SK_LANG_ENGLISH = 0,
    SK_LANG_CHINESE_SIMPLIFIED = 1,
    SK_LANG_CHINESE_TRADITIONAL = 2,
    SK_LANG_DUTCH = 3,
    SK_LANG_FRENCH = 4,
    SK_LANG_GERMAN = 5,
    SK_LANG_PORTUGUESE_BRAZIL = 6,
    SK_LANG_ITALIAN = 7,
    SK_LANG_JAPANESE = 8,
    SK_LANG_KOREAN = 9,
    SK_LANG_RUSSIAN = 10,
    SK_LANG_SPANISH = 11,
    SK_LANG_SWEDISH = 12,
    SK_LANG_ARABIC = 13,
    SK_LANG_BULGARIAN = 14,
    SK_LANG_CROATIAN = 15,
    SK_LANG_CZECH = 16,
    SK_LANG_DANISH = 17,
    SK_LANG_ESTONIAN = 18,
    SK_LANG_FINNISH = 19,
    SK_LANG_GREEK = 20,
    SK_LANG_HEBREW = 21,
    SK_LANG_CHINESE_TRADITIONAL_2 = 22,
    SK_LANG_HUNGARIAN = 23,
    SK_LANG_LATVIAN = 24,
    SK_LANG_LITHUANIAN = 25,
    SK_LANG_NORWEGIAN = 26,
    SK_LANG_POLISH = 27,
    SK_LANG_PORTUGUESE_PORTUGAL = 28,
    SK_LANG_ROMANIAN = 29,
    SK_LANG_SERBIAN = 30,
    SK_LANG_SLOVAK = 31,
    SK_LANG_SLOVENIAN = 32,
    SK_LANG_THAI = 33,
    SK_LANG_TURKISH = 34,
    SK_LANG_RUSSIAN_2 = 35,
};

struct SK_MessageRow
{
    std::uint16_t MessageId;
    std::uint16_t Priority; // 1 to 4
};

// One row of the catalogue with its text in every language.
struct SK_MessageEntry
{
    std::uint16_t MessageId;
    std::uint16_t Priority;
    const wchar_t *Text[SK_LANGUAGE_COUNT];
};

// Numbers and priorities, ascending, and the texts of each language in the same order.
extern const SK_MessageRow SK_MessageRows[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesEnglish[SK_MESSAGE_COUNT];
extern const wchar_t *const *const SK_LanguageTexts[SK_LANGUAGE_COUNT];

// The catalogue row of `messageId` with its text in every language, or null when the
// number has no row.
const SK_MessageEntry *SK_FindMessage(std::uint32_t messageId);

// Turns a message number and its eight parameters into text in `language` (36 or more
// means English). Numbers below 1000 are the driver's trace records. Returns 1 when
// the message was found; 0 when the text is the "could not find message" line of 1011
// or, failing that, a "CANNOT TRANSLATE" line. `textOut` holds SK_MESSAGE_TEXT_SIZE
// wide characters.
int SK_TranslateMessage(std::uint32_t messageId, std::uint32_t language, wchar_t *textOut,
                        std::uint32_t *priorityOut, const std::uint32_t *parameters);

// The two-letter word of a priority in an event line: "??", "VL", "IN", "WA", "CR",
// "LG", and "!!" for anything else.
const wchar_t *SK_PriorityWord(std::uint32_t priority);

// Current indentation of trace records, 0 to 40.
int SK_TraceDepth();
void SK_SetTraceDepth(int depth);
