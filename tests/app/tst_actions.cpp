// The Array menu's actions through the real main window against a fresh emulated host:
// prepare to remove with each of its results while the console stays live, the rights
// check of every destructive action, No answers, identify, the icon size and the help
// documents' copies.

#include "app/app.h"
#include "app/sk_help.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

using ModelChange = std::function<void(sk_emu::Model &)>;
Q_DECLARE_METATYPE(ModelChange)

namespace {

constexpr int kData = 2;
constexpr std::uint64_t kGlobalSpare = 0x50014EE2C0A93F15ull;
constexpr int kRefreshMark = Qt::UserRole + 0x51;

QAction *action(QWidget *window, const char *name)
{
    return widget<QAction>(window, name);
}

sk_emu::Array &dataArray(sk_emu::Model &m)
{
    sk_emu::Array *array = m.findArrayByRoute(kData);
    if (!array)
        qFatal("the scenario has no array %d", kData);
    return *array;
}

sk_emu::Volume &volumeD(sk_emu::Model &m)
{
    for (sk_emu::Volume &v : m.volumes) {
        if (v.letter == 'D')
            return v;
    }
    qFatal("the scenario has no volume D");
}

// What a message box showed, once one was answered.
struct Shown
{
    QString title, text, name;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool seen = false;
};

// Answers the next modal box with `button`, remembering what it showed. `whileOpen`
// runs first, while the box is still up.
void answerNoting(Shown *shown, QMessageBox::StandardButton button = QMessageBox::Ok,
                  std::function<void()> whileOpen = {})
{
    answerNextBoxNoting(button, [shown, whileOpen](QMessageBox *box) {
        if (whileOpen)
            whileOpen();
        *shown = {box->windowTitle(), box->text(), box->objectName(), box->icon(), true};
    });
}

// A refresh rebuilds the disk list, so a mark on its first row tells whether one ran.
// The timers are held so that only the action under test can refresh.
void holdTimersAndMark(SK_MainWindow &window)
{
    for (QTimer *timer : window.findChildren<QTimer *>())
        timer->stop();
    widget<QTreeWidget>(&window, "diskList")->topLevelItem(0)->setData(0, kRefreshMark, true);
}

bool refreshed(SK_MainWindow &window)
{
    QTreeWidgetItem *first = widget<QTreeWidget>(&window, "diskList")->topLevelItem(0);
    return !first || !first->data(0, kRefreshMark).toBool();
}

// A clock whose sleeps on threads other than the GUI thread wait until the test opens
// it, so a worker can be held in the middle of its work.
class GateClock final : public SK_EmuClock
{
public:
    std::uint64_t nowMs() const override { return m_now; }
    void sleep(std::uint32_t milliseconds) override
    {
        if (QThread::currentThread() != QCoreApplication::instance()->thread()) {
            std::unique_lock<std::mutex> lock(m_mutex);
            ++m_held;
            m_changed.wait(lock, [this] { return m_open; });
        }
        m_now += milliseconds;
    }
    int held() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_held;
    }
    void open()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_open = true;
        }
        m_changed.notify_all();
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::atomic<std::uint64_t> m_now{1000000};
    int m_held = 0;
    bool m_open = false;
};

} // namespace

class tst_Actions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void prepareToRemoveReportsItsResult_data();
    void prepareToRemoveReportsItsResult();
    void consoleStaysLiveWhileRemovalRuns();
    void destructiveActionsNeedRights_data();
    void destructiveActionsNeedRights();
    void noAnswerSendsNothing_data();
    void noAnswerSendsNothing();
    void identifyLightsTheMembersUntilOk();
    void iconSizePersistsAndRefreshesOnChange();
    void helpDocumentReplacesReadOnlyCopy();

private:
    void waitForArrays(SK_MainWindow &window, int count);

    QTemporaryDir m_dir;
    std::unique_ptr<EmulatedHostScope> m_host;
};

