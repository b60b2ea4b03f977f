// Arrays made, changed and removed end to end on the emulated host, each result read
// back through a fresh core as the console would see it.

#include "command_fixture.h"

using namespace cmdtest;

namespace {

struct LevelCase
{
    const char *name;
    std::uint32_t type, first, second;
    std::uint64_t maxMiB;
    bool startsTask;
};

void PrintTo(const LevelCase &c, std::ostream *os)
{
    *os << c.name;
}

std::string displayName(const SK_C_LogicalDevice &array)
{
    return std::string(array.DisplayName, strnlen(array.DisplayName, sizeof array.DisplayName));
}

std::uint32_t createVolume(const SK_CoreEntry *core, int disk, std::uint64_t id,
                           const std::string &name = "", char *newName = nullptr)
{
    const NameList drives{diskName(disk)};
    return SK_ApiCreateLogicalDevice(core, 7159, 1, 0, 0, 0, 0, 100, 1, 1, drives.data(), nullptr,
                                     name.c_str(), static_cast<std::uint32_t>(name.size()), 0, 0, 0,
                                     id, 0, newName);
}

class CreateLevels : public CommandTest, public ::testing::WithParamInterface<LevelCase>
{
protected:
    CreateLevels() { install(lab(false)); }
};

TEST_P(CreateLevels, offerTheirLargestSizeAndAreCreatedWithIt)
{
    const LevelCase &c = GetParam();
    NameList drives;
    for (std::uint32_t i = 0; i < c.first * c.second; ++i)
        drives.add(diskName(static_cast<int>(i)));

    std::uint8_t info[SK_CREATE_INFO_SIZE] = {};
    EXPECT_STATUS(1, SK_ApiGetCreateInfo(&core, c.type, drives.count(), 0, 0, 0, 0, 0, c.first,
                                         c.second, drives.data(), nullptr, 0, 0, 0, 0, 1, info));
    EXPECT_EQ(SK_GetU64(info, SK_CREATE_INFO_MAX_MIB), c.maxMiB);

    char newName[SK_DEVICE_NAME_SIZE] = {};
    EXPECT_STATUS(1, SK_ApiCreateLogicalDevice(
                         &core, c.type, drives.count(), 0, 0xC0000000u, 0, 0, c.maxMiB, c.first,
                         c.second, drives.data(), nullptr, c.name,
                         static_cast<std::uint32_t>(std::strlen(c.name)), 0, 0, 0, 0, 1, newName));
    EXPECT_STREQ(newName, "//./Core1/Route0/Device1");

    auto open = look();
    const SK_C_LogicalDevice *array = SK_LookupArray(*open, newName);
    ASSERT_NE(array, nullptr);
    EXPECT_NE(array->ID, 0u) << "a new ID was drawn";
    EXPECT_EQ(array->Type, c.type);
    EXPECT_EQ(array->FirstCount, c.first);
    EXPECT_EQ(array->SecondCount, c.second);
    EXPECT_EQ(array->Capacity / 2048, c.maxMiB);
    EXPECT_EQ(displayName(*array), c.name);
    EXPECT_EQ(array->CachePolicy, 0xC0000000u);
    EXPECT_EQ(array->TaskType, 0u) << "the call waited for the task to end";
    // The wait begins with a short sleep, then polls once a second while a task runs.
    ASSERT_FALSE(recorder->sleeps.empty());
    EXPECT_EQ(recorder->sleeps.front(), 100u);
    EXPECT_EQ(recorder->sleeps.size() > 1, c.startsTask);
}

INSTANTIATE_TEST_SUITE_P(Levels, CreateLevels,
                         ::testing::Values(LevelCase{"VOLUME", 7159, 3, 1, 3 * kMemberMiB, false},
                                           LevelCase{"RAID0", 7158, 3, 1, 3 * kMemberMiB, false},
                                           LevelCase{"RAID1", 7158, 1, 2, kMemberMiB, true},
                                           LevelCase{"RAID1N", 7158, 1, 3, kMemberMiB, true},
                                           LevelCase{"RAID10", 7158, 2, 2, 2 * kMemberMiB, true},
                                           LevelCase{"RAID5", 7157, 1, 3, 2 * kMemberMiB, true},
                                           LevelCase{"RAID6", 7162, 1, 4, 2 * kMemberMiB, true},
                                           LevelCase{"RAIDABLE", 7163, 1, 1, kMemberMiB, false}),
                         [](const ::testing::TestParamInfo<LevelCase> &row) {
                             return std::string(row.param.name);
                         });

TEST_F(CommandTest, aTierJoinsTwoArraysWhichCanThenNotBeDeleted)
{
    const NameList parts{arrayName(kParityRoute), arrayName(kMirrorRoute)};
    std::uint8_t info[SK_CREATE_INFO_SIZE] = {};
    EXPECT_STATUS(1, SK_ApiGetCreateInfo(&core, 7165, 2, 0, 0, 0, 0, 0, 1, 2, parts.data(), nullptr,
                                         0, 0, 0, 0, 1, info));
    const std::uint64_t size = SK_GetU64(info, SK_CREATE_INFO_MAX_MIB);
    EXPECT_EQ(size, 3 * kMemberMiB);
    EXPECT_STATUS(1, SK_ApiCreateLogicalDevice(&core, 7165, 2, 0, 0, 0, 0x40000, size, 1, 2,
                                               parts.data(), nullptr, "Tier", 4, 0, 0, 0, 0x7E7, 0,
                                               nullptr));
    EXPECT_EQ(only(2).u64(188), kParityId) << "a tier's drives are array references";
    EXPECT_EQ(only(2).u64(204), kMirrorId);
    EXPECT_EQ(arrayIn(*look(), 0x7E7)->Type, SK_ARRAY_TYPE_TIER);
    EXPECT_EQ(arrayIn(*look(), kMirrorId)->ReferenceCount, 1u);

    const NameList mirror{arrayName(kMirrorRoute)};
    EXPECT_STATUS(77, SK_ApiDeleteLogicalDevice(&core, 1, mirror.data(), 0, 0, 1));
    EXPECT_TRUE(recorder->withCode(3).empty());
}

TEST_F(CommandTest, aCacheTagOf32IsRefusedWithItsMessage)
{
    const NameList drives{diskName(5), diskName(6)};
    ::testing::internal::CaptureStdout();
    const std::uint32_t create = createArray(&core, 7158, 1, 2, drives, 100, 0, 32);
    const std::uint32_t info = SK_ApiGetCreateInfo(&core, 7158, 2, 0, 0, 32, 0, 0, 1, 2,
                                                   drives.data(), nullptr, 0, 0, 0, 0, 1, nullptr);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "invalid cachetag size=32\ninvalid cachetag size=32\n");
    EXPECT_STATUS(7, create);
    EXPECT_STATUS(7, info);
    EXPECT_EQ(recorder->opens, 0);
}

