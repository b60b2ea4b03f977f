// The whole configuration road against the emulated host: the image read through the
// channel, the token report written from its records, and the snapshot read back from
// the report must describe the workstation the scenario describes.

#include "config/config.h"

#include "support/emulated_host.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

const SK_CoreEntry kCore{1, ".", "Core1"};

// Snapshot fields are packed; the test framework binds references, so take copies.
template <class T>
T value(T field)
{
    return field;
}

const SK_ConfigDisk *diskById(const SK_ConfigSnapshot &s, std::uint64_t id)
{
    for (std::int32_t i = 0; i < s.DiskCount; ++i) {
        if (s.Disks[i].DiskId == id)
            return &s.Disks[i];
    }
    return nullptr;
}

const SK_ConfigArray *arrayById(const SK_ConfigSnapshot &s, std::uint64_t id)
{
    for (std::uint32_t i = 0; i < SK_SNAPSHOT_ARRAYS; ++i) {
        if (s.Arrays[i].HalfCount > 0 && s.Arrays[i].Half[0].ArrayId == id)
            return &s.Arrays[i].Half[0];
    }
    return nullptr;
}

class EndToEnd : public ::testing::Test
{
protected:
    void parse()
    {
        snapshot = std::make_unique<SK_ConfigSnapshot>();
        std::memset(snapshot.get(), 0, sizeof(SK_ConfigSnapshot));
        ASSERT_EQ(SK_ParseConfig(&kCore, snapshot.get(), 0, 1), 1u);
    }

    EmulatedHostScope scope;
    std::unique_ptr<SK_ConfigSnapshot> snapshot;
};

TEST_F(EndToEnd, snapshotDescribesTheDefaultWorkstation)
{
    parse();
    const sk_emu::Model m = scope.host->model();
    ASSERT_EQ(snapshot->ControllerCount, 1);
    EXPECT_STREQ(snapshot->Controllers[0].Name, m.controllers[0].name.c_str());
    EXPECT_EQ(value(snapshot->Controllers[0].SerialNumber), m.controllers[0].serial);

    // Every disk of the scenario, with what the console shows of it.
    for (const sk_emu::Disk &d : m.disks) {
        const SK_ConfigDisk *disk = diskById(*snapshot, d.id);
        ASSERT_NE(disk, nullptr) << std::hex << d.id;
        EXPECT_EQ(value(disk->Capacity), d.capacity);
        EXPECT_EQ(std::string(disk->Model), d.model);
        EXPECT_EQ(std::string(disk->SerialNumber), d.serial);
        EXPECT_EQ(value(disk->PortType), d.portType);
        EXPECT_EQ(value(disk->Features), d.features);
        EXPECT_EQ(disk->GlobalSpare != 0, d.globalSpare) << d.model;
        EXPECT_EQ(disk->Channel, static_cast<std::int32_t>(d.port));
        EXPECT_STREQ(disk->State, "Online");
    }
    // The NVMe disk is free; the mirror's SSDs have only the metadata tail left.
    const SK_ConfigDisk *nvme = diskById(*snapshot, m.disks[6].id);
    const SK_ConfigDisk *ssd = diskById(*snapshot, m.disks[0].id);
    ASSERT_TRUE(nvme && ssd);
    EXPECT_GT(value(nvme->TotalFreeSpace), 3900000000u);
    EXPECT_LT(value(ssd->LargestFreeSpace), 2048u);

    ASSERT_EQ(snapshot->ArrayCount, 2);
    const SK_ConfigArray *system = arrayById(*snapshot, m.arrays[0].id);
    const SK_ConfigArray *data = arrayById(*snapshot, m.arrays[1].id);
    ASSERT_TRUE(system && data);
    EXPECT_STREQ(system->Type, "RAID1");
    EXPECT_STREQ(data->Type, "RAID5");
    EXPECT_STREQ(system->State, "NORMAL");
    EXPECT_STREQ(system->Cache, "RW");
    EXPECT_STREQ(data->Cache, "R");
    EXPECT_STREQ(system->DisplayName, "System");
    EXPECT_EQ(value(data->Capacity), m.arrays[1].layout.capacity);
    EXPECT_EQ(data->FirstCount * data->SecondCount, 3);
    EXPECT_EQ(value(data->Members[2].DiskId), m.arrays[1].layout.members[2].disk);
    EXPECT_EQ(value(data->Members[2].Size), m.arrays[1].layout.members[2].size);
    EXPECT_STREQ(data->Members[2].Error, "NoError");
    // Windows sees the visible arrays as disks 0 and 1.
    EXPECT_STREQ(system->OsName, "0");
    EXPECT_STREQ(data->OsName, "1");
}

TEST_F(EndToEnd, aDegradedArrayRebuildingOntoTheSpareShowsInTheSnapshot)
{
    const sk_emu::Model before = scope.host->model();
    ASSERT_TRUE(scope.host->failDisk(before.disks[3].id));
    scope.clock->advance(60 * 60 * 1000);
    parse();
    const SK_ConfigArray *data = arrayById(*snapshot, before.arrays[1].id);
    ASSERT_NE(data, nullptr);
    EXPECT_STREQ(data->State, "CRITICAL");
    EXPECT_STREQ(data->TransformType, "RESTORE");
    EXPECT_STREQ(data->TransformState, "STARTED");
    EXPECT_GT(data->TransformPercentComplete, 10.0f);
    EXPECT_LT(data->TransformPercentComplete, 25.0f);
    EXPECT_EQ(value(data->Members[1].DiskId), before.disks[5].id); // the former global spare
    EXPECT_STREQ(data->Members[1].Error, "Offline");
    const SK_ConfigDisk *failed = diskById(*snapshot, before.disks[3].id);
    ASSERT_NE(failed, nullptr);
    EXPECT_STREQ(failed->State, "Offline");
}

TEST_F(EndToEnd, anArrayInTransformFillsBothHalvesOfItsSlot)
{
    scope.host->modify([](sk_emu::Model &m) {
        sk_emu::Layout target = m.arrays[1].layout;
        target.secondCount = 4;
        target.members.push_back(
            sk_emu::Member{m.disks[6].id, 0, target.members[0].size, 0, target.members[0].size, 0});
        target.capacity = 3 * target.members[0].size;
        m.arrays[1].target = target;
        m.arrays[1].task =
            sk_emu::Task{sk_emu::code::TaskTransform, sk_emu::code::TaskStarted, 500};
        return true;
    });
    parse();
    EXPECT_EQ(snapshot->ArrayCount, 2);
    int shared = 0;
    for (const SK_ConfigArraySlot &slot : snapshot->Arrays) {
        if (slot.HalfCount == 2) {
            ++shared;
            EXPECT_EQ(slot.Half[0].Device, slot.Half[1].Device);
            EXPECT_EQ(slot.Half[1].SecondCount, 4);
        }
    }
    EXPECT_EQ(shared, 1);
}

TEST(EndToEndWithoutDriver, leavesAnEmptySnapshot)
{
    SK_InstallPlatform(nullptr);
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    std::memset(snapshot.get(), 0, sizeof(SK_ConfigSnapshot));
    SK_ParseConfig(&kCore, snapshot.get(), 0, 0);
    EXPECT_EQ(snapshot->DiskCount, 0);
    EXPECT_EQ(snapshot->ArrayCount, 0);
}

} // namespace
