// The three panes rebuilt at every refresh: the array tree, the disk list and the
// array list. Rows are never updated in place, because the record set can change shape
// at any time; what must survive a rebuild (selection, expansion, scroll position, sort
// order, header state) is carried across explicitly.

#include "app/sk_mainwindow.h"

#include "app/sk_settings.h"
#include "dialogs/sk_treeitems.h"

#include <QAction>
#include <QHeaderView>
#include <QProgressBar>
#include <QScrollBar>
#include <QSettings>
#include <QTreeWidget>

#include <cstring>

namespace {

bool textIs(const char *field, const char *word)
{
    return std::strcmp(field, word) == 0;
}

QString latin(const char *field)
{
    return QString::fromLatin1(field);
}

QString stateText(const QString &state)
{
    // The driver's own words double as the source texts of their translations.
    static const QStringList plain = {QT_TRANSLATE_NOOP("SK_MainWindow", "NORMAL"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "READY"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "CRITICAL"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "OFFLINE"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "OUTDATE")};
    if (plain.contains(state))
        return SK_MainWindow::tr(state.toLatin1().constData());
    if (state == QLatin1String("CACHE_OFFLINE"))
        return SK_MainWindow::tr("CACHE OFFLINE");
    return SK_MainWindow::tr("UNKNOWN");
}

QString errorText(const QString &error)
{
    if (error == QLatin1String("NoError"))
        return SK_MainWindow::tr("NoError");
    if (error == QLatin1String("Fail") || error == QLatin1String("Fail (NP)"))
        return SK_MainWindow::tr("Failed");
    if (error == QLatin1String("Offline"))
        return SK_MainWindow::tr("Offline");
    if (error == QLatin1String("Fail_Offline") || error == QLatin1String("Fail(NP)_Offline"))
        return SK_MainWindow::tr("Failed Offline");
    return SK_MainWindow::tr("UNKNOWN");
}

QString taskText(const QString &type)
{
    if (type == QLatin1String("NOT_ACTIVE"))
        return SK_MainWindow::tr("NOT ACTIVE");
    static const QStringList plain = {
        QT_TRANSLATE_NOOP("SK_MainWindow", "TRANSFORM"),
        QT_TRANSLATE_NOOP("SK_MainWindow", "CREATE"), QT_TRANSLATE_NOOP("SK_MainWindow", "CHECK"),
        QT_TRANSLATE_NOOP("SK_MainWindow", "COPY"), QT_TRANSLATE_NOOP("SK_MainWindow", "RESTORE")};
    if (plain.contains(type))
        return SK_MainWindow::tr(type.toLatin1().constData());
    if (type == QLatin1String("CHECK_BITMAP"))
        return SK_MainWindow::tr("CHECK BITMAP");
    if (type == QLatin1String("FLUSH_BITMAP"))
        return SK_MainWindow::tr("FLUSH BITMAP");
    if (type == QLatin1String("SECURE_ERASE"))
        return SK_MainWindow::tr("SECURE ERASE");
    if (type == QLatin1String("PAGE_MOVE"))
        return SK_MainWindow::tr("PAGE MOVE");
    if (type == QLatin1String("TIER_MOVE"))
        return SK_MainWindow::tr("TIER MOVE");
    if (type == QLatin1String("ZERO"))
        return SK_MainWindow::tr("ZERO CREATE");
    return SK_MainWindow::tr("UNKNOWN");
}

QString taskStateText(const QString &state)
{
    if (state == QLatin1String("NOT_ACTIVE"))
        return SK_MainWindow::tr("NOT ACTIVE");
    static const QStringList plain = {QT_TRANSLATE_NOOP("SK_MainWindow", "STARTED"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "PAUSED"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "SHUTDOWN"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "FAILED"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "STOPPED"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "COMPLETED"),
                                      QT_TRANSLATE_NOOP("SK_MainWindow", "REMOVED")};
    if (plain.contains(state))
        return SK_MainWindow::tr(state.toLatin1().constData());
    if (state == QLatin1String("NOT_COMPLETED"))
        return SK_MainWindow::tr("NOT COMPLETED");
    return SK_MainWindow::tr("?");
}

QIcon arrayIcon(QString type, const QString &state)
{
    if (type == QLatin1String("RAIDCACHE"))
        type = QStringLiteral("RAIDTIER");
    QString word = QStringLiteral("offline");
    if (state == QLatin1String("CRITICAL"))
        word = QStringLiteral("critical");
    else if (state == QLatin1String("NORMAL"))
        word = QStringLiteral("normal");
    return QIcon(QStringLiteral(":images/icons/small_") + word + type + QStringLiteral(".png"));
}

QString memberGroupType(const QString &type)
{
    if (type == QLatin1String("RAID50"))
        return QStringLiteral("RAID5");
    if (type == QLatin1String("RAID60"))
        return QStringLiteral("RAID6");
    return QStringLiteral("RAID1");
}

const QStringList &cacheTagTexts()
{
    static const QStringList texts = {"err", "64KB", "128KB", "256KB", "512KB", "1024KB", "2048KB"};
    return texts;
}

constexpr std::uint32_t kHidden = 0x200;
constexpr std::uint32_t kBackgroundScan = 0x400;

} // namespace

