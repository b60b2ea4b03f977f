// The status bar's throughput figures, picked out of the driver's statistics report.

#include "service/sk_raidapi.h"

#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace {

constexpr std::uint32_t kStatsTextSize = 8192;
// Every request starts a new interval, and the status bar asks every three seconds:
// the interval figures divided by this are rates per second. It is the report's
// interval, not the timer's setting, so it stays when the timer changes.
constexpr int kIntervalSeconds = 3;

// Lines of the report, by the driver's fixed layout.
constexpr int kHostTotalLine = 4;
constexpr int kDiskTotalLine = 5;
constexpr int kDiskMegabytesLine = 6;
constexpr int kHostMegabytesLine = 7;
constexpr int kDiskRequestsLine = 11;
constexpr int kBusActiveLine = 12;
constexpr int kCoreActiveLine = 13;
constexpr int kHostRequestsLine = 14;
constexpr int kLine18 = 18;

QString firstMatch(const QRegularExpression &pattern, const QString &line)
{
    return pattern.match(line).captured(1);
}

QString perSecondCount(const QRegularExpression &number, const QString &line)
{
    return QString::number(firstMatch(number, line).toLongLong() / kIntervalSeconds);
}

QString perSecondMegabytes(const QRegularExpression &decimal, const QString &line)
{
    return QString::number(
        firstMatch(decimal, line).toFloat() / static_cast<double>(kIntervalSeconds), 'f', 1);
}

} // namespace

void SK_RaidApi::RetrieveStats()
{
    std::vector<char> buffer(kStatsTextSize, '\0');
    const QRegularExpression number(QStringLiteral("(\\d+)"));
    const QRegularExpression decimal(QStringLiteral("(\\d+\\.\\d+)"));

    SK_IoStats stats;
    if (SK_BufferPrintApiGetStats(Channel(), buffer.data(), 9, 1, 0) != SK_STS_SUCCESS) {
        emit StatsRetrieved(stats);
        return;
    }
    buffer.back() = '\0';
    // A report shorter than the layout reads as empty lines.
    const QStringList lines =
        QString::fromLocal8Bit(buffer.data()).split(QLatin1Char('\n'), Qt::KeepEmptyParts);

    stats.hostBytes =
        QStringLiteral("Host: ") + ByteSizeText(firstMatch(number, lines.value(kHostTotalLine)));
    stats.diskBytes =
        QStringLiteral("Disk: ") + ByteSizeText(firstMatch(number, lines.value(kDiskTotalLine)));
    stats.line18 = lines.value(kLine18);
    stats.line13 = lines.value(kCoreActiveLine);
    stats.line12 = lines.value(kBusActiveLine);
    stats.diskIOps = QStringLiteral("Disk: ") +
                     perSecondCount(number, lines.value(kDiskRequestsLine)) +
                     QStringLiteral(" IO/s");
    stats.hostIOps = QStringLiteral("Host: ") +
                     perSecondCount(number, lines.value(kHostRequestsLine)) +
                     QStringLiteral(" IO/s");
    stats.hostMBps = QStringLiteral("Host: ") +
                     perSecondMegabytes(decimal, lines.value(kHostMegabytesLine)) +
                     QStringLiteral(" MB/S");
    stats.diskMBps = QStringLiteral("Disk: ") +
                     perSecondMegabytes(decimal, lines.value(kDiskMegabytesLine)) +
                     QStringLiteral(" MB/S");
    emit StatsRetrieved(stats);
}
