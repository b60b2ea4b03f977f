#include "events/sk_message_catalogue.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring translate(std::uint32_t id, std::uint32_t language, std::vector<std::uint32_t> p,
                       int *result = nullptr, std::uint32_t *priority = nullptr)
{
    p.resize(8, 0);
    wchar_t text[SK_MESSAGE_TEXT_SIZE];
    std::uint32_t prio = 0;
    const int r = SK_TranslateMessage(id, language, text, &prio, p.data());
    if (result)
        *result = r;
    if (priority)
        *priority = prio;
    return text;
}

TEST(Catalogue, holdsItsRowsInAscendingOrderWithValidPriorities)
{
    for (int i = 0; i < SK_MESSAGE_COUNT; ++i) {
        EXPECT_GE(SK_MessageRows[i].MessageId, 1001);
        EXPECT_LE(SK_MessageRows[i].MessageId, 1192);
        if (i > 0) {
            EXPECT_GT(SK_MessageRows[i].MessageId, SK_MessageRows[i - 1].MessageId);
        }
        EXPECT_GE(SK_MessageRows[i].Priority, 1);
        EXPECT_LE(SK_MessageRows[i].Priority, 4);
        ASSERT_NE(SK_MessagesEnglish[i], nullptr);
    }
}

TEST(Catalogue, everyRowFormatsInEveryLanguageWithoutAStrayInsert)
{
    const std::vector<std::uint32_t> sample{7, 3, 12, 4, 5, 6, 7, 8};
    for (int i = 0; i < SK_MESSAGE_COUNT; ++i) {
        const SK_MessageEntry *entry = SK_FindMessage(SK_MessageRows[i].MessageId);
        ASSERT_NE(entry, nullptr);
        for (std::uint32_t language = 0; language < SK_LANGUAGE_COUNT; ++language) {
            ASSERT_NE(entry->Text[language], nullptr);
            const std::wstring text = translate(entry->MessageId, language, sample);
            EXPECT_EQ(text.find(L'%'), std::wstring::npos) << entry->MessageId << "/" << language;
            EXPECT_EQ(text.find(L"?**?"), std::wstring::npos) << entry->MessageId;
        }
    }
}

struct TextCase
{
    std::uint32_t id;
    std::uint32_t language;
    std::vector<std::uint32_t> params;
    const wchar_t *text;
    int result;
    std::uint32_t priority;
};

class Translation : public ::testing::TestWithParam<TextCase>
{
};

TEST_P(Translation, givesTheTextResultAndPriority)
{
    int result = -1;
    std::uint32_t priority = 99;
    EXPECT_EQ(translate(GetParam().id, GetParam().language, GetParam().params, &result, &priority),
              GetParam().text);
    EXPECT_EQ(result, GetParam().result);
    EXPECT_EQ(priority, GetParam().priority);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, Translation,
    ::testing::Values(
        TextCase{1014, 0, {7}, L"Array 7 has been deleted.", 1, 2},
        TextCase{1014, 36, {7}, L"Array 7 has been deleted.", 1, 2},
        TextCase{1014, 40, {7}, L"Array 7 has been deleted.", 1, 2},
        TextCase{1013, 0, {0, 3}, L"Drive failed on controller 0 channel 3.", 1, 4},
        TextCase{1154,
                 0,
                 {1, 2, 5},
                 L"Array 5 assigned dedicated spare on controller 1 channel 2.",
                 1,
                 2},
        TextCase{1052, 0, {0xBEEF, 0x12}, L"Block number low=0xbeef, high=0x12.", 1, 2},
        TextCase{1014, 0, {0xFFFFFFFBu}, L"Array -5 has been deleted.", 1, 2},
        TextCase{4242,
                 0,
                 {1, 2, 3, 4},
                 L"Could not find message ID 4242 (0x1092) for translation, p1=0x1, p2=0x2, "
                 L"p3=0x3, p4=0x4.",
                 0,
                 4},
        // Driver logs are outside data: numbers without a row never stop the console.
        TextCase{0,
                 0,
                 {},
                 L"Could not find message ID 0 (0x0) for translation, p1=0x0, p2=0x0, "
                 L"p3=0x0, p4=0x0.",
                 0,
                 4},
        TextCase{500,
                 0,
                 {9},
                 L"Could not find message ID 500 (0x1f4) for translation, p1=0x9, "
                 L"p2=0x0, p3=0x0, p4=0x0.",
                 0,
                 4}));

TEST(TraceRecords, areIndentedByTheirDepthWhichStaysBetweenZeroAndForty)
{
    SK_SetTraceDepth(0);
    const std::wstring entering = translate(2, 0, {0x1A, 17, 18, 99});
    EXPECT_EQ(entering, std::wstring(40, L' ') + L"TRACE: Entering Routine, NestID: 0x0000001A, "
                                                 L"Routine: bogus File: bogus, Line: 99");
    EXPECT_EQ(SK_TraceDepth(), 1);
    EXPECT_EQ(translate(8, 0, {}),
              std::wstring(39, L' ') + L"*********** TRACE SUSPENDED ************");
    EXPECT_EQ(translate(7, 0, {}).find(L"TRACE: Exiting"), 39u);
    EXPECT_EQ(SK_TraceDepth(), 0);
    translate(7, 0, {});
    EXPECT_EQ(SK_TraceDepth(), 0);

    SK_SetTraceDepth(50);
    EXPECT_EQ(SK_TraceDepth(), 40);
    EXPECT_EQ(translate(9, 0, {}).find(L'*'), 0u);
    translate(2, 0, {});
    EXPECT_EQ(SK_TraceDepth(), 40);
    int result = 0;
    std::uint32_t priority = 0;
    translate(5, 0, {12, 3}, &result, &priority);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(priority, 1u);
    SK_SetTraceDepth(0);
}

TEST(PriorityWords, coverTheTableAndTheRest)
{
    const wchar_t *expected[] = {L"??", L"VL", L"IN", L"WA", L"CR", L"LG", L"!!"};
    for (std::uint32_t p = 0; p < 7; ++p)
        EXPECT_STREQ(SK_PriorityWord(p), expected[p]);
    EXPECT_STREQ(SK_PriorityWord(1000), L"!!");
}

} // namespace
