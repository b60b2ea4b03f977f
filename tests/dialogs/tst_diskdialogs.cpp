// The disk dialogs against a fresh emulated host: what each offers for the disks of the
// workstation, commits that reach the emulated drivers, refusals that send nothing, and
// the window state kept in the settings.

#include "dialogs/dialogs.h"
#include "emulator/emulator.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

using namespace sk_emu;

// Disk ids of the default workstation: SSDs 1-2 in the system mirror (array 1), HDDs
// 3-5 in the data RAID 5 (array 2), the global spare 6 and the unused NVMe disk 7.
constexpr int kSsd1 = 1, kHdd1 = 3, kHdd2 = 4, kSpare = 6, kNvme = 7;
constexpr int kSystem = 1, kData = 2;
// Driver events of an initialised and of a cleared disk.
constexpr std::uint16_t kInitialisedEvent = 1029, kClearedEvent = 1181;

// Console disk `id` of a model, whether read or being changed.
template <typename M>
auto &diskOf(M &&m, int id)
{
    return m.disks.at(static_cast<std::size_t>(id - 1));
}

Array &arrayOf(Model &m, int route)
{
    Array *a = m.findArrayByRoute(static_cast<std::uint32_t>(route));
    if (!a)
        qFatal("no array %d", route);
    return *a;
}

bool hasEvent(const Model &m, std::uint16_t message, std::uint32_t port)
{
    return std::any_of(m.events.begin(), m.events.end(),
                       [&](const Event &e) { return e.message == message && e.params[1] == port; });
}

QList<int> listedDisks(QWidget *dialog)
{
    QList<int> ids = rowIds(widget<QTreeWidget>(dialog, "diskListTree"));
    std::sort(ids.begin(), ids.end());
    return ids;
}

void tick(QWidget *dialog, const QList<int> &ids)
{
    tickRows(widget<QTreeWidget>(dialog, "diskListTree"), ids);
}

using Change = std::function<void(Model &)>;

void applyChange(EmulatedHostScope &scope, const Change &change)
{
    if (change)
        scope.host->modify([&change](Model &m) {
            change(m);
            return true;
        });
}

// The global spare made a free disk again.
void freeTheSpare(Model &m)
{
    diskOf(m, kSpare).globalSpare = false;
}

void makeDedicatedSpareOfData(Model &m)
{
    freeTheSpare(m);
    arrayOf(m, kData).spares.push_back(diskOf(m, kSpare).id);
}

// Opens the options of console disk `disk` with array `array` selected, picks `option`
// (none if null) and presses OK; the dialog's result.
int chooseOption(int disk, int array, const char *option, const QString &model = QString())
{
    SK_RaidApi api;
    SK_diskSpareDialog dialog(api, QStringLiteral("0 %1").arg(disk - 1), model, quint32(disk),
                              quint32(array));
    if (option)
        widget<QRadioButton>(&dialog, option)->setChecked(true);
    click(&dialog, "okButton");
    return dialog.result();
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestDiskDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void optionsOfferActionsByTheDisk_data();
    void optionsOfferActionsByTheDisk();
    void optionsSpareCommandsReachTheDrivers();
    void optionsDeclinedDriveMixingSendsNothing();
    void optionsIdentifyLightsAndDarkensTheDisk();
    void optionsRemovalOfAGlobalSparePreparesTheBay();
    void optionsRemovalOfASystemDiskIsRefused();
    void optionsOkWithNothingChosenAccepts();

    void initialiseListsDisksThatMayBeInitialised_data();
    void initialiseListsDisksThatMayBeInitialised();
    void initialiseUnInitialisedButtonPicksNewDisks();
    void initialiseCommitReachesTheDrivers();
    void initialiseRefusedByTheDriversStaysOpen();

    void clearMetadataListsPlainDisksAndSpares();
    void clearMetadataButtonFollowsTheTickOrder();
    void clearMetadataCommitClearsAndRescans();

    void propertiesListShowsEachDisksSettings();
    void propertiesCacheCommandSkipsNvmeAndKeepsTicks();
    void propertiesWithoutASataDiskTickedSendNothing_data();
    void propertiesWithoutASataDiskTickedSendNothing();
    void propertiesSmartPollingReachesNvme();

    void windowStateIsRestored();

private:
    QTemporaryDir settingsDir;
};

