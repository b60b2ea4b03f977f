// Stories a user lives, through the real main window on a fresh emulated host: what
// the panes show while the drivers' tasks run on the manual clock, which entries the
// menus offer, the event rows and the files the console leaves behind. The only real
// waits are for the refresh worker's queued delivery and for modal boxes to come up.

#include "app/app.h"
#include "dialogs/dialogs.h"
#include "dialogs/sk_treeitems.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <functional>

namespace {

using namespace sk_emu;

// Console numbers: arrays by route, disks by port + 1 on the one controller.
constexpr int kData = 2, kNew = 3;
constexpr int kSpareDisk = 6, kNvme = 7;
// The row of RAID 5 in the type lists of the create and transform dialogs.
constexpr int kRaid5Row = 4;
constexpr std::uint64_t kHdd3 = 0x5000C500E4B2117Cull;
constexpr std::uint64_t kGiB = 2097152; // sectors
const QString kNoTime = QStringLiteral("   --   ");

// The workstation with `extra` more NVMe disks like its own on the next ports.
Model workstation(int extra)
{
    Model m = defaultScenario();
    const Disk nvme = m.disks.back();
    for (int i = 1; i <= extra; ++i) {
        Disk d = nvme;
        d.id = nvme.id + 0x100 * std::uint64_t(i);
        d.port = nvme.port + std::uint32_t(i);
        d.serial = "S7HENJ0X30840" + std::to_string(i);
        m.disks.push_back(d);
    }
    return m;
}

// An array over the first `sectors` of each of the console disks `disks`.
Array arrayOn(const Model &m, std::uint16_t route, const char *name, std::uint32_t type,
              std::uint32_t second, const std::vector<int> &disks, std::uint64_t sectors)
{
    Array a;
    a.id = 0x3C00000000000000ull + route;
    a.route = route;
    a.name = name;
    a.layout.type = type;
    a.layout.secondCount = second;
    for (int disk : disks) {
        const std::uint64_t id = m.disks.at(std::size_t(disk - 1)).id;
        a.layout.members.push_back(Member{id, 0, sectors, 0, sectors, 0});
    }
    a.layout.capacity = layoutCapacity(type, 1, second, sectors, sectors * disks.size());
    a.generation = 1;
    return a;
}

QTreeWidget *pane(QWidget *window, const char *name)
{
    return widget<QTreeWidget>(window, name);
}

QAction *menuAction(QWidget *window, const char *name)
{
    return widget<QAction>(window, name);
}

// The array's row under the computer in the array tree.
QTreeWidgetItem *treeRow(QWidget *window, int id)
{
    QTreeWidgetItem *root = pane(window, "arrayTree")->topLevelItem(0);
    for (int i = 0; root && i < root->childCount(); ++i) {
        if (root->child(i)->data(0, SK_Role::DeviceId).toInt() == id)
            return root->child(i);
    }
    return nullptr;
}

QString treeText(QWidget *window, int id)
{
    QTreeWidgetItem *row = treeRow(window, id);
    return row ? row->text(0) : QString();
}

QStringList childTexts(QTreeWidgetItem *row)
{
    QStringList texts;
    for (int i = 0; row && i < row->childCount(); ++i)
        texts << row->child(i)->text(0);
    return texts;
}

// The progress bar of the array's task row, or null while it has no task.
QProgressBar *taskBar(QWidget *window, int id)
{
    QTreeWidgetItem *row = treeRow(window, id);
    if (!row || row->childCount() == 0)
        return nullptr;
    return qobject_cast<QProgressBar *>(pane(window, "arrayTree")->itemWidget(row->child(0), 0));
}

QTreeWidgetItem *listRow(QWidget *window, int id)
{
    return rowWithId(pane(window, "arrayListTree"), id, SK_Role::DeviceId);
}

QTreeWidgetItem *diskRow(QWidget *window, const QString &port)
{
    return pane(window, "diskList")->findItems(port, Qt::MatchExactly).value(0);
}

// Texts of the event rows that arrived during this run (they carry a time).
QStringList liveEvents(QWidget *window)
{
    QStringList texts;
    QTreeWidget *events = pane(window, "eventList");
    for (int i = 0; i < events->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = events->topLevelItem(i);
        if (row->text(1) != kNoTime)
            texts << row->text(2) + QLatin1Char(' ') + row->text(4);
    }
    return texts;
}

// The array lists the refresh worker delivered to the window so far: each delivery
// clears the array list and fills it anew.
int deliveries(const SK_MainWindow &window)
{
    return window.property("testDeliveries").toInt();
}

// Counts the deliveries and stops the five-second refresh tick: the panes change only
// when the story refreshes or an action does. A refresh reads the configuration into
// the picture that a still running worker reads its list from, so a story refreshes
// only once the last worker has delivered.
void watchRefreshes(SK_MainWindow &window)
{
    window.findChild<QTimer *>(QStringLiteral("refreshTimer"))->stop();
    QObject::connect(pane(&window, "arrayListTree")->model(), &QAbstractItemModel::modelReset,
                     &window,
                     [&window] { window.setProperty("testDeliveries", deliveries(window) + 1); });
}

// Waits for a delivery after the `before`th that shows what the story expects.
bool delivered(const SK_MainWindow &window, int before, const std::function<bool()> &shown)
{
    return QTest::qWaitFor([&] { return deliveries(window) > before && shown(); }, 10000);
}

// Presses the array's row in the array tree, as a user picking it there would.
bool pickInTree(SK_MainWindow &window, int id)
{
    QTreeWidget *tree = pane(&window, "arrayTree");
    QTreeWidgetItem *row = treeRow(&window, id);
    if (!row)
        return false;
    tree->scrollToItem(row);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualItemRect(row).center());
    return window.currentArray() == quint32(id);
}

