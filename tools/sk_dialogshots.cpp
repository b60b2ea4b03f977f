// Draws every dialog of the console in both themes, for a person to look at: each
// dialog is opened over the real main window on an emulated host made from a scenario
// file, in a state that shows what it is for (three new NVMe drives for the create
// dialog, a running check for the task priority, a failed member for the initialise
// list). Translation files given after the folder are installed first, so the dialogs
// can be looked at in another language.
//
//   QT_QPA_PLATFORM=offscreen sk_dialogshots SCENARIO.json OUTPUT_FOLDER [FILE.qm...]

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
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QTreeWidget>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int kData = 2;     // the scenario's RAID 5
constexpr int kRaid5Row = 4; // of the create dialog's types
constexpr int kFirstNewDisk = 8;
constexpr int kSpareDisk = 6; // the scenario's global spare, a hard disk like Data's

using Change = std::function<void(sk_emu::Model &)>;
using MakeDialog = std::function<QDialog *(SK_RaidApi &, QWidget *)>;

struct Shot
{
    const char *name;
    Change host;     // how the scenario differs for this dialog
    MakeDialog make; // opens the dialog and puts it in the state to show
};

void settle(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

sk_emu::Array &arrayAt(sk_emu::Model &m, int route)
{
    return *m.findArrayByRoute(static_cast<std::uint32_t>(route));
}

// A drive like the one at `index`, on the next free port.
void addDriveLike(sk_emu::Model &m, std::size_t index, const char *serial)
{
    sk_emu::Disk d = m.disks.at(index);
    d.id = m.disks.back().id + 0x100;
    d.port = m.disks.back().port + 1;
    d.serial = serial;
    d.globalSpare = false;
    m.disks.push_back(d);
}

// Three more drives like the scenario's unused NVMe drive.
void addNvmeDrives(sk_emu::Model &m)
{
    const sk_emu::Disk like = m.disks.back();
    for (std::uint32_t i = 1; i <= 3; ++i) {
        sk_emu::Disk d = like;
        d.id = like.id + 0x100 * i;
        d.port = like.port + i;
        d.serial = "S7HENJ0X30830" + std::to_string(i);
        m.disks.push_back(d);
    }
}

void tickRows(QDialog *dialog, const char *list, const QList<int> &ids, int role = Qt::UserRole)
{
    auto *tree = dialog->findChild<QTreeWidget *>(QLatin1String(list));
    for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = tree->topLevelItem(i);
        if (ids.contains(row->data(0, role).toInt()))
            row->setCheckState(0, Qt::Checked);
    }
}

void clickButton(QDialog *dialog, const char *name)
{
    if (auto *button = dialog->findChild<QAbstractButton *>(QLatin1String(name)))
        button->click();
}

std::vector<Shot> shots()
{
    const auto none = [](sk_emu::Model &) {};
    return {
        {"create", addNvmeDrives,
         [](SK_RaidApi &api, QWidget *parent) {
             auto *dialog = new SK_CreateDialog(api, QSize(24, 24), parent);
             clickButton(dialog, "allNvmeButton");
             dialog->findChild<QComboBox *>(QStringLiteral("arrayTypeSel"))
                 ->setCurrentIndex(kRaid5Row);
             return dialog;
         }},
        {"transform", [](sk_emu::Model &m) { addDriveLike(m, 2, "WX20D9Q1"); },
         [](SK_RaidApi &api, QWidget *parent) {
             auto *dialog = new SK_TransformDialog(api, kData, QSize(24, 24), parent);
             clickButton(dialog, "sameButton");
             tickRows(dialog, "diskList", {kFirstNewDisk}, SK_Role::DeviceId);
             return dialog;
         }},
        {"task_priority",
         [](sk_emu::Model &m) {
             arrayAt(m, kData).task =
                 sk_emu::Task{sk_emu::code::TaskCheck, sk_emu::code::TaskStarted, 25000};
         },
         [](SK_RaidApi &api, QWidget *parent) {
             return new SK_TaskPriorityDialog(api, kData, parent);
         }},
        {"array_name", none,
         [](SK_RaidApi &api, QWidget *parent) {
             return new SK_ArrayNameDialog(api, kData, parent);
         }},
        {"delete_arrays", none,
         [](SK_RaidApi &api, QWidget *parent) {
             auto *dialog = new SK_DeleteForm(api, parent);
             tickRows(dialog, "arrayList", {kData});
             return dialog;
         }},
        {"caching", none,
         [](SK_RaidApi &api, QWidget *parent) { return new SK_TieringDialog(api, parent); }},
        {"disk_options", none,
         [](SK_RaidApi &api, QWidget *parent) {
             return new SK_diskSpareDialog(api, QStringLiteral("0 5"),
                                           QStringLiteral("WDC WD40EFZX-68AWUN0"), kSpareDisk,
                                           kData, parent);
         }},
        {"initialise_disks",
         [](sk_emu::Model &m) {
             arrayAt(m, kData).layout.members.at(1).flags |= sk_emu::code::MemberFailed;
         },
         [](SK_RaidApi &api, QWidget *parent) { return new SK_initDisksDialog(api, parent); }},
        {"clear_metadata", none,
         [](SK_RaidApi &api, QWidget *parent) { return new SK_ClearMetadataDialog(api, parent); }},
        {"disk_properties", none,
         [](SK_RaidApi &api, QWidget *parent) { return new SK_DiskProperites(api, parent); }},
        {"smart", none,
         [](SK_RaidApi &api, QWidget *parent) { return new SK_SmartDiskDialog(api, parent); }},
        {"controllers", none,
         [](SK_RaidApi &api, QWidget *parent) { return new sk_ControllerProperties(api, parent); }},
        {"about", none,
         [](SK_RaidApi &api, QWidget *parent) { return new SK_AboutDialog(api, parent); }},
        {"insert_notice", none,
         [](SK_RaidApi &api, QWidget *parent) {
             return new Sk_insertRemoveDialog(api, 1038, parent);
         }},
    };
}

