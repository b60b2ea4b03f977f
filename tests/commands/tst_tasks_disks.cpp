// Task and disk commands end to end on the emulated host.

#include "command_fixture.h"

#include <atomic>
#include <thread>

using namespace cmdtest;

namespace {

const std::string kParity = arrayName(kParityRoute), kMirror = arrayName(kMirrorRoute);

TEST_F(CommandTest, aCheckWithNoWaitReturnsAtOnceThoughTheOptionIsSet)
{
    const std::uint64_t before = clock->nowMs();
    EXPECT_STATUS(1, SK_ApiCheckLogicalDevice(&core, kParity.c_str(), 0, 1, 1));
    EXPECT_TRUE(recorder->sleeps.empty());
    EXPECT_EQ(clock->nowMs(), before);
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, SK_TASK_CHECK);
    // Without the option nothing waits either.
    EXPECT_STATUS(1, SK_ApiCheckLogicalDevice(&core, kParity.c_str(), 1, 0, 0));
    EXPECT_TRUE(recorder->sleeps.empty());
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, 0u) << "mode 1 stopped it";
}

TEST_F(CommandTest, aCheckWithTheOptionReturnsWhenItEndsAndLetsOthersTakeTheLockMeanwhile)
{
    int sleepsWithLockFree = 0;
    recorder->duringSleep = [&](std::uint32_t) {
        std::atomic<bool> taken{false};
        std::thread other([&] {
            SKTL_LockGuard lock;
            taken = true;
        });
        // A lock held across the sleep would keep the other thread out until it ends.
        for (int i = 0; i < 200 && !taken; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        sleepsWithLockFree += taken ? 1 : 0;
        other.join();
    };
    EXPECT_STATUS(1, SK_ApiCheckLogicalDeviceById(&core, kParityId, 0, 0, 1));
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, 0u);
    ASSERT_GE(recorder->sleeps.size(), 2u);
    EXPECT_EQ(recorder->sleeps[0], 100u);
    EXPECT_EQ(recorder->sleeps[1], 1000u);
    EXPECT_EQ(sleepsWithLockFree, static_cast<int>(recorder->sleeps.size()));
}

TEST_F(CommandTest, tasksArePausedResumedAndRemoved)
{
    ASSERT_EQ(SK_ApiCheckLogicalDevice(&core, kParity.c_str(), 0, 1, 1), 1u);
    const NameList arrays{kParity};
    EXPECT_STATUS(
        1, SK_ApiTaskControlLogicalDevice(&core, SK_TASK_ACTION_PAUSE, 1, arrays.data(), 0, 1));
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskState, SK_TASK_STATE_PAUSED);
    EXPECT_STATUS(1,
                  SK_ApiTaskControlLogicalDevice(&core, SK_TASK_ACTION_RESUME, 0, nullptr, 1, 1));
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskState, SK_TASK_STATE_STARTED);
    EXPECT_STATUS(
        1, SK_ApiTaskControlLogicalDevice(&core, SK_TASK_ACTION_REMOVE, 1, arrays.data(), 0, 1));
    EXPECT_EQ(arrayIn(*look(), kParityId)->TaskType, 0u);
    const NameList mirror{kMirror};
    EXPECT_STATUS(1, SK_ApiOfflineLogicalDevice(&core, 1, mirror.data(), 0, 1));
    EXPECT_EQ(arrayIn(*look(), kMirrorId)->State, SK_ARRAY_STATE_OFFLINE);
}

TEST_F(CommandTest, driveLettersGoByTheRouteOfTheFirstMember)
{
    EXPECT_STATUS(1, SK_ApiDriveLetter(&core, kMirror.c_str(), 0, 'e', 1, 1));
    ASSERT_EQ(host->model().volumes.size(), 1u);
    EXPECT_EQ(host->model().volumes[0].letter, 'E');
    EXPECT_EQ(host->model().volumes[0].arrays, std::vector<std::uint64_t>{kMirrorId});
    EXPECT_STATUS(1, SK_ApiDriveLetterById(&core, kMirrorId, 0, 'E', 0, 1));
    EXPECT_TRUE(host->model().volumes.empty());

    host->modify([](sk_emu::Model &m) {
        m.arrays[0].layout.firstCount = 0;
        m.arrays[0].layout.members.clear();
        return true;
    });
    EXPECT_STATUS(10, SK_ApiDriveLetter(&core, kMirror.c_str(), 0, 'E', 1, 1))
        << "no member, no route";
    EXPECT_EQ(recorder->withCode(10).size(), 2u);
}

