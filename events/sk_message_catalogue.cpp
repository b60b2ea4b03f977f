#include "events/sk_message_catalogue.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

namespace {

// The full entries, built once from the per-language tables.
const std::array<SK_MessageEntry, SK_MESSAGE_COUNT> &entries()
{
    static const std::array<SK_MessageEntry, SK_MESSAGE_COUNT> table = [] {
        std::array<SK_MessageEntry, SK_MESSAGE_COUNT> rows{};
        for (int i = 0; i < SK_MESSAGE_COUNT; ++i) {
            rows[i].MessageId = SK_MessageRows[i].MessageId;
            rows[i].Priority = SK_MessageRows[i].Priority;
            for (int language = 0; language < SK_LANGUAGE_COUNT; ++language) {
                const wchar_t *const *texts = SK_LanguageTexts[language];
                // Every language has every text; a gap is a build mistake, not input.
                if (!texts || !texts[i]) {
                    std::fprintf(stderr, "message catalogue: no text for %u in language %d\n",
                                 static_cast<unsigned>(SK_MessageRows[i].MessageId), language);
                    std::abort();
                }
                rows[i].Text[language] = texts[i];
            }
        }
        return rows;
    }();
    return table;
}

// --- Inserts ------------------------------------------------------------------------

// String parameters are numbers of strings the driver keeps; the console has no
// table behind them, so each new number takes the next of 1000 slots in turn and
// reads "bogus". The text is what a user sees of such an insert.
struct StringSlot
{
    std::uint32_t number = 0;
    const wchar_t *text = nullptr;
};

const wchar_t *stringForNumber(std::uint32_t number)
{
    static StringSlot slots[1000];
    static int next = 0;
    for (const StringSlot &slot : slots) {
        if (slot.text && slot.number == number)
            return slot.text;
    }
    StringSlot &slot = slots[next];
    next = (next + 1) % 1000;
    slot.number = number;
    slot.text = L"bogus";
    return slot.text;
}

bool isConversion(wchar_t c)
{
    return c == L'd' || c == L'i' || c == L'u' || c == L'x' || c == L'X' || c == L'o' ||
           c == L'c' || c == L's';
}

// Formats one insert such as "08X" with its parameter; false for a conversion that
// isn't a plain flag/width/type form, which is then left as text.
bool formatInsert(const std::wstring &conversion, std::uint32_t value, std::wstring &out)
{
    if (conversion.empty() || conversion.size() > 8 || !isConversion(conversion.back()))
        return false;
    for (std::size_t i = 0; i + 1 < conversion.size(); ++i) {
        const wchar_t c = conversion[i];
        if (!(c == L'-' || c == L'+' || c == L' ' || c == L'#' || (c >= L'0' && c <= L'9')))
            return false;
    }
    const std::wstring format = L"%" + conversion;
    wchar_t piece[64];
    int written = 0;
    switch (conversion.back()) {
    case L's': {
        // Wide text needs "ls" where the catalogue says "s".
        const std::wstring wideFormat = format.substr(0, format.size() - 1) + L"ls";
        const wchar_t *text = stringForNumber(value);
        written =
            std::swprintf(piece, 64, wideFormat.c_str(), text ? text : L"!?NoStringTranslation?!");
        break;
    }
    case L'd':
    case L'i':
        written = std::swprintf(piece, 64, format.c_str(), static_cast<int>(value));
        break;
    case L'c':
        written = std::swprintf(piece, 64, format.c_str(), static_cast<wint_t>(value & 0xFFFF));
        break;
    default:
        written = std::swprintf(piece, 64, format.c_str(), static_cast<unsigned>(value));
        break;
    }
    if (written < 0)
        return false;
    out += piece;
    return true;
}

// Replaces every "%n!f!" of `text` by parameter n in conversion f. A "%" without a
// valid insert behind it is written as "?**?".
std::wstring expandInserts(const wchar_t *text, const std::uint32_t *params)
{
    std::wstring out;
    for (const wchar_t *p = text; *p; ++p) {
        if (*p != L'%') {
            out += *p;
            continue;
        }
        const wchar_t *q = p + 1;
        int number = 0;
        while (*q >= L'0' && *q <= L'9' && number < 100)
            number = number * 10 + (*q++ - L'0');
        const wchar_t *close = (*q == L'!') ? std::wcschr(q + 1, L'!') : nullptr;
        if (number < 1 || number > 8 || !close) {
            out += L"?**?";
            continue;
        }
        const std::wstring conversion(q + 1, close);
        if (!formatInsert(conversion, params[number - 1], out)) {
            out += L"?**?";
            continue;
        }
        p = close;
    }
    return out;
}

void copyOut(const std::wstring &text, wchar_t *textOut)
{
    const std::size_t n = std::min<std::size_t>(text.size(), SK_MESSAGE_TEXT_SIZE - 1);
    text.copy(textOut, n);
    textOut[n] = L'\0';
}

// --- Trace records ------------------------------------------------------------------

int g_traceDepth = 0;

constexpr const wchar_t *kTraceIndent = L"                                        "; // 40

int clampDepth(int depth)
{
    return depth < 0 ? 0 : depth > 40 ? 40 : depth;
}

void traceRecord(std::uint32_t number, const std::uint32_t *p, wchar_t *textOut)
{
    wchar_t body[SK_MESSAGE_TEXT_SIZE] = {};
    std::wstring inserted;
    int change = 0;
    switch (number) {
    case 1: // the first parameter names the format; the rest are its parameters
        inserted = stringForNumber(p[0]);
        break;
    case 2:
        inserted = expandInserts(L"TRACE: Entering Routine, NestID: 0x%1!08X!, Routine: %2!s! "
                                 L"File: %3!s!, Line: %4!d!",
                                 p);
        change = 1;
        break;
    case 3:
        inserted = expandInserts(L"TRACE: ...IOC=%1!08X!, Route=%2!d!, DevInt=%3!X!, "
                                 L"SectStrt=%4!X!.%5!08X!, SCnt=%6!X!, Flg=%7!X!, State=%8!X!",
                                 p);
        break;
    case 4:
        inserted = expandInserts(L"TRACE: ...IOC: RetSts=%1!X! AdrElm=%2!X!, AdrLst=%3!X!, "
                                 L"AdrOff=%4!X!, PhysAddr=%5!x!.%6!08X!, AddrSize=%7!X!",
                                 p);
        break;
    case 5:
        std::swprintf(body, SK_MESSAGE_TEXT_SIZE, L"TRACE: [Line: %d] %ls", static_cast<int>(p[0]),
                      stringForNumber(p[1]));
        inserted = body;
        break;
    case 6:
        std::swprintf(body, SK_MESSAGE_TEXT_SIZE, L"TRACE: Exiting Routine [Line: %d], %ls",
                      static_cast<int>(p[0]), stringForNumber(p[1]));
        inserted = body;
        change = -1;
        break;
    case 7:
        inserted = L"TRACE: Exiting Routine (no other info available)";
        change = -1;
        break;
    case 8:
        inserted = L"*********** TRACE SUSPENDED ************";
        break;
    default: // 9
        inserted = L"*********** TRACE RESTARTED AFTER BEING SUSPENDED ************";
        break;
    }
    // The stored text begins with 40 blanks; the depth cuts that many from the front.
    const int depth = clampDepth(g_traceDepth);
    copyOut(std::wstring(kTraceIndent + depth) + inserted, textOut);
    g_traceDepth = clampDepth(g_traceDepth + change);
}

} // namespace

