#include "emulator/sk_emu_host.h"

#include "emulator/sk_emu_commands.h"
#include "emulator/sk_emu_events.h"
#include "emulator/sk_emu_image.h"
#include "emulator/sk_emu_rules.h"
#include "emulator/sk_emu_scenario.h"
#include "emulator/sk_emu_statefile.h"
#include "emulator/sk_emu_system.h"
#include "emulator/sk_emu_wire.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace sk_emu {

using namespace wire;

namespace {

constexpr char kControlDevice[] = "\\\\.\\SKConfig0";

bool driverLoaded(const Model &model, const char *name)
{
    return std::any_of(model.host.drivers.begin(), model.host.drivers.end(),
                       [name](const DriverFile &d) { return d.name == name && d.loaded; });
}

} // namespace

// One request's turn at the state file: the file's lock is held from before the state
// is looked at until after the change is written, so a change another process makes
// meanwhile is read first and never overwritten. Taken with m_mutex held.
class Host::StateTurn
{
public:
    explicit StateTurn(Host &host, bool reload = true) : m_host(host)
    {
        if (m_host.m_turnDepth++ > 0 || m_host.m_statePath.empty())
            return;
        m_lock = std::make_unique<StateFileLock>(m_host.m_statePath);
        m_host.m_stateUnusable = reload ? m_host.reloadIfChangedOnDisk() : std::string();
    }
    ~StateTurn() { --m_host.m_turnDepth; }
    StateTurn(const StateTurn &) = delete;
    StateTurn &operator=(const StateTurn &) = delete;

private:
    Host &m_host;
    std::unique_ptr<StateFileLock> m_lock;
};

Host::Host(Model model, std::shared_ptr<SK_EmuClock> clock)
    : m_model(std::move(model)),
      m_clock(clock ? std::move(clock) : std::make_shared<SK_EmuSystemClock>())
{
    m_system = makeSystemView(*this);
    m_stats.advance(m_model, m_clock->nowMs());
    m_taskClockMs = m_lastProgressSaveMs = m_clock->nowMs();
    installDriverCommands(*this);
}

Host::~Host() = default;

std::shared_ptr<Host> Host::openStateFile(const std::string &path, std::string &error,
                                          std::shared_ptr<SK_EmuClock> clock)
{
    // The file is only ever replaced whole, so reading it needs no lock; creating it
    // does, so that two programs starting together create it once. A read-only look
    // (skemu show, check) thus leaves no lock file beside someone's scenario.
    Model model;
    std::string text;
    std::error_code ec;
    std::unique_ptr<StateFileLock> lock;
    if (!std::filesystem::exists(path, ec))
        lock = std::make_unique<StateFileLock>(path);
    if (std::filesystem::exists(path, ec)) {
        std::string why;
        if (!readStateText(path, text, error))
            return nullptr;
        if (!parseScenario(text, model, why)) {
            error = path + ": " + why;
            return nullptr;
        }
    } else {
        model = defaultScenario();
        text = writeScenario(model);
        if (!writeStateTextAtomically(path, text, error))
            return nullptr;
    }
    auto host = std::make_shared<Host>(std::move(model), std::move(clock));
    std::lock_guard<std::recursive_mutex> guard(host->m_mutex);
    host->m_statePath = path;
    host->m_stateText = std::move(text);
    host->m_savedScenario = writeScenario(host->m_model);
    return host;
}

// --- Sessions and channels ---------------------------------------------------------

std::uint64_t Host::open(const std::string &osName, std::uint32_t, std::uint32_t)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    StateTurn turn(*this);
    runTasks();
    // The control device exists while the configuration driver is loaded.
    if (osName != kControlDevice || !driverLoaded(m_model, "skcfg.sys"))
        return 0;
    const std::uint64_t session = m_nextSession++;
    m_sessions[session] = Session{osName, 0};
    return session;
}

void Host::close(std::uint64_t session)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    auto it = m_sessions.find(session);
    if (it == m_sessions.end())
        return;
    if (it->second.channelId) {
        m_channels.erase(it->second.channelId);
        m_pendingReplies.erase(it->second.channelId);
    }
    m_sessions.erase(it);
}

bool Host::consumeTransferFault(SK_HostIo &io)
{
    if (m_model.faults.failedTransfers == 0)
        return false;
    --m_model.faults.failedTransfers;
    saveQuietly();
    io.systemError = kTransferIoError;
    io.bytes = 0;
    return true;
}

bool Host::consumeRefusal(std::uint32_t &status)
{
    if (m_model.faults.refuseCount == 0)
        return false;
    --m_model.faults.refuseCount;
    status = m_model.faults.refuseStatus;
    saveQuietly();
    return true;
}

