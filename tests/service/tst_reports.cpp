// The service's reports against a fresh emulated host on a manual clock: display
// texts, the developer dump, the status bar's figures, event entries and the
// application log when it can't be written.

#include "emulator/emulator.h"
#include "service/service.h"
#include "service/sk_applog.h"
#include "support/emulated_host.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SK_IoStats)

namespace {

using namespace sk_emu;

const char *const kDeveloperBanner = "********************************** Developer Information "
                                     "**********************************";
const char *const kEndCoreBanner =
    "********************************** End Core Dump **********************************";
const char *const kEventLogBanner = "********************************** Begin RAID AEN Event Log "
                                    "**********************************";

int tableIndexOf(const SK_RaidApi &api, std::uint64_t diskId)
{
    for (int i = 0; i < api.GetDiskCount(); ++i) {
        const SK_ConfigDisk *disk = api.GetDiskRecord(i);
        if (disk && disk->DiskId == diskId && QByteArray(disk->Type) != "Core")
            return i;
    }
    return -1;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// One status bar update: a request that opens the interval, `ms` of emulated time,
// and the request whose figures the labels show.
SK_IoStats statsAfter(EmulatedHostScope &scope, qint64 ms)
{
    SK_RaidApi api;
    QSignalSpy spy(&api, &SK_RaidApi::StatsRetrieved);
    api.RetrieveStats();
    scope.clock->advance(static_cast<std::uint64_t>(ms));
    api.RetrieveStats();
    if (spy.count() != 2)
        return SK_IoStats();
    return spy.at(1).at(0).value<SK_IoStats>();
}

// The number of a label text such as "Host: 12.5 MB/S".
double figure(const QString &label)
{
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral(": (\\d+(\\.\\d+)?) ")).match(label);
    return m.hasMatch() ? m.captured(1).toDouble() : -1;
}

// A total such as "Host: 1.05 GB" in megabytes.
double megabytes(const QString &label)
{
    const double scale = label.endsWith(QLatin1String("TB"))   ? 1e6
                         : label.endsWith(QLatin1String("GB")) ? 1e3
                                                               : 1;
    return figure(label) * scale;
}

} // namespace

class tst_reports : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<SK_IoStats>(); }

    void capacityText_data();
    void capacityText();
    void byteSizeText_data();
    void byteSizeText();
    void diskTexts_data();
    void diskTexts();
    void indexesPastTheTableShowQuestionMarks();
    void severityAndMemberTypes();
    void driverVersionComesFromTheDriversFolder();

    void dumpAppendsEveryCoreBetweenItsBanners();
    void dumpThatCantBeWrittenChangesNothing();

    void statusBarFiguresAreRatesOverThreeSeconds();
    void statusBarFiguresMoveWithTimeAndTotalsGrow();
    void runningTaskLoadsTheDisksOnly();
    void failingDriverBlanksEveryLabel();

    void eventEntriesReadByNumber();
    void eventEntryPriorityWords();
    void eventEntryWithLetterInItsByteIsRefused();
    void languagesPastTheCatalogueAskNothing();

    void logWritersGoOnWhenTheFileCantBeOpened();
    void logTimeStampsHaveTheirFixedForm();
};

void tst_reports::capacityText_data()
{
    QTest::addColumn<qint64>("sectors");
    QTest::addColumn<QString>("text");
    QTest::newRow("a single sector rounds to nothing") << qint64(1) << "0.0MB";
    QTest::newRow("a negative count") << qint64(-2048) << "0.0MB";
    QTest::newRow("just under a GB rounds up to 1000 MB") << qint64(1953124) << "1000.0MB";
    QTest::newRow("one GB exactly") << qint64(1953125) << "1.0GB";
    QTest::newRow("just under a TB in GB") << qint64(1952148438) << "999.5GB";
    QTest::newRow("a 1 TB SSD") << qint64(1953525168) << "1.0TB";
}

