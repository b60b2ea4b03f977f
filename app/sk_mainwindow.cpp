// Construction and end of the main window. The order of the construction steps
// matters: the menus exist before the first refresh, the service reads the
// configuration before the panes are filled, and the timers start last.

#include "app/sk_mainwindow.h"

#include "app/sk_languages.h"
#include "app/sk_settings.h"
#include "dialogs/dialogs.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeWidget>

namespace {

QFont segoe(int pointSize)
{
    QFont font(QStringLiteral("Segoe UI"), pointSize, 50);
    return font;
}

// Width adjustments of the disk list's columns after they were fitted to their
// contents: the bold measuring font leaves some columns too wide.
constexpr int kDiskColumnTrim[13] = {-15, 0, 0, 5, 0, -15, -15, -25, -30, -15, 0, 0, 0};

} // namespace

SK_MainWindow::SK_MainWindow(QWidget *parent)
    : QMainWindow(parent), normalListFont(segoe(10)), normalMenuFont(segoe(11)),
      largeListFont(segoe(12)), largeMenuFont(segoe(13)), smallListFont(segoe(8)),
      smallMenuFont(segoe(9)), listFont(normalListFont), menuBarFont(normalMenuFont)
{
    setObjectName(QStringLiteral("SK_MainWindow"));
    iconSize = smallIconSize;

    // Window geometry and state of the last run.
    {
        QSettings settings;
        // A first start has no geometry; the current one would "restore" to nothing.
        const bool restored =
            settings.contains(SK_SettingsKey::MainWindowGeometry) &&
            restoreGeometry(settings.value(SK_SettingsKey::MainWindowGeometry).toByteArray());
        restoreState(settings.value(SK_SettingsKey::MainWindowState).toByteArray(), 0);
        if (!restored) {
            const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
            resize(static_cast<int>(available.width() * 0.8),
                   static_cast<int>(available.height() * 0.8));
        }
    }

    // The cache arrays exist only with drivers of the 9.0.0 line.
    QString raidVersion;
    SK_RaidApi::GetDriverVersion(QStringLiteral("skraid.sys"), raidVersion);
    cachingEnabled = raidVersion.left(5) == QLatin1String("9.0.0");

    createActions();
    createMenus();

    raidApi = new SK_RaidApi;

    const QString folder = SK_AppLog::folderFor(QCoreApplication::applicationDirPath(),
                                                QCoreApplication::applicationName());
    logFilePath = SK_AppLog::ensureLogFile(folder, QCoreApplication::applicationName());
    raidApi->SetLogPath(logFilePath);
    eventJournal = std::make_unique<SK_EventJournal>(
        *raidApi,
        [] {
            const QString place = SK_AppLog::folderFor(QCoreApplication::applicationDirPath(),
                                                       QCoreApplication::applicationName());
            return QDir(place).absoluteFilePath(QStringLiteral("EventsLog.xml"));
        },
        logFilePath);

    isAdmin = raidApi->IsAdministrator();

    createPanes();
    layOutPanes();

    // The statistics are read on the GUI thread by an instance of their own, whose
    // signal arrives here directly.
    statsApi = new SK_RaidApi;
    connect(statsApi, &SK_RaidApi::StatsRetrieved, this, &SK_MainWindow::updateStatusBar);

    statsTimer = new QTimer(this);
    statsTimer->setObjectName(QStringLiteral("statsTimer"));
    statsTimer->setTimerType(Qt::PreciseTimer);
    connect(statsTimer, &QTimer::timeout, this, &SK_MainWindow::statusBarRefresh);
    statsTimer->start(statusInterval);

    notifyTimer.setObjectName(QStringLiteral("notifyTimer"));
    notifyTimer.setInterval(5000);
    notifyTimer.setSingleShot(true);
    connect(&notifyTimer, &QTimer::timeout, this, [this] { notifyArmed = true; });

    eventLanguage =
        SK_EventLanguage(QSettings().value(SK_SettingsKey::ApplicationLanguage).toString());

    menu_refresh();
    createStatusBar();
    pollEvents();

    setWindowTitle(QCoreApplication::applicationName());
    setWindowIcon(QIcon(QStringLiteral(":images/icons/Logo.ico")));
    setCentralWidget(mainSplitter);
    diskList->setAlternatingRowColors(true);
    arrayListTree->setAlternatingRowColors(true);
    eventList->setAlternatingRowColors(true);

    applyFonts();
    adjustColumnWidths();
    {
        QSettings settings;
        diskHeaderRestored = diskList->header()->restoreState(
            settings.value(SK_SettingsKey::DiskListHeaderState).toByteArray());
        arrayHeaderRestored = arrayListTree->header()->restoreState(
            settings.value(SK_SettingsKey::ArrayListHeaderState).toByteArray());
    }

    refreshTimer = new QTimer(this);
    refreshTimer->setObjectName(QStringLiteral("refreshTimer"));
    refreshTimer->setTimerType(Qt::PreciseTimer);
    connect(refreshTimer, &QTimer::timeout, this, &SK_MainWindow::menu_refresh);
    refreshTimer->start(refreshInterval);

    checkDriverPresence();
    if (!isAdmin)
        showRightsMessage();
    else if (raidApi->GetArrayCount() > 1)
        deleteMultipleAct->setEnabled(true);
}