SK_HostIo Host::read(std::uint64_t session, std::uint64_t position, std::uint8_t *data,
                     std::uint32_t size)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    StateTurn turn(*this);
    SK_HostIo io;
    auto sessionIt = m_sessions.find(session);
    if (sessionIt == m_sessions.end()) {
        io.queued = false;
        io.systemError = 6; // ERROR_INVALID_HANDLE
        return io;
    }
    if (consumeTransferFault(io))
        return io;
    runTasks();

    // A refused or failed read leaves the caller's buffer as it was, like a request
    // the real device completes with an error.
    if (position == 0) {
        std::memset(data, 0, size);
        // Each handle gets its own channel on its first id read.
        Session &s = sessionIt->second;
        if (s.channelId == 0) {
            s.channelId = m_nextChannel++;
            if (m_nextChannel == 0)
                m_nextChannel = 1;
            m_channels[s.channelId] = Channel{session, false, {}, proto::Success};
        }
        if (size >= 4)
            put32(data, 0, s.channelId);
        io.bytes = size;
        return io;
    }

    auto channelIt = m_channels.find(static_cast<std::uint32_t>(position / proto::SlotSize));
    if (position % proto::SlotSize != 0 || channelIt == m_channels.end()) {
        io.systemError = SK_SYSERR_INVALID_PARAMETER;
        return io;
    }
    return answerRead(channelIt->second, data, size);
}

SK_HostIo Host::write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                      std::uint32_t size)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    StateTurn turn(*this);
    SK_HostIo io;
    if (!m_sessions.count(session)) {
        io.queued = false;
        io.systemError = 6;
        return io;
    }
    if (consumeTransferFault(io))
        return io;
    runTasks();
    auto channelIt = m_channels.find(static_cast<std::uint32_t>(position / proto::SlotSize));
    if (position == 0 || position % proto::SlotSize != 0 || channelIt == m_channels.end()) {
        io.systemError = SK_SYSERR_INVALID_PARAMETER;
        return io;
    }
    // A handle opened for one route borrows the channel of the core's own handle.
    return acceptWrite(channelIt->second, data, size, channelIt->second.session != session);
}

SK_HostIo Host::refuse(Channel &channel, std::uint32_t status)
{
    channel.lastStatus = status;
    SK_HostIo io;
    io.systemError = kTransferRefused;
    return io;
}

SK_HostIo Host::acceptWrite(Channel &channel, const std::uint8_t *data, std::uint32_t size,
                            bool viaRoute)
{
    if (size < proto::SlotSize)
        return refuse(channel, proto::BufferTooSmall);
    const std::uint32_t command = u32(data, proto::Command);
    if (command == proto::ReadCommand) {
        // The drivers take every read request and judge it when the reply is read, so a
        // refused read fails at the read and its reason waits for the 4118 read. The last
        // status stays as it is: this may be the request that asks for it.
        channel.request.assign(data, data + size);
        channel.readPending = true;
        SK_HostIo io;
        io.bytes = size;
        return io;
    }
    if (std::uint32_t status = 0; consumeRefusal(status))
        return refuse(channel, status);
    if (u32(data, proto::ApiLevel) != 2)
        return refuse(channel, proto::UnsupportedApi);

    if (m_model.faults.staleWrites) {
        --m_model.faults.staleWrites;
        saveQuietly();
        return refuse(channel, proto::InvalidGeneration);
    }
    // Route handles carry no generation: they address one device, not the configuration.
    if (!viaRoute && u64(data, proto::Generation) != m_model.generation)
        return refuse(channel, proto::InvalidGeneration);

    auto handler = m_handlers.find(command);
    if (handler == m_handlers.end())
        return refuse(channel, proto::BadFunction);

    Model working = m_model;
    std::vector<std::uint8_t> request(data, data + size);
    const CommandResult result = handler->second(*this, working, request.data(), size);
    if (result.status != proto::Success)
        return refuse(channel, result.status); // the model is left as it was
    if (result.configurationChanged) {
        recordHistory();
        m_model = std::move(working);
        ++m_model.generation;
    } else {
        m_model = std::move(working);
    }
    channel.lastStatus = proto::Success;
    saveQuietly();
    SK_HostIo io;
    io.bytes = size;
    return io;
}

