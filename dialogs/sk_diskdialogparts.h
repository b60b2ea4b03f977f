#pragma once
// What the disk dialogs share: the list of disks that may be initialised or cleared,
// the ticked disks of a list, and the window state kept in the settings.

#include "service/sk_records.h"

#include <QString>

class QTreeWidget;
class QWidget;
class SK_RaidApi;

namespace SK_DiskDialogParts {

// Column 0 label of a disk: controller and channel.
QString portLabel(const SK_ConfigDisk &disk);

// Fills the seven columns of the initialise and clear metadata lists. With
// `clearMetadata` only plain disks are offered, global spares among them, and the type
// is shown as the driver reports it; otherwise a type of "Unknown" reads "New".
// Returns whether some listed disk has the type "Unknown".
bool fillInitialiseList(SK_RaidApi &api, QTreeWidget *list, bool clearMetadata);

// The ids of the ticked rows in display order, at most as many as the record holds.
SK_InitDisks tickedDisks(const QTreeWidget *list, quint8 clearMetadata);
bool anyTicked(const QTreeWidget *list);
void tickAll(QTreeWidget *list);

// Widens each of the first `count` columns to its contents plus a little air.
void fitColumns(QTreeWidget *list, int count);

} // namespace SK_DiskDialogParts
