#pragma once
// A fresh emulated host for each test, on a manual clock, installed as the platform
// for the duration of the test.

#include "driver/driver.h"
#include "emulator/emulator.h"

#include <memory>

class EmulatedHostScope
{
public:
    explicit EmulatedHostScope(sk_emu::Model model = sk_emu::defaultScenario())
        : clock(std::make_shared<SK_EmuManualClock>(1000000)),
          host(std::make_shared<sk_emu::Host>(std::move(model), clock))
    {
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    }
    ~EmulatedHostScope() { SK_InstallPlatform(nullptr); }

    EmulatedHostScope(const EmulatedHostScope &) = delete;
    EmulatedHostScope &operator=(const EmulatedHostScope &) = delete;

    std::shared_ptr<SK_EmuManualClock> clock;
    std::shared_ptr<sk_emu::Host> host;
};
