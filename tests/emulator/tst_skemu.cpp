// skemu run in-process on a state file of its own: each fault lands in the file and
// shows in the listings; each bad argument is refused with its reason and changes
// nothing, byte for byte.

#include "emulator/emulator.h"
#include "emulator/sk_emu_tool.h"
#include "temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace sk_emu;

namespace {

class Skemu : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.created());
        ASSERT_EQ(run({"init"}), 0) << err;
    }

    int run(std::vector<std::string> args)
    {
        args.insert(args.begin(), {"--state", state});
        out.clear();
        err.clear();
        return skemuMain(args, out, err);
    }

    TempFolder folder;
    const std::string state = folder.file("lab.json");
    std::string out, err;
};

struct Shown
{
    std::vector<std::string> args;
    const char *listing; // the command whose output shows the change
    const char *shown;
};

const Shown kShown[] = {
    {{"fail-disk", "0x5000c500e4b1d203"}, "events", "(01013) 0 2 0"},
    {{"pull-disk", "0x5000c500e4b1f961"}, "events", "(01043) 0 3 0"},
    {{"pull-disk", "0x5000c500e4b1f961"}, "disks", "port 3  pulled"},
    {{"smart-error", "0x5000c500e4b2117c", "on"}, "events", "(01061) 0 4 0"},
    {{"insert-disk", "7", "4TB", "ST4000NM000A-2HZ100", "WX20D1AA"}, "events", "(01042) 0 7 0"},
    {{"insert-disk", "7", "960GB", "Fresh", "F1", "nvme"},
     "show",
     "Capacity (sectors)       1875000000"},
    {{"event", "1037", "5", "6"}, "events", "(01037) 5 6 0 0 0 0 0 0\n"},
};

TEST_F(Skemu, eachFaultLandsInTheFileAndShows)
{
    for (const Shown &row : kShown) {
        SCOPED_TRACE(row.args[0] + " " + row.args[1]);
        ASSERT_EQ(run({"init", "--force"}), 0) << err;
        ASSERT_EQ(run(row.args), 0) << err;
        EXPECT_NE(out.find(": done, generation"), std::string::npos) << out;
        ASSERT_EQ(run({row.listing}), 0) << err;
        EXPECT_NE(out.find(row.shown), std::string::npos) << out;
    }
    // The request faults show in no listing; the file holds them.
    for (const auto &args : {std::vector<std::string>{"refuse", "2", "40"},
                             {"stale-writes", "3"},
                             {"fail-transfers", "0x10"}}) {
        ASSERT_EQ(run(args), 0) << err;
        EXPECT_NE(out.find(": done, generation"), std::string::npos) << out;
    }
    Model m;
    std::string error;
    ASSERT_TRUE(readStateFile(state, m, error)) << error;
    EXPECT_EQ(m.faults.refuseCount, 2u);
    EXPECT_EQ(m.faults.refuseStatus, 40u);
    EXPECT_EQ(m.faults.staleWrites, 3u);
    EXPECT_EQ(m.faults.failedTransfers, 16u);
}

struct Refused
{
    std::vector<std::string> args;
    const char *reason;
};

const Refused kRefused[] = {
    {{"insert-disk", "8", "4TB", "M", "S"},
     "insert-disk: controller 0 has no port 8 (its ports are 0 to 7)"},
    {{"insert-disk", "4", "4TB", "M", "S"},
     "port 4 of controller 0 is taken by disk 0x5000c500e4b2117c"},
    {{"insert-disk", "7", "7814037168", "M", "S"}, "size '7814037168' has no unit"},
    {{"insert-disk", "7", "4XB", "M", "S"}, "unit 'XB' is none of s (sectors), KB"},
    {{"insert-disk", "7", "1.5s", "M", "S"}, "sectors are whole"},
    {{"insert-disk", "7", "2048s", "M", "S"}, "is too small"},
    {{"insert-disk", "7", "4TB", "", "S"}, "the model is empty"},
    {{"insert-disk", "7", "4TB", "M", ""}, "the serial is empty"},
    {{"insert-disk", "7", "4TB", "M", "123456789012345678901"}, "has 21 characters, at most 20"},
    {{"insert-disk", "7", "4TB", "M", "WX20B1HK"}, "has serial WX20B1HK already"},
    {{"insert-disk", "7", "4TB", "M", "S", "tape"}, "kind 'tape' is neither ssd nor nvme"},
    {{"insert-disk", "seven", "4TB", "M", "S"}, "port 'seven' is not a port number"},
    {{"refuse", "two", "40"}, "refuse: count 'two' is not a number"},
    {{"refuse", "2", "0x1FFFFFFFF"}, "status '0x1FFFFFFFF' is not a number from 0 to 4294967295"},
    {{"stale-writes", "-1"}, "count '-1' is not a number"},
    {{"fail-transfers", "1x"}, "count '1x' is not a number"},
    {{"fail-transfers"}, "too few arguments"},
    {{"stale-writes", "1", "2"}, "too many arguments: '2' is one too many"},
    {{"event", "65536"}, "message '65536' is not a number from 0 to 65535"},
    {{"event", "1037", "1", "x"}, "parameter 2 'x' is not a number"},
    {{"fail-disk", "disk2"}, "disk ID 'disk2' is not a number"},
    {{"fail-disk", "0x1234"}, "there is no disk 0x0000000000001234"},
    {{"smart-error", "0x5000c500e4b2117c", "yes"}, "'yes' is neither on nor off"},
    {{"init"}, "exists; use init --force to replace it"},
    {{"show", "--all"}, "unknown option '--all'"},
    {{"frobnicate"}, "unknown command 'frobnicate'"},
};

