// What a user has opened, picked, sorted and scrolled to in the main window survives
// the rebuild of the panes at every refresh, and an array vanishing takes only its
// own rows with it.

#include "support/emulated_host.h"
#include "support/window_helpers.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

namespace {

using namespace sk_emu;

constexpr int kSystem = 1, kData = 2;

void pickInTree(SK_MainWindow &window, int id)
{
    QTreeWidgetItem *row = treeRow(&window, id);
    QVERIFY(row);
    pane(&window, "arrayTree")->setCurrentItem(row);
    window.arraySelectedChanged(row, 0);
    QCOMPARE(window.currentArray(), quint32(id));
}

// The first row under the array row that isn't its task bar: its type row.
QTreeWidgetItem *typeRow(QWidget *window, int id)
{
    QTreeWidgetItem *array = treeRow(window, id);
    for (int i = 0; array && i < array->childCount(); ++i) {
        if (!array->child(i)->text(0).isEmpty())
            return array->child(i);
    }
    return nullptr;
}

void clickHeader(QTreeWidget *list, int column)
{
    QHeaderView *header = list->header();
    const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                    header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

void setTask(EmulatedHostScope &host, int route, const Task &task)
{
    host.host->modify([route, task](Model &m) {
        m.findArrayByRoute(std::uint32_t(route))->task = task;
        return true;
    });
}

void removeArray(EmulatedHostScope &host, int route)
{
    host.host->modify([route](Model &m) {
        const std::uint64_t id = m.findArrayByRoute(std::uint32_t(route))->id;
        m.arrays.erase(std::remove_if(m.arrays.begin(), m.arrays.end(),
                                      [id](const Array &a) { return a.id == id; }),
                       m.arrays.end());
        for (Volume &v : m.volumes)
            v.arrays.erase(std::remove(v.arrays.begin(), v.arrays.end(), id), v.arrays.end());
        return true;
    });
}

const Task kCheck{code::TaskCheck, code::TaskStarted, 100};

} // namespace

class tst_Preservation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void pickedAndOpenedRowsSurviveARefresh();
    void aTaskRowTheUserClosedStaysClosedWhileItsTaskRuns();
    void rowsUnderAClosedArrayAreNotRemembered();
    void theListsKeepTheirDiskSortAndColumns();
    void aVanishedArrayTakesOnlyItsOwnRows();
    void aVanishedSelectedArrayClearsTheSelection();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<EmulatedHostScope> m_host;
};

void tst_Preservation::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    QVERIFY(m_dir.isValid());
    keepConsoleFilesIn(m_dir.path());
}

void tst_Preservation::init()
{
    QSettings().clear();
    m_host = std::make_unique<EmulatedHostScope>();
}

void tst_Preservation::cleanup()
{
    m_host.reset();
}

void tst_Preservation::pickedAndOpenedRowsSurviveARefresh()
{
    SK_MainWindow window;
    window.resize(900, 420); // short enough for the tree to scroll
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(arraysShown(window, 2));
    pickInTree(window, kData);
    treeRow(&window, kData)->setExpanded(true);
    typeRow(&window, kData)->setExpanded(true);
    treeRow(&window, kSystem)->setExpanded(true);
    typeRow(&window, kSystem)->setExpanded(true);
    QScrollBar *scroll = pane(&window, "arrayTree")->verticalScrollBar();
    QVERIFY2(scroll->maximum() > 0, "the tree needs to scroll for this test");
    scroll->setValue(scroll->maximum());
    const int scrolled = scroll->value();

    QVERIFY(refreshNow(window));

    QVERIFY2(treeRow(&window, kData)->isSelected(), "the picked array stays picked");
    QCOMPARE(window.currentArray(), quint32(kData));
    for (int id : {kData, kSystem}) {
        QVERIFY(treeRow(&window, id)->isExpanded());
        QVERIFY(typeRow(&window, id)->isExpanded());
    }
    QCOMPARE(scroll->value(), scrolled);
}

