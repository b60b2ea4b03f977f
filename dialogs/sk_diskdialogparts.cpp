#include "dialogs/sk_diskdialogparts.h"

#include "service/service.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace SK_DiskDialogParts {

QString portLabel(const SK_ConfigDisk &disk)
{
    return QString::number(disk.ControllerNumber) + QLatin1Char(' ') +
           QString::number(disk.Channel);
}

bool fillInitialiseList(SK_RaidApi &api, QTreeWidget *list, bool clearMetadata)
{
    // Both dialogs show the initialise dialog's words.
    static const char *const headers[] = {QT_TRANSLATE_NOOP("SK_initDisksDialog", "Disk"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "State"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "Type"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "Uses"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "Free Space"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "Model Number"),
                                          QT_TRANSLATE_NOOP("SK_initDisksDialog", "Serial Number")};
    QStringList labels;
    for (const char *header : headers)
        labels << QCoreApplication::translate("SK_initDisksDialog", header);
    list->setColumnCount(7);
    list->setHeaderLabels(labels);
    list->setRootIsDecorated(false);

    bool anyUnknown = false;
    for (int index = 0; index < api.GetDiskCount(); ++index) {
        const SK_ConfigDisk *disk = api.GetDiskRecord(index);
        if (!disk || SK_FieldText(disk->Type) == QLatin1String("Core"))
            continue;
        const int id = api.GetDiskIdByPort(disk->ControllerNumber, disk->Channel);
        if (!api.DiskCanBeInitialized(id, clearMetadata))
            continue;
        if (!clearMetadata && api.DiskIsGlobalSpare(id))
            continue;
        const QString type = SK_FieldText(disk->Type);
        const bool unknown = type == QLatin1String("Unknown");
        anyUnknown |= unknown;

        auto *row = new QTreeWidgetItem(list);
        row->setText(0, portLabel(*disk));
        row->setCheckState(0, Qt::Unchecked);
        row->setData(0, Qt::UserRole, id);
        row->setText(1, SK_FieldText(disk->State));
        row->setText(2, unknown && !clearMetadata
                            ? QCoreApplication::translate("SK_initDisksDialog", "New")
                            : type);
        row->setText(3, QString::number(api.DiskUseCount(id)));
        row->setText(4, SK_RaidApi::CapacityText(static_cast<qint64>(disk->TotalFreeSpace)));
        row->setText(5, SK_FieldText(disk->Model).trimmed());
        row->setText(6, api.SerialText(index));
    }
    fitColumns(list, 6);
    list->setSortingEnabled(true);
    list->sortByColumn(0, Qt::AscendingOrder);
    return anyUnknown;
}

SK_InitDisks tickedDisks(const QTreeWidget *list, quint8 clearMetadata)
{
    SK_InitDisks record;
    record.clearMetadata = clearMetadata;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(list)); *it; ++it) {
        if ((*it)->checkState(0) == Qt::Unchecked)
            continue;
        if (record.diskCount >= SK_MAX_LIST_DISKS)
            break;
        record.disks[record.diskCount++] = (*it)->data(0, Qt::UserRole).toUInt();
    }
    return record;
}

bool anyTicked(const QTreeWidget *list)
{
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(list)); *it; ++it) {
        if ((*it)->checkState(0) != Qt::Unchecked)
            return true;
    }
    return false;
}

void tickAll(QTreeWidget *list)
{
    for (QTreeWidgetItemIterator it(list); *it; ++it)
        (*it)->setCheckState(0, Qt::Checked);
}

void fitColumns(QTreeWidget *list, int count)
{
    for (int column = 0; column < count; ++column) {
        list->resizeColumnToContents(column);
        list->setColumnWidth(column, list->columnWidth(column) + 5);
    }
}

} // namespace SK_DiskDialogParts
