// The frame every command shares: what is refused before the lock, without a device,
// for unknown names, on stale generations and for arrays in use.

#include "command_fixture.h"

#include <functional>

using namespace cmdtest;

namespace {

using Call = std::function<std::uint32_t(const SK_CoreEntry *)>;

struct StatusCase
{
    const char *name;
    Call call;
    std::uint32_t expected;
};

void PrintTo(const StatusCase &c, std::ostream *os)
{
    *os << c.name;
}

std::string paramName(const ::testing::TestParamInfo<StatusCase> &info)
{
    return info.param.name;
}

const std::string kOtherArray = "//./Core2/Route0/Device1";
const std::string kOtherDisk = "//./Core2/Route1/Device1";
const NameList kOtherArrays{arrayName(kMirrorRoute), kOtherArray};
const NameList kOtherDisks{diskName(5), kOtherDisk};
const NameList kCorelessDisk{"Route1/Device6"};

// Calls whose names belong to another core; nothing may reach a device.
std::vector<StatusCase> foreignNames()
{
    return {
        {"Check", [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDevice(e, kOtherArray.c_str(), 0, 1, 1); }, 62},
        {"SecureErase", [](const SK_CoreEntry *e) { return SK_ApiSecureEraseLogicalDevice(e, kOtherArray.c_str(), 1, 1); }, 62},
        {"SimpleManage", [](const SK_CoreEntry *e) { return SK_SimpleManageLogicalDevice(e, kOtherArray.c_str(), 31915, 0, 1); }, 62},
        {"DisplayName", [](const SK_CoreEntry *e) { return SK_ApiManageDevicePrivateLogicalDevice(e, kOtherArray.c_str(), "x", 1, 1); }, 62},
        {"DriveLetter", [](const SK_CoreEntry *e) { return SK_ApiDriveLetter(e, kOtherArray.c_str(), 0, 'E', 1, 1); }, 62},
        {"Delete", [](const SK_CoreEntry *e) { return SK_ApiDeleteLogicalDevice(e, 2, kOtherArrays.data(), 0, 0, 1); }, 62},
        {"TaskControl", [](const SK_CoreEntry *e) { return SK_ApiTaskControlLogicalDevice(e, 24576, 2, kOtherArrays.data(), 0, 1); }, 62},
        {"Offline", [](const SK_CoreEntry *e) { return SK_ApiOfflineLogicalDevice(e, 2, kOtherArrays.data(), 0, 1); }, 62},
        {"Transform", [](const SK_CoreEntry *e) {
             const NameList drives{diskName(0)};
             return SK_ApiTransformLogicalDevice(e, kOtherArray.c_str(), 7159, 1, 0, 0, 1, 1, 1, drives.data(), nullptr, 0, 0, 0, 0); }, 62},
        {"Copy", [](const SK_CoreEntry *e) { return SK_ApiCopyLogicalDevice(e, arrayName(1).c_str(), kOtherArray.c_str(), 0, 1, 0, 0, 0); }, 62},
        {"DedicatedSpare", [](const SK_CoreEntry *e) {
             const NameList disk{diskName(5)};
             return SK_ApiManageSpare(e, kOtherArray.c_str(), 1, disk.data(), 1, 0, 1); }, 62},
        {"ArrayMap", [](const SK_CoreEntry *e) {
             static std::uint8_t none[1];
             return SK_ApiGetArrayMap(e, kOtherArray.c_str(), none, 1); }, 62},
        {"DiskSetting", [](const SK_CoreEntry *e) { return SK_ApiManagePhysicalDevice(e, 2, kOtherDisks.data(), 0, 16384, 1); }, 63},
        {"DiskWithoutCore", [](const SK_CoreEntry *e) { return SK_ApiManagePhysicalDevice(e, 1, kCorelessDisk.data(), 0, 16384, 1); }, 63},
        {"SmartRead", [](const SK_CoreEntry *e) {
             const NameList disk{kOtherDisk};
             static std::uint8_t none[1];
             return SK_ApiManagePhysicalDeviceBuf(e, 1, disk.data(), 0, 16404, none, 1, 0, 1); }, 63},
        {"GlobalSpare", [](const SK_CoreEntry *e) { return SK_ApiManageSpare(e, nullptr, 2, kOtherDisks.data(), 1, 1, 1); }, 63},
        {"Initialize", [](const SK_CoreEntry *e) { return SK_ApiInitializePhysicalDevice(e, 2, kOtherDisks.data(), 0, 1, 1); }, 63},
        {"InjectError", [](const SK_CoreEntry *e) { return SK_ApiInjectError(e, kOtherDisk.c_str(), 1, 1); }, 63},
        {"MetaData", [](const SK_CoreEntry *e) {
             static std::uint8_t none[512];
             return SK_ApiReadDiskMetaData(e, kOtherDisk.c_str(), none, 0, 512, 1); }, 63},
        {"Create", [](const SK_CoreEntry *e) {
             return SK_ApiCreateLogicalDevice(e, 7158, 2, 0, 0, 0, 0, 100, 1, 2, kOtherDisks.data(), nullptr, "", 0, 0, 0, 0, 0, 0, nullptr); }, 63},
    };
}

class ForeignNames : public CommandTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(ForeignNames, areRefusedBeforeAnyDeviceIsOpened)
{
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_EQ(recorder->opens, 0) << "the name check needs no device";
}

INSTANTIATE_TEST_SUITE_P(Frame, ForeignNames, ::testing::ValuesIn(foreignNames()), paramName);

// Calls that need the control device; with none they report 8.
std::vector<StatusCase> withoutDevice()
{
    return {
        {"Create", [](const SK_CoreEntry *e) {
             const NameList drives{diskName(5)};
             return SK_ApiCreateLogicalDevice(e, 7159, 1, 0, 0, 0, 0, 100, 1, 1, drives.data(), nullptr, "", 0, 0, 0, 0, 0, 0, nullptr); }, 8},
        {"Check", [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDevice(e, arrayName(1).c_str(), 0, 1, 1); }, 8},
        {"CheckById", [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDeviceById(e, kMirrorId, 0, 1, 1); }, 8},
        {"Delete", [](const SK_CoreEntry *e) { return SK_ApiDeleteLogicalDevice(e, 0, nullptr, 1, 0, 1); }, 8},
        {"DiskSetting", [](const SK_CoreEntry *e) { return SK_ApiManagePhysicalDevice(e, 0, nullptr, 1, 16384, 1); }, 8},
        {"Rescan", [](const SK_CoreEntry *e) { return SK_ApiRescan(e, 0, 1); }, 8},
        {"RescanAllCoresFindsNone", [](const SK_CoreEntry *e) { return SK_ApiRescan(e, 1, 1); }, 8},
        {"Buzz", [](const SK_CoreEntry *e) { return SK_ApiBuzz(e, 0, 0, 1); }, 8},
        {"Statistics", [](const SK_CoreEntry *e) {
             char text[SK_STATS_TEXT_SIZE];
             return SK_BufferPrintApiGetStats(e, text, 9, 1, 0); }, 8},
        {"WaitForTask", [](const SK_CoreEntry *e) { return SK_ApiWaitForTask(e, kMirrorId, 100); }, 8},
        {"PciCheckSaysOnlyYesOrNo", [](const SK_CoreEntry *e) { return SK_ApiDirectCheckControllerPCIID(e, 1, 2, 3); }, 73},
    };
}

class WithoutDevice : public CommandTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(WithoutDevice, reportsAnInvalidCoreHandle)
{
    installNoDevice();
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_TRUE(recorder->commands().empty()) << "nothing can have been sent";
}

INSTANTIATE_TEST_SUITE_P(Frame, WithoutDevice, ::testing::ValuesIn(withoutDevice()), paramName);

// Unknown names are resolved on the fresh core and stop the command before it is sent.
struct UnknownCase
{
    const char *name;
    Call call;
    std::uint32_t expected;
    std::uint32_t code; // the command that must not have been sent
};

void PrintTo(const UnknownCase &c, std::ostream *os)
{
    *os << c.name;
}

const std::string kNoArray = arrayName(9);
const std::string kNoDisk = "//./Core1/Route1/Device40";

std::vector<UnknownCase> unknownNames()
{
    return {
        {"Check", [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDevice(e, kNoArray.c_str(), 0, 1, 1); }, 10, 7},
        {"CheckById", [](const SK_CoreEntry *e) { return SK_ApiCheckLogicalDeviceById(e, 0x999, 0, 1, 1); }, 10, 7},
        {"Delete", [](const SK_CoreEntry *e) {
             const NameList arrays{arrayName(kMirrorRoute), kNoArray};
             return SK_ApiDeleteLogicalDevice(e, 2, arrays.data(), 0, 0, 1); }, 10, 3},
        {"TaskControl", [](const SK_CoreEntry *e) {
             const NameList arrays{kNoArray};
             return SK_ApiTaskControlLogicalDevice(e, 24576, 1, arrays.data(), 0, 1); }, 10, 34},
        {"DriveLetterById", [](const SK_CoreEntry *e) { return SK_ApiDriveLetterById(e, 0x999, 0, 'E', 1, 1); }, 10, 10},
        {"Transform", [](const SK_CoreEntry *e) {
             const NameList drives{diskName(5)};
             return SK_ApiTransformLogicalDevice(e, kNoArray.c_str(), 7159, 1, 0, 0, 1, 1, 1, drives.data(), nullptr, 0, 0, 0, 0); }, 10, 8},
        {"CreateOfAnUnknownDisk", [](const SK_CoreEntry *e) {
             const NameList drives{diskName(5), kNoDisk};
             return SK_ApiCreateLogicalDevice(e, 7158, 2, 0, 0, 0, 0, 100, 1, 2, drives.data(), nullptr, "", 0, 0, 0, 0, 0x55, 0, nullptr); }, 11, 2},
        {"TierOfAnUnknownArray", [](const SK_CoreEntry *e) {
             const NameList arrays{arrayName(kMirrorRoute), kNoArray};
             return SK_ApiCreateLogicalDevice(e, 7165, 2, 0, 0, 0, 0, 100, 1, 2, arrays.data(), nullptr, "", 0, 0, 0, 0, 0x55, 0, nullptr); }, 10, 2},
        {"DiskSetting", [](const SK_CoreEntry *e) {
             const NameList disks{diskName(5), kNoDisk};
             return SK_ApiManagePhysicalDevice(e, 2, disks.data(), 0, 16385, 1); }, 11, 0xFFFF},
        {"Spare", [](const SK_CoreEntry *e) {
             const NameList disks{kNoDisk};
             return SK_ApiManageSpare(e, nullptr, 1, disks.data(), 1, 1, 1); }, 11, 7},
        {"Initialize", [](const SK_CoreEntry *e) {
             const NameList disks{kNoDisk};
             return SK_ApiInitializePhysicalDevice(e, 1, disks.data(), 0, 1, 1); }, 11, 4},
    };
}

class UnknownNames : public CommandTest, public ::testing::WithParamInterface<UnknownCase>
{
};

TEST_P(UnknownNames, areNotSent)
{
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_TRUE(recorder->withCode(GetParam().code).empty());
}

INSTANTIATE_TEST_SUITE_P(Frame, UnknownNames, ::testing::ValuesIn(unknownNames()),
                         [](const ::testing::TestParamInfo<UnknownCase> &row) {
                             return std::string(row.param.name);
                         });

TEST_F(CommandTest, diskSettingsStopAtTheFirstUnknownDiskAfterTheKnownOnesWent)
{
    const NameList disks{diskName(5), kNoDisk, diskName(6)};
    EXPECT_STATUS(11, SK_ApiManagePhysicalDevice(&core, 3, disks.data(), 0, 16385, 1));
    const std::vector<RecordedRequest> sent = recorder->withCode(29);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].u64(40), diskId(5));
}

