// The array tool dialogs against a fresh emulated host: task priority, array name,
// the batch delete and the pairing of a hot and a cold array. Each commit is checked in
// the host's model; each refusal leaves the model as it was.

#include "dialogs/dialogs.h"
#include "emulator/emulator.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

using namespace sk_emu;

// The default workstation: SSDs 1-2 carry the system mirror (array 1, C:), HDDs 3-5 the
// data RAID 5 (array 2, D:), HDD 6 is the global spare and NVMe disk 7 is unused.
constexpr int kSystem = 1, kData = 2, kSpare = 6, kNvme = 7;
// Arrays the tests add: a small one on the NVMe disk (hot) and a big one on the former
// spare (cold), neither with a volume.
constexpr int kFast = 3, kBulk = 4;
constexpr std::uint64_t kGiB = 2097152; // sectors

Array &arrayOf(Model &m, int route)
{
    Array *a = m.findArrayByRoute(static_cast<std::uint32_t>(route));
    if (!a)
        qFatal("no array %d", route);
    return *a;
}

// The array as the host holds it now.
Array storedArray(EmulatedHostScope &scope, int route)
{
    Model m = scope.host->model();
    return arrayOf(m, route);
}

const Array *findArray(const Model &m, int route)
{
    return m.findArrayByRoute(static_cast<std::uint32_t>(route));
}

// A single-disk volume over the first `sectors` of console disk `disk`.
Array plainArray(const Model &m, std::uint16_t route, const char *name, int disk,
                 std::uint64_t sectors)
{
    Array a;
    a.id = 0x3C00000000000000ull + route;
    a.route = route;
    a.name = name;
    a.layout.type = code::TypeVolume;
    a.layout.members.push_back(
        Member{m.disks.at(static_cast<std::size_t>(disk - 1)).id, 0, sectors, 0, sectors, 0});
    a.layout.capacity = sectors;
    a.generation = 1;
    return a;
}

// Adds the hot 100 GiB array on the NVMe disk and the cold 2 TiB one on the spare.
void addPlainPair(EmulatedHostScope &scope)
{
    scope.host->modify([](Model &m) {
        m.disks.at(kSpare - 1).globalSpare = false;
        m.arrays.push_back(plainArray(m, kFast, "Fast", kNvme, 100 * kGiB));
        m.arrays.push_back(plainArray(m, kBulk, "Bulk", kSpare, 2048 * kGiB));
        return true;
    });
}

void runningCheck(EmulatedHostScope &scope, int route, std::uint32_t priority)
{
    scope.host->modify([route, priority](Model &m) {
        Array &a = arrayOf(m, route);
        a.task = Task{code::TaskCheck, code::TaskStarted, 25000};
        a.priority = priority;
        return true;
    });
}

void tick(QTreeWidget *list, int id)
{
    tickRows(list, {id});
}

} // namespace

class TestArrayTools : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void priorityOpensAtTheTasksLevel_data();
    void priorityOpensAtTheTasksLevel();
    void priorityOfATaskThatEndedClosesAccepted();

    void renameReachesTheDrivers();
    void renameRefusesInvalidNames_data();
    void renameRefusesInvalidNames();

    void deleteListDisablesSystemArrays();
    void deleteConfirmationFollowsTheDisplayOrder();
    void deleteAnsweredNoKeepsTicksAndArrays();
    void deleteOfThreeArraysRunsBehindTheProgressDialog();
    void deleteListDisablesTierParts();

    void tieringListsHotAndColdArrays();
    void tieringTickNarrowsTheOtherList();
    void tieringPairsThatMayBeCommitted_data();
    void tieringPairsThatMayBeCommitted();

    void windowStateIsRestored();

private:
    QTemporaryDir settingsDir;
};

void TestArrayTools::initTestCase()
{
    QVERIFY(settingsDir.isValid());
    keepSettingsIn(settingsDir.path());
}

// Each test opens its dialogs as on a first run: a saved header would bring back the
// sort order of the test before.
void TestArrayTools::init()
{
    QSettings().clear();
}

// --- Task priority ---

void TestArrayTools::priorityOpensAtTheTasksLevel_data()
{
    QTest::addColumn<uint>("priority");
    QTest::addColumn<int>("opensAt");
    QTest::addColumn<int>("movedTo");
    QTest::addColumn<uint>("afterwards");

    QTest::newRow("a middle priority confirmed unmoved sends nothing") << 50u << 6 << 6 << 50u;
    QTest::newRow("the top priority confirmed unmoved keeps 100") << 100u << 1 << 1 << 100u;
    QTest::newRow("moving one step up sends 20") << 50u << 6 << 9 << 20u;
    QTest::newRow("the slider's top sends 1") << 50u << 6 << 10 << 1u;
    QTest::newRow("the slider's bottom sends 99") << 5u << 10 << 1 << 99u;
}