void tst_Actions::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(docs);
    QVERIFY(m_dir.isValid());
    keepConsoleFilesIn(m_dir.path());
}

void tst_Actions::init()
{
    QSettings().clear();
    m_host = std::make_unique<EmulatedHostScope>();
}

void tst_Actions::cleanup()
{
    m_host.reset();
}

void tst_Actions::waitForArrays(SK_MainWindow &window, int count)
{
    QTRY_COMPARE(widget<QTreeWidget>(&window, "arrayListTree")->topLevelItemCount(), count);
}

void tst_Actions::prepareToRemoveReportsItsResult_data()
{
    QTest::addColumn<ModelChange>("change");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("refresh");

    const QString failed = QStringLiteral("There is an overlap between the selected array and "
                                          "another array. Operation canceled.");
    QTest::newRow("1: ready to be pulled")
        << ModelChange() << QStringLiteral("Array Removal")
        << QStringLiteral("Array 2 has been removed from the configuration") << true;
    QTest::newRow("3: a running check") << ModelChange([](sk_emu::Model &m) {
        dataArray(m).task.type = sk_emu::code::TaskCheck;
        dataArray(m).task.state = sk_emu::code::TaskStarted;
    }) << QStringLiteral("Operation Failed")
                                        << failed << true;
    QTest::newRow("-9: a member shared with another array") << ModelChange([](sk_emu::Model &m) {
        sk_emu::Array scratch = dataArray(m);
        scratch.id += 1;
        scratch.route = 3;
        scratch.name = "Scratch";
        scratch.layout.secondCount = 1;
        scratch.layout.members.resize(1);
        m.arrays.push_back(scratch);
    }) << QStringLiteral("Operation Failed") << failed << true;
    QTest::newRow("-10: the volume is in use")
        << ModelChange([](sk_emu::Model &m) { volumeD(m).inUse = true; })
        << QStringLiteral("Problem Ejecting VOR Array 2 SCSI Device")
        << QStringLiteral("This device is currently in use.") << false;
}

void tst_Actions::prepareToRemoveReportsItsResult()
{
    QFETCH(ModelChange, change);
    QFETCH(QString, title);
    QFETCH(QString, text);
    QFETCH(bool, refresh);
    if (change) {
        m_host->host->modify([&change](sk_emu::Model &m) {
            change(m);
            return true;
        });
    }
    SK_MainWindow window;
    QTRY_VERIFY(pickArray(window, kData));
    holdTimersAndMark(window);

    // The menu entry is off while a task runs; the slot behind it is what is tried here.
    // The work runs on its own thread: the slot is back before any result is shown.
    bool inSlot = true, shownInSlot = false;
    Shown result;
    answerNextBoxNoting(QMessageBox::Yes, [&](QMessageBox *) {
        answerNoting(&result, QMessageBox::Ok, [&] { shownInSlot = inSlot; });
    });
    window.prepareToRemove();
    inSlot = false;
    QTRY_VERIFY(result.seen);
    QVERIFY2(!shownInSlot, "the removal ran on the GUI thread");
    QCOMPARE(result.title, title);
    QVERIFY2(result.text.startsWith(text), qPrintable(result.text));
    QCOMPARE(refreshed(window), refresh);
    const sk_emu::Model after = m_host->host->model();
    if (title == QLatin1String("Array Removal")) {
        QCOMPARE(window.currentArray(), 0u);
        QVERIFY(after.findArrayByRoute(kData)->hidden());
    } else {
        QCOMPARE(window.currentArray(), quint32(kData));
        QVERIFY(!after.findArrayByRoute(kData)->hidden());
    }
    if (!refresh)
        QCOMPARE(result.icon, QMessageBox::Warning);
}

