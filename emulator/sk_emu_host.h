#pragma once
// The emulated host: the drivers' side of the control-device protocol and the
// Windows storage view around it, answered from one model. Install it with
// SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host)) and the console
// cannot tell it from the real stack.

#include "driver/sk_emulated_platform.h"
#include "emulator/sk_emu_clock.h"
#include "emulator/sk_emu_model.h"
#include "emulator/sk_emu_stats.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace sk_emu {

// Protocol constants, as the drivers know them.
namespace proto {
constexpr std::size_t SlotSize = 512; // channel n talks at position n * 512
constexpr std::size_t Command = 0;
constexpr std::size_t Channel = 4;
constexpr std::size_t Generation = 8;
constexpr std::size_t Option = 16;
constexpr std::size_t ApiLevel = 24;
constexpr std::size_t ApiRevision = 28;
constexpr std::size_t ReadCode = 32;
constexpr std::size_t Parameter = 36;
constexpr std::uint32_t ReadCommand = 1;
constexpr std::uint32_t ReadConfig = 4096;
constexpr std::uint32_t ReadEvent = 4098;
constexpr std::uint32_t ReadStats = 4103;
constexpr std::uint32_t ReadStatsReset = 4104;
constexpr std::uint32_t ReadLastStatus = 4118;
constexpr std::uint32_t ReplySize = 8192;
// Device control that writes one event into the driver's log: a 44-byte record of the
// event code twice, the parameter count (8) and eight parameters.
constexpr std::uint32_t ControlLogEvent = 0x42003;
constexpr std::uint32_t LogEventRecordSize = 44;

// Statuses the drivers answer with.
constexpr std::uint32_t Success = 1;
constexpr std::uint32_t BadFunction = 20;
constexpr std::uint32_t BadConfigFunction = 22;
constexpr std::uint32_t NoReadCommand = 24;
constexpr std::uint32_t BufferTooSmall = 26;
constexpr std::uint32_t InvalidGeneration = 38;
constexpr std::uint32_t UnsupportedApi = 60;
} // namespace proto

// System error a failed transfer completes with (ERROR_GEN_FAILURE).
constexpr std::uint32_t kTransferRefused = 31;
constexpr std::uint32_t kTransferIoError = 1117; // ERROR_IO_DEVICE

// What a write command did: its status, and whether the configuration changed.
struct CommandResult
{
    std::uint32_t status = proto::Success;
    bool configurationChanged = false;
};

class Host final : public SK_HostEndpoint
{
public:
    // A host over `model`. Without a clock it runs on the system clock.
    explicit Host(Model model, std::shared_ptr<SK_EmuClock> clock = nullptr);
    ~Host() override;

    // Loads the state file, or creates it from the default scenario when it does not
    // exist. On failure returns null and says why in `error`; the file is left as it is.
    static std::shared_ptr<Host> openStateFile(const std::string &path, std::string &error,
                                               std::shared_ptr<SK_EmuClock> clock = nullptr);