bool SK_MainWindow::darkTheme() const
{
    return QSettings().value(SK_SettingsKey::ApplicationTheme).toString() != QLatin1String("light");
}

QColor SK_MainWindow::plainColor() const
{
    return darkTheme() ? QColor(Qt::white) : QColor(Qt::black);
}

QColor SK_MainWindow::stateColor(const QString &state, bool hidden) const
{
    const bool dark = darkTheme();
    if (state == QLatin1String("NORMAL")) {
        if (hidden)
            return dark ? QColor(Qt::cyan) : QColor(Qt::blue);
        return plainColor();
    }
    if (state == QLatin1String("CRITICAL") || state == QLatin1String("OUTDATE"))
        return dark ? QColor(Qt::yellow) : QColor(255, 103, 0);
    if (state == QLatin1String("OFFLINE"))
        return QColor(Qt::red);
    return plainColor();
}

// --- Array tree ---

namespace {

// What the rows of the array tree are drawn with, fixed for one rebuild.
struct TreeLook
{
    QIcon diskIcon;
    QColor plain;
};

QString arrayRowText(const LogicalDrive &record, bool hasTask)
{
    const QString state = latin(record.State);
    QString text = SK_MainWindow::tr("Array ") + QString::number(record.Device) + QLatin1Char(' ');
    if (hasTask)
        text += QStringLiteral(" ") + QString::number(record.TransformPercentComplete, 'f', 2) +
                QStringLiteral("%");
    if (!textIs(record.DisplayName, "NONE"))
        text += QLatin1Char(' ') + QString::fromLocal8Bit(record.DisplayName);
    text += QLatin1Char(' ');
    if (state != QLatin1String("NORMAL"))
        text += stateText(state) + QLatin1Char(' ');
    if (record.Attributes & kHidden)
        text += SK_MainWindow::tr("(Hidden)");
    return text;
}

// The running task as a bar under its array: yellow when paused, blue while two
// layouts exist (transform, restore), green otherwise.
QProgressBar *taskBar(const LogicalDrive &record, bool twoLayouts)
{
    auto *bar = new QProgressBar;
    bar->setObjectName(QStringLiteral("taskProgress%1").arg(record.Device));
    bar->setRange(0, 100);
    bar->setValue(static_cast<int>(record.TransformPercentComplete));
    const QString format = taskText(latin(record.TransformType)) + QLatin1Char(' ') +
                           taskStateText(latin(record.TransformState));
    bar->setFormat(format);
    bar->setAlignment(Qt::AlignCenter);
    bar->setFixedWidth(bar->fontMetrics().horizontalAdvance(format) + 50);
    const char *chunk = textIs(record.TransformState, "PAUSED") ? "#f5cb42"
                        : twoLayouts                            ? "#4174db"
                                                                : "#3fc433";
    bar->setStyleSheet(
        QStringLiteral("QProgressBar::chunk {background: %1;}").arg(QLatin1String(chunk)));
    return bar;
}

QString diskRowText(const SK_ConfigDisk &disk)
{
    return SK_MainWindow::tr("Disk ") + QString::number(disk.ControllerNumber) + QLatin1Char(' ') +
           QString::number(disk.Channel) + QStringLiteral(" (") + latin(disk.Model).trimmed() +
           QStringLiteral(") ");
}

void addMissingRow(QTreeWidgetItem *parent, const TreeLook &look)
{
    auto *row = new QTreeWidgetItem(parent, {SK_MainWindow::tr("Missing")});
    row->setForeground(0, look.plain);
    row->setIcon(0, QIcon(QStringLiteral(":images/icons/small_missingDRIVE.png")));
}

// The dedicated spares of a redundant layout; one that is no longer this array's
// spare, or no longer listed, shows as missing.
void addSpareRows(SK_RaidApi &api, QTreeWidgetItem *typeRow, const LogicalDrive &shown, int arrayId,
                  const TreeLook &look)
{
    const int spares = std::clamp<int>(shown.SpareCount, 0, SK_SNAPSHOT_SPARES);
    if (spares == 0 || !SK_RaidApi::TypeIsRedundant(latin(shown.Type)))
        return;
    auto *spareRow = new QTreeWidgetItem(typeRow, {SK_MainWindow::tr(" Dedicated Spares")});
    spareRow->setIcon(0, QIcon(QStringLiteral(":images/icons/Spare.png")));
    for (int s = 0; s < spares; ++s) {
        const int disk = shown.Spares[s].Device;
        const SK_ConfigDisk *spare = api.GetDiskRecord(api.GetDiskIndex(disk));
        if (spare && api.IsDedicatedSpareOf(arrayId, disk)) {
            auto *row = new QTreeWidgetItem(spareRow, {diskRowText(*spare)});
            row->setIcon(0, look.diskIcon);
        } else {
            addMissingRow(spareRow, look);
        }
    }
}

// A member disk: plain while online without error, "Missing" when it is gone without
// having failed, red with its error when it failed or reports a SMART alarm.
void addMemberDiskRow(QTreeWidgetItem *group, const SK_ConfigDisk &disk,
                      const SK_ConfigMember &member, const TreeLook &look)
{
    const QString error = errorText(latin(member.Error));
    const bool smartError = textIs(disk.State, "SMART_Error") || textIs(disk.State, "SMART_error");
    if (textIs(disk.State, "Online") && error == SK_MainWindow::tr("NoError")) {
        auto *row = new QTreeWidgetItem(group, {diskRowText(disk)});
        row->setForeground(0, look.plain);
        row->setIcon(0, look.diskIcon);
    } else if (!smartError && error != SK_MainWindow::tr("Failed") &&
               error != SK_MainWindow::tr("Failed Offline")) {
        addMissingRow(group, look);
    } else {
        auto *row = new QTreeWidgetItem(group, {diskRowText(disk) + QLatin1Char(' ') + error});
        row->setForeground(0, QColor(Qt::red));
        row->setIcon(0, QIcon(QStringLiteral(":images/icons/small_failedDRIVE.png")));
    }
}

// A tier or cache pair lists the arrays it is made of, not disks.
void addMemberArrayRow(QTreeWidgetItem *group, const QList<LogicalDrive *> &arrays,
                       quint64 memberId)
{
    for (const LogicalDrive *other : arrays) {
        if (other->ArrayId != memberId)
            continue;
        auto *row = new QTreeWidgetItem(
            group,
            {SK_MainWindow::tr("Array ") + QString::number(other->Device) + QStringLiteral(" (") +
             QString::fromLocal8Bit(other->DisplayName) + QStringLiteral(")")});
        row->setIcon(0, QIcon(QStringLiteral(":images/icons/small_array.png")));
        return;
    }
}

// The members of one layout; mirrored and parity groups of a nested level get a row of
// their own each.
void addMemberRows(SK_RaidApi &api, QTreeWidgetItem *typeRow, const LogicalDrive &shown,
                   const QList<LogicalDrive *> &arrays, const TreeLook &look)
{
    const QString type = latin(shown.Type);
    const int first = shown.FirstCount;
    const int second = shown.SecondCount;
    const int members = std::clamp(first * second, 0, int(SK_SNAPSHOT_MEMBERS));
    const bool flat = first * second == first + second - 1;
    const bool arrayMembers = type == QLatin1String("RAIDTIER") ||
                              type == QLatin1String("PROMISE") ||
                              type == QLatin1String("RAIDCACHE");
    QTreeWidgetItem *group = typeRow;
    for (int m = 0; m < members; ++m) {
        if (!flat && second > 0 && m % second == 0) {
            const QString label = memberGroupType(type);
            group = new QTreeWidgetItem(typeRow, {label});
            group->setIcon(0, arrayIcon(label, QStringLiteral("NORMAL")));
        }
        const SK_ConfigMember &member = shown.Members[m];
        if (flat && arrayMembers) {
            addMemberArrayRow(group, arrays, member.DiskId);
            continue;
        }
        if (const SK_ConfigDisk *disk = api.GetDiskRecord(api.GetDiskIndex(member.Device)))
            addMemberDiskRow(group, *disk, member, look);
    }
}

// An array's layout under its row: both layouts while a transform or restore runs,
// the source first.
void addLayoutRows(SK_RaidApi &api, QTreeWidgetItem *arrayRow, const LogicalDrive &record,
                   bool twoLayouts, const QList<LogicalDrive *> &arrays, const TreeLook &look)
{
    const int id = record.Device;
    for (int layout = 1; layout >= 0; --layout) {
        const LogicalDrive *shown = &record;
        QString suffix;
        if (twoLayouts) {
            shown = api.GetArrayByIndex(api.GetArrayIndex(id), layout == 1);
            if (!shown)
                continue;
            suffix =
                layout == 1 ? SK_MainWindow::tr(" (Source)") : SK_MainWindow::tr(" (Destination)");
        }
        const QString type = latin(shown->Type);
        auto *typeRow = new QTreeWidgetItem(arrayRow, {type + suffix});
        typeRow->setIcon(0, arrayIcon(type, latin(shown->State)));
        addSpareRows(api, typeRow, *shown, id, look);
        addMemberRows(api, typeRow, *shown, arrays, look);
        if (!twoLayouts)
            break;
    }
}

} // namespace

