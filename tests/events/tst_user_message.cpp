#include "events/events.h"

#include "support/emulated_host.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

const SK_CoreEntry kCore{1, ".", "Core1"};

struct Read
{
    std::uint32_t status;
    std::wstring line;
    std::uint32_t cursor;
};

Read readAt(std::uint32_t cursor, std::uint32_t language = 0, int wait = 0)
{
    wchar_t text[1024] = L"untouched";
    const std::uint32_t status = SK_ApiGetUserMessage(&kCore, text, 1024, &cursor, wait, language);
    return Read{status, text, cursor};
}

TEST(UserMessages, areReadByCursorAsOneLineEach)
{
    EmulatedHostScope scope;
    const Read first = readAt(3);
    ASSERT_EQ(first.status, 53u);
    EXPECT_EQ(first.line, L"00003: [00] (01001) VL - Initialized messages space, starting message "
                          L"logging. =END= (0)(0)(0)(0)(0)(0)(0)(0)\n");
    EXPECT_EQ(first.cursor, 4u);
    const Read second = readAt(first.cursor);
    EXPECT_EQ(second.line.substr(0, 27), L"00004: [00] (01138) IN - A ");
    EXPECT_NE(second.line.find(L"=END= (1)(0)"), std::wstring::npos);
}

TEST(UserMessages, emptyLogAnswers54WithTheDriversCursor)
{
    EmulatedHostScope scope;
    const Read none = readAt(500);
    EXPECT_EQ(none.status, 54u);
    EXPECT_EQ(none.line, L"");
    EXPECT_EQ(none.cursor, 19u);
}

TEST(UserMessages, withoutADeviceTheStatusIs8AndTheCursorStays)
{
    SK_InstallPlatform(nullptr);
    const Read read = readAt(3);
    EXPECT_EQ(read.status, 8u);
    EXPECT_EQ(read.cursor, 3u);
}

TEST(UserMessages, aRefusedReadKeepsTheCursor)
{
    EmulatedHostScope scope;
    // The first refusal meets the image read of the channel, the second the event read.
    scope.host->refuseNextRequests(2, SK_STS_DEVICE_IS_BUSY);
    const Read read = readAt(3);
    EXPECT_EQ(read.status, SK_STS_DEVICE_IS_BUSY);
    EXPECT_EQ(read.cursor, 3u);
}

// A clock whose first sleep is when the driver logs something new.
class EventOnSleep : public SK_EmuClock
{
public:
    std::uint64_t nowMs() const override { return m_now; }
    void sleep(std::uint32_t ms) override
    {
        m_now += ms;
        ++sleeps;
        if (host && sleeps == 2)
            host->injectEvent(1037, {});
    }
    sk_emu::Host *host = nullptr;
    int sleeps = 0;

private:
    std::uint64_t m_now = 0;
};

TEST(UserMessages, waitingAsksAgainEverySecondUntilAnEventArrives)
{
    auto clock = std::make_shared<EventOnSleep>();
    auto host = std::make_shared<sk_emu::Host>(sk_emu::defaultScenario(), clock);
    clock->host = host.get();
    SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    const Read read = readAt(19, 0, 1);
    SK_InstallPlatform(nullptr);
    EXPECT_EQ(read.status, 53u);
    EXPECT_EQ(clock->sleeps, 2);
    EXPECT_NE(read.line.find(L"(01037) IN - Config Change."), std::wstring::npos);
}

struct ParseCase
{
    const char *what;
    std::wstring line;
    std::uint32_t status;
    std::int32_t code;
    std::uint32_t priority;
    std::wstring text;
};

class LineParsing : public ::testing::TestWithParam<ParseCase>
{
};

