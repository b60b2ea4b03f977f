#pragma once
// The emulated host: the drivers' side of the protocol and the Windows storage view,
// answering through the platform seam in place of the real system.

#include "driver/sk_emulated_platform.h"
#include "emulator/sk_emu_clock.h"
#include "emulator/sk_emu_commands.h"
#include "emulator/sk_emu_events.h"
#include "emulator/sk_emu_host.h"
#include "emulator/sk_emu_image.h"
#include "emulator/sk_emu_model.h"
#include "emulator/sk_emu_rules.h"
#include "emulator/sk_emu_scenario.h"
#include "emulator/sk_emu_statefile.h"
#include "emulator/sk_emu_stats.h"
#include "emulator/sk_emu_system.h"
