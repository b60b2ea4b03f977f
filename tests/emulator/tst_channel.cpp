// The emulated drivers behind the real channel: channels, generations, refusals and
// the read codes of this host, exercised through SK_Core as the console uses it.

#include "support/emulated_host.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace sk_emu;

namespace {

constexpr std::uint32_t kCommandRescan = 16;

class EmulatedChannel : public ::testing::Test
{
protected:
    // A write command the host accepts: it raises the generation, like a rescan.
    void acceptRescans()
    {
        scope.host->setCommandHandler(kCommandRescan,
                                      [this](Host &, Model &, const std::uint8_t *, std::uint32_t) {
                                          ++handled;
                                          return CommandResult{1, true};
                                      });
    }

    std::uint32_t sendRescan(SK_Core &core)
    {
        SKTL_AlignedBuffer request(1024, "test");
        return core.SK_ConfigWrite(request.data(), 1024, kCommandRescan);
    }

    EmulatedHostScope scope;
    int handled = 0;
};

TEST_F(EmulatedChannel, coreReadsAChannelAndTheDefaultImage)
{
    SK_Core core(".", "Core1", 0);
    ASSERT_NE(core.Handle, 0u);
    EXPECT_NE(core.ChannelId, 0u);
    EXPECT_EQ(core.Generation, 27u);
    EXPECT_EQ(core.DiskCount, 8u); // seven disks and the core's own device
    EXPECT_EQ(core.ArrayCount, 2u);
    EXPECT_EQ(core.ControllerCount, 1u);
}

TEST_F(EmulatedChannel, everyHandleGetsItsOwnChannel)
{
    SK_Core first(".", "Core1", 0);
    SK_Core second(".", "Core1", 0);
    EXPECT_NE(first.ChannelId, second.ChannelId);
    const std::uint32_t id = first.ChannelId;
    first.SK_GetChannelID();
    EXPECT_EQ(first.ChannelId, id); // asking again keeps the channel
}

TEST_F(EmulatedChannel, controlDeviceIsGoneWithoutTheConfigurationDriver)
{
    scope.host->modify([](Model &m) {
        for (DriverFile &d : m.host.drivers)
            d.loaded = d.name != "skcfg.sys";
        return false;
    });
    SK_Core core(".", "Core1", 0);
    EXPECT_EQ(core.Handle, 0u);
}

TEST_F(EmulatedChannel, writeWithTheCurrentGenerationIsCarriedOutAndAStaleOneRefused)
{
    acceptRescans();
    SK_Core stale(".", "Core1", 0);
    SK_Core current(".", "Core1", 0);
    EXPECT_EQ(sendRescan(current), 1u);
    EXPECT_EQ(scope.host->generation(), 28u);
    EXPECT_EQ(sendRescan(stale), SK_STS_INVALID_GENERATION_NUMBER);
    EXPECT_EQ(handled, 1);

    // The retry loop of the commands gets through on a fresh core.
    SK_CoreEntry entry{1, ".", "Core1"};
    scope.host->staleNextWrites(2);
    int attempts = 0;
    EXPECT_EQ(SK_WithFreshCore(&entry, [&](SK_Core &core) { return ++attempts, sendRescan(core); }),
              1u);
    EXPECT_EQ(attempts, 3);
}

TEST_F(EmulatedChannel, refusalStatusIsKeptPerChannel)
{
    SK_Core first(".", "Core1", 0);
    SK_Core second(".", "Core1", 0);
    SKTL_AlignedBuffer request(1024, "test");
    EXPECT_EQ(first.SK_ConfigWrite(request.data(), 1024, 99), SK_STS_BAD_FUNCTION);

    SKTL_AlignedBuffer reply(8192, "test");
    EXPECT_EQ(second.SK_ConfigRead(reply.data(), 8192, SK_READ_LAST_STATUS, 0), 1u);
    EXPECT_EQ(SK_GetU32(reply.data(), 0), 1u);
    std::memset(reply.data(), 0, 8192);
    EXPECT_EQ(first.SK_ConfigRead(reply.data(), 8192, SK_READ_LAST_STATUS, 0), 1u);
    EXPECT_EQ(SK_GetU32(reply.data(), 0), SK_STS_BAD_FUNCTION);
}

struct ReadCase
{
    const char *what;
    std::uint32_t readCode;
    std::uint32_t status;
};

class EmulatedReads : public EmulatedChannel, public ::testing::WithParamInterface<ReadCase>
{
};

TEST_P(EmulatedReads, answerOrRefuseWithTheDriversStatus)
{
    SK_Core core(".", "Core1", 0);
    SKTL_AlignedBuffer reply(8192, "test");
    EXPECT_EQ(core.SK_ConfigRead(reply.data(), 8192, GetParam().readCode, 0), GetParam().status)
        << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    ReadCodes, EmulatedReads,
    ::testing::Values(ReadCase{"event log", 4098, 1}, ReadCase{"statistics", 4103, 1},
                      ReadCase{"statistics with reset", 4104, 1}, ReadCase{"last status", 4118, 1},
                      ReadCase{"unknown read code", 4200, SK_STS_BAD_CONFIG_FUNCTION},
                      ReadCase{"driver info without a handler", 4105, SK_STS_BAD_CONFIG_FUNCTION}));

TEST_F(EmulatedChannel, previousGenerationIsReadInTheShortFormat)
{
    acceptRescans();
    {
        SK_Core core(".", "Core1", 0);
        ASSERT_EQ(sendRescan(core), 1u);
    }
    SK_Core previous(".", "Core1", 27);
    EXPECT_EQ(previous.Generation, 27u);
    EXPECT_EQ(previous.DiskCount, 8u);
    EXPECT_EQ(previous.ArrayCount, 2u);

    SK_Core unknown(".", "Core1", 5);
    EXPECT_EQ(unknown.DiskCount, 0u); // refused with 38: no image
}

TEST_F(EmulatedChannel, refusedAndFailedRequestsReachTheCaller)
{
    scope.host->refuseNextRequests(1, SK_STS_DEVICE_IS_BUSY);
    SK_Core core(".", "Core1", 0);
    EXPECT_EQ(core.DiskCount, 0u); // the image read was refused

    SKTL_AlignedBuffer reply(8192, "test");
    scope.host->refuseNextRequests(1, SK_STS_DEVICE_IS_BUSY);
    EXPECT_EQ(core.SK_ConfigRead(reply.data(), 8192, 4098, 3), SK_STS_DEVICE_IS_BUSY);

    // A request that never reached the drivers has no reason to ask for: the channel's
    // last status (40 from above) must not be taken for it.
    scope.host->failNextTransfers(1);
    EXPECT_EQ(core.SK_ConfigRead(reply.data(), 8192, 4098, 3), SK_STS_FAILURE);

    scope.host->failNextTransfers(1);
    SK_Core unlucky(".", "Core1", 0);
    EXPECT_EQ(unlucky.ChannelId, 0u);
}

// Below the console: the drivers take every read request at the write and refuse it at
// the read, keeping the reason for the read of the last status.
struct RefusedRead
{
    const char *what;
    std::uint32_t refusal; // a refusal fault, or 0
    std::uint32_t apiLevel;
    std::uint32_t status;
};

class RefusedReads : public EmulatedChannel, public ::testing::WithParamInterface<RefusedRead>
{
protected:
    std::vector<std::uint8_t> readRequest(std::uint32_t readCode, std::uint32_t apiLevel) const
    {
        std::vector<std::uint8_t> request(8192, 0);
        SK_PutU32(request.data(), SK_HDR_COMMAND, SK_COMMAND_READ);
        SK_PutU32(request.data(), SK_HDR_CHANNEL, channel);
        SK_PutU32(request.data(), SK_HDR_API_LEVEL, apiLevel);
        SK_PutU32(request.data(), SK_HDR_API_REVISION, 1);
        SK_PutU32(request.data(), SK_HDR_READ_CODE, readCode);
        return request;
    }

