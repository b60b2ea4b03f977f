// SMART summaries and full reports of the default workstation's disks, read through
// SK_RaidApi from the emulated drivers, and the decoders' corner cases on hand-made
// attribute pages.

#include "service/service.h"
#include "service/sk_smart_decode.h"
#include "support/emulated_host.h"

#include <QTemporaryDir>
#include <QtTest>

#include <vector>

namespace {

using namespace sk_emu;

// Disk ids of the default workstation: port + 1 on the one controller.
constexpr int kSsdA = 1, kHdd1 = 3, kHdd3 = 5, kSpare = 6, kNvme = 7;

const char *const kNoSmartText = "Device reports no SMART Attribute values, or not supported.\n";
const QRegularExpression
    kTimeStamp(QStringLiteral("^\\d{1,2}/\\d{2}/\\d{4} \\d{1,2}:\\d{2}:\\d{2} (AM|PM)  $"));

const Disk &diskAt(const Model &m, int id)
{
    return m.disks.at(static_cast<std::size_t>(id - 1));
}

const SmartAttribute &attributeOf(const Disk &disk, std::uint8_t id)
{
    for (const SmartAttribute &a : disk.smart) {
        if (a.id == id)
            return a;
    }
    qFatal("the scenario's disk has no attribute %u", id);
}

// Lifetime extremes of a hard disk's temperature, as the drive keeps them.
QString lifetimeTemperature(const Disk &disk)
{
    const std::uint64_t raw = attributeOf(disk, 194).raw;
    return QStringLiteral("%1 (Lifetime Min/Max %2/%3)")
        .arg(raw & 0xFFFF)
        .arg((raw >> 16) & 0xFFFF)
        .arg((raw >> 32) & 0xFFFF);
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromLatin1(file.readAll()).split(QLatin1Char('\n'));
}

// The attribute blocks of a report: the ids of the " - Attribute ID:" lines in order.
QStringList attributeIds(const QStringList &lines)
{
    QStringList ids;
    const QRegularExpression heading(QStringLiteral("^ - Attribute ID:      (0x[0-9a-f]{2}) \\("));
    for (const QString &line : lines) {
        const QRegularExpressionMatch m = heading.match(line);
        if (m.hasMatch())
            ids << m.captured(1);
    }
    return ids;
}

// The four lines of one attribute's block, from its heading on.
QStringList blockOf(const QStringList &lines, const QString &id)
{
    for (int i = 0; i + 3 < lines.size(); ++i) {
        if (lines[i].startsWith(QStringLiteral(" - Attribute ID:      ") + id))
            return lines.mid(i, 4);
    }
    return {};
}

// An ATA attribute page with one filled slot.
std::vector<std::uint8_t> ataPage(quint16 version, quint8 id, quint8 current, quint8 threshold,
                                  quint64 raw)
{
    std::vector<std::uint8_t> page(SK_SMART_REPLY_SIZE, 0);
    page[0] = static_cast<std::uint8_t>(version);
    page[1] = static_cast<std::uint8_t>(version >> 8);
    page[2] = id;
    page[5] = current;
    for (int b = 0; b < 6; ++b)
        page[7 + b] = static_cast<std::uint8_t>(raw >> (8 * b));
    page[13] = threshold;
    return page;
}

std::string ataHeading(int version)
{
    return "\n===============================\nSMART ATTRIBUTES:  Version " +
           std::to_string(version) + "\n\n===============================\n";
}

} // namespace

class tst_smart : public QObject
{
    Q_OBJECT

private slots:
    void summaryOfEachKindOfDisk_data();
    void summaryOfEachKindOfDisk();
    void hardDiskReportWarnsOfItsReallocatedSectors();
    void ssdReportListsOnlyTheNamedAttributes();
    void nvmeReportListsTheHealthPage();
    void aDiskWithoutSmartDataSaysSo();
    void aFailedReadLeavesTheFilesUntouched();
    void attributeSlot_data();
    void attributeSlot();
    void versionWordDecidesWhetherAttributesFollow_data();
    void versionWordDecidesWhetherAttributesFollow();
    void aShortViewReadsZeroesPastItsEnd();

private:
    QTemporaryDir dir;
    QString path(const char *name) const { return dir.filePath(QLatin1String(name)); }
};

void tst_smart::summaryOfEachKindOfDisk_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<QString>("hours");
    QTest::addColumn<QString>("cycles");
    QTest::addColumn<QString>("temperature");
    QTest::addColumn<QString>("hoursLater"); // five hours on

    auto row = [](const char *name, int disk, const char *hours, const char *cycles,
                  const QString &temperature, const char *hoursLater) {
        QTest::newRow(name) << disk << QString::fromLatin1(hours) << QString::fromLatin1(cycles)
                            << temperature << QString::fromLatin1(hoursLater);
    };
    row("a hard disk gives its temperature with the lifetime extremes", kHdd1, "14021 ", "96 ",
        lifetimeTemperature(diskAt(defaultScenario(), kHdd1)), "14026 ");
    row("a drive that keeps no extremes gives one number", kSpare, "2210 ", "14 ", "31", "2215 ");
    row("an SSD gives its airflow temperature", kSsdA, "3412 ", "211 ", "33", "3417 ");
    row("an NVMe disk gives plain numbers and degrees Celsius", kNvme, "1873", "212", "38", "1878");
}