TEST_F(CommandTest, threeStaleGenerationsEndTheCommandWithNoFourthSend)
{
    host->staleNextWrites(3);
    EXPECT_STATUS(38, SK_ApiCheckLogicalDevice(&core, arrayName(kParityRoute).c_str(), 0, 1, 1));
    EXPECT_EQ(recorder->withCode(7).size(), 3u);
    EXPECT_EQ(look()->Arrays[1]->TaskType, 0u) << "nothing was started";
}

TEST_F(CommandTest, aThirdTryAfterTwoStaleGenerationsGoesThrough)
{
    host->staleNextWrites(2);
    EXPECT_STATUS(1, SK_ApiCheckLogicalDevice(&core, arrayName(kParityRoute).c_str(), 0, 1, 1));
    const std::vector<RecordedRequest> sent = recorder->withCode(7);
    ASSERT_EQ(sent.size(), 3u);
    // Each try quotes the generation of its own fresh core.
    EXPECT_EQ(sent[2].u64(8), 5u);
    EXPECT_EQ(look()->Arrays[1]->TaskType, SK_TASK_CHECK);
}

TEST_F(CommandTest, staleGenerationsAreRetriedByListCommandsToo)
{
    host->staleNextWrites(3);
    EXPECT_STATUS(38, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 1, 0, 1));
    EXPECT_EQ(recorder->withCode(3).size(), 3u);
    EXPECT_EQ(look()->ArrayCount, 2u);
}