void SK_MainWindow::buildArrayTree()
{
    auto *root = new QTreeWidgetItem(arrayTree, {raidApi->ComputerName()});
    root->setIcon(0, QIcon(QStringLiteral(":images/icons/small_system.png")));
    arrayTree->setIconSize(iconSize);
    const TreeLook look{QIcon(QPixmap(QStringLiteral(":images/icons/HDD.png"))
                                  .scaled(iconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)),
                        plainColor()};

    for (const LogicalDrive *record : qAsConst(arrayList)) {
        const int id = record->Device;
        const QString state = latin(record->State);
        const bool hidden = (record->Attributes & kHidden) != 0;
        const bool hasTask =
            record->TransformPercentComplete > 0.0f || !textIs(record->TransformType, "NOT_ACTIVE");
        const bool twoLayouts =
            textIs(record->TransformType, "TRANSFORM") || textIs(record->TransformType, "RESTORE");

        auto *arrayRow = new QTreeWidgetItem(root, {arrayRowText(*record, hasTask)});
        arrayRow->setData(0, SK_Role::DeviceId, id);
        arrayRow->setIcon(0, QIcon(static_cast<quint32>(id) == selectedArray
                                       ? QStringLiteral(":images/icons/small_selectedDISK.png")
                                       : QStringLiteral(":images/icons/small_array.png")));
        arrayRow->setForeground(
            0, state != QLatin1String("NORMAL") || hidden ? stateColor(state, hidden) : look.plain);
        if (hasTask) {
            auto *taskRow = new QTreeWidgetItem(arrayRow);
            arrayTree->setItemWidget(taskRow, 0, taskBar(*record, twoLayouts));
            arrayRow->setData(0, SK_Role::TaskRow, QStringLiteral("expand"));
            arrayRow->setExpanded(true);
        }
        addLayoutRows(*raidApi, arrayRow, *record, twoLayouts, arrayList, look);
    }
}