SK_HostIo Host::answerRead(Channel &channel, std::uint8_t *data, std::uint32_t size)
{
    if (!channel.readPending)
        return refuse(channel, proto::NoReadCommand);
    channel.readPending = false;
    // Refusal faults spare the request for the last status: the reason is always told.
    const std::uint8_t *request = channel.request.data();
    if (std::uint32_t status = 0;
        u32(request, proto::ReadCode) != proto::ReadLastStatus && consumeRefusal(status))
        return refuse(channel, status);
    if (u32(request, proto::ApiLevel) != 2)
        return refuse(channel, proto::UnsupportedApi);

    std::uint32_t status = proto::Success;
    const std::vector<std::uint8_t> reply = replyFor(channel, status);
    if (status != proto::Success)
        return refuse(channel, status);
    std::memset(data, 0, size);
    std::memcpy(data, reply.data(), std::min<std::size_t>(size, reply.size()));
    SK_HostIo io;
    io.bytes = size;
    return io;
}

std::vector<std::uint8_t> Host::replyFor(Channel &channel, std::uint32_t &status)
{
    const std::uint8_t *request = channel.request.data();
    const std::uint32_t readCode = u32(request, proto::ReadCode);
    const std::uint32_t channelId = u32(request, proto::Channel);
    std::vector<std::uint8_t> reply(proto::ReplySize, 0);
    // Every answer but the last-status one starts with the success status.
    put32(reply.data(), proto::Command, proto::Success);

    switch (readCode) {
    case proto::ReadConfig: {
        const std::uint32_t wanted = u32(request, proto::Parameter);
        if (wanted == 0)
            return writeImage(m_model, ImageOptions{false, channelId});
        for (const auto &[generation, model] : m_history) {
            if (static_cast<std::uint32_t>(generation) == wanted)
                return writeImage(model, ImageOptions{true, channelId});
        }
        status = proto::InvalidGeneration;
        return {};
    }
    case proto::ReadEvent:
        writeEventReply(m_model, u32(request, proto::Parameter), reply.data());
        return reply;
    case proto::ReadStats:
    case proto::ReadStatsReset:
        m_stats.fill(m_model, m_clock->nowMs(), reply.data());
        if (readCode == proto::ReadStatsReset)
            m_stats.resetInterval();
        return reply;
    case proto::ReadLastStatus:
        put32(reply.data(), 0, channel.lastStatus);
        return reply;
    default: {
        auto handler = m_handlers.find(readCode);
        if (handler != m_handlers.end()) {
            // Read codes with their own handler (create info, SMART data, ...) answer
            // into the reply behind the request header.
            Model working = m_model;
            reply.assign(request,
                         request + std::min<std::size_t>(channel.request.size(), proto::ReplySize));
            reply.resize(proto::ReplySize, 0);
            put32(reply.data(), proto::Command, proto::Success);
            const CommandResult result =
                handler->second(*this, working, reply.data(), proto::ReplySize);
            status = result.status;
            return reply;
        }
        status = proto::BadConfigFunction;
        return {};
    }
    }
}

std::uint32_t Host::control(std::uint64_t session, std::uint32_t controlCode,
                            const std::uint8_t *in, std::uint32_t inSize, std::uint8_t *,
                            std::uint32_t)
{
    constexpr std::uint32_t kInvalidFunction = 1, kInvalidParameter = 87;
    {
        std::lock_guard<std::recursive_mutex> guard(m_mutex);
        if (!m_sessions.count(session))
            return 6; // ERROR_INVALID_HANDLE
    }
    if (controlCode != proto::ControlLogEvent)
        return kInvalidFunction;
    if (!in || inSize < proto::LogEventRecordSize || u32(in, 0) != u32(in, 4) || u32(in, 8) != 8)
        return kInvalidParameter;
    std::array<std::uint32_t, 8> params{};
    for (std::size_t i = 0; i < params.size(); ++i)
        params[i] = u32(in, 12 + 4 * i);
    injectEvent(static_cast<std::uint16_t>(u32(in, 0) & 0xFFFF), params);
    return 0;
}

void Host::onSleep(std::uint32_t milliseconds)
{
    m_clock->sleep(milliseconds);
}

SK_SystemView &Host::system()
{
    return *m_system;
}

// --- Model access ------------------------------------------------------------------

Model Host::model() const
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    auto *self = const_cast<Host *>(this);
    StateTurn turn(*self);
    self->runTasks();
    return m_model;
}

