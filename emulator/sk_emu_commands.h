#pragma once
// The write commands and planning reads the emulated drivers carry out, and the task
// engine that moves background work along with the clock.

#include "emulator/sk_emu_model.h"

#include <cstdint>

namespace sk_emu {

class Host;

// Command codes and read codes the drivers accept.
namespace cmd {
constexpr std::uint32_t Create = 2;
constexpr std::uint32_t Delete = 3;
constexpr std::uint32_t Initialize = 4;
constexpr std::uint32_t Manage = 7;
constexpr std::uint32_t Transform = 8;
constexpr std::uint32_t DriveLetter = 10;
constexpr std::uint32_t Rescan = 16;
constexpr std::uint32_t Offline = 17;
constexpr std::uint32_t ManageDisk = 29;
constexpr std::uint32_t TaskControl = 34;
constexpr std::uint32_t Copy = 35;
constexpr std::uint32_t CommitPrevious = 36;
constexpr std::uint32_t SendMessage = 39;
constexpr std::uint32_t CheckPciId = 41;
constexpr std::uint32_t BuzzOn = 45;
constexpr std::uint32_t BuzzOff = 46;
constexpr std::uint32_t ReadTransformInfo = 4108;
constexpr std::uint32_t ReadCreateInfo = 4109;
constexpr std::uint32_t ReadDiskReply = 4116;
} // namespace cmd

// Subcodes of the management command (7).
namespace sub {
constexpr std::uint32_t CheckStart = 31904;
constexpr std::uint32_t DedicatedSpareAdd = 31906;
constexpr std::uint32_t DedicatedSpareRemove = 31907;
constexpr std::uint32_t GlobalSpareAdd = 31908;
constexpr std::uint32_t GlobalSpareRemove = 31909;
constexpr std::uint32_t Plain = 31910;
constexpr std::uint32_t CheckStop = 31911;
constexpr std::uint32_t CachePolicy = 31912;
constexpr std::uint32_t Value = 31913;
constexpr std::uint32_t Priority = 31914;
constexpr std::uint32_t Attributes = 31915;
constexpr std::uint32_t DisplayName = 31916;
constexpr std::uint32_t RemoveAllSpares = 31917;
constexpr std::uint32_t SecureErase = 31918;
} // namespace sub

// Subcodes of the disk command (29).
namespace disk {
constexpr std::uint32_t WriteCacheOn = 16384;
constexpr std::uint32_t WriteCacheOff = 16385;
constexpr std::uint32_t ReadAheadOn = 16386;
constexpr std::uint32_t ReadAheadOff = 16387;
constexpr std::uint32_t IdentifyOn = 16389;
constexpr std::uint32_t ReplyFirst = 16398;
constexpr std::uint32_t SmartNvme = 16400;
constexpr std::uint32_t SmartAta = 16404;
constexpr std::uint32_t SmartPollingOn = 16411;
constexpr std::uint32_t SmartPollingOff = 16412;
constexpr std::uint32_t PrepareRemoval = 16417;
constexpr std::uint32_t LedStateBase = 16418; // + 1..10
constexpr std::uint32_t IdentifyOff = 16428;
} // namespace disk

// Actions of the task control command (34).
namespace action {
constexpr std::uint32_t Pause = 24576;
constexpr std::uint32_t Resume = 24577;
constexpr std::uint32_t Remove = 24578;
} // namespace action

// Policy bits of a create request.
namespace policy {
constexpr std::uint32_t BackgroundScan = 0x400;
constexpr std::uint32_t SkipInit = 0x1000;
constexpr std::uint32_t Query = 0x2000;
constexpr std::uint32_t LeaveData = 0x4000;
constexpr std::uint32_t ZeroCreate = 0x10000;
constexpr std::uint32_t KeepHotData = 0x40000;
} // namespace policy

// Registers every command and planning read of the drivers with `host`.
void installDriverCommands(Host &host);

// Moves every running task on by `elapsedMs` of work at its priority. Returns true when
// a task ended (the configuration changed); `progressed` tells whether any moved.
bool advanceTasks(Model &model, std::uint64_t elapsedMs, bool &progressed);

// Starts a task on `array` and logs its "initiated" event where the drivers have one.
void startTask(Model &model, Array &array, std::uint32_t taskType);

// A task that loses a member on the way fails, logged as the catalogue says.
void failRunningTask(Model &model, Array &array);

// A degraded redundant array takes a dedicated spare, else a fitting global spare, in
// place of its first lost member and starts rebuilding. False when none fits.
bool takeSpareForRebuild(Model &model, Array &array);

// Work rate of a task type at priority 50, in MB per second.
std::uint32_t taskRateMBps(std::uint32_t taskType);

} // namespace sk_emu
