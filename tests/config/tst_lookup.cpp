// Record searches, core enumeration, whole-core lookups, device list checks, the older
// enumeration, and the walk over malformed images.

#include "config_fixture.h"

#include <string>
#include <vector>

using namespace images;

namespace {

TEST(Searches, namesIgnoreOneTrailingBlankOfTheRecordAndIdZeroFindsNothing)
{
    SK_InstallConfigRecords();
    Disk nine, ten, zero;
    nine.device = 9;
    ten.device = 10;
    ten.id = 0x1010;
    zero.id = 0;
    Array a, broken;
    a.device = 5;
    a.id = 0x5555;
    broken.device = 6;
    broken.countOverride[2] = 3; // parents that aren't there: an empty slot
    Controller c;
    c.id = 0xC1;
    const Image image = Image(1)
                            .add(diskRecord(zero, 128))
                            .add(diskRecord(nine, 128))
                            .add(diskRecord(ten, 128))
                            .add(arrayRecord(broken))
                            .add(arrayRecord(a))
                            .add(controllerRecord(c));
    const SK_Core core(image.bytes().data(), image.size());

    ASSERT_STREQ(core.Disks[1]->Name, "/Route1/Device9 ");
    EXPECT_EQ(SK_FindDiskByName(core, "/Route1/Device9"), 1u);
    EXPECT_EQ(SK_FindDiskByName(core, "/Route1/Device10"), 2u);
    for (const char *miss :
         {"/Route1/Device9 ", "/Route1/Device9  ", "/Route1/Device1", "/route1/Device9", ""})
        EXPECT_EQ(SK_FindDiskByName(core, miss), 3u) << '"' << miss << '"';
    EXPECT_EQ(SK_FindDiskByName(core, nullptr), 3u);
    EXPECT_EQ(SK_FindDiskById(core, 0), 3u) << "the record's ID is 0, yet 0 finds nothing";
    EXPECT_EQ(SK_FindDiskById(core, 0x1010), 2u);
    ASSERT_EQ(core.Arrays[0], nullptr);
    EXPECT_EQ(SK_FindArrayByName(core, "/Route0/Device6"), 2u);
    EXPECT_EQ(SK_FindArrayById(core, 0x5555), 1u);
    EXPECT_EQ(SK_ArrayIdByName(core, "/Route0/Device5"), 0x5555u);
    EXPECT_EQ(SK_ArrayIdByName(core, "/Route0/Device7"), 0u);
    EXPECT_EQ(SK_FindControllerById(core, 0xC1), 0u);
    EXPECT_EQ(SK_FindControllerById(core, 0), 1u);
}

TEST_F(ScriptedCoreTest, coreListHasTheOneCoreThatOpens)
{
    SK_CoreEntry list[8] = {};
    std::uint32_t count = 99;
    ASSERT_EQ(SK_ApiGetCoreList(list, SK_CORE_LIST_SIZE, &count), 1u);
    ASSERT_EQ(count, 1u);
    EXPECT_EQ(list[0].CoreNumber, 1u);
    EXPECT_STREQ(list[0].BusName, ".");
    EXPECT_STREQ(list[0].CoreName, "Core1");
    EXPECT_EQ(SK_ApiGetCoreList(nullptr, 0, &count), SK_STS_BUFFER_TOO_SMALL);
    EXPECT_EQ(SK_ApiGetCoreList(list, 35, &count), SK_STS_BUFFER_TOO_SMALL);
    EXPECT_EQ(SK_ApiGetCoreList(list, 36, nullptr), 7u);
    host->devices.clear();
    EXPECT_EQ(SK_ApiGetCoreList(list, SK_CORE_LIST_SIZE, &count), 1u);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(host->openSessions, 0);
}

TEST_F(ScriptedCoreTest, wholeCoreLookupsFindRoutesSerialsAndNames)
{
    Array a;
    a.device = 5;
    a.core = 2;
    a.id = 0xAAAA;
    Disk d;
    d.device = 7;
    d.core = 3;
    d.id = 0xDDDD;
    Controller c;
    c.serial = 0x5E5E;
    c.name = "Ctl";
    serve(Image(1).add(controllerRecord(c)).add(diskRecord(d)).add(arrayRecord(a)), 20);

    EXPECT_EQ(SK_ApiGetControllerSerial(&entry, 0), 0x5E5Eu);
    EXPECT_EQ(SK_ApiGetControllerSerial(&entry, 1), 0u);
    EXPECT_EQ(SK_ApiGetArrayRoute(&entry, 0xAAAA), 0x20005u);
    EXPECT_EQ(SK_ApiGetDiskRoute(&entry, 0xDDDD), 0x30007u);
    EXPECT_EQ(SK_ApiGetDiskRoute(&entry, 0xAAAA), 0u);
    EXPECT_EQ(SK_ApiGetArrayRoute(nullptr, 0xAAAA), 0u);

    SK_CoreEntry found{};
    char name[SK_DEVICE_NAME_SIZE] = {};
    ASSERT_EQ(SK_ApiFindControllerBySerial(&found, 0x5E5E, name), 1u);
    EXPECT_STREQ(name, "Ctl");
    EXPECT_STREQ(found.CoreName, "Core1");
    ASSERT_EQ(SK_ApiFindArrayById(&found, 0xAAAA, name), 1u);
    EXPECT_STREQ(name, "//./Core1/Route2/Device5 ");
    ASSERT_EQ(SK_ApiFindDiskById(&found, 0xDDDD, name), 1u);
    EXPECT_STREQ(name, "//./Core1/Route3/Device7 ");
    EXPECT_EQ(SK_ApiFindControllerBySerial(&found, 0x5E5F, name), 64u);
    EXPECT_EQ(SK_ApiFindArrayById(&found, 0xDDDD, name), 10u);
    EXPECT_EQ(SK_ApiFindDiskById(&found, 0, name), 11u);
    EXPECT_EQ(SK_ApiFindDiskById(nullptr, 1, name), 7u);
    EXPECT_EQ(host->openSessions, 0);

    host->devices.clear();
    EXPECT_EQ(SK_ApiGetArrayRoute(&entry, 0xAAAA), 0u);
    EXPECT_EQ(SK_ApiFindArrayById(&found, 0xAAAA, name), 10u);
}

// --- device lists -------------------------------------------------------------------

const char *kCore1 = "//./Core1/Route1/Device3";
const char *kCore1Upper = "//./CORE1/Route0/Device2";
const char *kCore2 = "//./Core2/Route1/Device3";
const char *kNoCore = "//./Disk/Route1/Device3";

std::vector<SK_DeviceName> names(const std::vector<const char *> &texts)
{
    std::vector<SK_DeviceName> out(texts.size() + 1);
    for (std::size_t i = 0; i < texts.size(); ++i)
        SK_CopyText(out[i], SK_DEVICE_NAME_SIZE, texts[i]);
    return out;
}

TEST(DeviceLists, commonCoreCoreListAndFilter)
{
    EXPECT_EQ(SK_CommonCore(names({kCore1, kCore1Upper}).data(), 2), 1u);
    EXPECT_EQ(SK_CommonCore(names({kCore1, kCore2}).data(), 2), 0u);
    EXPECT_EQ(SK_CommonCore(names({kNoCore}).data(), 1), 0u);
    EXPECT_EQ(SK_CommonCore(names({kCore1}).data(), 0), 0u);
    EXPECT_EQ(SK_CommonCore(nullptr, 1), 0u);

    const SK_CoreEntry core{7, "bus", "Core9"};
    SK_CoreEntry out{};
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 0, names({kCore2, kCore1}).data(), 2), 1u);
    EXPECT_EQ(out.CoreNumber, 1u);
    EXPECT_STREQ(out.BusName, "bus");
    EXPECT_STREQ(out.CoreName, "Core1");
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 36, names({kCore2}).data(), 1), 0u);
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 36, nullptr, 1), 0u);

    auto list = names({kCore1, kCore2, kCore1Upper, kNoCore});
    std::vector<SK_DeviceName> filtered(4);
    ASSERT_EQ(SK_FilterByCore(1, filtered.data(), list.data(), 4), 2u);
    EXPECT_STREQ(filtered[1], kCore1Upper);
    EXPECT_EQ(SK_FilterByCore(2, filtered.data(), list.data(), 4), 1u);
    EXPECT_EQ(SK_FilterByCore(2, list.data(), list.data(), 4), 4u) << "in place: nothing moves";
    EXPECT_STREQ(list[0], kCore1);
}

