// The one set of actions behind the menu bar and the two context menus, and the rules
// that decide which of them the selected array allows.

#include "app/sk_mainwindow.h"

#include "app/sk_settings.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QTreeWidget>

namespace {

QAction *makeAction(QObject *parent, const QString &objectName, const QString &text,
                    const QString &statusTip = QString())
{
    auto *action = new QAction(text, parent);
    action->setObjectName(objectName);
    if (!statusTip.isEmpty())
        action->setStatusTip(statusTip);
    return action;
}

QMenu *makeMenu(QWidget *parent, const QString &objectName, const QString &title)
{
    auto *menu = new QMenu(title, parent);
    menu->setObjectName(objectName);
    return menu;
}

} // namespace

void SK_MainWindow::createActions()
{
    using Slot = void (SK_MainWindow::*)();
    auto add = [this](QAction *&field, const char *name, const QString &text, const QString &tip,
                      Slot slot) {
        field = makeAction(this, QString::fromLatin1(name), text, tip);
        if (slot)
            connect(field, &QAction::triggered, this, slot);
        return field;
    };

    quitAct = makeAction(this, QStringLiteral("quitAct"), tr("&Quit"));
    connect(quitAct, &QAction::triggered, qApp, &QCoreApplication::quit);

    add(createAct, "createAct", tr("&Create"), tr("Create RAID array"), &SK_MainWindow::createForm);
    add(transformAct, "transformAct", tr("&Transform"), tr("Transform an existing RAID array"),
        &SK_MainWindow::transform_Form);
    if (cachingEnabled)
        add(cacheArraysAct, "cacheArraysAct", QStringLiteral("Cache Arrays"),
            tr("Create a cached array between two existing RAID arrays"),
            &SK_MainWindow::initTiering_Form);
    add(consistencyStartAct, "consistencyStartAct", tr("Start"), QString(),
        &SK_MainWindow::startConsistencyCheck);
    add(consistencyStopAct, "consistencyStopAct", tr("Stop"), QString(),
        &SK_MainWindow::stopConsistencyCheck);
    add(scanStartAct, "scanStartAct", tr("Start"), QString(), &SK_MainWindow::startBackgroundScan);
    add(scanStopAct, "scanStopAct", tr("Stop"), QString(), &SK_MainWindow::stopBackgroundScan);
    add(cacheNoneAct, "cacheNoneAct", tr("No Cache"), QString(), &SK_MainWindow::setCacheNone);
    add(cacheReadAct, "cacheReadAct", tr("Read Cache"), QString(), &SK_MainWindow::setCacheRead);
    add(cacheWriteAct, "cacheWriteAct", tr("Write Back Cache"), QString(),
        &SK_MainWindow::setCacheWrite);
    add(cacheReadWriteAct, "cacheReadWriteAct", tr("Read + Write Back Cache"), QString(),
        &SK_MainWindow::setCacheReadWrite);
    for (QAction *action : {cacheNoneAct, cacheReadAct, cacheWriteAct, cacheReadWriteAct})
        action->setCheckable(true);
    add(priorityAct, "priorityAct", tr("Priority"), QString(), &SK_MainWindow::taskPriority_Form);
    add(resumeAct, "resumeAct", tr("Resume"), QString(), &SK_MainWindow::resumeTask);
    add(pauseAct, "pauseAct", tr("Pause"), QString(), &SK_MainWindow::pauseTask);
    add(removeTaskAct, "removeTaskAct", tr("Remove"), QString(), &SK_MainWindow::removeTask);
    add(nameAct, "nameAct", tr("&Name"), tr("Change Array Name of Selected Array"),
        &SK_MainWindow::renameArray);
    add(hideAct, "hideAct", tr("Hide"), tr("Hide/Un-Hide an existing Array"),
        &SK_MainWindow::hideArray);
    add(identifyAct, "identifyAct", tr("Identify Array"),
        tr("Light LED(s) representing the selected Array"), &SK_MainWindow::identifyArray);
    add(prepareRemoveAct, "prepareRemoveAct", tr("&Prepare To Remove"),
        tr("Make the array invisible to the operating system for preparation of removal"),
        &SK_MainWindow::prepareToRemove);
    add(removeSparesAct, "removeSparesAct", tr("Remove Spares"),
        tr("Remove all dedicated spares assigned to this array"), &SK_MainWindow::removeSpares);
    add(deleteAct, "deleteAct", tr("&Delete"), tr("Delete an existing RAID array"),
        &SK_MainWindow::deleteArray);
    add(deleteMultipleAct, "deleteMultipleAct", tr("Delete &Multiple Arrays"),
        tr("Select multiple existing RAID arrays for deletion"),
        &SK_MainWindow::deleteMultipleArrays);
    add(secureEraseAct, "secureEraseAct", tr("&Secure Erase"),
        tr("Secure Erase an existing RAID array"), &SK_MainWindow::secureEraseArray);

    add(rescanAct, "rescanAct", tr("&Rescan"),
        tr("Rescan all channels to detect new or removed physical disks and arrays."),
        &SK_MainWindow::rescanDisks);
    add(initializeAct, "initializeAct", tr("&Initialize"), QString(),
        &SK_MainWindow::initDisks_Form);
    add(clearMetadataAct, "clearMetadataAct", tr("&Clear Metadata"), QString(),
        &SK_MainWindow::clearMetadata_Form);
    add(propertiesAct, "propertiesAct", tr("&Properties"), QString(),
        &SK_MainWindow::diskProperties_Form);
    add(smartAct, "smartAct", tr("&S.M.A.R.T. Overview"),
        tr("S.M.A.R.T. (Self-Monitoring, Analysis and Reporting Technology) is a monitoring "
           "system by the drive to detect and report various indicators of drive reliability."),
        &SK_MainWindow::smartDiskOverview_Form);
    add(optionsAct, "optionsAct", tr("&Options"), tr("Manage spares for the selected disk."),
        &SK_MainWindow::diskOptionsClicked);

    add(refreshAct, "refreshAct", tr("&Refresh"), QString(), &SK_MainWindow::menu_refresh);
    add(appLogAct, "appLogAct", tr("&Application Log"), tr("View application log information."),
        &SK_MainWindow::applicationLog);
    add(controllersAct, "controllersAct", tr("&View Controllers"), tr("View Controller List"),
        &SK_MainWindow::viewControllers_Form);
    add(eventViewAct, "eventViewAct", tr("&Event View"), tr("Collapse Event View"),
        &SK_MainWindow::eventViewToggle_Form);
    eventViewAct->setCheckable(true);
    eventViewAct->setChecked(true);

    add(aboutAct, "aboutAct", tr("&About"), tr("Display Application and RAID Driver versions"),
        &SK_MainWindow::about);
    add(userGuideAct, "userGuideAct", tr("&User Guide"), tr("Link to User Guide"),
        &SK_MainWindow::userGuide);
    add(supportAct, "supportAct", tr("&Support"), tr("Link to VOR Support Site"),
        &SK_MainWindow::supportSite);
    add(eulaAct, "eulaAct", tr("&EULA"), tr("View End User License Agreement (EULA)."),
        &SK_MainWindow::eula);

    // Checkable choices of the View submenus carry the word stored in the settings.
    auto choice = [this](QAction *&field, const char *name, const QString &text, const char *word,
                         QActionGroup *group) {
        field = makeAction(this, QString::fromLatin1(name), text);
        field->setCheckable(true);
        field->setData(QString::fromLatin1(word));
        group->addAction(field);
    };
    auto *themes = new QActionGroup(this);
    choice(darkAct, "darkAct", tr("Dark"), "dark", themes);
    choice(lightAct, "lightAct", tr("Light"), "light", themes);
    auto *icons = new QActionGroup(this);
    choice(smallIconsAct, "smallIconsAct", tr("Small"), "smallIcons", icons);
    choice(largeIconsAct, "largeIconsAct", tr("Large"), "largeIcons", icons);
    auto *fonts = new QActionGroup(this);
    choice(smallFontAct, "smallFontAct", tr("Small"), "smallFont", fonts);
    choice(normalFontAct, "normalFontAct", tr("Normal"), "normalFont", fonts);
    choice(largeFontAct, "largeFontAct", tr("Large"), "largeFont", fonts);

    for (QAction *action :
         {transformAct, consistencyStartAct, consistencyStopAct, scanStartAct, scanStopAct,
          priorityAct, resumeAct, pauseAct, removeTaskAct, hideAct, identifyAct, prepareRemoveAct,
          removeSparesAct, deleteAct, deleteMultipleAct, secureEraseAct, initializeAct,
          clearMetadataAct, optionsAct})
        action->setEnabled(false);
}

