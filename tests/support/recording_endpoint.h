#pragma once
// A recording endpoint for command tests: it stands in front of another endpoint (the
// emulated host, normally), passes everything through, and keeps the exact bytes of
// every request written, the size of every reply read and every sleep.

#include "driver/sk_emulated_platform.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct RecordedRequest
{
    std::uint32_t openMode;   // of the handle it went through: 8 core, 7 route
    std::uint64_t position;
    std::vector<std::uint8_t> bytes;

    std::uint32_t command() const;  // the first word
    std::uint32_t readCode() const; // offset 32 of a read request (command 1), else 0
    // The code a test looks a request up by: the read code of a read, the command else.
    std::uint32_t code() const;
    std::uint32_t u32(std::size_t offset) const;
    std::uint64_t u64(std::size_t offset) const;
    std::uint16_t u16(std::size_t offset) const;
};

class RecordingEndpoint : public SK_HostEndpoint
{
public:
    explicit RecordingEndpoint(std::shared_ptr<SK_HostEndpoint> inner);

    std::uint64_t open(const std::string &osName, std::uint32_t openMode,
                       std::uint32_t flagMode) override;
    void close(std::uint64_t session) override;
    SK_HostIo read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                   std::uint32_t size) override;
    SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                    std::uint32_t size) override;
    void onSleep(std::uint32_t milliseconds) override;
    SK_SystemView &system() override;

    // Requests that are neither configuration reads (4096) nor reason reads (4118),
    // in the order written.
    std::vector<RecordedRequest> commands() const;
    // Those with this command or read code.
    std::vector<RecordedRequest> withCode(std::uint32_t code) const;
    // Sizes of the replies read at channel positions, in order.
    std::vector<std::uint32_t> replySizes() const { return m_replySizes; }
    // Everything forgotten; counters start again.
    void clear();

    int opens = 0;
    std::vector<std::uint32_t> sleeps;
    // Called at every sleep, before the inner endpoint sees it.
    std::function<void(std::uint32_t)> duringSleep;

private:
    std::shared_ptr<SK_HostEndpoint> m_inner;
    std::map<std::uint64_t, std::uint32_t> m_openModes;
    std::vector<RecordedRequest> m_requests;
    std::vector<std::uint32_t> m_replySizes;
};