TEST_P(LineParsing, takesTheLineApartOrRefusesIt)
{
    std::int32_t code = -1, params[8] = {};
    std::uint32_t priority = 99;
    wchar_t text[64] = L"";
    EXPECT_EQ(SK_ParseUserMessageLine(GetParam().line.c_str(), &code, &priority, text, 40, params),
              GetParam().status)
        << GetParam().what;
    if (GetParam().status != 53)
        return;
    EXPECT_EQ(code, GetParam().code);
    EXPECT_EQ(priority, GetParam().priority);
    EXPECT_EQ(std::wstring(text), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineParsing,
    ::testing::Values(
        ParseCase{"a full line",
                  L"00017: [01] (01014) WA - Array 2 has been deleted. =END= "
                  L"(2)(0)(0)(0)(0)(0)(0)(0)\n",
                  53, 1014, 2, L"- Array 2 has been deleted."},
        ParseCase{"an unknown priority word counts as 0",
                  L"3: [0] (1001) ZZ - Hello =END= (0)(0)(0)(0)(0)(0)(0)(0)", 53, 1001, 0,
                  L"- Hello"},
        ParseCase{"blanks behind the word, no separator",
                  L"3: [0] (1001) CR   Hello =END= (0)(0)(0)(0)(0)(0)(0)(0)", 53, 1001, 3,
                  L"Hello"},
        ParseCase{"a text of the limit plus one",
                  L"1: [0] (1001) LG - " + std::wstring(39, L'x') +
                      L" =END= (0)(0)(0)(0)(0)(0)(0)(0)",
                  53, 1001, 4, L"- " + std::wstring(39, L'x')},
        ParseCase{"an entry byte printed with a letter",
                  L"00003: [0b] (01001) VL - x =END= (0)(0)(0)(0)(0)(0)(0)(0)", 7, 0, 0, L""},
        ParseCase{"a sequence number with a letter",
                  L"0a003: [00] (01001) VL - x =END= (0)(0)(0)(0)(0)(0)(0)(0)", 7, 0, 0, L""},
        ParseCase{"no end marker", L"00003: [00] (01001) VL - x (0)(0)(0)(0)(0)(0)(0)(0)", 7, 0, 0,
                  L""},
        ParseCase{"a text longer than the limit allows",
                  L"1: [0] (1001) VL - " + std::wstring(40, L'x') +
                      L" =END= (0)(0)(0)(0)(0)(0)(0)(0)",
                  7, 0, 0, L""},
        ParseCase{"only seven parameters", L"1: [0] (1001) VL - x =END= (0)(0)(0)(0)(0)(0)(0)", 7,
                  0, 0, L""},
        ParseCase{"an empty line", L"", 7, 0, 0, L""}));

TEST(UserMessages, readAndParseRoundTripKeepsNegativeParameters)
{
    EmulatedHostScope scope;
    scope.host->injectEvent(1014, {0xFFFFFFF9u, 2, 0, 0, 0, 0, 0, 0xFFFFFFFFu});
    const Read read = readAt(19, 0);
    ASSERT_EQ(read.status, 53u);
    EXPECT_NE(read.line.find(L"(-7)(2)(0)(0)(0)(0)(0)(-1)"), std::wstring::npos);

    std::int32_t code = 0, params[8] = {};
    std::uint32_t priority = 0;
    wchar_t text[300];
    ASSERT_EQ(SK_ParseUserMessageLine(read.line.c_str(), &code, &priority, text, 255, params), 53u);
    EXPECT_EQ(code, 1014);
    EXPECT_EQ(priority, 1u); // "IN"
    EXPECT_EQ(std::wstring(text), L"- Array -7 has been deleted.");
    EXPECT_EQ(params[0], -7);
    EXPECT_EQ(params[7], -1);
}

TEST(UserMessages, anEntryByteWithALetterIsWrittenButNotReadBack)
{
    EmulatedHostScope scope;
    scope.host->modify([](sk_emu::Model &m) {
        m.events.back().entryByte = 0x1C;
        return false;
    });
    const Read read = readAt(18);
    ASSERT_EQ(read.status, 53u);
    EXPECT_EQ(read.line.substr(0, 11), L"00018: [1c]");
    std::int32_t code = 0, params[8] = {};
    std::uint32_t priority = 0;
    wchar_t text[300];
    EXPECT_EQ(SK_ParseUserMessageLine(read.line.c_str(), &code, &priority, text, 255, params), 7u);
}

TEST(ReportEvent, writesIntoTheDriversLog)
{
    EmulatedHostScope scope;
    EXPECT_EQ(SK_ReportEvent(1041, 0, 4, 0, 0, 0, 0, 0, 0), 1u);
    const sk_emu::Event last = scope.host->model().events.back();
    EXPECT_EQ(last.message, 1041u);
    EXPECT_EQ(last.params[1], 4u);

    testing::internal::CaptureStdout();
    EXPECT_EQ(SK_ReportEvent(4242, 0, 0, 0, 0, 0, 0, 0, 0), 3u);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Couldn't translate message number 4242\n");
    EXPECT_EQ(SK_EventCode(1014, 2), 0x41E003F6u);
    EXPECT_EQ(SK_EventCode(1017, 3), 0x81E003F9u);
    EXPECT_EQ(SK_EventCode(1015, 4), 0xC1E003F7u);
}

// A control device another process holds exclusively: every open is denied.
class DeniedPlatform final : public SK_Platform
{
public:
    const char *name() const override { return "denied"; }
    SK_Handle openDevice(const char *, std::uint32_t, std::uint32_t) override { return 0; }
    void closeDevice(SK_Handle) override {}
    std::uint32_t transfer(bool, SK_Handle, void *, std::uint64_t, std::uint32_t, void *,
                           SKTL_Callback) override
    {
        return 3;
    }
    void sleep(std::uint32_t) override {}
    std::uint32_t lastError() const override { return 5; } // ERROR_ACCESS_DENIED
};

TEST(ReportEvent, aRefusedOpenPrintsTheSystemsError)
{
    SK_InstallPlatform(std::make_unique<DeniedPlatform>());
    testing::internal::CaptureStdout();
    EXPECT_EQ(SK_ReportEvent(1014, 1, 0, 0, 0, 0, 0, 0, 0), 3u);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: CreatFile Failed : 5\n");
    SK_InstallPlatform(nullptr);
}

TEST(ReportEvent, withoutADeviceSaysSo)
{
    SK_InstallPlatform(nullptr);
    testing::internal::CaptureStdout();
    EXPECT_EQ(SK_ReportEvent(1014, 1, 0, 0, 0, 0, 0, 0, 0), 3u);
    // No device at all: the open fails as for a name the system does not know.
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: CreatFile Failed : 2\n");
}

} // namespace