TEST_F(CommandTest, createRefusesShapesTypesAndSizesItCannotSend)
{
    const NameList drives{diskName(5), diskName(6)};
    auto create = [&](std::uint32_t type, std::uint32_t first, std::uint32_t second,
                      std::uint64_t capacity) {
        return createArray(&core, type, first, second, drives, capacity);
    };
    EXPECT_STATUS(7, create(7160, 1, 2, 100)) << "no such type";
    EXPECT_STATUS(7, create(7161, 1, 2, 100)) << "legacy arrays are never made";
    EXPECT_STATUS(7, create(7158, 1, 3, 100)) << "the counts must cover the drives";
    EXPECT_STATUS(7, create(7158, 0, 2, 100));
    EXPECT_STATUS(7, create(7158, 1, 2, 0)) << "a create needs a capacity";
    EXPECT_STATUS(7,
                  SK_ApiTransformLogicalDevice(&core, arrayName(kParityRoute).c_str(), 7165, 2, 0,
                                               0, 100, 1, 2, drives.data(), nullptr, 0, 0, 0, 0))
        << "nothing is transformed into a tier";
    EXPECT_EQ(recorder->opens, 0);
}

TEST_F(CommandTest, aFortyCharacterNameIsCutAt32)
{
    const std::string name = "Forty characters of array display name!!";
    EXPECT_STATUS(1, createVolume(&core, 5, 0x40, name));
    EXPECT_EQ(displayName(*arrayIn(*look(), 0x40)), name.substr(0, 32));
    EXPECT_EQ(arrayIn(*look(), 0x40)->Capacity, 100u * 2048) << "the size asked for, in MiB";
}

TEST_F(CommandTest, newArraysGetDistinctIds)
{
    EXPECT_EQ(SK_MakeArrayId(7), SK_MakeArrayId(7));
    EXPECT_NE(SK_MakeArrayId(7), SK_MakeArrayId(8));
    char a[SK_DEVICE_NAME_SIZE] = {}, b[SK_DEVICE_NAME_SIZE] = {};
    ASSERT_EQ(createVolume(&core, 5, 0, "", a), 1u);
    ASSERT_EQ(createVolume(&core, 6, 0, "", b), 1u);
    auto open = look();
    ASSERT_NE(SK_LookupArray(*open, a), nullptr);
    ASSERT_NE(SK_LookupArray(*open, b), nullptr);
    EXPECT_NE(SK_LookupArray(*open, a)->ID, SK_LookupArray(*open, b)->ID);
}

