// The text tables of the 36 catalogue languages, by language number.

#include "events/catalogue/sk_language_tables.h"

// The tables keep one message a line, as translators edit them.
// clang-format off
const wchar_t *const *const SK_LanguageTexts[SK_LANGUAGE_COUNT] = {
    SK_MessagesEnglish, // 0 English
    SK_MessagesChineseSimplified, // 1 Simplified Chinese
    SK_MessagesChineseTraditional, // 2 Traditional Chinese
    SK_MessagesDutch, // 3 Dutch
    SK_MessagesFrench, // 4 French
    SK_MessagesGerman, // 5 German
    SK_MessagesPortugueseBrazil, // 6 Brazilian Portuguese
    SK_MessagesItalian, // 7 Italian
    SK_MessagesJapanese, // 8 Japanese
    SK_MessagesKorean, // 9 Korean
    SK_MessagesRussian, // 10 Russian
    SK_MessagesSpanish, // 11 Spanish
    SK_MessagesSwedish, // 12 Swedish
    SK_MessagesArabic, // 13 Arabic
    SK_MessagesBulgarian, // 14 Bulgarian
    SK_MessagesCroatian, // 15 Croatian
    SK_MessagesCzech, // 16 Czech
    SK_MessagesDanish, // 17 Danish
    SK_MessagesEstonian, // 18 Estonian
    SK_MessagesFinnish, // 19 Finnish
    SK_MessagesGreek, // 20 Greek
    SK_MessagesHebrew, // 21 Hebrew
    SK_MessagesChineseTraditional, // 22 Traditional Chinese, second column: shares the Traditional Chinese texts
    SK_MessagesHungarian, // 23 Hungarian
    SK_MessagesLatvian, // 24 Latvian
    SK_MessagesLithuanian, // 25 Lithuanian
    SK_MessagesNorwegian, // 26 Norwegian
    SK_MessagesPolish, // 27 Polish
    SK_MessagesPortuguesePortugal, // 28 European Portuguese
    SK_MessagesRomanian, // 29 Romanian
    SK_MessagesSerbian, // 30 Serbian
    SK_MessagesSlovak, // 31 Slovak
    SK_MessagesSlovenian, // 32 Slovenian
    SK_MessagesThai, // 33 Thai
    SK_MessagesTurkish, // 34 Turkish
    SK_MessagesRussian, // 35 Russian, second column: shares the Russian texts
};
// clang-format on
