// The emulated Windows storage view: what each question answers for the default
// workstation and for the variations of it a test or scenario sets up.

#include "emulator/emulator.h"

#include <gtest/gtest.h>

#include <functional>

using namespace sk_emu;

namespace {

// Answers rendered as text so one table holds every kind of question.
std::string numbersOf(SK_SystemView &v, char letter)
{
    std::vector<std::uint32_t> numbers;
    if (!v.volumeDiskNumbers(letter, numbers))
        return "none";
    std::string text;
    for (std::uint32_t n : numbers)
        text += (text.empty() ? "" : ",") + std::to_string(n);
    return text;
}

std::string lockOf(SK_SystemView &v, char letter)
{
    switch (v.lockAndDismountVolume(letter)) {
    case SK_VolumeLock::Done:
        return "locked";
    case SK_VolumeLock::LockFailed:
        return "busy";
    case SK_VolumeLock::OpenFailed:
        return "no volume";
    default:
        return "other";
    }
}

// The console's removal path: device number, device instance, eject.
std::string ejectOf(SK_SystemView &v, char letter)
{
    std::uint32_t number = 0, instance = 0, error = 0;
    if (!v.volumeDeviceNumber(letter, number, error))
        return "no device number (" + std::to_string(error) + ")";
    if (!v.findDeviceInstance(number, instance, error))
        return "no device (" + std::to_string(error) + ")";
    const SK_EjectAnswer answer = v.requestDeviceEject(instance);
    if (answer.ejected)
        return "ejected";
    return "vetoed by " + answer.vetoName + " (" + std::to_string(answer.errorCode) + ")";
}

std::string driversOf(SK_SystemView &v)
{
    std::vector<std::string> names;
    v.loadedDrivers(names);
    std::string text;
    for (const std::string &n : names) {
        if (n.rfind("sk", 0) == 0)
            text += n + " ";
    }
    return text;
}

void none(Model &) {}

Array &arrayNamed(Model &m, const char *name)
{
    for (Array &a : m.arrays) {
        if (a.name == name)
            return a;
    }
    return m.arrays.front();
}

// The disk in no array and no spare: the one the system numbers after the arrays.
std::uint64_t plainDisk(const Model &m)
{
    return osDiskNumbers(m).back().first;
}

struct Row
{
    const char *name;
    std::function<void(Model &)> setUp;
    std::function<std::string(SK_SystemView &)> ask;
    std::string answer;
};

const Row kRows[] = {
    {"letters", none, [](SK_SystemView &v) { return v.fixedDriveLetters(); }, "CD"},
    {"lettersOfAPlainDisk",
     [](Model &m) {
         m.volumes.push_back(Volume{'E', {}, {plainDisk(m)}, false, ""});
     },
     [](SK_SystemView &v) { return v.fixedDriveLetters() + " " + numbersOf(v, 'e'); }, "CDE 2"},
    {"noLetters", [](Model &m) { m.volumes.clear(); },
     [](SK_SystemView &v) { return v.fixedDriveLetters(); }, ""},
    {"systemDrive", none,
     [](SK_SystemView &v) { return std::string(1, v.systemDriveLetter()) + v.systemDirectory(); },
     "CC:\\Windows\\system32"},
    {"arraysNumberedByRoute", none,
     [](SK_SystemView &v) { return numbersOf(v, 'C') + " " + numbersOf(v, 'D'); }, "0 1"},
    {"hiddenArrayHasNoNumber",
     [](Model &m) { arrayNamed(m, "System").attributes |= code::AttributeHidden; },
     [](SK_SystemView &v) { return numbersOf(v, 'C') + " " + numbersOf(v, 'D'); }, " 0"},
    {"offlineArrayHasNoNumber",
     [](Model &m) { arrayNamed(m, "System").state = code::ArrayOffline; },
     [](SK_SystemView &v) { return numbersOf(v, 'D'); }, "0"},
    {"unknownLetter", none, [](SK_SystemView &v) { return numbersOf(v, 'Q'); }, "none"},
    {"lockOfSystemVolumeRefused", none, [](SK_SystemView &v) { return lockOf(v, 'C'); }, "busy"},
    {"lockOfDataVolume", none, [](SK_SystemView &v) { return lockOf(v, 'd'); }, "locked"},
    {"lockOfDataVolumeInUse", [](Model &m) { m.volumes[1].inUse = true; },
     [](SK_SystemView &v) { return lockOf(v, 'D'); }, "busy"},
    {"lockOfUnknownVolume", none, [](SK_SystemView &v) { return lockOf(v, 'Q'); }, "no volume"},
    {"eject", none, [](SK_SystemView &v) { return ejectOf(v, 'D'); }, "ejected"},
    {"ejectVetoed", [](Model &m) { m.volumes[1].ejectVeto = "explorer.exe"; },
     [](SK_SystemView &v) { return ejectOf(v, 'D'); }, "vetoed by explorer.exe (23)"},
    {"ejectOfHiddenArray",
     [](Model &m) { arrayNamed(m, "Data").attributes |= code::AttributeHidden; },
     [](SK_SystemView &v) { return ejectOf(v, 'D'); }, "no device number (2)"},
    {"driversLoaded", none, driversOf, "skraid.sys skcfg.sys skbottom.sys "},
    {"configurationDriverUnloaded",
     [](Model &m) {
         for (DriverFile &d : m.host.drivers)
             d.loaded = d.name != "skcfg.sys";
     },
     driversOf, "skraid.sys skbottom.sys "},
    {"notifier", [](Model &m) { m.host.notifierRunning = true; },
     [](SK_SystemView &v) {
         return std::to_string(v.isProcessRunning("skpopup.exe")) +
                std::to_string(v.isProcessRunning("explorer.exe"));
     },
     "10"},
};

class StorageView : public ::testing::TestWithParam<Row>
{
};

TEST_P(StorageView, answersAsTheModelSays)
{
    Model model = defaultScenario();
    GetParam().setUp(model);
    Host host(model, std::make_shared<SK_EmuManualClock>());
    EXPECT_EQ(GetParam().ask(host.system()), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(Rows, StorageView, ::testing::ValuesIn(kRows),
                         [](const auto &row) { return std::string(row.param.name); });

// Stopping the configuration driver takes the control device away with it.
TEST(StorageViewServices, stoppingTheConfigurationDriverRemovesTheControlDevice)
{
    Host host(defaultScenario(), std::make_shared<SK_EmuManualClock>());
    EXPECT_EQ(host.system().serviceControl("skcfg", "", 48), 1u);
    EXPECT_EQ(host.system().serviceControl("skcfg", "", 80), 3u);
    EXPECT_EQ(host.open("\\\\.\\SKConfig0", 0, 0), 0u);
    EXPECT_EQ(host.system().serviceControl("skcfg.sys", "", 32), 1u);
    EXPECT_NE(host.open("\\\\.\\SKConfig0", 0, 0), 0u);
    EXPECT_EQ(host.system().serviceControl("nosuch", "", 32), 3u);
}

} // namespace
