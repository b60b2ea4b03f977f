// Record searches, core enumeration, whole-core lookups, device list checks, the older
// enumeration, and the walk over malformed images.

#include "config_fixture.h"

#include <string>
#include <vector>

using namespace images;

namespace {

// --- searches -----------------------------------------------------------------------

class Searches : public ::testing::Test
{
protected:
    void SetUp() override
    {
        SK_InstallConfigRecords();
        Disk nine, ten, zero;
        nine.device = 9;
        nine.id = 0x909;
        ten.device = 10;
        ten.id = 0x1010;
        zero.device = 4;
        zero.id = 0;
        Array a, broken;
        a.device = 5;
        a.id = 0x5555;
        broken.device = 6;
        broken.id = 0x6666;
        broken.countOverride[2] = 3; // parents that aren't there
        Controller c;
        c.id = 0xC1;
        image = Image(1)
                    .add(diskRecord(zero, 128))
                    .add(diskRecord(nine, 128))
                    .add(diskRecord(ten, 128))
                    .add(arrayRecord(broken))
                    .add(arrayRecord(a))
                    .add(controllerRecord(c));
        core = std::make_unique<SK_Core>(image.bytes().data(), image.size());
    }
    Image image;
    std::unique_ptr<SK_Core> core;
};

TEST_F(Searches, namesIgnoreOneTrailingBlankOfTheRecordOnly)
{
    ASSERT_STREQ(core->Disks[1]->Name, "/Route1/Device9 ");
    EXPECT_EQ(SK_FindDiskByName(*core, "/Route1/Device9"), 1u);
    EXPECT_EQ(SK_FindDiskByName(*core, "/Route1/Device9 "), 3u);
    EXPECT_EQ(SK_FindDiskByName(*core, "/Route1/Device9  "), 3u);
    EXPECT_EQ(SK_FindDiskByName(*core, "/Route1/Device10"), 2u);
    EXPECT_EQ(SK_FindDiskByName(*core, "/Route1/Device1"), 3u);
    EXPECT_EQ(SK_FindDiskByName(*core, "/route1/Device9"), 3u) << "bytes compare exactly";
    EXPECT_EQ(SK_FindDiskByName(*core, ""), 3u);
    EXPECT_EQ(SK_FindDiskByName(*core, nullptr), 3u);
}

TEST_F(Searches, idsOfZeroFindNothingAndEmptySlotsAreSkipped)
{
    EXPECT_EQ(core->Disks[0]->ID, 0u);
    EXPECT_EQ(SK_FindDiskById(*core, 0), 3u);
    EXPECT_EQ(SK_FindDiskById(*core, 0x1010), 2u);
    ASSERT_EQ(core->ArrayCount, 2u);
    EXPECT_EQ(core->Arrays[0], nullptr);
    EXPECT_EQ(SK_FindArrayById(*core, 0x6666), 2u);
    EXPECT_EQ(SK_FindArrayById(*core, 0x5555), 1u);
    EXPECT_EQ(SK_FindArrayByName(*core, "/Route0/Device6"), 2u);
    EXPECT_EQ(SK_FindArrayByName(*core, "/Route0/Device5"), 1u);
    EXPECT_EQ(SK_ArrayIdByName(*core, "/Route0/Device5"), 0x5555u);
    EXPECT_EQ(SK_ArrayIdByName(*core, "/Route0/Device7"), 0u);
    EXPECT_EQ(SK_FindControllerById(*core, 0xC1), 0u);
    EXPECT_EQ(SK_FindControllerById(*core, 0), 1u);
}

// --- cores and whole-core lookups ---------------------------------------------------

class CoreLookups : public ScriptedCoreTest
{
protected:
    Image sample()
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
        return Image(1).add(controllerRecord(c)).add(diskRecord(d)).add(arrayRecord(a));
    }
};

TEST_F(CoreLookups, coreListHasTheOneCoreThatOpens)
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