void tst_reports::capacityText()
{
    QFETCH(qint64, sectors);
    QFETCH(QString, text);
    QCOMPARE(SK_RaidApi::CapacityText(sectors), text);
    char buffer[4];
    SK_RaidApi::CapacityText(sectors, buffer, sizeof buffer);
    QCOMPARE(QString::fromLatin1(buffer), text.left(3)); // cut, and terminated
}

void tst_reports::byteSizeText_data()
{
    QTest::addColumn<QString>("megabytes");
    QTest::addColumn<QString>("text");
    auto row = [](const char *name, const char *megabytes, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(megabytes) << QString::fromLatin1(text);
    };
    row("no number at all", "", "0.00 MB");
    row("binary megabytes shown decimal", "2", "2.10 MB");
    row("just below a decimal GB", "953", "999.29 MB");
    row("a thousand binary megabytes", "1000", "1.05 GB");
    row("a million binary megabytes", "1000000", "1.05 TB");
}

void tst_reports::byteSizeText()
{
    QFETCH(QString, megabytes);
    QFETCH(QString, text);
    QCOMPARE(SK_RaidApi::ByteSizeText(megabytes), text);
}

// The texts of one disk's port type, serial number and cache state: each row gives the
// first disk of the workstation the port type bits, serial or feature bits it names.
void tst_reports::diskTexts_data()
{
    using namespace sk_emu::code;
    QTest::addColumn<QString>("query");
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("text");

    auto port = [](const char *name, quint32 portType, const char *text) {
        QTest::addRow("port: %s", name) << "port" << portType << "S1" << QString::fromLatin1(text);
    };
    auto serial = [](const char *name, const char *number, const char *text) {
        QTest::addRow("serial: %s", name)
            << "serial" << 0u << QString::fromLatin1(number) << QString::fromLatin1(text);
    };
    auto cache = [](const char *name, quint32 features, const char *text) {
        QTest::addRow("cache: %s", name)
            << "cache" << features << "S1" << QString::fromLatin1(text);
    };
    port("no bits", 0u, "");
    port("6G wins over the slower speeds", Port6G | Port1_5G | Port3G | PortSata, "6G SATA");
    port("1.5G wins over 3G", Port1_5G | Port3G | PortSata, "1.5G SATA");
    port("3G SAS", Port3G | PortSas, "3G SAS");
    port("SAS wins over SATA bits", PortSas | PortNcq | PortSata, "SAS");
    port("external NCQ", PortSata | PortNcq | PortExternal, "eSATA/NCQ");
    port("NCQ", Port6G | PortSata | PortNcq, "6G SATA/NCQ");
    port("an SSD with NCQ is an SSD", PortSata | PortNcq | PortSsd, "SATA/SSD");
    port("external SSD", PortSsd | PortExternal, "eSATA/SSD");
    port("external SATA", PortSata | PortExternal, "eSATA");
    port("NVMe Gen4 x4", PortNvme | PortNvmeGen4 | PortNvmeX4, "NVMe Gen4 x4");
    port("NVMe without generation or width bits", PortNvme, "NVMe Gen3");
    port("NVMe Gen2 x8", PortNvme | PortNvmeGen2 | PortNvmeX8, "NVMe Gen2 x8");
    port("NVMe ignores the SATA bits", PortNvme | PortNvmeGen5 | PortNvmeX2 | PortSata,
         "NVMe Gen5 x2");
    port("4KN on NVMe", PortNvme | PortNvmeGen4 | PortNvmeX4 | Port4Kn, "NVMe Gen4 x4 4KN");
    port("4KN alone", Port4Kn, " 4KN");
    serial("blanks and underscores only", "    ______", "");
    serial("padded at the end with underscores", "S4X9NF0M___", "S4X9NF0M");
    serial("padded at the front with blanks", "   WD-WX12", "WD-WX12");
    serial("inner underscores stay", "A_B__", "A_B");
    cache("no cache", FeatureSmartPolling, "NC");
    cache("write cache", FeatureWriteCache, "W");
    cache("read cache", FeatureReadAhead, "R");
    cache("both caches", FeatureReadAhead | FeatureWriteCache, "RW");
}

