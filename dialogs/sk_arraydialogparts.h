#pragma once
// What the create and transform dialogs share: the disk list's rows, the type and
// cache tables of their combos, the "Organized As" text, the picture of the array as
// it will be and the wording of a verdict.

#include "service/sk_records.h"

#include <QSize>
#include <QString>

#include <functional>

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;
class SK_RaidApi;

namespace SK_ArrayDialogParts {

// The type string of a row of the type combo; "Error" past the rows the dialogs know.
QString arrayTypeOfRow(int row);
// The row of a type string; 0 for a type the combo has no row for.
int rowOfArrayType(const QString &type);
// The cache string of a row of the cache combo.
QString cacheTypeOfRow(int row);

// Whether a disk with this much free space is worth offering for a new array.
bool hasUsableFreeSpace(const SK_ConfigDisk &disk);

// The disk kinds a list holds, so the dialogs can switch off the selection buttons
// that would find nothing.
struct DiskKinds
{
    bool nvme = false;
    bool sataSsd = false;
    bool hdd = false;
    bool unused = false;
};

// Appends the row of the disk at `diskIndex`, with its sort keys, check box off.
// `withTrim` adds the trim column after "GS". Notes the disk's kind in `kinds`.
QTreeWidgetItem *addDiskRow(SK_RaidApi &api, QTreeWidget *list, int diskIndex, bool withTrim,
                            DiskKinds &kinds);
// Columns sized to their contents, the hot swap column kept narrow, sorted by disk.
void finishDiskList(QTreeWidget *list, int narrowColumn);

// The groups the selection buttons tick at once.
enum class DiskGroup { All, Nvme, HardDisk, SataSsd, Unused };
bool inDiskGroup(const SK_RaidApi &api, int diskId, DiskGroup group);

// Sets every row's check mark by `wanted(diskId)`.
void checkRowsWhere(QTreeWidget *list, const std::function<bool(int)> &wanted);
int checkedRowCount(QTreeWidget *list);
// Fills the disks of a request from the checked rows, in list order, up to the limit.
void readCheckedDisks(QTreeWidget *list, SK_Create &params);
// The ids of a request, each followed by ", ".
QString diskIdText(const SK_Create &params);

// Switches off the type rows that need more disks than the list offers.
void disableTypeRows(QComboBox *types, int listedDisks);
// Rebuilds the "Organized As" combo for a type over `checkedDisks` disks.
void rebuildOrganizedAs(QComboBox *organizedAs, const QString &type, int checkedDisks);

// Draws the array a request would make: the root `rootText`, and, with `showType`,
// a level for the type, a level of mirrors for a nested type, then the disks.
void drawPlannedArray(QTreeWidget *view, const QString &rootText, const SK_Create &params,
                      bool showType, QSize iconSize);

// The warning label's rich text for a verdict's message; empty without a message.
QString verdictText(const QString &prefix, const QString &message);

} // namespace SK_ArrayDialogParts