// Answers every modal window that comes up, in whatever event loop runs: a message box
// with Yes where it offers one, else OK; any other dialog goes to `drive` (and is
// rejected if still open at the next look) or is rejected. Notes each one's title and text.
// Each look schedules the next one first, so a box opened from within a look is
// answered too.
class ModalAnswerer
{
public:
    explicit ModalAnswerer(std::function<void(QDialog *)> drive = {}) : m_drive(std::move(drive))
    {
        scheduleLook();
    }
    QStringList titles, texts;

private:
    void scheduleLook()
    {
        QTimer::singleShot(5, &m_context, [this] { look(); });
    }
    void look()
    {
        scheduleLook();
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        titles << dialog->windowTitle();
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            texts << box->text();
            QAbstractButton *yes = box->button(QMessageBox::Yes);
            (yes ? yes : box->button(QMessageBox::Ok))->click();
            return;
        }
        // A dialog still open after its drive is closed at the next look.
        if (!m_drive || dialog == m_driven.data()) {
            dialog->reject();
            return;
        }
        m_driven = dialog;
        m_drive(dialog);
    }
    std::function<void(QDialog *)> m_drive;
    QPointer<QDialog> m_driven;
    QObject m_context;
};

} // namespace

class tst_Scenarios : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void raid5IsCreatedAndInitialised();
    void failedMemberIsRebuiltOnTheSpare();
    void mirrorIsTransformedIntoRaid5();
    void cachedArrayIsBuiltAndDeleted();
    void removalWaitsForTheVolume();
    void pulledDisksGiveOneNotice();

private:
    void startHost(Model model);
    // Moves the clock in steps until the array's task has ended in the drivers.
    bool runTaskToEnd(int route);
    // Refreshes as the View menu does and waits for the worker's array list to show.
    static bool refreshUntil(SK_MainWindow &window, const std::function<bool()> &shown);
    static bool opened(SK_MainWindow &window, int arrays);
    void expectFiles(const QList<int> &codes, const QStringList &logTexts);

    QTemporaryDir m_dir;
    QString m_folder;
    std::unique_ptr<EmulatedHostScope> m_host;
};

void tst_Scenarios::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    QVERIFY(m_dir.isValid());
    keepConsoleFilesIn(m_dir.path());
    m_folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
               QStringLiteral("/StrataKeep/");
    QVERIFY2(m_folder.startsWith(m_dir.path()), qPrintable(m_folder));
}

void tst_Scenarios::init()
{
    QSettings().clear();
    QSettings().setValue(SK_SettingsKey::ApplicationTheme, QStringLiteral("light"));
    QFile::remove(m_folder + QStringLiteral("EventsLog.xml"));
    QFile::remove(m_folder + QStringLiteral("StrataKeep.log"));
}