void TestDiskDialogs::initTestCase()
{
    QVERIFY(settingsDir.isValid());
    keepSettingsIn(settingsDir.path());
}

// --- Disk options ---

void TestDiskDialogs::optionsOfferActionsByTheDisk_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("disk");
    QTest::addColumn<int>("array");
    QTest::addColumn<bool>("dedicated");
    QTest::addColumn<bool>("global");
    QTest::addColumn<bool>("removal");
    QTest::addColumn<QString>("dedicatedText");
    QTest::addColumn<QString>("globalText");

    const QString assignDed = QStringLiteral("Assign as Dedicated Spare");
    const QString assignGlob = QStringLiteral("Assign as Global Spare");
    QTest::newRow("an unused disk with no array selected offers only the global spare")
        << Change() << kNvme << 0 << false << true << false << assignDed << assignGlob;
    QTest::newRow("an unused disk too small for the data array is no dedicated spare of it")
        << Change() << kNvme << kData << false << true << false << assignDed << assignGlob;
    QTest::newRow("an unused disk that fits the system mirror may become its spare")
        << Change() << kNvme << kSystem << true << true << false << assignDed << assignGlob;
    QTest::newRow("a free hot-swap disk that fits the data array offers both and removal")
        << Change(freeTheSpare) << kSpare << kData << true << true << true << assignDed
        << assignGlob;
    QTest::newRow("the global spare offers only its release")
        << Change() << kSpare << kData << false << true << true << assignDed
        << QStringLiteral("Remove as Global Spare");
    QTest::newRow("a member offers no spare action")
        << Change() << kHdd1 << kData << false << false << true << assignDed << assignGlob;
    QTest::newRow("a dedicated spare of the selected array offers its release")
        << Change(makeDedicatedSpareOfData) << kSpare << kData << true << false << true
        << QStringLiteral("Remove as Dedicated Spare") << assignGlob;
    QTest::newRow("a dedicated spare of an array with a task running can't be released")
        << Change([](Model &m) {
               makeDedicatedSpareOfData(m);
               arrayOf(m, kData).task = Task{code::TaskCheck, code::TaskStarted, 1000};
           })
        << kSpare << kData << false << false << true << QStringLiteral("Remove as Dedicated Spare")
        << assignGlob;
    QTest::newRow("a dedicated spare of another array offers neither spare action")
        << Change(makeDedicatedSpareOfData) << kSpare << kSystem << false << false << true
        << assignDed << assignGlob;
    QTest::newRow("a locked disk offers no spare action")
        << Change([](Model &m) { diskOf(m, kNvme).state = code::DiskLocked; }) << kNvme << 0
        << false << false << false << assignDed << assignGlob;
    QTest::newRow("without elevation no disk can be prepared for removal")
        << Change([](Model &m) { m.host.elevated = false; }) << kHdd1 << kData << false << false
        << false << assignDed << assignGlob;
}

void TestDiskDialogs::optionsOfferActionsByTheDisk()
{
    QFETCH(Change, change);
    QFETCH(int, disk);
    QFETCH(int, array);
    EmulatedHostScope scope;
    applyChange(scope, change);
    SK_RaidApi api;
    SK_diskSpareDialog dialog(api, QStringLiteral("0 %1").arg(disk - 1), QStringLiteral("Model"),
                              quint32(disk), quint32(array));

    auto *dedicated = widget<QRadioButton>(&dialog, "assignDedSpare");
    auto *global = widget<QRadioButton>(&dialog, "assignGlobSpare");
    auto *removal = widget<QRadioButton>(&dialog, "removeDiskBtn");
    QTEST(dedicated->isEnabled(), "dedicated");
    QTEST(global->isEnabled(), "global");
    QTEST(removal->isEnabled(), "removal");
    QTEST(dedicated->text(), "dedicatedText");
    QTEST(global->text(), "globalText");
}

