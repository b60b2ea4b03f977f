// The frame every command shares: what is refused before the lock, without a device,
// for unknown names, on stale generations and for arrays in use.

#include "command_fixture.h"

#include <functional>

using namespace cmdtest;

namespace {

using E = const SK_CoreEntry *;

struct StatusCase
{
    const char *name;
    std::uint32_t expected;
    std::function<std::uint32_t(E)> call;
    std::uint32_t unsent = 0; // a command that must not have gone out
};

void PrintTo(const StatusCase &c, std::ostream *os)
{
    *os << c.name;
}

std::string rowName(const ::testing::TestParamInfo<StatusCase> &row)
{
    return row.param.name;
}

const std::string kOtherArray = "//./Core2/Route0/Device1", kOtherDisk = "//./Core2/Route1/Device1";
const std::string kNoArray = arrayName(9), kNoDisk = "//./Core1/Route1/Device40";
const std::string kMirror = arrayName(kMirrorRoute), kParity = arrayName(kParityRoute);
const NameList kOtherArrays{kMirror, kOtherArray}, kOtherDisks{diskName(5), kOtherDisk};
const NameList kDisk5{diskName(5)}, kWithNoArray{kMirror, kNoArray};
std::uint8_t g_scratch[512];

// The calls the tables make, everything but the names fixed.
const auto check = [](E e, const std::string &array) {
    return SK_ApiCheckLogicalDevice(e, array.c_str(), 0, 1, 1);
};
const auto deleteArrays = [](E e, const NameList &arrays) {
    return SK_ApiDeleteLogicalDevice(e, arrays.count(), arrays.data(), 0, 0, 1);
};
const auto diskSetting = [](E e, const NameList &disks) {
    return SK_ApiManagePhysicalDevice(e, disks.count(), disks.data(), 0, 16384, 1);
};
const auto initialize = [](E e, const NameList &disks) {
    return SK_ApiInitializePhysicalDevice(e, disks.count(), disks.data(), 0, 1, 1);
};

class ForeignNames : public CommandTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(ForeignNames, areRefusedBeforeAnyDeviceIsOpened)
{
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_EQ(recorder->opens, 0) << "the name check needs no device";
}

INSTANTIATE_TEST_SUITE_P(
    Frame, ForeignNames,
    ::testing::Values(
        StatusCase{"Check", 62, [](E e) { return check(e, kOtherArray); }},
        StatusCase{"Delete", 62, [](E e) { return deleteArrays(e, kOtherArrays); }},
        StatusCase{"Copy", 62,
                   [](E e) {
                       return SK_ApiCopyLogicalDevice(e, kMirror.c_str(), kOtherArray.c_str(), 0, 1,
                                                      0, 0, 0);
                   }},
        StatusCase{"DedicatedSpare", 62,
                   [](E e) {
                       return SK_ApiManageSpare(e, kOtherArray.c_str(), 1, kOtherDisks.data(), 1, 0,
                                                1);
                   }},
        StatusCase{"DiskSetting", 63, [](E e) { return diskSetting(e, kOtherDisks); }},
        StatusCase{"DiskWithoutACore", 63, [](E e) { return diskSetting(e, {"Route1/Device6"}); }},
        StatusCase{"Initialize", 63, [](E e) { return initialize(e, kOtherDisks); }},
        StatusCase{"MetaData", 63,
                   [](E e) {
                       return SK_ApiReadDiskMetaData(e, kOtherDisk.c_str(), g_scratch, 0, 512, 1);
                   }},
        StatusCase{"CreateOverTwoCores", 63,
                   [](E e) { return createArray(e, 7158, 1, 2, kOtherDisks); }}),
    rowName);

class WithoutDevice : public CommandTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(WithoutDevice, reportsAnInvalidCoreHandle)
{
    installNoDevice();
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_TRUE(recorder->commands().empty()) << "nothing can have been sent";
}

INSTANTIATE_TEST_SUITE_P(
    Frame, WithoutDevice,
    ::testing::Values(
        StatusCase{"Create", 8, [](E e) { return createArray(e, 7159, 1, 1, kDisk5); }},
        StatusCase{"Check", 8, [](E e) { return check(e, kMirror); }},
        StatusCase{"Delete", 8,
                   [](E e) { return SK_ApiDeleteLogicalDevice(e, 0, nullptr, 1, 0, 1); }},
        StatusCase{"DiskSettingForAll", 8,
                   [](E e) { return SK_ApiManagePhysicalDevice(e, 0, nullptr, 1, 16384, 1); }},
        StatusCase{"RescanAllCoresFindsNone", 8, [](E e) { return SK_ApiRescan(e, 1, 1); }},
        StatusCase{"Statistics", 8,
                   [](E e) {
                       char text[SK_STATS_TEXT_SIZE];
                       return SK_BufferPrintApiGetStats(e, text, 9, 1, 0);
                   }},
        StatusCase{"WaitForTask", 8, [](E e) { return SK_ApiWaitForTask(e, kMirrorId, 100); }},
        StatusCase{"PciCheckSaysOnlyYesOrNo", 73,
                   [](E e) { return SK_ApiDirectCheckControllerPCIID(e, 1, 2, 3); }}),
    rowName);

class UnknownNames : public CommandTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(UnknownNames, areNotSent)
{
    EXPECT_STATUS(GetParam().expected, GetParam().call(&core));
    EXPECT_TRUE(recorder->withCode(GetParam().unsent).empty());
}

INSTANTIATE_TEST_SUITE_P(
    Frame, UnknownNames,
    ::testing::Values(
        StatusCase{"Check", 10, [](E e) { return check(e, kNoArray); }, 7},
        StatusCase{"CheckById", 10,
                   [](E e) { return SK_ApiCheckLogicalDeviceById(e, 0x999, 0, 1, 1); }, 7},
        StatusCase{"Delete", 10, [](E e) { return deleteArrays(e, kWithNoArray); }, 3},
        StatusCase{"Transform", 10,
                   [](E e) {
                       return SK_ApiTransformLogicalDevice(e, kNoArray.c_str(), 7159, 1, 0, 0, 1, 1,
                                                           1, kDisk5.data(), nullptr, 0, 0, 0, 0);
                   },
                   8},
        StatusCase{"CreateOfAnUnknownDisk", 11,
                   [](E e) {
                       return createArray(e, 7158, 1, 2, {diskName(5), kNoDisk}, 100, 0x55);
                   },
                   2},
        StatusCase{"TierOfAnUnknownArray", 10,
                   [](E e) { return createArray(e, 7165, 1, 2, kWithNoArray, 100, 0x55); }, 2},
        StatusCase{"Initialize", 11, [](E e) { return initialize(e, {kNoDisk}); }, 4}),
    rowName);

TEST_F(CommandTest, diskSettingsStopAtTheFirstUnknownDiskAfterTheKnownOnesWent)
{
    const NameList disks{diskName(5), kNoDisk, diskName(6)};
    EXPECT_STATUS(11, SK_ApiManagePhysicalDevice(&core, 3, disks.data(), 0, 16385, 1));
    ASSERT_EQ(recorder->withCode(29).size(), 1u);
    EXPECT_EQ(recorder->withCode(29)[0].u64(40), diskId(5));
}

TEST_F(CommandTest, threeStaleGenerationsEndTheCommandWithNoFourthSend)
{
    host->staleNextWrites(3);
    EXPECT_STATUS(38, SK_ApiCheckLogicalDevice(&core, kParity.c_str(), 0, 1, 1));
    EXPECT_EQ(recorder->withCode(7).size(), 3u);
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, 0u) << "nothing was started";

