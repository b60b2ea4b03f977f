// The refresh cycle: the disk list from the picture as it stands, the event poll, a
// fresh read, and a short-lived worker thread that hands the array list back to the
// GUI thread. Overlapping refreshes are allowed: each delivers its list, the last wins.

#include "app/sk_mainwindow.h"

#include <QHeaderView>
#include <QThread>
#include <QTreeWidget>

void SK_MainWindow::menu_refresh()
{
    diskHeaderState = diskList->header()->saveState();
    diskList->clear();
    fillDiskList();
    pollEvents();
    raidApi->RefreshConfig();
    updateArrayList();
}

void SK_MainWindow::updateArrayList()
{
    auto *thread = new QThread;
    thread->setObjectName(QStringLiteral("refreshThread"));
    auto *worker = new ApiWorker;
    worker->moveToThread(thread);
    connect(thread, &QThread::started, worker, &ApiWorker::UpdateArrayData);
    qRegisterMetaType<QList<LogicalDrive *>>("QList<struct LogicalDrive*>");
    qRegisterMetaType<QList<LogicalDrive *>>();
    connect(worker, &ApiWorker::arrayDataReady, this, &SK_MainWindow::handleUpdateArrayList);
    connect(worker, &ApiWorker::arrayDataReady, thread, &QThread::quit);
    connect(worker, &ApiWorker::arrayDataReady, worker, &QObject::deleteLater);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
    disableArrayActions();
}

void SK_MainWindow::handleUpdateArrayList(QList<LogicalDrive *> ArrayList)
{
    if (!arrayList.isEmpty())
        arrayList.clear();
    arrayList = ArrayList;
    arrayHeaderState = arrayListTree->header()->saveState();
    arrayListTree->clear();
    rebuildArrayTree();
    fillArrayList();
    if (arrayTree->topLevelItem(0) && expandFirstArray) {
        arrayTree->topLevelItem(0)->setExpanded(true);
        expandFirstArray = false;
    }
    emit refreshed();
}
