#pragma once
// The stale-generation loop shared by every state-changing command.

#include "driver/sk_core.h"
#include "driver/sk_status.h"

// A write that quotes an out-of-date generation is answered with 38. Commands are
// therefore tried at most this many times, each time on a freshly built core.
constexpr int SK_GENERATION_TRIES = 3;

// Builds a fresh SK_Core for `entry` and runs `attempt(core)`, which resolves its
// devices and sends; goes round again while the answer is 38, with no delay, at most
// three times in all. Returns 8 when the control device can't be opened, otherwise
// the last status, so a third 38 reaches the caller as 38. The caller holds the
// library lock.
template <class Attempt>
std::uint32_t SK_WithFreshCore(const SK_CoreEntry *entry, Attempt &&attempt)
{
    std::uint32_t status = SK_STS_INVALID_GENERATION_NUMBER;
    for (int tries = 0; tries < SK_GENERATION_TRIES; ++tries) {
        SK_Core core(entry->BusName, entry->CoreName, 0);
        if (core.Handle == 0)
            return SK_STS_INVALID_CORE_HANDLE;
        status = attempt(core);
        if (status != SK_STS_INVALID_GENERATION_NUMBER)
            break;
    }
    return status;
}