    std::uint32_t channel = 0;
};

TEST_P(RefusedReads, areTakenAtTheWriteAndRefusedAtTheRead)
{
    Host &host = *scope.host;
    const std::uint64_t session = host.open("\\\\.\\SKConfig0", 8, 3);
    ASSERT_NE(session, 0u);
    std::vector<std::uint8_t> reply(8192, 0);
    ASSERT_EQ(host.read(session, 0, reply.data(), 1024).systemError, SK_SYSERR_NONE);
    channel = SK_GetU32(reply.data(), 0);
    const std::uint64_t position = channel * 512ull;
    if (GetParam().refusal)
        host.refuseNextRequests(1, GetParam().refusal);

    auto request = readRequest(SK_READ_USER_MESSAGE, GetParam().apiLevel);
    EXPECT_EQ(host.write(session, position, request.data(), 8192).systemError, SK_SYSERR_NONE)
        << "the request is taken";
    EXPECT_EQ(host.read(session, position, reply.data(), 8192).systemError, kTransferRefused);

    request = readRequest(SK_READ_LAST_STATUS, 2);
    EXPECT_EQ(host.write(session, position, request.data(), 8192).systemError, SK_SYSERR_NONE);
    ASSERT_EQ(host.read(session, position, reply.data(), 8192).systemError, SK_SYSERR_NONE);
    EXPECT_EQ(SK_GetU32(reply.data(), 0), GetParam().status);
    host.close(session);
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, RefusedReads,
    ::testing::Values(RefusedRead{"refusal", SK_STS_DEVICE_IS_BUSY, 2, SK_STS_DEVICE_IS_BUSY},
                      RefusedRead{"apiLevel", 0, 3, SK_STS_UNSUPPORTED_API_VERSION}),
    [](const ::testing::TestParamInfo<RefusedRead> &p) { return std::string(p.param.what); });

TEST_F(EmulatedChannel, eventLogIsReadByCursor)
{
    SK_Core core(".", "Core1", 0);
    SKTL_AlignedBuffer buffer(8192, "test");
    const std::uint8_t *reply = buffer.data();
    auto readFrom = [&](std::uint32_t cursor) {
        std::memset(buffer.data(), 0, 8192);
        return core.SK_ConfigRead(buffer.data(), 8192, 4098, cursor);
    };
    ASSERT_EQ(readFrom(3), 1u);
    EXPECT_NE(SK_GetU32(reply, 8), 0u);
    EXPECT_EQ(SK_GetU32(reply, 12), 4u);
    EXPECT_EQ(SK_GetU16(reply, 512), 1001u);
    EXPECT_EQ(SK_GetU32(reply, 516), 3u);

    ASSERT_EQ(readFrom(4), 1u);
    EXPECT_EQ(SK_GetU16(reply, 512), 1138u);
    EXPECT_EQ(SK_GetU32(reply, 520), 1u); // array 1

    ASSERT_EQ(readFrom(19), 1u);
    EXPECT_EQ(SK_GetU32(reply, 8), 0u);
    EXPECT_EQ(SK_GetU32(reply, 12), 19u);

    scope.host->injectEvent(1037, {});
    ASSERT_EQ(readFrom(19), 1u);
    EXPECT_EQ(SK_GetU16(reply, 512), 1037u);
    EXPECT_EQ(SK_GetU32(reply, 12), 20u);
}

TEST(EventRing, dropsTheOldestAndHandsOutWhatIsLeft)
{
    Model m;
    m.eventCapacity = 4;
    for (std::uint16_t i = 0; i < 6; ++i)
        m.logEvent(static_cast<std::uint16_t>(1100 + i), {i});
    ASSERT_EQ(m.events.size(), 4u);
    EXPECT_EQ(m.events.front().number, 5u);

    std::vector<std::uint8_t> reply(8192, 0);
    writeEventReply(m, 3, reply.data());
    EXPECT_EQ(SK_GetU32(reply.data(), 516), 5u); // 3 and 4 are gone
    EXPECT_EQ(SK_GetU32(reply.data(), 12), 6u);
    EXPECT_EQ(SK_GetU32(reply.data(), 520), 2u);
}

TEST_F(EmulatedChannel, statisticsMoveWithTheClockAndResetPerInterval)
{
    SK_Core core(".", "Core1", 0);
    SKTL_AlignedBuffer reply(8192, "test");
    ASSERT_EQ(core.SK_ConfigRead(reply.data(), 8192, 4104, 0), 1u);
    scope.clock->advance(3000);
    std::memset(reply.data(), 0, 8192);
    ASSERT_EQ(core.SK_ConfigRead(reply.data(), 8192, 4104, 0), 1u);

    const std::uint64_t coreRead = SK_GetU64(reply.data(), 576 + 8 * 4);
    const std::uint64_t busWrite = SK_GetU64(reply.data(), 576 + 8 * 3);
    const std::uint64_t coreWrite = SK_GetU64(reply.data(), 576 + 8 * 5);
    EXPECT_GT(coreRead, 3 * 1953u); // a few MB/s on each array
    EXPECT_GT(busWrite, coreWrite); // mirrors and parity write more than they get
    EXPECT_GT(SK_GetU32(reply.data(), 632 + 4 * 9), 0u); // host requests
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(reply.data() + 512)).rfind("SKRAID", 0),
              0u);

    // The interval starts again: without time passing it is empty.
    std::memset(reply.data(), 0, 8192);
    ASSERT_EQ(core.SK_ConfigRead(reply.data(), 8192, 4103, 0), 1u);
    EXPECT_EQ(SK_GetU64(reply.data(), 576 + 8 * 4), 0u);
    EXPECT_GE(SK_GetU64(reply.data(), 576), coreRead); // the total keeps it
}

