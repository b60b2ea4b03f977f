#include "driver/sk_platform.h"

#include "driver/sktl.h"

SK_Platform::~SK_Platform() = default;

bool SK_Platform::deviceControl(SK_Handle, std::uint32_t, const void *, std::uint32_t, void *,
                                std::uint32_t, std::uint32_t &error)
{
    error = 1; // ERROR_INVALID_FUNCTION
    return false;
}

std::uint32_t SK_Platform::lastError() const
{
    return SK_SYSERR_FILE_NOT_FOUND;
}

SK_SystemView &SK_Platform::system()
{
    static SK_SystemView nothing;
    return nothing;
}

std::uint32_t SKTL_CompletionResult(std::uint32_t systemError)
{
    if (systemError == SK_SYSERR_NONE)
        return 1;
    if (systemError == SK_SYSERR_HANDLE_EOF)
        return 2;
    return 3;
}

namespace {

std::unique_ptr<SK_Platform> &installedPlatform()
{
    static std::unique_ptr<SK_Platform> platform;
    return platform;
}

} // namespace

SK_Platform &SK_CurrentPlatform()
{
    SKTL_LockGuard guard;
    auto &platform = installedPlatform();
    if (!platform)
        platform = SK_CreateNativePlatform();
    return *platform;
}

std::unique_ptr<SK_Platform> SK_InstallPlatform(std::unique_ptr<SK_Platform> platform)
{
    SKTL_LockGuard guard;
    auto &current = installedPlatform();
    std::unique_ptr<SK_Platform> previous = std::move(current);
    current = platform ? std::move(platform) : SK_CreateNativePlatform();
    return previous;
}
