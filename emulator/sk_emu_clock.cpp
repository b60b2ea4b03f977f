#include "emulator/sk_emu_clock.h"

#include <chrono>
#include <thread>

SK_EmuClock::~SK_EmuClock() = default;

std::uint64_t SK_EmuSystemClock::nowMs() const
{
    using namespace std::chrono;
    return static_cast<std::uint64_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

void SK_EmuSystemClock::sleep(std::uint32_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