void tst_reports::diskTexts()
{
    QFETCH(QString, query);
    QFETCH(quint32, bits);
    QFETCH(QString, serial);
    QFETCH(QString, text);
    Model m = defaultScenario();
    m.disks[0].portType = query == QLatin1String("port") ? bits : 0;
    m.disks[0].features = query == QLatin1String("cache") ? bits : 0;
    m.disks[0].serial = serial.toStdString();
    EmulatedHostScope scope(m);
    SK_RaidApi api;
    const int index = tableIndexOf(api, m.disks[0].id);
    QVERIFY2(index >= 0, "the first disk is in the picture");
    const QString shown = query == QLatin1String("port") ? api.PortTypeText(index)
                          : query == QLatin1String("serial")
                              ? api.SerialText(index)
                              : api.CacheStateText(diskDeviceRoute(m.disks[0]));
    QCOMPARE(shown, text);
}

void tst_reports::indexesPastTheTableShowQuestionMarks()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    QCOMPARE(api.SerialText(api.GetDiskCount()), QStringLiteral(" ??"));
    QCOMPARE(api.PortTypeText(api.GetDiskCount()), QStringLiteral(" ?? "));
    QCOMPARE(api.CacheStateText(999), QStringLiteral("Unknown"));
}

void tst_reports::severityAndMemberTypes()
{
    // The ends of the scale and past them on either side.
    QCOMPARE(SK_RaidApi::SeverityText(0), QStringLiteral("Very Low"));
    QCOMPARE(SK_RaidApi::SeverityText(4), QStringLiteral("Fatal"));
    QCOMPARE(SK_RaidApi::SeverityText(5), QStringLiteral("Unknown"));
    QCOMPARE(SK_RaidApi::SeverityText(-1), QStringLiteral("Unknown"));

    QCOMPARE(SK_RaidApi::GetMemberType("RAID10"), QStringLiteral("RAID1"));
    QCOMPARE(SK_RaidApi::GetMemberType("RAID50"), QStringLiteral("RAID5"));
    QCOMPARE(SK_RaidApi::GetMemberType("RAID60"), QStringLiteral("RAID6"));
}

void tst_reports::driverVersionComesFromTheDriversFolder()
{
    Model m = defaultScenario();
    QVERIFY(!m.host.drivers.empty());
    m.host.drivers[0].version = "9.0.0.77";
    const QString name = QString::fromStdString(m.host.drivers[0].name);
    EmulatedHostScope scope(m);

    QString version;
    QCOMPARE(SK_RaidApi::GetDriverVersion(name, version), 1);
    QCOMPARE(version, QStringLiteral("9.0.0.77"));
    QCOMPARE(SK_RaidApi::GetDriverVersion(QStringLiteral("absent.sys"), version), 0);
    QCOMPARE(version, QStringLiteral("Unknown"));
}