SK_MainWindow::~SK_MainWindow()
{
    QSettings settings;
    settings.setValue(SK_SettingsKey::MainWindowGeometry, saveGeometry());
    settings.setValue(SK_SettingsKey::MainWindowState, saveState(0));
    settings.setValue(SK_SettingsKey::DiskListHeaderState, diskList->header()->saveState());
    settings.setValue(SK_SettingsKey::ArrayListHeaderState, arrayListTree->header()->saveState());
    delete mainSplitter;
    // The statistics thread never runs, so a deferred delete would never be carried out.
    delete statsApi;
    delete raidApi;
}

void SK_MainWindow::createPanes()
{
    mainSplitter = new QSplitter;
    mainSplitter->setObjectName(QStringLiteral("mainSplitter"));
    rightSplitter = new QSplitter;
    rightSplitter->setObjectName(QStringLiteral("rightSplitter"));
    upperSplitter = new QSplitter;
    upperSplitter->setObjectName(QStringLiteral("upperSplitter"));
    arrayTree = new QTreeWidget;
    arrayTree->setObjectName(QStringLiteral("arrayTree"));
    diskList = new QTreeWidget;
    diskList->setObjectName(QStringLiteral("diskList"));
    arrayListTree = new QTreeWidget;
    arrayListTree->setObjectName(QStringLiteral("arrayListTree"));
    eventList = new QTreeWidget;
    eventList->setObjectName(QStringLiteral("eventList"));

    arrayTree->setItemDelegate(new CustomDelegate(arrayTree));
    diskList->setItemDelegate(new CustomDelegate(diskList));
    eventList->setItemDelegate(new CustomDelegate(eventList));

    arrayTree->setColumnCount(1);
    arrayTree->setHeaderHidden(true);
    arrayTree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(arrayTree, &QTreeWidget::itemPressed, this, &SK_MainWindow::arraySelectedChanged);
    connect(arrayTree, &QWidget::customContextMenuRequested, this, &SK_MainWindow::ShowContextMenu);
    connect(arrayTree, &QTreeWidget::itemCollapsed, this, &SK_MainWindow::activeArrayCollapsed);
    connect(arrayTree, &QTreeWidget::itemExpanded, this, &SK_MainWindow::activeArrayExpanded);

    diskList->setColumnCount(13);
    diskList->setHeaderLabels({tr("Disk"), tr("State"), tr("Type"), tr("Port Type"), tr("Capacity"),
                               tr("Free Space"), tr("Largest Free"), tr("Global Spare"),
                               tr("Informed Hot Swap"), tr("Uses"), tr("Model Number"),
                               tr("Serial Number"), tr("Firmware Revision")});
    diskList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(diskList, &QTreeWidget::itemDoubleClicked, this, &SK_MainWindow::diskDoubleClicked);
    connect(diskList, &QTreeWidget::itemSelectionChanged, this, &SK_MainWindow::enableDiskOption);
    connect(diskList, &QWidget::customContextMenuRequested, this,
            &SK_MainWindow::diskOptionsClicked);
    connect(diskList->header(), &QHeaderView::sectionClicked, this,
            &SK_MainWindow::preserveSortDiskList);

    arrayListTree->setColumnCount(17);
    arrayListTree->setHeaderLabels(
        {tr("Device"), tr("OS Name"), tr("System"), tr("Partition"), tr("Array Name"), tr("Type"),
         tr("Total Capacity"), tr("State"), tr("Task"), tr("Task State"), tr("Progress"), tr("Pri"),
         tr("Scan"), tr("Cache"), tr("CTS"), tr("Trim"), tr("Ded Spare")});
    arrayListTree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(arrayListTree, &QTreeWidget::itemPressed, this,
            &SK_MainWindow::arrayListSelectionChanged);
    connect(arrayListTree, &QWidget::customContextMenuRequested, this,
            &SK_MainWindow::ShowContextMenuArrayList);
    connect(arrayListTree->header(), &QHeaderView::sectionClicked, this,
            &SK_MainWindow::preserveSortArrayList);

    eventList->setColumnCount(5);
    eventList->setHeaderLabels({tr("#"), tr("Date"), tr("Event"), tr("Priority"), tr("Text")});
    connect(eventList->header(), &QHeaderView::sectionClicked, this,
            &SK_MainWindow::preserveSortEventList);
}

// The disk list above the array list on the right, the array tree left of them, the
// event view below everything.
void SK_MainWindow::layOutPanes()
{
    rightSplitter->setOrientation(Qt::Vertical);
    rightSplitter->addWidget(diskList);
    rightSplitter->addWidget(arrayListTree);
    upperSplitter->addWidget(arrayTree);
    upperSplitter->addWidget(rightSplitter);
    upperSplitter->setStretchFactor(0, 2);
    upperSplitter->setStretchFactor(1, 7);
    mainSplitter->setOrientation(Qt::Vertical);
    mainSplitter->addWidget(upperSplitter);
    mainSplitter->addWidget(eventList);
    mainSplitter->setStretchFactor(0, 2);
}