void SK_MainWindow::createMenus()
{
    QMenuBar *bar = menuBar();
    fileMenu = makeMenu(bar, QStringLiteral("fileMenu"), tr("&File"));
    fileMenu->addAction(quitAct);

    arrayMenu = makeMenu(bar, QStringLiteral("arrayMenu"), tr("&Array"));
    arrayMenu->addAction(createAct);
    arrayMenu->addAction(transformAct);
    if (cacheArraysAct)
        arrayMenu->addAction(cacheArraysAct);
    consistencyMenu =
        makeMenu(arrayMenu, QStringLiteral("consistencyMenu"), tr("Check Consistency"));
    consistencyMenu->addActions({consistencyStartAct, consistencyStopAct});
    scanMenu = makeMenu(arrayMenu, QStringLiteral("scanMenu"), tr("Background Array Scan"));
    scanMenu->addActions({scanStartAct, scanStopAct});
    cacheMenu = makeMenu(arrayMenu, QStringLiteral("cacheMenu"), tr("Modify Cache Settings"));
    cacheMenu->addActions({cacheNoneAct, cacheReadAct, cacheWriteAct, cacheReadWriteAct});
    taskMenu = makeMenu(arrayMenu, QStringLiteral("taskMenu"), tr("Task"));
    taskMenu->addActions({priorityAct, resumeAct, pauseAct, removeTaskAct});
    for (QMenu *sub : {consistencyMenu, scanMenu, cacheMenu, taskMenu}) {
        arrayMenu->addMenu(sub);
        sub->setEnabled(false);
    }
    arrayMenu->addActions({nameAct, hideAct, identifyAct, prepareRemoveAct, removeSparesAct,
                           deleteAct, deleteMultipleAct, secureEraseAct});

    diskMenu = makeMenu(bar, QStringLiteral("diskMenu"), tr("&Disk"));
    diskMenu->addActions(
        {rescanAct, initializeAct, clearMetadataAct, propertiesAct, smartAct, optionsAct});

    viewMenu = makeMenu(bar, QStringLiteral("viewMenu"), tr("&View"));
    viewMenu->addActions({refreshAct, appLogAct, controllersAct, eventViewAct});
    themeMenu = makeMenu(viewMenu, QStringLiteral("themeMenu"), tr("&Theme"));
    themeMenu->menuAction()->setStatusTip(tr("Change Application Color Theme"));
    themeMenu->addActions({darkAct, lightAct});
    connect(themeMenu, &QMenu::triggered, this, &SK_MainWindow::appThemeChanged);
    iconSizeMenu = makeMenu(viewMenu, QStringLiteral("iconSizeMenu"), tr("&Icon Size"));
    iconSizeMenu->menuAction()->setStatusTip(tr("Change Application's Icon Sizes"));
    iconSizeMenu->addActions({smallIconsAct, largeIconsAct});
    connect(iconSizeMenu, &QMenu::triggered, this, &SK_MainWindow::changeAppIconSize);
    fontSizeMenu = makeMenu(viewMenu, QStringLiteral("fontSizeMenu"), tr("&Font Size"));
    fontSizeMenu->menuAction()->setStatusTip(tr("Change Application's Font Sizes"));
    fontSizeMenu->addActions({smallFontAct, normalFontAct, largeFontAct});
    connect(fontSizeMenu, &QMenu::triggered, this, &SK_MainWindow::changeAppFontSize);
    for (QMenu *sub : {themeMenu, iconSizeMenu, fontSizeMenu})
        viewMenu->addMenu(sub);

    helpMenu = makeMenu(bar, QStringLiteral("helpMenu"), tr("&Help"));
    helpMenu->addActions({aboutAct, userGuideAct, supportAct, eulaAct});

    for (QMenu *menu : {fileMenu, arrayMenu, diskMenu, viewMenu, helpMenu}) {
        bar->addMenu(menu);
        menu->setFont(listFont);
    }
    bar->setFont(menuBarFont);

    // Theme, icon size and font size as the last run left them.
    QSettings settings;
    applyTheme(settings.value(SK_SettingsKey::ApplicationTheme).toString());
    applyIconSize(settings.value(SK_SettingsKey::ApplicationIconSize).toString());
    applyFontSize(settings.value(SK_SettingsKey::ApplicationFontSize).toString());
}