void tst_reports::dumpAppendsEveryCoreBetweenItsBanners()
{
    EmulatedHostScope scope;
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("StrataKeep.log"));
    writeFile(path, "earlier line\n");

    SK_RaidApi api;
    QCOMPARE(api.WriteDeveloperDump(path), 1);

    const QString log = QString::fromLocal8Bit(readAll(path));
    QVERIFY2(log.startsWith(QLatin1String("earlier line\n")), "the dump is appended");
    QCOMPARE(log.count(QLatin1String(kDeveloperBanner)), 1);
    QCOMPARE(log.count(QLatin1String("Tessel configuration Dump")), 1);
    QCOMPARE(log.count(QLatin1String(kEndCoreBanner)), 1);
    QVERIFY2(log.endsWith(QLatin1String(kEventLogBanner) + QLatin1Char('\n')),
             "the caller appends the events after the last banner");

    const QRegularExpression heading(QStringLiteral(
        "^earlier line\\n\\d{1,2}/\\d\\d/\\d{4} \\d{1,2}:\\d\\d:\\d\\d (AM|PM)   "
        "\\n\\n\\*+ Developer Information \\*+\\n\\*+    Tessel configuration "
        "Dump   \\*+\\n\\d{1,2}/\\d\\d/\\d{4} \\d{1,2}:\\d\\d:\\d\\d (AM|PM)   \\S"));
    QVERIFY2(heading.match(log).hasMatch(), qPrintable(log.left(400)));

    // The core's plain report stands between the second time stamp and its banner.
    std::vector<char> report(0x100000, '\0');
    QCOMPARE(SK_ApiGetCoreConfigString(SK_RaidApi::Channel(), report.data(),
                                       static_cast<std::uint32_t>(report.size()), 1, 0, 0, 0),
             1u);
    const QString expected = QString::fromLocal8Bit(report.data()) + QLatin1String(kEndCoreBanner);
    QVERIFY2(log.contains(expected), "the report precedes its banner unchanged");
    QVERIFY2(expected.contains(QLatin1String("Samsung SSD 870 EVO")),
             "the plain report names disks");
}

void tst_reports::dumpThatCantBeWrittenChangesNothing()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("StrataKeep.log"));
    writeFile(path, "untouched\n");
    {
        SK_InstallPlatform(nullptr); // the native platform of this system knows of no device
        SK_RaidApi api;
        QCOMPARE(api.WriteDeveloperDump(path), 0);
        QCOMPARE(readAll(path), QByteArray("untouched\n"));
    }
    EmulatedHostScope scope;
    SK_RaidApi api;
    QCOMPARE(api.WriteDeveloperDump(folder.filePath(QStringLiteral("gone/StrataKeep.log"))), 0);
    QVERIFY2(!QFileInfo::exists(folder.filePath(QStringLiteral("gone"))), "no folder is made");
}

void tst_reports::statusBarFiguresAreRatesOverThreeSeconds()
{
    EmulatedHostScope scope;
    const SK_IoStats stats = statsAfter(scope, 3000);

    const QRegularExpression rate(QStringLiteral("^(Host|Disk): \\d+\\.\\d MB/S$"));
    const QRegularExpression count(QStringLiteral("^(Host|Disk): \\d+ IO/s$"));
    const QRegularExpression total(QStringLiteral("^(Host|Disk): \\d+\\.\\d\\d (MB|GB|TB)$"));
    const std::tuple<QString, const QRegularExpression &, const char *> labels[] = {
        {stats.hostMBps, rate, "Host"},   {stats.diskMBps, rate, "Disk"},
        {stats.hostIOps, count, "Host"},  {stats.diskIOps, count, "Disk"},
        {stats.hostBytes, total, "Host"}, {stats.diskBytes, total, "Disk"},
    };
    for (const auto &[text, form, side] : labels)
        QVERIFY2(form.match(text).hasMatch() && text.startsWith(QLatin1String(side)),
                 qPrintable(text));

    // A few MB/s on each of the workstation's arrays; mirrors write more to the disks.
    QVERIFY2(figure(stats.hostMBps) > 2 && figure(stats.hostMBps) < 100,
             qPrintable(stats.hostMBps));
    QVERIFY2(figure(stats.diskMBps) > figure(stats.hostMBps), qPrintable(stats.diskMBps));
    QVERIFY2(figure(stats.hostIOps) > 0 && figure(stats.diskIOps) > 0,
             qPrintable(stats.hostIOps + " " + stats.diskIOps));

    // The unshown lines are carried as the report has them.
    QVERIFY2(stats.line12.startsWith(QLatin1String("BusIocActive:")), qPrintable(stats.line12));
    QVERIFY2(stats.line13.startsWith(QLatin1String("CoreIocActive:")), qPrintable(stats.line13));
    QVERIFY2(stats.line18.startsWith(QLatin1String("DirtyBufferCount:")), qPrintable(stats.line18));
}