void tst_Preservation::aTaskRowTheUserClosedStaysClosedWhileItsTaskRuns()
{
    SK_MainWindow window;
    QVERIFY(arraysShown(window, 2));
    setTask(*m_host, kData, kCheck);
    QVERIFY(refreshNow(window));
    QVERIFY2(treeRow(&window, kData)->isExpanded(), "a row with a task opens by itself");

    treeRow(&window, kData)->setExpanded(false);
    QVERIFY(refreshNow(window));
    QVERIFY2(!treeRow(&window, kData)->isExpanded(), "closed by the user, it stays closed");

    setTask(*m_host, kData, Task{});
    QVERIFY(refreshNow(window));
    setTask(*m_host, kData, kCheck);
    QVERIFY(refreshNow(window));
    QVERIFY2(treeRow(&window, kData)->isExpanded(), "the next task opens the row by itself again");
}

// Only rows whose parent is open are remembered: a closed array opened later shows its
// rows closed.
void tst_Preservation::rowsUnderAClosedArrayAreNotRemembered()
{
    SK_MainWindow window;
    QVERIFY(arraysShown(window, 2));
    treeRow(&window, kData)->setExpanded(true);
    typeRow(&window, kData)->setExpanded(true);
    treeRow(&window, kData)->setExpanded(false);

    QVERIFY(refreshNow(window));

    QVERIFY(!treeRow(&window, kData)->isExpanded());
    QVERIFY(!typeRow(&window, kData)->isExpanded());
}

void tst_Preservation::theListsKeepTheirDiskSortAndColumns()
{
    SK_MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(arraysShown(window, 2));
    QTreeWidget *disks = pane(&window, "diskList");
    QTreeWidget *arrays = pane(&window, "arrayListTree");
    disks->setCurrentItem(disks->findItems(QStringLiteral("0 3"), Qt::MatchExactly).value(0));
    constexpr int kNameColumn = 4;
    clickHeader(arrays, kNameColumn);
    clickHeader(arrays, kNameColumn);
    const Qt::SortOrder order = arrays->header()->sortIndicatorOrder();
    arrays->header()->resizeSection(3, 222);
    disks->header()->resizeSection(1, 111);

    QVERIFY(refreshNow(window));

    QCOMPARE(disks->selectedItems().size(), 1);
    QCOMPARE(disks->selectedItems().first()->text(0), QStringLiteral("0 3"));
    QCOMPARE(arrays->header()->sortIndicatorSection(), kNameColumn);
    QCOMPARE(arrays->header()->sortIndicatorOrder(), order);
    QCOMPARE(arrays->topLevelItem(0)->text(kNameColumn),
             order == Qt::DescendingOrder ? QStringLiteral("System") : QStringLiteral("Data"));
    QCOMPARE(arrays->header()->sectionSize(3), 222);
    QCOMPARE(disks->header()->sectionSize(1), 111);
}

void tst_Preservation::aVanishedArrayTakesOnlyItsOwnRows()
{
    SK_MainWindow window;
    QVERIFY(arraysShown(window, 2));
    pickInTree(window, kData);
    treeRow(&window, kData)->setExpanded(true);
    typeRow(&window, kData)->setExpanded(true);
    removeArray(*m_host, kSystem);

    QVERIFY(refreshNow(window));

    QVERIFY(!treeRow(&window, kSystem));
    QVERIFY(treeRow(&window, kData)->isSelected());
    QVERIFY(treeRow(&window, kData)->isExpanded());
    QVERIFY(typeRow(&window, kData)->isExpanded());
    QCOMPARE(window.currentArray(), quint32(kData));
}

void tst_Preservation::aVanishedSelectedArrayClearsTheSelection()
{
    SK_MainWindow window;
    QVERIFY(arraysShown(window, 2));
    pickInTree(window, kData);
    removeArray(*m_host, kData);

    QVERIFY(refreshNow(window));

    QVERIFY(!treeRow(&window, kData));
    QCOMPARE(window.currentArray(), 0u);
    QVERIFY(!widget<QAction>(&window, "deleteAct")->isEnabled());
}

QTEST_MAIN(tst_Preservation)
#include "tst_preservation.moc"
