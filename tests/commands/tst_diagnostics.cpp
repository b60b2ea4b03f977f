// The statistics report, the trace and driver queries, and firmware images and blocks.

#include "command_fixture.h"

#include <regex>
#include <sstream>

using namespace cmdtest;

namespace {

std::vector<std::string> splitLines(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// What the status bar takes from a line: the first run of digits, or the first decimal.
std::string firstMatch(const std::string &line, const char *pattern)
{
    std::smatch m;
    return std::regex_search(line, m, std::regex(pattern)) ? m[1].str() : "none";
}
std::uint64_t firstInteger(const std::string &line)
{
    return std::stoull("0" + firstMatch(line, "(\\d+)"));
}
double firstDecimal(const std::string &line)
{
    return std::stod("0" + firstMatch(line, "(\\d+\\.\\d+)"));
}

// A statistics reply with a known value in every place the report reads.
std::vector<std::uint8_t> knownRecord()
{
    std::vector<std::uint8_t> r(8192, 0);
    std::memcpy(r.data() + 512, "SKRAID build text thirty-two chr", 32); // fills the field
    std::memcpy(r.data() + 544, "LAB RAID", 8);
    const std::uint64_t wide[7] = {1953 * 10 + 5, 1953 * 20, 5859, 3906, 1953, 0, 536870912};
    for (int i = 0; i < 7; ++i)
        SK_PutU64(r.data(), 576 + 8 * i, wide[i]);
    for (std::uint32_t i = 0; i < 51; ++i)
        SK_PutU32(r.data(), 632 + 4 * i, 1000 + i);
    SK_PutU32(r.data(), 632, 1);     // C0: PCI
    SK_PutU32(r.data(), 632 + 4, 0); // C1: debug off
    SK_PutU32(r.data(), 632 + 4 * 28, 0xABCD);
    for (std::uint32_t i = 0; i < 32; ++i)
        SK_PutU32(r.data(), 836 + 4 * i, 2000 + i);
    for (std::uint32_t i = 0; i < 52; ++i)
        SK_PutU32(r.data(), 964 + 4 * i, 3000 + i);
    return r;
}

TEST(StatisticsReport, placesEveryFigureOnItsLine)
{
    const std::vector<std::uint8_t> record = knownRecord();
    char text[SK_STATS_TEXT_SIZE];
    EXPECT_EQ(SK_FormatStatsReport(record.data(), text, sizeof text), 90u);
    const std::vector<std::string> lines = splitLines(text);
    ASSERT_EQ(lines.size(), 90u);

    const std::vector<std::pair<int, std::string>> expected = {
        // An unterminated 32-character text, megabytes from sectors, throughput, the
        // queue heads in hex, the indexed latencies and each table's last line.
        {0, "BUILD:                        SKRAID build text thirty-two chr"},
        {2, "RunMode:                      PCI"},
        {4, "HostTotalMB:                  10"},
        {6, "TotalBusR/W:                  5.00 (3.00/2.00)"},
        {8, "BusMB/CoreMB:                 20/10"},
        {34, "pLockWaitingQueueHead:        0000abcd"},
        {37, "pIocWaitingQueueHeadReserved: 00000407"},
        {51, "PagePromoteCount:             1045"},
        {73, "FlushResourcePoolAccessed:    2021"},
        {77, "WorstLatencyLower[ 0]:        3003"},
        {78, "WorstLatencyLower[ 1]:        3004"},
        {89, "ReadCacheStrategy:            3015"},
    };
    for (const auto &[line, want] : expected)
        EXPECT_EQ(lines[static_cast<std::size_t>(line)], want) << "line " << line;
    for (const std::string &line : lines) {
        ASSERT_GT(line.size(), 30u) << line;
        EXPECT_NE(line[30], ' ') << "every value starts at column 30: " << line;
    }

    // A buffer too small for the next line ends the report before it.
    char small[100];
    EXPECT_EQ(SK_FormatStatsReport(record.data(), small, sizeof small), 1u);
    EXPECT_EQ(std::strlen(small), 30 + 32 + 1u);
}

TEST_F(CommandTest, theStatisticsReportReadsAsTheStatusBarReadsIt)
{
    char text[SK_STATS_TEXT_SIZE];
    ASSERT_EQ(SK_BufferPrintApiGetStats(&core, text, 9, 1, 0), 1u); // start an interval
    clock->advance(3000);

    // The raw record of the same moment: the clock stands still between the reads.
    SKTL_AlignedBuffer raw(8192, "test");
    {
        SK_Core open(".", "Core1", 0);
        ASSERT_EQ(open.SK_ConfigRead(raw.data(), 8192, SK_READ_STATS, 0), 1u);
    }
    ASSERT_EQ(SK_BufferPrintApiGetStats(&core, text, 9, 1, 0), 1u);
    const std::vector<std::string> lines = splitLines(text);
    ASSERT_EQ(lines.size(), 90u);
    EXPECT_EQ(only(4103).u32(32), 4103u);
    EXPECT_EQ(recorder->withCode(4104).size(), 2u);

    const std::uint8_t *r = raw.data();
    const auto wide = [r](int i) { return SK_GetU64(r, 576 + 8 * static_cast<std::size_t>(i)); };
    EXPECT_EQ(firstInteger(lines[4]), wide(0) / 1953);
    EXPECT_EQ(firstInteger(lines[5]), wide(1) / 1953);
    EXPECT_NEAR(firstDecimal(lines[6]), (wide(2) + wide(3)) / 1953.0, 0.006);
    EXPECT_NEAR(firstDecimal(lines[7]), (wide(4) + wide(5)) / 1953.0, 0.006);
    EXPECT_GT(firstDecimal(lines[6]), 0.0) << "three seconds of workload";
    EXPECT_EQ(firstInteger(lines[11]), SK_GetU32(r, 632 + 4 * 6));
    EXPECT_EQ(firstInteger(lines[14]), SK_GetU32(r, 632 + 4 * 9));
    EXPECT_GT(firstInteger(lines[14]), 0u);
    EXPECT_EQ(lines[1], "Hardware:                     LAB RAID");

    // The reset started a new interval: nothing has happened in it yet.
    ASSERT_EQ(SK_BufferPrintApiGetStats(&core, text, 9, 0, 0), 1u);
    EXPECT_EQ(firstDecimal(splitLines(text)[6]), 0.0);
}

// --- Firmware ------------------------------------------------------------------------

// An image with one PCI pair and one region of `regionSize` bytes, balanced to sum 0.
std::vector<std::uint8_t> firmwareImage(std::uint16_t vendor, std::uint16_t device,
                                        std::uint32_t regionSize)
{
    const std::uint32_t regionAt = 16 + 4 + 12;
    std::vector<std::uint8_t> image(regionAt + ((regionSize + 3) & ~3u), 0);
    SK_PutU32(image.data(), 0, SK_FIRMWARE_MAGIC);
    SK_PutU32(image.data(), 4, 1);
    SK_PutU32(image.data(), 8, 1);
    SK_PutU16(image.data(), 16, vendor);
    SK_PutU16(image.data(), 18, device);
    SK_PutU32(image.data(), 20, 0x100000);
    SK_PutU32(image.data(), 24, regionAt);
    SK_PutU32(image.data(), 28, regionSize);
    for (std::uint32_t i = 0; i < regionSize; ++i)
        image[regionAt + i] = static_cast<std::uint8_t>(i * 7);
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < image.size(); at += 4)
        sum += SK_GetU32(image.data(), at);
    SK_PutU32(image.data(), 12, 0u - sum);
    return image;
}

TEST_F(CommandTest, firmwareImagesAreCheckedAndMatchedToTheController)
{
    const char *check = "123456789";
    EXPECT_EQ(SK_Crc32(reinterpret_cast<const std::uint8_t *>(check), 9), 0xCBF43926u);

    std::vector<std::uint8_t> image = firmwareImage(kLabPciVendor, kLabPciDevice, 100);
    const auto size = static_cast<std::uint32_t>(image.size());
    EXPECT_STATUS(1, SK_CheckFirmwareImage(image.data(), size));
    SK_FirmwareRegion region{};
    ASSERT_TRUE(SK_FirmwareImageRegion(image.data(), size, 0, &region));
    EXPECT_EQ(region.Address, 0x100000u);
    EXPECT_EQ(region.Size, 100u);
    EXPECT_FALSE(SK_FirmwareImageRegion(image.data(), size, 1, &region));

    EXPECT_STATUS(21, SK_CheckFirmwareImage(image.data(), size - 2)) << "not whole words";
    std::vector<std::uint8_t> bad = image;
    bad[40] ^= 1;
    EXPECT_STATUS(72, SK_CheckFirmwareImage(bad.data(), size));
    bad = image;
    SK_PutU32(bad.data(), 0, 0x9012001);
    SK_PutU32(bad.data(), 12, SK_GetU32(bad.data(), 12) - 1);
    EXPECT_STATUS(21, SK_CheckFirmwareImage(bad.data(), size)) << "wrong magic";
    bad = image;
    SK_PutU32(bad.data(), 28, 101); // the region runs past the end
    SK_PutU32(bad.data(), 12, SK_GetU32(bad.data(), 12) - 1);
    EXPECT_STATUS(21, SK_CheckFirmwareImage(bad.data(), size));

    // One of the image's PCI pairs must be the controller's.
    EXPECT_STATUS(1, SK_ApiUpdateFirmwareInit(&core, kControllerId, image.data(),
                                              static_cast<std::uint32_t>(image.size())));
    image = firmwareImage(kLabPciVendor, 0x4000, 100);
    EXPECT_STATUS(73, SK_ApiUpdateFirmwareInit(&core, kControllerId, image.data(),
                                               static_cast<std::uint32_t>(image.size())));
}

TEST_F(CommandTest, aRegionGoesInNumberedBlocksWithOneCrc)
{
    accept(37);
    std::vector<std::uint8_t> region(5000);
    for (std::size_t i = 0; i < region.size(); ++i)
        region[i] = static_cast<std::uint8_t>(i % 251);
    EXPECT_STATUS(
        1, SK_ApiUpdateFirmwareRegion(&core, kControllerId, 0x100000, region.data(), 5000, 1));
    const std::vector<RecordedRequest> blocks = recorder->withCode(37);
    ASSERT_EQ(blocks.size(), 2u);
    const std::uint32_t crc = SK_Crc32(region.data(), region.size());
    for (std::uint32_t b = 0; b < 2; ++b) {
        EXPECT_EQ(blocks[b].u32(48), crc);
        EXPECT_EQ(blocks[b].u32(52), b);
        EXPECT_EQ(blocks[b].u32(56), 2u);
        EXPECT_EQ(blocks[b].u32(60), 4096 * b);
        EXPECT_EQ(blocks[b].u32(64), b == 0 ? 4096u : 904u);
        EXPECT_EQ(blocks[b].u32(68), b);
        EXPECT_EQ(blocks[b].bytes[1024], region[4096 * b]);
    }
    EXPECT_EQ(blocks[1].bytes[1024 + 903], region[4999]);
    EXPECT_EQ(blocks[1].bytes[1024 + 904], 0);
}

TEST_F(CommandTest, aRefusedOrOversizedRegionStops)
{
    std::vector<std::uint8_t> region(9000, 1);
    EXPECT_STATUS(20, SK_ApiUpdateFirmwareRegion(&core, kControllerId, 0, region.data(), 9000, 1));
    EXPECT_EQ(recorder->withCode(37).size(), 1u) << "the blocks after a refused one stay";
    recorder->opens = 0;
    std::vector<std::uint8_t> big(SK_HDD_FIRMWARE_MAX + 1);
    EXPECT_STATUS(71, SK_ApiUpdateFirmwareRegion(&core, kControllerId, 0, big.data(),
                                                 SK_FIRMWARE_REGION_MAX + 1, 1));
    EXPECT_STATUS(71, SK_ApiUpdateHDDFirmware(&core, diskName(5).c_str(), big.data(),
                                              SK_HDD_FIRMWARE_MAX + 1, 1));
    EXPECT_EQ(recorder->opens, 0) << "oversized: nothing sent";
}

TEST_F(CommandTest, diskFirmwareCarriesOneCrcAndFirmwareIsReadBack)
{
    accept(49);
    std::vector<std::uint8_t> image(4096 * 3, 0x5C);
    image[5000] = 1;
    EXPECT_STATUS(1, SK_ApiUpdateHDDFirmware(&core, diskName(5).c_str(), image.data(),
                                             static_cast<std::uint32_t>(image.size()), 1));
    const std::vector<RecordedRequest> blocks = recorder->withCode(49);
    ASSERT_EQ(blocks.size(), 3u);
    for (const RecordedRequest &b : blocks)
        EXPECT_EQ(b.u32(48), SK_Crc32(image.data(), image.size()));
    EXPECT_EQ(blocks[2].u32(68), 1u);
    EXPECT_EQ(blocks[1].bytes[1024 + 5000 - 4096], 1);

    // And firmware is read back from the start of the reply.
    host->setCommandHandler(
        4117, [](sk_emu::Host &, sk_emu::Model &, std::uint8_t *reply, std::uint32_t) {
            const std::uint32_t size = SK_GetU32(reply, 48);
            for (std::uint32_t i = 0; i < size; ++i)
                reply[i] = static_cast<std::uint8_t>(0xF0 + i % 16);
            return sk_emu::CommandResult{1, false};
        });
    std::vector<std::uint8_t> firmware(20, 0);
    EXPECT_STATUS(1, SK_ApiReadFirmware(&core, kControllerId, 0x8000, firmware.data(), 20));
    EXPECT_EQ(firmware[0], 0xF0);
    EXPECT_EQ(firmware[19], 0xF3);
}

} // namespace
