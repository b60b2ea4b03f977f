// Records built from hand-made image bytes, and the vocabularies they print with.
// Every field's offset is pinned by the golden report lines of tst_report; these
// tests hold the rules that a plain field copy wouldn't show.

#include "config/config.h"
#include "config_images.h"

#include <gtest/gtest.h>

#include <memory>

using namespace images;

namespace {

const char *kPrefix = "//./Core1/Route";

TEST(VocabularyRules, arrayStatesCommandDisksAndProgress)
{
    // Only a normal array under creation reads differently.
    EXPECT_STREQ(SK_ArrayStateWord(512, 0), "NORMAL");
    EXPECT_STREQ(SK_ArrayStateWord(512, SK_TASK_CREATE), "READY");
    EXPECT_STREQ(SK_ArrayStateWord(513, SK_TASK_CREATE), "CRITICAL");
    for (std::uint32_t type : {4608u, 4610u, 4611u})
        EXPECT_TRUE(SK_IsCommandDisk(type)) << type;
    for (std::uint32_t type : {4607u, 4609u, 4612u, 0u})
        EXPECT_FALSE(SK_IsCommandDisk(type)) << type;
    char text[32];
    for (const auto &c : {std::make_pair(0u, "0.0000"), std::make_pair(1u, "0.0010"),
                          std::make_pair(50000u, "50.0000"), std::make_pair(100000u, "100.0000")}) {
        ASSERT_EQ(SK_FormatPercent(c.first, text, sizeof text), 1u);
        EXPECT_STREQ(text, c.second);
    }
}

TEST(VocabularyRules, arrayTypeAndCountsGiveTheIndexOfTheOneNameTable)
{
    struct Row
    {
        std::uint32_t type, first, second, index;
    };
    const Row rows[] = {{7159, 5, 9, 0},  {7158, 4, 1, 1},  {7158, 1, 2, 2},  {7158, 1, 3, 3},
                        {7158, 2, 2, 4},  {7158, 2, 3, 5},  {7157, 1, 3, 6},  {7157, 2, 4, 7},
                        {7162, 1, 4, 8},  {7162, 3, 4, 9},  {7161, 0, 0, 11}, {7163, 1, 1, 12},
                        {7165, 1, 2, 13}, {7164, 1, 1, 14}, {7158, 1, 1, 15}, {7157, 1, 2, 15},
                        {7162, 2, 1, 15}, {7160, 1, 1, 15}, {7158, 0, 2, 15}};
    for (const Row &r : rows) {
        EXPECT_EQ(SK_ArrayTypeIndexOf(r.type, r.first, r.second), r.index)
            << r.type << " " << r.first << " " << r.second;
    }
    EXPECT_STREQ(SK_ArrayTypeWord(16), "UNKNOWN") << "an index past the table";
}

// --- disks, controllers and enclosures -----------------------------------------------

TEST(PhysicalDevice, digitBytesAreKeptToEightBitsAndTheCoreDeviceIsZeroZero)
{
    for (const auto &c :
         {std::make_pair('3', 3u), std::make_pair('A', 17u), std::make_pair('!', 241u)}) {
        Disk d;
        d.controllerDigit = c.first;
        d.channelDigit = '9';
        const Bytes record = diskRecord(d);
        SK_C_PhysicalDevice disk(record.data(), kPrefix, false);
        EXPECT_EQ(disk.ControllerNumber, c.second) << c.first;
        EXPECT_EQ(disk.Channel, 9u);
    }
    const Bytes core = coreDevice("Build-1.2.3");
    SK_C_PhysicalDevice disk(core.data(), kPrefix, false);
    EXPECT_EQ(disk.ControllerNumber + disk.Channel, 0u);
    EXPECT_STREQ(disk.Inquiry, "Build-1.2.3");
}

TEST(PhysicalDevice, previousFormatTakesOnlyTheFirst128Bytes)
{
    Disk d;
    d.type = 4609; // even the core device keeps 0xFFFF in this format
    d.largest = 5;
    for (std::size_t length : {128u, 256u}) {
        const Bytes record = diskRecord(d, length);
        SK_C_PhysicalDevice disk(record.data(), kPrefix, true, static_cast<std::uint32_t>(length));
        EXPECT_EQ(disk.Capacity, d.capacity);
        EXPECT_EQ(disk.PortType, 2u);
        EXPECT_EQ(disk.ControllerNumber, 0xFFFFu);
        EXPECT_EQ(disk.Channel, 0xFFFFu);
        EXPECT_EQ(disk.LargestFreeSpace, 0u);
        EXPECT_STREQ(disk.Model, "");
        EXPECT_STREQ(disk.Inquiry, "");
        EXPECT_STREQ(disk.VendorID, "");
    }
}

TEST(PhysicalDevice, aRecordCutShortReadsZeroesPastItsEnd)
{
    Disk d;
    d.largest = 7;
    const Bytes whole = diskRecord(d);
    // Exactly-sized copies, so that a read past the end is seen by the sanitizers.
    for (std::size_t length : {0u, 3u, 40u, 150u, 199u, 220u}) {
        std::unique_ptr<std::uint8_t[]> cut(new std::uint8_t[length + 1]);
        std::memcpy(cut.get(), whole.data(), length);
        SK_C_PhysicalDevice disk(cut.get(), kPrefix, false, static_cast<std::uint32_t>(length));
        EXPECT_EQ(disk.LargestFreeSpace, length >= 208 ? 7u : 0u) << length;
        EXPECT_EQ(disk.DeviceType, length >= 40 ? 4608u : 0u) << length;
    }
}

TEST(DeviceNames, numbersBelowTenCarryOneTrailingBlank)
{
    char name[SK_DEVICE_NAME_SIZE];
    SK_ComposeDeviceName(name, kPrefix, 2, 9);
    EXPECT_STREQ(name, "//./Core1/Route2/Device9 ");
    SK_ComposeDeviceName(name, kPrefix, 2, 10);
    EXPECT_STREQ(name, "//./Core1/Route2/Device10");
    EXPECT_EQ(SK_ComposeDeviceName(nullptr, kPrefix, 1, 1), 7u);
    Enclosure e;
    e.device = 12;
    const Bytes record = enclosureRecord(e);
    EXPECT_STREQ(SK_C_SEPDevice(record.data(), kPrefix).Name, "//./Core1/Route0/Device12");
}

// --- arrays -------------------------------------------------------------------------

Array raid10()
{
    Array a;
    a.type = 7158;
    a.first = a.second = 2;
    a.members.assign(4, Member{});
    for (std::uint16_t i = 0; i < 4; ++i) {
        a.members[i].id = 0x100u + i;
        a.members[i].device = static_cast<std::uint16_t>(i + 3);
    }
    a.parents = {{0xAA, 20, 0, 0x12345}};
    a.spares = {{0xB1, 30, 1}, {0xB2, 31, 1}};
    return a;
}

SK_C_LogicalDevice build(const Bytes &record)
{
    return SK_C_LogicalDevice(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));
}