void tst_Actions::consoleStaysLiveWhileRemovalRuns()
{
    m_host.reset();
    auto clock = std::make_shared<GateClock>();
    sk_emu::Model model = sk_emu::defaultScenario();
    // Each vetoed eject is followed by a pause, which the gate holds.
    volumeD(model).ejectVeto = "\\Device\\HarddiskVolume4";
    volumeD(model).ejectVetoes = 1;
    auto host = std::make_shared<sk_emu::Host>(std::move(model), clock);
    SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    struct Release
    {
        std::shared_ptr<GateClock> clock;
        ~Release()
        {
            clock->open();
            SK_InstallPlatform(nullptr);
        }
    } release{clock};

    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData));
    holdTimersAndMark(window);
    answerNextBox(QMessageBox::Yes);
    action(&window, "prepareRemoveAct")->trigger();
    QTRY_COMPARE(clock->held(), 1);

    // The worker waits; the window still refreshes and answers.
    // The refresh turns the array entries off until its list arrives from its own worker.
    window.menu_refresh();
    QVERIFY(refreshed(window));
    QVERIFY(!action(&window, "identifyAct")->isEnabled());
    QTRY_VERIFY(action(&window, "identifyAct")->isEnabled());
    QVERIFY(!QApplication::activeModalWidget());

    Shown result;
    answerNoting(&result);
    clock->open();
    QTRY_VERIFY(result.seen);
    QCOMPARE(result.title, QStringLiteral("Array Removal"));
    QCOMPARE(result.name, QStringLiteral("prepareRemoveBox"));
    QVERIFY(host->model().findArrayByRoute(kData)->hidden());
}

void tst_Actions::destructiveActionsNeedRights_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char *slot : {"hideArray", "deleteArray", "secureEraseArray", "prepareToRemove",
                             "deleteMultipleArrays", "initTiering_Form"})
        QTest::newRow(slot) << QByteArray(slot);
}

void tst_Actions::destructiveActionsNeedRights()
{
    QFETCH(QByteArray, slot);
    m_host->host->modify([](sk_emu::Model &m) {
        m.host.elevated = false;
        return false;
    });
    answerNextBox(QMessageBox::Ok); // the one at the start
    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData));
    const std::uint64_t generation = m_host->host->generation();

    // Without rights the menu entries are off; the slots behind them check again.
    Shown message;
    answerNoting(&message);
    QVERIFY(QMetaObject::invokeMethod(&window, slot.constData()));
    QVERIFY2(message.seen, "no message about the rights");
    QVERIFY2(message.text.contains(QStringLiteral("Please run application as Administrator.")),
             qPrintable(message.text));
    QCOMPARE(m_host->host->generation(), generation);
    QVERIFY(m_host->host->model().findArrayByRoute(kData));
}

void tst_Actions::noAnswerSendsNothing_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("question");

    QTest::newRow("hide") << QByteArray("hideAct")
                          << QStringLiteral("Do you want to Hide Array 2: Data?");
    QTest::newRow("delete") << QByteArray("deleteAct")
                            << QStringLiteral("Do you want to delete Array 2: Data?");
    QTest::newRow("secure erase") << QByteArray("secureEraseAct")
                                  << QStringLiteral("WARNING: All data will be lost and "
                                                    "unrecoverable. Continue with Secure Erase on "
                                                    "Array 2 \"Data\"?");
    QTest::newRow("remove spares")
        << QByteArray("removeSparesAct") << QStringLiteral("Remove all Spares from Array 2 ?");
    QTest::newRow("prepare to remove")
        << QByteArray("prepareRemoveAct")
        << QStringLiteral("This operation will make the array invisible to the operating system "
                          "and may cause DATA LOSS. Would you like to continue with the Prepare "
                          "to Remove operation?");
}

