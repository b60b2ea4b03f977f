// Scenario files: what reads back equal, what is refused with which reason, and how
// the state file is kept.

#include "emulator/emulator.h"
#include "temp_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace sk_emu;
namespace fs = std::filesystem;

namespace {

TEST(Scenario, defaultScenarioReadsBackToTheSameText)
{
    const std::string first = writeScenario(defaultScenario());
    Model model;
    std::string error;
    ASSERT_TRUE(parseScenario(first, model, error)) << error;
    EXPECT_EQ(writeScenario(model), first);
    EXPECT_EQ(model.arrays.size(), 2u);
    EXPECT_EQ(model.arrays[1].layout.capacity, 2 * model.arrays[1].layout.members[0].size);
    EXPECT_TRUE(model.disks[5].globalSpare);
    ASSERT_TRUE(model.disks[6].nvme.has_value());
    EXPECT_EQ(model.disks[6].nvme->powerOnHours, 1873u);
}

TEST(Scenario, levelWordsGiveTheirTypesCountsAndCapacities)
{
    const char *text = R"({"format": "StrataKeep emulated host", "version": 1,
        "controllers": [{"id": "0x1"}],
        "disks": [{"id": "0xd1", "port": 0, "capacitySectors": 1000000},
                  {"id": "0xd2", "port": 1, "capacitySectors": 1000000},
                  {"id": "0xd3", "port": 2, "capacitySectors": 1000000},
                  {"id": "0xd4", "port": 3, "capacitySectors": 1000000}],
        "arrays": [{"id": "0xa1", "route": 1, "level": "RAID10", "members": [
                      {"disk": "0xd1", "sizeSectors": 1000}, {"disk": "0xd2", "sizeSectors": 1000},
                      {"disk": "0xd3", "sizeSectors": 1000}, {"disk": "0xd4", "sizeSectors": 1000}]},
                   {"id": "0xa2", "route": 2, "level": "RAID6", "members": [
                      {"disk": "0xd1", "offsetSectors": 1000, "sizeSectors": 500},
                      {"disk": "0xd2", "offsetSectors": 1000, "sizeSectors": 500},
                      {"disk": "0xd3", "offsetSectors": 1000, "sizeSectors": 500},
                      {"disk": "0xd4", "offsetSectors": 1000, "sizeSectors": 400}]}]})";
    Model m;
    std::string error;
    ASSERT_TRUE(parseScenario(text, m, error)) << error;
    EXPECT_EQ(m.arrays[0].layout.firstCount, 2u);
    EXPECT_EQ(m.arrays[0].layout.secondCount, 2u);
    EXPECT_EQ(m.arrays[0].layout.capacity, 2000u);
    EXPECT_EQ(m.arrays[1].layout.type, code::TypeDoubleParity);
    EXPECT_EQ(m.arrays[1].layout.capacity, 800u); // (4 - 2) x the smallest member
}

struct BadScenario
{
    const char *what;
    std::string change; // JSON merged into a valid scenario
    const char *reason;
};

class MalformedScenario : public ::testing::TestWithParam<BadScenario>
{
};

