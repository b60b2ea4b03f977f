#pragma once
// skcli: the command-line twin of the console, over the array service.

#include "cli/sk_cli.h"