    host->staleNextWrites(3);
    EXPECT_STATUS(38, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 1, 0, 1));
    EXPECT_EQ(recorder->withCode(3).size(), 3u);
}

TEST_F(CommandTest, aThirdTryAfterTwoStaleGenerationsGoesThrough)
{
    host->staleNextWrites(2);
    EXPECT_STATUS(1, SK_ApiCheckLogicalDevice(&core, kParity.c_str(), 0, 1, 1));
    ASSERT_EQ(recorder->withCode(7).size(), 3u);
    EXPECT_EQ(recorder->withCode(7)[2].u64(8), 5u) << "each try quotes its fresh core's generation";
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, SK_TASK_CHECK);
}

TEST_F(CommandTest, theBuzzerIsNeverRetried)
{
    host->staleNextWrites(1);
    EXPECT_STATUS(38, SK_ApiBuzz(&core, 0, 0, 1));
    EXPECT_EQ(recorder->withCode(45).size(), 1u);
}

TEST_F(CommandTest, anArrayOthersAreBuiltOnIsNotDeletedWithoutForce)
{
    host->modify([](sk_emu::Model &m) { return m.arrays[0].referenceCount = 1, true; });
    const NameList arrays{kParity, kMirror};
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 2, arrays.data(), 0, 0, 1));
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 0, nullptr, 1, 0, 1));
    EXPECT_TRUE(recorder->withCode(3).empty()) << "refused before sending";
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
    EXPECT_STATUS(
        7, SK_ApiManagePhysicalDeviceBuf(&core, 2, disks.data(), 0, 16404, g_scratch, 8192, 0, 1));
    EXPECT_STATUS(7, SK_ApiWaitForTask(&core, 0, 100));
    EXPECT_STATUS(7, SK_DebugTrace(&core, 4));
    EXPECT_STATUS(7, SK_ApiCheckLogicalDevice(nullptr, kMirror.c_str(), 0, 1, 1));
    EXPECT_EQ(recorder->opens, 0);
}

TEST_F(CommandTest, thePciCheckAnswersOnlyYesOrNo)
{
    EXPECT_STATUS(
        1, SK_ApiDirectCheckControllerPCIID(&core, kControllerId, kLabPciVendor, kLabPciDevice));
    EXPECT_STATUS(73,
                  SK_ApiDirectCheckControllerPCIID(&core, kControllerId, kLabPciVendor, 0x1111));
    // The drivers know no such controller (64); the caller still hears "no".
    EXPECT_STATUS(73, SK_ApiDirectCheckControllerPCIID(&core, 0x999, kLabPciVendor, kLabPciDevice));
}

} // namespace
