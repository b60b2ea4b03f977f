#pragma once
// SK_MainWindow: the whole console in one window. Four panes in three splitters (the
// array tree, the disk list, the array list and the event view), the menu bar with
// one set of actions, the status bar, and three timers that keep the picture live.
// Everything it knows of the RAID stack it asks of SK_RaidApi.

#include "service/service.h"

#include <QByteArray>
#include <QFont>
#include <QList>
#include <QMainWindow>
#include <QSize>
#include <QTimer>

#include <list>
#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

class SK_MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit SK_MainWindow(QWidget *parent = nullptr);
    ~SK_MainWindow() override;

    // For tests and the refresh cycle: the instance used on the GUI thread.
    SK_RaidApi *api() const { return raidApi; }
    quint32 currentArray() const { return selectedArray; }

signals:
    // Emitted once a refresh's array list has been handed back and every pane rebuilt.
    void refreshed();

public slots:
    // Refresh cycle
    void menu_refresh();
    void updateArrayList();
    void handleUpdateArrayList(QList<LogicalDrive *> ArrayList);

    // Views
    void arraySelectedChanged(QTreeWidgetItem *current, int column);
    void arrayListSelectionChanged(QTreeWidgetItem *current, int column);
    void activeArrayCollapsed(QTreeWidgetItem *array);
    void activeArrayExpanded(QTreeWidgetItem *array);
    void preserveSortDiskList(int columnNum);
    void preserveSortArrayList(int columnNum);
    void preserveSortEventList(int columnNum);
    void enableDiskOption();

    // Menus
    void ShowContextMenu(const QPoint &pos);
    void ShowContextMenuArrayList(const QPoint &pos);
    void disableArrayActions();
    void updateArrayActions(quint32 array);
    void diskDoubleClicked(QTreeWidgetItem *item, int column);
    void diskOptionsClicked();

    // Event view
    void pollEvents();
    void eventViewToggle_Form();
    void eventViewFilter_Form();

    // Status bar
    void statusBarRefresh();
    void updateStatusBar(SK_IoStats ioStats);

    // Array actions
    void createForm();
    void transform_Form();
    void initTiering_Form();
    void startConsistencyCheck();
    void stopConsistencyCheck();
    void startBackgroundScan();
    void stopBackgroundScan();
    void setCacheNone();
    void setCacheRead();
    void setCacheWrite();
    void setCacheReadWrite();
    void taskPriority_Form();
    void resumeTask();
    void pauseTask();
    void removeTask();
    void renameArray();
    void hideArray();
    void identifyArray();
    void prepareToRemove();
    void prepareRemoveFinished(int returnCode);
    void removeSpares();
    void deleteArray();
    void deleteMultipleArrays();
    void secureEraseArray();
    void rescanDisks();

    // Disk and view entries that open dialogs
    void initDisks_Form();
    void clearMetadata_Form();
    void diskProperties_Form();
    void smartDiskOverview_Form();
    void viewControllers_Form();
    void applicationLog();
    void about();
    void userGuide();
    void supportSite();
    void eula();

    // Appearance
    void appThemeChanged(QAction *action);
    void changeAppIconSize(QAction *action);
    void changeAppFontSize(QAction *action);
    // Kept for a language menu and a run-at-start entry; no action reaches them today.
    void slotLanguageChanged(QAction *action);
    void onStartupToggle_Form();

