// The configuration image, read back at the documented offsets with plain byte access:
// no console reader takes part, so a wrong offset on either side shows up here.

#include "driver/sk_types.h"
#include "emulator/emulator.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

using namespace sk_emu;

namespace {

Model smallModel()
{
    Model m;
    m.generation = 0x1122334455ull;
    m.host.driverBuild = "SKRAID test build 77";
    Controller c;
    c.id = 0xC0;
    c.name = "CTRL-NAME-16CHAR";
    c.biosBuild = "BIOS";
    c.serial = 0xABCDEF;
    c.ports = 6;
    c.pciVendor = 0x1F3C;
    c.pciDevice = 0x43B6;
    c.pciLocation = 0x17;
    m.controllers.push_back(c);
    for (std::uint32_t port = 0; port < 3; ++port) {
        Disk d;
        d.id = 0xD0 + port;
        d.port = port;
        d.capacity = 100000;
        d.portType = code::PortSata | code::Port6G;
        d.features = code::FeatureWriteCache;
        d.model = "MODEL-" + std::to_string(port);
        d.serial = "SERIAL" + std::to_string(port);
        d.firmware = "FW123456"; // fills its 8 bytes: no terminator
        d.vendor = "ATA";
        m.disks.push_back(d);
    }
    m.disks[2].globalSpare = true;
    Enclosure e;
    e.id = 0xE0;
    e.slot = 2;
    e.vendor = "VENDOR";
    e.product = "PRODUCT";
    e.revision = "R1";
    e.serial = "SN1";
    m.enclosures.push_back(e);

    Array a;
    a.id = 0xA1;
    a.route = 5;
    a.name = "Thirty-two bytes of a long name!";
    a.layout.type = code::TypeMirrorStripe;
    a.layout.firstCount = 1;
    a.layout.secondCount = 2;
    a.layout.capacity = 40000;
    a.layout.members = {Member{0xD0, 0, 40000, 0, 40000, 0},
                        Member{0xD1, 8, 40000, 8, 40000, code::MemberFailed}};
    a.spares = {0xD2};
    a.task = Task{code::TaskRestore, code::TaskStarted, 12345};
    a.priority = 70;
    a.attributes = code::AttributeHidden;
    a.cachePolicy = code::CacheRead | code::CacheWrite;
    a.cacheTagSize = 2;
    a.referenceCount = 1;
    a.generation = 9;
    m.arrays.push_back(a);
    return m;
}

using Image = std::vector<std::uint8_t>;

// Checks the fields of the record at `record`, written as "offset[kind]=value": no kind
// a u32, w a u16, q a u64.
void expectFields(const Image &image, std::size_t record, const std::string &fields)
{
    std::istringstream in(fields);
    for (std::string token; in >> token;) {
        std::size_t end = 0;
        const std::size_t at = record + std::stoul(token, &end);
        const std::uint64_t want = std::stoull(token.substr(token.find('=') + 1), nullptr, 0);
        const std::uint64_t got = token[end] == 'w'   ? SK_GetU16(image.data(), at)
                                  : token[end] == 'q' ? SK_GetU64(image.data(), at)
                                                      : SK_GetU32(image.data(), at);
        EXPECT_EQ(got, want) << "record at " << record << ": " << token;
    }
}

// A text field, cut at its first zero byte or the whole width when it fills it.
void expectText(const Image &image, std::size_t at, std::size_t width, const char *value)
{
    const std::string s(reinterpret_cast<const char *>(image.data() + at), width);
    EXPECT_EQ(s.substr(0, s.find('\0')), value) << "text at " << at;
}

// Offsets of the records in the image of smallModel(): the core's device, the
// controller, three disks, the enclosure, the array.
constexpr std::size_t kCore = 512, kController = 768, kDisk0 = 904, kEnclosure = 904 + 3 * 256,
                      kArray = kEnclosure + 64;

TEST(Image, headerCarriesTheGenerationAndTheRecordsFollowInOrder)
{
    const Image image = writeImage(smallModel(), ImageOptions{false, 9});
    ASSERT_EQ(image.size(), kArray + 512 + 2 * 64 + 16);
    expectFields(image, 0, "52q=0x1122334455 4=9 512=9660 768=9662 904=9660 1672=9663 1736=9661");
    // The core's own device comes first, with the build text.
    expectFields(image, kCore, "36=4609 12w=0");
    expectText(image, kCore + 136, 64, "SKRAID test build 77");
}

TEST(Image, deviceRecordFieldsSitAtTheirOffsets)
{
    const Image image = writeImage(smallModel(), {});
    expectFields(image, kController,
                 "4q=0xC0 14w=1 96q=0xABCDEF 104=6 108w=0x1F3C 110w=0x43B6 112=0 132=0x17");
    expectText(image, kController + 36, 16, "CTRL-NAME-16CHAR");
    expectText(image, kController + 56, 32, "BIOS");

    // The second disk, port 1 (device route 2): it holds one extent of 40000 sectors from
    // sector 8; of its usable 97952 the largest free run is 57944, the total 57952.
    const std::size_t disk1 = kDisk0 + 256;
    expectFields(image, disk1,
                 "4q=0xD1 12w=2 14w=1 28q=100000 36=4608 44=12288 48=0 84=0x400000 88=0x104 "
                 "200q=57944 208q=57952");
    expectText(image, disk1 + 128, 8, "FW123456"); // fills its 8 bytes: unterminated
    expectText(image, disk1 + 136, 40, "MODEL-1");
    expectText(image, disk1 + 176, 20, "SERIAL1");
    expectText(image, disk1 + 196, 2, "01"); // controller and channel digits
    expectText(image, disk1 + 216, 8, "ATA");
    expectFields(image, kDisk0 + 2 * 256, "48=256"); // the global spare

    expectFields(image, kEnclosure, "4q=0xE0");
    expectText(image, kEnclosure + 20, 8, "VENDOR");
    expectText(image, kEnclosure + 28, 16, "PRODUCT");
    expectText(image, kEnclosure + 44, 4, "R1");
    expectText(image, kEnclosure + 48, 8, "SN1");
}

TEST(Image, arrayFixedPartAndTablesSitAtTheirOffsets)
{
    const Image image = writeImage(smallModel(), {});
    // No substitutes for plain members: 252 and 260 stay zero.
    expectFields(image, kArray,
                 "8=512 12=7158 16=21336 24=41377 44q=0xA1 52w=5 80q=40000 96q=9 104=2 108=1 "
                 "112=2 116=0 128=0xC0000000 140=1 144=656 148=12345 152=0x200 168=70 208=1 "
                 "252q=0 260q=0 272=2");
    // The display name fills its 32 bytes and is not terminated.
    expectText(image, kArray + 176, 32, "Thirty-two bytes of a long name!");
    expectFields(image, kArray + 512 + 64,
                 "0q=0xD1 8w=2 10w=1 16q=8 24q=40000 48=0x10"); // member 1
    expectFields(image, kArray + 512 + 128, "0q=0xD2 8w=3");    // the spare
}

TEST(Image, previousFormatHasShortDiskRecordsWithoutTexts)
{
    // The core record is 128 bytes too: the controller at 640, the disks from 776.
    expectFields(writeImage(smallModel(), ImageOptions{true, 0}), 0,
                 "640=9662 776=9660 904=9660 780q=0xD0");
}

TEST(Image, arrayInTransformIsTwoRecordsWithOneDeviceNumber)
{
    Model m = smallModel();
    Layout target = m.arrays[0].layout;
    target.type = code::TypeMirrorStripe;
    target.firstCount = 3;
    target.secondCount = 1;
    target.members.push_back(Member{0xD2, 0, 40000, 0, 40000, 0});
    target.capacity = 120000;
    m.arrays[0].target = target;
    m.arrays[0].spares.clear();
    // The second record follows the first's fixed part and two members, on route 5 too.
    expectFields(writeImage(m, {}), kArray + 512 + 2 * 64, "0=9661 52w=5 108=3 80q=120000");
}

TEST(Image, tieredArrayCarriesItsMemberArraysAsSubstitutes)
{
    Model m = smallModel();
    Array tier;
    tier.id = 0xA9;
    tier.route = 9;
    tier.layout.type = code::TypeTier;
    tier.layout.firstCount = 2;
    tier.layout.secondCount = 1;
    tier.layout.members = {Member{0xA1, 0, 1, 0, 1, 0}, Member{0xA2, 0, 1, 0, 1, 0}};
    m.arrays.push_back(tier);
    const Image image = writeImage(m, {});
    expectFields(image, image.size() - (512 + 2 * 64), "252q=0xA1 260q=0xA2");
}

TEST(Image, neverPassesSixtyFourKilobytes)
{
    Model m = smallModel();
    for (std::uint16_t route = 10; route < 200; ++route) {
        Array a = m.arrays[0];
        a.id = 0x1000 + route;
        a.route = route;
        m.arrays.push_back(a);
    }
    const auto image = writeImage(m, {});
    EXPECT_LE(image.size(), 0x10000u);
    EXPECT_GT(image.size(), 0x10000u - 656);
}

} // namespace
