// The event view: the rows of the driver's event log as the journal reads it at every
// refresh, the notice an insertion or removal opens, and the pane's sorting.

#include "app/sk_mainwindow.h"

#include "dialogs/dialogs.h"

#include <QAction>
#include <QHeaderView>
#include <QInputDialog>
#include <QTreeWidget>

namespace {

QString priorityText(quint32 priority)
{
    switch (priority) {
    case 0:
        return SK_MainWindow::tr("Very Low");
    case 1:
        return SK_MainWindow::tr("Informational");
    case 2:
        return SK_MainWindow::tr("Warning");
    case 3:
        return SK_MainWindow::tr("Critical");
    case 4:
        return SK_MainWindow::tr("Fatal");
    default:
        return SK_MainWindow::tr("Unknown");
    }
}

} // namespace

// Reads the new events into the pane. The first poll shows what the driver held at
// start, with the times "EventsLog.xml" kept for them; later ones show what arrived
// since, stamped now, and may open the insert and remove notice. A poll that found
// nothing leaves the pane as it is.
void SK_MainWindow::pollEvents()
{
    const SK_EventJournal::Poll poll = eventJournal->poll(static_cast<quint32>(eventLanguage));
    addEventRows(poll.added);
    if (poll.first) {
        sortEventList();
        return;
    }
    if (poll.wantNotice && poll.notifyCode >= 1 && notifyArmed) {
        notifyArmed = false;
        auto *notice =
            new Sk_insertRemoveDialog(*raidApi, static_cast<quint32>(poll.notifyCode), this);
        notice->setObjectName(QStringLiteral("insertRemoveNotice"));
        notice->setModal(true);
        notice->setWindowTitle(tr("Event Notification"));
        notice->setWindowFlags(notice->windowFlags() & ~Qt::WindowContextHelpButtonHint);
        notice->exec();
        delete notice;
        notifyTimer.start();
    }
    if (poll.added.empty())
        return;
    eventList->resizeColumnToContents(1);
    eventList->setColumnWidth(1, eventList->columnWidth(1) + 10);
}

void SK_MainWindow::sortEventList()
{
    eventList->setSortingEnabled(true);
    eventList->sortByColumn(eventSortColumn, static_cast<Qt::SortOrder>(eventSortOrder));
    eventList->setRootIsDecorated(false);
}

// The rows go in together and are sorted once: a sorted pane would place each one on
// its own.
void SK_MainWindow::addEventRows(const std::vector<SK_EventRecord> &records)
{
    if (records.empty())
        return;
    QList<QTreeWidgetItem *> rows;
    rows.reserve(static_cast<int>(records.size()));
    for (const SK_EventRecord &record : records) {
        auto *row = new QTreeWidgetItem;
        row->setData(0, Qt::DisplayRole, record.number);
        row->setText(1, record.time);
        row->setText(2, QString::number(record.code));
        row->setText(3, priorityText(record.priority));
        row->setText(4, record.text);
        rows.append(row);
    }
    eventList->setSortingEnabled(false);
    eventList->addTopLevelItems(rows);
    sortEventList();
}

void SK_MainWindow::eventViewToggle_Form()
{
    eventList->setHidden(!eventViewAct->isChecked());
}

void SK_MainWindow::eventViewFilter_Form()
{
    bool accepted = false;
    const int maximum = static_cast<int>(eventJournal->nextEventNumber()) - 1;
    const int value = QInputDialog::getInt(
        this, tr("Event View Filter"), tr("Please enter the minimum event number you wish to see:"),
        0, 3, maximum, 1, &accepted);
    if (accepted && value <= maximum) {
        minEventNumber = static_cast<quint32>(value);
        menu_refresh();
    }
}
