#pragma once
// A recording endpoint for command tests: it stands in front of another endpoint (the
// emulated host, normally), passes everything through, and keeps the exact bytes of
// every request written, the size of every reply read and every sleep.

#include "driver/sk_emulated_platform.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

struct RecordedRequest
{
    std::uint32_t openMode = 0; // of the handle it went through: 8 the core's, 7 a route's
    std::vector<std::uint8_t> bytes;

    // The read code of a read request (command 1), else the command.
    std::uint32_t code() const { return u32(0) == 1 ? u32(32) : u32(0); }
    std::uint16_t u16(std::size_t at) const
    {
        return at + 2 <= bytes.size() ? SK_GetU16(bytes.data(), at) : 0xDEAD;
    }
    std::uint32_t u32(std::size_t at) const
    {
        return at + 4 <= bytes.size() ? SK_GetU32(bytes.data(), at) : 0xDEADBEEF;
    }
    std::uint64_t u64(std::size_t at) const
    {
        return at + 8 <= bytes.size() ? SK_GetU64(bytes.data(), at) : ~0ull;
    }
};

class RecordingEndpoint : public SK_HostEndpoint
{
public:
    explicit RecordingEndpoint(std::shared_ptr<SK_HostEndpoint> inner) : m_inner(std::move(inner))
    {
    }

    std::uint64_t open(const std::string &osName, std::uint32_t openMode,
                       std::uint32_t flagMode) override;
    void close(std::uint64_t session) override { m_inner->close(session); }
    SK_HostIo read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                   std::uint32_t size) override;
    SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                    std::uint32_t size) override;
    void onSleep(std::uint32_t milliseconds) override;
    SK_SystemView &system() override { return m_inner->system(); }

    // Requests other than configuration reads (4096) and reason reads (4118), in order;
    // or only those with this command or read code.
    std::vector<RecordedRequest> commands() const;
    std::vector<RecordedRequest> withCode(std::uint32_t code) const;

    int opens = 0;
    std::vector<std::uint32_t> sleeps;
    std::vector<std::uint32_t> replySizes; // of reads at channel positions
    // Called at every sleep, before the inner endpoint sees it.
    std::function<void(std::uint32_t)> duringSleep;

private:
    std::shared_ptr<SK_HostEndpoint> m_inner;
    std::map<std::uint64_t, std::uint32_t> m_openModes;
    std::vector<RecordedRequest> m_requests;
};
