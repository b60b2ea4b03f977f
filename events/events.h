#pragma once
// Event catalogue: the driver's message table in 36 languages and event retrieval.

#include "events/sk_message_catalogue.h"
#include "events/sk_user_message.h"
