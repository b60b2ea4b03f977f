#include "support/scripted_device.h"

#include <algorithm>
#include <cstring>

std::uint64_t ScriptedDevice::open(const std::string &osName, std::uint32_t openMode,
                                   std::uint32_t flagMode)
{
    if (!devices.count(osName))
        return 0;
    opened.push_back(osName);
    openModes.push_back(openMode);
    flagModes.push_back(flagMode);
    m_sessionDevice.push_back(osName);
    ++openSessions;
    return m_nextSession++;
}

void ScriptedDevice::close(std::uint64_t)
{
    --openSessions;
}

SK_HostIo ScriptedDevice::read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                               std::uint32_t size)
{
    transfers.push_back({true, m_sessionDevice[session], position, size, {}});
    std::memset(data, 0, size);
    SK_HostIo io;
    io.bytes = size;
    if (position == 0) {
        SK_PutU32(data, 0, channelId);
        return io;
    }
    if (readReplies.empty())
        return io;
    const ScriptedReply reply = readReplies.front();
    readReplies.pop_front();
    if (!reply.bytes.empty())
        std::memcpy(data, reply.bytes.data(), std::min<std::size_t>(size, reply.bytes.size()));
    io.systemError = reply.systemError;
    return io;
}

SK_HostIo ScriptedDevice::write(std::uint64_t session, std::uint64_t position,
                                const std::uint8_t *data, std::uint32_t size)
{
    transfers.push_back({false, m_sessionDevice[session], position, size,
                         std::vector<std::uint8_t>(data, data + size)});
    SK_HostIo io;
    io.bytes = size;
    if (!writeErrors.empty()) {
        io.systemError = writeErrors.front();
        writeErrors.pop_front();
    }
    return io;
}

ScriptedReply ScriptedDevice::statusReply(std::uint32_t status)
{
    ScriptedReply reply;
    reply.bytes.resize(512);
    SK_PutU32(reply.bytes.data(), 0, status);
    return reply;
}

std::vector<ScriptedTransfer> ScriptedDevice::writes() const
{
    std::vector<ScriptedTransfer> out;
    std::copy_if(transfers.begin(), transfers.end(), std::back_inserter(out),
                 [](const ScriptedTransfer &t) { return !t.isRead; });
    return out;
}