void TestArrayTools::priorityOpensAtTheTasksLevel()
{
    QFETCH(uint, priority);
    QFETCH(int, opensAt);
    QFETCH(int, movedTo);
    QFETCH(uint, afterwards);

    EmulatedHostScope scope;
    runningCheck(scope, kData, priority);
    SK_RaidApi api;
    SK_TaskPriorityDialog dialog(api, kData);
    auto *slider = widget<QSlider>(&dialog, "prioritySlider");
    QCOMPARE(slider->value(), opensAt);
    QCOMPARE(widget<QLabel>(&dialog, "currentyPriorityLabel")->text(),
             QStringLiteral("Current priority of the 'CHECK' task: %1").arg(opensAt));
    QVERIFY(widget<QLabel>(&dialog, "descriptionLabel")->text().contains(QLatin1String("'Data'")));

    slider->setValue(movedTo);
    QCOMPARE(widget<QLabel>(&dialog, "newPriorityLabel")->text(),
             QStringLiteral("New priority: %1").arg(movedTo));
    click(&dialog, "confirmButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(storedArray(scope, kData).priority, afterwards);
}

void TestArrayTools::priorityOfATaskThatEndedClosesAccepted()
{
    EmulatedHostScope scope;
    runningCheck(scope, kData, 50);
    SK_RaidApi api;
    SK_TaskPriorityDialog dialog(api, kData);
    scope.host->modify([](Model &m) {
        arrayOf(m, kData).task = Task{};
        return true;
    });
    widget<QSlider>(&dialog, "prioritySlider")->setValue(2);
    BoxAnswerer answerer(QMessageBox::Ok);
    click(&dialog, "confirmButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY2(answerer.texts.isEmpty(), "whatever became of the task, no message is shown");
}

// --- Array name ---

void TestArrayTools::renameReachesTheDrivers()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_ArrayNameDialog dialog(api, kData);
    auto *edit = widget<QLineEdit>(&dialog, "arrayNameLineEdit");
    QCOMPARE(edit->text(), QStringLiteral("Data"));
    edit->setText(QStringLiteral("  Archive "));
    click(&dialog, "okButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(QString::fromStdString(storedArray(scope, kData).name), QStringLiteral("Archive"));
}

void TestArrayTools::renameRefusesInvalidNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("message");
    QTest::newRow("the present name counts as a duplicate") << "Data" << true;
    QTest::newRow("another array's name") << "System" << true;
    QTest::newRow("a name with a full stop") << "Data.old" << true;
    QTest::newRow("a name with a bracket") << "Data[2]" << true;
    QTest::newRow("blanks are passed over without a word") << "   " << false;
}

void TestArrayTools::renameRefusesInvalidNames()
{
    QFETCH(QString, name);
    QFETCH(bool, message);
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_ArrayNameDialog dialog(api, kData);
    dialog.show();
    widget<QLineEdit>(&dialog, "arrayNameLineEdit")->setText(name);
    BoxAnswerer answerer(QMessageBox::Ok);
    click(&dialog, "okButton");
    QCOMPARE(answerer.texts.size(), message ? 1 : 0);
    if (message)
        QVERIFY(answerer.texts.at(0).startsWith(QLatin1String("Invalid name:")));
    QVERIFY2(dialog.isVisible(), "the dialog stays open for another try");
    QCOMPARE(QString::fromStdString(storedArray(scope, kData).name), QStringLiteral("Data"));
}

// --- Delete arrays ---

void TestArrayTools::deleteListDisablesSystemArrays()
{
    EmulatedHostScope scope;
    scope.host->modify([](Model &m) {
        m.disks.at(kSpare - 1).globalSpare = false;
        Array hidden = plainArray(m, kBulk, "Bulk", kSpare, 10 * kGiB);
        hidden.attributes |= code::AttributeHidden;
        m.arrays.push_back(hidden);
        return true;
    });
    SK_RaidApi api;
    SK_DeleteForm dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "arrayList");
    QCOMPARE(rowIds(list), (QList<int>{kSystem, kData, kBulk}));
    QVERIFY(listedRow(list, kSystem)->isDisabled());
    QCOMPARE(listedRow(list, kSystem)->text(2), QStringLiteral("Yes"));
    QCOMPARE(listedRow(list, kData)->text(2), QStringLiteral("No"));
    QCOMPARE(listedRow(list, kData)->text(3), QStringLiteral("D:"));
    QCOMPARE(listedRow(list, kBulk)->text(1), QStringLiteral("Hidden"));
    QVERIFY(!widget<QPushButton>(&dialog, "deleteButton")->isEnabled());

    click(&dialog, "selectAllButton");
    QCOMPARE(listedRow(list, kSystem)->checkState(0), Qt::Unchecked);
    QCOMPARE(listedRow(list, kData)->checkState(0), Qt::Checked);
    QVERIFY(widget<QPushButton>(&dialog, "deleteButton")->isEnabled());
    listedRow(list, kData)->setCheckState(0, Qt::Unchecked);
    listedRow(list, kBulk)->setCheckState(0, Qt::Unchecked);
    QVERIFY(!widget<QPushButton>(&dialog, "deleteButton")->isEnabled());
}