TEST(DeviceLists, twoListsAreJudgedTogether)
{
    struct Case
    {
        std::vector<const char *> first, second;
        bool firstNull, secondNull;
        std::uint32_t status, core;
    };
    const Case cases[] = {
        {{kCore1, kCore1Upper}, {}, false, false, 1, 1},
        {{kCore1}, {kCore1Upper}, false, false, 1, 1},
        {{}, {}, false, false, 63, 0},                    // both empty
        {{kCore1}, {kCore1}, true, true, 63, 0},          // both null
        {{}, {kCore1}, true, false, 63, 0},               // first null
        {{kCore2}, {}, false, false, 63, 0},              // core two alone
        {{kCore1, kCore2}, {}, false, false, 63, 0},      // two cores in one list
        {{kCore1, kNoCore}, {}, false, false, 63, 0},     // a name without a core
        {{kCore1}, {kCore2}, false, false, 63, 0},        // second names core two only
        {{kCore1}, {kCore1, kCore2}, false, false, 1, 1}, // a mixed second has no core
        {{kCore1, kCore2}, {kCore1}, false, false, 61, 0},
    };
    const SK_CoreEntry core{1, ".", "Core1"};
    for (const Case &c : cases) {
        auto a = names(c.first), b = names(c.second);
        std::uint32_t coreOut = 0;
        const std::uint32_t blocks = SKTL_AllocationCount();
        EXPECT_EQ(SK_ValidateCoreDeviceLists(&core, static_cast<std::uint32_t>(c.first.size()),
                                             static_cast<std::uint32_t>(c.second.size()),
                                             c.firstNull ? nullptr : a.data(),
                                             c.secondNull ? nullptr : b.data(), &coreOut),
                  c.status)
            << "case " << (&c - cases);
        EXPECT_EQ(coreOut, c.core) << "case " << (&c - cases);
        EXPECT_EQ(SKTL_AllocationCount(), blocks) << "the scratch entry is freed on every path";
    }
    std::uint32_t out = 0;
    EXPECT_EQ(SK_ValidateCoreDeviceLists(nullptr, 1, 0, names({kCore1}).data(), nullptr, &out), 7u);
}

