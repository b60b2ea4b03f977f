// Records built from hand-made image bytes, and the vocabularies they print with.

#include "config/config.h"
#include "config_images.h"

#include <gtest/gtest.h>

#include <cctype>
#include <memory>

using namespace images;

namespace {

const char *kPrefix = "//./Core1/Route";

// --- vocabularies -------------------------------------------------------------------

struct WordCase
{
    const char *(*word)(std::uint32_t);
    std::uint32_t value;
    const char *expected;
};

class Vocabulary : public ::testing::TestWithParam<WordCase>
{
};

TEST_P(Vocabulary, mapsEachValueToItsWord)
{
    EXPECT_STREQ(GetParam().word(GetParam().value), GetParam().expected)
        << "value " << GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(
    Words, Vocabulary,
    ::testing::Values(
        WordCase{SK_DeviceTypeWord, 4608, "Disk"}, WordCase{SK_DeviceTypeWord, 4609, "Core"},
        WordCase{SK_DeviceTypeWord, 4610, "Unknown"}, WordCase{SK_DeviceTypeWord, 4611, "Legacy"},
        WordCase{SK_DeviceTypeWord, 4612, "Promise"}, WordCase{SK_DeviceTypeWord, 4613, "Unknown"},
        WordCase{SK_DeviceStateWord, 12288, "Online"},
        WordCase{SK_DeviceStateWord, 12289, "Offline"},
        WordCase{SK_DeviceStateWord, 12290, "SMART_error"},
        WordCase{SK_DeviceStateWord, 12291, "Unknown"},
        WordCase{SK_DeviceStateWord, 12292, "Locked"},
        WordCase{SK_TaskTypeWord, 0, "NOT_ACTIVE"}, WordCase{SK_TaskTypeWord, 21332, "TRANSFORM"},
        WordCase{SK_TaskTypeWord, 21333, "CREATE"}, WordCase{SK_TaskTypeWord, 21334, "CHECK"},
        WordCase{SK_TaskTypeWord, 21335, "COPY"}, WordCase{SK_TaskTypeWord, 21336, "RESTORE"},
        WordCase{SK_TaskTypeWord, 21337, "CHECK_BITMAP"},
        WordCase{SK_TaskTypeWord, 21338, "FLUSH_BITMAP"}, WordCase{SK_TaskTypeWord, 21339, "ZERO"},
        WordCase{SK_TaskTypeWord, 21340, "SECURE_ERASE"},
        WordCase{SK_TaskTypeWord, 21341, "UNKNOWN"},
        WordCase{SK_TaskTypeWord, 21342, "TIER_MOVE"},
        WordCase{SK_TaskStateWord, 0, "NOT_ACTIVE"},
        WordCase{SK_TaskStateWord, 41377, "STARTED"}, WordCase{SK_TaskStateWord, 41378, "PAUSED"},
        WordCase{SK_TaskStateWord, 41379, "SHUTDOWN"}, WordCase{SK_TaskStateWord, 41380, "FAILED"},
        WordCase{SK_TaskStateWord, 41381, "STOPPED"},
        WordCase{SK_TaskStateWord, 41382, "COMPLETED"},
        WordCase{SK_TaskStateWord, 41383, "NOT_COMPLETED"},
        WordCase{SK_TaskStateWord, 41384, "REMOVED"},
        WordCase{SK_TaskStateWord, 41385, "NOT_ACTIVE"},
        WordCase{SK_TaskStateWord, 41386, "UNKNOWN"},
        WordCase{SK_CachePolicyWord, 0xC0000000u, "RW"},
        WordCase{SK_CachePolicyWord, 0x80000000u, "R"},
        WordCase{SK_CachePolicyWord, 0x40000000u, "W"}, WordCase{SK_CachePolicyWord, 0x3FFFFFFF, "NC"},
        WordCase{SK_MemberFlagsWord, 0x30, "Fail_Offline"},
        WordCase{SK_MemberFlagsWord, 0x4030, "Fail_Offline"},
        WordCase{SK_MemberFlagsWord, 0x4020, "Fail(NP)_Offline"},
        WordCase{SK_MemberFlagsWord, 0x4010, "Fail"}, WordCase{SK_MemberFlagsWord, 0x20, "Offline"},
        WordCase{SK_MemberFlagsWord, 0x4000, "Fail(NP)"},
        WordCase{SK_MemberFlagsWord, 0x8, "NoError"}));

TEST(VocabularyRules, arrayStateReadsReadyOnlyForANormalArrayBeingCreated)
{
    EXPECT_STREQ(SK_ArrayStateWord(512, 0), "NORMAL");
    EXPECT_STREQ(SK_ArrayStateWord(512, SK_TASK_CREATE), "READY");
    EXPECT_STREQ(SK_ArrayStateWord(513, SK_TASK_CREATE), "CRITICAL");
    EXPECT_STREQ(SK_ArrayStateWord(514, 0), "OFFLINE");
    EXPECT_STREQ(SK_ArrayStateWord(515, 0), "OUTDATE");
    EXPECT_STREQ(SK_ArrayStateWord(516, 0), "LOCKED");
    EXPECT_STREQ(SK_ArrayStateWord(517, 0), "UNKNOWN");
}

TEST(VocabularyRules, commandDisksAreDiskUnknownAndLegacy)
{
    for (std::uint32_t type : {4608u, 4610u, 4611u})
        EXPECT_TRUE(SK_IsCommandDisk(type)) << type;
    for (std::uint32_t type : {4607u, 4609u, 4612u, 0u})
        EXPECT_FALSE(SK_IsCommandDisk(type)) << type;
}

TEST(VocabularyRules, percentIsThousandthsInSinglePrecision)
{
    char text[32];
    const std::pair<std::uint32_t, const char *> cases[] = {
        {0, "0.0000"}, {1, "0.0010"}, {50000, "50.0000"}, {100000, "100.0000"}, {12345, "12.3450"}};
    for (const auto &c : cases) {
        ASSERT_EQ(SK_FormatPercent(c.first, text, sizeof text), 1u);
        EXPECT_STREQ(text, c.second);
    }
    EXPECT_EQ(SK_FormatPercent(1, nullptr, 4), 7u);
}

struct TypeCase
{
    std::uint32_t type, first, second, index;
    const char *word;
};

class ArrayTypes : public ::testing::TestWithParam<TypeCase>
{
};

TEST_P(ArrayTypes, typeAndCountsGiveTheIndexAndWord)
{
    const TypeCase c = GetParam();
    EXPECT_EQ(SK_ArrayTypeIndexOf(c.type, c.first, c.second), c.index);
    EXPECT_STREQ(SK_ArrayTypeWord(SK_ArrayTypeIndexOf(c.type, c.first, c.second)), c.word);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ArrayTypes,
    ::testing::Values(TypeCase{7159, 5, 9, 0, "VOLUME"}, TypeCase{7158, 4, 1, 1, "RAID0"},
                      TypeCase{7158, 1, 2, 2, "RAID1"}, TypeCase{7158, 1, 3, 3, "RAID1N"},
                      TypeCase{7158, 2, 2, 4, "RAID10"}, TypeCase{7158, 2, 3, 5, "RAID10N"},
                      TypeCase{7157, 1, 3, 6, "RAID5"}, TypeCase{7157, 2, 4, 7, "RAID50"},
                      TypeCase{7162, 1, 4, 8, "RAID6"}, TypeCase{7162, 3, 4, 9, "RAID60"},
                      TypeCase{7161, 0, 0, 11, "LEGACY"}, TypeCase{7163, 1, 1, 12, "RAIDABLE"},
                      TypeCase{7165, 1, 2, 13, "RAIDTIER"}, TypeCase{7164, 1, 1, 14, "PROMISE"},
                      TypeCase{7158, 1, 1, 15, "UNKNOWN"}, TypeCase{7157, 1, 2, 15, "UNKNOWN"},
                      TypeCase{7162, 2, 1, 15, "UNKNOWN"}, TypeCase{7160, 1, 1, 15, "UNKNOWN"},
                      TypeCase{7158, 0, 2, 15, "UNKNOWN"}));

TEST(ArrayTypesTable, rawHasAnIndexButNoTypeAndPastTheTableIsUnknown)
{
    EXPECT_STREQ(SK_ArrayTypeWord(SK_ARRAY_INDEX_RAW), "RAW");
    EXPECT_STREQ(SK_ArrayTypeWord(16), "UNKNOWN");
}

// --- disk, controller, enclosure ----------------------------------------------------

TEST(PhysicalDevice, currentRecordCarriesEveryField)
{
    Disk d;
    d.id = 0xC0FFEE01;
    d.device = 3;
    d.core = 1;
    d.largest = 0x1111;
    d.total = 0x2222;
    d.controllerDigit = '3';
    d.channelDigit = '7';
    d.spare = 256;
    const Bytes record = diskRecord(d);
    SK_C_PhysicalDevice disk(record.data(), kPrefix, false, 256);

    EXPECT_EQ(disk.ID, 0xC0FFEE01u);
    EXPECT_EQ(disk.DeviceRoute, 3);
    EXPECT_EQ(disk.CoreRoute, 1);
    EXPECT_EQ(disk.Capacity, d.capacity);
    EXPECT_EQ(disk.DeviceType, 4608u);
    EXPECT_EQ(disk.DeviceState, 12288u);
    EXPECT_EQ(disk.SpareState, 256u);
    EXPECT_EQ(disk.Features, 4u);
    EXPECT_EQ(disk.PortType, 2u);
    EXPECT_EQ(disk.LargestFreeSpace, 0x1111u);
    EXPECT_EQ(disk.TotalFreeSpace, 0x2222u);
    EXPECT_STREQ(disk.Model, "ExampleDisk 1TB");
    EXPECT_STREQ(disk.SerialNumber, "ABC123");
    EXPECT_STREQ(disk.FirmwareRevision, "1.00");
    EXPECT_STREQ(disk.VendorID, "EXAMPLE");
    EXPECT_EQ(disk.ControllerNumber, 3u);
    EXPECT_EQ(disk.Channel, 7u);
    EXPECT_STREQ(disk.Name, "//./Core1/Route1/Device3 ");
}

TEST(PhysicalDevice, fullWidthTextsAreTerminatedInsideTheirFields)
{
    Disk d;
    d.model = std::string(40, 'M');
    d.serial = std::string(20, 'S');
    d.firmware = "ABCDEFGH";
    d.vendor = "VVVVVVVV";
    const Bytes record = diskRecord(d);
    SK_C_PhysicalDevice disk(record.data(), kPrefix, false);
    EXPECT_EQ(std::string(disk.Model), std::string(40, 'M'));
    EXPECT_EQ(std::string(disk.SerialNumber), std::string(20, 'S'));
    EXPECT_STREQ(disk.FirmwareRevision, "ABCDEFGH");
    EXPECT_STREQ(disk.VendorID, "VVVVVVVV");
}

TEST(PhysicalDevice, digitBytesAreKeptToEightBits)
{
    const std::pair<char, std::uint32_t> cases[] = {{'0', 0}, {'9', 9}, {'A', 17}, {'!', 241}};
    for (const auto &c : cases) {
        Disk d;
        d.controllerDigit = c.first;
        d.channelDigit = c.first;
        const Bytes record = diskRecord(d);
        SK_C_PhysicalDevice disk(record.data(), kPrefix, false);
        EXPECT_EQ(disk.ControllerNumber, c.second) << c.first;
        EXPECT_EQ(disk.Channel, c.second) << c.first;
    }
}

TEST(PhysicalDevice, coreDeviceReadsAsControllerZeroChannelZeroWithItsBuildText)
{
    const Bytes record = coreDevice("Build-1.2.3");
    SK_C_PhysicalDevice disk(record.data(), kPrefix, false);
    EXPECT_EQ(disk.ControllerNumber, 0u);
    EXPECT_EQ(disk.Channel, 0u);
    EXPECT_STREQ(disk.Inquiry, "Build-1.2.3");
}

TEST(PhysicalDevice, previousFormatTakesOnlyTheFirst128Bytes)
{
    Disk d;
    d.type = 4609; // even the core device keeps 0xFFFF in this format
    d.largest = 5;
    Bytes record = diskRecord(d, 128);
    SK_C_PhysicalDevice disk(record.data(), kPrefix, true, 128);
    EXPECT_EQ(disk.ID, d.id);
    EXPECT_EQ(disk.Capacity, d.capacity);
    EXPECT_EQ(disk.PortType, 2u);
    EXPECT_EQ(disk.ControllerNumber, 0xFFFFu);
    EXPECT_EQ(disk.Channel, 0xFFFFu);
    EXPECT_EQ(disk.LargestFreeSpace, 0u);
    EXPECT_STREQ(disk.Model, "");
    EXPECT_STREQ(disk.Inquiry, "");
    EXPECT_STREQ(disk.FirmwareRevision, "");
    EXPECT_STREQ(disk.VendorID, "");

    // A full record read with the flag still ignores the later half.
    record = diskRecord(d, 256);
    SK_C_PhysicalDevice full(record.data(), kPrefix, true, 256);
    EXPECT_STREQ(full.Model, "");
    EXPECT_EQ(full.LargestFreeSpace, 0u);
}

TEST(PhysicalDevice, aRecordCutShortReadsZeroesPastItsEnd)
{
    Disk d;
    d.largest = 7;
    const Bytes whole = diskRecord(d);
    // Exactly-sized copies, so a read past the end would be seen by the sanitizers.
    for (std::size_t length : {0u, 3u, 40u, 150u, 199u, 220u}) {
        std::unique_ptr<std::uint8_t[]> cut(new std::uint8_t[length + 1]);
        std::memcpy(cut.get(), whole.data(), length);
        SK_C_PhysicalDevice disk(cut.get(), kPrefix, false, static_cast<std::uint32_t>(length));
        EXPECT_EQ(disk.LargestFreeSpace, length >= 208 ? 7u : 0u) << length;
        if (length < 36) {
            EXPECT_EQ(disk.DeviceType, 0u);
        }
    }
}

TEST(DeviceNames, numbersBelowTenCarryOneTrailingBlank)
{
    char name[SK_DEVICE_NAME_SIZE];
    SK_ComposeDeviceName(name, kPrefix, 2, 9);
    EXPECT_STREQ(name, "//./Core1/Route2/Device9 ");
    SK_ComposeDeviceName(name, kPrefix, 2, 10);
    EXPECT_STREQ(name, "//./Core1/Route2/Device10");
    SK_ComposeDeviceName(name, "/Route", 0, 0);
    EXPECT_STREQ(name, "/Route0/Device0 ");
    EXPECT_EQ(SK_ComposeDeviceName(nullptr, kPrefix, 1, 1), 7u);
}

TEST(ControllerDevice, everyFieldComesFromItsOffset)
{
    Controller c;
    c.id = 0x0102030405060708ull;
    c.number = 2;
    c.name = std::string(16, 'N');
    const Bytes record = controllerRecord(c);
    SK_C_ControllerDevice controller(record.data(), kPrefix);
    EXPECT_EQ(controller.ID, c.id);
    EXPECT_EQ(std::string(controller.Name), std::string(16, 'N'));
    EXPECT_STREQ(controller.BiosBuild, "9.3.0-27");
    EXPECT_EQ(controller.MaxArraySize, c.maxArray);
    EXPECT_EQ(controller.SerialNumber, 0x1234u);
    EXPECT_EQ(controller.NumberOfPorts, 8u);
    EXPECT_EQ(controller.PciVendorID, 0x1e5d);
    EXPECT_EQ(controller.PciDeviceID, 0x0a10);
    EXPECT_EQ(controller.ControllerNumber, 2u);
    EXPECT_EQ(controller.PciSubVendorID, 0x1e5d);
    EXPECT_EQ(controller.PciSubDeviceID, 0x0a10);
    EXPECT_EQ(controller.ControllerId, 0xaabbccddu);
    EXPECT_EQ(controller.OrigPciVendorID, 0x1e5d);
    EXPECT_EQ(controller.OrigPciDeviceID, 0x0a01);
    EXPECT_EQ(controller.PCILocation, 5u);
}

TEST(SEPDevice, everyFieldComesFromItsOffset)
{
    Enclosure e;
    e.device = 12;
    e.core = 3;
    e.product = std::string(16, 'P');
    const Bytes record = enclosureRecord(e);
    SK_C_SEPDevice sep(record.data(), kPrefix);
    EXPECT_EQ(sep.ID, 0x99u);
    EXPECT_STREQ(sep.Vendor, "EXAMPLE");
    EXPECT_EQ(std::string(sep.Product), std::string(16, 'P'));
    EXPECT_STREQ(sep.Revision, "1.0");
    EXPECT_STREQ(sep.SerialNumber, "12345678");
    EXPECT_STREQ(sep.Name, "//./Core1/Route3/Device12");
}

// --- arrays -------------------------------------------------------------------------

Array raid10()
{
    Array a;
    a.type = 7158;
    a.first = 2;
    a.second = 2;
    a.members.clear();
    for (std::uint16_t i = 0; i < 4; ++i) {
        Member m;
        m.id = 0x100 + i;
        m.device = static_cast<std::uint16_t>(i + 3);
        m.flags = i == 3 ? 0x20 : 0;
        a.members.push_back(m);
    }
    a.parents = {{0xAA, 20, 0, 0x12345}};
    a.spares = {{0xB1, 30, 1}, {0xB2, 31, 1}};
    return a;
}

TEST(LogicalDevice, fixedFieldsAndTablesAreReadRowByRow)
{
    Array a = raid10();
    a.task = SK_TASK_TRANSFORM;
    a.taskState = SK_TASK_STATE_PAUSED;
    a.percent = 33000;
    a.generation = 0x500000007ull;
    a.attributes = 0x10200;
    a.displayName = std::string(32, 'D');
    const Bytes record = arrayRecord(a);
    SK_C_LogicalDevice array(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));

    EXPECT_EQ(array.State, 512u);
    EXPECT_EQ(array.TaskType, SK_TASK_TRANSFORM);
    EXPECT_EQ(array.TaskState, SK_TASK_STATE_PAUSED);
    EXPECT_EQ(array.ID, a.id);
    EXPECT_EQ(array.Generation, 0x500000007ull);
    EXPECT_EQ(array.ElementCount, 4u);
    EXPECT_EQ(array.RecordLength, record.size());
    EXPECT_EQ(array.PercentComplete, 33000u);
    EXPECT_EQ(array.CacheTagSize, 64u);
    EXPECT_EQ(array.CoreNumber, 1u);
    EXPECT_STREQ(array.Name, "//./Core1/Route0/Device1 ");
    EXPECT_EQ(std::string(array.DisplayName, 32), std::string(32, 'D'));
    EXPECT_STREQ(array.SK_TypeName(), "RAID10");
    EXPECT_EQ(array.SK_IsHidden(), 1u);

    ASSERT_EQ(array.SK_ElementSlots(), 4u);
    for (std::uint32_t i = 0; i < 4; ++i) {
        ASSERT_NE(array.Elements[i], nullptr);
        EXPECT_EQ(array.Elements[i]->ID, 0x100u + i);
        EXPECT_EQ(array.Elements[i]->DeviceRoute, i + 3);
        EXPECT_EQ(array.Elements[i]->Size, 0x74700000u);
    }
    EXPECT_EQ(array.Elements[3]->Flags, 0x20u);
    ASSERT_EQ(array.ParentCount, 1u);
    EXPECT_EQ(array.Parents[0]->ID, 0xAAu);
    EXPECT_EQ(array.Parents[0]->Kept, 0x12345u);
    ASSERT_EQ(array.SpareCount, 2u);
    EXPECT_EQ(array.Spares[1]->ID, 0xB2u);
    EXPECT_EQ(array.Spares[1]->DeviceRoute, 31);
}

TEST(LogicalDevice, spareSearchNeedsAllThreeOfTheReference)
{
    const Bytes record = arrayRecord(raid10());
    SK_C_LogicalDevice array(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));
    EXPECT_EQ(array.SK_FindSpare(0xB2, 31, 1), 1u);
    EXPECT_EQ(array.SK_FindSpare(0xB2, 31, 0), 2u);
    EXPECT_EQ(array.SK_FindSpare(0xB2, 30, 1), 2u);
    EXPECT_EQ(array.SK_FindSpare(0xB1 + 7, 30, 1), 2u);