TEST(LogicalDevice, membersAreReadRowByRowAndTheQueriesAnswer)
{
    Array a = raid10();
    a.attributes = 0x10200;
    a.displayName = std::string(32, 'D');
    const Bytes record = arrayRecord(a);
    const SK_C_LogicalDevice array = build(record);
    ASSERT_EQ(array.SK_ElementSlots(), 4u);
    for (std::uint32_t i = 0; i < 4; ++i)
        EXPECT_EQ(array.Elements[i]->DeviceRoute, i + 3);
    EXPECT_EQ(std::string(array.DisplayName, 32), a.displayName);
    EXPECT_STREQ(array.SK_TypeName(), "RAID10");
    EXPECT_EQ(array.SK_TypeIndex(), SK_ARRAY_INDEX_RAID10);
    EXPECT_EQ(array.SK_IsHidden(), 1u);
    EXPECT_EQ(array.RecordLength, record.size());

    // A spare is found only when identity and both routes match.
    EXPECT_EQ(array.SK_FindSpare(0xB2, 31, 1), 1u);
    EXPECT_EQ(array.SK_FindSpare(0xB2, 31, 0), 2u);
    EXPECT_EQ(array.SK_FindSpare(0xB2, 30, 1), 2u);
    // DeviceRoute 20, CoreRoute 0 and the kept word's low 16 bits pack to 0x2345_0000_0014.
    EXPECT_EQ(SK_PackRoute(*array.Parents[0]), 0x234500000014ull);
    EXPECT_EQ(SK_ReferenceMatchesRoute(*array.Parents[0], 0x234500000014ull), 1u);
    EXPECT_EQ(SK_ReferenceMatchesRoute(*array.Parents[0], 0x14ull), 0u);
}

