// The real main window against a fresh emulated host: panes, enablement, the event
// view with its files, the notice, the status bar and the driver and rights checks.

#include "app/app.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QAction>
#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

constexpr int kSystem = 1, kData = 2;

QAction *action(QWidget *window, const char *name)
{
    return widget<QAction>(window, name);
}

QTreeWidget *pane(QWidget *window, const char *name)
{
    return widget<QTreeWidget>(window, name);
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void panesShowTheConfiguration();
    void enablementFollowsTheSelectedArray_data();
    void enablementFollowsTheSelectedArray();
    void newEventsGetATimeAndReachTheFiles();
    void aWrappedDriverLogShowsEachEntryOnce();
    void notifierKeepsTheConsoleQuiet();
    void statusBarShowsTheDriversFigures();
    void missingDriversAreReported();
    void windowStateSurvivesARestart();
    void writeBackWarningRefusedSendsNothing();
    void hideAndDeleteReachTheDrivers();
    void createStopsAtTwelveArrays();
    void themeChoiceIsStoredAndApplied();

private:
    void waitForArrays(SK_MainWindow &window, int count);
    QString eventsLogPath() const;

    QTemporaryDir m_dir;
    std::unique_ptr<EmulatedHostScope> m_host;
};

void tst_MainWindow::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    QVERIFY(m_dir.isValid());
    keepConsoleFilesIn(m_dir.path());
}

void tst_MainWindow::init()
{
    QSettings().clear();
    QFile::remove(eventsLogPath());
    m_host = std::make_unique<EmulatedHostScope>();
}

void tst_MainWindow::cleanup()
{
    m_host.reset();
}

QString tst_MainWindow::eventsLogPath() const
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation) +
           QStringLiteral("/StrataKeep/EventsLog.xml");
}

void tst_MainWindow::waitForArrays(SK_MainWindow &window, int count)
{
    QTRY_COMPARE(pane(&window, "arrayListTree")->topLevelItemCount(), count);
}

void tst_MainWindow::panesShowTheConfiguration()
{
    SK_MainWindow window;
    waitForArrays(window, 2);
    QTreeWidget *disks = pane(&window, "diskList");
    QCOMPARE(disks->topLevelItemCount(), 7);
    QTreeWidget *arrays = pane(&window, "arrayListTree");
    QTreeWidgetItem *data = arrays->findItems(QStringLiteral("Array 2"), Qt::MatchExactly).value(0);
    QVERIFY(data);
    QCOMPARE(data->text(3), QStringLiteral("D:"));
    QCOMPARE(data->text(5), QStringLiteral("RAID5"));
    QCOMPARE(data->text(2), QStringLiteral("No"));

    QTreeWidget *tree = pane(&window, "arrayTree");
    QTreeWidgetItem *root = tree->topLevelItem(0);
    QVERIFY(root);
    QCOMPARE(root->text(0), QStringLiteral("WS-ENG-0417"));
    QCOMPARE(root->childCount(), 2);
    QTreeWidgetItem *dataRow = root->child(1);
    QVERIFY(dataRow && dataRow->text(0).startsWith(QStringLiteral("Array 2")));
    QTreeWidgetItem *typeRow = dataRow->child(0);
    QVERIFY(typeRow);
    QCOMPARE(typeRow->text(0), QStringLiteral("RAID5"));
    QCOMPARE(typeRow->childCount(), 3); // three member disks
}

void tst_MainWindow::enablementFollowsTheSelectedArray_data()
{
    QTest::addColumn<int>("array");
    QTest::addColumn<QString>("state"); // "user": without rights
    QTest::addColumn<QStringList>("enabled");
    QTest::addColumn<QStringList>("disabled");

    QTest::newRow("a quiet data array")
        << kData << ""
        << QStringList{"transformAct",     "nameAct",   "hideAct",        "identifyAct",
                       "prepareRemoveAct", "deleteAct", "secureEraseAct", "consistencyStartAct"}
        << QStringList{"resumeAct", "pauseAct", "removeTaskAct", "consistencyStopAct"};
    QTest::newRow("without rights the destructive entries stay off")
        << kData << "user" << QStringList{"transformAct", "nameAct"}
        << QStringList{"deleteAct", "secureEraseAct", "prepareRemoveAct", "hideAct",
                       "deleteMultipleAct"};
}