TEST_F(CommandTest, theBuzzerIsNeverRetried)
{
    host->staleNextWrites(1);
    EXPECT_STATUS(38, SK_ApiBuzz(&core, 0, 0, 1));
    EXPECT_EQ(recorder->withCode(45).size(), 1u);
}

TEST_F(CommandTest, anArrayOthersAreBuiltOnIsNotDeletedWithoutForce)
{
    host->modify([](sk_emu::Model &m) {
        m.arrays[0].referenceCount = 1;
        return true;
    });
    const NameList arrays{arrayName(kParityRoute), arrayName(kMirrorRoute)};
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 2, arrays.data(), 0, 0, 1));
    EXPECT_TRUE(recorder->withCode(3).empty()) << "refused before sending";
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 1, 0, 1));
    EXPECT_TRUE(recorder->withCode(3).empty());

    // With force the request goes out and the driver has the last word.
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 2, arrays.data(), 0, 1, 1));
    EXPECT_EQ(recorder->withCode(3).size(), 1u);
    EXPECT_EQ(look()->ArrayCount, 2u);
}

TEST_F(CommandTest, listCommandsOnACoreWithoutArrays)
{
    install(lab(false));
    const NameList arrays{arrayName(1)};
    EXPECT_STATUS(1, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 1, 0, 1));
    EXPECT_STATUS(10, SK_ApiDeleteLogicalDevice(&core, 1, arrays.data(), 0, 0, 1));
    EXPECT_STATUS(1, SK_ApiTaskControlLogicalDevice(&core, 24576, 0, nullptr, 1, 1));
    EXPECT_STATUS(10, SK_ApiOfflineLogicalDevice(&core, 1, arrays.data(), 0, 1));
    EXPECT_TRUE(recorder->commands().empty());
}

