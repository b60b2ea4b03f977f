#include "driver/driver.h"

#include "support/scripted_device.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::uint32_t kChannel = 7;
constexpr std::uint64_t kChannelPosition = kChannel * 512ull;

// Builds configuration images record by record, independently of the readers.
class ImageBuilder
{
public:
    explicit ImageBuilder(std::uint64_t generation) : m_bytes(SK_IMAGE_HEADER_SIZE, 0)
    {
        SK_PutU64(m_bytes.data(), SK_IMAGE_GENERATION_OFFSET, generation);
    }
    ImageBuilder &record(std::uint32_t tag, std::uint32_t length)
    {
        const std::size_t at = m_bytes.size();
        m_bytes.resize(at + length, 0);
        SK_PutU32(m_bytes.data(), at, tag);
        if (tag == SK_TAG_ARRAY)
            SK_PutU32(m_bytes.data(), at + SK_ARRAY_LENGTH_OFFSET, length);
        return *this;
    }
    ImageBuilder &raw(std::uint32_t word)
    {
        const std::size_t at = m_bytes.size();
        m_bytes.resize(at + 4);
        SK_PutU32(m_bytes.data(), at, word);
        return *this;
    }
    std::vector<std::uint8_t> bytes() const { return m_bytes; }
    ScriptedReply reply() const { return ScriptedReply{SK_SYSERR_NONE, m_bytes}; }

private:
    std::vector<std::uint8_t> m_bytes;
};

class ChannelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        device = std::make_shared<ScriptedDevice>();
        device->channelId = kChannel;
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(device));
    }
    void TearDown() override { SK_InstallPlatform(nullptr); }

    // A core whose construction read an empty image with the given generation.
    std::unique_ptr<SK_Core> openCore(std::uint64_t generation = 0x1122334455667788ull)
    {
        device->readReplies.push_back(ImageBuilder(generation).reply());
        auto core = std::make_unique<SK_Core>(".", "Core1", 0);
        device->transfers.clear();
        return core;
    }

    std::shared_ptr<ScriptedDevice> device;
};

TEST_F(ChannelTest, constructionOpensReadsTheChannelIdAndTheImage)
{
    device->readReplies.push_back(ImageBuilder(42)
                                      .record(SK_TAG_CONTROLLER, SK_CONTROLLER_RECORD_SIZE)
                                      .record(SK_TAG_DISK, SK_DISK_RECORD_SIZE)
                                      .record(SK_TAG_DISK, SK_DISK_RECORD_SIZE)
                                      .record(SK_TAG_ARRAY, 512 + 2 * 64 + 16)
                                      .record(SK_TAG_ENCLOSURE, SK_ENCLOSURE_RECORD_SIZE)
                                      .reply());
    SK_Core core(".", "Core1", 0);

    ASSERT_NE(core.Handle, 0u);
    ASSERT_EQ(device->opened.size(), 1u);
    EXPECT_EQ(device->opened[0], "\\\\.\\SKConfig0");
    EXPECT_EQ(device->openModes[0], 8u);
    EXPECT_EQ(device->flagModes[0], 3u);
    EXPECT_STREQ(core.ChannelPath, "//./Core1/Route0/Device0");
    EXPECT_STREQ(core.RoutePrefix, "//./Core1/Route");
    EXPECT_EQ(core.CoreNumber, 1u);
    EXPECT_EQ(core.ChannelId, kChannel);

    ASSERT_EQ(device->transfers.size(), 3u);
    const auto &idRead = device->transfers[0];
    EXPECT_TRUE(idRead.isRead);
    EXPECT_EQ(idRead.position, 0u);
    EXPECT_EQ(idRead.size, 1024u);
    const auto &request = device->transfers[1];
    EXPECT_FALSE(request.isRead);
    EXPECT_EQ(request.position, kChannelPosition);
    EXPECT_EQ(request.size, 8192u);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_COMMAND), SK_COMMAND_READ);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_CHANNEL), kChannel);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_API_LEVEL), 2u);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_API_REVISION), 1u);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_READ_CODE), SK_READ_CONFIG);
    EXPECT_EQ(SK_GetU32(request.written.data(), SK_HDR_PARAMETER), 0u);
    EXPECT_TRUE(device->transfers[2].isRead);
    EXPECT_EQ(device->transfers[2].size, SK_IMAGE_SIZE);

    EXPECT_EQ(core.Generation, 42u);
    EXPECT_EQ(core.DiskCount, 2u);
    EXPECT_EQ(core.ArrayCount, 1u);
    EXPECT_EQ(core.ControllerCount, 1u);
    EXPECT_EQ(core.EnclosureCount, 1u);
}

