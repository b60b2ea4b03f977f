// The Array and Disk menus' actions: each confirms where it must, calls one service
// operation and refreshes. A refused command shows no message; the refreshed panes and
// the event view tell what happened.

#include "app/sk_mainwindow.h"

#include "app/sk_settings.h"
#include "dialogs/dialogs.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>
#include <QUrl>

namespace {

constexpr int kArrayLimit = 12;

// The main window's dialogs open the same way: modal, titled, no help button.
int runDialog(QDialog *dialog, const QString &title)
{
    dialog->setModal(true);
    dialog->setWindowTitle(title);
    dialog->setWindowFlags(dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    const int result = dialog->exec();
    delete dialog;
    return result;
}

} // namespace

bool SK_MainWindow::confirm(const QString &question)
{
    QMessageBox box(QMessageBox::Question, tr("Confirm Action"), question,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setObjectName(QStringLiteral("confirmBox"));
    box.button(QMessageBox::Yes)->setText(tr("Yes"));
    box.button(QMessageBox::No)->setText(tr("No"));
    return box.exec() == QMessageBox::Yes;
}

// --- Forms of their own ---

void SK_MainWindow::createForm()
{
    if (raidApi->GetArrayCount() >= kArrayLimit) {
        QMessageBox::about(this, QCoreApplication::applicationName(),
                           tr("The total number of arrays is limited to ") +
                               QString::number(kArrayLimit) + QStringLiteral("."));
    } else {
        runDialog(new SK_CreateDialog(*raidApi, iconSize, this), tr("Create"));
    }
    menu_refresh();
}

void SK_MainWindow::transform_Form()
{
    runDialog(new SK_TransformDialog(*raidApi, static_cast<int>(selectedArray), iconSize, this),
              tr("Transform"));
    menu_refresh();
}

void SK_MainWindow::initTiering_Form()
{
    if (!rightsCheck())
        return;
    if (raidApi->GetArrayCount() >= kArrayLimit) {
        QMessageBox::about(this, QCoreApplication::applicationName(),
                           tr("The total number of arrays is limited to ") +
                               QString::number(kArrayLimit) + QStringLiteral("."));
    } else {
        runDialog(new SK_TieringDialog(*raidApi, this), tr("Caching"));
    }
    menu_refresh();
}

void SK_MainWindow::taskPriority_Form()
{
    const int id = static_cast<int>(selectedArray);
    if (id >= 1 && raidApi->ArrayHasTask(id))
        runDialog(new SK_TaskPriorityDialog(*raidApi, selectedArray, this), tr("Task Priority"));
    menu_refresh();
}

void SK_MainWindow::renameArray()
{
    if (selectedArray > 0)
        runDialog(new SK_ArrayNameDialog(*raidApi, selectedArray, this), tr("Array Name"));
    menu_refresh();
}

// The one dialog that holds the timers back: its worker deletes arrays and re-reads
// the configuration, which no refresh or statistics poll may read meanwhile.
void SK_MainWindow::deleteMultipleArrays()
{
    if (!rightsCheck())
        return;
    refreshTimer->stop();
    statsTimer->stop();
    runDialog(new SK_DeleteForm(*raidApi, this), tr("Delete"));
    statsTimer->start(statusInterval);
    refreshTimer->start(refreshInterval);
    menu_refresh();
}

// --- Checks, scans, cache ---

void SK_MainWindow::startConsistencyCheck()
{
    raidApi->ConsistencyCheck(static_cast<int>(selectedArray), false);
    menu_refresh();
}

void SK_MainWindow::stopConsistencyCheck()
{
    raidApi->ConsistencyCheck(static_cast<int>(selectedArray), true);
    menu_refresh();
}

void SK_MainWindow::startBackgroundScan()
{
    raidApi->SetBackgroundScan(static_cast<int>(selectedArray), true);
    menu_refresh();
}

void SK_MainWindow::stopBackgroundScan()
{
    raidApi->SetBackgroundScan(static_cast<int>(selectedArray), false);
    menu_refresh();
}

void SK_MainWindow::setCacheNone()
{
    raidApi->SetArrayCache(static_cast<int>(selectedArray), QStringLiteral("NC"));
    setCacheChecks(cacheNoneAct);
    menu_refresh();
}

void SK_MainWindow::setCacheRead()
{
    raidApi->SetArrayCache(static_cast<int>(selectedArray), QStringLiteral("R"));
    setCacheChecks(cacheReadAct);
    menu_refresh();
}

namespace {

QString writeBackWarning()
{
    return SK_MainWindow::tr("If enabled Write Back Cache can increase the likelihood of data "
                             "corruption if the system experiences an unexpected shutdown, do "
                             "you wish to enable?");
}

} // namespace

// Moving between the two write-back modes asks nothing: the risk is already taken.
void SK_MainWindow::setCacheWrite()
{
    const LogicalDrive *record = raidApi->GetArrayRecord(static_cast<int>(selectedArray));
    if (!record)
        return;
    if (QLatin1String(record->Cache) != QLatin1String("RW") && !confirm(writeBackWarning()))
        return;
    raidApi->SetArrayCache(static_cast<int>(selectedArray), QStringLiteral("W"));
    setCacheChecks(cacheWriteAct);
    menu_refresh();
}

void SK_MainWindow::setCacheReadWrite()
{
    const LogicalDrive *record = raidApi->GetArrayRecord(static_cast<int>(selectedArray));
    if (!record)
        return;
    if (QLatin1String(record->Cache) != QLatin1String("W") && !confirm(writeBackWarning()))
        return;
    raidApi->SetArrayCache(static_cast<int>(selectedArray), QStringLiteral("RW"));
    setCacheChecks(cacheReadWriteAct);
    menu_refresh();
}

// --- Tasks ---

void SK_MainWindow::resumeTask()
{
    raidApi->TaskControl(static_cast<int>(selectedArray), QStringLiteral("resume"));
    menu_refresh();
}

void SK_MainWindow::pauseTask()
{
    raidApi->TaskControl(static_cast<int>(selectedArray), QStringLiteral("pause"));
    menu_refresh();
}

void SK_MainWindow::removeTask()
{
    raidApi->TaskControl(static_cast<int>(selectedArray), QStringLiteral("remove"));
    menu_refresh();
}

// --- Hide, identify, spares, delete, erase ---

void SK_MainWindow::hideArray()
{
    if (!rightsCheck())
        return;
    const int id = static_cast<int>(selectedArray);
    const LogicalDrive *record = raidApi->GetArrayRecord(id);
    if (!record)
        return;
    const bool hidden = raidApi->ArrayIsHidden(id);
    const QString question = QStringLiteral("Do you want to ") +
                             (hidden ? tr("Un-Hide") : tr("Hide")) + tr(" Array ") +
                             QString::number(id) + QStringLiteral(": ") +
                             QString::fromLocal8Bit(record->DisplayName) + QStringLiteral("?");
    if (!confirm(question))
        return;
    if (hidden)
        raidApi->UnhideArray(id);
    else
        raidApi->HideArray(id);
    menu_refresh();
}

void SK_MainWindow::identifyArray()
{
    const int id = static_cast<int>(selectedArray);
    if (id < 1) {
        menu_refresh();
        return;
    }
    raidApi->BlinkArray(id, true, 0);
    QMessageBox box(QMessageBox::Information, tr("Identify Array"),
                    tr("The LEDs representing the Disk(s) in the selected Array are now lit. "
                       "Click 'OK' to stop identifying."),
                    QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("identifyBox"));
    box.button(QMessageBox::Ok)->setText(tr("OK"));
    if (box.exec() == QMessageBox::Ok)
        raidApi->BlinkArray(id, false, 0);
    menu_refresh();
}

void SK_MainWindow::removeSpares()
{
    const int id = static_cast<int>(selectedArray);
    const QString question =
        tr("Remove all Spares from ") + tr("Array ") + QString::number(id) + QStringLiteral(" ?");
    if (id > 0 && confirm(question))
        raidApi->RemoveArraySpares(id);
    menu_refresh();
}

void SK_MainWindow::deleteArray()
{
    if (!rightsCheck())
        return;
    const int id = static_cast<int>(selectedArray);
    const LogicalDrive *record = raidApi->GetArrayRecord(id);
    if (!record)
        return;
    if (!confirm(tr("Do you want to delete Array ") + QString::number(id) + QStringLiteral(": ") +
                 QString::fromLocal8Bit(record->DisplayName) + QStringLiteral("?")))
        return;
    raidApi->DeleteArray(id);
    selectedArray = 0;
    menu_refresh();
}

void SK_MainWindow::secureEraseArray()
{
    if (!rightsCheck())
        return;
    const int id = static_cast<int>(selectedArray);
    const LogicalDrive *record = raidApi->GetArrayRecord(id);
    if (!record)
        return;
    if (!confirm(tr("WARNING: All data will be lost and unrecoverable. Continue with Secure "
                    "Erase on Array ") +
                 QString::number(id) + QStringLiteral(" \"") +
                 QString::fromLocal8Bit(record->DisplayName) + QStringLiteral("\"?")))
        return;
    raidApi->SecureEraseArray(id);
    menu_refresh();
}

void SK_MainWindow::rescanDisks()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    raidApi->Rescan();
    QApplication::restoreOverrideCursor();
    menu_refresh();
}

// --- Prepare to remove, on a worker thread ---

void SK_MainWindow::prepareToRemove()
{
    if (!rightsCheck())
        return;
    if (selectedArray < 1 ||
        !confirm(tr("This operation will make the array invisible to the operating system "
                    "and may cause DATA LOSS. Would you like to continue with the Prepare to "
                    "Remove operation?")))
        return;
    auto *thread = new QThread;
    thread->setObjectName(QStringLiteral("prepareRemoveThread"));
    auto *worker = new ApiWorker;
    worker->moveToThread(thread);
    const int array = static_cast<int>(selectedArray);
    connect(worker, &ApiWorker::prepRemoveFinished, this, &SK_MainWindow::prepareRemoveFinished);
    connect(
        thread, &QThread::started, worker, [worker, array] { worker->AsyncPrepRemove(array); },
        Qt::DirectConnection);
    connect(worker, &ApiWorker::prepRemoveFinished, thread, &QThread::quit);
    connect(worker, &ApiWorker::prepRemoveFinished, worker, &QObject::deleteLater);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}

void SK_MainWindow::prepareRemoveFinished(int returnCode)
{
    const QString label = tr("Array ") + QString::number(selectedArray);
    auto inform = [this](const QString &title, const QString &text) {
        QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, this);
        box.setObjectName(QStringLiteral("prepareRemoveBox"));
        box.exec();
    };
    switch (returnCode) {
    case SK_REMOVAL_READY:
        selectedArray = 0;
        inform(tr("Array Removal"),
               label +
                   tr(" has been removed from the configuration, the device's disconnected and "
                      "are now ready to be physically removed from the system. It is important "
                      "that no DISK RESCANs be performed until all of the disks in the array have "
                      "been disconnected"));
        break;
    case SK_REMOVAL_REFUSED:
    case SK_REMOVAL_SHARED_DISK:
        inform(tr("Operation Failed"), tr("There is an overlap between the selected array and "
                                          "another array. Operation canceled."));
        break;
    case SK_REMOVAL_VOLUME_IN_USE:
        QMessageBox::warning(this,
                             QStringLiteral("Problem Ejecting VOR Array ") +
                                 QString::number(selectedArray) + QStringLiteral(" SCSI Device"),
                             tr("This device is currently in use. Close any program or windows "
                                "that might be using this device, and then try again."));
        return;
    default:
        break;
    }
    menu_refresh();
}