void tst_smart::summaryOfEachKindOfDisk()
{
    QFETCH(int, disk);
    QFETCH(QString, hours);
    QFETCH(QString, cycles);
    QFETCH(QString, temperature);
    QFETCH(QString, hoursLater);
    EmulatedHostScope scope;
    SK_RaidApi api;
    const quint32 blocks = SKTL_AllocationCount();

    const SmartSummary summary = api.GetSmartInfo(disk);

    QCOMPARE(summary.powerOnHours, hours);
    QCOMPARE(summary.powerCycles, cycles);
    QCOMPARE(summary.temperature, temperature);
    QVERIFY2(summary.status == QLatin1String("Failed"),
             "only a disk without SMART data changes the status");
    QVERIFY2(SKTL_AllocationCount() == blocks, "the read buffer is freed");

    // The hours move on with the clock; the cycles stay.
    scope.clock->advance(5 * 3600 * 1000);
    QCOMPARE(api.GetSmartInfo(disk).powerOnHours, hoursLater);
    QCOMPARE(api.GetSmartInfo(disk).powerCycles, cycles);
}

void tst_smart::hardDiskReportWarnsOfItsReallocatedSectors()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    const Model model = scope.host->model();
    const Disk &disk = diskAt(model, kHdd3);

    api.RetrieveAllSmartInfo(kHdd3, path("hdd.log"), path("hdd-transcript.log"));

    const QStringList lines = linesOf(path("hdd.log"));
    QVERIFY2(lines.size() > 8, "the report was written");
    QCOMPARE(lines[0], QStringLiteral("-------------------------------------------------"));
    QCOMPARE(lines[1], QStringLiteral("Disk 5 ( 0, 4): ST4000NM000A-2HZ100"));
    QVERIFY2(kTimeStamp.match(lines[2]).hasMatch(), qPrintable(lines[2]));
    QCOMPARE(lines.mid(3, 5), QStringList({QString(), "===============================",
                                           "SMART ATTRIBUTES:  Version 10", QString(),
                                           "==============================="}));
    // Ids 18, 188 and 240 to 242 have no name in the report and are passed over.
    QCOMPARE(attributeIds(lines),
             QStringList({"0x01", "0x03", "0x04", "0x05", "0x07", "0x09", "0x0a", "0x0c", "0xbb",
                          "0xbe", "0xc0", "0xc1", "0xc2", "0xc3", "0xc5", "0xc6", "0xc7", "0xc8"}));
    QCOMPARE(blockOf(lines, "0x05"),
             QStringList({" - Attribute ID:      0x05 (Reallocation Count    ), ",
                          "     Threshold Value: 010, ",
                          "     Current Value: 008 (WARNING - THRESHOLD CROSSED!),",
                          "     Raw Value: 3128 "}));
    QCOMPARE(blockOf(lines, "0xc2").mid(1),
             QStringList({"     Threshold Value: 000, ",
                          QStringLiteral("     Current Value: %1 (Always Passing ),")
                              .arg(attributeOf(disk, 194).current, 3, 10, QLatin1Char('0')),
                          "     Raw Value: " + lifetimeTemperature(disk)}));

    const QStringList transcript = linesOf(path("hdd-transcript.log"));
    QVERIFY2(transcript.size() > 4, "the transcript was written");
    QVERIFY2(kTimeStamp.match(transcript[0]).hasMatch(),
             "the transcript starts with the time, directly followed by the report");
    QCOMPARE(transcript[1], QStringLiteral("==============================="));
    QCOMPARE(attributeIds(transcript), attributeIds(lines));
}

void tst_smart::ssdReportListsOnlyTheNamedAttributes()
{
    EmulatedHostScope scope;
    SK_RaidApi api;

    api.RetrieveAllSmartInfo(kSsdA, path("ssd.log"), path("ssd-transcript.log"));

    const QStringList lines = linesOf(path("ssd.log"));
    QCOMPARE(lines.value(1), QStringLiteral("Disk 1 ( 0, 0): Samsung SSD 870 EVO 1TB"));
    QCOMPARE(lines.value(5), QStringLiteral("SMART ATTRIBUTES:  Version 1"));
    QCOMPARE(attributeIds(lines),
             QStringList({"0x05", "0x09", "0x0c", "0xbb", "0xbe", "0xc3", "0xc7"}));
}

