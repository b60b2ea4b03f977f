#pragma once
// Driver link: the channel to the RAID drivers, its status values and the platform
// layer under it.

#include "driver/sk_core.h"
#include "driver/sk_emulated_platform.h"
#include "driver/sk_image.h"
#include "driver/sk_platform.h"
#include "driver/sk_retry.h"
#include "driver/sk_services.h"
#include "driver/sk_status.h"
#include "driver/sk_system_view.h"
#include "driver/sk_types.h"
#include "driver/sktl.h"