void tst_Scenarios::cleanup()
{
    m_host.reset();
}

void tst_Scenarios::startHost(Model model)
{
    m_host = std::make_unique<EmulatedHostScope>(std::move(model));
}

bool tst_Scenarios::runTaskToEnd(int route)
{
    // Fifty hours of the emulated clock at most.
    for (int step = 0; step < 200; ++step) {
        const Model m = m_host->host->model();
        const Array *a = m.findArrayByRoute(std::uint32_t(route));
        if (!a)
            return false;
        if (a->task.type == code::TaskNone || a->task.state != code::TaskStarted)
            return a->task.state != code::TaskFailed;
        m_host->clock->advance(15 * 60 * 1000);
    }
    return false;
}

bool tst_Scenarios::refreshUntil(SK_MainWindow &window, const std::function<bool()> &shown)
{
    const int before = deliveries(window);
    window.menu_refresh();
    return delivered(window, before, shown);
}

// The window's first refresh has delivered its `arrays` arrays.
bool tst_Scenarios::opened(SK_MainWindow &window, int arrays)
{
    watchRefreshes(window);
    return delivered(window, 0,
                     [&] { return pane(&window, "arrayListTree")->topLevelItemCount() == arrays; });
}

void tst_Scenarios::expectFiles(const QList<int> &codes, const QStringList &logTexts)
{
    QFile xml(m_folder + QStringLiteral("EventsLog.xml"));
    QVERIFY2(xml.open(QIODevice::ReadOnly), "no EventsLog.xml");
    const QByteArray events = xml.readAll();
    QVERIFY(events.trimmed().endsWith("</Logs>"));
    for (int code : codes)
        QVERIFY2(events.contains("<Code>" + QByteArray::number(code) + "</Code>"),
                 qPrintable(QStringLiteral("event %1 is not in EventsLog.xml").arg(code)));
    QFile log(m_folder + QStringLiteral("StrataKeep.log"));
    QVERIFY2(log.open(QIODevice::ReadOnly), "no StrataKeep.log");
    const QString lines = QString::fromUtf8(log.readAll());
    for (const QString &text : logTexts)
        QVERIFY2(lines.contains(text), qPrintable(text + " is not in StrataKeep.log"));
}

// --- 1. A RAID 5 through the create dialog, its initialisation watched to the end ---

void tst_Scenarios::raid5IsCreatedAndInitialised()
{
    startHost(workstation(2));
    SK_MainWindow window;
    QVERIFY(opened(window, 2));

    ModalAnswerer answerer([](QDialog *dialog) {
        if (!qobject_cast<SK_CreateDialog *>(dialog))
            return;
        widget<QComboBox>(dialog, "arrayTypeSel")->setCurrentIndex(kRaid5Row);
        tickRows(widget<QTreeWidget>(dialog, "diskList"), {kNvme, kNvme + 1, kNvme + 2});
        widget<QLineEdit>(dialog, "arrayNameInput")->setText(QStringLiteral("Scratch"));
        click(dialog, "createButton");
    });
    int before = deliveries(window);
    menuAction(&window, "createAct")->trigger();
    QCOMPARE(answerer.titles, QStringList{QStringLiteral("Create")});
    QVERIFY(delivered(window, before, [&] { return treeRow(&window, kNew) != nullptr; }));
    const Model created = m_host->host->model();
    const Array *made = created.findArrayByRoute(kNew);
    QVERIFY2(made, "the drivers hold no new array");
    QCOMPARE(made->layout.type, code::TypeParity);
    QCOMPARE(made->layout.members.size(), std::size_t(3));

    // Part of the way: the tree shows the task row with its green bar, the list "READY".
    m_host->clock->advance(10 * 60 * 1000);
    QVERIFY(refreshUntil(
        window, [&] { return taskBar(&window, kNew) && taskBar(&window, kNew)->value() > 0; }));
    QProgressBar *bar = taskBar(&window, kNew);
    QVERIFY2(bar->value() < 100, qPrintable(QString::number(bar->value())));
    QCOMPARE(bar->format(), QStringLiteral("CREATE STARTED"));
    QVERIFY(bar->styleSheet().contains(QStringLiteral("#3fc433")));
    QVERIFY2(treeText(&window, kNew).startsWith(QStringLiteral("Array 3  ")) &&
                 treeText(&window, kNew).contains(QStringLiteral("% Scratch")),
             qPrintable(treeText(&window, kNew)));
    QCOMPARE(listRow(&window, kNew)->text(7), QStringLiteral("READY"));
    QCOMPARE(listRow(&window, kNew)->text(8), QStringLiteral("CREATE"));
    QVERIFY(liveEvents(&window).contains(
        QStringLiteral("1138 - A create task has been initiated for Array 3.")));

    QVERIFY(pickArray(window, kNew));
    expectActions(&window, {"pauseAct", "removeTaskAct", "deleteAct", "identifyAct"},
                  {"transformAct", "nameAct", "resumeAct"});

    QVERIFY(runTaskToEnd(kNew));
    QVERIFY(refreshUntil(window, [&] { return !taskBar(&window, kNew); }));
    QCOMPARE(treeText(&window, kNew).simplified(), QStringLiteral("Array 3 Scratch"));
    QCOMPARE(childTexts(treeRow(&window, kNew)), QStringList{QStringLiteral("RAID5")});
    QCOMPARE(treeRow(&window, kNew)->child(0)->childCount(), 3);
    QCOMPARE(listRow(&window, kNew)->text(7), QStringLiteral("NORMAL"));
    QVERIFY(liveEvents(&window).contains(
        QStringLiteral("1027 - A create task has completed for Array 3.")));
    expectActions(&window, {"transformAct", "nameAct", "deleteAct", "consistencyStartAct"},
                  {"pauseAct", "resumeAct", "removeTaskAct"});
    expectFiles({1138, 1027}, {QStringLiteral("A create task has completed for Array 3.")});
}

