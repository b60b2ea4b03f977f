#include "support/recording_endpoint.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kReadCommand = 1;
constexpr std::uint32_t kConfigRead = 4096;
constexpr std::uint32_t kLastStatusRead = 4118;

} // namespace

std::uint32_t RecordedRequest::command() const
{
    return u32(0);
}

std::uint32_t RecordedRequest::readCode() const
{
    return command() == kReadCommand ? u32(32) : 0;
}

std::uint32_t RecordedRequest::code() const
{
    return command() == kReadCommand ? readCode() : command();
}

std::uint32_t RecordedRequest::u32(std::size_t offset) const
{
    return offset + 4 <= bytes.size() ? SK_GetU32(bytes.data(), offset) : 0xDEADBEEFu;
}

std::uint64_t RecordedRequest::u64(std::size_t offset) const
{
    return offset + 8 <= bytes.size() ? SK_GetU64(bytes.data(), offset) : 0xDEADBEEFDEADBEEFull;
}

std::uint16_t RecordedRequest::u16(std::size_t offset) const
{
    return offset + 2 <= bytes.size() ? SK_GetU16(bytes.data(), offset) : 0xDEAD;
}

RecordingEndpoint::RecordingEndpoint(std::shared_ptr<SK_HostEndpoint> inner)
    : m_inner(std::move(inner))
{
}

std::uint64_t RecordingEndpoint::open(const std::string &osName, std::uint32_t openMode,
                                      std::uint32_t flagMode)
{
    ++opens;
    const std::uint64_t session = m_inner->open(osName, openMode, flagMode);
    if (session)
        m_openModes[session] = openMode;
    return session;
}

void RecordingEndpoint::close(std::uint64_t session)
{
    m_inner->close(session);
}

SK_HostIo RecordingEndpoint::read(std::uint64_t session, std::uint64_t position,
                                  std::uint8_t *data, std::uint32_t size)
{
    if (position != 0)
        m_replySizes.push_back(size);
    return m_inner->read(session, position, data, size);
}

SK_HostIo RecordingEndpoint::write(std::uint64_t session, std::uint64_t position,
                                   const std::uint8_t *data, std::uint32_t size)
{
    m_requests.push_back(RecordedRequest{m_openModes[session], position,
                                         std::vector<std::uint8_t>(data, data + size)});
    return m_inner->write(session, position, data, size);
}

void RecordingEndpoint::onSleep(std::uint32_t milliseconds)
{
    sleeps.push_back(milliseconds);
    if (duringSleep)
        duringSleep(milliseconds);
    m_inner->onSleep(milliseconds);
}

SK_SystemView &RecordingEndpoint::system()
{
    return m_inner->system();
}

std::vector<RecordedRequest> RecordingEndpoint::commands() const
{
    std::vector<RecordedRequest> out;
    std::copy_if(m_requests.begin(), m_requests.end(), std::back_inserter(out),
                 [](const RecordedRequest &r) {
                     return r.readCode() != kConfigRead && r.readCode() != kLastStatusRead;
                 });
    return out;
}

std::vector<RecordedRequest> RecordingEndpoint::withCode(std::uint32_t code) const
{
    std::vector<RecordedRequest> out;
    for (const RecordedRequest &r : commands()) {
        if (r.code() == code)
            out.push_back(r);
    }
    return out;
}

void RecordingEndpoint::clear()
{
    opens = 0;
    sleeps.clear();
    m_requests.clear();
    m_replySizes.clear();
}
