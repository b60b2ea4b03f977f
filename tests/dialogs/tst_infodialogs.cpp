// The SMART overview, the controller list and the About box against a fresh emulated
// host: what each shows of the emulated drives, controllers and driver files, the
// SMART report written for the ticked disks, and the window state kept between runs.

#include "dialogs/dialogs.h"
#include "emulator/emulator.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QUrl>
#include <QtTest>

namespace {

using namespace sk_emu;

// Disk ids of the default workstation: port + 1 on the one controller.
constexpr int kSsd = 1, kHdd = 3, kWarnedHdd = 5, kNvme = 7;

// Columns of the SMART overview.
enum {
    DiskCol,
    PortCol,
    CapacityCol,
    UsesCol,
    ModelCol,
    SerialCol,
    FirmwareCol,
    HoursCol,
    CyclesCol,
    TempCol
};

void setAttribute(EmulatedHostScope &scope, std::size_t disk, std::uint8_t id, std::uint64_t raw)
{
    scope.host->modify([=](Model &m) {
        for (SmartAttribute &a : m.disks.at(disk).smart) {
            if (a.id == id)
                a.raw = raw;
        }
        return true;
    });
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromLocal8Bit(file.readAll()).split(QLatin1Char('\n'));
}

} // namespace

class TestInfoDialogs : public QObject
{
    Q_OBJECT

public slots:
    // Stands in for the system's viewer, so a test sees what would have opened.
    void openUrl(const QUrl &url) { opened << url; }

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void smartOverviewShowsEachDriveKind_data();
    void smartOverviewShowsEachDriveKind();
    void smartOverviewPowerOnTime_data();
    void smartOverviewPowerOnTime();
    void smartQueryWithoutTicksTouchesNothing();
    void smartQueryWritesTheTickedDisksReport();
    void smartSecondQueryEmptiesTheFirstLog();

    void controllerListShowsEachKindOfController();

    void aboutShowsTheDriverFileVersions();
    void aboutVersionFollowsTheInstallFolder_data();
    void aboutVersionFollowsTheInstallFolder();

    void windowStateIsRestored();

private:
    QString smartLogPath() const { return tempDir.filePath("StrataKeep/SMART_LOG.log"); }
    QString transcriptPath() const { return tempDir.filePath("StrataKeep/StrataKeep.log"); }

    QTemporaryDir settingsDir;
    QTemporaryDir tempDir;
    QList<QUrl> opened;
};

void TestInfoDialogs::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    QVERIFY(settingsDir.isValid());
    QVERIFY(tempDir.isValid());
    keepSettingsIn(settingsDir.path());
    // The SMART log goes below the temporary folder; keep it in the test's own.
    qputenv("TMPDIR", tempDir.path().toLocal8Bit());
    QCOMPARE(QStandardPaths::writableLocation(QStandardPaths::TempLocation), tempDir.path());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
}

void TestInfoDialogs::init()
{
    opened.clear();
    QDir(tempDir.filePath("StrataKeep")).removeRecursively();
    QSettings().clear();
}

void TestInfoDialogs::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void TestInfoDialogs::smartOverviewShowsEachDriveKind_data()
{
    QTest::addColumn<int>("disk");
    // The port, model, power-on time, power cycles and temperature shown.
    QTest::addColumn<QStringList>("texts");
    // Seagate: 14021 hours, 96 cycles, 37 degrees with the lifetime range in attribute 194.
    QTest::newRow("an ATA hard disk reads attributes 9, 12 and 194 with its lifetime range")
        << kHdd
        << QStringList{"0 2", "ST4000NM000A-2HZ100", "1y  219d  5hr", "96 ",
                       "37 (Lifetime Min/Max %1/%2)"};
    // Samsung SATA SSD: 3412 hours, 211 cycles, 33 degrees in attribute 190.
    QTest::newRow("an ATA SSD takes its temperature from attribute 190")
        << kSsd << QStringList{"0 0", "Samsung SSD 870 EVO 1TB", "142d  4hr", "211 ", "33"};
    // NVMe: 1873 hours, 212 cycles, 311 kelvin in the health page.
    QTest::newRow("an NVMe drive reads its health page")
        << kNvme << QStringList{"0 6", "Samsung SSD 990 PRO 2TB", "78d  1hr", "212", "38"};
}

