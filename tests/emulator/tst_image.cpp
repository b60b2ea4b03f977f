// The configuration image, read back at the documented offsets with plain byte access:
// no console reader takes part, so a wrong offset on either side shows up here.

#include "driver/sk_types.h"
#include "emulator/emulator.h"

#include <gtest/gtest.h>

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

std::string text(const std::vector<std::uint8_t> &image, std::size_t at, std::size_t width)
{
    std::string s(reinterpret_cast<const char *>(image.data() + at), width);
    return s.substr(0, s.find('\0'));
}

// Offsets of the records in the image of smallModel(): the core's device, the
// controller, three disks, the enclosure, the array.
constexpr std::size_t kCore = 512, kController = 768, kDisk0 = 904, kEnclosure = 904 + 3 * 256,
                      kArray = kEnclosure + 64;

TEST(Image, headerCarriesTheGenerationAndTheRecordsFollowInOrder)
{
    const auto image = writeImage(smallModel(), ImageOptions{false, 9});
    ASSERT_EQ(image.size(), kArray + 512 + 2 * 64 + 16);
    EXPECT_EQ(SK_GetU64(image.data(), 52), 0x1122334455ull);
    EXPECT_EQ(SK_GetU32(image.data(), 4), 9u);
    EXPECT_EQ(SK_GetU32(image.data(), kCore), 9660u);
    EXPECT_EQ(SK_GetU32(image.data(), kController), 9662u);
    EXPECT_EQ(SK_GetU32(image.data(), kDisk0), 9660u);
    EXPECT_EQ(SK_GetU32(image.data(), kEnclosure), 9663u);
    EXPECT_EQ(SK_GetU32(image.data(), kArray), 9661u);
}

TEST(Image, coreDeviceComesFirstWithTheBuildText)
{
    const auto image = writeImage(smallModel(), {});
    EXPECT_EQ(SK_GetU32(image.data(), kCore + 36), 4609u);
    EXPECT_EQ(SK_GetU16(image.data(), kCore + 12), 0u);
    EXPECT_EQ(text(image, kCore + 136, 64), "SKRAID test build 77");
}

TEST(Image, controllerFieldsSitAtTheirOffsets)
{
    const auto image = writeImage(smallModel(), {});
    const std::uint8_t *r = image.data() + kController;
    EXPECT_EQ(SK_GetU64(r, 4), 0xC0u);
    EXPECT_EQ(SK_GetU16(r, 14), 1u);
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(r + 36), 16), "CTRL-NAME-16CHAR");
    EXPECT_EQ(text(image, kController + 56, 32), "BIOS");
    EXPECT_EQ(SK_GetU64(r, 96), 0xABCDEFu);
    EXPECT_EQ(SK_GetU32(r, 104), 6u);
    EXPECT_EQ(SK_GetU16(r, 108), 0x1F3Cu);
    EXPECT_EQ(SK_GetU16(r, 110), 0x43B6u);
    EXPECT_EQ(SK_GetU32(r, 112), 0u);
    EXPECT_EQ(SK_GetU32(r, 132), 0x17u);
}

TEST(Image, diskFieldsSitAtTheirOffsets)
{
    const auto image = writeImage(smallModel(), {});
    const std::uint8_t *r = image.data() + kDisk0 + 256; // the second disk, port 1
    EXPECT_EQ(SK_GetU64(r, 4), 0xD1u);
    EXPECT_EQ(SK_GetU16(r, 12), 2u); // port + 1
    EXPECT_EQ(SK_GetU16(r, 14), 1u); // controller route
    EXPECT_EQ(SK_GetU64(r, 28), 100000u);
    EXPECT_EQ(SK_GetU32(r, 36), 4608u);
    EXPECT_EQ(SK_GetU32(r, 44), 12288u);
    EXPECT_EQ(SK_GetU32(r, 48), 0u);
    EXPECT_EQ(SK_GetU32(r, 84), code::FeatureWriteCache);
    EXPECT_EQ(SK_GetU32(r, 88), code::PortSata | code::Port6G);
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(r + 128), 8), "FW123456");
    EXPECT_EQ(text(image, kDisk0 + 256 + 136, 40), "MODEL-1");
    EXPECT_EQ(text(image, kDisk0 + 256 + 176, 20), "SERIAL1");
    EXPECT_EQ(r[196], '0');
    EXPECT_EQ(r[197], '1');
    // Disk 1 holds one extent from sector 8; the rest of its usable area is free.
    const std::uint64_t usable = 100000 - kMetadataSectors;
    EXPECT_EQ(SK_GetU64(r, 200), usable - 40008);
    EXPECT_EQ(SK_GetU64(r, 208), usable - 40000);
    EXPECT_EQ(text(image, kDisk0 + 256 + 216, 8), "ATA");
    EXPECT_EQ(SK_GetU32(image.data(), kDisk0 + 2 * 256 + 48), 256u); // the global spare
}

