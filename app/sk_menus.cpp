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

    // Theme, icon size and font size as the last run left them; the font size first,
    // so the menus are made in the size the user chose.
    QSettings settings;
    applyFontSize(settings.value(SK_SettingsKey::ApplicationFontSize).toString());
    for (QMenu *menu : {fileMenu, arrayMenu, diskMenu, viewMenu, helpMenu}) {
        bar->addMenu(menu);
        menu->setFont(listFont);
    }
    bar->setFont(menuBarFont);
    applyTheme(settings.value(SK_SettingsKey::ApplicationTheme).toString());
    applyIconSize(settings.value(SK_SettingsKey::ApplicationIconSize).toString());
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

// The action or submenu behind each entry of the enablement rules; "Cache Arrays"
// exists only with caching.
QList<SK_MainWindow::ArrayActionWidget> SK_MainWindow::arrayActionWidgets() const
{
    using A = SK_ArrayAction;
    QList<ArrayActionWidget> widgets = {{A::Transform, transformAct, nullptr},
                                        {A::RemoveSpares, removeSparesAct, nullptr},
                                        {A::SecureErase, secureEraseAct, nullptr},
                                        {A::Delete, deleteAct, nullptr},
                                        {A::Name, nameAct, nullptr},
                                        {A::PrepareRemove, prepareRemoveAct, nullptr},
                                        {A::Hide, hideAct, nullptr},
                                        {A::Identify, identifyAct, nullptr},
                                        {A::Priority, priorityAct, nullptr},
                                        {A::Resume, resumeAct, nullptr},
                                        {A::Pause, pauseAct, nullptr},
                                        {A::RemoveTask, removeTaskAct, nullptr},
                                        {A::ScanStart, scanStartAct, nullptr},
                                        {A::ScanStop, scanStopAct, nullptr},
                                        {A::ConsistencyStart, consistencyStartAct, nullptr},
                                        {A::ConsistencyStop, consistencyStopAct, nullptr},
                                        {A::ScanMenu, nullptr, scanMenu},
                                        {A::ConsistencyMenu, nullptr, consistencyMenu},
                                        {A::CacheMenu, nullptr, cacheMenu},
                                        {A::TaskMenu, nullptr, taskMenu},
                                        {A::DeleteMultiple, deleteMultipleAct, nullptr},
                                        {A::Initialize, initializeAct, nullptr},
                                        {A::ClearMetadata, clearMetadataAct, nullptr}};
    if (cacheArraysAct)
        widgets.append({A::CacheArrays, cacheArraysAct, nullptr});
    return widgets;
}

SK_ArrayActions SK_MainWindow::shownArrayActions() const
{
    SK_ArrayActions shown;
    for (const ArrayActionWidget &widget : arrayActionWidgets())
        shown.setEnabled(widget.entry,
                         widget.action ? widget.action->isEnabled() : widget.menu->isEnabled());
    return shown;
}

void SK_MainWindow::showArrayActions(const SK_ArrayActions &actions)
{
    for (const ArrayActionWidget &widget : arrayActionWidgets()) {
        const bool on = actions.isEnabled(widget.entry);
        if (widget.action)
            widget.action->setEnabled(on);
        else
            widget.menu->setEnabled(on);
    }
}

void SK_MainWindow::disableArrayActions()
{
    showArrayActions(baseArrayActions(*raidApi, shownArrayActions()));
}

void SK_MainWindow::updateArrayActions(quint32 array)
{
    SK_ArrayActionContext context;
    context.array = array;
    context.arrayCount = arrayList.size();
    context.admin = isAdmin;
    context.caching = cacheArraysAct != nullptr;
    const SK_ArrayActionState state = allowedArrayActions(*raidApi, context, shownArrayActions());
    showArrayActions(state.actions);
    if (state.arrayVanished && selectedArray == array)
        selectedArray = 0;
    if (state.hideText != SK_HideText::Unchanged)
        hideAct->setText(state.hideText == SK_HideText::UnHide ? tr("Un-Hide") : tr("Hide"));
    switch (state.cacheCheck) {
    case SK_CacheCheck::None:
        setCacheChecks(cacheNoneAct);
        break;
    case SK_CacheCheck::Read:
        setCacheChecks(cacheReadAct);
        break;
    case SK_CacheCheck::Write:
        setCacheChecks(cacheWriteAct);
        break;
    case SK_CacheCheck::ReadWrite:
        setCacheChecks(cacheReadWriteAct);
        break;
    case SK_CacheCheck::Unchanged:
        break;
    }
}

void SK_MainWindow::setCacheChecks(QAction *checked)
{
    for (QAction *action : {cacheNoneAct, cacheReadAct, cacheWriteAct, cacheReadWriteAct})
        action->setChecked(action == checked);
}