TEST(LogicalDevice, substituteIdsReplaceTheFirstTwoMembersWhenTheirLowWordsDiffer)
{
    Array a = raid10();
    a.substitute0 = 0x0000000900000001ull;
    a.substitute1 = 0x0000000800000002ull;
    const SK_C_LogicalDevice swapped = build(arrayRecord(a));
    EXPECT_EQ(swapped.Elements[0]->ID, a.substitute0);
    EXPECT_EQ(swapped.Elements[1]->ID, a.substitute1);
    EXPECT_EQ(swapped.Elements[2]->ID, 0x102u);

    a.substitute1 = 0x0000000700000001ull; // only the low words are compared
    EXPECT_EQ(build(arrayRecord(a)).Elements[0]->ID, 0x100u);

    Array single; // one member: the second substitute has nowhere to go
    single.substitute0 = 5;
    single.substitute1 = 6;
    EXPECT_EQ(build(arrayRecord(single)).Elements[0]->ID, 5u);
}

TEST(LogicalDevice, tablesThatDontFitTheRecordAreNotRead)
{
    const long long cases[][4] = {{1, 2, -1, -1},
                                  {-1, -1, 1, -1},
                                  {-1, -1, -1, 1},
                                  {0x10000, 0x10000, -1, -1},
                                  {-1, -1, -1, 0xFFFFFFFF}};
    for (const auto &counts : cases) {
        Array a;
        std::copy(counts, counts + 4, a.countOverride);
        const Bytes record = arrayRecord(a);
        const auto length = static_cast<std::uint32_t>(record.size());
        EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), length), 27u);
        const SK_C_LogicalDevice array(record.data(), kPrefix, 1, length);
        EXPECT_EQ(array.SK_ElementSlots() + array.ParentCount + array.SpareCount, 0u);
        EXPECT_EQ(array.Elements, nullptr);
    }
    const Bytes record = arrayRecord(Array{});
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), 576), 1u);
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), 575), 27u);
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), 511), 27u);
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(nullptr, 600), 7u);
}

TEST(RecordFactory, givesTheCoreRealRecordsAndDropsArraysThatCantBeTrusted)
{
    SK_InstallConfigRecords();
    Array bad;
    bad.countOverride[1] = 9; // nine members announced, one present
    Disk second;
    second.id = 0x2000;
    const Image image = Image(7)
                            .add(diskRecord(Disk{}, 128))
                            .add(controllerRecord(Controller{}))
                            .add(arrayRecord(Array{}))
                            .add(arrayRecord(bad))
                            .add(diskRecord(second, 128))
                            .add(enclosureRecord(Enclosure{}));
    const std::uint32_t blocks = SKTL_AllocationCount();
    {
        SK_Core core(image.bytes().data(), image.size());
        ASSERT_EQ(core.DiskCount, 2u);
        ASSERT_EQ(core.ArrayCount, 2u);
        EXPECT_EQ(core.Disks[1]->ID, 0x2000u);
        EXPECT_STREQ(core.Disks[0]->Name, "/Route1/Device3 ");
        EXPECT_EQ(core.Controllers[0]->SerialNumber, 0x1234u);
        EXPECT_EQ(core.Enclosures[0]->ID, 0x99u);
        EXPECT_EQ(core.Arrays[0]->Elements[0]->ID, 0x1000u);
        EXPECT_EQ(core.Arrays[1], nullptr);
    }
    EXPECT_EQ(SKTL_AllocationCount(), blocks) << "records and their tables are freed";
}

} // namespace
