#pragma once
// The array, disk and maintenance dialogs the main window opens for one task each.

#include "dialogs/sk_createdialog.h"
#include "service/service.h"