TEST_F(CommandTest, theSmallSettersChangeTheArray)
{
    EXPECT_STATUS(1,
                  SK_ApiManageLogicalDevice(&core, kMirror.c_str(), SK_HiddenAttributeValue(1), 1));
    EXPECT_STATUS(1,
                  SK_ApiManageLogicalDevice(&core, kMirror.c_str(), SK_BackgroundScanValue(1), 1));
    EXPECT_STATUS(1, SK_ApiCacheLogicalDevice(&core, kMirror.c_str(), SK_CachePolicyWord("R"), 1));
    EXPECT_STATUS(1, SK_ApiPriorityLogicalDevice(&core, kMirror.c_str(), 99, 1));
    EXPECT_STATUS(1,
                  SK_ApiManageDevicePrivateLogicalDevice(&core, kMirror.c_str(), "Renamed", 7, 1));
    auto open = look();
    const SK_C_LogicalDevice *mirror = arrayIn(*open, kMirrorId);
    EXPECT_EQ(mirror->Attributes & 0x600u, 0x600u) << "hidden, with background scan";
    EXPECT_EQ(mirror->CachePolicy, SK_CACHE_READ);
    EXPECT_EQ(mirror->TaskPriority, 99u);
    EXPECT_EQ(std::string(mirror->DisplayName, 7), "Renamed");
    open.reset();
    EXPECT_STATUS(1,
                  SK_ApiManageLogicalDevice(&core, kMirror.c_str(), SK_HiddenAttributeValue(0), 1));
    EXPECT_EQ(arrayIn(*look(), kMirrorId)->Attributes & 0x600u, 0x400u)
        << "only the hidden bit changed";

    EXPECT_EQ(SK_CachePolicyWord("NC"), 0u);
    EXPECT_EQ(SK_CachePolicyWord("W"), 0x40000000u);
    EXPECT_EQ(SK_CachePolicyWord("WR"), 0xC0000000u);
    EXPECT_EQ(SK_BackgroundScanValue(0), 0x4000000u);
}

TEST_F(CommandTest, sparesComeAndGo)
{
    const NameList disk6{diskName(6)}, both{diskName(5), diskName(6)};
    EXPECT_STATUS(1, SK_ApiManageSpare(&core, nullptr, 1, disk6.data(), 1, 1, 1));
    EXPECT_EQ(diskIn(*look(), 6)->SpareState, SK_SPARE_STATE_GLOBAL);
    EXPECT_STATUS(1, SK_ApiManageSpare(&core, nullptr, 1, disk6.data(), 0, 1, 1));
    EXPECT_EQ(diskIn(*look(), 6)->SpareState, 0u);

    EXPECT_STATUS(1, SK_ApiManageSpare(&core, kMirror.c_str(), 2, both.data(), 1, 0, 1));
    EXPECT_EQ(arrayIn(*look(), kMirrorId)->SpareCount, 2u);
    EXPECT_STATUS(1, SK_ApiRemoveSparesLogicalDevice(&core, kMirror.c_str(), 1));
    EXPECT_EQ(arrayIn(*look(), kMirrorId)->SpareCount, 0u);
}

TEST_F(CommandTest, diskSettingsGoOneDiskAtATime)
{
    const NameList disks{diskName(0), diskName(1)};
    EXPECT_STATUS(
        1, SK_ApiManagePhysicalDevice(&core, 2, disks.data(), 0, SK_DISK_WRITE_CACHE_OFF, 1));
    const std::vector<RecordedRequest> sent = recorder->withCode(29);
    ASSERT_EQ(sent.size(), 2u);
    EXPECT_LT(sent[0].u64(8), sent[1].u64(8)) << "the second quotes the generation the first made";
    auto open = look();
    EXPECT_EQ(diskIn(*open, 0)->Features & (1u << 22), 0u);
    EXPECT_EQ(diskIn(*open, 1)->Features & (1u << 22), 0u);
    EXPECT_NE(diskIn(*open, 2)->Features & (1u << 22), 0u);
}