void tst_MainWindow::enablementFollowsTheSelectedArray()
{
    QFETCH(int, array);
    QFETCH(QString, state);
    QFETCH(QStringList, enabled);
    QFETCH(QStringList, disabled);
    QString rights;
    if (state == QLatin1String("user")) {
        m_host->host->modify([](sk_emu::Model &m) {
            m.host.elevated = false;
            return false;
        });
        answerNextBox(QMessageBox::Ok, &rights);
    }
    SK_MainWindow window;
    QCOMPARE(rights.contains(QStringLiteral("Please run application as Administrator.")),
             state == QLatin1String("user"));
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, array));
    expectActions(&window, enabled, disabled);
}

void tst_MainWindow::newEventsGetATimeAndReachTheFiles()
{
    SK_MainWindow window;
    QTreeWidget *events = pane(&window, "eventList");
    const int before = events->topLevelItemCount();
    QVERIFY(before > 0);
    QCOMPARE(events->topLevelItem(0)->text(1), QStringLiteral("   --   "));

    m_host->host->injectEvent(1012, {});
    window.menu_refresh();
    QCOMPARE(events->topLevelItemCount(), before + 1);
    QTreeWidgetItem *newest = nullptr;
    for (int i = 0; i < events->topLevelItemCount(); ++i) {
        if (events->topLevelItem(i)->text(2) == QLatin1String("1012") &&
            events->topLevelItem(i)->text(1) != QLatin1String("   --   "))
            newest = events->topLevelItem(i);
    }
    QVERIFY2(newest, "the new event has no time");

    // A second run finds the time the first one gave the event in EventsLog.xml.
    const QString stamp = newest->text(1);
    SK_MainWindow again;
    bool found = false;
    QTreeWidget *later = pane(&again, "eventList");
    for (int i = 0; i < later->topLevelItemCount(); ++i)
        found |= later->topLevelItem(i)->text(1) == stamp;
    QVERIFY2(found, "the time of the event was not read back from EventsLog.xml");
}

