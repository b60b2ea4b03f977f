// The developer dump: every core's configuration appended to the application log, for
// the people who analyse a failed machine. The caller appends the event log after the
// last banner.

#include "service/sk_applog.h"
#include "service/sk_raidapi.h"

#include <QFile>
#include <QTextStream>

#include <vector>

namespace {

constexpr int kMaxCores = 8;
// The whole plain report of a core fits with room to spare; one block serves all cores.
constexpr std::uint32_t kDumpTextSize = 0x1000000;

const char *const kEndCoreBanner =
    "********************************** End Core Dump **********************************\n\n";
const char *const kDeveloperBanner = "\n\n********************************** Developer Information "
                                     "**********************************";
const char *const kConfigurationBanner =
    "*******************************    Tessel configuration Dump   *************************";
const char *const kEventLogBanner = "********************************** Begin RAID AEN Event Log "
                                    "**********************************";

} // namespace

int SK_RaidApi::WriteDeveloperDump(const QString &path)
{
    SK_CoreEntry cores[kMaxCores] = {};
    std::uint32_t coreCount = 0;
    SK_ApiGetCoreList(cores, sizeof cores, &coreCount);
    std::vector<char> text(kDumpTextSize, '\0');
    // A failed enumeration still hands back the cores it found; only none at all ends
    // the dump before anything is written.
    if (coreCount == 0)
        return 0;

    QString report;
    for (std::uint32_t i = 0; i < coreCount && i < kMaxCores; ++i) {
        // The plain form with the system's disk numbers: meant for people, not for
        // the reader of the compact form.
        SK_ApiGetCoreConfigString(&cores[i], text.data(), kDumpTextSize, 1, 0, 0, 0);
        report += QString::fromLocal8Bit(text.data());
        report += QLatin1String(kEndCoreBanner);
    }

    QFile file;
    if (!SK_AppLog::open(file, path, SK_AppLog::Writer::Plain))
        return 0;
    QTextStream out(&file);
    out << SK_AppLog::timeStamp() << ' ';
    out << kDeveloperBanner << Qt::endl;
    out << kConfigurationBanner << Qt::endl;
    out << SK_AppLog::timeStamp() << ' ' << report << Qt::endl;
    out << kEventLogBanner << Qt::endl;
    return 1;
}