// --- the older enumeration ----------------------------------------------------------

class OlderEnumeration : public ScriptedCoreTest
{
protected:
    void SetUp() override
    {
        ScriptedCoreTest::SetUp();
        host->devices.insert("\\\\.\\BKConfig0");
        handle = SKTL_DeviceOpen("\\\\.\\BKConfig0", 5, 3);
        ASSERT_NE(handle, 0u);
    }
    void TearDown() override
    {
        SKTL_DeviceClose(handle);
        ScriptedCoreTest::TearDown();
    }
    // Records: 'd' a 1024-byte disk, 'a' an array of `words` 32-bit words, 'c' the end.
    Bytes image(const std::string &kinds, std::uint32_t words = 200, std::uint16_t device = 5)
    {
        Bytes b(W2KP_IMAGE_SIZE, 0);
        std::size_t at = 512;
        for (char kind : kinds) {
            put32(b, at, kind == 'd' ? 9660 : kind == 'a' ? 9661 : kind == 'c' ? 9662 : 4242);
            put16(b, at + (kind == 'd' ? 12 : 52), device);
            put16(b, at + (kind == 'd' ? 14 : 54), 10);
            put64(b, at + (kind == 'd' ? 28 : 80), 0x1000u + at);
            put32(b, at + 144, kind == 'a' ? words : 0);
            at += kind == 'd' ? 1024 : words * 4;
        }
        return b;
    }
    std::uint32_t run(const Bytes &bytes, std::uint32_t maxRows = 8)
    {
        host->readReplies.push_back({SK_SYSERR_NONE, bytes});
        rows.assign(std::size_t{maxRows} * W2KP_ROW_SIZE + 1, 0xEE);
        return W2KP_EnumerateForCore(handle, scratch, rows.data(), maxRows, &count);
    }
    std::string path(std::uint32_t row) const
    {
        return reinterpret_cast<const char *>(rows.data() + row * W2KP_ROW_SIZE + W2KP_ROW_PATH);
    }

    SK_Handle handle = 0;
    Bytes rows;
    char scratch[80] = {};
    std::uint32_t count = 0;
};

TEST_F(OlderEnumeration, writesOneRowPerDiskAndArrayUntilTheControllerRecord)
{
    ASSERT_EQ(run(image("dac")), 1u);
    ASSERT_EQ(count, 2u);
    EXPECT_EQ(SK_GetU64(rows.data(), 0), 0x1200u);
    EXPECT_EQ(SK_GetU32(rows.data(), 8), W2KP_KIND_DISK);
    EXPECT_EQ(SK_GetU32(rows.data(), 12), 2u) << "route 10 has two octal digits";
    EXPECT_EQ(path(0), "\\\\.\\disk2_1_5");
    EXPECT_EQ(SK_GetU32(rows.data() + 128, 8), W2KP_KIND_ARRAY);
    EXPECT_EQ(path(1), "\\\\.\\array2_1_5");
    EXPECT_EQ(std::string(scratch), path(1));

    const auto writes = host->writes();
    ASSERT_EQ(writes.size(), 1u);
    EXPECT_EQ(writes[0].position, 0u);
    EXPECT_EQ(writes[0].size, 1024u);
    EXPECT_EQ(SK_GetU32(writes[0].written.data(), 4), host->channelId);
    EXPECT_EQ(SK_GetU32(writes[0].written.data(), 32), 4096u);
    EXPECT_EQ(host->transfers.back().position, host->channelId * 512ull);

    ASSERT_EQ(run(image("ac", 200, 65535)), 1u);
    EXPECT_EQ(SK_GetU32(rows.data(), 8), W2KP_KIND_CONFIG);
    EXPECT_EQ(SK_GetU64(rows.data(), 0), 0u);
    EXPECT_EQ(path(0), "\\\\.\\config2_1_0");
}