// Background work moves on by the time passed since the last look. Progress alone is
// saved now and then; a task that ends changes the configuration and is saved at once.
void Host::runTasks()
{
    const std::uint64_t now = m_clock->nowMs();
    if (now <= m_taskClockMs)
        return;
    const std::uint64_t elapsed = now - m_taskClockMs;
    m_taskClockMs = now;
    Model working = m_model;
    bool progressed = false;
    const bool ended = advanceTasks(working, elapsed, progressed);
    if (!ended && !progressed)
        return;
    if (ended)
        recordHistory();
    m_model = std::move(working);
    if (ended)
        ++m_model.generation;
    constexpr std::uint64_t kProgressSaveMs = 10000;
    if (ended || now - m_lastProgressSaveMs >= kProgressSaveMs) {
        m_lastProgressSaveMs = now;
        saveQuietly();
    }
}

bool Host::previousModel(std::uint64_t generation, Model &model) const
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    for (const auto &[kept, snapshot] : m_history) {
        if (kept == generation) {
            model = snapshot;
            return true;
        }
    }
    return false;
}

void Host::setPendingReply(std::uint32_t channelId, std::vector<std::uint8_t> data)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    m_pendingReplies[channelId] = std::move(data);
}

std::vector<std::uint8_t> Host::takePendingReply(std::uint32_t channelId)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    auto it = m_pendingReplies.find(channelId);
    if (it == m_pendingReplies.end())
        return {};
    std::vector<std::uint8_t> data = std::move(it->second);
    m_pendingReplies.erase(it);
    return data;
}

// A redundant array that lost a member rebuilds onto a spare when one fits.
void Host::afterMemberLoss(Model &model)
{
    for (Array &array : model.arrays) {
        if (array.state != code::ArrayNormal)
            failRunningTask(model, array);
        takeSpareForRebuild(model, array);
    }
}

std::uint64_t Host::generation() const
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    return m_model.generation;
}

void Host::recordHistory()
{
    m_history.emplace_front(m_model.generation, m_model);
    while (m_history.size() > kGenerationHistory)
        m_history.pop_back();
}

void Host::modify(const std::function<bool(Model &)> &change)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    StateTurn turn(*this);
    Model working = m_model;
    const bool configurationChanged = change(working);
    if (configurationChanged) {
        recordHistory();
        ++working.generation;
    }
    m_model = std::move(working);
    saveQuietly();
}

void Host::injectEvent(std::uint16_t message, const std::array<std::uint32_t, 8> &params)
{
    modify([&](Model &m) {
        m.logEvent(message);
        m.events.back().params = params;
        return false;
    });
}

void Host::setCommandHandler(std::uint32_t command, CommandHandler handler)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    m_handlers[command] = std::move(handler);
}

// --- Faults ------------------------------------------------------------------------

bool Host::failDisk(std::uint64_t diskId)
{
    bool found = false;
    modify([&](Model &m) {
        Disk *disk = m.findDisk(diskId);
        if (!disk)
            return false;
        found = true;
        disk->state = code::DiskOffline;
        m.logEvent(event::DriveFailed, {disk->controller, disk->port});
        markMemberLost(m, diskId, code::MemberFailed | code::MemberOffline);
        afterMemberLoss(m);
        return true;
    });
    return found;
}

bool Host::pullDisk(std::uint64_t diskId)
{
    bool found = false;
    modify([&](Model &m) {
        Disk *disk = m.findDisk(diskId);
        if (!disk || !disk->attached)
            return false;
        found = true;
        disk->attached = false;
        disk->state = code::DiskOffline;
        m.logEvent(event::DriveDisconnected);
        m.logEvent(event::DeviceDisconnected, {disk->controller, disk->port});
        markMemberLost(m, diskId, code::MemberNotPresent | code::MemberOffline);
        afterMemberLoss(m);
        return true;
    });
    return found;
}

namespace {

void plugIn(Model &m, const Disk &disk)
{
    Disk inserted = disk;
    inserted.attached = true;
    inserted.state = code::DiskOffline; // online after the next rescan
    inserted.awaitingRescan = true;
    m.disks.push_back(inserted);
    m.logEvent(event::NewDriveConnected);
    m.logEvent(event::DeviceConnected, {inserted.controller, inserted.port});
}

std::string hexId(std::uint64_t id)
{
    char text[24];
    std::snprintf(text, sizeof text, "0x%016llx", static_cast<unsigned long long>(id));
    return text;
}

// What keeps `disk` from being plugged in, or nothing.
std::string pluggingProblem(const Model &m, const Disk &disk)
{
    const std::string controller = "controller " + std::to_string(disk.controller);
    if (disk.controller >= m.controllers.size())
        return "there is no " + controller;
    const std::uint32_t ports = m.controllers[disk.controller].ports;
    if (disk.port >= ports)
        return controller + " has no port " + std::to_string(disk.port) + " (its ports are 0 to " +
               std::to_string(ports ? ports - 1 : 0) + ")";
    for (const Disk &other : m.disks) {
        if (!other.attached)
            continue; // a pulled disk's port is free, though it stays listed
        if (other.controller == disk.controller && other.port == disk.port)
            return "port " + std::to_string(disk.port) + " of " + controller +
                   " is taken by disk " + hexId(other.id);
        if (other.serial == disk.serial)
            return "disk " + hexId(other.id) + " has serial " + disk.serial + " already";
    }
    if (disk.id == 0 || m.findDisk(disk.id) || m.findArray(disk.id))
        return "ID " + hexId(disk.id) + " is taken";
    return {};
}

} // namespace