namespace {

// Marks on the clone which rows of the live tree are open, three levels deep. Every
// array row is looked at; below, only the rows a user can see, under an open parent:
// an array opened later shows its rows closed.
void noteExpansion(QTreeWidgetItem *live, QTreeWidgetItem *copy, int depth)
{
    if (depth > 3)
        return;
    for (int i = 0; i < live->childCount() && i < copy->childCount(); ++i) {
        QTreeWidgetItem *child = live->child(i);
        if (!child->isExpanded())
            continue;
        copy->child(i)->setData(0, SK_Role::Expanded, true);
        noteExpansion(child, copy->child(i), depth + 1);
    }
}

// Carries expansion and selection from the old rows to the new ones by position.
void mergeBelow(QTreeWidgetItem *oldRow, QTreeWidgetItem *newRow, int depth, bool &selectionTaken)
{
    if (depth > 4)
        return;
    for (int i = 0; i < oldRow->childCount() && i < newRow->childCount(); ++i) {
        QTreeWidgetItem *was = oldRow->child(i);
        QTreeWidgetItem *now = newRow->child(i);
        if (was->data(0, SK_Role::Expanded).toBool())
            now->setExpanded(true);
        if (was->data(0, SK_Role::Selected).toBool() && !selectionTaken) {
            now->setData(0, SK_Role::Selected, true);
            selectionTaken = true;
        }
        mergeBelow(was, now, depth + 1, selectionTaken);
    }
}

} // namespace

