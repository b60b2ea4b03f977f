// Scenarios are files people write by hand and hand round; the reader must refuse a
// bad one with a reason, never crash or hang. One it accepts must survive the rest of
// the emulated host: written back and read again unchanged, turned into images, and
// run for a simulated day with a failed disk.

#include "emulator/emulator.h"

#include <cstdlib>
#include <string>

namespace {

void exerciseHost(sk_emu::Model model)
{
    auto clock = std::make_shared<SK_EmuManualClock>();
    sk_emu::Host host(std::move(model), clock);
    clock->advance(3600 * 1000);
    if (const sk_emu::Model before = host.model(); !before.disks.empty())
        host.failDisk(before.disks.front().id);
    clock->advance(24 * 3600 * 1000);
    const sk_emu::Model after = host.model(); // runs the tasks up to the clock
    for (bool previous : {false, true})
        sk_emu::writeImage(after, sk_emu::ImageOptions{previous, 0});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(data, data + size);
    sk_emu::Model model;
    std::string error;
    if (!sk_emu::parseScenario(text, model, error)) {
        if (error.empty())
            std::abort(); // a refusal always says why
        return 0;
    }
    const std::string written = sk_emu::writeScenario(model);
    sk_emu::Model again;
    if (!sk_emu::parseScenario(written, again, error) || sk_emu::writeScenario(again) != written)
        std::abort(); // what the host writes, it must read back as it was
    exerciseHost(std::move(model));
    return 0;
}