    // --- SK_HostEndpoint ---
    std::uint64_t open(const std::string &osName, std::uint32_t openMode,
                       std::uint32_t flagMode) override;
    void close(std::uint64_t session) override;
    SK_HostIo read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                   std::uint32_t size) override;
    SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                    std::uint32_t size) override;
    void onSleep(std::uint32_t milliseconds) override;
    std::uint32_t control(std::uint64_t session, std::uint32_t controlCode, const std::uint8_t *in,
                          std::uint32_t inSize, std::uint8_t *out, std::uint32_t outSize) override;
    SK_SystemView &system() override;

    // --- Model access for tools and tests (changes are saved when a file is attached) ---
    Model model() const;
    // Runs `change` on the model; when it returns true the generation is raised.
    void modify(const std::function<bool(Model &)> &change);
    std::uint64_t generation() const;
    SK_EmuClock &clock() const { return *m_clock; }
    // Why the last write of the state file failed; empty when it succeeded. Requests keep
    // running on the model in memory, but a tool that made a change must say it was lost.
    std::string lastSaveError() const;

    // Appends an event to the driver's log, as the reverse path of the console does.
    void injectEvent(std::uint16_t message, const std::array<std::uint32_t, 8> &params);

    // --- Faults ---
    // A member disk fails: the disk goes offline, its arrays degrade.
    bool failDisk(std::uint64_t diskId);
    // The disk is pulled out; it stays listed, offline, until a rescan.
    bool pullDisk(std::uint64_t diskId);
    // A disk is plugged in; it comes online with the next rescan.
    void insertDisk(const Disk &disk);
    // The same, when the controller has the port, the port is free and the disk's
    // serial and ID are new; else nothing changes and `why` says what is wrong.
    bool insertDisk(const Disk &disk, std::string &why);
    // The disk reports a SMART threshold crossing (or stops doing so).
    bool setSmartError(std::uint64_t diskId, bool on);
    // The next `count` requests are refused with `status`.
    void refuseNextRequests(std::uint32_t count, std::uint32_t status);
    // The next `count` write commands are answered as stale (38).
    void staleNextWrites(std::uint32_t count);
    // The next `count` transfers fail at the system level.
    void failNextTransfers(std::uint32_t count);

    // --- Persistence ---
    // Saves after every change to `path`. Empty detaches.
    void attachStateFile(const std::string &path);
    const std::string &stateFile() const { return m_statePath; }
    // Writes the current state to the attached file now; false with `error` on failure.
    bool save(std::string &error);

    // Write-command handlers, by command code. The command layer installs its own.
    // A handler gets the request (a copy it may use as scratch) or, for a read code, the
    // reply buffer that starts as a copy of the request; it answers into the latter.
    using CommandHandler =
        std::function<CommandResult(Host &, Model &, std::uint8_t *, std::uint32_t)>;
    void setCommandHandler(std::uint32_t command, CommandHandler handler);

    // Data a disk command left for the reply read that follows on the same channel.
    void setPendingReply(std::uint32_t channelId, std::vector<std::uint8_t> data);
    std::vector<std::uint8_t> takePendingReply(std::uint32_t channelId);

    // The model of an earlier generation the host still keeps; false when it has none.
    bool previousModel(std::uint64_t generation, Model &model) const;

    // Configuration images of recent generations, for reads of a previous generation.
    static constexpr std::size_t kGenerationHistory = 8;

private:
    struct Channel
    {
        std::uint64_t session = 0;
        bool readPending = false;
        std::vector<std::uint8_t> request;
        std::uint32_t lastStatus = proto::Success;
    };
    struct Session
    {
        std::string device;
        std::uint32_t channelId = 0;
    };

    SK_HostIo refuse(Channel &channel, std::uint32_t status);
    SK_HostIo answerRead(Channel &channel, std::uint8_t *data, std::uint32_t size);
    SK_HostIo acceptWrite(Channel &channel, const std::uint8_t *data, std::uint32_t size,
                          bool viaRoute);
    std::vector<std::uint8_t> replyFor(Channel &channel, std::uint32_t &status);
    class StateTurn;
    std::string reloadIfChangedOnDisk();
    void saveQuietly();
    bool writeState(std::string &error, bool evenIfUnchanged);
    void recordHistory();
    bool consumeTransferFault(SK_HostIo &io);
    bool consumeRefusal(std::uint32_t &status);
    void runTasks();
    void afterMemberLoss(Model &model);

    mutable std::recursive_mutex m_mutex;
    Model m_model;
    std::shared_ptr<SK_EmuClock> m_clock;
    Statistics m_stats;
    std::map<std::uint64_t, Session> m_sessions;
    std::map<std::uint32_t, Channel> m_channels;
    std::map<std::uint32_t, CommandHandler> m_handlers;
    std::deque<std::pair<std::uint64_t, Model>> m_history;
    std::map<std::uint32_t, std::vector<std::uint8_t>> m_pendingReplies;
    std::uint64_t m_taskClockMs = 0;
    std::uint64_t m_lastProgressSaveMs = 0;
    std::uint64_t m_nextSession = 1;
    std::uint32_t m_nextChannel = 1;

    // Another process changes the file too: every request re-reads it under the file's
    // lock when its bytes differ from the ones last read or written here.
    std::string m_statePath;
    std::string m_stateText;     // the file's bytes as last read or written
    std::string m_savedScenario; // the model the file holds, as writeScenario renders it
    int m_turnDepth = 0;         // nested turns hold the one file lock of the outermost
    std::string m_lastSaveError;
    std::string m_stateUnusable; // why this turn found the file unreadable; then it isn't written

    std::unique_ptr<SK_SystemView> m_system;
};

} // namespace sk_emu
