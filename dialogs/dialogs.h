#pragma once
// The array, disk and maintenance dialogs the main window opens for one task each.

#include "dialogs/sk_aboutdialog.h"
#include "dialogs/sk_arraynamedialog.h"
#include "dialogs/sk_clearmetadatadialog.h"
#include "dialogs/sk_controllerproperties.h"
#include "dialogs/sk_createdialog.h"
#include "dialogs/sk_deleteform.h"
#include "dialogs/sk_diskproperites.h"
#include "dialogs/sk_disksparedialog.h"
#include "dialogs/sk_initdisksdialog.h"
#include "dialogs/sk_insertremovedialog.h"
#include "dialogs/sk_smartdiskdialog.h"
#include "dialogs/sk_taskprioritydialog.h"
#include "dialogs/sk_tieringdialog.h"
#include "dialogs/sk_transformdialog.h"
#include "dialogs/sk_treeitems.h"
#include "service/service.h"
