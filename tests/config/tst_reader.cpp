// The reader: tokenizer lexical rules, the grammar's strict and optional keys, the
// limits, slot sharing, malformed reports, and image -> report -> snapshot round trips.

#include "config_fixture.h"

#include <sstream>
#include <string>
#include <vector>

using namespace images;

namespace {

// --- tokenizer ----------------------------------------------------------------------

struct LexCase
{
    const char *what;
    std::string text;
    std::vector<std::string> tokens;
};

class Tokenizer : public ::testing::TestWithParam<LexCase>
{
};

TEST_P(Tokenizer, splitsTheTextAsTheReportIsWritten)
{
    auto t = std::make_unique<SK_Tokenizer>();
    std::memset(t.get(), 0, sizeof *t);
    std::memcpy(t->Text, GetParam().text.data(), GetParam().text.size());
    SK_ResetTokenizer(t.get());
    std::vector<std::string> tokens;
    for (const char *token = SK_NextToken(t.get()); token && tokens.size() < 50;
         token = SK_NextToken(t.get()))
        tokens.emplace_back(token);
    EXPECT_EQ(tokens, GetParam().tokens);
    EXPECT_EQ(SK_NextToken(t.get()), nullptr) << "the end stays the end";
}

INSTANTIATE_TEST_SUITE_P(
    Lexical, Tokenizer,
    ::testing::Values(
        LexCase{"only delimiters", " \r\n  \n", {}},
        LexCase{"blanks and line ends separate", "A: 1\r\nB:  2 \n", {"A:", "1", "B:", "2"}},
        LexCase{"last token without delimiter", "A: xyz", {"A:", "xyz"}},
        LexCase{
            "carets keep blanks", "MO: ^Big Disk 1TB^ SN: x", {"MO:", "Big Disk 1TB", "SN:", "x"}},
        LexCase{"leading blanks inside carets", "SN: ^   ABC^ ", {"SN:", "   ABC"}},
        LexCase{"empty caret value", "DP: ^^ LE: 0", {"DP:", "", "LE:", "0"}},
        LexCase{"unclosed caret runs to the end", "MO: ^a b c", {"MO:", "a b c"}},
        LexCase{"line ends inside carets are kept", "X: ^a\nb^ Y:", {"X:", "a\nb", "Y:"}},
        LexCase{"leading brace is dropped", "{Core} {", {"Core}", ""}},
        LexCase{"lone caret at the end", "A: ^", {"A:"}}),
    [](const ::testing::TestParamInfo<LexCase> &p) { return caseName(p.param.what); });

TEST(TokenizerBounds, neverReadsPastAnUnterminatedTextArea)
{
    auto t = std::make_unique<SK_Tokenizer>();
    std::memset(t->Text, 'x', sizeof t->Text);
    std::memset(t->Token, 0, sizeof t->Token);
    SK_ResetTokenizer(t.get());
    const char *token = SK_NextToken(t.get());
    ASSERT_NE(token, nullptr);
    EXPECT_EQ(std::strlen(token), SK_REPORT_TEXT_SIZE - 1) << "the token area keeps its terminator";
    EXPECT_EQ(SK_NextToken(t.get()), nullptr);
    EXPECT_EQ(SK_NextToken(nullptr), nullptr);
}

// --- grammar ------------------------------------------------------------------------

const std::string kCore = "CO: 1 GE: 42 NM: //./Core1/Route0/Device0 BN: Build-X \n";
const std::string kController =
    "CD: 0 CN: Ctl CSN: 0x10 BB: 1.0 MX: 0x20 NP: 8 VI: 0x1e5d DI: 0x0a10 SVI: 0x1 SDI: 0x2 "
    "ID: 0x33 OVI: 0x4 ODI: 0x5 LOC: 0x6 \n";

std::string disk(int index, int device = 3, const std::string &gs = "N")
{
    return "PD: " + std::to_string(index) + " TY: Disk ST: Online ID: 0x" +
           std::to_string(100 + index) + " NM: //./Core1/Route1/Device" + std::to_string(device) +
           "  CD: 0 CH: 2 RT: 1 HD: " + std::to_string(device) + " FE: 0x4 GS: " + gs +
           " SI: 0x1000 LS: 0x10 TS: 0x20 MO: ^M 1^ SN: ^ S1^ FW: 1.0 PT: 0x2 VI: ^V^ \n";
}

std::string coreDisk(int index)
{
    return "PD: " + std::to_string(index) +
           " TY: Core ST: Online ID: 0x1 NM: //./Core1/Route0/Device0  \n";
}

std::string head(int index, int device, const std::string &id = "0x77")
{
    return "LD: " + std::to_string(index) + " ST: NORMAL ID: " + id +
           " NM: //./Core1/Route0/Device" + std::to_string(device) +
           " OSN: NONE RT: 0 HD: " + std::to_string(device) +
           " SI: 0x5000 1ST: 1 2ND: 2 CA: RW CTS: 64 TY: RAID1 GE: 0x2a TPST: 0x0 TPSI: 0 "
           "TPC: 12.5000 TP: 30 TTY: CHECK TST: STARTED DS: 0 PRE: 1 AT: 0x0200 RC: 2 "
           "CF: 0x0 CT: 0x0 DP: ^My Array^  \n";
}

std::string member(int index, int device = 3)
{
    return "LE: " + std::to_string(index) + " RT: 1 HD: " + std::to_string(device) +
           " ID: 0x100 SO: 0x800 SS: 0x4000 DO: 0x800 DS: 0x4000 ER: Offline \n";
}

std::string spare(int index, int device)
{
    return "SP: " + std::to_string(index) + " RT: 1 HD: " + std::to_string(device) + " ID: 0x" +
           std::to_string(500 + device) + " \n";
}

std::string enclosure(int index)
{
    return "SEP: " + std::to_string(index) +
           " ID: 0x99 NM: //./Core1/Route0/Device9 VID: ^EX^ PID: ^BP 1^ REV: ^1.0^ SN: ^123^ \n";
}

std::string replaced(std::string text, const std::string &from, const std::string &to)
{
    const std::size_t at = text.find(from);
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
    return text;
}

std::string repeat(const std::string &text, int times)
{
    std::string out;
    for (int i = 0; i < times; ++i)
        out += text;
    return out;
}

class ReaderTest : public ::testing::Test
{
protected:
    std::uint32_t parse(const std::string &text)
    {
        return SK_ParseConfigText(text.data(), text.size(), snapshot.get());
    }
    std::unique_ptr<SK_ConfigSnapshot> snapshot = std::make_unique<SK_ConfigSnapshot>();
};

struct ReportCase
{
    const char *what;
    std::string text;
    std::uint32_t result;
    int controllers, disks, arrays, enclosures;
};

class Reports : public ReaderTest, public ::testing::WithParamInterface<ReportCase>
{
};

TEST_P(Reports, endWithTheirResultAndKeepWhatWasReadBefore)
{
    const ReportCase &c = GetParam();
    testing::internal::CaptureStdout();
    EXPECT_EQ(parse(c.text), c.result);
    const std::string printed = testing::internal::GetCapturedStdout();
    EXPECT_EQ(printed,
              std::string(c.what) == "missing CTS fails" ? "Failed to find CTS token\n" : "");
    EXPECT_EQ(snapshot->ControllerCount, c.controllers);
    EXPECT_EQ(snapshot->DiskCount, c.disks);
    EXPECT_EQ(snapshot->ArrayCount, c.arrays);
    EXPECT_EQ(snapshot->EnclosureCount, c.enclosures);
}

INSTANTIATE_TEST_SUITE_P(
    Grammar, Reports,
    ::testing::Values(
        ReportCase{"empty report", "", 1, 0, 0, 0, 0},
        ReportCase{"size value over six digits is skipped", "BufferSize: 1234567 \n" + disk(0), 1,
                   0, 1, 0, 0},
        ReportCase{"whole report",
                   "BufferSize: 1 \n" + kCore + kController + coreDisk(0) + disk(1) + head(0, 1) +
                       member(0) + spare(0, 4) + enclosure(0),
                   1, 1, 2, 1, 1},
        ReportCase{"core device line ends after its name", coreDisk(0) + disk(1), 1, 0, 2, 0, 0},
        ReportCase{"controller lines after the disks are not counted",
                   kCore + kController + disk(0) + kController, 1, 1, 1, 0, 0},
        ReportCase{"done ends the parse", kController + "Done: " + disk(0), 1, 1, 0, 0, 0},
        ReportCase{"unknown line starts are dropped", "XX: 1 2 ^a b^\n" + disk(0), 1, 0, 1, 0, 0},
        ReportCase{"disk index 303 is the last", disk(303), 1, 0, 1, 0, 0},
        ReportCase{"disk index 304 fails", disk(0) + disk(304), 0, 0, 1, 0, 0},
        ReportCase{"negative disk index fails", disk(-1), 0, 0, 0, 0, 0},
        ReportCase{"array index 383 is the last", head(383, 1), 1, 0, 0, 1, 0},
        ReportCase{"array index 384 fails", head(384, 1), 0, 0, 0, 0, 0},
        ReportCase{"member index 31 is the last", head(0, 1) + member(31), 1, 0, 0, 1, 0},
        ReportCase{"member index 32 fails", head(0, 1) + member(32), 0, 0, 0, 1, 0},
        ReportCase{"member before any array fails", member(0), 0, 0, 0, 0, 0},
        ReportCase{"spare before any array fails", spare(0, 4), 0, 0, 0, 0, 0},
        ReportCase{"enclosure index 75 is the last", enclosure(75), 1, 0, 0, 0, 1},
        ReportCase{"enclosure index 76 fails", enclosure(76), 0, 0, 0, 0, 0},
        ReportCase{"nineteen controllers", repeat(kController, 19), 1, 19, 0, 0, 0},
        ReportCase{"a twentieth controller fails", repeat(kController, 20), 0, 19, 0, 0, 0},
        ReportCase{"global spare word X fails", disk(0) + disk(1, 3, "X"), 0, 0, 1, 0, 0},
        ReportCase{"wrong key fails", replaced(disk(0), "CH:", "CX:"), 0, 0, 0, 0, 0},
        ReportCase{"disk line cut short fails", disk(0).substr(0, 120), 0, 0, 0, 0, 0},
        ReportCase{"missing CTS fails", replaced(head(0, 1), "CTS: 64 ", ""), 0, 0, 0, 1, 0},
        ReportCase{"parent line with a wrong key fails",
                   head(0, 1) + "PA: 0 RT: 0 HX: 7 ID: 0x66 \n", 0, 0, 0, 1, 0},
        ReportCase{"unknown disk type passes its line over",
                   "PD: 0 TY: Weird ST: Online ID: 0x1 NM: n \n" + disk(1), 1, 0, 1, 0, 0},
        ReportCase{"unknown type on a full disk line trips over its CD",
                   replaced(disk(0), "TY: Disk", "TY: Weird"), 0, 0, 0, 0, 0},
        ReportCase{"both free space keys missing swallow the model",
                   replaced(disk(0), "LS: 0x10 TS: 0x20 ", ""), 0, 0, 0, 0, 0}),
    [](const ::testing::TestParamInfo<ReportCase> &p) { return caseName(p.param.what); });

TEST_F(ReaderTest, valuesLandInTheirFields)
{
    // The round trips below cover the writer's values; these are the reader's own.
    ASSERT_EQ(parse(kCore + kController + disk(4, 12) + head(0, 1, "0x1122334455667788") +
                    member(1) + spare(9, 4) + spare(9, 5) + "PA: 0 RT: 0 HD: 7 ID: 0x66 \n" +
                    enclosure(2)),
              1u);
    const SK_ConfigController &c = snapshot->Controllers[0];
    EXPECT_STREQ(c.BuildName, "Build-X");
    EXPECT_EQ(c.PciVendorID + c.PciLocation, 0x1e5du + 6);
    EXPECT_EQ(std::uint64_t{c.MaxArraySize}, 0x20u);
    EXPECT_STREQ(snapshot->Disks[4].SerialNumber, " S1");
    const SK_ConfigArray &a = snapshot->Arrays[0].Half[0];
    EXPECT_EQ(std::uint64_t{a.ArrayId}, 0x1122334455667788u);
    EXPECT_FLOAT_EQ(a.TransformPercentComplete, 12.5f);
    EXPECT_EQ(a.Attributes, 0x200u);
    EXPECT_STREQ(a.DisplayName, "My Array");
    EXPECT_EQ(std::uint64_t{a.Members[1].DataSize}, 0x4000u);
    ASSERT_EQ(a.SpareCount, 2);
    EXPECT_EQ(std::uint64_t{a.Spares[1].DiskId}, 0x505u);
    EXPECT_STREQ(snapshot->Enclosures[2].Product, "BP 1");
}

TEST_F(ReaderTest, optionalKeysTakeOneTokenWhetherTheyAreThereOrNot)
{
    // Without its four last keys a controller line eats the next line's first tokens.
    const std::string shortController = kController.substr(0, kController.find("ID:")) + "\n";
    ASSERT_EQ(parse(shortController + enclosure(0)), 1u);
    EXPECT_EQ(snapshot->ControllerCount, 1);
    EXPECT_EQ(std::uint64_t{snapshot->Controllers[0].ControllerId}, 0u);
    EXPECT_EQ(snapshot->EnclosureCount, 0);

    // One free-space key missing: the other key is dropped in its place.
    ASSERT_EQ(parse(replaced(disk(0), "LS: 0x10 ", "")), 1u);
    EXPECT_EQ(std::uint64_t{snapshot->Disks[0].LargestFreeSpace}, 0u);
    EXPECT_EQ(std::uint64_t{snapshot->Disks[0].TotalFreeSpace}, 0u);
    EXPECT_STREQ(snapshot->Disks[0].Model, "M 1");

    // A member without ER keeps an empty error and loses the spare line behind it.
    ASSERT_EQ(parse(head(0, 1) + replaced(member(0), "ER: Offline ", "") + spare(0, 4)), 1u);
    EXPECT_STREQ(snapshot->Arrays[0].Half[0].Members[0].Error, "");
    EXPECT_EQ(snapshot->Arrays[0].Half[0].SpareCount, 0);
}

TEST_F(ReaderTest, headFollowedByAnotherHeadLosesTheSecond)
{
    ASSERT_EQ(parse(head(0, 1) + head(1, 2, "0x88") + member(0, 7)), 1u);
    EXPECT_EQ(snapshot->ArrayCount, 1);
    EXPECT_EQ(std::uint64_t{snapshot->Arrays[0].Half[0].ArrayId}, 0x77u);
    EXPECT_EQ(snapshot->Arrays[0].Half[0].Members[0].Device, 7);
}

TEST_F(ReaderTest, recordsInARowWithOneDeviceNumberShareASlot)
{
    ASSERT_EQ(parse(head(0, 5, "0x1") + member(0) + head(1, 5, "0x2") + member(0) +
                    head(2, 5, "0x3") + member(0) + head(3, 6, "0x4") + member(0) +
                    head(4, 5, "0x5") + member(0)),
              1u);
    ASSERT_EQ(snapshot->ArrayCount, 3);
    EXPECT_EQ(snapshot->Arrays[0].HalfCount, 2);
    EXPECT_EQ(std::uint64_t{snapshot->Arrays[0].Half[0].ArrayId}, 1u);
    EXPECT_EQ(std::uint64_t{snapshot->Arrays[0].Half[1].ArrayId}, 3u)
        << "a third overwrites the second half";
    EXPECT_EQ(snapshot->Arrays[1].HalfCount, 1);
    EXPECT_EQ(std::uint64_t{snapshot->Arrays[1].Half[0].ArrayId}, 4u);
    EXPECT_EQ(std::uint64_t{snapshot->Arrays[2].Half[0].ArrayId}, 5u)
        << "not in a row: a slot of its own";
}

TEST_F(ReaderTest, oversizedOrMissingTextFailsWithEmptyCounts)
{
    std::string big(SK_REPORT_TEXT_SIZE, ' ');
    snapshot->DiskCount = 9;
    EXPECT_EQ(parse(big), 0u);
    EXPECT_EQ(snapshot->DiskCount, 0);
    big.resize(SK_REPORT_TEXT_SIZE - 1);
    EXPECT_EQ(parse(big + disk(0)), 0u) << "the disk line lies past the bound";
    big[100] = '\0';
    EXPECT_EQ(parse(big + disk(0)), 1u) << "a zero byte ends the text";
    EXPECT_EQ(SK_ParseConfigText(nullptr, 0, snapshot.get()), 0u);
    EXPECT_EQ(SK_ParseConfigText("", 0, nullptr), 0u);
}

// --- through the channel ------------------------------------------------------------

struct Config
{
    const char *what;
    bool coreDevice;
    std::vector<Controller> controllers;
    std::vector<Disk> disks;
    std::vector<Array> arrays;
};

// The writer's safety rules: carets become "_" in most texts; in a serial or firmware
// revision every blank behind the first non-blank does.
std::string safe(std::string text, char from = '^')
{
    for (std::size_t i = from == ' ' ? text.find_first_not_of(' ') : 0; i < text.size(); ++i)
        text[i] = text[i] == from ? '_' : text[i];
    return text.empty() ? "NONE" : text;
}

template <class... T>
std::string join(const T &...values)
{
    std::ostringstream out;
    ((out << values << '|'), ...);
    return out.str();
}

class RoundTrip : public ScriptedCoreTest, public ::testing::WithParamInterface<Config>
{
};

TEST_P(RoundTrip, everyRecordReachesTheSnapshot)
{
    const Config &config = GetParam();
    Image image(0x100000033ull);
    if (config.coreDevice)
        image.add(coreDevice("Build-7"));
    for (const auto &c : config.controllers)
        image.add(controllerRecord(c));
    for (const auto &d : config.disks)
        image.add(diskRecord(d));
    for (const auto &a : config.arrays)
        image.add(arrayRecord(a));
    serve(image);
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    ASSERT_EQ(SK_ParseConfig(&entry, snapshot.get(), 0, 0), 1u);

    ASSERT_EQ(snapshot->ControllerCount, static_cast<int>(config.controllers.size()));
    for (std::size_t i = 0; i < config.controllers.size(); ++i) {
        const Controller &c = config.controllers[i];
        const SK_ConfigController &s = snapshot->Controllers[i];
        EXPECT_EQ(join(s.Number, s.Name, s.BiosBuild, std::uint64_t{s.SerialNumber}),
                  join(c.number, safe(c.name), safe(c.bios), c.serial));
    }
    EXPECT_EQ(snapshot->Controllers[0].BuildName,
              config.coreDevice ? "Build-7" : safe(config.disks[0].model));

    const std::size_t first = config.coreDevice ? 1 : 0;
    ASSERT_EQ(snapshot->DiskCount, static_cast<int>(config.disks.size() + first));
    for (std::size_t i = 0; i < config.disks.size(); ++i) {
        const Disk &d = config.disks[i];
        const SK_ConfigDisk &s = snapshot->Disks[i + first];
        EXPECT_EQ(
            join(s.Type, s.State, std::uint64_t{s.DiskId}, s.Name, s.ControllerNumber, s.Channel,
                 s.Route, s.Device, s.GlobalSpare,
                 std::uint64_t{s.LargestFreeSpace} + s.TotalFreeSpace, s.Model, s.SerialNumber,
                 s.FirmwareRevision, s.VendorId),
            join(SK_DeviceTypeWord(d.type), SK_DeviceStateWord(d.state), d.id,
                 "//./Core1/Route" + std::to_string(d.core) + "/Device" + std::to_string(d.device),
                 d.controllerDigit - '0', d.channelDigit - '0', d.core, d.device,
                 d.spare == 256 ? 1 : 0, d.largest + d.total, safe(d.model), safe(d.serial, ' '),
                 safe(d.firmware, ' '), safe(d.vendor)));
    }

    // Consecutive arrays with one device number share a slot.
    int slot = -1;
    for (std::size_t i = 0; i < config.arrays.size(); ++i) {
        const Array &a = config.arrays[i];
        const bool shared = i > 0 && a.device == config.arrays[i - 1].device;
        slot += shared ? 0 : 1;
        ASSERT_LT(slot, snapshot->ArrayCount);
        const SK_ConfigArray &s = snapshot->Arrays[slot].Half[shared ? 1 : 0];
        EXPECT_EQ(join(std::uint64_t{s.ArrayId}, s.Device, s.State, s.Type, s.Cache, s.Generation,
                       s.TransformPercentComplete, s.TransformType, s.TransformState, s.Attributes,
                       s.DisplayName, s.OsName, s.SpareCount),
                  join(a.id, a.device, SK_ArrayStateWord(a.state, a.task),
                       SK_ArrayTypeWord(SK_ArrayTypeIndexOf(a.type, a.first, a.second)),
                       SK_CachePolicyWord(a.cache), a.generation & 0xFFFFFFFFu,
                       SK_PercentComplete(a.percent), SK_TaskTypeWord(a.task),
                       SK_TaskStateWord(a.taskState), a.attributes & 0xFFFFu, safe(a.displayName),
                       "NONE", a.spares.size()));
        for (std::size_t m = 0; m < a.members.size(); ++m) {
            const SK_ConfigMember &sm = s.Members[m];
            EXPECT_EQ(
                join(std::uint64_t{sm.DiskId}, sm.Device, sm.Error),
                join(a.members[m].id, a.members[m].device, SK_MemberFlagsWord(a.members[m].flags)));
        }
        for (std::size_t p = 0; p < a.spares.size(); ++p)
            EXPECT_EQ(std::uint64_t{s.Spares[p].DiskId}, a.spares[p].id);
    }
    EXPECT_EQ(snapshot->ArrayCount, slot + 1);
}

Config varied()
{
    Config c{"varied without a core device", false, {}, {}, {}};
    for (std::uint32_t i = 0; i < 3; ++i) {
        Controller k;
        k.number = i;
        k.serial = 0x1000 + i;
        k.name = i == 2 ? "" : "Ctl" + std::to_string(i);
        k.bios = i == 1 ? "" : "B" + std::to_string(i);
        c.controllers.push_back(k);
    }
    for (std::uint16_t i = 0; i < 12; ++i) {
        Disk d;
        d.id = 0xD000u + i;
        d.device = static_cast<std::uint16_t>(i * 3);
        d.core = i % 3;
        d.type = 4608u + (i % 5 == 1 ? 5 : i % 5); // not 4609: its line ends early
        d.state = 12288u + i % 5;
        d.spare = i % 4 == 0 ? 256 : 0;
        d.controllerDigit = static_cast<char>('0' + i % 3);
        d.channelDigit = static_cast<char>('0' + i % 8);
        d.largest = i * 1000ull;
        d.total = i * 2000ull;
        // Without a core device the first disk's inquiry text is the build string.
        d.model = i == 5 ? "" : i == 0 ? "Solo" : "Model^" + std::to_string(i);
        d.serial = i == 6 ? "  A B " : "SER" + std::to_string(i);
        d.firmware = i == 7 ? "" : "F " + std::to_string(i);
        d.vendor = i == 8 ? "" : "VEND";
        c.disks.push_back(d);
    }
    Array raid5;
    raid5.type = 7157;
    raid5.second = 3;
    raid5.device = 11;
    raid5.task = SK_TASK_CREATE;
    raid5.percent = 45678;
    raid5.displayName = "Ar^ray five";
    raid5.cache = 0x80000000u;
    raid5.members.assign(3, Member{});
    for (std::uint16_t m = 0; m < 3; ++m)
        raid5.members[m].device = static_cast<std::uint16_t>(m * 3);
    raid5.members[2].flags = 0x4030;
    Array hidden;
    hidden.device = 12;
    hidden.attributes = 0x30200;
    hidden.displayName = "";
    hidden.state = 513;
    hidden.task = SK_TASK_TRANSFORM;
    hidden.taskState = SK_TASK_STATE_NOT_ACTIVE;
    hidden.spares = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    hidden.parents = {{5, 6, 7}};
    Array first, second;
    first.device = second.device = 20;
    first.id = 1;
    second.id = 2;
    second.type = 7165;
    c.arrays = {raid5, hidden, first, second};
    return c;
}

INSTANTIATE_TEST_SUITE_P(
    Configurations, RoundTrip,
    ::testing::Values(Config{"one of each", true, {Controller{}}, {Disk{}}, {Array{}}}, varied()),
    [](const ::testing::TestParamInfo<Config> &p) { return caseName(p.param.what); });

TEST_F(ScriptedCoreTest, parseWithoutADeviceFailsWithEmptyCounts)
{
    auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    snapshot->ArrayCount = 5;
    host->devices.clear();
    EXPECT_EQ(SK_ParseConfig(&entry, snapshot.get(), 0, 0), 0u);
    EXPECT_EQ(snapshot->ArrayCount, 0);
    EXPECT_EQ(SK_ParseConfig(nullptr, snapshot.get(), 0, 0), 0u);
    EXPECT_EQ(SK_ParseConfig(&entry, nullptr, 0, 0), 0u);
}

} // namespace