void TestArrayTools::deleteConfirmationFollowsTheDisplayOrder()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    SK_DeleteForm dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "arrayList");
    tick(list, kData);
    tick(list, kFast);
    tick(list, kBulk);
    // By capacity, largest first: the RAID 5 over three 4 TB disks, the 2 TiB "Bulk",
    // the 100 GiB "Fast".
    list->sortByColumn(6, Qt::DescendingOrder);
    QCOMPARE(dialog.generateDeleteConfirmationString(),
             QStringLiteral("Deleting an array may cause data loss. Are you sure you want to "
                            "delete the selected Array(s): Array 2 - D: Data, Array 4 - Bulk, "
                            "Array 3 - Fast?"));
    list->sortByColumn(0, Qt::AscendingOrder);
    QVERIFY(dialog.generateDeleteConfirmationString().endsWith(
        QLatin1String("Array(s): Array 2 - D: Data, Array 3 - Fast, Array 4 - Bulk?")));
}

void TestArrayTools::deleteAnsweredNoKeepsTicksAndArrays()
{
    EmulatedHostScope scope;
    SK_RaidApi api;
    SK_DeleteForm dialog(api);
    dialog.show();
    auto *list = widget<QTreeWidget>(&dialog, "arrayList");
    tick(list, kData);
    BoxAnswerer answerer(QMessageBox::No);
    click(&dialog, "deleteButton");
    QCOMPARE(answerer.texts.size(), 1);
    QTest::qWait(20);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.findChild<QProgressDialog *>());
    QCOMPARE(listedRow(list, kData)->checkState(0), Qt::Checked);
    QVERIFY(findArray(scope.host->model(), kData));
}

void TestArrayTools::deleteOfThreeArraysRunsBehindTheProgressDialog()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    SK_DeleteForm dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "arrayList");
    click(&dialog, "selectAllButton");
    BoxAnswerer answerer(QMessageBox::Yes);
    QTimer::singleShot(0, &dialog, [&dialog] { click(&dialog, "deleteButton"); });
    // A run that never ends must not hang the suite.
    QTimer::singleShot(10000, &dialog, &QDialog::reject);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(answerer.texts.size(), 1);
    QVERIFY(answerer.texts.at(0).endsWith(QLatin1String("Array 4 - Bulk?")));

    auto *progress = dialog.findChild<QProgressDialog *>();
    QVERIFY2(progress, "the run shows its progress");
    QCOMPARE(progress->maximum(), 2);
    QCOMPARE(progress->labelText(), QStringLiteral("Deleting arrays..."));
    const Model &m = scope.host->model();
    QVERIFY(findArray(m, kSystem));
    for (int gone : {kData, kFast, kBulk})
        QVERIFY2(!findArray(m, gone), qPrintable(QStringLiteral("array %1 is left").arg(gone)));
    QCOMPARE(rowIds(list).size(), 4);
}

void TestArrayTools::deleteListDisablesTierParts()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    {
        SK_RaidApi api;
        SK_Tier tier;
        tier.name = QStringLiteral("Paired");
        tier.cache = QStringLiteral("RW");
        tier.arrays[0] = kBulk;
        tier.arrays[1] = kFast;
        tier.arrayCount = 2;
        QCOMPARE(api.CreateTier(tier, false), 1);
    }
    SK_RaidApi api;
    SK_DeleteForm dialog(api);
    auto *list = widget<QTreeWidget>(&dialog, "arrayList");
    QCOMPARE(list->topLevelItemCount(), 5);
    for (int part : {kFast, kBulk}) {
        QVERIFY(listedRow(list, part)->isDisabled());
        QVERIFY(listedRow(list, part)->text(2).isEmpty());
        QVERIFY(listedRow(list, part)->text(3).isEmpty());
    }
    click(&dialog, "selectAllButton");
    QCOMPARE(listedRow(list, kFast)->checkState(0), Qt::Unchecked);
    QTreeWidgetItem *tierRow =
        list->findItems(QStringLiteral("RAIDTIER"), Qt::MatchExactly, 5).value(0);
    QVERIFY(tierRow);
    QCOMPARE(tierRow->checkState(0), Qt::Checked);
}

// --- Tiering ---

