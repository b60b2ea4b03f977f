#pragma once
// Command interface: the SK_Api... family of management commands.

#include "config/config.h"

#include "commands/sk_array_tasks.h"
#include "commands/sk_command_frame.h"
#include "commands/sk_diagnostics.h"
#include "commands/sk_disk_commands.h"
#include "commands/sk_firmware.h"
#include "commands/sk_lifecycle.h"
