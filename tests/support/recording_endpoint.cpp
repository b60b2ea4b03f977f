#include "support/recording_endpoint.h"

std::uint64_t RecordingEndpoint::open(const std::string &osName, std::uint32_t openMode,
                                      std::uint32_t flagMode)
{
    ++opens;
    const std::uint64_t session = m_inner->open(osName, openMode, flagMode);
    m_openModes[session] = openMode;
    return session;
}

SK_HostIo RecordingEndpoint::read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                                  std::uint32_t size)
{
    if (position != 0)
        replySizes.push_back(size);
    return m_inner->read(session, position, data, size);
}

SK_HostIo RecordingEndpoint::write(std::uint64_t session, std::uint64_t position,
                                   const std::uint8_t *data, std::uint32_t size)
{
    m_requests.push_back(RecordedRequest{m_openModes[session], {data, data + size}});
    return m_inner->write(session, position, data, size);
}

void RecordingEndpoint::onSleep(std::uint32_t milliseconds)
{
    sleeps.push_back(milliseconds);
    if (duringSleep)
        duringSleep(milliseconds);
    m_inner->onSleep(milliseconds);
}

std::vector<RecordedRequest> RecordingEndpoint::commands() const
{
    std::vector<RecordedRequest> out;
    for (const RecordedRequest &r : m_requests) {
        if (r.code() != 4096 && r.code() != 4118)
            out.push_back(r);
    }
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