namespace {

void showArrayMenu(SK_MainWindow *window, QTreeWidget *tree, const QPoint &pos,
                   const QList<QAction *> &head, const QList<QMenu *> &subs,
                   const QList<QAction *> &tail)
{
    QMenu menu(window);
    menu.setObjectName(QStringLiteral("arrayContextMenu"));
    menu.addActions(head);
    for (QMenu *sub : subs)
        menu.addMenu(sub);
    menu.addActions(tail);
    menu.exec(tree->viewport()->mapToGlobal(pos));
    window->statusBar()->clearMessage();
}

} // namespace

void SK_MainWindow::ShowContextMenu(const QPoint &pos)
{
    QList<QAction *> head = {createAct, transformAct};
    if (cacheArraysAct)
        head.append(cacheArraysAct);
    showArrayMenu(this, arrayTree, pos, head, {consistencyMenu, scanMenu, cacheMenu, taskMenu},
                  {nameAct, hideAct, identifyAct, prepareRemoveAct, removeSparesAct, deleteAct,
                   deleteMultipleAct, secureEraseAct});
}

void SK_MainWindow::ShowContextMenuArrayList(const QPoint &pos)
{
    QList<QAction *> head = {createAct, transformAct};
    if (cacheArraysAct)
        head.append(cacheArraysAct);
    showArrayMenu(this, arrayListTree, pos, head, {consistencyMenu, scanMenu, cacheMenu, taskMenu},
                  {nameAct, hideAct, identifyAct, prepareRemoveAct, removeSparesAct, deleteAct,
                   deleteMultipleAct, secureEraseAct});
}