void tst_Actions::noAnswerSendsNothing()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, question);
    // A dedicated spare, so that removing spares would have something to remove.
    m_host->host->modify([](sk_emu::Model &m) {
        for (sk_emu::Disk &d : m.disks)
            d.globalSpare = d.globalSpare && d.id != kGlobalSpare;
        dataArray(m).spares.push_back(kGlobalSpare);
        return true;
    });
    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData));
    QVERIFY2(action(&window, entry)->isEnabled(), entry.constData());
    const std::uint64_t generation = m_host->host->generation();
    const std::string before = sk_emu::writeScenario(m_host->host->model());

    Shown asked;
    answerNoting(&asked, QMessageBox::No);
    action(&window, entry)->trigger();
    QCOMPARE(asked.text, question);
    QCOMPARE(asked.title, QStringLiteral("Confirm Action"));
    QTest::qWait(50); // a worker started by mistake would have answered by now
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_host->host->generation(), generation);
    QCOMPARE(sk_emu::writeScenario(m_host->host->model()), before);
}

void tst_Actions::identifyLightsTheMembersUntilOk()
{
    SK_MainWindow window;
    waitForArrays(window, 2);
    QVERIFY(pickArray(window, kData));
    auto memberLeds = [this] {
        const sk_emu::Model m = m_host->host->model();
        QList<std::uint32_t> leds;
        for (const sk_emu::Member &member : m.findArrayByRoute(kData)->layout.members) {
            for (const sk_emu::Disk &d : m.disks) {
                if (d.id == member.disk)
                    leds << d.ledState;
            }
        }
        return leds;
    };
    QCOMPARE(memberLeds(), (QList<std::uint32_t>{0, 0, 0}));

    QList<std::uint32_t> whileShown;
    Shown box;
    answerNoting(&box, QMessageBox::Ok, [&] { whileShown = memberLeds(); });
    action(&window, "identifyAct")->trigger();
    QCOMPARE(box.title, QStringLiteral("Identify Array"));
    QVERIFY(box.text.startsWith(QStringLiteral("The LEDs representing the Disk(s)")));
    QCOMPARE(whileShown.size(), 3);
    for (std::uint32_t led : whileShown)
        QVERIFY2(led != 0, "a member's LED is off while the box is up");
    QCOMPARE(memberLeds(), (QList<std::uint32_t>{0, 0, 0}));
}

void tst_Actions::iconSizePersistsAndRefreshesOnChange()
{
    {
        SK_MainWindow window;
        waitForArrays(window, 2);
        QVERIFY(action(&window, "smallIconsAct")->isChecked());
        holdTimersAndMark(window);
        action(&window, "largeIconsAct")->trigger();
        QCOMPARE(QSettings().value(QStringLiteral("ApplicationIconSize")).toString(),
                 QStringLiteral("largeIcons"));
        QVERIFY2(refreshed(window), "a new icon size redraws the panes");
        waitForArrays(window, 2);

        holdTimersAndMark(window);
        action(&window, "largeIconsAct")->trigger();
        QVERIFY2(!refreshed(window), "the size in force was chosen again");
    }
    SK_MainWindow again;
    QVERIFY(action(&again, "largeIconsAct")->isChecked());
    QVERIFY(!action(&again, "smallIconsAct")->isChecked());
}

void tst_Actions::helpDocumentReplacesReadOnlyCopy()
{
    const QString resource = QStringLiteral(":/UserGuide/UserGuide/vor-stratakeep_user_guide.pdf");
    QVERIFY2(QFile::exists(resource), "the build embeds the user guide");
    const QString first = SK_CopyHelpDocument(resource, QStringLiteral("guide.pdf"));
    QVERIFY(!first.isEmpty());

    // An earlier copy, changed and made read-only as copies out of resources are.
    QFile::setPermissions(first, QFile::ReadOwner | QFile::WriteOwner);
    {
        QFile stale(first);
        QVERIFY(stale.open(QIODevice::WriteOnly | QIODevice::Truncate));
        stale.write("stale");
    }
    QVERIFY(QFile::setPermissions(first, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));

    const QString second = SK_CopyHelpDocument(resource, QStringLiteral("guide.pdf"));
    QCOMPARE(second, first);
    QFile copy(second);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QFile original(resource);
    QVERIFY(original.open(QIODevice::ReadOnly));
    QVERIFY(copy.readAll() == original.readAll());
}

QTEST_MAIN(tst_Actions)
#include "tst_actions.moc"
