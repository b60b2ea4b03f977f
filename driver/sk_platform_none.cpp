// Native platform of systems other than Windows: there are no RAID drivers here, so
// every device open fails and the console reports that no driver was found. The
// emulated host is installed in its place to run the console on such a system.

#include "driver/sk_platform.h"

#include <chrono>
#include <thread>

namespace {

class SK_NoDevicePlatform final : public SK_Platform
{
public:
    const char *name() const override { return "none"; }
    SK_Handle openDevice(const char *, std::uint32_t, std::uint32_t) override { return 0; }
    void closeDevice(SK_Handle) override {}
    std::uint32_t transfer(bool, SK_Handle, void *, std::uint64_t, std::uint32_t, void *,
                           SKTL_Callback) override
    {
        return 3;
    }
    void sleep(std::uint32_t milliseconds) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

} // namespace

std::unique_ptr<SK_Platform> SK_CreateNativePlatform()
{
    return std::make_unique<SK_NoDevicePlatform>();
}