void SK_MainWindow::rebuildArrayTree()
{
    std::unique_ptr<QTreeWidgetItem> clone;
    bool rootSelected = false;
    bool rootExpanded = false;
    if (QTreeWidgetItem *root = arrayTree->topLevelItem(0)) {
        clone.reset(root->clone());
        rootSelected = root->data(0, SK_Role::Selected).toBool();
        rootExpanded = root->isExpanded();
        noteExpansion(root, clone.get(), 1);
    }
    const int scroll = arrayTree->verticalScrollBar()->value();
    arrayTree->clear();
    buildArrayTree();

    QTreeWidgetItem *root = arrayTree->topLevelItem(0);
    if (clone && root) {
        bool selectionTaken = false;
        for (int i = 0; i < clone->childCount(); ++i) {
            QTreeWidgetItem *was = clone->child(i);
            const QVariant id = was->data(0, SK_Role::DeviceId);
            for (int j = 0; j < root->childCount(); ++j) {
                QTreeWidgetItem *now = root->child(j);
                if (now->data(0, SK_Role::DeviceId) != id)
                    continue;
                const bool open =
                    was->data(0, SK_Role::Expanded).toBool() ||
                    now->data(0, SK_Role::TaskRow).toString() == QLatin1String("expand");
                const bool closedByUser =
                    was->data(0, SK_Role::TaskRow).toString() == QLatin1String("collapsed");
                // The user's "closed" holds while the task runs; the next task opens the
                // row by itself again.
                if (closedByUser && !now->data(0, SK_Role::TaskRow).toString().isEmpty())
                    now->setData(0, SK_Role::TaskRow, QStringLiteral("collapsed"));
                now->setExpanded(open && !closedByUser);
                if (was->data(0, SK_Role::Selected).toBool() && !selectionTaken) {
                    now->setData(0, SK_Role::Selected, true);
                    selectionTaken = true;
                }
                mergeBelow(was, now, 2, selectionTaken);
                break;
            }
        }
    }
    clone.reset();
    if (!root) {
        arrayTree->verticalScrollBar()->setValue(scroll);
        return;
    }
    if (selectedArray < 1)
        disableArrayActions();
    else
        updateArrayActions(selectedArray);
    root->setData(0, SK_Role::Selected, rootSelected);
    root->setExpanded(rootExpanded);
    QTreeWidgetItemIterator it(arrayTree);
    for (; *it; ++it) {
        if ((*it)->data(0, SK_Role::Selected).toBool())
            (*it)->setSelected(true);
    }
    arrayTree->verticalScrollBar()->setValue(scroll);
}