void tst_smart::nvmeReportListsTheHealthPage()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    const NvmeHealth health = *diskAt(scope.host->model(), kNvme).nvme;

    api.RetrieveAllSmartInfo(kNvme, path("nvme.log"), path("nvme-transcript.log"));

    const QStringList lines = linesOf(path("nvme.log"));
    QCOMPARE(lines.mid(3, 4),
             QStringList({QString(), "===============================", "NVMe SMART ATTRIBUTES",
                          "==============================="}));
    QCOMPARE(attributeIds(lines),
             QStringList({"0x00", "0x01", "0x03", "0x04", "0x05", "0x14", "0x1e", "0x28", "0x32",
                          "0x3c", "0x46", "0x50", "0x5a", "0xa0", "0xb0"}));
    // One value from each kind of field: bytes, the temperature word, wide and narrow counters.
    const QStringList values = {"038", "100",  "010", QString::number(health.dataUnitsRead),
                                "212", "1873", "000"};
    const QStringList ids = {"0x01", "0x03", "0x04", "0x14", "0x46", "0x50", "0xa0"};
    for (int i = 0; i < ids.size(); ++i)
        QCOMPARE(blockOf(lines, ids[i]).value(1), "     Current Value: " + values[i]);
    QCOMPARE(blockOf(lines, "0x01").value(0),
             QStringLiteral(" - Attribute ID:      0x01 (Temperature in Celsius), "));
    QCOMPARE(
        blockOf(lines, "0xb0").value(0),
        QStringLiteral(" - Attribute ID:      0xb0 (Number of Error Information Log Entries), "));
}

void tst_smart::aDiskWithoutSmartDataSaysSo()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        m.disks[kSpare - 1].smartVersion = 0;
        m.disks[kSpare - 1].smart.clear();
        return true;
    });
    SK_RaidApi api;

    const SmartSummary summary = api.GetSmartInfo(kSpare);
    QCOMPARE(summary.status, QString::fromLatin1(kNoSmartText));
    QVERIFY2(summary.powerOnHours.isEmpty() && summary.temperature.isEmpty(),
             "no values without data");

    const SmartSummary report =
        api.RetrieveAllSmartInfo(kSpare, path("none.log"), path("none-transcript.log"));
    QCOMPARE(report.status, QString::fromLatin1(kNoSmartText));
    QVERIFY2(!QFile::exists(path("none.log")) && !QFile::exists(path("none-transcript.log")),
             "nothing to report, no file");
}

void tst_smart::aFailedReadLeavesTheFilesUntouched()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    QVERIFY(scope.host->pullDisk(diskAt(scope.host->model(), kHdd1).id));
    QVERIFY(SK_AppLog::appendLines(path("kept.log"), {QStringLiteral("earlier report")}));
    const quint32 blocks = SKTL_AllocationCount();

    const SmartSummary summary =
        api.RetrieveAllSmartInfo(kHdd1, path("kept.log"), path("kept-transcript.log"));
    const SmartSummary overview = api.GetSmartInfo(kHdd1);

    QCOMPARE(summary.status, QStringLiteral("Failed"));
    QCOMPARE(overview.status, QStringLiteral("Failed"));
    QVERIFY2(overview.powerOnHours.isEmpty() && overview.powerCycles.isEmpty() &&
                 overview.temperature.isEmpty(),
             "a failed read leaves the fields empty");
    QCOMPARE(linesOf(path("kept.log")), QStringList({"earlier report", QString()}));
    QVERIFY2(!QFile::exists(path("kept-transcript.log")), "the transcript is not created");
    QVERIFY2(SKTL_AllocationCount() == blocks, "the read buffer is freed on failure too");
    QCOMPARE(api.GetSmartInfo(999).status, QStringLiteral("Failed"));
}