// The installed platform's view is the host's. tst_system asks the view's questions one
// by one; these are the ones it leaves out.
TEST_F(EmulatedChannel, storageViewAnswersFromTheModel)
{
    SK_SystemView &view = SK_CurrentPlatform().system();
    std::uint32_t number = 99, route = 0, instance = 0, error = 0;
    EXPECT_EQ(view.findOsDiskNumber(1, 2, number), 1u);
    EXPECT_EQ(number, 1u);
    EXPECT_EQ(view.arrayRouteOfOsDisk(0, route), 1u);
    EXPECT_EQ(route, 1u);
    EXPECT_EQ(view.arrayRouteOfOsDisk(2, route), 3u); // the unused NVMe disk is no array

    ASSERT_TRUE(view.volumeDeviceNumber('D', number, error));
    ASSERT_TRUE(view.findDeviceInstance(number, instance, error));
    scope.host->modify([](Model &m) {
        m.volumes[1].ejectVeto = "\\Device\\HarddiskVolume4";
        m.arrays[0].attributes |= code::AttributeHidden;
        return true;
    });
    const SK_EjectAnswer vetoed = view.requestDeviceEject(instance - 1); // D: moved up
    EXPECT_FALSE(vetoed.ejected);
    EXPECT_EQ(vetoed.vetoName, "\\Device\\HarddiskVolume4");
    EXPECT_EQ(view.findOsDiskNumber(1, 1, number), 3u); // hidden arrays have no disk

    EXPECT_EQ(view.computerName(), "WS-ENG-0417");
    const auto versions = view.fileVersions("C:\\Windows\\System32\\drivers\\", "sk*.sys");
    ASSERT_EQ(versions.size(), 3u);
    EXPECT_EQ(versions[0].strings[7],
              (std::pair<std::string, std::string>{"ProductVersion", "9.0.0.1182"}));
    EXPECT_EQ(view.serviceControl("skraid", "", 80), 1u);
    EXPECT_EQ(view.serviceControl("skraid", "", 48), 1u);
    EXPECT_EQ(view.serviceControl("skraid", "", 80), 3u);
    EXPECT_EQ(view.serviceControl("nosuchdriver", "", 64), 1u); // absent counts as stopped
}

} // namespace