void Host::insertDisk(const Disk &disk)
{
    modify([&](Model &m) {
        plugIn(m, disk);
        return true;
    });
}

bool Host::insertDisk(const Disk &disk, std::string &why)
{
    bool done = false;
    modify([&](Model &m) {
        why = pluggingProblem(m, disk);
        if (!why.empty())
            return false;
        plugIn(m, disk);
        done = true;
        return true;
    });
    return done;
}

bool Host::setSmartError(std::uint64_t diskId, bool on)
{
    bool found = false;
    modify([&](Model &m) {
        Disk *disk = m.findDisk(diskId);
        if (!disk)
            return false;
        found = true;
        const std::uint32_t state = on ? code::DiskSmartError : code::DiskOnline;
        if (disk->state == state)
            return false;
        disk->state = state;
        if (on)
            m.logEvent(event::SmartThresholdExceeded, {disk->controller, disk->port});
        return true;
    });
    return found;
}

void Host::refuseNextRequests(std::uint32_t count, std::uint32_t status)
{
    modify([&](Model &m) {
        m.faults.refuseCount = count;
        m.faults.refuseStatus = status;
        return false;
    });
}

void Host::staleNextWrites(std::uint32_t count)
{
    modify([&](Model &m) {
        m.faults.staleWrites = count;
        return false;
    });
}

void Host::failNextTransfers(std::uint32_t count)
{
    modify([&](Model &m) {
        m.faults.failedTransfers = count;
        return false;
    });
}

// --- Persistence -------------------------------------------------------------------

void Host::attachStateFile(const std::string &path)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    m_statePath = path;
    m_stateText.clear();
    m_savedScenario.clear();
    if (path.empty())
        return;
    // The file takes this host's state: nothing is read from it first.
    StateTurn turn(*this, false);
    std::string error;
    writeState(error, true);
}

bool Host::save(std::string &error)
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    if (m_statePath.empty()) {
        error = "no state file is attached";
        return false;
    }
    StateTurn turn(*this, false);
    return writeState(error, true);
}

void Host::saveQuietly()
{
    if (m_statePath.empty())
        return;
    StateTurn turn(*this, false); // inside a request this is the request's own turn
    if (!m_stateUnusable.empty()) {
        m_lastSaveError = m_stateUnusable + " (the file was left as it is)";
        return;
    }
    std::string error;
    if (writeState(error, false))
        m_lastSaveError.clear();
    else
        m_lastSaveError = error;
}

std::string Host::lastSaveError() const
{
    std::lock_guard<std::recursive_mutex> guard(m_mutex);
    return m_lastSaveError;
}

// A state the file already holds is not written again: a request that changed nothing
// leaves the file as it is, byte for byte, and the other process need not re-read it.
bool Host::writeState(std::string &error, bool evenIfUnchanged)
{
    std::string text = writeScenario(m_model);
    if (!evenIfUnchanged && text == m_savedScenario)
        return true;
    if (!writeStateTextAtomically(m_statePath, text, error))
        return false;
    m_savedScenario = text;
    m_stateText = std::move(text);
    return true;
}

// Another process (skemu, a second console) may have changed the state file: take its
// state, keeping channels and statistics. A file that exists but can't be read, or no
// longer parses (a hand edit gone wrong), is never written over: the answer says why,
// and this turn's changes stay in memory until the file reads again.
std::string Host::reloadIfChangedOnDisk()
{
    std::string text, error;
    if (!readStateText(m_statePath, text, error)) {
        std::error_code ec;
        return std::filesystem::exists(m_statePath, ec) ? error : std::string();
    }
    if (text == m_stateText)
        return {};
    Model model;
    if (!parseScenario(text, model, error))
        return m_statePath + ": " + error;
    m_stateText = std::move(text);
    m_savedScenario = writeScenario(model);
    if (model.generation != m_model.generation)
        recordHistory();
    m_model = std::move(model);
    return {};
}

} // namespace sk_emu