TEST_F(ChannelTest, missingDeviceLeavesAnUnopenedCoreWithoutTransfers)
{
    device->devices.clear();
    SK_Core core(".", "Core1", 0);
    EXPECT_EQ(core.Handle, 0u);
    EXPECT_EQ(core.DiskCount, 0u);
    EXPECT_TRUE(device->transfers.empty());

    SK_CoreEntry entry{1, ".", "Core1"};
    int attempts = 0;
    EXPECT_EQ(SK_WithFreshCore(&entry, [&](SK_Core &) { return ++attempts, 1u; }),
              SK_STS_INVALID_CORE_HANDLE);
    EXPECT_EQ(attempts, 0);

    SK_Core zero(".", "Core0", 0); // core 0 names no device at all
    EXPECT_EQ(zero.Handle, 0u);
    EXPECT_TRUE(device->opened.empty());
}

TEST_F(ChannelTest, aFailedOpenLeavesItsSystemErrorToItsOwnThread)
{
    device->devices.clear();
    EXPECT_EQ(SKTL_DeviceOpen("\\\\.\\SKConfig0", 8, 3), 0u);
    EXPECT_EQ(SKTL_LastError(), SK_SYSERR_FILE_NOT_FOUND);
    EXPECT_EQ(SKTL_DeviceOpen("\\\\.\\SKConfig0", 9, 3), 0u);
    EXPECT_EQ(SKTL_LastError(), SK_SYSERR_INVALID_PARAMETER);
    std::uint32_t elsewhere = 99;
    std::thread([&elsewhere] { elsewhere = SKTL_LastError(); }).join();
    EXPECT_EQ(elsewhere, SK_SYSERR_NONE);
}

TEST_F(ChannelTest, channelZeroAnswersEverythingWithSuccessAndAnUntouchedBuffer)
{
    device->channelId = 0;
    SK_Core core(".", "Core1", 0);
    ASSERT_NE(core.Handle, 0u);
    EXPECT_EQ(core.ChannelId, 0u);
    EXPECT_EQ(device->transfers.size(), 1u); // only the channel-id read
    EXPECT_EQ(core.DiskCount + core.ArrayCount, 0u);

    SKTL_AlignedBuffer buffer(8192, "test");
    EXPECT_EQ(core.SK_ConfigRead(buffer.data(), 8192, SK_READ_USER_MESSAGE, 5), 1u);
    EXPECT_EQ(core.SK_ConfigWrite(buffer.data(), 1024, 3), 1u);
    EXPECT_EQ(device->transfers.size(), 1u);
}

TEST_F(ChannelTest, readParameterWidthDependsOnTheReadCode)
{
    auto core = openCore();
    SKTL_AlignedBuffer buffer(8192, "test");

    core->SK_ConfigRead(buffer.data(), 8192, SK_READ_USER_MESSAGE, 0xAABBCCDD00000005ull);
    EXPECT_EQ(SK_GetU64(device->transfers[0].written.data(), SK_HDR_PARAMETER), 5u);

    std::memset(buffer.data(), 0, 8192);
    core->SK_ConfigRead(buffer.data(), 8192, SK_READ_LAST_STATUS, 0xAABBCCDD00000005ull);
    EXPECT_EQ(SK_GetU64(device->transfers[2].written.data(), SK_HDR_PARAMETER),
              0xAABBCCDD00000005ull);

    // Any other code leaves offset 36 as the caller set it.
    std::memset(buffer.data(), 0, 8192);
    SK_PutU32(buffer.data(), SK_HDR_PARAMETER, 0x1234);
    core->SK_ConfigRead(buffer.data(), 8192, 4109, 99);
    EXPECT_EQ(SK_GetU32(device->transfers[4].written.data(), SK_HDR_PARAMETER), 0x1234u);
    EXPECT_EQ(SK_GetU64(device->transfers[4].written.data(), SK_HDR_GENERATION), core->Generation);
}

TEST_F(ChannelTest, shortReadStillWrites8192BytesAndBadBuffersAreRefusedUnsent)
{
    auto core = openCore();
    SKTL_AlignedBuffer big(8192, "test");
    EXPECT_EQ(core->SK_ConfigRead(big.data(), 1024, 4110, 0), 1u);
    ASSERT_EQ(device->transfers.size(), 2u);
    EXPECT_EQ(device->transfers[0].size, 8192u);
    EXPECT_EQ(device->transfers[1].size, 1024u);

    device->transfers.clear();
    SKTL_AlignedBuffer small(1024, "test");
    EXPECT_EQ(core->SK_ConfigRead(small.data(), 1024, 4110, 0), SKTL_STS_INVALID_BUFFER);
    alignas(4096) static std::uint8_t untracked[8192];
    EXPECT_EQ(core->SK_ConfigWrite(untracked, 1024, 3), SKTL_STS_INVALID_BUFFER);
    EXPECT_EQ(core->SK_ConfigRead(untracked, 8192, 4110, 0), SKTL_STS_INVALID_BUFFER);
    EXPECT_TRUE(device->transfers.empty());
}

