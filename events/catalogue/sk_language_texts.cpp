// The text tables of the 36 catalogue languages, by language number.

#include "events/sk_message_catalogue.h"

extern const wchar_t *const SK_MessagesChineseSimplified[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesChineseTraditional[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesDutch[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesFrench[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesGerman[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPortugueseBrazil[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesItalian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesJapanese[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesKorean[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesRussian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSpanish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSwedish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesArabic[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesBulgarian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesCroatian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesCzech[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesDanish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesEstonian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesFinnish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesGreek[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesHebrew[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesHungarian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesLatvian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesLithuanian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesNorwegian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPolish[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesPortuguesePortugal[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesRomanian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSerbian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSlovak[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesSlovenian[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesThai[SK_MESSAGE_COUNT];
extern const wchar_t *const SK_MessagesTurkish[SK_MESSAGE_COUNT];

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