TEST_F(Skemu, badArgumentsAreRefusedWithTheReasonAndChangeNothing)
{
    ASSERT_EQ(run({"pull-disk", "0x5000c500e4b1f961"}), 0) << err;
    const std::string before = readAll(state);
    for (const Refused &row : kRefused) {
        SCOPED_TRACE(row.args[0]);
        EXPECT_NE(run(row.args), 0);
        EXPECT_NE(err.find(row.reason), std::string::npos) << err;
        EXPECT_EQ(out, "");
        EXPECT_EQ(readAll(state), before);
    }
    // Pulled once, a disk can't be pulled again, and its port is free for another.
    EXPECT_EQ(run({"pull-disk", "0x5000c500e4b1f961"}), 1);
    EXPECT_NE(err.find("is already pulled out"), std::string::npos) << err;
    EXPECT_EQ(readAll(state), before);
    EXPECT_EQ(run({"insert-disk", "3", "4TB", "M", "S"}), 0) << err;
}

TEST_F(Skemu, malformedStateFileIsReportedWhereTheParserStopped)
{
    const std::string before =
        "{\n  \"format\": \"StrataKeep emulated host\",\n  \"disks\": [1,,]\n}\n";
    writeAll(state, before);
    for (const auto &args : {std::vector<std::string>{"show"}, {"fail-transfers", "1"}}) {
        EXPECT_EQ(run(args), 1);
        EXPECT_NE(err.find(state + ": line 3, column 15: syntax error"), std::string::npos) << err;
        EXPECT_EQ(readAll(state), before);
    }
}

TEST_F(Skemu, changeThatCannotBeWrittenIsReportedNotLost)
{
    // A directory where the replacement file would go makes every write fail.
    const std::string before = readAll(state);
    std::filesystem::create_directory(state + ".tmp");
    EXPECT_EQ(run({"event", "1037", "1"}), 1);
    EXPECT_NE(err.find("event: the change could not be written: " + state + ".tmp"),
              std::string::npos)
        << err;
    EXPECT_EQ(out, "");
    EXPECT_EQ(readAll(state), before);
    std::filesystem::remove(state + ".tmp");
    EXPECT_EQ(run({"event", "1037", "1"}), 0) << err;
}

struct Size
{
    const char *text;
    std::uint64_t sectors; // 0: refused
};

const Size kSizes[] = {
    {"4TB", 7812500000},
    {"960GB", 1875000000},
    {"1.92tb", 3750000000},
    {"7814037168s", 7814037168},
    {"2049s", 2049},
    {"2MB", 3906},
    {"4", 0},
    {"TB", 0},
    {"4 TB", 0},
    {"1.TB", 0},
    {"1.2.3TB", 0},
    {"1.0001KB", 0},
    {"99999PB", 0},
    {"-4TB", 0},
    {"", 0},
};

TEST(SkemuSizes, decimalUnitsOrSectors)
{
    for (const Size &row : kSizes) {
        std::uint64_t sectors = 0;
        std::string why;
        const bool read = parseSectors(row.text, sectors, why);
        EXPECT_EQ(read, row.sectors != 0) << row.text << ": " << why;
        if (read)
            EXPECT_EQ(sectors, row.sectors) << row.text;
        else
            EXPECT_NE(why.find(std::string("'") + row.text + "'"), std::string::npos) << why;
    }
}

} // namespace