void TestDiskDialogs::optionsSpareCommandsReachTheDrivers()
{
    EmulatedHostScope scope;
    QCOMPARE(chooseOption(kNvme, 0, "assignGlobSpare"), int(QDialog::Accepted));
    QVERIFY2(diskOf(scope.host->model(), kNvme).globalSpare, "the NVMe disk is a global spare");
    chooseOption(kSpare, kData, "assignGlobSpare");
    QVERIFY2(!diskOf(scope.host->model(), kSpare).globalSpare, "the old spare is released");
    chooseOption(kSpare, kData, "assignDedSpare");
    Model m = scope.host->model();
    QCOMPARE(arrayOf(m, kData).spares, std::vector<std::uint64_t>{diskOf(m, kSpare).id});
    chooseOption(kSpare, kData, "assignDedSpare");
    m = scope.host->model();
    QVERIFY2(arrayOf(m, kData).spares.empty(), "the dedicated spare is released");
}

void TestDiskDialogs::optionsDeclinedDriveMixingSendsNothing()
{
    EmulatedHostScope scope;
    const std::uint64_t before = scope.host->model().generation;
    SK_RaidApi api;
    SK_diskSpareDialog dialog(api, QStringLiteral("0 6"), QString(), kNvme, kSystem);
    widget<QRadioButton>(&dialog, "assignDedSpare")->setChecked(true);
    {
        BoxAnswerer no(QMessageBox::No);
        click(&dialog, "okButton");
        QCOMPARE(no.texts.size(), 1);
        QVERIFY2(no.texts.first().startsWith(QStringLiteral("Warning: drive mixing detected!")),
                 qPrintable(no.texts.first()));
    }
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(scope.host->model().generation, before);

    BoxAnswerer yes(QMessageBox::Yes);
    click(&dialog, "okButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    Model m = scope.host->model();
    QCOMPARE(arrayOf(m, kSystem).spares, std::vector<std::uint64_t>{diskOf(m, kNvme).id});
}

void TestDiskDialogs::optionsIdentifyLightsAndDarkensTheDisk()
{
    EmulatedHostScope scope;
    std::uint32_t ledWhileAsked = 0;
    QTimer::singleShot(0, [&] { ledWhileAsked = diskOf(scope.host->model(), kHdd1).ledState; });
    BoxAnswerer ok(QMessageBox::Ok);
    QCOMPARE(chooseOption(kHdd1, 0, "identDisk"), int(QDialog::Accepted));
    QCOMPARE(ok.texts, QStringList{QStringLiteral(
                           "The LEDs representing the selected Disk are now lit. Click 'OK' to "
                           "stop identifying.")});
    QVERIFY2(ledWhileAsked != 0, "the disk is lit while the box is up");
    QCOMPARE(diskOf(scope.host->model(), kHdd1).ledState, 0u);
}

void TestDiskDialogs::optionsRemovalOfAGlobalSparePreparesTheBay()
{
    EmulatedHostScope scope;
    BoxAnswerer yes(QMessageBox::Yes);
    QCOMPARE(chooseOption(kSpare, kData, "removeDiskBtn", QStringLiteral("WDC WD40EFPX")),
             int(QDialog::Accepted));
    QCOMPARE(yes.texts.size(), 2);
    QCOMPARE(
        yes.texts.at(0),
        QStringLiteral("You are about to remove WDC WD40EFPX (0 5), a device that is a Global "
                       "Spare and may be part of an array. Are you sure you want to proceed?"));
    QCOMPARE(yes.texts.at(1), QStringLiteral("The device was disconnected and can now be "
                                             "physically removed from the system."));
    QCOMPARE(diskOf(scope.host->model(), kSpare).ledState, 4u);
}

void TestDiskDialogs::optionsRemovalOfASystemDiskIsRefused()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        diskOf(m, kSsd1).portType |= code::PortRemovable;
        return true;
    });
    const std::uint64_t before = scope.host->model().generation;
    SK_RaidApi api;
    SK_diskSpareDialog dialog(api, QStringLiteral("0 0"), QStringLiteral("Samsung SSD 870 EVO 1TB"),
                              kSsd1, kSystem);
    auto *removal = widget<QRadioButton>(&dialog, "removeDiskBtn");
    QVERIFY2(removal->isEnabled(), "a hot-swap disk offers the removal");
    removal->setChecked(true);
    BoxAnswerer ok(QMessageBox::Ok);
    click(&dialog, "okButton");
    QCOMPARE(ok.texts, QStringList{QStringLiteral("Samsung SSD 870 EVO 1TB (0 0) device is part "
                                                  "of the system array, removal is not "
                                                  "supported.")});
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(scope.host->model().generation, before);
}

