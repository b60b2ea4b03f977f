// The report writer: its three forms, the caret and blank rules, the size line, the
// room rules, and the fixed vendor report.

#include "config_fixture.h"

#include <sstream>
#include <string>
#include <vector>

using namespace images;

namespace {

std::vector<std::string> lines(const std::string &text)
{
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    return out;
}

class ReportTest : public ScriptedCoreTest
{
protected:
    // The report of a core opened through the channel on `image`.
    std::string report(const Image &image, std::uint32_t compact = 1, std::uint32_t xml = 0,
                       std::uint32_t resolve = 0, std::uint32_t size = 0x80000)
    {
        serve(image);
        SK_Core core(".", "Core1", 0);
        std::string buffer(size, '\xEE');
        status = SK_BufferPrintConfig(core, &buffer[0], size, resolve, compact, xml);
        length = core.ReportLength;
        printing = core.Printing;
        return buffer.substr(0, buffer.find('\0'));
    }

    static Image example()
    {
        Array a;
        a.spares = {{0x55, 4, 1}};
        a.parents = {{0x66, 7, 0}};
        Disk d;
        d.id = 0xC0FFEE01;
        d.serial = "   ABC123";
        d.vendor = "EXAMPLE ";
        Enclosure e;
        e.revision = "1.0 ";
        return Image(42)
            .add(coreDevice())
            .add(controllerRecord(Controller{}))
            .add(diskRecord(d))
            .add(arrayRecord(a))
            .add(enclosureRecord(e));
    }

    std::uint32_t status = 0, length = 0, printing = 0;
};

TEST_F(ReportTest, compactReportHasOneLinePerRecordInTheFixedOrder)
{
    host->view.osDisks[1] = 1;
    const std::string text = report(example(), 1, 0, 1);
    ASSERT_EQ(status, 1u);
    const std::vector<std::string> expected = {
        "BufferSize: " + std::to_string(text.size()) + "    ",
        "CO: 1 GE: 42 NM: //./Core1/Route0/Device0 BN: Build-9.3.0-27 ",
        "CD: 0 CN: Controller0 CSN: 0x0000000000001234 BB: 9.3.0-27 MX: 0x0000000100000000 "
        "NP: 8 VI: 0x1e5d DI: 0x0a10 SVI: 0x1e5d SDI: 0x0a10 ID: 0x00000000aabbccdd "
        "OVI: 0x1e5d ODI: 0x0a01 LOC: 0x00000005 ",
        "PD: 0 TY: Core ST: Online ID: 0x0000000000000001 NM: //./Core1/Route0/Device0  ",
        "PD: 1 TY: Disk ST: Online ID: 0x00000000c0ffee01 NM: //./Core1/Route1/Device3  CD: 0 "
        "CH: 2 RT: 1 HD: 3 FE: 0x00000004 GS: N SI: 0x0000000074706db0 "
        "LS: 0x0000000000000000 TS: 0x0000000000000000 MO: ^ExampleDisk 1TB^ "
        "SN: ^   ABC123^ FW: 1.00 PT: 0x00000002 VI: ^EXAMPLE ^ ",
        "LD: 0 ST: NORMAL ID: 0x1122334455667788 NM: //./Core1/Route0/Device1  OSN: 1 RT: 0 "
        "HD: 1 SI: 0x0000000074700000 1ST: 1 2ND: 1 CA: RW CTS: 64 TY: VOLUME GE: 0x0000002a "
        "TPST: 0x0000000000000000 TPSI: 0 TPC: 0.0000 TP: 30 TTY: NOT_ACTIVE TST: NOT_ACTIVE "
        "DS: 0 PRE: 0 AT: 0x0000 RC: 0 CF: 0x0000000000000000 CT: 0x0000000000000000 "
        "DP: ^Array 1^  ",
        "LE: 0 RT: 1 HD: 3 ID: 0x0000000000001000 SO: 0x0000000000000800 "
        "SS: 0x0000000074700000 DO: 0x0000000000000800 DS: 0x0000000074700000 ER: NoError ",
        "SP: 0 RT: 1 HD: 4 ID: 0x0000000000000055 ",
        "PA: 0 RT: 0 HD: 7 ID: 0x0000000000000066 ",
        "SEP: 0 ID: 0x0000000000000099 NM: //./Core1/Route0/Device9  VID: ^EXAMPLE^ "
        "PID: ^BACKPLANE^ REV: ^1.0 ^ SN: ^12345678^ ",
    };
    EXPECT_EQ(lines(text), expected);
    EXPECT_EQ(length, text.size());
    EXPECT_EQ(printing, 0u);
    EXPECT_EQ(text.back(), '\n');
}

TEST_F(ReportTest, plainFormBreaksControllerAndDiskLinesAndKeepsTheTokens)
{
    const std::string compact = report(example(), 1);
    const std::string plain = report(example(), 0);
    EXPECT_NE(plain.find("MX: 0x0000000100000000 \nNP: 8"), std::string::npos);
    EXPECT_NE(plain.find("PT: 0x00000002 \nVI: ^EXAMPLE ^"), std::string::npos);
    EXPECT_EQ(lines(plain).size(), lines(compact).size() + 2);
    auto tokensOf = [](const std::string &s) {
        std::istringstream in(s.substr(s.find('\n'))); // the lengths differ
        std::vector<std::string> out;
        for (std::string token; in >> token;)
            out.push_back(token);
        return out;
    };
    EXPECT_EQ(tokensOf(plain), tokensOf(compact));
}

TEST_F(ReportTest, taggedFormNestsTheRecordsAndEscapesAmpersandsInTheArrayName)
{
    Array a;
    a.displayName = "Fast & safe";
    const Image image = Image(3).add(controllerRecord(Controller{})).add(arrayRecord(a));
    const std::string text = report(image, 0, 1);
    EXPECT_NE(text.find("<Core>\n  <Number>1</Number>\n"), std::string::npos);
    EXPECT_NE(text.find("\n  <Controller>\n    <Number>0</Number>\n"), std::string::npos);
    EXPECT_NE(text.find("<PCILocation>0x00000005</PCILocation>"), std::string::npos);
    EXPECT_NE(text.find("<DeviceName>Fast &amp; safe</DeviceName>"), std::string::npos);
    EXPECT_NE(text.find("      <Error>NoError</Error>\n    </LogicalElement>"), std::string::npos);
    EXPECT_NE(text.find("<TransformPercentComplete>0.0000</TransformPercentComplete>"),
              std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 8), "</Core>\n");

