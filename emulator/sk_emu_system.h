#pragma once
// The Windows storage view of the emulated host: volumes and drive letters, which
// operating-system disk each array is, volume locks and ejects, and host facts.

#include "driver/sk_system_view.h"
#include "emulator/sk_emu_model.h"

#include <memory>

namespace sk_emu {

class Host;

// Operating-system disk numbers: visible arrays by route from 0, then the disks that
// are in no array and are no spare, by controller and port. Hidden arrays get none.
std::vector<std::pair<std::uint64_t, std::uint32_t>> osDiskNumbers(const Model &model);

std::unique_ptr<SK_SystemView> makeSystemView(Host &host);

} // namespace sk_emu