void SK_MainWindow::applyFonts()
{
    applyFontSize(QSettings().value(SK_SettingsKey::ApplicationFontSize).toString());
    for (QTreeWidget *tree : {diskList, arrayListTree, eventList}) {
        tree->setFont(listFont);
        tree->header()->setFont(listFont);
    }
    arrayTree->setFont(listFont);
}

// Columns are fitted to their contents measured in bold, so that the bold rows of the
// selected array's disks still fit.
void SK_MainWindow::adjustColumnWidths()
{
    QFont bold = arrayListTree->font();
    bold.setWeight(75);
    arrayListTree->setFont(bold);
    for (int column = 0; column < 17; ++column)
        arrayListTree->resizeColumnToContents(column);
    bold.setWeight(50);
    arrayListTree->setFont(bold);

    QFont diskBold = diskList->font();
    diskBold.setWeight(75);
    diskList->setFont(diskBold);
    for (int column = 0; column < 13; ++column) {
        diskList->resizeColumnToContents(column);
        diskList->setColumnWidth(column,
                                 diskList->columnWidth(column) - 8 + kDiskColumnTrim[column]);
    }
    diskBold.setWeight(50);
    diskList->setFont(diskBold);
}

void SK_MainWindow::checkDriverPresence()
{
    if (raidApi->DriverIsLoaded(QStringLiteral("skcfg.sys")) || raidApi->GetArrayCount() >= 1)
        return;
    const bool raid = raidApi->DriverIsLoaded(QStringLiteral("skraid.sys"));
    const bool bottom = raidApi->DriverIsLoaded(QStringLiteral("skbottom.sys"));
    if (!raid && !bottom) {
        // Not blocking: the window comes up empty behind the box, and OK ends the run.
        auto *box = new QMessageBox(this);
        box->setObjectName(QStringLiteral("noDriverMessage"));
        box->setText(tr("Unable to find the VOR RAID drivers, please confirm your BIOS settings "
                        "have RAID enabled.\n\nIf running AHCI/Native mode, nothing needs to be "
                        "done. Exiting application."));
        box->setStandardButtons(QMessageBox::Ok);
        connect(box, &QMessageBox::finished, this, [](int result) {
            if (result == QMessageBox::Ok)
                QCoreApplication::quit();
        });
        box->open();
        return;
    }
    QMessageBox::about(this, QCoreApplication::applicationName(),
                       tr("Unable to find skcfg RAID driver, please ensure all required RAID "
                          "drivers are installed."));
}

void SK_MainWindow::showRightsMessage()
{
    QMessageBox::about(
        this, QCoreApplication::applicationName(),
        QStringLiteral("<b>") + tr("Please run application as Administrator.") +
            QStringLiteral("</b><br><br>") +
            tr("While running this application at your current user privileges you will not "
               "be able to:") +
            QStringLiteral("<br>") + tr("  (1) Perform destructive commands.") +
            QStringLiteral("<br>") +
            tr("  (2) View array partitions and system array information."));
}

// Destructive actions start here: without rights the user is told why nothing
// happens, and the panes are refreshed.
bool SK_MainWindow::rightsCheck()
{
    if (isAdmin)
        return true;
    showRightsMessage();
    menu_refresh();
    return false;
}

void SK_MainWindow::createStatusBar()
{
    const QStringList tips = {
        tr("Value displays current MBs per second of performance between the OS and the "
           "VOR-RAID Driver."),
        tr("Value displays current MBs per second  performance between the VOR-RAID Driver and "
           "the storage device."),
        tr("Value displays current IOs per second performance between the OS and the VOR-RAID "
           "Driver."),
        tr("Value displays current IOs per second performance between the VOR-RAID Driver and "
           "the storage devices."),
        tr("Value displays total Bytes between the OS and the VOR-RAID Driver."),
        tr("Value displays total Bytes between the VOR-RAID Driver and the storage device.")};
    for (int i = 0; i < tips.size(); ++i) {
        auto *label = new QLabel(this);
        label->setObjectName(QStringLiteral("statusLabel%1").arg(i + 1));
        label->setToolTip(tips.at(i));
        statusBar()->addWidget(label, 1);
        statusLabels.append(label);
    }
}

void SK_MainWindow::statusBarRefresh()
{
    statsApi->RetrieveStats();
}

void SK_MainWindow::updateStatusBar(SK_IoStats ioStats)
{
    const QString texts[] = {ioStats.hostMBps, ioStats.diskMBps,  ioStats.hostIOps,
                             ioStats.diskIOps, ioStats.hostBytes, ioStats.diskBytes};
    for (int i = 0; i < statusLabels.size() && i < 6; ++i)
        statusLabels.at(i)->setText(texts[i]);
}