void tst_reports::statusBarFiguresMoveWithTimeAndTotalsGrow()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    QSignalSpy spy(&api, &SK_RaidApi::StatsRetrieved);
    api.RetrieveStats();
    for (int tick = 0; tick < 40; ++tick) {
        scope.clock->advance(3000);
        api.RetrieveStats();
    }
    QCOMPARE(spy.count(), 41);

    QSet<QString> rates;
    double lastTotal = 0;
    for (int i = 1; i < spy.count(); ++i) {
        const SK_IoStats stats = spy.at(i).at(0).value<SK_IoStats>();
        rates.insert(stats.hostMBps);
        const double total = megabytes(stats.hostBytes);
        QVERIFY2(total >= lastTotal, qPrintable(stats.hostBytes));
        lastTotal = total;
    }
    QVERIFY2(rates.size() > 5, "the workload drifts over two minutes");
    QVERIFY2(lastTotal > 500, "two minutes of several MB/s add up");
}

void tst_reports::runningTaskLoadsTheDisksOnly()
{
    SK_IoStats idle;
    {
        EmulatedHostScope scope;
        idle = statsAfter(scope, 3000);
    }
    Model m = defaultScenario();
    m.arrays[1].task = Task{code::TaskCheck, code::TaskStarted, 0};
    m.arrays[1].priority = 100;
    EmulatedHostScope scope(m);
    const SK_IoStats busy = statsAfter(scope, 3000);

    QCOMPARE(busy.hostMBps, idle.hostMBps);
    QVERIFY2(figure(busy.diskMBps) > figure(idle.diskMBps) + 10,
             qPrintable(idle.diskMBps + " then " + busy.diskMBps));
    QVERIFY2(figure(busy.diskIOps) > figure(idle.diskIOps),
             qPrintable(idle.diskIOps + " then " + busy.diskIOps));
}

void tst_reports::failingDriverBlanksEveryLabel()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    QSignalSpy spy(&api, &SK_RaidApi::StatsRetrieved);
    scope.host->refuseNextRequests(8, SK_STS_FAILURE);
    api.RetrieveStats();
    QCOMPARE(spy.count(), 1);
    const SK_IoStats stats = spy.at(0).at(0).value<SK_IoStats>();
    const QStringList all = {stats.hostMBps, stats.diskMBps,  stats.hostIOps,
                             stats.diskIOps, stats.line13,    stats.line12,
                             stats.line18,   stats.hostBytes, stats.diskBytes};
    for (const QString &text : all)
        QVERIFY2(text.isEmpty(), qPrintable(text));
}

void tst_reports::eventEntriesReadByNumber()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    const std::vector<Event> &events = scope.host->model().events;
    QVERIFY(events.size() > 2);

    const SK_EventMessage first = api.GetEventMessage(0, 0);
    QCOMPARE(first.status, 53u);
    QCOMPARE(first.number, events[0].number); // the oldest entry the log still holds
    QCOMPARE(first.code, 1001);
    // The view writes the time stamp straight before the text: its separator stays.
    QCOMPARE(first.text, QStringLiteral("- Initialized messages space, starting message logging."));
    QVERIFY(first.text2.isEmpty());

    const SK_EventMessage next = api.GetEventMessage(first.number + 1, 0);
    QCOMPARE(next.status, 53u);
    QCOMPARE(next.number, events[1].number);
    QCOMPARE(next.code, qint32(events[1].message));

    const SK_EventMessage none = api.GetEventMessage(events.back().number + 1, 0);
    QCOMPARE(none.status, 54u);
    QCOMPARE(none.number, 0u);
    QCOMPARE(none.text, QStringLiteral("Init Error"));
}

