#pragma once
// The array, disk and maintenance dialogs the main window opens for one task each.

#include "service/service.h"