// --- Disk list ---

void SK_MainWindow::fillDiskList()
{
    diskList->setSortingEnabled(false);
    const int count = raidApi->GetDiskCount();
    for (int index = 0; index < count; ++index) {
        const SK_ConfigDisk *disk = raidApi->GetDiskRecord(index);
        if (!disk || textIs(disk->Type, "Core"))
            continue;
        auto *row = new MyTreeWidgetItem(diskList);
        row->sortRole = SK_Role::SortKey;
        auto put = [row](int column, const QString &text, const QVariant &key) {
            row->setText(column, text);
            row->setData(column, SK_Role::SortKey, key);
        };
        const QString port = raidApi->PortTypeText(index);
        const QString type =
            textIs(disk->Type, "Unknown") ? tr("New") : QString::fromLatin1(disk->Type);
        const QString spare = disk->GlobalSpare ? tr("Yes") : tr("No");
        const QString hotSwap =
            raidApi->DiskHasHotSwap(disk->Device) ? QStringLiteral("Yes") : QStringLiteral("No");
        const QString uses = QString::number(raidApi->DiskUseCount(disk->Device));
        const QString model = latin(disk->Model);
        const QString serial = raidApi->SerialText(index);
        const QString firmware =
            latin(disk->FirmwareRevision).replace(QLatin1Char('_'), QLatin1Char(' '));
        put(0,
            QString::number(disk->ControllerNumber) + QLatin1Char(' ') +
                QString::number(disk->Channel),
            disk->Channel / 10.0 + disk->ControllerNumber);
        put(1, latin(disk->State), latin(disk->State));
        put(2, type, type);
        put(3, port, port);
        put(4, SK_RaidApi::CapacityText(static_cast<qint64>(disk->Capacity)),
            QVariant::fromValue<qulonglong>(disk->Capacity));
        put(5, SK_RaidApi::CapacityText(static_cast<qint64>(disk->TotalFreeSpace)),
            QVariant::fromValue<qulonglong>(disk->TotalFreeSpace));
        put(6, SK_RaidApi::CapacityText(static_cast<qint64>(disk->LargestFreeSpace)),
            QVariant::fromValue<qulonglong>(disk->LargestFreeSpace));
        put(7, spare, spare);
        put(8, hotSwap, hotSwap);
        put(9, uses, uses);
        put(10, model.trimmed(), model);
        put(11, serial, serial);
        put(12, firmware, latin(disk->FirmwareRevision));
        row->setData(0, SK_Role::DeviceId, disk->Device);
        if (row->text(0) == selectedDiskText)
            row->setSelected(true);
    }
    if (selectedArray != 0)
        boldMemberDisks();
    diskList->setFont(listFont);
    diskList->setSortingEnabled(true);
    diskList->sortByColumn(diskSortColumn, static_cast<Qt::SortOrder>(diskSortOrder));
    diskList->setRootIsDecorated(false);
    if (!diskHeaderRestored)
        diskHeaderRestored = true;
    else
        diskList->header()->restoreState(diskHeaderState);
}