private:
    // Construction steps
    void createActions();
    void createMenus();
    void createPanes();
    void layOutPanes();
    void createStatusBar();
    void applyFonts();
    void adjustColumnWidths();
    void checkDriverPresence();
    void showRightsMessage();
    bool rightsCheck();

    // Views
    void buildArrayTree();
    void rebuildArrayTree();
    void fillDiskList();
    void fillArrayList();
    void boldMemberDisks();
    QColor stateColor(const QString &state, bool hidden) const;
    QColor plainColor() const;
    bool darkTheme() const;

    // Event view
    void addEventRows(const std::vector<SK_EventRecord> &records);
    void sortEventList();

    // Appearance
    void applyTheme(const QString &theme);
    void applyIconSize(const QString &size);
    void applyFontSize(const QString &size);

    // Actions
    bool confirm(const QString &question);
    void setCacheChecks(QAction *checked);

    // The enablement rules' flags read from and shown on the actions and submenus.
    struct ArrayActionWidget
    {
        SK_ArrayAction entry;
        QAction *action; // either an action
        QMenu *menu;     // or a submenu
    };
    QList<ArrayActionWidget> arrayActionWidgets() const;
    SK_ArrayActions shownArrayActions() const;
    void showArrayActions(const SK_ArrayActions &actions);

    SK_RaidApi *raidApi = nullptr;
    SK_RaidApi *statsApi = nullptr;
    QSize smallIconSize{24, 24};
    QSize largeIconSize{48, 48};
    QSize iconSize{24, 24};
    quint32 selectedArray = 0;
    bool isAdmin = false;
    bool cachingEnabled = false;
    quint32 minEventNumber = 3;
    qint32 eventLanguage = 0;
    bool expandFirstArray = true;
    std::unique_ptr<SK_EventJournal> eventJournal;
    QString selectedDiskText;
    QString logFilePath;
    QString languageDir = QStringLiteral(":/translations/languages");
    qint32 statusInterval = 3000;
    qint32 refreshInterval = 5000;
    QList<LogicalDrive *> arrayList;
    qint32 diskSortOrder = 0;
    qint32 diskSortColumn = 0;
    bool diskHeaderRestored = false;
    QByteArray diskHeaderState;
    qint32 arraySortOrder = 0;
    qint32 arraySortColumn = 0;
    bool arrayHeaderRestored = false;
    QByteArray arrayHeaderState;
    qint32 eventSortOrder = 1;
    qint32 eventSortColumn = 0;
    QFont normalListFont, normalMenuFont, largeListFont, largeMenuFont, smallListFont,
        smallMenuFont;
    QFont listFont, menuBarFont;
    QSplitter *mainSplitter = nullptr;
    QSplitter *rightSplitter = nullptr;
    QSplitter *upperSplitter = nullptr;
    QTreeWidget *arrayTree = nullptr;
    QTreeWidget *diskList = nullptr;
    QTreeWidget *arrayListTree = nullptr;
    QTreeWidget *eventList = nullptr;
    QList<QLabel *> statusLabels;
    QTimer *statsTimer = nullptr;
    QTimer *refreshTimer = nullptr;
    QTimer notifyTimer;
    bool notifyArmed = true;

    // Menus and actions
    QMenu *fileMenu = nullptr, *arrayMenu = nullptr, *diskMenu = nullptr, *viewMenu = nullptr,
          *helpMenu = nullptr;
    QMenu *consistencyMenu = nullptr, *scanMenu = nullptr, *cacheMenu = nullptr,
          *taskMenu = nullptr, *themeMenu = nullptr, *iconSizeMenu = nullptr,
          *fontSizeMenu = nullptr;
    QAction *quitAct = nullptr, *createAct = nullptr, *transformAct = nullptr,
            *cacheArraysAct = nullptr, *consistencyStartAct = nullptr,
            *consistencyStopAct = nullptr, *scanStartAct = nullptr, *scanStopAct = nullptr,
            *cacheNoneAct = nullptr, *cacheReadAct = nullptr, *cacheWriteAct = nullptr,
            *cacheReadWriteAct = nullptr, *priorityAct = nullptr, *resumeAct = nullptr,
            *pauseAct = nullptr, *removeTaskAct = nullptr, *nameAct = nullptr, *hideAct = nullptr,
            *identifyAct = nullptr, *prepareRemoveAct = nullptr, *removeSparesAct = nullptr,
            *deleteAct = nullptr, *deleteMultipleAct = nullptr, *secureEraseAct = nullptr;
    QAction *rescanAct = nullptr, *initializeAct = nullptr, *clearMetadataAct = nullptr,
            *propertiesAct = nullptr, *smartAct = nullptr, *optionsAct = nullptr;
    QAction *refreshAct = nullptr, *appLogAct = nullptr, *controllersAct = nullptr,
            *eventViewAct = nullptr, *darkAct = nullptr, *lightAct = nullptr,
            *smallIconsAct = nullptr, *largeIconsAct = nullptr, *smallFontAct = nullptr,
            *normalFontAct = nullptr, *largeFontAct = nullptr;
    QAction *aboutAct = nullptr, *userGuideAct = nullptr, *supportAct = nullptr, *eulaAct = nullptr;
};
