#pragma once
// The one seam between the console and the operating system. Everything above it is
// written once; below it are two implementations: the Win32 one that talks to the
// real drivers, and the emulated host that answers in their place on any system.

#include "driver/sk_system_view.h"
#include "driver/sk_types.h"

#include <memory>

// Completion callback of an asynchronous transfer: status 1, 2 or 3, the caller's
// context and the number of bytes moved.
using SKTL_Callback = void (*)(std::uint32_t status, void *context, std::uint32_t bytes);

// Operating-system error codes a completion can carry. The values are Win32's, so the
// emulated host reports completions in the same terms as the real system.
constexpr std::uint32_t SK_SYSERR_NONE = 0;
constexpr std::uint32_t SK_SYSERR_HANDLE_EOF = 38;
constexpr std::uint32_t SK_SYSERR_GEN_FAILURE = 31;
constexpr std::uint32_t SK_SYSERR_INVALID_PARAMETER = 87;
constexpr std::uint32_t SK_SYSERR_FILE_NOT_FOUND = 2;

// Maps a completion's system error to a transfer result: 0 is 1 (success),
// end of file is 2, anything else is 3.
std::uint32_t SKTL_CompletionResult(std::uint32_t systemError);

class SK_Platform
{
public:
    virtual ~SK_Platform();

    // Short name of the implementation: "windows", "emulated" or "none".
    virtual const char *name() const = 0;

    // Opens an operating-system device name ("\\.\SKConfig0") with the access modes of
    // SKTL_DeviceOpen. Returns 0 when the device does not exist or can't be opened.
    virtual SK_Handle openDevice(const char *osName, std::uint32_t openMode,
                                 std::uint32_t flagMode) = 0;
    virtual void closeDevice(SK_Handle handle) = 0;

    // Queues one read or write at `position`. Without a callback it waits (alertably)
    // for the completion and returns 1, 2 or 3. With a callback it returns 1 once the
    // transfer is queued and reports the result through the callback. A transfer the
    // system refuses to queue prints the refusal and returns 3.
    virtual std::uint32_t transfer(bool isRead, SK_Handle handle, void *buffer,
                                   std::uint64_t position, std::uint32_t size, void *context,
                                   SKTL_Callback callback) = 0;

    // An alertable sleep; pending completions may run during it.
    virtual void sleep(std::uint32_t milliseconds) = 0;

    // One device control request on an open handle. False with the system error in
    // `error` when it fails; the default knows of no device that takes one.
    virtual bool deviceControl(SK_Handle handle, std::uint32_t controlCode, const void *in,
                               std::uint32_t inSize, void *out, std::uint32_t outSize,
                               std::uint32_t &error);

    // The system error of this thread's last platform call that failed, as the system
    // numbers it (GetLastError on Windows). Read it straight after the failing call; the
    // default is the error of a device that does not exist.
    virtual std::uint32_t lastError() const;

    // Volumes, disks and host facts of this system. The default knows of none.
    virtual SK_SystemView &system();
};

// The platform every device operation goes through. Until one is installed this is
// the native one: Win32 on Windows, and on other systems one with no devices at all.
SK_Platform &SK_CurrentPlatform();

// Installs `platform` for the whole process and returns the previous one; passing
// null restores the native platform. Call it before any command runs.
std::unique_ptr<SK_Platform> SK_InstallPlatform(std::unique_ptr<SK_Platform> platform);

// The native implementation of this build (defined in one file per system).
std::unique_ptr<SK_Platform> SK_CreateNativePlatform();