    const std::string compact = report(image, 1, 1);
    EXPECT_EQ(compact.find('\n', 21), std::string::npos) << "compact tags stand in one run";
    EXPECT_NE(compact.find("<LogicalDevice><Number>0</Number><State>NORMAL</State>"),
              std::string::npos);

    // The token form has no such step, and the record keeps its ampersand.
    EXPECT_NE(report(image).find("DP: ^Fast & safe^  "), std::string::npos);
}

TEST_F(ReportTest, diskTextsAreMadeSafeForTheReport)
{
    struct Row
    {
        std::string model, serial, firmware, vendor;
        const char *expected;
    };
    const Row rows[] = {
        {"", "S", "F", "V", " MO: NONE SN: ^S^ "},
        {"A^B^", "S", "F", "V", " MO: ^A_B_^ "},
        {"M", "  A B ", "F", "V", " SN: ^  A_B_^ "},
        {"M", "S", " 1 0", "V", " FW:  1_0 PT: "},
        {"M", "S", "", "", " FW: NONE PT: 0x00000002 VI: NONE \n"},
        {"M", "S", "F", "^V^", " VI: ^_V_^ \n"},
    };
    for (const Row &row : rows) {
        Disk d;
        d.model = row.model;
        d.serial = row.serial;
        d.firmware = row.firmware;
        d.vendor = row.vendor;
        const std::string text = report(Image(1).add(diskRecord(d)));
        EXPECT_NE(text.find(row.expected), std::string::npos) << text;
    }
}

TEST_F(ReportTest, enclosureTextsAndTheArrayNameLoseTheirCarets)
{
    Enclosure e;
    e.vendor = "V^";
    e.product = "^P";
    e.revision = "^";
    e.serial = "S^N";
    Array a;
    a.displayName = "My^Array";
    const std::string text = report(Image(1).add(arrayRecord(a)).add(enclosureRecord(e)));
    EXPECT_NE(text.find("VID: ^V_^ PID: ^_P^ REV: ^_^ SN: ^S_N^ "), std::string::npos);
    EXPECT_NE(text.find("DP: ^My_Array^  \n"), std::string::npos);

    a.displayName = "";
    EXPECT_NE(report(Image(1).add(arrayRecord(a))).find("DP: NONE \n"), std::string::npos);
}

TEST_F(ReportTest, operatingSystemNameIsLookedUpOnlyForVisibleArraysWhenAsked)
{
    Array visible;
    visible.device = 4;
    Array hidden;
    hidden.device = 5;
    hidden.attributes = 0x200;
    Array unknown;
    unknown.device = 6;
    host->view.osDisks = {{4, 12}, {5, 13}};
    const Image image =
        Image(1).add(arrayRecord(visible)).add(arrayRecord(hidden)).add(arrayRecord(unknown));

    const std::string resolved = report(image, 1, 0, 1);
    EXPECT_NE(resolved.find("Device4  OSN: 12 "), std::string::npos);
    EXPECT_NE(resolved.find("Device5  OSN: NONE "), std::string::npos);
    EXPECT_NE(resolved.find("Device6  OSN: NONE "), std::string::npos);
    ASSERT_EQ(host->view.lookups.size(), 2u);
    EXPECT_EQ(host->view.lookups[0], std::make_pair(1u, 4u)); // core number, device route

    host->view.lookups.clear();
    EXPECT_NE(report(image).find("Device4  OSN: NONE "), std::string::npos);
    EXPECT_TRUE(host->view.lookups.empty());
}

