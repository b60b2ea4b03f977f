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

// Every program that includes this layer gets real records in SK_Core's tables from
// the start, before any core is built; the layer's own entry points install the
// factory again, so order of static initialisation never matters.
inline const std::uint32_t SK_ConfigRecordsInstalled = SK_InstallConfigRecords();