TEST_F(CommandTest, createInfoCopiesTheReplyAlsoWhenTheDriverRefuses)
{
    const NameList drives{diskName(2)}; // all taken by a member of the parity array
    std::uint8_t info[SK_CREATE_INFO_SIZE];
    std::memset(info, 0xEE, sizeof info);
    EXPECT_STATUS(45, SK_ApiGetCreateInfo(&core, 7159, 1, 0, 0, 0, 0, 0, 1, 1, drives.data(),
                                          nullptr, 0, 0, 0, 0, 1, info));
    EXPECT_EQ(SK_GetU32(info, 0), 45u) << "the reason's reply stands in the block";
    EXPECT_EQ(info[SK_CREATE_INFO_SIZE - 1], 0);
}

TEST_F(CommandTest, transformGrowsTheParityArrayByOneDisk)
{
    const NameList drives{diskName(2), diskName(3), diskName(4), diskName(5)};
    const std::string parity = arrayName(kParityRoute);
    std::uint8_t info[SK_TRANSFORM_INFO_SIZE] = {};
    EXPECT_STATUS(1, SK_ApiGetTransformInfo(&core, parity.c_str(), 7157, 4, 0, 0, 1, 1, 4,
                                            drives.data(), nullptr, 0, 0, 0, 1, info));
    EXPECT_EQ(SK_GetU64(info, 24), 2 * kMemberMiB) << "the size it has";
    EXPECT_EQ(SK_GetU64(info, 32), 3 * kMemberMiB) << "the size it could have";

    EXPECT_STATUS(1,
                  SK_ApiTransformLogicalDevice(&core, parity.c_str(), 7157, 4, 0, 0, 3 * kMemberMiB,
                                               1, 4, drives.data(), nullptr, 0, 0, 0, 1));
    auto open = look();
    EXPECT_EQ(arrayIn(*open, kParityId)->SecondCount, 4u);
    EXPECT_EQ(arrayIn(*open, kParityId)->Capacity / 2048, 3 * kMemberMiB);
    EXPECT_EQ(arrayIn(*open, kParityId)->TaskType, 0u) << "waited to the end";
}

TEST_F(CommandTest, aTransformThatLosesAMemberWhileWaitedForReportsFailure)
{
    recorder->duringSleep = [this](std::uint32_t) {
        if (host->model().disks[2].state == sk_emu::code::DiskOnline)
            host->failDisk(diskId(2));
    };
    const NameList drives{diskName(2), diskName(3), diskName(4), diskName(5)};
    EXPECT_STATUS(9, SK_ApiTransformLogicalDevice(&core, arrayName(kParityRoute).c_str(), 7157, 4,
                                                  0, 0, 3 * kMemberMiB, 1, 4, drives.data(),
                                                  nullptr, 0, 0, 0, 1));
}

TEST_F(CommandTest, threeArraysGoInOneRequestAndALegacyDiskIsResetAfter)
{
    using namespace sk_emu;
    Model m = lab(false);
    auto volume = [](std::uint64_t id, std::uint16_t route, int disk, std::uint32_t type) {
        Array a;
        a.id = id;
        a.route = route;
        a.layout = Layout{type, 1, 1, 2048, {Member{diskId(disk), 0, 2048, 0, 2048, 0}}};
        return a;
    };
    m.disks[6].type = code::DiskTypeLegacy;
    m.arrays = {volume(0xB1, 1, 0, code::TypeVolume),
                volume(0xB2, 2, 1, code::TypeLegacy), // on a plain disk: nothing to reset
                volume(0xB3, 3, 6, code::TypeLegacy)};
    install(m);

    const NameList arrays{arrayName(1), arrayName(2), arrayName(3)};
    EXPECT_STATUS(1, SK_ApiDeleteLogicalDevice(&core, 3, arrays.data(), 0, 0, 1));
    EXPECT_EQ(only(3).u32(36), 3u);
    const RecordedRequest reset = only(4);
    EXPECT_EQ(reset.u32(40), 1u) << "metadata is cleared";
    EXPECT_EQ(reset.u64(44), diskId(6)) << "of the legacy disk only";
    EXPECT_EQ(reset.u64(60), 0u);

    auto open = look();
    EXPECT_EQ(open->ArrayCount, 0u);
    EXPECT_EQ(diskIn(*open, 6)->DeviceType, SK_DEVICE_TYPE_DISK);
}

} // namespace
