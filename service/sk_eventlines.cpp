// Reading the driver's event log one entry at a time for the event view.

#include "service/sk_raidapi.h"

#include <vector>

namespace {

constexpr std::uint32_t kLineSize = 16384;
constexpr quint32 kEventTextLimit = 4096;
// Languages of the catalogue; beyond them the view asks for nothing.
constexpr quint32 kLanguageCount = 36;

} // namespace

quint32 SK_RaidApi::ParseEventLine(quint32 &cursor, qint32 &code, quint32 &priority, QString &text,
                                   quint32 textLimit, qint32 *params, quint32 language)
{
    std::vector<wchar_t> line(kLineSize, L'\0');
    std::uint32_t driverCursor = cursor;
    const std::uint32_t status =
        SK_ApiGetUserMessage(Channel(), line.data(), kLineSize, &driverCursor, 0, language);
    cursor = driverCursor;
    if (status != SK_STS_VALID_USER_MESSAGE_LINE)
        return status;
    line.back() = L'\0';

    std::vector<wchar_t> parsed(std::size_t(textLimit) + 2, L'\0');
    std::int32_t values[8] = {};
    std::int32_t number = 0;
    std::uint32_t word = 0;
    const std::uint32_t result =
        SK_ParseUserMessageLine(line.data(), &number, &word, parsed.data(), textLimit, values);
    if (result != SK_STS_VALID_USER_MESSAGE_LINE)
        return result;
    code = number;
    priority = word;
    text = QString::fromWCharArray(parsed.data());
    if (params) {
        for (int i = 0; i < 8; ++i)
            params[i] = values[i];
    }
    return result;
}

SK_EventMessage SK_RaidApi::GetEventMessage(quint32 number, quint32 language)
{
    SK_EventMessage message;
    message.text = QStringLiteral("Init Error");
    if (language >= kLanguageCount)
        return message;

    quint32 cursor = number;
    qint32 code = 0;
    quint32 priority = 0;
    QString text;
    qint32 params[8] = {};
    message.status =
        ParseEventLine(cursor, code, priority, text, kEventTextLimit, params, language);
    if (message.status == SK_STS_VALID_USER_MESSAGE_LINE) {
        // The driver's cursor already points past the entry it gave.
        message.number = cursor - 1;
        message.code = code;
        message.priority = priority;
        message.text = text;
    }
    return message;
}
