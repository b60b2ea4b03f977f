#pragma once
// Array service: SK_RaidApi, the one class between the windows and the commands.

#include "events/events.h"