// Which failures of a read ask the driver for the reason: only a refused reply does.
// A request the device did not take, and any failure of the reason exchange itself, is
// returned as the transfer gave it.
struct ReadFailure
{
    const char *what;
    std::vector<std::uint32_t> writeErrors;
    std::vector<ScriptedReply> replies;
    std::uint32_t status;
    std::size_t transfers;
};

class ReadFailures : public ChannelTest, public ::testing::WithParamInterface<ReadFailure>
{
};

TEST_P(ReadFailures, askForTheReasonOnlyAfterARefusedReply)
{
    auto core = openCore(0x0000000200000010ull);
    device->writeErrors.assign(GetParam().writeErrors.begin(), GetParam().writeErrors.end());
    device->readReplies.assign(GetParam().replies.begin(), GetParam().replies.end());
    SKTL_AlignedBuffer buffer(8192, "test");

    EXPECT_EQ(core->SK_ConfigRead(buffer.data(), 8192, SK_READ_USER_MESSAGE, 3), GetParam().status);
    EXPECT_EQ(device->transfers.size(), GetParam().transfers);
    EXPECT_TRUE(device->readReplies.empty()) << "a reply was left unread";
    if (GetParam().transfers == 4) { // a read asks with the whole generation
        const auto &reason = device->transfers[2];
        EXPECT_EQ(SK_GetU32(reason.written.data(), SK_HDR_COMMAND), SK_COMMAND_READ);
        EXPECT_EQ(SK_GetU32(reason.written.data(), SK_HDR_READ_CODE), SK_READ_LAST_STATUS);
        EXPECT_EQ(SK_GetU64(reason.written.data(), SK_HDR_PARAMETER), 0x0000000200000010ull);
    }
}

const ScriptedReply kRefused{SK_SYSERR_GEN_FAILURE, {}};

INSTANTIATE_TEST_SUITE_P(
    Transfers, ReadFailures,
    ::testing::Values(
        ReadFailure{"request not taken", {SK_SYSERR_GEN_FAILURE}, {}, SK_STS_FAILURE, 1},
        ReadFailure{"request at end of file", {SK_SYSERR_HANDLE_EOF}, {}, SK_STS_EOF, 1},
        ReadFailure{"reply at end of file", {}, {{SK_SYSERR_HANDLE_EOF, {}}}, SK_STS_EOF, 2},
        ReadFailure{"reply refused, reason told",
                    {},
                    {kRefused, ScriptedDevice::statusReply(SK_STS_DEVICE_IS_BUSY)},
                    SK_STS_DEVICE_IS_BUSY,
                    4},
        ReadFailure{"reply refused, reason request not taken",
                    {SK_SYSERR_NONE, SK_SYSERR_HANDLE_EOF},
                    {kRefused},
                    SK_STS_EOF,
                    3},
        ReadFailure{
            "reply refused, reason refused too", {}, {kRefused, kRefused}, SK_STS_FAILURE, 4}));

TEST_F(ChannelTest, refusedWriteSurfacesTheStatusOfASecondExchange)
{
    auto core = openCore(0x0000000900000021ull);
    device->writeErrors.push_back(SK_SYSERR_GEN_FAILURE);
    device->readReplies.push_back(ScriptedDevice::statusReply(SK_STS_DEVICE_IS_BUSY));
    SKTL_AlignedBuffer request(1024, "test");
    SK_PutU32(request.data(), SK_HDR_OPTION, 1);

    EXPECT_EQ(core->SK_ConfigWrite(request.data(), 1024, 7), SK_STS_DEVICE_IS_BUSY);
    ASSERT_EQ(device->transfers.size(), 3u);
    const auto &command = device->transfers[0];
    EXPECT_EQ(command.size, 1024u);
    EXPECT_EQ(command.position, kChannelPosition);
    EXPECT_EQ(SK_GetU32(command.written.data(), SK_HDR_COMMAND), 7u);
    EXPECT_EQ(SK_GetU64(command.written.data(), SK_HDR_GENERATION), 0x0000000900000021ull);
    EXPECT_EQ(SK_GetU32(command.written.data(), SK_HDR_OPTION), 1u);
    // The reason is asked with the low 32 bits of the generation.
    const auto &reason = device->transfers[1];
    EXPECT_EQ(SK_GetU32(reason.written.data(), SK_HDR_READ_CODE), SK_READ_LAST_STATUS);
    EXPECT_EQ(SK_GetU64(reason.written.data(), SK_HDR_PARAMETER), 0x21u);
}

