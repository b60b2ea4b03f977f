// Helpers the widget suites share: finding a dialog's parts by object name, ticking
// rows of its lists, answering the message boxes it raises, keeping the settings and
// files it writes away from the user's own, and picking an array in the main window and
// checking its menu entries.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QTreeWidget>
#include <QVariant>
#include <QtTest>

#include <memory>
#include <vector>

// The child of `parent` named `name`; a missing one ends the suite, since every check
// after it would only fail for the same reason.
template <typename T>
T *widget(QWidget *parent, const char *name)
{
    T *found = parent->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no widget %s", name);
    return found;
}

inline void click(QWidget *dialog, const char *button)
{
    QTest::mouseClick(widget<QAbstractButton>(dialog, button), Qt::LeftButton);
}

// The top-level row whose `role` data is `id`, or null.
inline QTreeWidgetItem *rowWithId(QTreeWidget *list, int id, int role = Qt::UserRole)
{
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (list->topLevelItem(i)->data(0, role).toInt() == id)
            return list->topLevelItem(i);
    }
    return nullptr;
}

// The row with `id`, which the test expects listed: a missing one ends the suite.
inline QTreeWidgetItem *listedRow(QTreeWidget *list, int id, int role = Qt::UserRole)
{
    QTreeWidgetItem *row = rowWithId(list, id, role);
    if (!row)
        qFatal("row %d is not listed", id);
    return row;
}

// The ids of the top-level rows in the order they are shown.
inline QList<int> rowIds(QTreeWidget *list, int role = Qt::UserRole)
{
    QList<int> ids;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        ids << list->topLevelItem(i)->data(0, role).toInt();
    return ids;
}

// Sets the tick of the rows with `ids`, as a user clicking their boxes would.
inline void tickRows(QTreeWidget *list, const QList<int> &ids, Qt::CheckState state = Qt::Checked,
                     int role = Qt::UserRole)
{
    for (int id : ids)
        listedRow(list, id, role)->setCheckState(0, state);
}

// Presses `button` on a box that is up, or its first button where it has no such.
inline void pressBoxButton(QMessageBox *box, QMessageBox::StandardButton button)
{
    QAbstractButton *b = box->button(button);
    (b ? b : box->buttons().constFirst())->click();
}

// Whether the test that armed an answer is still the one running: an answer never
// outlives its test, so a box of a later test can't be answered by mistake.
struct RunningTest
{
    QByteArray function = QTest::currentTestFunction();
    QByteArray tag = QTest::currentDataTag();
    bool stillRunning() const
    {
        return function == QTest::currentTestFunction() && tag == QTest::currentDataTag();
    }
};

// Answers the next message box with `button` once it is up, handing the box to `note`
// first. The box is modal, so the answer has to come from the event loop it runs. The
// answer waits for its box only while the test that armed it runs.
template <typename Note>
void answerNextBoxNoting(QMessageBox::StandardButton button, Note note,
                         RunningTest test = RunningTest())
{
    QTimer::singleShot(0, [button, note, test] {
        if (!test.stillRunning())
            return;
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) {
            answerNextBoxNoting(button, note, test);
            return;
        }
        note(box);
        pressBoxButton(box, button);
    });
}

// Fails the running test by name, and closes the window, when a modal window stays up
// unanswered for `limitMs`: a test that forgot to answer a box ends with its name and
// the box's words instead of hanging until the suite's time limit.
class ModalWatchdog : public QObject
{
public:
    explicit ModalWatchdog(int limitMs, QObject *parent) : QObject(parent), m_limitMs(limitMs)
    {
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(250);
    }

private:
    void look()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal != m_modal) {
            m_modal = modal;
            m_since.start();
            return;
        }
        if (!modal || m_since.elapsed() < m_limitMs)
            return;
        const auto *box = qobject_cast<QMessageBox *>(modal);
        const QString words =
            modal->windowTitle() + QStringLiteral(": ") + (box ? box->text() : modal->objectName());
        QTest::qFail(
            qPrintable(
                QStringLiteral("a modal window was left unanswered (%1)").arg(words.left(200))),
            __FILE__, __LINE__);
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->done(QDialog::Rejected);
        else
            modal->close();
        m_modal = nullptr;
    }

    int m_limitMs;
    QTimer m_timer;
    QPointer<QWidget> m_modal;
    QElapsedTimer m_since;
};