// --- Disk and view entries ---

void SK_MainWindow::diskDoubleClicked(QTreeWidgetItem *item, int)
{
    if (item) {
        auto *dialog =
            new SK_diskSpareDialog(*raidApi, item->text(0), item->text(10),
                                   item->data(0, Qt::UserRole).toUInt(), selectedArray, this);
        runDialog(dialog, tr("Options"));
    }
    menu_refresh();
}

// The disk list's context menu and the Options entry act on the one selected row.
void SK_MainWindow::diskOptionsClicked()
{
    const QList<QTreeWidgetItem *> rows = diskList->selectedItems();
    if (rows.size() != 1)
        return;
    diskDoubleClicked(rows.first(), 0);
}

void SK_MainWindow::initDisks_Form()
{
    if (!rightsCheck())
        return;
    if (runDialog(new SK_initDisksDialog(*raidApi, this), tr("Initialize Disks")) ==
        QDialog::Accepted)
        selectedArray = 0;
    menu_refresh();
}

void SK_MainWindow::clearMetadata_Form()
{
    if (!rightsCheck())
        return;
    if (runDialog(new SK_ClearMetadataDialog(*raidApi, this), tr("Clear Metadata")) ==
        QDialog::Accepted)
        selectedArray = 0;
    menu_refresh();
}