TEST_F(CoreLookups, routesAndSerialsComeFromAFreshCore)
{
    serve(sample(), 5);
    EXPECT_EQ(SK_ApiGetControllerSerial(&entry, 0), 0x5E5Eu);
    EXPECT_EQ(SK_ApiGetControllerSerial(&entry, 1), 0u);
    EXPECT_EQ(SK_ApiGetArrayRoute(&entry, 0xAAAA), 0x20005u);
    EXPECT_EQ(SK_ApiGetDiskRoute(&entry, 0xDDDD), 0x30007u);
    EXPECT_EQ(SK_ApiGetDiskRoute(&entry, 0xAAAA), 0u);
    EXPECT_EQ(SK_ApiGetArrayRoute(nullptr, 0xAAAA), 0u);
    host->devices.clear();
    EXPECT_EQ(SK_ApiGetArrayRoute(&entry, 0xAAAA), 0u);
}

TEST_F(CoreLookups, findsNameAndCoreOfAControllerArrayOrDisk)
{
    SK_CoreEntry found{};
    char name[SK_DEVICE_NAME_SIZE] = {};
    serve(sample(), 12); // one image for the core list, one for the search

    ASSERT_EQ(SK_ApiFindControllerBySerial(&found, 0x5E5E, name), 1u);
    EXPECT_STREQ(name, "Ctl");
    EXPECT_STREQ(found.CoreName, "Core1");
    EXPECT_EQ(SK_ApiFindControllerBySerial(&found, 0x5E5F, name), 64u);

    ASSERT_EQ(SK_ApiFindArrayById(&found, 0xAAAA, name), 1u);
    EXPECT_STREQ(name, "//./Core1/Route2/Device5 ");
    EXPECT_EQ(SK_ApiFindArrayById(&found, 0xDDDD, name), 10u);

    ASSERT_EQ(SK_ApiFindDiskById(&found, 0xDDDD, name), 1u);
    EXPECT_STREQ(name, "//./Core1/Route3/Device7 ");
    EXPECT_EQ(SK_ApiFindDiskById(&found, 0, name), 11u);
    EXPECT_EQ(SK_ApiFindDiskById(nullptr, 1, name), 7u);
    EXPECT_EQ(host->openSessions, 0);
}

// --- device lists -------------------------------------------------------------------

std::vector<SK_DeviceName> names(std::initializer_list<const char *> texts)
{
    std::vector<SK_DeviceName> out(texts.size());
    std::size_t i = 0;
    for (const char *text : texts)
        SK_CopyText(out[i++], SK_DEVICE_NAME_SIZE, text);
    return out;
}

const char *kCore1 = "//./Core1/Route1/Device3";
const char *kCore1Upper = "//./CORE1/Route0/Device2";
const char *kCore2 = "//./Core2/Route1/Device3";
const char *kNoCore = "//./Disk/Route1/Device3";

TEST(DeviceLists, commonCoreNeedsOneNumberThroughout)
{
    auto same = names({kCore1, kCore1Upper});
    EXPECT_EQ(SK_CommonCore(same.data(), 2), 1u);
    auto mixed = names({kCore1, kCore2});
    EXPECT_EQ(SK_CommonCore(mixed.data(), 2), 0u);
    auto none = names({kNoCore});
    EXPECT_EQ(SK_CommonCore(none.data(), 1), 0u);
    EXPECT_EQ(SK_CommonCore(nullptr, 1), 0u);
    EXPECT_EQ(SK_CommonCore(same.data(), 0), 0u);
}

TEST(DeviceLists, coreListIsCoreOneOfTheCallersBusOrNothing)
{
    const SK_CoreEntry core{7, "bus", "Core9"};
    SK_CoreEntry out{};
    auto mixed = names({kCore2, kCore1});
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 0, mixed.data(), 2), 1u);
    EXPECT_EQ(out.CoreNumber, 1u);
    EXPECT_STREQ(out.BusName, "bus");
    EXPECT_STREQ(out.CoreName, "Core1");
    auto second = names({kCore2});
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 36, second.data(), 1), 0u);
    EXPECT_EQ(SK_BuildCoreList(&core, &out, 36, nullptr, 1), 0u);
}