void TestDiskDialogs::optionsOkWithNothingChosenAccepts()
{
    EmulatedHostScope scope;
    const std::uint64_t before = scope.host->model().generation;
    QCOMPARE(chooseOption(kNvme, 0, nullptr), int(QDialog::Accepted));
    QCOMPARE(scope.host->model().generation, before);
}

// --- Initialise disks ---

void TestDiskDialogs::initialiseListsDisksThatMayBeInitialised_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QList<int>>("listed");

    QTest::newRow("on the workstation only the unused disk; members and the spare are not")
        << Change() << QList<int>{kNvme};
    QTest::newRow("a failed member of the data array is offered") << Change([](Model &m) {
        Array &data = arrayOf(m, kData);
        data.layout.members.at(1).flags |= code::MemberFailed;
        data.state = code::ArrayCritical;
    }) << QList<int>{kHdd2, kNvme};
    QTest::newRow("a disk of a legacy array is offered unless the array holds the system")
        << Change([](Model &m) {
               Array &data = arrayOf(m, kData);
               data.layout.type = code::TypeLegacy;
           })
        << QList<int>{kHdd1, kHdd2, 5, kNvme};
}

void TestDiskDialogs::initialiseListsDisksThatMayBeInitialised()
{
    QFETCH(Change, change);
    EmulatedHostScope scope;
    applyChange(scope, change);
    SK_RaidApi api;
    SK_initDisksDialog dialog(api);
    QTEST(listedDisks(&dialog), "listed");
    QVERIFY2(!widget<QPushButton>(&dialog, "selectUnInitButton")->isEnabled(), "no disk is new");
    QVERIFY2(!widget<QPushButton>(&dialog, "initSelectedButton")->isEnabled(), "nothing is ticked");
}

void TestDiskDialogs::initialiseUnInitialisedButtonPicksNewDisks()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        diskOf(m, kNvme).type = code::DiskTypeUnknown;
        arrayOf(m, kData).layout.members.at(1).flags |= code::MemberFailed;
        return true;
    });
    SK_RaidApi api;
    SK_initDisksDialog dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "diskListTree");
    QCOMPARE(rowWithId(list, kNvme)->text(2), QStringLiteral("New"));
    QVERIFY(widget<QPushButton>(&dialog, "selectUnInitButton")->isEnabled());

    tick(&dialog, {kHdd2});
    QVERIFY(widget<QPushButton>(&dialog, "initSelectedButton")->isEnabled());
    click(&dialog, "selectUnInitButton");
    QCOMPARE(rowWithId(list, kNvme)->checkState(0), Qt::Checked);
    QVERIFY2(rowWithId(list, kHdd2)->checkState(0) == Qt::Unchecked,
             "the button replaces the selection");
    click(&dialog, "selectAllButton");
    QCOMPARE(rowWithId(list, kHdd2)->checkState(0), Qt::Checked);
}

void TestDiskDialogs::initialiseCommitReachesTheDrivers()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_initDisksDialog dialog(api);
    tick(&dialog, {kNvme});
    click(&dialog, "initSelectedButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const Model m = scope.host->model();
    QVERIFY2(hasEvent(m, kInitialisedEvent, diskOf(m, kNvme).port),
             "the drivers initialised the NVMe disk");
    QVERIFY2(!hasEvent(m, kClearedEvent, diskOf(m, kNvme).port), "without clearing");
}

void TestDiskDialogs::initialiseRefusedByTheDriversStaysOpen()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_initDisksDialog dialog(api);
    tick(&dialog, {kNvme});
    // Meanwhile the disk joined the data array: the drivers refuse to wipe it.
    scope.host->modify([](Model &m) {
        Member member;
        member.disk = diskOf(m, kNvme).id;
        member.size = 1000;
        arrayOf(m, kData).layout.members.push_back(member);
        return true;
    });
    const std::size_t events = scope.host->model().events.size();
    click(&dialog, "initSelectedButton");
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(scope.host->model().events.size(), events);
    QCOMPARE(rowWithId(widget<QTreeWidget>(&dialog, "diskListTree"), kNvme)->checkState(0),
             Qt::Checked);
}