// Every widget suite gets the watchdog as its application starts.
inline void startModalWatchdog()
{
    if (!qApp || qApp->property("skModalWatchdog").toBool())
        return;
    qApp->setProperty("skModalWatchdog", true);
    new ModalWatchdog(45000, qApp);
}
Q_COREAPP_STARTUP_FUNCTION(startModalWatchdog)

// Answers the next message box with `button`, adding its text to `texts` if given.
inline void answerNextBox(QMessageBox::StandardButton button, QStringList *texts = nullptr)
{
    answerNextBoxNoting(button, [texts](QMessageBox *box) {
        if (texts)
            *texts << box->text();
    });
}

// Answers the next message box with `button`, keeping its text in `text`.
inline void answerNextBox(QMessageBox::StandardButton button, QString *text)
{
    answerNextBoxNoting(button, [text](QMessageBox *box) { *text = box->text(); });
}

// Answers every message box that comes up while it lives with `button`, noting texts.
class BoxAnswerer
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton button)
    {
        QObject::connect(&timer, &QTimer::timeout, [this, button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || box->property("answered").toBool())
                return;
            box->setProperty("answered", true);
            texts << box->text();
            pressBoxButton(box, button);
        });
        timer.start(0);
    }

    QStringList texts;

private:
    QTimer timer;
};

// A window that `make` opens again comes back at the size and with the column width
// of the list `list` that the one before it was left with: both are kept in the settings.
template <typename Make>
void expectWindowStateKept(Make make, const char *list, int column, QSize size = {777, 444})
{
    {
        auto first = make();
        first->resize(size);
        widget<QTreeWidget>(first.get(), list)->header()->resizeSection(column, 222);
    }
    auto again = make();
    QCOMPARE(again->size(), size);
    QCOMPARE(widget<QTreeWidget>(again.get(), list)->header()->sectionSize(column), 222);
}

// Makes the suite's settings files live in `folder`, so the window state the dialogs
// save neither reads nor overwrites the user's own.
inline void keepSettingsIn(const QString &folder)
{
    QCoreApplication::setOrganizationName(QStringLiteral("StrataKeepTests"));
    QCoreApplication::setApplicationName(QStringLiteral("StrataKeep"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

// Keeps everything the console writes in `folder`: its settings, and below the
// temporary folder its EventsLog.xml, StrataKeep.log and help copies. Suites run side
// by side, each with its own folder.
inline void keepConsoleFilesIn(const QString &folder)
{
    keepSettingsIn(folder);
    QStandardPaths::setTestModeEnabled(true);
    qputenv("TMPDIR", QFile::encodeName(folder));
}

// The main window's menu entries `on` are enabled and `off` are not.
inline void expectActions(QWidget *window, const QStringList &on, const QStringList &off)
{
    for (const QString &name : on)
        QVERIFY2(widget<QAction>(window, qPrintable(name))->isEnabled(),
                 qPrintable(name + " is off"));
    for (const QString &name : off)
        QVERIFY2(!widget<QAction>(window, qPrintable(name))->isEnabled(),
                 qPrintable(name + " is on"));
}

// Clicks the array's row of the main window's array list, as a user picking the array
// would; true once the window holds it as the current array.
template <typename Window>
bool pickArray(Window &window, int id)
{
    if (QTreeWidgetItem *row = rowWithId(widget<QTreeWidget>(&window, "arrayListTree"), id))
        window.arrayListSelectionChanged(row, 0);
    return window.currentArray() == quint32(id);
}