// --- 2. A member fails: critical in orange, the global spare rebuilds the array ---

void tst_Scenarios::failedMemberIsRebuiltOnTheSpare()
{
    startHost(defaultScenario());
    SK_MainWindow window;
    QVERIFY(opened(window, 2));
    QCOMPARE(diskRow(&window, QStringLiteral("0 5"))->text(7), QStringLiteral("Yes"));

    QVERIFY(m_host->host->failDisk(kHdd3));
    QVERIFY(refreshUntil(
        window, [&] { return treeText(&window, kData).contains(QStringLiteral("CRITICAL")); }));
    QTreeWidgetItem *row = treeRow(&window, kData);
    QCOMPARE(row->foreground(0).color(), QColor(255, 103, 0));
    QCOMPARE(listRow(&window, kData)->text(7), QStringLiteral("CRITICAL"));
    QCOMPARE(listRow(&window, kData)->foreground(7).color(), QColor(255, 103, 0));
    const QStringList events = liveEvents(&window);
    QVERIFY2(events.contains(QStringLiteral("1013 - Drive failed on controller 0 channel 4.")),
             qPrintable(events.join(QLatin1Char('\n'))));
    QVERIFY(events.contains(QStringLiteral("1015 - Array 2 has gone critical.")));

    // The spare took the failed member's place at once and rebuilds it.
    QVERIFY(taskBar(&window, kData));
    QCOMPARE(taskBar(&window, kData)->format(), QStringLiteral("RESTORE STARTED"));
    QVERIFY(
        events.contains(QStringLiteral("1139 - A rebuild task has been initiated for Array 2.")));
    QVERIFY(pickArray(window, kData));
    expectActions(&window, {"pauseAct", "deleteAct"}, {"transformAct", "nameAct"});

    m_host->clock->advance(60 * 60 * 1000);
    QVERIFY(refreshUntil(
        window, [&] { return taskBar(&window, kData) && taskBar(&window, kData)->value() > 0; }));
    // The disk list is drawn from the picture before a refresh reads it anew: it shows
    // the spare's new role one refresh after the array tree.
    QCOMPARE(diskRow(&window, QStringLiteral("0 5"))->text(7), QStringLiteral("No"));
    QVERIFY(runTaskToEnd(kData));
    QVERIFY(refreshUntil(window, [&] { return !taskBar(&window, kData); }));
    QCOMPARE(treeText(&window, kData).simplified(), QStringLiteral("Array 2 Data"));
    QCOMPARE(treeRow(&window, kData)->foreground(0).color(), QColor(Qt::black));
    QCOMPARE(listRow(&window, kData)->text(7), QStringLiteral("NORMAL"));
    const QStringList members = childTexts(treeRow(&window, kData)->child(0));
    QVERIFY2(members.contains(QStringLiteral("Disk 0 5 (WDC WD40EFZX-68AWUN0) ")),
             qPrintable(members.join(QLatin1Char('|'))));
    QVERIFY(liveEvents(&window).contains(
        QStringLiteral("1018 - A rebuild task has completed on Array 2.")));
    expectActions(&window, {"transformAct", "nameAct", "consistencyStartAct"}, {"pauseAct"});
    expectFiles({1013, 1015, 1139, 1018}, {QStringLiteral("Array 2 has gone critical.")});
}

