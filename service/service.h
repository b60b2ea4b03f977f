#pragma once
// Array service: SK_RaidApi, the one class between the windows and the commands.

#include "service/sk_apiworker.h"
#include "service/sk_applog.h"
#include "service/sk_arrayactions.h"
#include "service/sk_eventjournal.h"
#include "service/sk_eventrecord.h"
#include "service/sk_eventslogfile.h"
#include "service/sk_raidapi.h"
#include "service/sk_records.h"
#include "service/sk_results.h"