void TestInfoDialogs::smartOverviewShowsEachDriveKind()
{
    QFETCH(int, disk);
    QFETCH(QStringList, texts);
    EmulatedHostScope scope;
    if (texts.last().contains(QLatin1String("%1"))) {
        const sk_emu::Model hostModel = scope.host->model();
        for (const SmartAttribute &a : hostModel.disks.at(std::size_t(disk - 1)).smart) {
            if (a.id == 194)
                texts.last() = texts.last().arg((a.raw >> 16) & 0xFFFF).arg((a.raw >> 32) & 0xFFFF);
        }
    }
    SK_RaidApi api;
    SK_SmartDiskDialog dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "diskList");
    QCOMPARE(list->topLevelItemCount(), 7);
    QTreeWidgetItem *row = listedRow(list, disk);
    QCOMPARE(row->checkState(DiskCol), Qt::Unchecked);
    QCOMPARE((QStringList{row->text(DiskCol), row->text(ModelCol), row->text(HoursCol),
                          row->text(CyclesCol), row->text(TempCol)}),
             texts);
    QVERIFY2(!row->text(PortCol).isEmpty() && !row->text(CapacityCol).isEmpty(),
             "the port type and capacity come from the picture");
}

void TestInfoDialogs::smartOverviewPowerOnTime_data()
{
    QTest::addColumn<qulonglong>("hours");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a full year of hours counts as a year") << 8760ull << "1y  0d  0hr";
    QTest::newRow("an hour short of a year stays in days") << 8759ull << "364d  23hr";
    QTest::newRow("no hours at all reads as unreadable") << 0ull << "Unable to retreive";
}

void TestInfoDialogs::smartOverviewPowerOnTime()
{
    QFETCH(qulonglong, hours);
    QFETCH(QString, shown);
    EmulatedHostScope scope;
    setAttribute(scope, kHdd - 1, 9, hours);
    SK_RaidApi api;
    SK_SmartDiskDialog dialog(api);
    QCOMPARE(rowWithId(widget<QTreeWidget>(&dialog, "diskList"), kHdd)->text(HoursCol), shown);
}

void TestInfoDialogs::smartQueryWithoutTicksTouchesNothing()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_SmartDiskDialog dialog(api);
    QTest::mouseClick(widget<QPushButton>(&dialog, "smartButton"), Qt::LeftButton);
    QVERIFY2(!QFile::exists(smartLogPath()), "no disk ticked, no log");
    QVERIFY2(!QFile::exists(transcriptPath()), "no disk ticked, no transcript");
    QVERIFY(opened.isEmpty());
}

void TestInfoDialogs::smartQueryWritesTheTickedDisksReport()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_SmartDiskDialog dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "diskList");
    rowWithId(list, kWarnedHdd)->setCheckState(DiskCol, Qt::Checked);
    QTest::mouseClick(widget<QPushButton>(&dialog, "smartButton"), Qt::LeftButton);

    QCOMPARE(opened, QList<QUrl>{QUrl::fromLocalFile(smartLogPath())});
    const QStringList lines = linesOf(smartLogPath());
    QVERIFY2(lines.size() > 10, qPrintable(lines.join('\n')));
    // A first query finds no file: the report writer starts it without a header.
    QCOMPARE(lines.at(0), QStringLiteral("-------------------------------------------------"));
    QCOMPARE(lines.at(1), QStringLiteral("Disk 5 ( 0, 4): ST4000NM000A-2HZ100"));
    const int realloc =
        lines.indexOf(QStringLiteral(" - Attribute ID:      0x05 (Reallocation Count    ), "));
    QVERIFY2(realloc > 0, qPrintable(lines.join('\n')));
    QCOMPARE(lines.at(realloc + 1), QStringLiteral("     Threshold Value: 010, "));
    QVERIFY2(lines.at(realloc + 2).endsWith(QLatin1String("(WARNING - THRESHOLD CROSSED!),")),
             qPrintable(lines.at(realloc + 2)));
    QCOMPARE(lines.at(realloc + 3), QStringLiteral("     Raw Value: 3128 "));
    QVERIFY2(lines.filter(QStringLiteral("Disk ")).size() == 1, "only the ticked disk");
    QVERIFY2(linesOf(transcriptPath()).contains(lines.at(realloc)),
             "the transcript holds the same report");
    QCOMPARE(rowWithId(list, kWarnedHdd)->checkState(DiskCol), Qt::Checked);
}