TEST_F(ChannelTest, writeRouteOpensTheRoutePathAndKeepsTheCallersGeneration)
{
    auto core = openCore(77);
    SKTL_AlignedBuffer request(1024, "test");
    SK_PutU64(request.data(), SK_HDR_GENERATION, 5);
    EXPECT_EQ(core->SK_ConfigWriteRoute(request.data(), 1024, 10, 3), 1u);
    ASSERT_EQ(device->opened.size(), 2u);
    EXPECT_EQ(device->openModes[1], 7u);
    EXPECT_EQ(device->flagModes[1], 2u);
    ASSERT_EQ(device->transfers.size(), 1u);
    EXPECT_EQ(SK_GetU32(device->transfers[0].written.data(), SK_HDR_COMMAND), 10u);
    EXPECT_EQ(SK_GetU64(device->transfers[0].written.data(), SK_HDR_GENERATION), 5u);
    EXPECT_EQ(device->openSessions, 1); // the route handle was closed again

    device->writeErrors.push_back(SK_SYSERR_GEN_FAILURE);
    EXPECT_EQ(core->SK_ConfigWriteRoute(request.data(), 1024, 10, 3), SK_STS_FAILURE);
    EXPECT_EQ(device->transfers.size(), 2u); // no reason exchange on this path
}

TEST_F(ChannelTest, staleGenerationIsTriedThreeTimesOnFreshCores)
{
    SK_CoreEntry entry{1, ".", "Core1"};
    for (int i = 0; i < 4; ++i)
        device->readReplies.push_back(ImageBuilder(100 + i).reply());
    std::vector<std::uint64_t> generations;
    const std::uint32_t status = SK_WithFreshCore(&entry, [&](SK_Core &core) {
        generations.push_back(core.Generation);
        return std::uint32_t{SK_STS_INVALID_GENERATION_NUMBER};
    });
    EXPECT_EQ(status, SK_STS_INVALID_GENERATION_NUMBER);
    EXPECT_EQ(generations, (std::vector<std::uint64_t>{100, 101, 102}));
    EXPECT_EQ(device->opened.size(), 3u);
    EXPECT_EQ(device->openSessions, 0);

    // Any other status ends the loop at once.
    std::vector<std::uint32_t> answers{SK_STS_INVALID_GENERATION_NUMBER, SK_STS_SUCCESS};
    int attempt = 0;
    EXPECT_EQ(SK_WithFreshCore(&entry, [&](SK_Core &) { return answers[attempt++]; }),
              SK_STS_SUCCESS);
    EXPECT_EQ(attempt, 2);
}

TEST_F(ChannelTest, unbufferedHandleRefusesUnalignedTransfers)
{
    auto core = openCore();
    SKTL_AlignedBuffer buffer(8192, "test");
    testing::internal::CaptureStdout();
    EXPECT_EQ(
        SKTL_DeviceTransfer(false, core->Handle, buffer.data() + 8, 512, 1024, nullptr, nullptr),
        SK_STS_FAILURE);
    EXPECT_EQ(SKTL_DeviceTransfer(true, core->Handle, buffer.data(), 512, 100, nullptr, nullptr),
              SK_STS_FAILURE);
    const std::string printed = testing::internal::GetCapturedStdout();
    EXPECT_NE(printed.find("Write to file failed, error=87\n"), std::string::npos);
    EXPECT_NE(printed.find("Read from file failed, error=87\n"), std::string::npos);
    EXPECT_TRUE(device->transfers.empty());
}

TEST_F(ChannelTest, callbackFormReturnsOneAndReportsTheResult)
{
    auto core = openCore();
    SKTL_AlignedBuffer buffer(1024, "test");
    device->readReplies.push_back({SK_SYSERR_HANDLE_EOF, {}});
    struct Seen
    {
        std::uint32_t status = 0, bytes = 0;
    } seen;
    auto callback = [](std::uint32_t status, void *context, std::uint32_t bytes) {
        *static_cast<Seen *>(context) = Seen{status, bytes};
    };
    EXPECT_EQ(SKTL_DeviceTransfer(true, core->Handle, buffer.data(), kChannelPosition, 1024, &seen,
                                  callback),
              1u);
    EXPECT_EQ(seen.status, SK_STS_EOF);
    EXPECT_EQ(seen.bytes, 1024u);
}