TEST(DeviceLists, filterCopiesTheNamesOfOneCore)
{
    auto list = names({kCore1, kCore2, kCore1Upper, kNoCore});
    std::vector<SK_DeviceName> out(4);
    ASSERT_EQ(SK_FilterByCore(1, out.data(), list.data(), 4), 2u);
    EXPECT_STREQ(out[0], kCore1);
    EXPECT_STREQ(out[1], kCore1Upper);
    EXPECT_EQ(SK_FilterByCore(2, out.data(), list.data(), 4), 1u);
    EXPECT_EQ(SK_FilterByCore(2, list.data(), list.data(), 4), 4u) << "in place: nothing moves";
    EXPECT_STREQ(list[0], kCore1);
}

struct ListCase
{
    const char *what;
    std::vector<const char *> first, second;
    bool firstNull, secondNull;
    std::uint32_t status, core;
};

class ValidateLists : public ::testing::TestWithParam<ListCase>
{
};

TEST_P(ValidateLists, judgesTheTwoListsTogether)
{
    const ListCase &c = GetParam();
    std::vector<SK_DeviceName> a(c.first.size() + 1), b(c.second.size() + 1);
    for (std::size_t i = 0; i < c.first.size(); ++i)
        SK_CopyText(a[i], SK_DEVICE_NAME_SIZE, c.first[i]);
    for (std::size_t i = 0; i < c.second.size(); ++i)
        SK_CopyText(b[i], SK_DEVICE_NAME_SIZE, c.second[i]);
    const SK_CoreEntry core{1, ".", "Core1"};
    std::uint32_t coreOut = 77;
    const std::uint32_t blocks = SKTL_AllocationCount();
    EXPECT_EQ(SK_ValidateCoreDeviceLists(&core, static_cast<std::uint32_t>(c.first.size()),
                                         static_cast<std::uint32_t>(c.second.size()),
                                         c.firstNull ? nullptr : a.data(),
                                         c.secondNull ? nullptr : b.data(), &coreOut),
              c.status);
    EXPECT_EQ(coreOut, c.core);
    EXPECT_EQ(SKTL_AllocationCount(), blocks) << "the scratch entry is freed on every path";
}

std::string listName(const ::testing::TestParamInfo<ListCase> &param)
{
    std::string name = param.param.what;
    for (char &ch : name) {
        if (ch == ' ')
            ch = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ValidateLists,
    ::testing::Values(
        ListCase{"one list of core one", {kCore1, kCore1Upper}, {}, false, false, 1, 1},
        ListCase{"two lists of core one", {kCore1}, {kCore1Upper}, false, false, 1, 1},
        ListCase{"both empty", {}, {}, false, false, 63, 77},
        ListCase{"both null", {kCore1}, {kCore1}, true, true, 63, 77},
        ListCase{"first null", {}, {kCore1}, true, false, 63, 77},
        ListCase{"core two alone", {kCore2}, {}, false, false, 63, 77},
        ListCase{"two cores in the first", {kCore1, kCore2}, {}, false, false, 63, 77},
        ListCase{"name without a core", {kCore1, kNoCore}, {}, false, false, 63, 77},
        ListCase{"second of core two", {kCore1}, {kCore2}, false, false, 63, 77},
        ListCase{"mixed second has no common core", {kCore1}, {kCore1, kCore2}, false, false, 1,
                 1},
        ListCase{"mixed first against a pure second", {kCore1, kCore2}, {kCore1}, false, false,
                 61, 77}),
    listName);

TEST(DeviceListArguments, nullCoreOrResultIsRefused)
{
    auto list = names({kCore1});
    std::uint32_t out = 0;
    const SK_CoreEntry core{1, ".", "Core1"};
    EXPECT_EQ(SK_ValidateCoreDeviceLists(nullptr, 1, 0, list.data(), nullptr, &out), 7u);
    EXPECT_EQ(SK_ValidateCoreDeviceLists(&core, 1, 0, list.data(), nullptr, nullptr), 7u);
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
        image.assign(W2KP_IMAGE_SIZE, 0);
        at = 512;
    }
    void TearDown() override
    {
        SKTL_DeviceClose(handle);
        ScriptedCoreTest::TearDown();
    }
    void disk(std::uint16_t device, std::uint16_t route, std::uint64_t size)
    {
        put32(image, at, 9660);
        put16(image, at + 12, device);
        put16(image, at + 14, route);
        put64(image, at + 28, size);
        at += 1024;
    }
    void array(std::uint16_t device, std::uint16_t route, std::uint64_t size, std::uint32_t words)
    {
        put32(image, at, 9661);
        put32(image, at + 144, words);
        put16(image, at + 52, device);
        put16(image, at + 54, route);
        put64(image, at + 80, size);
        at += words * 4;
    }
    std::uint32_t run(std::uint32_t maxRows = 8)
    {
        host->readReplies.push_back({SK_SYSERR_NONE, image});
        rows.assign(std::size_t{maxRows} * W2KP_ROW_SIZE + 1, 0xEE);
        return W2KP_EnumerateForCore(handle, nullptr, rows.data(), maxRows, &count);
    }
    std::string path(std::uint32_t row) const
    {
        return reinterpret_cast<const char *>(rows.data() + row * W2KP_ROW_SIZE + W2KP_ROW_PATH);
    }

    SK_Handle handle = 0;
    Bytes image, rows;
    std::size_t at = 0;
    std::uint32_t count = 0;
};