    // DeviceRoute 20, CoreRoute 0, kept word 0x12345 packs to 0x2345_0000_0014.
    EXPECT_EQ(SK_PackRoute(*array.Parents[0]), 0x234500000014ull);
    EXPECT_EQ(SK_ReferenceMatchesRoute(*array.Parents[0], 0x234500000014ull), 1u);
    EXPECT_EQ(SK_ReferenceMatchesRoute(*array.Parents[0], 0x14ull), 0u);
}

TEST(LogicalDevice, substituteIdsReplaceTheFirstTwoMembersWhenTheirLowWordsDiffer)
{
    Array a = raid10();
    a.substitute0 = 0x0000000900000001ull;
    a.substitute1 = 0x0000000800000002ull;
    Bytes record = arrayRecord(a);
    SK_C_LogicalDevice swapped(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));
    EXPECT_EQ(swapped.Elements[0]->ID, a.substitute0);
    EXPECT_EQ(swapped.Elements[1]->ID, a.substitute1);
    EXPECT_EQ(swapped.Elements[2]->ID, 0x102u);

    // Only the low words are compared.
    a.substitute1 = 0x0000000700000001ull;
    record = arrayRecord(a);
    SK_C_LogicalDevice same(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));
    EXPECT_EQ(same.Elements[0]->ID, 0x100u);

    // One member only: the second substitute has nowhere to go.
    Array single;
    single.substitute0 = 5;
    single.substitute1 = 6;
    record = arrayRecord(single);
    SK_C_LogicalDevice one(record.data(), kPrefix, 1, static_cast<std::uint32_t>(record.size()));
    EXPECT_EQ(one.Elements[0]->ID, 5u);
}

