// What one refresh costs: the configuration read through the channel, its token report
// and the snapshot read back, against the emulated default workstation; and the
// drivers' side of it, writing the image.

#include "config/config.h"
#include "emulator/emulator.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

const SK_CoreEntry kCore{1, ".", "Core1"};

struct Installed
{
    Installed()
        : host(std::make_shared<sk_emu::Host>(sk_emu::defaultScenario(),
                                              std::make_shared<SK_EmuManualClock>()))
    {
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    }
    ~Installed() { SK_InstallPlatform(nullptr); }
    std::shared_ptr<sk_emu::Host> host;
};

void BM_ParseConfigFromTheEmulatedHost(benchmark::State &state)
{
    Installed installed;
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    for (auto _ : state) {
        SK_ParseConfig(&kCore, snapshot.get(), 0, 1);
        benchmark::DoNotOptimize(snapshot->DiskCount);
    }
}
BENCHMARK(BM_ParseConfigFromTheEmulatedHost);

void BM_WriteImage(benchmark::State &state)
{
    const sk_emu::Model model = sk_emu::defaultScenario();
    for (auto _ : state) {
        auto image = sk_emu::writeImage(model, {});
        benchmark::DoNotOptimize(image.data());
    }
}
BENCHMARK(BM_WriteImage);

} // namespace
