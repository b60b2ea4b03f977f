// Bulgarian texts of the driver's messages, one per row of the message table, in its
// order. A row left empty shows the English text.

#include "events/catalogue/sk_language_tables.h"

const wchar_t *const SK_MessagesBulgarian[SK_MESSAGE_COUNT] = {};