// --- Clear metadata ---

void TestDiskDialogs::clearMetadataListsPlainDisksAndSpares()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    {
        SK_ClearMetadataDialog dialog(api);
        QCOMPARE(listedDisks(&dialog), (QList<int>{kSpare, kNvme}));
        QVERIFY(!widget<QPushButton>(&dialog, "clearMetaButton")->isEnabled());
    }
    scope.host->modify([](Model &m) {
        diskOf(m, kNvme).type = code::DiskTypeUnknown;
        return true;
    });
    SK_ClearMetadataDialog dialog(api);
    QVERIFY2(!listedDisks(&dialog).contains(kNvme), "a disk of another type is not listed");
}

void TestDiskDialogs::clearMetadataButtonFollowsTheTickOrder()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        arrayOf(m, kData).layout.type = code::TypeLegacy;
        return true;
    });
    SK_RaidApi api;
    SK_ClearMetadataDialog dialog(api);
    auto *button = widget<QPushButton>(&dialog, "clearMetaButton");
    auto *list = widget<QTreeWidget>(&dialog, "diskListTree");
    QCOMPARE(rowWithId(list, kHdd1)->text(3), QStringLiteral("1"));
    tick(&dialog, {kHdd1});
    QVERIFY2(!button->isEnabled(), "a disk in use first leaves the button off");
    tick(&dialog, {kNvme});
    QVERIFY(!button->isEnabled());
    rowWithId(list, kHdd1)->setCheckState(0, Qt::Unchecked);
    QVERIFY2(button->isEnabled(), "only free disks ticked");
    tick(&dialog, {kHdd1});
    QVERIFY2(button->isEnabled(), "a disk in use added later leaves it on");
    rowWithId(list, kHdd1)->setCheckState(0, Qt::Unchecked);
    rowWithId(list, kNvme)->setCheckState(0, Qt::Unchecked);
    QVERIFY(!button->isEnabled());
}

void TestDiskDialogs::clearMetadataCommitClearsAndRescans()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_ClearMetadataDialog dialog(api);
    tick(&dialog, {kSpare});
    click(&dialog, "clearMetaButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const Model m = scope.host->model();
    QVERIFY2(hasEvent(m, kClearedEvent, diskOf(m, kSpare).port), "the metadata was cleared");
    QVERIFY2(!diskOf(m, kSpare).globalSpare, "the spare's role went with its metadata");
    api.RefreshConfig();
    QVERIFY2(!api.DiskIsGlobalSpare(kSpare), "the picture after the rescan shows it");
}

// --- Disk properties ---

void TestDiskDialogs::propertiesListShowsEachDisksSettings()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        diskOf(m, kHdd1).features &= ~code::FeatureWriteCache;
        diskOf(m, kHdd2).features &= ~(code::FeatureReadAhead | code::FeatureSmartPolling);
        diskOf(m, kHdd2).firmware = "82.00A82";
        diskOf(m, kHdd1).firmware = "FW_1";
        return true;
    });
    SK_RaidApi api;
    SK_DiskProperites dialog(api);
    QCOMPARE(listedDisks(&dialog), (QList<int>{1, 2, 3, 4, 5, 6, 7}));
    auto *list = widget<QTreeWidget>(&dialog, "diskListTree");
    const auto texts = [list](int disk) {
        QStringList t;
        for (int c = 1; c <= 5; ++c)
            t << rowWithId(list, disk)->text(c);
        return t;
    };
    QCOMPARE(texts(kHdd1).mid(1, 4), (QStringList{"Disabled", "Enabled", "Enabled", "1"}));
    QCOMPARE(texts(kHdd2).mid(1, 4), (QStringList{"Enabled", "Disabled", "Disabled", "1"}));
    QCOMPARE(texts(kNvme).mid(1, 4), (QStringList{"Enabled", "Disabled", "Enabled", "0"}));
    QCOMPARE(rowWithId(list, kHdd1)->text(9), QStringLiteral("FW 1"));
    QCOMPARE(list->sortColumn(), 0);
}

