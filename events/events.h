#pragma once
// Event catalogue: the driver's message table in 36 languages and event retrieval.

#include "commands/commands.h"