TEST_F(CommandTest, badArgumentsAreRefusedWithoutTraffic)
{
    const NameList disks{diskName(5), diskName(6)};
    EXPECT_STATUS(7, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 0, 0, 1));
    EXPECT_STATUS(7, SK_ApiTaskControlLogicalDevice(&core, 24576, 0, nullptr, 0, 1));
    EXPECT_STATUS(7, SK_ApiManagePhysicalDevice(&core, 0, disks.data(), 0, 16384, 1));
    EXPECT_STATUS(7, SK_ApiInitializePhysicalDevice(&core, 0, nullptr, 0, 1, 1));
    EXPECT_STATUS(7, SK_ApiManagePhysicalDeviceBuf(&core, 2, disks.data(), 0, 16404, nullptr, 0, 0, 1));
    EXPECT_STATUS(7, SK_ApiWaitForTask(&core, 0, 100));
    EXPECT_STATUS(7, SK_DebugTrace(&core, 4));
    EXPECT_STATUS(7, SK_ApiCheckLogicalDevice(nullptr, arrayName(1).c_str(), 0, 1, 1));
    EXPECT_EQ(recorder->opens, 0);
}

TEST_F(CommandTest, thePciCheckAnswersOnlyYesOrNo)
{
    EXPECT_STATUS(1, SK_ApiDirectCheckControllerPCIID(&core, kControllerId, kLabPciVendor, kLabPciDevice));
    EXPECT_STATUS(73, SK_ApiDirectCheckControllerPCIID(&core, kControllerId, kLabPciVendor, 0x1111));
    // The drivers know no such controller (64); the caller still hears "no".
    EXPECT_STATUS(73, SK_ApiDirectCheckControllerPCIID(&core, 0x999, kLabPciVendor, kLabPciDevice));
}

TEST_F(CommandTest, aRefusedWriteReportsTheDriversReason)
{
    host->modify([](sk_emu::Model &m) {
        m.arrays[1].state = sk_emu::code::ArrayCritical;
        return true;
    });
    EXPECT_STATUS(41, SK_ApiCheckLogicalDevice(&core, arrayName(kParityRoute).c_str(), 0, 1, 1));
    EXPECT_EQ(recorder->withCode(7).size(), 1u) << "a refusal is not a stale generation";
}

} // namespace