void SK_MainWindow::boldMemberDisks()
{
    const int array = static_cast<int>(selectedArray);
    for (int i = 0; i < diskList->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = diskList->topLevelItem(i);
        const int id = row->data(0, SK_Role::DeviceId).toInt();
        QFont font = diskList->font();
        font.setWeight(raidApi->IsMember(array, id) || raidApi->IsDedicatedSpareOf(array, id) ? 75
                                                                                              : 50);
        for (int column = 0; column < 13; ++column)
            row->setFont(column, font);
    }
}

// --- Array list ---

void SK_MainWindow::fillArrayList()
{
    arrayListTree->setSortingEnabled(false);
    for (int index = 0; index < arrayList.size(); ++index) {
        const LogicalDrive *record = arrayList.at(index);
        const int id = record->Device;
        const QString type = latin(record->Type);
        const int volumeArray = type == QLatin1String("RAIDTIER")
                                    ? raidApi->TierMemberLookup(raidApi->GetArrayIndex(id))
                                    : id;
        const bool hidden = (record->Attributes & kHidden) != 0;
        auto *row = new MyTreeWidgetItem(arrayListTree);
        row->sortRole = SK_Role::SortKey;
        auto put = [row](int column, const QString &text, const QVariant &key) {
            row->setText(column, text);
            row->setData(column, SK_Role::SortKey, key);
        };
        QString osName = hidden ? tr("Hidden") : raidApi->OsDiskNumber(volumeArray);
        if (osName.isEmpty())
            osName = tr("none");
        const QString system =
            raidApi->ArrayIsSystem(volumeArray) ? QStringLiteral("Yes") : QStringLiteral("No");
        const QString letters = raidApi->DriveLetters(volumeArray);
        QString state = stateText(latin(record->State));
        if (textIs(record->TransformType, "CREATE") && textIs(record->State, "NORMAL"))
            state = tr("READY");
        const QString task = taskText(latin(record->TransformType));
        const QString taskState = taskStateText(latin(record->TransformState));
        const int level = SK_RaidApi::TaskPriorityLevel(static_cast<int>(record->TaskPriority));
        const QString scan =
            (record->Attributes & kBackgroundScan) ? QStringLiteral("Yes") : QStringLiteral("No");
        QString cts;
        if (type == QLatin1String("LEGACY") || type == QLatin1String("RAIDTIER") ||
            type == QLatin1String("RAIDCACHE"))
            cts = tr("NA");
        else
            cts = cacheTagTexts().value(record->CacheTagSize);
        const QString trim =
            raidApi->ArrayCanTrimExisting(id) ? QStringLiteral("Yes") : QStringLiteral("No");

        put(0, tr("Array ") + QString::number(id), id);
        put(1, osName, osName);
        put(2, system, system);
        put(3, letters, letters);
        put(4, QString::fromLocal8Bit(record->DisplayName),
            QString::fromLocal8Bit(record->DisplayName));
        put(5, type, type);
        put(6, SK_RaidApi::CapacityText(static_cast<qint64>(record->Capacity)),
            QVariant::fromValue<qulonglong>(record->Capacity));
        put(7, state, state);
        put(8, task, task);
        put(9, taskState, taskState);
        put(10, QString::number(record->TransformPercentComplete, 'f', 2) + QLatin1Char('%'),
            record->TransformPercentComplete);
        put(11, QString::number(level), level);
        put(12, scan, scan);
        put(13, latin(record->Cache), latin(record->Cache));
        put(14, cts, cts);
        put(15, trim, trim);
        put(16, QString::number(record->SpareCount), record->SpareCount);
        row->setData(0, SK_Role::DeviceId, id);
        if (!textIs(record->State, "NORMAL") || hidden) {
            const QColor colour = stateColor(latin(record->State), hidden);
            for (int column = 0; column < 17; ++column)
                row->setForeground(column, colour);
        }
    }
    if (selectedArray != 0) {
        const QString label = tr("Array ") + QString::number(selectedArray);
        for (int i = 0; i < arrayListTree->topLevelItemCount(); ++i) {
            QTreeWidgetItem *row = arrayListTree->topLevelItem(i);
            if (row->text(0) != label)
                continue;
            QFont font = arrayListTree->font();
            font.setWeight(75);
            for (int column = 0; column < 17; ++column)
                row->setFont(column, font);
        }
    }
    arrayListTree->setFont(listFont);
    arrayListTree->setSortingEnabled(true);
    arrayListTree->sortByColumn(arraySortColumn, static_cast<Qt::SortOrder>(arraySortOrder));
    arrayListTree->setRootIsDecorated(false);
    if (!arrayHeaderRestored)
        arrayHeaderRestored = true;
    else
        arrayListTree->header()->restoreState(arrayHeaderState);
}