// --- 3. A mirror becomes a RAID 5: both layouts while the transform runs ---

void tst_Scenarios::mirrorIsTransformedIntoRaid5()
{
    Model model = workstation(2);
    model.arrays.push_back(
        arrayOn(model, kNew, "Mirror", code::TypeMirrorStripe, 2, {kNvme, kNvme + 1}, 50 * kGiB));
    startHost(std::move(model));
    SK_MainWindow window;
    QVERIFY(opened(window, 3));

    // The user picks the mirror in the array tree and asks for its transform: the
    // mirror's own disks and type, then RAID 5 with the third NVMe disk, at its most.
    QVERIFY(pickInTree(window, kNew));
    expectActions(&window, {"transformAct"}, {"pauseAct"});
    QString verdict;
    {
        ModalAnswerer answerer([&verdict](QDialog *dialog) {
            if (!qobject_cast<SK_TransformDialog *>(dialog))
                return;
            click(dialog, "sameButton");
            widget<QComboBox>(dialog, "arrayTypeSel")->setCurrentIndex(kRaid5Row);
            tickRows(widget<QTreeWidget>(dialog, "diskList"), {kNvme + 2});
            click(dialog, "setCurrentCapMaxButton");
            verdict = widget<QLabel>(dialog, "transformWarningLabel")->text();
            click(dialog, "commitButton");
        });
        const int before = deliveries(window);
        menuAction(&window, "transformAct")->trigger();
        QCOMPARE(answerer.titles, QStringList{QStringLiteral("Transform")});
        QVERIFY2(delivered(window, before, [&] { return taskBar(&window, kNew) != nullptr; }),
                 qPrintable(verdict));
    }
    const Model started = m_host->host->model();
    const Array *mirror = started.findArrayByRoute(kNew);
    QVERIFY(mirror);
    QCOMPARE(mirror->task.type, code::TaskTransform);
    QVERIFY(mirror->target && mirror->target->type == code::TypeParity);
    QCOMPARE(mirror->target->members.size(), std::size_t(3));

    m_host->clock->advance(60 * 1000);
    QVERIFY(refreshUntil(
        window, [&] { return taskBar(&window, kNew) && taskBar(&window, kNew)->value() > 0; }));
    QProgressBar *bar = taskBar(&window, kNew);
    QCOMPARE(bar->format(), QStringLiteral("TRANSFORM STARTED"));
    QVERIFY(bar->styleSheet().contains(QStringLiteral("#4174db")));
    const QStringList layouts = childTexts(treeRow(&window, kNew)).mid(1);
    QCOMPARE(layouts, (QStringList{QStringLiteral("RAID1 (Source)"),
                                   QStringLiteral("RAID5 (Destination)")}));
    QCOMPARE(treeRow(&window, kNew)->child(1)->childCount(), 2);
    QCOMPARE(treeRow(&window, kNew)->child(2)->childCount(), 3);
    QCOMPARE(listRow(&window, kNew)->text(8), QStringLiteral("TRANSFORM"));
    QVERIFY(pickArray(window, kNew));
    // A running transform can be paused, never removed.
    expectActions(&window, {"pauseAct"}, {"removeTaskAct", "transformAct", "nameAct"});

    QVERIFY(runTaskToEnd(kNew));
    QVERIFY(refreshUntil(window, [&] { return !taskBar(&window, kNew); }));
    QCOMPARE(childTexts(treeRow(&window, kNew)), QStringList{QStringLiteral("RAID5")});
    QCOMPARE(treeRow(&window, kNew)->child(0)->childCount(), 3);
    QCOMPARE(listRow(&window, kNew)->text(5), QStringLiteral("RAID5"));
    QVERIFY(liveEvents(&window).contains(
        QStringLiteral("1021 - A transform task has completed on Array 3.")));
    expectActions(&window, {"transformAct", "nameAct"}, {"pauseAct"});
    expectFiles({1140, 1021}, {QStringLiteral("A transform task has completed on Array 3.")});
}