TEST(Image, enclosureFieldsSitAtTheirOffsets)
{
    const auto image = writeImage(smallModel(), {});
    EXPECT_EQ(SK_GetU64(image.data(), kEnclosure + 4), 0xE0u);
    EXPECT_EQ(text(image, kEnclosure + 20, 8), "VENDOR");
    EXPECT_EQ(text(image, kEnclosure + 28, 16), "PRODUCT");
    EXPECT_EQ(text(image, kEnclosure + 44, 4), "R1");
    EXPECT_EQ(text(image, kEnclosure + 48, 8), "SN1");
}

TEST(Image, arrayFixedPartAndTablesSitAtTheirOffsets)
{
    const auto image = writeImage(smallModel(), {});
    const std::uint8_t *r = image.data() + kArray;
    EXPECT_EQ(SK_GetU32(r, 8), 512u);
    EXPECT_EQ(SK_GetU32(r, 12), 7158u);
    EXPECT_EQ(SK_GetU32(r, 16), 21336u);
    EXPECT_EQ(SK_GetU32(r, 24), 41377u);
    EXPECT_EQ(SK_GetU64(r, 44), 0xA1u);
    EXPECT_EQ(SK_GetU16(r, 52), 5u);
    EXPECT_EQ(SK_GetU64(r, 80), 40000u);
    EXPECT_EQ(SK_GetU64(r, 96), 9u);
    EXPECT_EQ(SK_GetU32(r, 104), 2u);
    EXPECT_EQ(SK_GetU32(r, 108), 1u);
    EXPECT_EQ(SK_GetU32(r, 112), 2u);
    EXPECT_EQ(SK_GetU32(r, 116), 0u);
    EXPECT_EQ(SK_GetU32(r, 128), 0xC0000000u);
    EXPECT_EQ(SK_GetU32(r, 140), 1u);
    EXPECT_EQ(SK_GetU32(r, 144), 512u + 2 * 64 + 16);
    EXPECT_EQ(SK_GetU32(r, 148), 12345u);
    EXPECT_EQ(SK_GetU32(r, 152), 0x200u);
    EXPECT_EQ(SK_GetU32(r, 168), 70u);
    // The display name fills its 32 bytes and is not terminated.
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(r + 176), 32),
              "Thirty-two bytes of a long name!");
    EXPECT_EQ(SK_GetU32(r, 208), 1u);
    EXPECT_EQ(SK_GetU32(r, 252), SK_GetU32(r, 260)); // no substitutes for plain members
    EXPECT_EQ(SK_GetU32(r, 272), 2u);

    const std::uint8_t *member1 = r + 512 + 64;
    EXPECT_EQ(SK_GetU64(member1, 0), 0xD1u);
    EXPECT_EQ(SK_GetU16(member1, 8), 2u);
    EXPECT_EQ(SK_GetU16(member1, 10), 1u);
    EXPECT_EQ(SK_GetU64(member1, 16), 8u);
    EXPECT_EQ(SK_GetU64(member1, 24), 40000u);
    EXPECT_EQ(SK_GetU32(member1, 48), code::MemberFailed);
    const std::uint8_t *spare = r + 512 + 128;
    EXPECT_EQ(SK_GetU64(spare, 0), 0xD2u);
    EXPECT_EQ(SK_GetU16(spare, 8), 3u);
}

TEST(Image, previousFormatHasShortDiskRecordsWithoutTexts)
{
    const auto image = writeImage(smallModel(), ImageOptions{true, 0});
    const std::size_t disk0 = 768 - 128 + 136; // core record is 128 bytes too
    EXPECT_EQ(SK_GetU32(image.data(), 512 + 128), 9662u);
    EXPECT_EQ(SK_GetU32(image.data(), disk0), 9660u);
    EXPECT_EQ(SK_GetU32(image.data(), disk0 + 128), 9660u);
    EXPECT_EQ(SK_GetU64(image.data(), disk0 + 4), 0xD0u);
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
    const auto image = writeImage(m, {});
    const std::size_t second = kArray + 512 + 2 * 64;
    EXPECT_EQ(SK_GetU32(image.data(), second), 9661u);
    EXPECT_EQ(SK_GetU16(image.data(), kArray + 52), SK_GetU16(image.data(), second + 52));
    EXPECT_EQ(SK_GetU32(image.data(), second + 108), 3u);
    EXPECT_EQ(SK_GetU64(image.data(), second + 80), 120000u);
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
    const auto image = writeImage(m, {});
    const std::size_t at = image.size() - (512 + 2 * 64);
    EXPECT_EQ(SK_GetU64(image.data(), at + 252), 0xA1u);
    EXPECT_EQ(SK_GetU64(image.data(), at + 260), 0xA2u);
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