TEST_P(MalformedScenario, isRefusedWithTheFieldAndTheReason)
{
    nlohmann::ordered_json base = nlohmann::ordered_json::parse(writeScenario(defaultScenario()));
    base.merge_patch(nlohmann::ordered_json::parse(GetParam().change));
    Model m;
    std::string error;
    EXPECT_FALSE(parseScenario(base.dump(), m, error)) << GetParam().what;
    EXPECT_NE(error.find(GetParam().reason), std::string::npos) << GetParam().what << ": " << error;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MalformedScenario,
    ::testing::Values(
        BadScenario{"wrong format", R"({"format": "something else"})", "format: expected"},
        BadScenario{"future version", R"({"version": 9})", "version 9 is not supported"},
        BadScenario{"negative generation", R"({"generation": -1})", "must not be negative"},
        BadScenario{"text for a number", R"({"generation": "twelve"})", "is not a number"},
        BadScenario{"disk list is an object", R"({"disks": {"a": 1}})", "disks: expected a list"},
        BadScenario{"event numbers below three",
                    R"({"events": {"entries": [{"number": 2, "message": 1001}]}})",
                    "events.entries[0].number"},
        BadScenario{"unknown level",
                    R"({"arrays": [{"id": "0x5", "route": 3, "level": "RAID7", "members": []}]})",
                    "\"RAID7\" is not a known level"},
        BadScenario{"volume on a missing array",
                    R"({"volumes": [{"letter": "E:", "arrays": ["0x99"]}]})", "no array 0x"},
        BadScenario{"bad drive letter", R"({"volumes": [{"letter": "1"}]})", "not a drive letter"},
        BadScenario{"computer name is not text", R"({"host": {"computerName": 5}})",
                    "host.computerName: expected text"}));

TEST(Scenario, structuralProblemsNameTheOffendingRecord)
{
    Model m = defaultScenario();
    m.arrays[1].layout.members[2].offset = m.disks[4].capacity; // past the end
    std::string error;
    Model back;
    EXPECT_FALSE(parseScenario(writeScenario(m), back, error));
    EXPECT_NE(error.find("arrays[1].members[2]: the extent runs past the end"), std::string::npos)
        << error;

    m = defaultScenario();
    m.arrays[1].route = m.arrays[0].route;
    EXPECT_FALSE(parseScenario(writeScenario(m), back, error));
    EXPECT_NE(error.find("used twice"), std::string::npos) << error;

    m = defaultScenario();
    m.arrays[1].layout.members[0] = m.arrays[0].layout.members[0]; // same extent twice
    EXPECT_FALSE(parseScenario(writeScenario(m), back, error));
    EXPECT_NE(error.find("overlaps"), std::string::npos) << error;

    EXPECT_FALSE(parseScenario("{\"format\": ", back, error));
    EXPECT_EQ(error.rfind("line 1, column 12: syntax error while parsing value", 0), 0u) << error;
    EXPECT_FALSE(parseScenario("{\n  \"a\": [1,\n   ]}", back, error));
    EXPECT_EQ(error.rfind("line 3, column 4: ", 0), 0u) << error;
    EXPECT_FALSE(parseScenario("", back, error));
}

class StateFile : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(folder.created()); }
    std::shared_ptr<Host> open()
    {
        auto host = Host::openStateFile(path, error, std::make_shared<SK_EmuManualClock>());
        EXPECT_TRUE(host) << error;
        return host;
    }

    TempFolder folder;
    const std::string path = folder.file("state.json");
    std::string error;
};

TEST_F(StateFile, isCreatedFromTheDefaultAndSavedOnEveryChange)
{
    auto host = open();
    ASSERT_TRUE(host);
    EXPECT_TRUE(fs::exists(path));

    host->injectEvent(1037, {});
    Model saved;
    ASSERT_TRUE(readStateFile(path, saved, error)) << error;
    EXPECT_EQ(saved.events.back().message, 1037u);
    EXPECT_FALSE(fs::exists(path + ".tmp"));
}

TEST_F(StateFile, malformedFileIsReportedWithItsNameAndLeftAlone)
{
    const std::string broken =
        "{\"format\": \"StrataKeep emulated host\", \"version\": 1, \"disks\": 7}";
    writeAll(path, broken);
    EXPECT_FALSE(Host::openStateFile(path, error));
    EXPECT_EQ(error, path + ": disks: expected a list");
    EXPECT_EQ(readAll(path), broken);
}