// --- 4. A cached array over two arrays, built and deleted ---

void tst_Scenarios::cachedArrayIsBuiltAndDeleted()
{
    constexpr int kFast = 3, kBulk = 4, kTier = 5;
    Model model = defaultScenario();
    model.disks.at(kSpareDisk - 1).globalSpare = false;
    model.arrays.push_back(arrayOn(model, kFast, "Fast", code::TypeVolume, 1, {kNvme}, 100 * kGiB));
    model.arrays.push_back(
        arrayOn(model, kBulk, "Bulk", code::TypeVolume, 1, {kSpareDisk}, 2048 * kGiB));
    startHost(std::move(model));
    SK_MainWindow window;
    QVERIFY(opened(window, 4));
    QVERIFY2(menuAction(&window, "cacheArraysAct"), "drivers of the 9.0.0 line");

    // The user pairs the fast array, hot, with the bulk one, cold, in the caching dialog.
    {
        ModalAnswerer answerer([](QDialog *dialog) {
            if (!qobject_cast<SK_TieringDialog *>(dialog))
                return;
            // Each tick refills the other list: its rows are looked up after the tick.
            tickRows(widget<QTreeWidget>(dialog, "coldArrayList"), {kBulk});
            tickRows(widget<QTreeWidget>(dialog, "hotArrayList"), {kFast});
            widget<QLineEdit>(dialog, "arrayNameInput")->setText(QStringLiteral("Paired"));
            click(dialog, "commitButton");
        });
        const int before = deliveries(window);
        menuAction(&window, "cacheArraysAct")->trigger();
        QCOMPARE(answerer.titles, QStringList{QStringLiteral("Caching")});
        QVERIFY(delivered(window, before, [&] { return treeRow(&window, kTier) != nullptr; }));
    }
    QCOMPARE(treeText(&window, kTier).simplified(), QStringLiteral("Array 5 Paired"));
    QTreeWidgetItem *type = treeRow(&window, kTier)->child(0);
    QCOMPARE(type->text(0), QStringLiteral("RAIDTIER"));
    QStringList parts = childTexts(type);
    parts.sort();
    QCOMPARE(parts,
             (QStringList{QStringLiteral("Array 3 (Fast)"), QStringLiteral("Array 4 (Bulk)")}));
    QCOMPARE(listRow(&window, kTier)->text(5), QStringLiteral("RAIDTIER"));
    QCOMPARE(listRow(&window, kTier)->text(14), QStringLiteral("NA"));

    QVERIFY(pickArray(window, kTier));
    expectActions(&window, {"deleteAct", "nameAct", "hideAct"},
                  {"identifyAct", "prepareRemoveAct", "transformAct"});
    ModalAnswerer answerer;
    const int before = deliveries(window);
    menuAction(&window, "deleteAct")->trigger();
    QCOMPARE(answerer.texts, QStringList{QStringLiteral("Do you want to delete Array 5: Paired?")});
    const Model after = m_host->host->model();
    QVERIFY(!after.findArrayByRoute(kTier));
    QVERIFY(after.findArrayByRoute(kFast) && after.findArrayByRoute(kBulk));
    QVERIFY(delivered(window, before, [&] { return !treeRow(&window, kTier); }));
    QCOMPARE(pane(&window, "arrayListTree")->topLevelItemCount(), 4);
    QCOMPARE(window.currentArray(), 0u);
    expectActions(&window, {"createAct"}, {"deleteAct", "transformAct"});
    QVERIFY(liveEvents(&window).contains(QStringLiteral("1014 - Array 5 has been deleted.")));
    expectFiles({1014}, {QStringLiteral("Array 5 has been deleted.")});
}