TEST_F(OlderEnumeration, writesOneRowPerDiskAndArrayUntilTheControllerRecord)
{
    disk(5, 10, 0x1000);
    array(2, 0, 0x2000, 200);
    array(65535, 3, 0x3000, 160);
    put32(image, at, 9662);
    char scratch[80];
    host->readReplies.push_back({SK_SYSERR_NONE, image});
    rows.assign(8 * W2KP_ROW_SIZE, 0);
    ASSERT_EQ(W2KP_EnumerateForCore(handle, scratch, rows.data(), 8, &count), 1u);
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(SK_GetU64(rows.data(), 0), 0x1000u);
    EXPECT_EQ(SK_GetU32(rows.data(), 8), W2KP_KIND_DISK);
    EXPECT_EQ(SK_GetU32(rows.data(), 12), 2u) << "route 10 has two octal digits";
    EXPECT_EQ(path(0), "\\\\.\\disk2_1_5");
    EXPECT_STREQ(scratch, "\\\\.\\config3_0");
    EXPECT_EQ(SK_GetU32(rows.data() + 128, 8), W2KP_KIND_ARRAY);
    EXPECT_EQ(path(1), "\\\\.\\array0_2");
    EXPECT_EQ(SK_GetU64(rows.data() + 256, 0), 0u);
    EXPECT_EQ(SK_GetU32(rows.data() + 256, 8), W2KP_KIND_CONFIG);
    EXPECT_EQ(path(2), "\\\\.\\config3_0");

    const auto writes = host->writes();
    ASSERT_EQ(writes.size(), 1u);
    EXPECT_EQ(writes[0].position, 0u);
    EXPECT_EQ(writes[0].size, 1024u);
    EXPECT_EQ(SK_GetU32(writes[0].written.data(), 4), host->channelId);
    EXPECT_EQ(SK_GetU32(writes[0].written.data(), 32), 4096u);
    EXPECT_EQ(host->transfers.back().position, host->channelId * 512ull);
    EXPECT_EQ(host->transfers.back().size, W2KP_IMAGE_SIZE);
}

