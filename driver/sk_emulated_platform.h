#pragma once
// The emulated implementation of the platform seam. It keeps handles and the
// transfer mechanics (alignment rules of unbuffered opens, completion results,
// callbacks) and hands the device traffic itself to a host endpoint: the emulated
// RAID stack, or a small scripted device in tests.

#include "driver/sk_platform.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

// Outcome of one transfer at the endpoint, in the system's own terms.
struct SK_HostIo
{
    bool queued = true;                         // false: the system refused to queue it
    std::uint32_t systemError = SK_SYSERR_NONE; // completion error (Win32 numbering)
    std::uint32_t bytes = 0;                    // bytes moved
};

// The device side as the operating system would present it.
class SK_HostEndpoint
{
public:
    virtual ~SK_HostEndpoint();

    // Opens an operating-system device name; returns a non-zero session or 0 when
    // there is no such device.
    virtual std::uint64_t open(const std::string &osName, std::uint32_t openMode,
                               std::uint32_t flagMode) = 0;
    virtual void close(std::uint64_t session) = 0;
    virtual SK_HostIo read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                           std::uint32_t size) = 0;
    virtual SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                            std::uint32_t size) = 0;

    // Called for every alertable sleep, so an endpoint with its own clock can let
    // time pass. The default does nothing.
    virtual void onSleep(std::uint32_t milliseconds);

    // A device control request; returns the system error, 0 for success. The default
    // takes none.
    virtual std::uint32_t control(std::uint64_t session, std::uint32_t controlCode,
                                  const std::uint8_t *in, std::uint32_t inSize, std::uint8_t *out,
                                  std::uint32_t outSize);

    // The volumes, disks and host facts around the device. The default knows of none.
    virtual SK_SystemView &system();
};

class SK_EmulatedPlatform final : public SK_Platform
{
public:
    explicit SK_EmulatedPlatform(std::shared_ptr<SK_HostEndpoint> endpoint);
    ~SK_EmulatedPlatform() override;

    const char *name() const override { return "emulated"; }
    SK_Handle openDevice(const char *osName, std::uint32_t openMode,
                         std::uint32_t flagMode) override;
    void closeDevice(SK_Handle handle) override;
    std::uint32_t transfer(bool isRead, SK_Handle handle, void *buffer, std::uint64_t position,
                           std::uint32_t size, void *context, SKTL_Callback callback) override;
    void sleep(std::uint32_t milliseconds) override;
    bool deviceControl(SK_Handle handle, std::uint32_t controlCode, const void *in,
                       std::uint32_t inSize, void *out, std::uint32_t outSize,
                       std::uint32_t &error) override;
    // Set by failed opens and device control requests, per thread as on the real system.
    std::uint32_t lastError() const override;
    SK_SystemView &system() override { return m_endpoint->system(); }

private:
    struct OpenDevice
    {
        std::uint64_t session;
        std::uint32_t flagMode;
    };

    std::shared_ptr<SK_HostEndpoint> m_endpoint;
    mutable std::mutex m_mutex;
    std::map<SK_Handle, OpenDevice> m_handles;
    SK_Handle m_nextHandle = 0x100;
};
