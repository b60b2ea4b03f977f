#pragma once
// A small scripted control device for the channel tests: it hands out a channel id at
// position 0, records every transfer with the bytes written, and answers reads and
// writes from queues the test fills.

#include "driver/sk_emulated_platform.h"

#include <deque>
#include <set>
#include <string>
#include <vector>

struct ScriptedTransfer
{
    bool isRead;
    std::string device;
    std::uint64_t position;
    std::uint32_t size;
    std::vector<std::uint8_t> written; // bytes of a write
};

struct ScriptedReply
{
    std::uint32_t systemError = SK_SYSERR_NONE;
    std::vector<std::uint8_t> bytes; // copied to the start of the read buffer
};

class ScriptedDevice : public SK_HostEndpoint
{
public:
    std::uint64_t open(const std::string &osName, std::uint32_t openMode,
                       std::uint32_t flagMode) override;
    void close(std::uint64_t session) override;
    SK_HostIo read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                   std::uint32_t size) override;
    SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                    std::uint32_t size) override;

    // Reply whose first word is `status` (a status answer of read code 4118).
    static ScriptedReply statusReply(std::uint32_t status);

    std::set<std::string> devices{"\\\\.\\SKConfig0"};
    std::uint32_t channelId = 7;
    std::deque<ScriptedReply> readReplies;   // reads at channel positions, in order
    std::deque<std::uint32_t> writeErrors;   // completion errors of the next writes
    std::vector<ScriptedTransfer> transfers; // everything that reached the device
    std::vector<std::string> opened;         // device names opened, in order
    std::vector<std::uint32_t> openModes;
    std::vector<std::uint32_t> flagModes;
    int openSessions = 0;

    std::vector<ScriptedTransfer> writes() const;

private:
    std::uint64_t m_nextSession = 1;
    std::vector<std::string> m_sessionDevice{""};
};