// A file spoiled while the host runs (a hand edit gone wrong) is reported, never
// written over; once mended, the host takes the mended state and writes again.
TEST_F(StateFile, fileSpoiledWhileRunningIsLeftForItsOwnerToMend)
{
    auto host = open();
    ASSERT_TRUE(host);
    const std::string sound = readAll(path);
    const std::string spoiled = sound.substr(0, sound.size() / 2);
    writeAll(path, spoiled);

    host->injectEvent(1037, {1});
    EXPECT_TRUE(readAll(path) == spoiled) << "the spoiled file was written over";
    EXPECT_EQ(host->lastSaveError().rfind(path + ": ", 0), 0u) << host->lastSaveError();

    writeAll(path, sound);
    const std::uint32_t next = host->model().nextEventNumber;
    host->injectEvent(1037, {2});
    EXPECT_EQ(host->lastSaveError(), "");
    Model saved;
    ASSERT_TRUE(readStateFile(path, saved, error)) << error;
    EXPECT_EQ(saved.nextEventNumber, next + 1);
    EXPECT_EQ(saved.events.back().params[0], 2u);
}

TEST_F(StateFile, changesByAnotherProcessAreTakenOnTheNextRequest)
{
    // A second host on the same file stands for skemu in another process.
    auto console = open(), tool = open();
    ASSERT_TRUE(console && tool);
    const std::uint64_t disk = console->model().disks[2].id;
    ASSERT_TRUE(tool->failDisk(disk));

    const Model seen = console->model();
    EXPECT_EQ(seen.findDisk(disk)->state, code::DiskOffline);
    EXPECT_EQ(seen.generation, 28u);
}

// The console and skemu take turns at one file; whatever either did must survive the
// other's next write. Fault counters rewrite the file at the same size, the case a
// time stamp alone misses.
TEST_F(StateFile, interleavedChangesOfTwoHostsAreAllKept)
{
    auto a = open(), b = open();
    ASSERT_TRUE(a && b);
    const std::uint32_t first = a->model().nextEventNumber;
    constexpr std::uint32_t kTurns = 200;
    for (std::uint32_t i = 0; i < kTurns; ++i) {
        Host &h = i % 2 ? *b : *a;
        h.injectEvent(1037, {i});
        if (i % 2)
            h.staleNextWrites(i % 7);
        else
            h.failNextTransfers(i % 7);
    }
    Model m;
    ASSERT_TRUE(readStateFile(path, m, error)) << error;
    ASSERT_EQ(m.nextEventNumber, first + kTurns);
    for (std::uint32_t i = 0; i < kTurns; ++i)
        EXPECT_EQ(m.events[m.events.size() - kTurns + i].params[0], i);
    EXPECT_EQ(m.faults.staleWrites, (kTurns - 1) % 7);
    EXPECT_EQ(m.faults.failedTransfers, (kTurns - 2) % 7);
}

TEST_F(StateFile, everyRequestSeesTheOtherProcessFirst)
{
    auto console = open(), tool = open();
    ASSERT_TRUE(console && tool);
    const std::uint64_t session = console->open("\\\\.\\SKConfig0", 0, 0);
    ASSERT_NE(session, 0u);
    std::uint8_t block[512] = {};
    ASSERT_EQ(console->read(session, 0, block, sizeof block).systemError, 0u);

    tool->failNextTransfers(1);
    EXPECT_NE(console->read(session, 0, block, sizeof block).systemError, 0u);
    EXPECT_EQ(console->read(session, 0, block, sizeof block).systemError, 0u);
    // The console's use of the fault reached the file, and so the tool.
    EXPECT_EQ(tool->model().faults.failedTransfers, 0u);
}

TEST_F(StateFile, aChangeThatChangesNothingLeavesTheFileAsItIs)
{
    // Compact JSON: not the layout the host writes, so any rewrite would show.
    const std::string handWritten = nlohmann::json::parse(writeScenario(defaultScenario())).dump();
    writeAll(path, handWritten);
    auto host = open();
    ASSERT_TRUE(host);
    EXPECT_FALSE(host->failDisk(0x1234));
    EXPECT_FALSE(host->setSmartError(0x1234, true));
    host->model();
    EXPECT_EQ(readAll(path), handWritten);
}

} // namespace