// Records of the configuration layer are opaque here; a counting factory proves the
// tables are filled in image order and every record is destroyed with its core.
struct CountingFactory : SK_RecordFactory
{
    mutable int made = 0, destroyed = 0;
    mutable std::vector<std::string> prefixes;
    template <class T>
    T *make(const char *prefix) const
    {
        ++made;
        prefixes.emplace_back(prefix);
        return reinterpret_cast<T *>(new int(made));
    }
    void drop(void *record) const
    {
        ++destroyed;
        delete static_cast<int *>(record);
    }
    SK_C_PhysicalDevice *makeDisk(const std::uint8_t *, std::uint32_t, const char *p,
                                  bool) const override
    {
        return make<SK_C_PhysicalDevice>(p);
    }
    SK_C_LogicalDevice *makeArray(const std::uint8_t *, std::uint32_t, const char *p,
                                  std::uint32_t) const override
    {
        return make<SK_C_LogicalDevice>(p);
    }
    SK_C_ControllerDevice *makeController(const std::uint8_t *, const char *p) const override
    {
        return make<SK_C_ControllerDevice>(p);
    }
    SK_C_SEPDevice *makeEnclosure(const std::uint8_t *, const char *p) const override
    {
        return make<SK_C_SEPDevice>(p);
    }
    void destroy(SK_C_PhysicalDevice *r) const override { drop(r); }
    void destroy(SK_C_LogicalDevice *r) const override { drop(r); }
    void destroy(SK_C_ControllerDevice *r) const override { drop(r); }
    void destroy(SK_C_SEPDevice *r) const override { drop(r); }
};

TEST(InMemoryCore, buildsTablesInImageOrderAndFreesThemWithTheCore)
{
    CountingFactory factory;
    const SK_RecordFactory *previous = SK_SetRecordFactory(&factory);
    const std::uint32_t blocksBefore = SKTL_AllocationCount();
    {
        const auto image = ImageBuilder(5)
                               .record(SK_TAG_DISK, 128)
                               .record(SK_TAG_CONTROLLER, SK_CONTROLLER_RECORD_SIZE)
                               .record(SK_TAG_DISK, 128)
                               .bytes();
        SK_Core core(image.data(), static_cast<std::uint32_t>(image.size()));
        EXPECT_EQ(core.Handle, 0u); // an in-memory core has no device and short paths
        EXPECT_STREQ(core.ChannelPath, "/Route0/Device0");
        EXPECT_STREQ(core.RoutePrefix, "/Route");
        EXPECT_EQ(core.Generation, 5u);
        ASSERT_EQ(core.DiskCount, 2u);
        EXPECT_EQ(*reinterpret_cast<int *>(core.Disks[0]), 1);
        EXPECT_EQ(*reinterpret_cast<int *>(core.Controllers[0]), 2);
        EXPECT_EQ(*reinterpret_cast<int *>(core.Disks[1]), 3);
        EXPECT_EQ(core.Arrays, nullptr);
        EXPECT_EQ(factory.prefixes, (std::vector<std::string>{"/Route", "/Route", "/Route"}));
    }
    EXPECT_EQ(factory.destroyed, 3);
    EXPECT_EQ(SKTL_AllocationCount(), blocksBefore);
    SK_SetRecordFactory(previous);
}

// How a damaged image ends the walk is covered with the real records in the lookup tests.
TEST(InMemoryCore, aZeroTagEndsTheRecordList)
{
    const auto image = ImageBuilder(1).raw(0).record(SK_TAG_DISK, 128).bytes();
    SK_Core core(image.data(), static_cast<std::uint32_t>(image.size()));
    EXPECT_EQ(core.DiskCount, 0u);
}

TEST(CoreNames, numberFollowsTheWordCoreInAnyCase)
{
    EXPECT_EQ(SK_ParseCoreNumber("Core1"), 1u);
    EXPECT_EQ(SK_ParseCoreNumber("//./CORE1/Route0/Device3"), 1u);
    EXPECT_EQ(SK_ParseCoreNumber("/core12"), 12u);
    EXPECT_EQ(SK_ParseCoreNumber("//./Disk1/Route0"), 0u);
    EXPECT_EQ(SK_ParseCoreNumber("Core"), 0u);
    EXPECT_EQ(SK_ParseCoreNumber(nullptr), 0u);
}

} // namespace