// --- 5. Prepare to remove: refused while a volume is in use, done once it is free ---

void tst_Scenarios::removalWaitsForTheVolume()
{
    Model model = defaultScenario();
    for (Volume &v : model.volumes)
        v.inUse = v.letter == 'D';
    startHost(std::move(model));
    SK_MainWindow window;
    QVERIFY(opened(window, 2));
    QVERIFY(pickArray(window, kData));
    expectActions(&window, {"prepareRemoveAct"}, {});

    {
        ModalAnswerer answerer;
        menuAction(&window, "prepareRemoveAct")->trigger();
        // The question, then the worker thread's verdict.
        QTRY_COMPARE(answerer.titles.size(), 2);
        QCOMPARE(answerer.titles.at(1), QStringLiteral("Problem Ejecting VOR Array 2 SCSI Device"));
        QVERIFY(
            answerer.texts.at(1).startsWith(QStringLiteral("This device is currently in use.")));
    }
    const Model refused = m_host->host->model();
    const Array *data = refused.findArrayByRoute(kData);
    QVERIFY(data && !data->hidden() && data->state == code::ArrayNormal);
    QCOMPARE(window.currentArray(), quint32(kData));

    m_host->host->modify([](Model &m) {
        for (Volume &v : m.volumes)
            v.inUse = false;
        return false;
    });
    ModalAnswerer answerer;
    const int before = deliveries(window);
    menuAction(&window, "prepareRemoveAct")->trigger();
    QTRY_COMPARE(answerer.titles.size(), 2);
    QCOMPARE(answerer.titles.at(1), QStringLiteral("Array Removal"));
    QVERIFY2(answerer.texts.at(1).startsWith(QStringLiteral("Array 2 has been removed")),
             qPrintable(answerer.texts.at(1)));
    const Model removed = m_host->host->model();
    data = removed.findArrayByRoute(kData);
    QVERIFY(data && data->hidden() && data->state == code::ArrayOffline);
    QCOMPARE(window.currentArray(), 0u);
    QVERIFY(delivered(window, before, [&] {
        return treeText(&window, kData).contains(QStringLiteral("OFFLINE"));
    }));
    QCOMPARE(listRow(&window, kData)->text(1), QStringLiteral("Hidden"));
    QCOMPARE(treeRow(&window, kData)->foreground(0).color(), QColor(Qt::red));
    expectActions(&window, {"createAct"}, {"prepareRemoveAct", "deleteAct"});
}

// --- 6. Pulled disks: one notice for two pulls in a row ---

void tst_Scenarios::pulledDisksGiveOneNotice()
{
    startHost(workstation(1));
    SK_MainWindow window;
    QVERIFY(opened(window, 2));
    const Model start = m_host->host->model();
    const auto any = [] { return true; };

    ModalAnswerer answerer;
    QVERIFY(m_host->host->pullDisk(start.disks.at(kNvme - 1).id));
    QVERIFY(refreshUntil(window, any));
    QCOMPARE(answerer.titles, QStringList{QStringLiteral("Event Notification")});
    // The second pull comes while the notice is still disarmed.
    QVERIFY(m_host->host->pullDisk(start.disks.at(kNvme).id));
    QVERIFY(refreshUntil(window, any));
    QCOMPARE(answerer.titles.size(), 1);

    const QStringList events = liveEvents(&window);
    QCOMPARE(events.count(QStringLiteral("1039 - Drive Disconnected.")), 2);
    QVERIFY(
        events.contains(QStringLiteral("1043 - Device disconnected on controller 0 channel 6.")));
    QVERIFY(
        events.contains(QStringLiteral("1043 - Device disconnected on controller 0 channel 7.")));
    // A pulled disk stays listed until a rescan, no longer online.
    QTreeWidgetItem *pulled = diskRow(&window, QStringLiteral("0 6"));
    QVERIFY(pulled);
    QVERIFY2(pulled->text(1) != QLatin1String("Online"), qPrintable(pulled->text(1)));
    QCOMPARE(pane(&window, "arrayListTree")->topLevelItemCount(), 2);
    expectFiles({1039, 1043}, {QStringLiteral("Device disconnected on controller 0 channel 7.")});
}

QTEST_MAIN(tst_Scenarios)
#include "tst_scenarios.moc"