TEST_F(OlderEnumeration, malformedImagesEndWithAFailureInsteadOfACrash)
{
    EXPECT_EQ(run(), SK_STS_OUT_OF_BOUNDS) << "no controller record: the zero tag";

    image.assign(W2KP_IMAGE_SIZE, 0);
    at = 512;
    disk(1, 0, 1);
    put32(image, at, 4242);
    EXPECT_EQ(run(), SK_STS_OUT_OF_BOUNDS) << "unknown tag";
    EXPECT_EQ(count, 1u);

    image.assign(W2KP_IMAGE_SIZE, 0);
    at = 512;
    array(1, 0, 1, 0);
    EXPECT_EQ(run(), SK_STS_OUT_OF_BOUNDS) << "zero-length array";

    image.assign(W2KP_IMAGE_SIZE, 0);
    at = 512;
    array(1, 0, 1, 0x10000);
    EXPECT_EQ(run(), SK_STS_OUT_OF_BOUNDS) << "array past the image";

    image.assign(W2KP_IMAGE_SIZE, 0);
    at = 512;
    for (int i = 0; i < 3; ++i)
        disk(1, 0, 1);
    put32(image, at, 9662);
    EXPECT_EQ(run(2), SK_STS_OUT_OF_BOUNDS) << "more rows than room";
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(rows[2 * W2KP_ROW_SIZE], 0xEE) << "nothing written past maxRows";

    // Disks of 1024 bytes fill the image to its end without a controller record.
    image.assign(W2KP_IMAGE_SIZE, 0);
    for (at = 512; at + 1024 <= W2KP_IMAGE_SIZE;)
        disk(1, 0, 1);
    EXPECT_EQ(run(300), SK_STS_OUT_OF_BOUNDS);

    EXPECT_EQ(W2KP_EnumerateForCore(0, nullptr, rows.data(), 1, &count), 7u);
}

// --- malformed images ---------------------------------------------------------------

struct ImageCase
{
    const char *what;
    Bytes image;
    std::uint32_t status;
    std::uint32_t disks, arrays, enclosures;
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

Array lengthOf(long long length)
{
    Array a;
    a.lengthOverride = length;
    return a;
}

std::string imageName(const ::testing::TestParamInfo<ImageCase> &param)
{
    std::string name = param.param.what;
    for (char &ch : name) {
        if (!std::isalnum(static_cast<unsigned char>(ch)))
            ch = '_';
    }
    return name;
}

const Bytes kDisk = diskRecord(Disk{}, 128);
const Bytes kEnclosure = enclosureRecord(Enclosure{});

INSTANTIATE_TEST_SUITE_P(
    Walk, MalformedImages,
    ::testing::Values(
        ImageCase{"valid", Image().add(kDisk).add(arrayRecord(Array{})).add(kEnclosure).bytes(),
                  1, 1, 1, 1},
        ImageCase{"header only", Image().bytes(), 1, 0, 0, 0},
        ImageCase{"unknown tag ends the list", Image().add(kDisk).word(77).add(kDisk).bytes(), 1,
                  1, 0, 0},
        ImageCase{"zero tag ends the list", Image().add(kDisk).word(0).add(kDisk).bytes(), 1, 1,
                  0, 0},
        ImageCase{"two stray bytes at the end", [] {
                      Bytes b = Image().add(kDisk).bytes();
                      b.push_back(1);
                      b.push_back(2);
                      return b;
                  }(),
                  1, 1, 0, 0},
        ImageCase{"shorter than its header", Bytes(100, 0), 27, 0, 0, 0},
        ImageCase{"zero-length array", Image().add(kDisk).add(arrayRecord(lengthOf(0))).bytes(),
                  27, 1, 0, 0},
        ImageCase{"array shorter than its fixed part",
                  Image().add(kDisk).add(arrayRecord(lengthOf(511))).add(kEnclosure).bytes(), 27,
                  1, 0, 0},
        ImageCase{"array past the image",
                  Image().add(kEnclosure).add(arrayRecord(lengthOf(0x7FFFFFFF))).bytes(), 27, 0,
                  0, 1},
        ImageCase{"array cut before its length field",
                  cut(Image().add(kDisk).add(arrayRecord(Array{})), 600 - 100), 27, 1, 0, 0},
        ImageCase{"disk running past the image", cut(Image().add(kDisk).add(kDisk), 10), 27, 1, 0,
                  0},
        ImageCase{"array tables past its record", [] {
                      Array a;
                      a.countOverride[1] = 40;
                      return Image().add(arrayRecord(a)).add(kDisk).bytes();
                  }(),
                  27, 1, 1, 0}),
    imageName);

} // namespace
