// Takes the screenshots of docs/images from the real console: the main window in both
// themes and with a failed member, and the create dialog composing a RAID 5. The console
// runs on the offscreen platform against an emulated host made from a scenario file on a
// manual clock, so every run of the tool draws the same picture.
//
//   QT_QPA_PLATFORM=offscreen sk_screenshots SCENARIO.json OUTPUT_FOLDER

#include "app/app.h"
#include "dialogs/dialogs.h"
#include "driver/driver.h"
#include "emulator/emulator.h"
#include "tools/sk_toolfiles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

namespace {

const QSize kWindowSize(1400, 860);
constexpr std::uint64_t kFailingMember = 0x5000C500E4B2117Cull; // a member of Data
constexpr int kRaid5Row = 4;                                    // of the create dialog's types

// Runs the event loop until `ready` holds or five seconds have passed.
bool waitFor(const std::function<bool()> &ready)
{
    QElapsedTimer clock;
    clock.start();
    while (!ready()) {
        if (clock.elapsed() > 5000)
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

// Runs the event loop for `ms` milliseconds.
void settle(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

QTreeWidget *pane(QWidget *window, const char *name)
{
    return window->findChild<QTreeWidget *>(QString::fromLatin1(name));
}

bool save(QWidget *widget, const QDir &folder, const char *file)
{
    QApplication::processEvents();
    const QString path = folder.filePath(QString::fromLatin1(file));
    if (!widget->grab().save(path, "PNG", 9)) {
        std::fprintf(stderr, "sk_screenshots: cannot write %s\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(path));
    return true;
}

class Shooter
{
public:
    Shooter(sk_emu::Model model, QDir folder) : m_scenario(std::move(model)), m_folder(folder) {}

    // A fresh host from the scenario for each picture: one picture's faults stay its own.
    void freshHost(const std::function<void(sk_emu::Host &)> &change = {})
    {
        m_clock = std::make_shared<SK_EmuManualClock>(1000000);
        m_host = std::make_shared<sk_emu::Host>(m_scenario, m_clock);
        if (change)
            change(*m_host);
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(m_host));
    }

    bool mainWindow(const QString &theme, const char *file,
                    const std::function<void(sk_emu::Host &)> &change = {})
    {
        freshHost(change);
        QSettings().setValue(QLatin1String(SK_SettingsKey::ApplicationTheme), theme);
        SK_MainWindow window;
        holdTimers(window);
        window.resize(kWindowSize);
        window.show();
        if (!arrivedAndPicked(window, QStringLiteral("Data")))
            return false;
        finish(window);
        return save(&window, m_folder, file);
    }

    bool createDialog(const char *file)
    {
        // The scenario's workstation has one unused disk; two more NVMe drives of the same
        // kind give the dialog three to build a RAID 5 from.
        freshHost([](sk_emu::Host &host) {
            host.modify([](sk_emu::Model &m) {
                const sk_emu::Disk nvme = m.disks.back();
                for (std::uint32_t i = 1; i <= 2; ++i) {
                    sk_emu::Disk d = nvme;
                    d.id = nvme.id + 0x100 * i;
                    d.port = nvme.port + i;
                    d.serial = "S7HENJ0X30830" + std::to_string(i);
                    m.disks.push_back(d);
                }
                return true;
            });
        });
        QSettings().setValue(QLatin1String(SK_SettingsKey::ApplicationTheme),
                             QStringLiteral("dark"));
        SK_MainWindow window;
        holdTimers(window);
        window.resize(kWindowSize);
        window.show();
        if (!arrivedAndPicked(window, QStringLiteral("Data")))
            return false;
        SK_CreateDialog dialog(*window.api(), QSize(24, 24), &window);
        dialog.setWindowTitle(QObject::tr("Create"));
        dialog.resize(1100, 680);
        dialog.show(); // not exec(): the tool goes on while the dialog is open
        // Three disks of one kind, as the user picks them with "All NVMe", then the type.
        auto *types = dialog.findChild<QComboBox *>(QStringLiteral("arrayTypeSel"));
        auto *nvme = dialog.findChild<QAbstractButton *>(QStringLiteral("allNvmeButton"));
        if (!types || !nvme) {
            std::fprintf(stderr, "sk_screenshots: the create dialog has changed its names\n");
            return false;
        }
        nvme->click();
        types->setCurrentIndex(kRaid5Row);
        if (auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("arrayNameInput")))
            name->setText(QStringLiteral("Projects"));
        settle(300); // no signal says the picture is drawn
        return save(&dialog, m_folder, file);
    }

private:
    // What a user does before looking: the arrays opened in the tree, the columns fitted
    // to what they hold (the fonts here are not the ones the widths were tuned for), and
    // two statistics polls three seconds apart for the status bar's rates.
    void finish(SK_MainWindow &window)
    {
        settle(300); // a second refresh of the start may still deliver its list
        pane(&window, "arrayTree")->expandAll();
        for (const char *name : {"diskList", "arrayListTree"}) {
            QTreeWidget *list = pane(&window, name);
            // Without the dark sheet's header rule the header is measured narrower than it
            // is drawn; its labels are measured here in bold, with room for the sort arrow.
            QFont bold = list->header()->font();
            bold.setBold(true);
            const QFontMetrics label(bold);
            for (int column = 0; column < list->columnCount(); ++column) {
                list->resizeColumnToContents(column);
                const int wanted = label.horizontalAdvance(list->headerItem()->text(column)) + 24;
                list->setColumnWidth(column, std::max(list->columnWidth(column), wanted));
            }
        }
        window.statusBarRefresh();
        m_clock->advance(3000);
        window.statusBarRefresh();
    }

    // The refresh timer re-reads the picture and rebuilds the panes; a grab in the middle
    // of that would show half-filled lists.
    static void holdTimers(SK_MainWindow &window)
    {
        for (QTimer *timer : window.findChildren<QTimer *>())
            timer->stop();
    }

    static bool arrivedAndPicked(SK_MainWindow &window, const QString &arrayName)
    {
        QTreeWidget *list = pane(&window, "arrayListTree");
        if (!waitFor([list] { return list->topLevelItemCount() > 0; })) {
            std::fprintf(stderr, "sk_screenshots: the array list stayed empty\n");
            return false;
        }
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            QTreeWidgetItem *row = list->topLevelItem(i);
            for (int column = 0; column < list->columnCount(); ++column) {
                if (row->text(column) == arrayName) {
                    list->setCurrentItem(row);
                    window.arrayListSelectionChanged(row, 0);
                    return true;
                }
            }
        }
        std::fprintf(stderr, "sk_screenshots: no array named %s\n", qPrintable(arrayName));
        return false;
    }

    sk_emu::Model m_scenario;
    QDir m_folder;
    std::shared_ptr<SK_EmuManualClock> m_clock;
    std::shared_ptr<sk_emu::Host> m_host;
};

} // namespace

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(resources);
    QApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: sk_screenshots SCENARIO.json OUTPUT_FOLDER\n");
        return 2;
    }

    // The settings, logs and event files of these runs are thrown away with the folder.
    QTemporaryDir scratch;
    if (!scratch.isValid())
        return 1;
    keepConsoleFilesIn(scratch.path());

    sk_emu::Model scenario;
    std::string error;
    if (!sk_emu::readStateFile(argv[1], scenario, error)) {
        std::fprintf(stderr, "sk_screenshots: %s: %s\n", argv[1], error.c_str());
        return 1;
    }
    QDir folder(QString::fromLocal8Bit(argv[2]));
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "sk_screenshots: cannot create %s\n", argv[2]);
        return 1;
    }

    Shooter shooter(scenario, folder);
    const bool done =
        shooter.mainWindow(QStringLiteral("dark"), "main-window.png") &&
        shooter.mainWindow(QStringLiteral("light"), "main-window-light.png") &&
        shooter.mainWindow(QStringLiteral("dark"), "main-window-critical.png",
                           [](sk_emu::Host &host) { host.failDisk(kFailingMember); }) &&
        shooter.createDialog("create-dialog.png");
    SK_InstallPlatform(nullptr);
    return done ? 0 : 1;
}
