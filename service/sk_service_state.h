#pragma once
// The service's process-wide state and small helpers its source files share. Not part
// of the service's interface: windows and dialogs go through SK_RaidApi.

#include "service/sk_records.h"

#include <mutex>

namespace sk_service {

// The cores found at the last enumeration: room for eight entries of 36 bytes.
struct ChannelTable
{
    SK_CoreEntry cores[8];
    std::uint32_t count;
};

SK_ConfigSnapshot &picture();
ChannelTable &channels();

// Enumerates the cores and reads the configuration of the first into the picture.
void readConfiguration();
// Held while the picture is replaced and while the array list is taken from it.
std::mutex &pictureMutex();

bool textIs(const char *field, const char *word);

// Member and spare entries of a layout, bounded by the snapshot's tables.
int memberCount(const SK_ConfigArray &layout);
int spareCount(const SK_ConfigArray &layout);

} // namespace sk_service