// One picture: a fresh host from the scenario with the shot's change, the window in
// `theme` (it applies its theme as it starts), and the dialog over it.
bool shoot(const sk_emu::Model &scenario, const Shot &shot, const QString &theme,
           const QDir &folder)
{
    sk_emu::Model model = scenario;
    shot.host(model);
    auto clock = std::make_shared<SK_EmuManualClock>(1000000);
    SK_InstallPlatform(
        std::make_unique<SK_EmulatedPlatform>(std::make_shared<sk_emu::Host>(model, clock)));
    QSettings().setValue(QLatin1String(SK_SettingsKey::ApplicationTheme), theme);
    bool saved = false;
    {
        SK_MainWindow window;
        for (QTimer *timer : window.findChildren<QTimer *>())
            timer->stop();
        std::unique_ptr<QDialog> dialog(shot.make(*window.api(), &window));
        dialog->show(); // not exec(): the tool goes on while the dialog is open
        settle(200);
        const QString file =
            folder.filePath(QString::fromLatin1(shot.name) + QLatin1Char('_') + theme + ".png");
        saved = dialog->grab().save(file, "PNG", 9);
        std::printf("%s\n", qPrintable(file));
        if (!saved)
            std::fprintf(stderr, "sk_dialogshots: cannot write %s\n", qPrintable(file));
    }
    SK_InstallPlatform(nullptr);
    return saved;
}

} // namespace

int main(int argc, char **argv)
{
    Q_INIT_RESOURCE(resources);
    QApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: sk_dialogshots SCENARIO.json OUTPUT_FOLDER [FILE.qm...]\n");
        return 2;
    }

    // The settings, logs and event files of these runs are thrown away with the folder.
    QTemporaryDir scratch;
    if (!scratch.isValid())
        return 1;
    keepConsoleFilesIn(scratch.path());

    std::vector<std::unique_ptr<QTranslator>> translators;
    for (int i = 3; i < argc; ++i) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(QString::fromLocal8Bit(argv[i]))) {
            std::fprintf(stderr, "sk_dialogshots: cannot load %s\n", argv[i]);
            return 1;
        }
        QCoreApplication::installTranslator(translator.get());
        translators.push_back(std::move(translator));
    }

    sk_emu::Model scenario;
    std::string error;
    if (!sk_emu::readStateFile(argv[1], scenario, error)) {
        std::fprintf(stderr, "sk_dialogshots: %s: %s\n", argv[1], error.c_str());
        return 1;
    }
    QDir folder(QString::fromLocal8Bit(argv[2]));
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "sk_dialogshots: cannot create %s\n", argv[2]);
        return 1;
    }

    bool done = true;
    for (const Shot &shot : shots()) {
        for (const QString &theme : {QStringLiteral("dark"), QStringLiteral("light")})
            done = shoot(scenario, shot, theme, folder) && done;
    }
    return done ? 0 : 1;
}
