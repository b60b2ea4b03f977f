#include "driver/sk_emulated_platform.h"

#include <cstdio>

namespace {

constexpr std::uint32_t kValidOpenModeMax = 8;
constexpr std::uint32_t kFlagNoBuffering = 3;
constexpr std::uintptr_t kSectorSize = 512;

// The error of this thread's last failed call, kept per thread as the system keeps it.
thread_local std::uint32_t t_lastError = SK_SYSERR_NONE;

// An unbuffered handle moves whole sectors at sector offsets from aligned memory;
// the real system refuses anything else, and so does the emulation.
bool violatesUnbufferedRules(const void *buffer, std::uint64_t position, std::uint32_t size)
{
    return reinterpret_cast<std::uintptr_t>(buffer) % kSectorSize != 0 ||
           position % kSectorSize != 0 || size % kSectorSize != 0;
}

} // namespace

SK_HostEndpoint::~SK_HostEndpoint() = default;

void SK_HostEndpoint::onSleep(std::uint32_t) {}

std::uint32_t SK_HostEndpoint::control(std::uint64_t, std::uint32_t, const std::uint8_t *,
                                       std::uint32_t, std::uint8_t *, std::uint32_t)
{
    return 1; // ERROR_INVALID_FUNCTION
}

SK_SystemView &SK_HostEndpoint::system()
{
    static SK_SystemView nothing;
    return nothing;
}

SK_EmulatedPlatform::SK_EmulatedPlatform(std::shared_ptr<SK_HostEndpoint> endpoint)
    : m_endpoint(std::move(endpoint))
{
}

SK_EmulatedPlatform::~SK_EmulatedPlatform()
{
    for (const auto &entry : m_handles)
        m_endpoint->close(entry.second.session);
}

SK_Handle SK_EmulatedPlatform::openDevice(const char *osName, std::uint32_t openMode,
                                          std::uint32_t flagMode)
{
    if (!osName || openMode == 0 || openMode > kValidOpenModeMax || flagMode == 0 ||
        flagMode > kFlagNoBuffering) {
        t_lastError = SK_SYSERR_INVALID_PARAMETER;
        return 0;
    }
    const std::uint64_t session = m_endpoint->open(osName, openMode, flagMode);
    if (session == 0) {
        t_lastError = SK_SYSERR_FILE_NOT_FOUND;
        return 0;
    }
    std::lock_guard<std::mutex> guard(m_mutex);
    const SK_Handle handle = m_nextHandle;
    m_nextHandle += 4;
    m_handles[handle] = OpenDevice{session, flagMode};
    return handle;
}

void SK_EmulatedPlatform::closeDevice(SK_Handle handle)
{
    std::uint64_t session = 0;
    {
        std::lock_guard<std::mutex> guard(m_mutex);
        auto it = m_handles.find(handle);
        if (it == m_handles.end())
            return;
        session = it->second.session;
        m_handles.erase(it);
    }
    m_endpoint->close(session);
}

std::uint32_t SK_EmulatedPlatform::transfer(bool isRead, SK_Handle handle, void *buffer,
                                            std::uint64_t position, std::uint32_t size,
                                            void *context, SKTL_Callback callback)
{
    OpenDevice device{};
    {
        std::lock_guard<std::mutex> guard(m_mutex);
        auto it = m_handles.find(handle);
        if (it != m_handles.end())
            device = it->second;
    }

    SK_HostIo io;
    if (device.session == 0) {
        io.queued = false;
        io.systemError = 6; // ERROR_INVALID_HANDLE
    } else if (device.flagMode == kFlagNoBuffering &&
               violatesUnbufferedRules(buffer, position, size)) {
        io.queued = false;
        io.systemError = SK_SYSERR_INVALID_PARAMETER;
    } else if (isRead) {
        io = m_endpoint->read(device.session, position, static_cast<std::uint8_t *>(buffer), size);
    } else {
        io = m_endpoint->write(device.session, position, static_cast<const std::uint8_t *>(buffer),
                               size);
    }

    if (!io.queued) {
        std::printf(isRead ? "Read from file failed, error=%d\n"
                           : "Write to file failed, error=%d\n",
                    static_cast<int>(io.systemError));
        return 3;
    }
    const std::uint32_t result = SKTL_CompletionResult(io.systemError);
    if (callback) {
        // The emulated device completes at once; the callback runs before the return,
        // as it would during the caller's next alertable wait on the real system.
        callback(result, context, io.bytes);
        return 1;
    }
    return result;
}

bool SK_EmulatedPlatform::deviceControl(SK_Handle handle, std::uint32_t controlCode, const void *in,
                                        std::uint32_t inSize, void *out, std::uint32_t outSize,
                                        std::uint32_t &error)
{
    std::uint64_t session = 0;
    {
        std::lock_guard<std::mutex> guard(m_mutex);
        auto it = m_handles.find(handle);
        if (it != m_handles.end())
            session = it->second.session;
    }
    error = session == 0
                ? 6 // ERROR_INVALID_HANDLE
                : m_endpoint->control(session, controlCode, static_cast<const std::uint8_t *>(in),
                                      inSize, static_cast<std::uint8_t *>(out), outSize);
    if (error != SK_SYSERR_NONE)
        t_lastError = error;
    return error == SK_SYSERR_NONE;
}

std::uint32_t SK_EmulatedPlatform::lastError() const
{
    return t_lastError;
}

void SK_EmulatedPlatform::sleep(std::uint32_t milliseconds)
{
    m_endpoint->onSleep(milliseconds);
}
