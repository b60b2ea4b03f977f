#pragma once
// Configuration model: the records of controllers, disks, enclosures and arrays, the
// image they come from, and the token report that fills the flat snapshot.

#include "driver/driver.h"