void TestDiskDialogs::propertiesCacheCommandSkipsNvmeAndKeepsTicks()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_DiskProperites dialog(api);
    tick(&dialog, {kHdd1, kNvme});
    BoxAnswerer ok(QMessageBox::Ok);
    click(&dialog, "diskWriteDisableButton");
    QCOMPARE(ok.texts.size(), 1);
    QVERIFY2(ok.texts.first().endsWith(
                 QStringLiteral(" is a NVMe device and cannot change disk cache settings.")),
             qPrintable(ok.texts.first()));
    const Model m = scope.host->model();
    QVERIFY2(!(diskOf(m, kHdd1).features & code::FeatureWriteCache), "the SATA disk changed");
    QVERIFY2(diskOf(m, kNvme).features & code::FeatureWriteCache, "the NVMe disk did not");
    auto *list = widget<QTreeWidget>(&dialog, "diskListTree");
    QCOMPARE(rowWithId(list, kHdd1)->text(2), QStringLiteral("Disabled"));
    QCOMPARE(rowWithId(list, kHdd1)->checkState(0), Qt::Checked);
    QCOMPARE(rowWithId(list, kNvme)->checkState(0), Qt::Checked);
    QCOMPARE(rowWithId(list, kSsd1)->checkState(0), Qt::Unchecked);
}

void TestDiskDialogs::propertiesWithoutASataDiskTickedSendNothing_data()
{
    QTest::addColumn<QList<int>>("ticked");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("messages");
    const QStringList cache{"diskWriteEnableButton", "diskWriteDisableButton",
                            "diskReadEnableButton", "diskReadDisableButton"};
    QTest::newRow("nothing ticked")
        << QList<int>{} << cache + QStringList{"smartEnableButton", "smartDisableButton"} << 0;
    QTest::newRow("only the NVMe disk, whose cache can't change")
        << QList<int>{kNvme} << cache << cache.size();
}

void TestDiskDialogs::propertiesWithoutASataDiskTickedSendNothing()
{
    QFETCH(QList<int>, ticked);
    QFETCH(QStringList, buttons);
    EmulatedHostScope scope;
    const std::uint64_t before = scope.host->model().generation;
    const std::size_t events = scope.host->model().events.size();
    SK_RaidApi api;
    SK_DiskProperites dialog(api);
    tick(&dialog, ticked);
    QTreeWidgetItem *row = rowWithId(widget<QTreeWidget>(&dialog, "diskListTree"), kNvme);
    BoxAnswerer ok(QMessageBox::Ok);
    for (const QString &button : buttons)
        click(&dialog, qPrintable(button));
    QTEST(int(ok.texts.size()), "messages");
    QCOMPARE(scope.host->model().generation, before);
    QCOMPARE(scope.host->model().events.size(), events);
    QVERIFY2(rowWithId(widget<QTreeWidget>(&dialog, "diskListTree"), kNvme) == row,
             "the list is not redrawn");
}

void TestDiskDialogs::propertiesSmartPollingReachesNvme()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_DiskProperites dialog(api);
    tick(&dialog, {kNvme});
    click(&dialog, "smartDisableButton");
    QVERIFY2(!(diskOf(scope.host->model(), kNvme).features & code::FeatureSmartPolling),
             "SMART polling is switched for NVMe disks too");
    QCOMPARE(rowWithId(widget<QTreeWidget>(&dialog, "diskListTree"), kNvme)->text(4),
             QStringLiteral("Disabled"));
}

// --- Window state ---

void TestDiskDialogs::windowStateIsRestored()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    expectWindowStateKept([&api] { return std::make_unique<SK_initDisksDialog>(api); },
                          "diskListTree", 5);
    expectWindowStateKept([&api] { return std::make_unique<SK_ClearMetadataDialog>(api); },
                          "diskListTree", 5);
    expectWindowStateKept([&api] { return std::make_unique<SK_DiskProperites>(api); },
                          "diskListTree", 7);
    const QSettings settings;
    for (const char *key :
         {"initDiskWindowGeometry", "initDiskListHeaderState", "clearMetaWindowGeometry",
          "clearMetaListHeaderState", "diskPropWindowGeometry", "diskPropListHeaderState"})
        QVERIFY2(settings.contains(QLatin1String(key)), key);
    QSettings().clear();
}

QTEST_MAIN(TestDiskDialogs)
#include "tst_diskdialogs.moc"
