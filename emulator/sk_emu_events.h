#pragma once
// The drivers' event log as read code 4098 hands it out, and the message numbers the
// emulated drivers log.

#include "emulator/sk_emu_model.h"

namespace sk_emu {

namespace event {
constexpr std::uint16_t LogInitialized = 1001;
constexpr std::uint16_t LogFound = 1002;
constexpr std::uint16_t RescanReceived = 1012;
constexpr std::uint16_t DriveFailed = 1013;
constexpr std::uint16_t ArrayDeleted = 1014;
constexpr std::uint16_t ArrayCritical = 1015;
constexpr std::uint16_t ArrayOffline = 1016;
constexpr std::uint16_t RebuildCompleted = 1018;
constexpr std::uint16_t CheckCompleted = 1024;
constexpr std::uint16_t CreateCompleted = 1027;
constexpr std::uint16_t ConfigChange = 1037;
constexpr std::uint16_t NewDriveConnected = 1038;
constexpr std::uint16_t DriveDisconnected = 1039;
constexpr std::uint16_t DeviceConnected = 1042;
constexpr std::uint16_t DeviceDisconnected = 1043;
constexpr std::uint16_t SmartThresholdExceeded = 1061;
constexpr std::uint16_t GlobalSpareAssigned = 1132;
constexpr std::uint16_t CreateInitiated = 1138;
constexpr std::uint16_t RebuildInitiated = 1139;
constexpr std::uint16_t CheckInitiated = 1141;
constexpr std::uint16_t WriteCacheEnabled = 1142;
constexpr std::uint16_t ReadAheadEnabled = 1144;
} // namespace event

// Layout of the 4098 reply.
namespace eventReply {
constexpr std::size_t Available = 8;
constexpr std::size_t NextCursor = 12;
constexpr std::size_t Message = 512;
constexpr std::size_t EntryByte = 515;
constexpr std::size_t Number = 516;
constexpr std::size_t Params = 520;
} // namespace eventReply

// Answers a read of the log at `cursor`: the oldest entry numbered `cursor` or later,
// with the cursor that follows it; without such an entry, "none available" and the
// number the next event will get.
void writeEventReply(const Model &model, std::uint32_t cursor, std::uint8_t *reply);

} // namespace sk_emu