TEST_F(ReportTest, bufferUnder32768GivesAnEmptyReport)
{
    const std::string text = report(example(), 1, 0, 0, 32767);
    EXPECT_EQ(status, SK_STS_BUFFER_TOO_SMALL);
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(printing, 0u);
}

TEST_F(ReportTest, recordsThatFindNoRoomAreLeftOutWhole)
{
    Image image(1);
    for (std::uint16_t i = 0; i < 200; ++i) {
        Disk d;
        d.device = i;
        image.add(diskRecord(d));
    }
    const std::string text = report(image, 1, 0, 0, SK_REPORT_MIN_SIZE);
    ASSERT_EQ(status, 1u);
    EXPECT_LT(text.size(), SK_REPORT_MIN_SIZE);
    EXPECT_GE(text.size(), SK_REPORT_MIN_SIZE - 512 - 400);
    EXPECT_EQ(text.back(), '\n');
    EXPECT_EQ(length, text.size());
    const auto all = lines(text);
    EXPECT_EQ(all.back().substr(0, 4), "PD: ");
    EXPECT_LT(all.size(), 200u);

    // The reader takes the cut report as it stands.
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    EXPECT_EQ(SK_ParseConfigText(text.data(), text.size(), snapshot.get()), 1u);
    EXPECT_EQ(snapshot->DiskCount, static_cast<std::int32_t>(all.size() - 2));
}

TEST_F(ReportTest, coreBuiltFromAnImageInMemoryPrintsWithoutBusAndCore)
{
    const Image image = Image(9).add(diskRecord(Disk{}, 128));
    SK_Core core(image.bytes().data(), image.size());
    std::string buffer(SK_REPORT_MIN_SIZE, '\0');
    ASSERT_EQ(SK_BufferPrintConfig(core, &buffer[0], SK_REPORT_MIN_SIZE, 0, 1, 0), 1u);
    EXPECT_NE(buffer.find("CO: 0 GE: 9 NM: /Route0/Device0 BN: NONE \n"), std::string::npos);
    EXPECT_NE(buffer.find("NM: /Route1/Device3  CD: 65535 CH: 65535 "), std::string::npos);
    EXPECT_NE(buffer.find(" MO: NONE SN: NONE FW: NONE "), std::string::npos);
    EXPECT_EQ(SK_BufferPrintConfig(core, nullptr, SK_REPORT_MIN_SIZE, 0, 1, 0), 7u);
}

TEST_F(ReportTest, apiTakesTheLockBuildsItsOwnCoreAndReportsAMissingDevice)
{
    serve(example());
    std::string buffer(0x80000, '\0');
    ASSERT_EQ(SK_ApiGetCoreConfigString(&entry, &buffer[0], 0x80000, 0, 0, 1, 0), 1u);
    EXPECT_EQ(buffer.substr(21, 4), "CO: ");

    serve(example());
    ASSERT_EQ(SK_ApiGetCoreConfigString(nullptr, &buffer[0], 0x80000, 0, 1, 1, 0), 1u);
    EXPECT_NE(buffer.find("CD: 0 CN: Controller0"), std::string::npos);

    EXPECT_EQ(SK_ApiGetCoreConfigString(nullptr, &buffer[0], 0x80000, 0, 0, 1, 0), 7u);
    host->devices.clear();
    EXPECT_EQ(SK_ApiGetCoreConfigString(&entry, &buffer[0], 0x80000, 0, 0, 1, 0), 8u);
    EXPECT_EQ(SK_ApiGetCoreConfigString(nullptr, &buffer[0], 0x80000, 0, 1, 1, 0), 8u);
}

TEST(VendorReport, isFixedAndLeavesItsSizeFieldAlone)
{
    std::string buffer(SK_REPORT_MIN_SIZE, '\0');
    ASSERT_EQ(SK_ApiGetDellConfigString(&buffer[0], SK_REPORT_MIN_SIZE), 1u);
    EXPECT_EQ(std::string(buffer.c_str()), "BufferSize:         \n  **Device**\n"
                                           "                  DeviceName = HDDCONTROLLER0\n"
                                           "              DeviceMnemonic = VORRAID:0\n"
                                           "            DeviceTypeString = VORRAID\n");
    EXPECT_EQ(SK_ApiGetDellConfigString(&buffer[0], SK_REPORT_MIN_SIZE - 1), 26u);
    EXPECT_EQ(SK_ApiGetDellConfigString(nullptr, SK_REPORT_MIN_SIZE), 7u);
}

} // namespace