struct TableFit
{
    const char *what;
    Array array;
    std::uint32_t status;
};

class ArrayTables : public ::testing::TestWithParam<TableFit>
{
};

TEST_P(ArrayTables, mustFitTheRecordTheyComeIn)
{
    const Bytes record = arrayRecord(GetParam().array);
    const auto length = static_cast<std::uint32_t>(record.size());
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), length), GetParam().status);
    SK_C_LogicalDevice array(record.data(), kPrefix, 1, length);
    if (GetParam().status != 1) {
        EXPECT_EQ(array.SK_ElementSlots(), 0u);
        EXPECT_EQ(array.ParentCount + array.SpareCount, 0u);
        EXPECT_EQ(array.Elements, nullptr);
    }
}

std::string tableFitName(const ::testing::TestParamInfo<TableFit> &param)
{
    std::string name = param.param.what;
    for (char &c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    }
    return name;
}

Array withCounts(long long first, long long second, long long parents, long long spares)
{
    Array a;
    a.countOverride[0] = first;
    a.countOverride[1] = second;
    a.countOverride[2] = parents;
    a.countOverride[3] = spares;
    return a;
}

INSTANTIATE_TEST_SUITE_P(
    Records, ArrayTables,
    ::testing::Values(TableFit{"exact", Array{}, 1},
                      TableFit{"members past the end", withCounts(1, 2, -1, -1), 27},
                      TableFit{"a parent past the end", withCounts(-1, -1, 1, -1), 27},
                      TableFit{"a spare past the end", withCounts(-1, -1, -1, 1), 27},
                      TableFit{"counts that wrap 32 bits", withCounts(0x10000, 0x10000, -1, -1),
                               27},
                      TableFit{"huge spare count", withCounts(-1, -1, -1, 0xFFFFFFFF), 27}),
    tableFitName);

TEST(LogicalDevice, aRecordShorterThanItsFixedPartIsRefused)
{
    const Bytes record = arrayRecord(Array{});
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(record.data(), 511), 27u);
    EXPECT_EQ(SK_C_LogicalDevice::SK_CheckRecord(nullptr, 600), 7u);
}

// --- the factory --------------------------------------------------------------------

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
        EXPECT_EQ(core.Disks[0]->ControllerNumber, 0xFFFFu); // always the previous format
        EXPECT_EQ(core.Controllers[0]->SerialNumber, 0x1234u);
        EXPECT_EQ(core.Enclosures[0]->ID, 0x99u);
        ASSERT_NE(core.Arrays[0], nullptr);
        EXPECT_EQ(core.Arrays[0]->Elements[0]->ID, 0x1000u);
        EXPECT_EQ(core.Arrays[1], nullptr);
    }
    EXPECT_EQ(SKTL_AllocationCount(), blocks);
}

} // namespace
