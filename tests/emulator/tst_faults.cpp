// Faults the emulated host can be told to suffer, and what the drivers make of them.

#include "emulator/emulator.h"

#include <gtest/gtest.h>

using namespace sk_emu;

namespace {

std::vector<std::uint16_t> messagesAfter(const Model &m, std::uint32_t number)
{
    std::vector<std::uint16_t> out;
    for (const Event &e : m.events) {
        if (e.number > number)
            out.push_back(e.message);
    }
    return out;
}

Model withoutSpares()
{
    Model m = defaultScenario();
    for (Disk &d : m.disks)
        d.globalSpare = false;
    return m;
}

class Faults : public ::testing::Test
{
protected:
    std::shared_ptr<SK_EmuManualClock> clock = std::make_shared<SK_EmuManualClock>();
    Host host{withoutSpares(), clock};
    const Model before = host.model();
    const std::uint32_t lastEvent = before.events.back().number;
    const std::uint64_t ssdA = before.disks[0].id, hdd1 = before.disks[2].id,
                        hdd2 = before.disks[3].id;
};

TEST_F(Faults, failedMemberWithoutASpareLeavesTheMirrorCritical)
{
    ASSERT_TRUE(host.failDisk(ssdA));
    const Model m = host.model();
    EXPECT_EQ(m.findDisk(ssdA)->state, code::DiskOffline);
    EXPECT_EQ(m.arrays[0].state, code::ArrayCritical);
    EXPECT_EQ(m.arrays[0].layout.members[0].flags, code::MemberFailed | code::MemberOffline);
    EXPECT_EQ(m.arrays[1].state, code::ArrayNormal);
    EXPECT_EQ(messagesAfter(m, lastEvent), (std::vector<std::uint16_t>{1013, 1015}));
    EXPECT_EQ(m.events[m.events.size() - 2].params[1], 0u); // channel of the SSD
    EXPECT_EQ(m.generation, before.generation + 1);
}

TEST(Rebuild, failedMemberIsRebuiltOntoTheGlobalSpareUntilNormal)
{
    auto clock = std::make_shared<SK_EmuManualClock>();
    Host host(defaultScenario(), clock);
    const Model before = host.model();
    const std::uint64_t failing = before.disks[2].id, spare = before.disks[5].id;
    const std::uint32_t last = before.events.back().number;

    ASSERT_TRUE(host.failDisk(failing));
    Model m = host.model();
    const Array &data = m.arrays[1];
    EXPECT_EQ(data.state, code::ArrayCritical);
    EXPECT_EQ(data.layout.members[0].disk, spare);
    EXPECT_EQ(data.layout.members[0].flags, code::MemberOffline);
    EXPECT_EQ(data.task.type, code::TaskRestore);
    EXPECT_FALSE(m.findDisk(spare)->globalSpare);
    EXPECT_EQ(messagesAfter(m, last), (std::vector<std::uint16_t>{1013, 1015, 1139}));

    // A 4 TB member at 200 MB/s and priority 50 takes about 5.6 hours.
    clock->advance(3600 * 1000);
    m = host.model();
    EXPECT_EQ(m.arrays[1].task.type, code::TaskRestore);
    EXPECT_GT(m.arrays[1].task.progress, 15000u);
    EXPECT_LT(m.arrays[1].task.progress, 20000u);

    clock->advance(5 * 3600 * 1000);
    m = host.model();
    EXPECT_EQ(m.arrays[1].task.type, code::TaskNone);
    EXPECT_EQ(m.arrays[1].state, code::ArrayNormal);
    EXPECT_EQ(m.arrays[1].layout.members[0].flags, 0u);
    EXPECT_EQ(m.events.back().message, 1018u);
    EXPECT_EQ(m.generation, before.generation + 2);
}

TEST_F(Faults, secondLossBeyondParityTakesTheArrayOffline)
{
    ASSERT_TRUE(host.failDisk(hdd1));
    ASSERT_TRUE(host.pullDisk(hdd2));
    const Model m = host.model();
    EXPECT_EQ(m.arrays[1].state, code::ArrayOffline);
    EXPECT_EQ(messagesAfter(m, lastEvent),
              (std::vector<std::uint16_t>{1013, 1015, 1039, 1043, 1016}));
    // A pulled disk stays listed, offline, until a rescan forgets it.
    ASSERT_NE(m.findDisk(hdd2), nullptr);
    EXPECT_FALSE(m.findDisk(hdd2)->attached);
    EXPECT_EQ(m.arrays[1].layout.members[1].flags, code::MemberNotPresent | code::MemberOffline);
}

TEST_F(Faults, insertedDiskIsAnnouncedAndWaitsForARescan)
{
    Disk d;
    d.id = 0x77;
    d.port = 7;
    d.capacity = 7814037168;
    d.model = "ST4000NM000A-2HZ100";
    host.insertDisk(d);
    const Model m = host.model();
    ASSERT_NE(m.findDisk(0x77), nullptr);
    EXPECT_EQ(m.findDisk(0x77)->state, code::DiskOffline);
    EXPECT_EQ(messagesAfter(m, lastEvent), (std::vector<std::uint16_t>{1038, 1042}));
    EXPECT_EQ(m.events.back().params[1], 7u);
}

TEST_F(Faults, smartErrorShowsInTheDiskStateOnce)
{
    ASSERT_TRUE(host.setSmartError(hdd1, true));
    ASSERT_TRUE(host.setSmartError(hdd1, true));
    Model m = host.model();
    EXPECT_EQ(m.findDisk(hdd1)->state, code::DiskSmartError);
    EXPECT_EQ(messagesAfter(m, lastEvent), (std::vector<std::uint16_t>{1061}));
    ASSERT_TRUE(host.setSmartError(hdd1, false));
    EXPECT_EQ(host.model().findDisk(hdd1)->state, code::DiskOnline);
    EXPECT_FALSE(host.setSmartError(0x1234, true));
}

TEST_F(Faults, unknownDisksAreReportedAndChangeNothing)
{
    EXPECT_FALSE(host.failDisk(0x1234));
    EXPECT_FALSE(host.pullDisk(0x1234));
    EXPECT_EQ(host.generation(), before.generation);
}

TEST(ArrayHealth, judgedPerRowOfTheLayout)
{
    Layout raid10;
    raid10.type = code::TypeMirrorStripe;
    raid10.firstCount = 2;
    raid10.secondCount = 2;
    raid10.members.assign(4, Member{1, 0, 10, 0, 10, 0});
    EXPECT_EQ(judgeArrayState(raid10), code::ArrayNormal);
    raid10.members[0].flags = code::MemberFailed;
    raid10.members[2].flags = code::MemberFailed; // one of each mirror: still there
    EXPECT_EQ(judgeArrayState(raid10), code::ArrayCritical);
    raid10.members[1].flags = code::MemberOffline; // both of the first mirror
    EXPECT_EQ(judgeArrayState(raid10), code::ArrayOffline);

    Layout raid6;
    raid6.type = code::TypeDoubleParity;
    raid6.firstCount = 1;
    raid6.secondCount = 4;
    raid6.members.assign(4, Member{1, 0, 10, 0, 10, 0});
    raid6.members[0].disk = 0; // a missing member
    raid6.members[3].flags = code::MemberNotPresent;
    EXPECT_EQ(judgeArrayState(raid6), code::ArrayCritical);

    Layout span;
    span.type = code::TypeVolume;
    span.firstCount = 2;
    span.members.assign(2, Member{1, 0, 10, 0, 10, 0});
    span.members[1].flags = code::MemberFailed;
    EXPECT_EQ(judgeArrayState(span), code::ArrayOffline);
}

struct CapacityCase
{
    const char *level;
    std::uint32_t type, first, second;
    std::uint64_t expected; // for members of 100 sectors, smallest 100
};

class LevelCapacity : public ::testing::TestWithParam<CapacityCase>
{
};

TEST_P(LevelCapacity, followsTheArithmeticOfTheLevel)
{
    const CapacityCase &c = GetParam();
    EXPECT_EQ(layoutCapacity(c.type, c.first, c.second, 100, 100ull * c.first * c.second),
              c.expected)
        << c.level;
}

INSTANTIATE_TEST_SUITE_P(
    Levels, LevelCapacity,
    ::testing::Values(CapacityCase{"stripe of 4", code::TypeMirrorStripe, 4, 1, 400},
                      CapacityCase{"mirror", code::TypeMirrorStripe, 1, 2, 100},
                      CapacityCase{"three-way mirror", code::TypeMirrorStripe, 1, 3, 100},
                      CapacityCase{"RAID 10 of 6", code::TypeMirrorStripe, 3, 2, 300},
                      CapacityCase{"RAID 5 of 4", code::TypeParity, 1, 4, 300},
                      CapacityCase{"RAID 50 of 2 x 3", code::TypeParity, 2, 3, 400},
                      CapacityCase{"RAID 6 of 5", code::TypeDoubleParity, 1, 5, 300},
                      CapacityCase{"volume of 3", code::TypeVolume, 3, 1, 300}));

} // namespace