TEST_F(OlderEnumeration, malformedImagesEndWithAFailureInsteadOfACrash)
{
    EXPECT_EQ(run(image("")), 27u) << "no controller record";
    EXPECT_EQ(run(image("dx")), 27u) << "unknown tag";
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(run(image("a", 0)), 27u) << "zero-length array";
    EXPECT_EQ(run(image("a", 0x10000)), 27u) << "array past the image";
    EXPECT_EQ(run(image("dddc"), 2), 27u) << "more rows than room";
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(rows[2 * W2KP_ROW_SIZE], 0xEE) << "nothing written past maxRows";
    EXPECT_EQ(run(image(std::string(255, 'd')), 300), 27u) << "disks up to the image's end";
    EXPECT_EQ(W2KP_EnumerateForCore(0, nullptr, rows.data(), 1, &count), 7u);
}

// --- malformed images ---------------------------------------------------------------

struct ImageCase
{
    const char *what;
    Bytes image;
    std::uint32_t status, disks, arrays, enclosures;
};

class MalformedImages : public ::testing::TestWithParam<ImageCase>
{
};

TEST_P(MalformedImages, endTheWalkCleanlyAndKeepTheRecordsBefore)
{
    SK_InstallConfigRecords();
    const ImageCase &c = GetParam();
    // An exactly-sized copy, so the sanitizers see any read past the image.
    std::unique_ptr<std::uint8_t[]> bytes(new std::uint8_t[c.image.size() + 1]);
    std::memcpy(bytes.get(), c.image.data(), c.image.size());
    const auto size = static_cast<std::uint32_t>(c.image.size());
    EXPECT_EQ(SK_CheckImage(bytes.get(), size, true), c.status);

    SK_Core core(bytes.get(), size);
    EXPECT_EQ(core.DiskCount, c.disks);
    EXPECT_EQ(core.ArrayCount, c.arrays);
    EXPECT_EQ(core.EnclosureCount, c.enclosures);
    std::string report(SK_REPORT_MIN_SIZE, '\0');
    EXPECT_EQ(SK_BufferPrintConfig(core, &report[0], SK_REPORT_MIN_SIZE, 0, 1, 0), 1u);
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    EXPECT_EQ(SK_ParseConfigText(report.c_str(), report.size(), snapshot.get()), 1u);
    EXPECT_EQ(snapshot->DiskCount, static_cast<int>(c.disks));
}

Bytes cut(const Image &image, std::size_t drop)
{
    Bytes b = image.bytes();
    b.resize(b.size() - drop);
    return b;
}

Bytes withArray(long long length, long long members = -1)
{
    Array a;
    a.lengthOverride = length;
    a.countOverride[1] = members;
    return Image()
        .add(diskRecord(Disk{}, 128))
        .add(arrayRecord(a))
        .add(enclosureRecord(Enclosure{}))
        .bytes();
}

const Bytes kDisk = diskRecord(Disk{}, 128);

INSTANTIATE_TEST_SUITE_P(
    Walk, MalformedImages,
    ::testing::Values(
        ImageCase{"valid", withArray(-1), 1, 1, 1, 1},
        ImageCase{"header only", Image().bytes(), 1, 0, 0, 0},
        ImageCase{"unknown tag ends the list", Image().add(kDisk).word(77).add(kDisk).bytes(), 1, 1,
                  0, 0},
        ImageCase{"stray bytes at the end", cut(Image().add(kDisk).add(kDisk), 126), 1, 1, 0, 0},
        ImageCase{"shorter than its header", Bytes(100, 0), 27, 0, 0, 0},
        ImageCase{"zero-length array", withArray(0), 27, 1, 0, 0},
        ImageCase{"array shorter than its fixed part", withArray(511), 27, 1, 0, 0},
        ImageCase{"array past the image", withArray(0x7FFFFFFF), 27, 1, 0, 0},
        ImageCase{"array cut before its length field",
                  cut(Image().add(kDisk).add(arrayRecord(Array{})), 500), 27, 1, 0, 0},
        ImageCase{"disk running past the image", cut(Image().add(kDisk).add(kDisk), 10), 27, 1, 0,
                  0},
        ImageCase{"array tables past its record", withArray(-1, 40), 27, 1, 1, 1}),
    [](const ::testing::TestParamInfo<ImageCase> &p) { return caseName(p.param.what); });

} // namespace