void TestInfoDialogs::smartSecondQueryEmptiesTheFirstLog()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_SmartDiskDialog dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "diskList");
    rowWithId(list, kSsd)->setCheckState(DiskCol, Qt::Checked);
    rowWithId(list, kNvme)->setCheckState(DiskCol, Qt::Checked);
    auto *query = widget<QPushButton>(&dialog, "smartButton");
    QTest::mouseClick(query, Qt::LeftButton);
    QCOMPARE(linesOf(smartLogPath()).filter(QRegularExpression("^Disk \\d")).size(), 2);
    QTest::mouseClick(query, Qt::LeftButton);
    const QStringList lines = linesOf(smartLogPath());
    QCOMPARE(lines.at(0), QStringLiteral("***Create SMART Log file for StrataKeep ***"));
    QCOMPARE(lines.filter(QRegularExpression("^Disk \\d")),
             (QStringList{"Disk 1 ( 0, 0): Samsung SSD 870 EVO 1TB",
                          "Disk 7 ( 0, 6): Samsung SSD 990 PRO 2TB"}));
    QVERIFY(lines.contains(QStringLiteral("NVMe SMART ATTRIBUTES")));
    QCOMPARE(opened.size(), 2);
}

void TestInfoDialogs::controllerListShowsEachKindOfController()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        Controller single = m.controllers.front();
        single.id += 1;
        single.name = "VOR-NVME-BRIDGE ";
        single.ports = 1;
        single.origPciVendor = 0;
        single.origPciDevice = 0;
        single.pciVendor = 0x1F3C;
        single.pciDevice = 0x43C1;
        single.pciSubVendor = 0;
        single.pciSubDevice = 0;
        single.pciLocation = 0x00030102; // bus 3, slot 1, function 2
        Controller virtualBus = single;
        virtualBus.id += 1;
        virtualBus.pciVendor = 0x8590;
        Controller empty = m.controllers.front();
        empty.id += 3;
        empty.ports = 4;
        m.controllers.push_back(single);
        m.controllers.push_back(virtualBus);
        m.controllers.push_back(empty);
        m.disks.back().controller = 1; // the NVMe drive moves behind the bridge
        m.disks.back().port = 0;
        return true;
    });
    SK_RaidApi api;
    sk_ControllerProperties dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "controllerList");
    QStringList numbers;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        numbers << list->topLevelItem(i)->text(0);
    QCOMPARE(numbers, (QStringList{"0", "1", "3"}));

    QTreeWidgetItem *cage = list->topLevelItem(0);
    QCOMPARE(cage->text(1), QStringLiteral("VOR-SATA-RAID"));
    QCOMPARE(cage->childCount(), 6);
    QVERIFY2(cage->isExpanded(), "a multi-port controller shows its disks");
    QVERIFY2(cage->text(2).isEmpty() && cage->text(3).isEmpty(),
             "the disks of a multi-port controller are on their own rows");
    QCOMPARE(cage->child(2)->text(2), QStringLiteral("0 2"));
    QCOMPARE(cage->child(2)->text(3), QStringLiteral("ST4000NM000A-2HZ100"));
    QCOMPARE(cage->data(2, SK_Role::SortKey).toString(), QStringLiteral("0.5"));
    const QStringList pci{cage->text(4), cage->text(5), cage->text(6),  cage->text(7),
                          cage->text(8), cage->text(9), cage->text(10), cage->text(11)};
    // The chip's own device id stands before the board maker's.
    QCOMPARE(pci, (QStringList{"8", "0x1f3c", "0x43b0", "0x1f3c", "0x1002", "0x0", "0x0", "0x17"}));

    QTreeWidgetItem *bridge = list->topLevelItem(1);
    QCOMPARE(bridge->childCount(), 0);
    QCOMPARE(bridge->text(1), QStringLiteral("VOR-NVME-BRIDGE"));
    QCOMPARE(bridge->text(2), QStringLiteral("1 0"));
    QCOMPARE(bridge->text(3), QStringLiteral("Samsung SSD 990 PRO 2TB"));
    const QStringList bridgePci{bridge->text(5), bridge->text(6),  bridge->text(7), bridge->text(8),
                                bridge->text(9), bridge->text(10), bridge->text(11)};
    QCOMPARE(bridgePci, (QStringList{"0x1f3c", "0x43c1", "N/A", "N/A", "0x3", "0x1", "0x2"}));

    QTreeWidgetItem *empty = list->topLevelItem(2);
    QCOMPARE(empty->childCount(), 0);
    QVERIFY(empty->text(2).isEmpty() && empty->text(3).isEmpty());
}

