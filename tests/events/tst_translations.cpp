// Every message in every language: present, translated, and with exactly the inserts
// of its English text, so no parameter goes missing or appears twice in translation.

#include "events/sk_message_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

// Inserts of a text, "%n!f!", sorted.
std::vector<std::wstring> insertsOf(const wchar_t *text)
{
    std::vector<std::wstring> inserts;
    for (const wchar_t *p = text; *p; ++p) {
        if (*p != L'%')
            continue;
        const wchar_t *bang = std::wcschr(p, L'!');
        const wchar_t *close = bang ? std::wcschr(bang + 1, L'!') : nullptr;
        inserts.emplace_back(p, close ? close + 1 : p + 1);
    }
    std::sort(inserts.begin(), inserts.end());
    return inserts;
}

// Rows whose translation may read like the English one in that language.
bool mayEqualEnglish(std::uint32_t language, std::uint16_t messageId)
{
    (void)language;
    (void)messageId;
    return false;
}

TEST(Translations, everyLanguageHasEveryRowWithTheEnglishInserts)
{
    for (std::uint32_t language = 1; language < SK_LANGUAGE_COUNT; ++language) {
        const wchar_t *const *texts = SK_LanguageTexts[language];
        ASSERT_NE(texts, nullptr) << "language " << language;
        for (int row = 0; row < SK_MESSAGE_COUNT; ++row) {
            const std::uint16_t id = SK_MessageRows[row].MessageId;
            ASSERT_NE(texts[row], nullptr) << "language " << language << ", message " << id;
            EXPECT_GT(std::wcslen(texts[row]), 0u) << language << "/" << id;
            if (!mayEqualEnglish(language, id)) {
                EXPECT_NE(std::wstring(texts[row]), std::wstring(SK_MessagesEnglish[row]))
                    << "language " << language << ", message " << id << " is not translated";
            }
            EXPECT_EQ(insertsOf(texts[row]), insertsOf(SK_MessagesEnglish[row]))
                << "language " << language << ", message " << id;
        }
    }
}

TEST(Translations, languagesWithTheirOwnColumnAreDistinct)
{
    // The second Traditional Chinese and the second Russian column may share their
    // texts with the first; every other language has a table of its own.
    std::set<const wchar_t *const *> tables;
    for (std::uint32_t language = 0; language < SK_LANGUAGE_COUNT; ++language) {
        if (language == SK_LANG_CHINESE_TRADITIONAL_2 || language == SK_LANG_RUSSIAN_2)
            continue;
        EXPECT_TRUE(tables.insert(SK_LanguageTexts[language]).second) << language;
    }
}

TEST(Translations, translatedMessagesFormatCleanly)
{
    const std::uint32_t sample[8] = {7, 3, 12, 0xFFFFFFFFu, 5, 6, 7, 8};
    for (std::uint32_t language = 0; language < SK_LANGUAGE_COUNT; ++language) {
        for (int row = 0; row < SK_MESSAGE_COUNT; ++row) {
            wchar_t text[SK_MESSAGE_TEXT_SIZE];
            std::uint32_t priority = 0;
            ASSERT_EQ(SK_TranslateMessage(SK_MessageRows[row].MessageId, language, text, &priority,
                                          sample),
                      1);
            const std::wstring line(text);
            EXPECT_EQ(line.find(L'%'), std::wstring::npos) << language << "/" << row;
            EXPECT_EQ(line.find(L"?**?"), std::wstring::npos) << language << "/" << row;
        }
    }
    wchar_t german[SK_MESSAGE_TEXT_SIZE];
    const std::uint32_t seven[8] = {7};
    SK_TranslateMessage(1014, SK_LANG_GERMAN, german, nullptr, seven);
    EXPECT_NE(std::wstring(german).find(L'7'), std::wstring::npos);
    EXPECT_NE(std::wstring(german), L"Array 7 has been deleted.");
}

} // namespace