// A driver log that has dropped its oldest entries is read once from its oldest: every
// entry shows once in the pane, and every new one reaches the application log and
// EventsLog.xml once.
void tst_MainWindow::aWrappedDriverLogShowsEachEntryOnce()
{
    m_host->host->modify([](sk_emu::Model &m) {
        m.eventCapacity = 8;
        for (int i = 0; i < 20; ++i)
            m.logEvent(1012);
        return true;
    });
    SK_MainWindow window;
    QTreeWidget *events = pane(&window, "eventList");
    const auto shownNumbers = [events] {
        QList<int> numbers;
        for (int i = 0; i < events->topLevelItemCount(); ++i)
            numbers << events->topLevelItem(i)->data(0, Qt::DisplayRole).toInt();
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    };
    QList<int> held;
    for (const sk_emu::Event &e : m_host->host->model().events)
        held << int(e.number);
    QCOMPARE(shownNumbers(), held);

    for (int i = 0; i < 3; ++i)
        m_host->host->injectEvent(1014, {7});
    window.menu_refresh();
    const QList<int> added{held.back() + 1, held.back() + 2, held.back() + 3};
    QCOMPARE(shownNumbers(), held + added);

    QFile xml(eventsLogPath());
    QVERIFY(xml.open(QIODevice::ReadOnly));
    QCOMPARE(xml.readAll().count("<Code>1014</Code>"), 3);
    QFile log(QFileInfo(eventsLogPath()).dir().filePath(QStringLiteral("StrataKeep.log")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QCOMPARE(log.readAll().count("Array 7 has been deleted"), 3);
}

void tst_MainWindow::notifierKeepsTheConsoleQuiet()
{
    m_host->host->modify([](sk_emu::Model &m) {
        m.host.notifierRunning = true;
        return false;
    });
    SK_MainWindow window;
    m_host->host->injectEvent(1042, {0, 6});
    window.pollEvents(); // a notice here would block the test until its time limit
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MainWindow::statusBarShowsTheDriversFigures()
{
    SK_MainWindow window;
    m_host->clock->advance(3000);
    window.statusBarRefresh();
    QLabel *hostRate = window.findChild<QLabel *>(QStringLiteral("statusLabel1"));
    QLabel *diskBytes = window.findChild<QLabel *>(QStringLiteral("statusLabel6"));
    QVERIFY(hostRate->text().startsWith(QStringLiteral("Host: ")));
    QVERIFY(hostRate->text().endsWith(QStringLiteral(" MB/S")));
    QVERIFY(diskBytes->text().startsWith(QStringLiteral("Disk: ")));
    QVERIFY(!hostRate->toolTip().isEmpty());
}

void tst_MainWindow::missingDriversAreReported()
{
    m_host->host->modify([](sk_emu::Model &m) {
        m.arrays.clear();
        for (auto &driver : m.host.drivers)
            driver.loaded = driver.name == "skbottom.sys";
        return true;
    });
    QString text;
    answerNextBox(QMessageBox::Ok, &text);
    SK_MainWindow window;
    QVERIFY(text.contains(QStringLiteral("Unable to find skcfg RAID driver")));

    m_host->host->modify([](sk_emu::Model &m) {
        for (auto &driver : m.host.drivers)
            driver.loaded = false;
        return false;
    });
    SK_MainWindow none;
    auto *box = none.findChild<QMessageBox *>(QStringLiteral("noDriverMessage"));
    QVERIFY2(box, "no box about the missing drivers");
    QVERIFY(box->text().startsWith(QStringLiteral("Unable to find the VOR RAID drivers")));
    box->done(QMessageBox::Cancel); // OK would quit the test's event loop
}

void tst_MainWindow::windowStateSurvivesARestart()
{
    {
        SK_MainWindow window;
        window.resize(900, 600);
    }
    QVERIFY(QSettings().contains(QStringLiteral("mainWindowGeometry")));
    QVERIFY(QSettings().contains(QStringLiteral("diskListHeaderState")));
    SK_MainWindow again;
    QCOMPARE(again.size(), QSize(900, 600));
}

void tst_MainWindow::writeBackWarningRefusedSendsNothing()
{
    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData)); // its cache reads "R"
    QString question;
    answerNextBox(QMessageBox::No, &question);
    action(&window, "cacheWriteAct")->trigger();
    QVERIFY(question.startsWith(QStringLiteral("If enabled Write Back Cache")));
    QCOMPARE(m_host->host->model().findArrayByRoute(kData)->cachePolicy, 0x80000000u);

    // From write-back to read and write-back goes without a question.
    answerNextBox(QMessageBox::Yes);
    action(&window, "cacheWriteAct")->trigger();
    QCOMPARE(m_host->host->model().findArrayByRoute(kData)->cachePolicy, 0x40000000u);
    window.menu_refresh();
    waitForArrays(window, 2);
    action(&window, "cacheReadWriteAct")->trigger();
    QCOMPARE(m_host->host->model().findArrayByRoute(kData)->cachePolicy, 0xC0000000u);
}

// The questions and their No answers are tried in tst_actions.
void tst_MainWindow::hideAndDeleteReachTheDrivers()
{
    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData));
    answerNextBox(QMessageBox::Yes);
    action(&window, "hideAct")->trigger();
    QVERIFY(m_host->host->model().findArrayByRoute(kData)->hidden());

    waitForArrays(window, 2);
    answerNextBox(QMessageBox::Yes);
    action(&window, "deleteAct")->trigger();
    QVERIFY(!m_host->host->model().findArrayByRoute(kData));
    QCOMPARE(window.currentArray(), 0u);
    waitForArrays(window, 1);
}

void tst_MainWindow::createStopsAtTwelveArrays()
{
    m_host->host->modify([](sk_emu::Model &m) {
        for (std::uint16_t route = 3; route <= 12; ++route) {
            sk_emu::Array extra = m.arrays[1];
            extra.id += route;
            extra.route = route;
            extra.name = "Extra" + std::to_string(route);
            m.arrays.push_back(extra);
        }
        return true;
    });
    SK_MainWindow window;
    QString text;
    answerNextBox(QMessageBox::Ok, &text);
    action(&window, "createAct")->trigger();
    QCOMPARE(text, QStringLiteral("The total number of arrays is limited to 12."));
}

void tst_MainWindow::themeChoiceIsStoredAndApplied()
{
    SK_MainWindow window;
    QVERIFY(action(&window, "darkAct")->isChecked());
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("#37383a")));
    action(&window, "lightAct")->trigger();
    QCOMPARE(QSettings().value(QStringLiteral("ApplicationTheme")).toString(),
             QStringLiteral("light"));
    QVERIFY(qApp->styleSheet().startsWith(QStringLiteral("QMenu {background-color:#009966")));

    action(&window, "largeFontAct")->trigger();
    QCOMPARE(QSettings().value(QStringLiteral("ApplicationFontSize")).toString(),
             QStringLiteral("largeFont"));
    QCOMPARE(pane(&window, "eventList")->font().pointSize(), 12);
    action(&window, "darkAct")->trigger();

    // The next start makes its menus in the size chosen.
    SK_MainWindow again;
    QCOMPARE(widget<QMenu>(&again, "arrayMenu")->font().pointSize(), 12);
    QCOMPARE(again.menuBar()->font().pointSize(), 13);
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