void SK_MainWindow::disableArrayActions()
{
    for (QAction *action :
         {transformAct, removeSparesAct, secureEraseAct, deleteAct, nameAct, prepareRemoveAct,
          hideAct, identifyAct, resumeAct, pauseAct, removeTaskAct, scanStartAct, scanStopAct,
          consistencyStartAct, consistencyStopAct})
        action->setEnabled(false);
    scanMenu->setEnabled(false);
    consistencyMenu->setEnabled(false);
    cacheMenu->setEnabled(false);
    initializeAct->setEnabled(raidApi->AnyDiskCanBeInitialized(false));
    clearMetadataAct->setEnabled(raidApi->AnyDiskCanBeInitialized(true));
}

// Later steps overrule earlier ones; the order is the rule.
void SK_MainWindow::updateArrayActions(quint32 array)
{
    disableArrayActions();
    if (arrayList.size() >= 2 && isAdmin)
        deleteMultipleAct->setEnabled(true);

    const int id = static_cast<int>(array);
    if (array > 0) {
        const LogicalDrive *record = raidApi->GetArrayRecord(id, true);
        if (!record) {
            if (selectedArray == array)
                selectedArray = 0;
            return;
        }
        const QString type = QString::fromLatin1(record->Type);
        const bool special =
            type == QLatin1String("RAIDTIER") || type == QLatin1String("RAIDCACHE");
        hideAct->setText(raidApi->ArrayIsHidden(id) ? tr("Un-Hide") : tr("Hide"));
        deleteAct->setEnabled(true);
        consistencyMenu->setEnabled(true);
        scanMenu->setEnabled(true);
        taskMenu->setEnabled(true);
        identifyAct->setEnabled(true);

        if (special)
            hideAct->setEnabled(!raidApi->ArrayHasTask(id));
        else
            enableForArray(*record);
        if (type == QLatin1String("LEGACY"))
            limitForLegacyArray();
        if (special)
            limitForTierOrCache();
        limitForRoleAndState(*record);
    }

    if (!isAdmin) {
        for (QAction *action :
             {deleteMultipleAct, deleteAct, secureEraseAct, prepareRemoveAct, hideAct})
            action->setEnabled(false);
        if (cacheArraysAct)
            cacheArraysAct->setEnabled(false);
    }
}

// An array of disks: the consistency check and scan always, then what its task allows.
void SK_MainWindow::enableForArray(const LogicalDrive &record)
{
    consistencyStartAct->setEnabled(true);
    consistencyStopAct->setEnabled(false);
    consistencyMenu->setEnabled(true);
    const bool scanning = (record.Attributes & 0x400) != 0;
    scanStartAct->setEnabled(!scanning);
    scanStopAct->setEnabled(scanning);
    if (raidApi->ArrayHasTask(record.Device))
        enableForRunningTask(record);
    else
        enableForIdleArray(record);
}

// While a task runs it can be paused, resumed or removed (a transform can't be
// removed), and a check can be stopped; the array itself is left alone.
void SK_MainWindow::enableForRunningTask(const LogicalDrive &record)
{
    priorityAct->setEnabled(true);
    taskMenu->setEnabled(true);
    const bool paused = QLatin1String(record.TransformState) == QLatin1String("PAUSED");
    resumeAct->setEnabled(paused);
    pauseAct->setEnabled(!paused);
    removeTaskAct->setEnabled(true);
    if (QLatin1String(record.TransformType) == QLatin1String("CHECK")) {
        consistencyStartAct->setEnabled(false);
        consistencyStopAct->setEnabled(true);
        consistencyMenu->setEnabled(true);
    } else {
        consistencyMenu->setEnabled(false);
    }
    if (QLatin1String(record.TransformType) == QLatin1String("TRANSFORM"))
        removeTaskAct->setEnabled(false);
    transformAct->setEnabled(false);
    removeSparesAct->setEnabled(false);
    nameAct->setEnabled(false);
    scanMenu->setEnabled(false);
    cacheMenu->setEnabled(false);
}