void tst_smart::attributeSlot_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("threshold");
    QTest::addColumn<quint64>("raw");
    QTest::addColumn<QString>("shown"); // the current value line's text; empty: no output
    QTest::addColumn<QString>("rawText");

    // The current value line shows `value` and a verdict: N normal, C crossed, P always
    // passing; a value of -1 means the slot gives no output at all.
    auto row = [](const char *name, int id, int current, int threshold, quint64 raw, int value,
                  char verdict, const char *rawText) {
        const char *word = verdict == 'N'   ? "Value is Normal"
                           : verdict == 'C' ? "WARNING - THRESHOLD CROSSED!"
                                            : "Always Passing ";
        const QString shown = value < 0 ? QString()
                                        : QStringLiteral("%1 (%2)")
                                              .arg(value, 3, 10, QLatin1Char('0'))
                                              .arg(QLatin1String(word));
        QTest::newRow(name) << id << current << threshold << raw << shown
                            << QString::fromLatin1(rawText);
    };
    row("a temperature of 200 as a signed byte reads 56, normal below 100", 194, 200, 100, 56, 56,
        'N', "56");
    row("a temperature at its threshold has crossed it", 194, 60, 60, 60, 60, 'C', "60");
    row("threshold 0 always passes", 5, 1, 0, 0, 1, 'P', "0 ");
    row("a value at its threshold has crossed it", 5, 10, 10, 24, 10, 'C', "24 ");
    row("an id the report does not name is passed over", 241, 100, 0, 0, -1, 0, "");
    row("the airflow temperature keeps the 48-bit form", 190, 63, 40, 0x2A1D0025, 63, 'N',
        "706543653 ");
    row("all six raw bytes count", 9, 90, 0, 0xFFFFFFFFFFFF, 90, 'P', "281474976710655 ");
    row("spin-up time with its average", 3, 90, 21, 5000 | (4800 << 16), 90, 'N',
        "5000 (Average 4800)");
    row("spin-up time alone", 3, 90, 21, 6425, 90, 'N', "6425");
    row("lifetime extremes kept as two bytes", 194, 30, 0, 30 | (20 << 16) | (45 << 24), 30, 'P',
        "30 (Lifetime Min/Max 20/45)");
    row("lifetime extremes kept as two words, in either order", 194, 30, 0,
        30 | (quint64(45) << 16) | (quint64(20) << 32), 30, 'P', "30 (Lifetime Min/Max 20/45)");
    row("a current value outside the extremes shows the bytes", 194, 50, 0,
        50 | (quint64(20) << 16) | (quint64(45) << 32), 50, 'P', "50 (0 45 0 20)");
    row("an unknown layout of the extremes shows the bytes", 194, 30, 0,
        30 | (quint64(0x0102) << 16) | (quint64(0x0304) << 32), 30, 'P', "30 (3 4 1 2)");
}

void tst_smart::attributeSlot()
{
    QFETCH(int, id);
    QFETCH(int, current);
    QFETCH(int, threshold);
    QFETCH(quint64, raw);
    QFETCH(QString, shown);
    QFETCH(QString, rawText);
    const std::vector<std::uint8_t> page =
        ataPage(16, static_cast<quint8>(id), static_cast<quint8>(current),
                static_cast<quint8>(threshold), raw);

    const std::string report = SK_SmartAtaReport(SK_SmartView{page.data(), page.size()});

    QVERIFY2(report.rfind(ataHeading(16), 0) == 0, report.c_str());
    const QStringList lines =
        QString::fromStdString(report.substr(ataHeading(16).size())).split(QLatin1Char('\n'));
    if (shown.isEmpty()) {
        QVERIFY2(lines == QStringList(QString()), "the slot is passed over");
        return;
    }
    QCOMPARE(lines.size(), 6); // four lines, a blank one, and the end
    QCOMPARE(lines[1],
             QStringLiteral("     Threshold Value: %1, ").arg(threshold, 3, 10, QLatin1Char('0')));
    QCOMPARE(lines[2], "     Current Value: " + shown + ",");
    QCOMPARE(lines[3], "     Raw Value: " + rawText);
}

void tst_smart::versionWordDecidesWhetherAttributesFollow_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("attributes");

    QTest::newRow("version 0 has none") << 0 << false;
    QTest::newRow("a low byte of 255 has none") << 0x01FF << false;
    QTest::newRow("a high byte alone is a version") << 0x0100 << true;
}

void tst_smart::versionWordDecidesWhetherAttributesFollow()
{
    QFETCH(int, version);
    QFETCH(bool, attributes);
    const std::vector<std::uint8_t> page = ataPage(static_cast<quint16>(version), 9, 99, 0, 1234);
    const SK_SmartView view{page.data(), page.size()};

    QCOMPARE(SK_SmartAtaReport(view).empty(), !attributes);
    QCOMPARE(SK_SmartAtaOverview(view, false).powerOnHours, std::string(attributes ? "1234 " : ""));
}

void tst_smart::aShortViewReadsZeroesPastItsEnd()
{
    const std::vector<std::uint8_t> page = ataPage(16, 9, 99, 0, 0x0102030405);
    // The view ends inside the raw value of the first slot.
    const SK_SmartView view{page.data(), 9};

    QCOMPARE(SK_SmartAtaOverview(view, false).powerOnHours, std::string("1029 "));
    QCOMPARE(SK_SmartNvmeOverview(view, false).powerOnHours, std::string("1029 "));
    QCOMPARE(SK_SmartNvmeOverview(view, false).powerCycles, std::string("0"));
    QCOMPARE(SK_SmartNvmeOverview(SK_SmartView{nullptr, 0}, false).temperature,
             std::string("-273"));
}

QTEST_GUILESS_MAIN(tst_smart)
#include "tst_smart.moc"