void tst_reports::eventEntryPriorityWords()
{
    EmulatedHostScope scope;
    const std::uint32_t number = scope.host->model().nextEventNumber;
    scope.host->injectEvent(1003, {}); // a catalogue priority of 4 prints as "CR"
    SK_RaidApi api;
    QCOMPARE(api.GetEventMessage(0, 0).priority, 0u); // priority 1 prints as "VL"
    const SK_EventMessage mismatch = api.GetEventMessage(number, 0);
    QCOMPARE(mismatch.status, 53u);
    QCOMPARE(mismatch.code, 1003);
    QCOMPARE(mismatch.priority, 3u);
}

void tst_reports::eventEntryWithLetterInItsByteIsRefused()
{
    Model m = defaultScenario();
    m.events[0].entryByte = 0x0a; // printed "0a": the reader takes decimal digits only
    m.events[1].entryByte = 0x10;
    EmulatedHostScope scope(m);
    SK_RaidApi api;
    const SK_EventMessage refused = api.GetEventMessage(0, 0);
    QCOMPARE(refused.status, 7u);
    QCOMPARE(refused.text, QStringLiteral("Init Error"));
    QCOMPARE(api.GetEventMessage(m.events[1].number, 0).status, 53u);
}

void tst_reports::languagesPastTheCatalogueAskNothing()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    scope.host->refuseNextRequests(5, SK_STS_FAILURE); // counts every request that comes
    const SK_EventMessage message = api.GetEventMessage(0, 36);
    QCOMPARE(message.status, 0u);
    QCOMPARE(message.number, 0u);
    QCOMPARE(message.code, 0);
    QCOMPARE(message.text, QStringLiteral("Init Error"));
    QCOMPARE(scope.host->model().faults.refuseCount, 5u);
    scope.host->refuseNextRequests(0, 0);
    QCOMPARE(api.GetEventMessage(0, 35).code, 1001); // the last language still reads
}

void tst_reports::logWritersGoOnWhenTheFileCantBeOpened()
{
    QTemporaryDir folder;
    const QString blocker = folder.filePath(QStringLiteral("plainfile"));
    writeFile(blocker, "x");
    const QStringList unwritable = {
        QString(), // no path set yet
        folder.filePath(QStringLiteral("missing/StrataKeep.log")),
        blocker + QStringLiteral("/StrataKeep.log"), // a file where the folder should be
    };
    for (const QString &path : unwritable) {
        QVERIFY2(!SK_AppLog::appendLines(path, {QStringLiteral("lost")}), qPrintable(path));
        QFile file;
        QString failure;
        QVERIFY(!SK_AppLog::open(file, path, SK_AppLog::Writer::Dismount, &failure));
        QVERIFY2(
            failure.startsWith(QLatin1String(
                "StrataKeep Log: Unable to open StrataKeep.log file - LockAndDismountvolume(")),
            qPrintable(failure));
        QVERIFY2(failure.endsWith(QStringLiteral(") ") + path + QStringLiteral(" Not Logging!")),
                 qPrintable(failure));
        QVERIFY(!SK_AppLog::open(file, path, SK_AppLog::Writer::Plain, &failure));
        QVERIFY2(failure.startsWith(QLatin1String("StrataKeep Log: Unable to open StrataKeep.log "
                                                  "file(")),
                 qPrintable(failure));
    }
    QCOMPARE(readAll(blocker), QByteArray("x"));
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("missing"))));
}

void tst_reports::logTimeStampsHaveTheirFixedForm()
{
    const QDateTime afternoon(QDate(2026, 3, 5), QTime(14, 7, 9));
    QCOMPARE(SK_AppLog::timeStamp(afternoon), QStringLiteral("3/05/2026 2:07:09 PM  "));
    const QDateTime morning(QDate(2026, 11, 22), QTime(0, 30, 0));
    QCOMPARE(SK_AppLog::timeStamp(morning), QStringLiteral("11/22/2026 12:30:00 AM  "));
}

QTEST_GUILESS_MAIN(tst_reports)
#include "tst_reports.moc"
