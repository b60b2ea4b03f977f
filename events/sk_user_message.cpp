#include "events/sk_user_message.h"

#include "driver/driver.h"
#include "events/sk_message_catalogue.h"

#include <cstdio>
#include <cwchar>
#include <cwctype>

namespace {

constexpr std::uint32_t kReplySize = 8192;
constexpr std::size_t kAvailable = 8, kNextCursor = 12, kMessage = 512, kEntryByte = 515,
                      kNumber = 516, kParams = 520;
constexpr std::uint32_t kControlLogEvent = 0x42003;
constexpr std::uint32_t kLogEventRecordSize = 44;

std::uint32_t renderLine(const std::uint8_t *reply, std::uint32_t language, wchar_t *textOut,
                         std::uint32_t textSize)
{
    std::uint32_t params[8];
    for (int i = 0; i < 8; ++i)
        params[i] = SK_GetU32(reply, kParams + 4 * i);
    const std::uint32_t message = SK_GetU16(reply, kMessage);
    wchar_t text[SK_MESSAGE_TEXT_SIZE];
    std::uint32_t priority = 0;
    SK_TranslateMessage(message, language < SK_LANGUAGE_COUNT ? language : 0, text, &priority,
                        params);
    std::swprintf(
        textOut, textSize,
        L"%05d: [%02x] (%05d) %ls - %ls =END= (%d)(%d)(%d)(%d)(%d)(%d)(%d)(%d)\n",
        static_cast<int>(SK_GetU32(reply, kNumber)), reply[kEntryByte], static_cast<int>(message),
        SK_PriorityWord(priority), text, static_cast<int>(params[0]), static_cast<int>(params[1]),
        static_cast<int>(params[2]), static_cast<int>(params[3]), static_cast<int>(params[4]),
        static_cast<int>(params[5]), static_cast<int>(params[6]), static_cast<int>(params[7]));
    return SK_STS_VALID_USER_MESSAGE_LINE;
}

// Reads a decimal number made of digits (and, where allowed, minus signs) up to `end`.
bool readNumber(const wchar_t *&p, wchar_t end, bool allowMinus, std::int64_t &value)
{
    bool negative = false;
    value = 0;
    for (; *p && *p != end; ++p) {
        if (allowMinus && *p == L'-') {
            negative = !negative;
            continue;
        }
        if (*p < L'0' || *p > L'9')
            return false;
        if (value < 0x7FFFFFFFFFFFll / 10)
            value = value * 10 + (*p - L'0');
    }
    if (*p != end)
        return false;
    ++p;
    if (negative)
        value = -value;
    return true;
}

bool skipTo(const wchar_t *&p, wchar_t c)
{
    p = std::wcschr(p, c);
    if (!p)
        return false;
    ++p;
    return true;
}

} // namespace

std::uint32_t SK_EventCode(std::uint32_t messageId, std::uint32_t priority)
{
    const std::uint32_t high = priority <= 2   ? 0x41E00000u
                               : priority == 3 ? 0x81E00000u
                                               : 0xC1E00000u;
    return high | (messageId & 0xFFFF);
}

std::uint32_t SK_ApiGetUserMessage(const SK_CoreEntry *core, wchar_t *textOut,
                                   std::uint32_t textSize, std::uint32_t *cursor, int wait,
                                   std::uint32_t language)
{
    if (!core || !textOut || textSize == 0 || !cursor)
        return SKTL_STS_INVALID_PARAMETER;
    SKTL_Lock();
    std::uint32_t status = SK_STS_INVALID_CORE_HANDLE;
    {
        SK_Core channel(core->BusName, core->CoreName, 0);
        SKTL_AlignedBuffer reply(kReplySize, "SK_ApiGetUserMessage");
        if (channel.Handle == 0) {
            status = SK_STS_INVALID_CORE_HANDLE;
        } else if (!reply.ok()) {
            status = SK_STS_SPACE_NOT_ALLOCATED;
        } else {
            for (;;) {
                std::memset(reply.data(), 0, kReplySize);
                status =
                    channel.SK_ConfigRead(reply.data(), kReplySize, SK_READ_USER_MESSAGE, *cursor);
                if (status != SK_STS_SUCCESS)
                    break;
                if (SK_GetU32(reply.data(), kAvailable) != 0 || !wait)
                    break;
                // Give commands their turn while the log stays empty.
                SKTL_Unlock();
                SKTL_Sleep(1000);
                SKTL_Lock();
            }
            if (status == SK_STS_SUCCESS) {
                *cursor = SK_GetU32(reply.data(), kNextCursor);
                if (SK_GetU32(reply.data(), kAvailable) != 0) {
                    status = renderLine(reply.data(), language, textOut, textSize);
                } else {
                    textOut[0] = L'\0';
                    status = SK_STS_NO_USER_MESSAGE_LINE;
                }
            }
        }
    }
    SKTL_Unlock();
    return status;
}