void TestArrayTools::tieringListsHotAndColdArrays()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    SK_TieringDialog dialog(api);
    QCOMPARE(rowIds(widget<QTreeWidget>(&dialog, "hotArrayList")), (QList<int>{kSystem, kFast}));
    QCOMPARE(rowIds(widget<QTreeWidget>(&dialog, "coldArrayList")), (QList<int>{kData, kBulk}));
    QVERIFY(!widget<QPushButton>(&dialog, "commitButton")->isEnabled());
    QCOMPARE(listedRow(widget<QTreeWidget>(&dialog, "coldArrayList"), kData)->text(2),
             QStringLiteral("D:"));
}

void TestArrayTools::tieringTickNarrowsTheOtherList()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    SK_TieringDialog dialog(api);
    auto *hot = widget<QTreeWidget>(&dialog, "hotArrayList");
    auto *cold = widget<QTreeWidget>(&dialog, "coldArrayList");
    // D: is bigger than both hot arrays, but the system mirror holds C:.
    tick(cold, kData);
    QCOMPARE(rowIds(hot), (QList<int>{kFast}));
    // A second tick in the same list takes the place of the first.
    tick(cold, kBulk);
    QCOMPARE(listedRow(cold, kData)->checkState(0), Qt::Unchecked);
    QCOMPARE(rowIds(hot), (QList<int>{kSystem, kFast}));
    tick(hot, kFast);
    QCOMPARE(listedRow(cold, kBulk)->checkState(0), Qt::Checked);
    // The cache combo refills both lists and keeps the ticks.
    widget<QComboBox>(&dialog, "cacheComboBox")->setCurrentIndex(1);
    QCOMPARE(listedRow(cold, kBulk)->checkState(0), Qt::Checked);
    QCOMPARE(listedRow(hot, kFast)->checkState(0), Qt::Checked);
    QVERIFY(widget<QPushButton>(&dialog, "commitButton")->isEnabled());
    listedRow(cold, kBulk)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(rowIds(hot), (QList<int>{kSystem, kFast}));
    QVERIFY(!widget<QPushButton>(&dialog, "commitButton")->isEnabled());
}

void TestArrayTools::tieringPairsThatMayBeCommitted_data()
{
    QTest::addColumn<int>("hotArray");
    QTest::addColumn<int>("cacheRow");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<std::uint32_t>("cache");

    const std::uint32_t readWrite = code::CacheRead | code::CacheWrite;
    QTest::newRow("two plain arrays with write back cache") << kFast << 0 << true << readWrite;
    QTest::newRow("two plain arrays with read cache") << kFast << 1 << true << code::CacheRead;
    QTest::newRow("a mirror over a plain array with write back cache")
        << kSystem << 0 << false << readWrite;
    QTest::newRow("a hot array with volumes and read cache")
        << kSystem << 1 << false << code::CacheRead;
}

void TestArrayTools::tieringPairsThatMayBeCommitted()
{
    QFETCH(int, hotArray);
    QFETCH(int, cacheRow);
    QFETCH(bool, valid);
    QFETCH(std::uint32_t, cache);

    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    SK_TieringDialog dialog(api);
    widget<QComboBox>(&dialog, "cacheComboBox")->setCurrentIndex(cacheRow);
    tick(widget<QTreeWidget>(&dialog, "coldArrayList"), kBulk);
    tick(widget<QTreeWidget>(&dialog, "hotArrayList"), hotArray);
    QCOMPARE(widget<QPushButton>(&dialog, "commitButton")->isEnabled(), valid);
    if (!valid)
        return;

    // An empty name is replaced by the time of the commit.
    click(&dialog, "commitButton");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const Model m = scope.host->model();
    std::vector<const Array *> tiers;
    for (const Array &a : m.arrays) {
        if (a.layout.type == code::TypeTier)
            tiers.push_back(&a);
    }
    QCOMPARE(tiers.size(), std::size_t(1));
    QVERIFY2(QString::fromStdString(tiers[0]->name).contains(QLatin1Char('/')),
             tiers[0]->name.c_str());
    QCOMPARE(tiers[0]->cachePolicy & (code::CacheRead | code::CacheWrite), cache);
}

// --- Window state ---

void TestArrayTools::windowStateIsRestored()
{
    EmulatedHostScope scope;
    addPlainPair(scope);
    SK_RaidApi api;
    const auto tiering = [&api] { return std::make_unique<SK_TieringDialog>(api); };
    expectWindowStateKept([&api] { return std::make_unique<SK_DeleteForm>(api); }, "arrayList", 4);
    // The tiering dialog is larger than the others at the least.
    expectWindowStateKept(tiering, "hotArrayList", 3, {1000, 700});
    expectWindowStateKept(tiering, "coldArrayList", 2, {1000, 700});
}

QTEST_MAIN(TestArrayTools)
#include "tst_arraytools.moc"
