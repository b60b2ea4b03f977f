#pragma once
// The emulated host: the drivers' side of the protocol and the Windows storage view,
// answering through the platform seam in place of the real system.

#include "driver/sk_emulated_platform.h"