std::uint32_t SK_ParseUserMessageLine(const wchar_t *line, std::int32_t *code,
                                      std::uint32_t *priority, wchar_t *text,
                                      std::uint32_t textLimit, std::int32_t *params)
{
    constexpr std::uint32_t kRefused = SKTL_STS_INVALID_PARAMETER;
    if (!line || !code || !priority || !text || !params)
        return kRefused;
    const wchar_t *p = line;
    std::int64_t value = 0;
    if (!readNumber(p, L':', false, value))
        return kRefused;
    if (!skipTo(p, L'[') || !readNumber(p, L']', false, value))
        return kRefused;
    if (!skipTo(p, L'(') || !readNumber(p, L')', false, value))
        return kRefused;
    *code = static_cast<std::int32_t>(value);

    while (*p == L' ')
        ++p;
    static const wchar_t *const words[] = {L"VL", L"IN", L"WA", L"CR", L"LG"};
    *priority = 0;
    if (p[0] && p[1]) {
        for (std::uint32_t i = 0; i < 5; ++i) {
            if (p[0] == words[i][0] && p[1] == words[i][1])
                *priority = i;
        }
        p += 2;
    }
    // Only blanks are skipped behind the pair: the text keeps the "- " separator of the
    // line, and the event view shows it that way behind the time stamp.
    while (*p == L' ')
        ++p;

    static const wchar_t kEnd[] = L" =END= ";
    const wchar_t *end = std::wcsstr(p, kEnd);
    if (!end || static_cast<std::uint32_t>(end - p) > textLimit + 1)
        return kRefused;
    const std::size_t length = static_cast<std::size_t>(end - p);
    std::wmemcpy(text, p, length);
    text[length] = L'\0';
    p = end + (sizeof kEnd / sizeof kEnd[0] - 1);

    for (int i = 0; i < 8; ++i) {
        if (!skipTo(p, L'(') || !readNumber(p, L')', true, value))
            return kRefused;
        params[i] = static_cast<std::int32_t>(value);
    }
    return SK_STS_VALID_USER_MESSAGE_LINE;
}

std::uint32_t SK_ReportEvent(std::uint32_t messageId, std::uint32_t p1, std::uint32_t p2,
                             std::uint32_t p3, std::uint32_t p4, std::uint32_t p5, std::uint32_t p6,
                             std::uint32_t p7, std::uint32_t p8)
{
    const SK_Handle device = SKTL_DeviceOpen("\\\\.\\SKConfig0", 5, 1);
    if (device == 0) {
        std::printf("Error: CreatFile Failed : %d\n", static_cast<int>(SKTL_LastError()));
        return SK_STS_FAILURE;
    }
    std::uint32_t status = SK_STS_FAILURE;
    const SK_MessageEntry *entry = SK_FindMessage(messageId);
    if (!entry) {
        std::printf("Couldn't translate message number %d\n", static_cast<int>(messageId));
    } else if (entry->Priority < 1 || entry->Priority > 5) {
        std::printf("Couldn't translate priority %d\n", static_cast<int>(entry->Priority));
    } else if (void *record = SKTL_Alloc(kLogEventRecordSize, "SK_ReportEvent"); !record) {
        std::printf("Couldn't allocate %d bytes for error mesage.\n",
                    static_cast<int>(kLogEventRecordSize));
    } else {
        const std::uint32_t code = SK_EventCode(messageId, entry->Priority);
        const std::uint32_t params[8] = {p1, p2, p3, p4, p5, p6, p7, p8};
        SK_PutU32(record, 0, code);
        SK_PutU32(record, 4, code);
        SK_PutU32(record, 8, 8);
        for (int i = 0; i < 8; ++i)
            SK_PutU32(record, 12 + 4 * i, params[i]);
        std::uint32_t error = 0;
        if (SKTL_DeviceControl(device, kControlLogEvent, record, kLogEventRecordSize, record,
                               kLogEventRecordSize, error)) {
            status = SK_STS_SUCCESS;
        } else {
            std::printf("Error log:0x%x\n", error);
        }
        SKTL_Free(record);
    }
    SKTL_DeviceClose(device);
    return status;
}