const SK_MessageEntry *SK_FindMessage(std::uint32_t messageId)
{
    for (const SK_MessageEntry &entry : entries()) {
        if (entry.MessageId == messageId)
            return &entry;
    }
    return nullptr;
}

int SK_TraceDepth()
{
    return g_traceDepth;
}

void SK_SetTraceDepth(int depth)
{
    g_traceDepth = clampDepth(depth);
}

const wchar_t *SK_PriorityWord(std::uint32_t priority)
{
    static const wchar_t *const words[] = {L"??", L"VL", L"IN", L"WA", L"CR", L"LG"};
    return priority < 6 ? words[priority] : L"!!";
}

int SK_TranslateMessage(std::uint32_t messageId, std::uint32_t language, wchar_t *textOut,
                        std::uint32_t *priorityOut, const std::uint32_t *parameters)
{
    static const std::uint32_t none[8] = {};
    const std::uint32_t *params = parameters ? parameters : none;
    if (language >= SK_LANGUAGE_COUNT)
        language = SK_LANG_ENGLISH;

    if (messageId >= 1 && messageId <= 9) {
        if (priorityOut)
            *priorityOut = 1;
        traceRecord(messageId, params, textOut);
        return 1;
    }
    // Numbers come from the driver's log, so any value may arrive; those without a
    // row (trace numbers out of range included) take the "could not find" message.
    if (const SK_MessageEntry *entry = SK_FindMessage(messageId)) {
        if (priorityOut)
            *priorityOut = entry->Priority;
        copyOut(expandInserts(entry->Text[language], params), textOut);
        return 1;
    }
    const std::uint32_t shifted[8] = {messageId, params[0], params[1], params[2],
                                      params[3], params[4], params[5], params[6]};
    if (const SK_MessageEntry *fallback = SK_FindMessage(1011)) {
        if (priorityOut)
            *priorityOut = fallback->Priority;
        copyOut(expandInserts(fallback->Text[language], shifted), textOut);
        return 0;
    }
    wchar_t line[SK_MESSAGE_TEXT_SIZE];
    std::swprintf(line, SK_MESSAGE_TEXT_SIZE,
                  L"CANNOT TRANSLATE, msg_id=%d (0x%x), p1=0x%x, p2=0x%x, p3=0x%x, p4=0x%x\n",
                  static_cast<int>(messageId), messageId, params[0], params[1], params[2],
                  params[3]);
    copyOut(line, textOut);
    return 0;
}