void TestInfoDialogs::aboutShowsTheDriverFileVersions()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        m.host.drivers.at(1).version = "9.0.0.1190";
        m.host.drivers.pop_back(); // skbottom.sys is missing
        return true;
    });
    SK_RaidApi api;
    SK_AboutDialog dialog(api, nullptr, QStringLiteral("9.3.3-00097"));
    QCOMPARE(widget<QLabel>(&dialog, "skraidValue")->text(), QStringLiteral("9.0.0.1182"));
    QCOMPARE(widget<QLabel>(&dialog, "skcfgValue")->text(), QStringLiteral("9.0.0.1190"));
    QCOMPARE(widget<QLabel>(&dialog, "skbottomValue")->text(), QStringLiteral("Unknown"));
    // The test program never runs from the installation folder.
    QCOMPARE(widget<QLabel>(&dialog, "AppVersionValue")->text(), QStringLiteral("9.33.97.0 UWP"));
    QVERIFY2(!widget<QLabel>(&dialog, "ImageLabel")->pixmap(Qt::ReturnByValue).isNull(),
             "the picture is there");
}

void TestInfoDialogs::aboutVersionFollowsTheInstallFolder_data()
{
    QTest::addColumn<QString>("build");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("shown");
    const QString install = QStringLiteral("C:/Program Files (x86)/StrataKeep");
    QTest::newRow("the installation folder shows the build string")
        << "9.3.3-00097" << install << "9.3.3-00097";
    const QString elsewhere = QStringLiteral("C:/Apps/StrataKeep");
    QTest::newRow("a patch of 0 keeps the minor number")
        << "9.3.0-00097" << elsewhere << "9.3.97.0 UWP";
    QTest::newRow("a build string without a build number stays as it is")
        << "9.3.3" << elsewhere << "9.3.3 UWP";
    QTest::newRow("the folder must match exactly") << "9.3.3-00097" << install + "/"
                                                   << "9.33.97.0 UWP";
}

void TestInfoDialogs::aboutVersionFollowsTheInstallFolder()
{
    QFETCH(QString, build);
    QFETCH(QString, folder);
    QFETCH(QString, shown);
    QCOMPARE(SK_AboutDialog::displayedVersion(build, folder), shown);
}

void TestInfoDialogs::windowStateIsRestored()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    expectWindowStateKept([&api] { return std::make_unique<SK_SmartDiskDialog>(api); }, "diskList",
                          3);
    expectWindowStateKept([&api] { return std::make_unique<sk_ControllerProperties>(api); },
                          "controllerList", 3);
}

QTEST_MAIN(TestInfoDialogs)
#include "tst_infodialogs.moc"
