#pragma once
// The configuration layer's record factory: how SK_Core, which lives below this
// layer, gets real record objects for its tables.

#include <cstdint>

// Installs the factory of the record classes of this layer for every SK_Core built
// from now on. Safe to call any number of times from any thread. Returns 1.
std::uint32_t SK_InstallConfigRecords();