// --- Selection and sort slots ---

void SK_MainWindow::arraySelectedChanged(QTreeWidgetItem *current, int)
{
    QTreeWidgetItemIterator it(arrayTree);
    for (; *it; ++it)
        (*it)->setData(0, SK_Role::Selected, (*it)->isSelected());
    if (!current)
        return;
    QTreeWidgetItem *ancestor = current;
    while (ancestor->parent() && ancestor->parent()->parent())
        ancestor = ancestor->parent();
    if (!current->parent()) {
        selectedArray = 0;
        rebuildArrayTree();
        arrayHeaderState = arrayListTree->header()->saveState();
        arrayListTree->clear();
        fillArrayList();
        return;
    }
    if (ancestor->childCount() == 0)
        return;
    const int id = ancestor->data(0, SK_Role::DeviceId).toInt();
    if (id < 1 || static_cast<quint32>(id) == selectedArray)
        return;
    selectedArray = static_cast<quint32>(id);
    rebuildArrayTree();
    arrayHeaderState = arrayListTree->header()->saveState();
    arrayListTree->clear();
    fillArrayList();
    boldMemberDisks();
}

void SK_MainWindow::arrayListSelectionChanged(QTreeWidgetItem *current, int)
{
    if (!current)
        return;
    const int id = current->data(0, SK_Role::DeviceId).toInt();
    if (id < 1 || static_cast<quint32>(id) == selectedArray)
        return;
    selectedArray = static_cast<quint32>(id);
    rebuildArrayTree();
    arrayListTree->clear();
    fillArrayList();
    boldMemberDisks();
}

void SK_MainWindow::activeArrayCollapsed(QTreeWidgetItem *array)
{
    if (array->data(0, SK_Role::TaskRow).toString() == QLatin1String("expand"))
        array->setData(0, SK_Role::TaskRow, QStringLiteral("collapsed"));
}

void SK_MainWindow::activeArrayExpanded(QTreeWidgetItem *array)
{
    if (array->data(0, SK_Role::TaskRow).toString() == QLatin1String("collapsed"))
        array->setData(0, SK_Role::TaskRow, QStringLiteral("expand"));
}

void SK_MainWindow::preserveSortDiskList(int columnNum)
{
    diskSortColumn = columnNum;
    diskSortOrder = diskList->header()->sortIndicatorOrder();
}

void SK_MainWindow::preserveSortArrayList(int columnNum)
{
    arraySortColumn = columnNum;
    arraySortOrder = arrayListTree->header()->sortIndicatorOrder();
}

void SK_MainWindow::preserveSortEventList(int columnNum)
{
    eventSortColumn = columnNum;
    eventSortOrder = eventList->header()->sortIndicatorOrder();
}

void SK_MainWindow::enableDiskOption()
{
    const QList<QTreeWidgetItem *> rows = diskList->selectedItems();
    optionsAct->setEnabled(rows.size() == 1);
    if (rows.size() == 1)
        selectedDiskText = rows.first()->text(0);
}
