#pragma once
// Command interface: the SK_Api... family of management commands.

#include "config/config.h"
