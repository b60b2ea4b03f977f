// The text tables of the 36 catalogue languages, by language number. A language
// without its table shows the English texts.

#include "events/sk_message_catalogue.h"

const wchar_t *const *const SK_LanguageTexts[SK_LANGUAGE_COUNT] = {
    SK_MessagesEnglish, // 0 English
    nullptr,            // 1 Simplified Chinese
    nullptr,            // 2 Traditional Chinese
    nullptr,            // 3 Dutch
    nullptr,            // 4 French
    nullptr,            // 5 German
    nullptr,            // 6 Portuguese (Brazil)
    nullptr,            // 7 Italian
    nullptr,            // 8 Japanese
    nullptr,            // 9 Korean
    nullptr,            // 10 Russian
    nullptr,            // 11 Spanish
    nullptr,            // 12 Swedish
    nullptr,            // 13 Arabic
    nullptr,            // 14 Bulgarian
    nullptr,            // 15 Croatian
    nullptr,            // 16 Czech
    nullptr,            // 17 Danish
    nullptr,            // 18 Estonian
    nullptr,            // 19 Finnish
    nullptr,            // 20 Greek
    nullptr,            // 21 Hebrew
    nullptr,            // 22 Traditional Chinese, second table
    nullptr,            // 23 Hungarian
    nullptr,            // 24 Latvian
    nullptr,            // 25 Lithuanian
    nullptr,            // 26 Norwegian
    nullptr,            // 27 Polish
    nullptr,            // 28 Portuguese (Portugal)
    nullptr,            // 29 Romanian
    nullptr,            // 30 Serbian
    nullptr,            // 31 Slovak
    nullptr,            // 32 Slovenian
    nullptr,            // 33 Thai
    nullptr,            // 34 Turkish
    nullptr,            // 35 Russian, second table
};