TEST_F(CommandTest, diskSettingsForAllDisksSkipTheCoresOwnEntry)
{
    EXPECT_STATUS(1,
                  SK_ApiManagePhysicalDevice(&core, 0, nullptr, 1, SK_DISK_SMART_POLLING_OFF, 1));
    EXPECT_EQ(recorder->withCode(29).size(), 8u);
    auto open = look();
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(diskIn(*open, i)->Features & (1u << 26), 0u) << "disk " << i;
    // The direct form sends one request for a whole list.
    const NameList disks{diskName(5), diskName(6)};
    EXPECT_STATUS(
        1, SK_ApiDirectManagePhysicalDevice(&core, 2, disks.data(), 0, SK_DISK_IDENTIFY_ON, 1));
    EXPECT_EQ(recorder->withCode(29).size(), 9u);
    EXPECT_EQ(host->model().disks[6].ledState, 4u);
}

TEST_F(CommandTest, smartDataComesBackThroughTheReplyReadOnTheSameChannel)
{
    SKTL_AlignedBuffer buffer(8192, "test"); // unbuffered transfers want 4096 alignment
    std::uint8_t *reply = buffer.data();
    const NameList ata{diskName(0)}, nvme{diskName(kNvmeDisk)};
    EXPECT_STATUS(1, SK_ApiManagePhysicalDeviceBuf(&core, 1, ata.data(), 0, SK_DISK_SMART_ATA,
                                                   reply, 8192, 0, 1));
    EXPECT_EQ(SK_GetU16(reply, 0), 10u) << "data structure version";
    EXPECT_EQ(reply[2], 9u) << "first attribute: power-on hours";
    EXPECT_EQ(SK_GetU32(reply, 7), 1234u);
    EXPECT_EQ(recorder->withCode(4116).size(), 1u);

    EXPECT_STATUS(1, SK_ApiManagePhysicalDeviceBuf(&core, 1, nvme.data(), 0, SK_DISK_SMART_NVME,
                                                   reply, 512, 0, 1));
    EXPECT_EQ(recorder->replySizes.back(), 512u);
    EXPECT_EQ(SK_GetU16(reply, 1), 310u) << "temperature in kelvin";
    EXPECT_EQ(SK_GetU64(reply, 128), 77u) << "power-on hours";
    EXPECT_STATUS(43, SK_ApiManagePhysicalDeviceBuf(&core, 1, nvme.data(), 0, SK_DISK_SMART_ATA,
                                                    reply, 512, 0, 1))
        << "an NVMe disk has no ATA data";

    std::vector<std::uint8_t> untracked(8192);
    EXPECT_STATUS(6, SK_ApiManagePhysicalDeviceBuf(&core, 1, ata.data(), 0, SK_DISK_SMART_ATA,
                                                   untracked.data(), 8192, 0, 1));
}

TEST_F(CommandTest, aSubcodeWithoutAReplyRunsAndThenReports7)
{
    SKTL_AlignedBuffer reply(8192, "test");
    const NameList disk{diskName(0)};
    EXPECT_STATUS(7, SK_ApiManagePhysicalDeviceBuf(&core, 1, disk.data(), 0, 16420, reply.data(),
                                                   8192, 0, 1));
    EXPECT_EQ(recorder->withCode(29).size(), 1u);
    EXPECT_TRUE(recorder->withCode(4116).empty());
    EXPECT_EQ(host->model().disks[0].ledState, 2u) << "the command ran";
}

TEST_F(CommandTest, aRescanForgetsAPulledDisk)
{
    host->pullDisk(diskId(6));
    EXPECT_NE(diskIn(*look(), 6), nullptr) << "listed until a rescan";
    EXPECT_STATUS(1, SK_ApiRescan(&core, 0, 1));
    EXPECT_EQ(diskIn(*look(), 6), nullptr);
    EXPECT_STATUS(1, SK_ApiRescan(&core, 1, 1));
    EXPECT_EQ(recorder->withCode(16).size(), 2u);
}