// An idle array can be changed in every way; its cache entry shows the current policy.
void SK_MainWindow::enableForIdleArray(const LogicalDrive &record)
{
    resumeAct->setEnabled(false);
    pauseAct->setEnabled(false);
    removeTaskAct->setEnabled(false);
    taskMenu->setEnabled(false);
    transformAct->setEnabled(true);
    secureEraseAct->setEnabled(true);
    hideAct->setEnabled(true);
    prepareRemoveAct->setEnabled(true);
    nameAct->setEnabled(true);
    removeSparesAct->setEnabled(record.SpareCount > 0);
    cacheMenu->setEnabled(true);
    const QString cache = QString::fromLatin1(record.Cache);
    const QList<QPair<QString, QAction *>> checks = {{QStringLiteral("NC"), cacheNoneAct},
                                                     {QStringLiteral("R"), cacheReadAct},
                                                     {QStringLiteral("W"), cacheWriteAct},
                                                     {QStringLiteral("RW"), cacheReadWriteAct}};
    for (const auto &check : checks) {
        if (check.first == cache)
            setCacheChecks(check.second);
    }
}

// A legacy array is only looked after, never reshaped, checked or erased.
void SK_MainWindow::limitForLegacyArray()
{
    consistencyMenu->setEnabled(false);
    consistencyStartAct->setEnabled(false);
    consistencyStopAct->setEnabled(false);
    removeSparesAct->setEnabled(false);
    transformAct->setEnabled(false);
    secureEraseAct->setEnabled(false);
    cacheMenu->setEnabled(false);
}

// A tier or cache pair can only be renamed, hidden or deleted.
void SK_MainWindow::limitForTierOrCache()
{
    disableArrayActions();
    for (QMenu *sub : {scanMenu, consistencyMenu, cacheMenu, taskMenu})
        sub->setEnabled(false);
    prepareRemoveAct->setEnabled(false);
    identifyAct->setEnabled(false);
    nameAct->setEnabled(true);
    hideAct->setEnabled(true);
    deleteAct->setEnabled(true);
}

// What the array's place and state forbid: a part of a tier or the system array stays,
// a plain array has nothing to check, a critical one isn't checked, an offline one
// takes no change, and an array on the system disk can't be prepared for removal.
void SK_MainWindow::limitForRoleAndState(const LogicalDrive &record)
{
    const int id = record.Device;
    auto disable = [](std::initializer_list<QAction *> actions) {
        for (QAction *action : actions)
            action->setEnabled(false);
    };
    if (raidApi->ArrayIsTierPart(id))
        disable({deleteAct, hideAct, prepareRemoveAct, secureEraseAct});
    if (raidApi->ArrayIsSystem(id))
        disable({deleteAct, hideAct, prepareRemoveAct, secureEraseAct});
    if (!raidApi->ArrayIsRedundant(id)) {
        consistencyMenu->setEnabled(false);
        disable({consistencyStartAct, consistencyStopAct, removeSparesAct});
    }
    const QString state = QString::fromLatin1(record.State);
    if (state == QLatin1String("CRITICAL")) {
        consistencyStartAct->setEnabled(false);
    } else if (state == QLatin1String("OFFLINE")) {
        disable({transformAct, removeSparesAct, secureEraseAct, nameAct, prepareRemoveAct, hideAct,
                 identifyAct, resumeAct, pauseAct, removeTaskAct, scanStartAct, scanStopAct,
                 consistencyStartAct, consistencyStopAct});
        scanMenu->setEnabled(false);
        consistencyMenu->setEnabled(false);
        cacheMenu->setEnabled(false);
    }
    if (prepareRemoveAct->isEnabled() && raidApi->ArrayUsesSystemDisk(id))
        prepareRemoveAct->setEnabled(false);
}

void SK_MainWindow::setCacheChecks(QAction *checked)
{
    for (QAction *action : {cacheNoneAct, cacheReadAct, cacheWriteAct, cacheReadWriteAct})
        action->setChecked(action == checked);
}
