#include "dialogs/sk_arraydialogparts.h"

#include "dialogs/sk_treeitems.h"
#include "service/sk_raidapi.h"

#include <QComboBox>
#include <QHeaderView>
#include <QIcon>
#include <QStandardItemModel>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <iterator>

namespace SK_ArrayDialogParts {

namespace {

const char *const kArrayTypes[] = {"VOLUME", "RAID0", "RAID1", "RAID10", "RAID5", "RAID6"};
const char *const kCacheTypes[] = {"RW", "R", "W", "NC"};

// Column numbers of the disk list; from "Trim" on they shift by one without it.
enum DiskColumn {
    ColDisk,
    ColPortType,
    ColCapacity,
    ColUses,
    ColFreeSpace,
    ColLargestFree,
    ColGlobalSpare,
    ColTrim
};

void setCell(QTreeWidgetItem *item, int column, const QString &text, const QVariant &sortKey)
{
    item->setText(column, text);
    item->setData(column, SK_Role::SortKey, sortKey);
}

void setTextCell(QTreeWidgetItem *item, int column, const QString &text)
{
    setCell(item, column, text, text);
}

QString trimText(SK_RaidApi &api, int id)
{
    if (api.DiskHasAdvancedTrim(id))
        return QStringLiteral("Advanced");
    if (api.DiskHasSimpleTrim(id))
        return QStringLiteral("Simple");
    return QStringLiteral("No");
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("Yes") : QStringLiteral("No");
}

} // namespace

QString arrayTypeOfRow(int row)
{
    if (row < 0 || row >= int(std::size(kArrayTypes)))
        return QStringLiteral("Error");
    return QLatin1String(kArrayTypes[row]);
}

int rowOfArrayType(const QString &type)
{
    for (int row = 0; row < int(std::size(kArrayTypes)); ++row) {
        if (type == QLatin1String(kArrayTypes[row]))
            return row;
    }
    return 0;
}

QString cacheTypeOfRow(int row)
{
    if (row < 0 || row >= int(std::size(kCacheTypes)))
        return QLatin1String(kCacheTypes[0]);
    return QLatin1String(kCacheTypes[row]);
}

bool hasUsableFreeSpace(const SK_ConfigDisk &disk)
{
    // One decimal megabyte: less can't hold a member, and a disk whose space is all
    // taken would only clutter the list.
    return disk.TotalFreeSpace * 512 >= 1000000;
}

QTreeWidgetItem *addDiskRow(SK_RaidApi &api, QTreeWidget *list, int diskIndex, bool withTrim,
                            DiskKinds &kinds)
{
    const SK_ConfigDisk *disk = api.GetDiskRecord(diskIndex);
    if (!disk)
        return nullptr;
    const int id = disk->Device;
    auto *item = new MyTreeWidgetItem(list);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(ColDisk, Qt::Unchecked);
    setCell(item, ColDisk,
            QString::number(disk->ControllerNumber) + QLatin1Char(' ') +
                QString::number(disk->Channel),
            disk->ControllerNumber + disk->Channel / 10.0);
    item->setData(ColDisk, SK_Role::DeviceId, id);
    setTextCell(item, ColPortType, api.PortTypeText(diskIndex));
    setCell(item, ColCapacity, SK_RaidApi::CapacityText(qint64(disk->Capacity)),
            qulonglong(disk->Capacity));
    const int uses = api.DiskUseCount(id);
    setCell(item, ColUses, QString::number(uses), uses);
    setCell(item, ColFreeSpace, SK_RaidApi::CapacityText(qint64(disk->TotalFreeSpace)),
            qulonglong(disk->TotalFreeSpace));
    setCell(item, ColLargestFree, SK_RaidApi::CapacityText(qint64(disk->LargestFreeSpace)),
            qulonglong(disk->LargestFreeSpace));
    setTextCell(item, ColGlobalSpare, yesNo(disk->GlobalSpare != 0));
    int column = ColTrim;
    if (withTrim)
        setTextCell(item, column++, trimText(api, id));
    setTextCell(item, column++, yesNo(api.DiskHasHotSwap(id)));
    setTextCell(item, column++, SK_FieldText(disk->Model).trimmed());
    setTextCell(item, column++, api.SerialText(diskIndex));
    setTextCell(item, column++,
                SK_FieldText(disk->FirmwareRevision).replace(QLatin1Char('_'), QLatin1Char(' ')));

    const bool nvme = api.IsNvmeDisk(id);
    const bool flash = api.IsFlashDisk(id);
    kinds.nvme |= nvme;
    kinds.sataSsd |= flash && !nvme;
    kinds.hdd |= !flash;
    kinds.unused |= uses < 1;
    return item;
}

void finishDiskList(QTreeWidget *list, int narrowColumn)
{
    for (int column = 0; column < list->columnCount(); ++column) {
        list->resizeColumnToContents(column);
        // The hot swap header is wider than anything below it.
        const int extra = column == narrowColumn ? -8 : 1;
        list->setColumnWidth(column, list->columnWidth(column) + extra);
    }
    list->setSortingEnabled(true);
    list->sortByColumn(ColDisk, Qt::AscendingOrder);
    list->setRootIsDecorated(false);
}

bool inDiskGroup(const SK_RaidApi &api, int diskId, DiskGroup group)
{
    switch (group) {
    case DiskGroup::All:
        return true;
    case DiskGroup::Nvme:
        return api.IsNvmeDisk(diskId);
    case DiskGroup::HardDisk:
        return !api.IsFlashDisk(diskId);
    case DiskGroup::SataSsd:
        return api.IsFlashDisk(diskId) && !api.IsNvmeDisk(diskId);
    case DiskGroup::Unused:
        return api.DiskUseCount(diskId) < 1;
    }
    return false;
}

void checkRowsWhere(QTreeWidget *list, const std::function<bool(int)> &wanted)
{
    for (QTreeWidgetItemIterator it(list); *it; ++it) {
        const int id = (*it)->data(ColDisk, SK_Role::DeviceId).toInt();
        (*it)->setCheckState(ColDisk, wanted(id) ? Qt::Checked : Qt::Unchecked);
    }
}

int checkedRowCount(QTreeWidget *list)
{
    int count = 0;
    for (QTreeWidgetItemIterator it(list); *it; ++it) {
        if ((*it)->checkState(ColDisk) == Qt::Checked)
            ++count;
    }
    return count;
}

void readCheckedDisks(QTreeWidget *list, SK_Create &params)
{
    // One past the driver's limit of 64, so an overlong selection still reaches the
    // verdicts instead of being cut to a valid one.
    constexpr int kRowLimit = 65;
    params.diskCount = 0;
    int rows = 0;
    for (QTreeWidgetItemIterator it(list); *it && rows < kRowLimit; ++it, ++rows) {
        if ((*it)->checkState(ColDisk) != Qt::Checked)
            continue;
        if (params.diskCount >= SK_MAX_LIST_DISKS)
            break;
        params.disks[params.diskCount] = (*it)->data(ColDisk, SK_Role::DeviceId).toUInt();
        params.diskLabels[params.diskCount] = (*it)->text(ColDisk);
        ++params.diskCount;
    }
}

QString diskIdText(const SK_Create &params)
{
    QString text;
    for (int i = 0; i < params.diskCount; ++i)
        text += QString::number(params.disks[i]) + QStringLiteral(", ");
    return text;
}

void disableTypeRows(QComboBox *types, int listedDisks)
{
    // RAID 0 and 1 need two disks, RAID 10 four, RAID 5 three.
    const int needed[] = {1, 2, 2, 4, 3};
    for (int row = 1; row < types->count() && row < int(std::size(needed)); ++row) {
        if (listedDisks < needed[row])
            types->setItemData(row, 0, Qt::UserRole - 1);
    }
}

void rebuildOrganizedAs(QComboBox *organizedAs, const QString &type, int checkedDisks)
{
    organizedAs->clear();
    organizedAs->setEnabled(true);
    QString text;
    if (type == QLatin1String("RAID10")) {
        if (checkedDisks == 4 || checkedDisks == 6 || checkedDisks == 8)
            text = QString::number((checkedDisks - 4) / 2 + 2) + QStringLiteral("x2");
    } else if (type == QLatin1String("RAID10N") || type == QLatin1String("RAID50") ||
               type == QLatin1String("RAID60")) {
        text = QStringLiteral("ToDo");
    } else {
        organizedAs->setEnabled(false);
    }
    organizedAs->addItem(text);
}

void drawPlannedArray(QTreeWidget *view, const QString &rootText, const SK_Create &params,
                      bool showType, QSize iconSize)
{
    view->clear();
    auto *root = new QTreeWidgetItem(view, QStringList(rootText));
    root->setIcon(0, QIcon(QStringLiteral(":images/icons/small_array.png")));
    QTreeWidgetItem *parent = root;
    if (showType) {
        parent = new QTreeWidgetItem(root, QStringList(params.type));
        parent->setIcon(0, QIcon(QStringLiteral(":images/icons/small_normal") + params.type +
                                 QStringLiteral(".png")));
    }
    const QIcon diskIcon = QIcon(QIcon(QStringLiteral(":images/icons/HDD.png")).pixmap(iconSize));
    const bool nested =
        params.type == QLatin1String("RAID10") || SK_RaidApi::TypeIsNested(params.type);
    const int perMember = nested ? 2 : params.diskCount;
    QTreeWidgetItem *member = parent;
    for (int i = 0; i < params.diskCount; ++i) {
        if (nested && i % perMember == 0) {
            if (i / perMember >= params.diskCount / 2)
                break;
            member =
                new QTreeWidgetItem(parent, QStringList(SK_RaidApi::GetMemberType(params.type)));
        }
        auto *disk = new QTreeWidgetItem(
            member, QStringList(QStringLiteral("Disk ") + params.diskLabels[i]));
        disk->setIcon(0, diskIcon);
    }
    view->setIconSize(iconSize);
    view->expandAll();
}

QString verdictText(const QString &prefix, const QString &message)
{
    if (message.isEmpty())
        return QString();
    return QStringLiteral("<font color='Red'>") + QStringLiteral("<b>") + prefix + message +
           QStringLiteral("</b></font><br>");
}

} // namespace SK_ArrayDialogParts