void SK_MainWindow::diskProperties_Form()
{
    runDialog(new SK_DiskProperites(*raidApi, this), tr("Properties"));
    menu_refresh();
}

void SK_MainWindow::smartDiskOverview_Form()
{
    runDialog(new SK_SmartDiskDialog(*raidApi, this), tr("S.M.A.R.T. Overview"));
    menu_refresh();
}

void SK_MainWindow::viewControllers_Form()
{
    runDialog(new sk_ControllerProperties(*raidApi, this), tr("Controllers"));
    menu_refresh();
}

void SK_MainWindow::applicationLog()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(logFilePath));
}

// --- Appearance ---

namespace {

// The light theme is small enough to live here; the dark one is a resource.
const char *const kLightStyleSheet =
    "QMenu {background-color:#009966; color:white} QMenu::item:selected {background:#484848} "
    "QMenu::item:disabled {background:grey} QMenuBar {background-color:#009966; color:white} "
    "QMenuBar::item:selected {background:#484848}  QTreeWidget{background-color:#eae7dc; "
    "alternate-background-color: #e2dfd3} QDialog {background:#e2dfd3}";

QString darkStyleSheet()
{
    QFile file(QStringLiteral(":/style/style/DarkStyleSheet.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QByteArray text = file.readAll();
    const int end = text.indexOf('\0');
    if (end >= 0)
        text.truncate(end);
    return QString::fromUtf8(text);
}

} // namespace

void SK_MainWindow::applyTheme(const QString &theme)
{
    const bool light = theme == QLatin1String("light");
    (light ? lightAct : darkAct)->setChecked(true);
    // Setting the sheet repolishes every widget; skip that when nothing changes.
    const QString sheet = light ? QString::fromLatin1(kLightStyleSheet) : darkStyleSheet();
    if (qApp->styleSheet() != sheet)
        qApp->setStyleSheet(sheet);
}

void SK_MainWindow::applyIconSize(const QString &size)
{
    const bool large = size == QLatin1String("largeIcons");
    iconSize = large ? largeIconSize : smallIconSize;
    (large ? largeIconsAct : smallIconsAct)->setChecked(true);
}

void SK_MainWindow::applyFontSize(const QString &size)
{
    if (size == QLatin1String("largeFont")) {
        largeFontAct->setChecked(true);
        listFont = largeListFont;
        menuBarFont = largeMenuFont;
    } else if (size == QLatin1String("smallFont")) {
        smallFontAct->setChecked(true);
        listFont = smallListFont;
        menuBarFont = smallMenuFont;
    } else {
        normalFontAct->setChecked(true);
        listFont = normalListFont;
        menuBarFont = normalMenuFont;
    }
}

namespace {

// A choice that is already in force changes nothing and refreshes nothing.
bool storeIfChanged(const char *key, QAction *action)
{
    if (!action)
        return false;
    const QString word = action->data().toString();
    QSettings settings;
    if (settings.value(QLatin1String(key)).toString() == word)
        return false;
    settings.setValue(QLatin1String(key), word);
    return true;
}

} // namespace

void SK_MainWindow::appThemeChanged(QAction *action)
{
    if (!storeIfChanged(SK_SettingsKey::ApplicationTheme, action))
        return;
    applyTheme(action->data().toString());
    menu_refresh();
}

void SK_MainWindow::changeAppIconSize(QAction *action)
{
    if (!storeIfChanged(SK_SettingsKey::ApplicationIconSize, action))
        return;
    applyIconSize(action->data().toString());
    menu_refresh();
}

void SK_MainWindow::changeAppFontSize(QAction *action)
{
    if (!storeIfChanged(SK_SettingsKey::ApplicationFontSize, action))
        return;
    applyFontSize(action->data().toString());
    diskList->header()->setFont(listFont);
    arrayListTree->header()->setFont(listFont);
    arrayTree->setFont(listFont);
    eventList->setFont(listFont);
    eventList->header()->setFont(listFont);
    menuBar()->setFont(menuBarFont);
    for (QMenu *menu : {fileMenu, arrayMenu, diskMenu, viewMenu, helpMenu})
        menu->setFont(listFont);
    menu_refresh();
    adjustColumnWidths();
}

// A new language takes effect at the next start: the console quits and starts again.
void SK_MainWindow::slotLanguageChanged(QAction *action)
{
    if (!action)
        return;
    const QString code = action->data().toString();
    if (code == QSettings().value(SK_SettingsKey::ApplicationLanguage).toString())
        return;
    if (!confirm(tr("Restart %1 and change language to %2?")
                     .arg(QCoreApplication::applicationName(), action->text()))) {
        action->setChecked(false);
        return;
    }
    QSettings().setValue(SK_SettingsKey::ApplicationLanguage, code);
    QCoreApplication::quit();
    const QStringList arguments = QCoreApplication::arguments();
    QProcess::startDetached(arguments.value(0), arguments);
}

void SK_MainWindow::onStartupToggle_Form()
{
    auto *toggle = qobject_cast<QAction *>(sender());
    if (!toggle)
        return;
    const QString link = QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation) +
                         QDir::separator() + QStringLiteral("Startup") + QDir::separator() +
                         QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName() +
                         QStringLiteral(".lnk");
    QSettings settings;
    if (toggle->isChecked()) {
        settings.setValue(SK_SettingsKey::ApplicationRunOnStartup, true);
        QFile::link(QCoreApplication::applicationFilePath(), link);
    } else {
        QFile::remove(link);
        settings.setValue(SK_SettingsKey::ApplicationRunOnStartup, false);
    }
}
