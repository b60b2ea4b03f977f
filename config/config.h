#pragma once
// Configuration model: the records of controllers, disks, enclosures and arrays, the
// image they come from, and the token report that fills the flat snapshot.

#include "driver/driver.h"

#include "config/sk_config_lookup.h"
#include "config/sk_config_reader.h"
#include "config/sk_config_report.h"
#include "config/sk_config_snapshot.h"
#include "config/sk_device_records.h"
#include "config/sk_logical_device.h"
#include "config/sk_record_factory.h"
#include "config/sk_vocabulary.h"
