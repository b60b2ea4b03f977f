#pragma once
// How the drivers judge the health of arrays when members come and go.

#include "emulator/sk_emu_model.h"

namespace sk_emu {

// Flags every member extent on `diskId` with `flags` and re-judges each array that
// holds one, logging "gone critical" or "gone offline" as its state worsens.
void markMemberLost(Model &model, std::uint64_t diskId, std::uint32_t flags);

// The state an array's members allow: NORMAL, CRITICAL when redundancy is used up,
// OFFLINE when data is lost.
std::uint32_t judgeArrayState(const Layout &layout);

// Re-judges `array` and logs the change, if any.
void updateArrayState(Model &model, Array &array);

} // namespace sk_emu