TEST_F(CommandTest, initialisingDisks)
{
    const NameList disk{diskName(6)};
    ASSERT_EQ(SK_ApiManageSpare(&core, nullptr, 1, disk.data(), 1, 1, 1), 1u);
    EXPECT_STATUS(1, SK_ApiInitializePhysicalDevice(&core, 1, disk.data(), 0, 1, 1));
    EXPECT_EQ(diskIn(*look(), 6)->SpareState, 0u) << "no longer a spare";

    // All disks: every array goes first.
    EXPECT_STATUS(1, SK_ApiInitializePhysicalDevice(&core, 0, nullptr, 1, 0, 1));
    const std::vector<RecordedRequest> sent = recorder->commands();
    ASSERT_EQ(sent.size(), 4u);
    EXPECT_EQ(sent[2].code(), 3u);
    EXPECT_EQ(sent[3].code(), 4u);
    EXPECT_EQ(sent[3].u32(32), 1u);
    EXPECT_EQ(sent[3].u32(36), 9u) << "every disk record of the core";
    EXPECT_EQ(look()->ArrayCount, 0u);
}

TEST_F(CommandTest, metadataIsReadAndItsHeaderRecognised)
{
    host->setCommandHandler(
        4121, [](sk_emu::Host &, sk_emu::Model &, std::uint8_t *reply, std::uint32_t size) {
            std::memset(reply, 0, size);
            SK_PutU32(reply, 0, 0x5AFAA55Au);
            SK_PutU32(reply, 4, 0xA55AFAA5u);
            SK_PutU32(reply, 8, 0x5AA55AFAu);
            reply[1023] = 0x77;
            return sk_emu::CommandResult{1, false};
        });
    std::vector<std::uint8_t> data(1024, 0xEE);
    EXPECT_STATUS(1, SK_ApiReadDiskMetaData(&core, diskName(5).c_str(), data.data(), 0, 1024, 1));
    EXPECT_EQ(SK_IsValidMetaDataHeader(data.data(), 1024), 1u);
    EXPECT_EQ(data[1023], 0x77);
    EXPECT_EQ(recorder->replySizes.back(), 1024u);
    EXPECT_STATUS(6,
                  SK_ApiReadDiskMetaData(&core, diskName(5).c_str(), data.data(), 0, 0x20001, 1));

    SK_PutU32(data.data(), 0, 0x5AEAA55Au); // the other form's first word: the forms don't mix
    EXPECT_EQ(SK_IsValidMetaDataHeader(data.data(), 1024), 0u);
    SK_PutU32(data.data(), 4, 0xA55AEAA5u);
    SK_PutU32(data.data(), 8, 0x5AA55AEAu);
    EXPECT_EQ(SK_IsValidMetaDataHeader(data.data(), 1024), 1u);
}

TEST_F(CommandTest, passThroughDataTravelsAtByte1024)
{
    host->setCommandHandler(
        4123, [](sk_emu::Host &, sk_emu::Model &, std::uint8_t *reply, std::uint32_t) {
            SK_PutU32(reply, 0, 0x11);
            SK_PutU32(reply, 4, 0x22);
            for (int i = 0; i < 512; ++i)
                reply[1024 + i] = static_cast<std::uint8_t>(i);
            std::memset(reply + 88, 0xC5, 16); // the block's completion
            return sk_emu::CommandResult{1, false};
        });
    SK_PassThrough descriptor{};
    descriptor.Kind = 3;
    std::vector<std::uint8_t> data(512);
    std::uint32_t deviceStatus[2] = {};
    const std::string disk = diskName(5);
    EXPECT_STATUS(1, SK_ApiPhysicalDevicePassThroughRead(&core, disk.c_str(), 0, &descriptor,
                                                         data.data(), 512, deviceStatus));
    EXPECT_EQ(deviceStatus[0], 0x11u);
    EXPECT_EQ(deviceStatus[1], 0x22u);
    EXPECT_EQ(data[511], 255);
    EXPECT_EQ(descriptor.Body[36], 0xC5) << "byte 40 of the descriptor";
    EXPECT_EQ(descriptor.Body[51], 0xC5);
    EXPECT_EQ(descriptor.Body[52], 0);

    std::vector<std::uint8_t> big(4097);
    EXPECT_STATUS(6, SK_ApiPhysicalDevicePassThroughWrite(&core, disk.c_str(), 0, &descriptor,
                                                          big.data(), 4097, deviceStatus));
    descriptor.Kind = 4;
    EXPECT_STATUS(7, SK_ApiPhysicalDevicePassThroughRead(&core, disk.c_str(), 0, &descriptor,
                                                         data.data(), 512, deviceStatus));
}

} // namespace
