// The Win32 system view on a system without the RAID drivers: the host facts any
// Windows answers, and "nothing there" for everything that needs the drivers. Nothing
// here locks, dismounts or ejects a real volume.

#include "driver/sk_platform.h"
#include "driver/sk_services.h"
#include "driver/sk_status.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace {

std::string lower(std::string text)
{
    for (char &c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Wine's own prefix is ours to change; a real system's registry is not.
bool runningUnderWine()
{
    HMODULE ntdll = GetModuleHandleA("ntdll.dll");
    return ntdll && GetProcAddress(ntdll, "wine_get_version");
}

std::string ownImageName()
{
    char path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string full(path, length);
    const std::size_t slash = full.find_last_of("\\/");
    return slash == std::string::npos ? full : full.substr(slash + 1);
}

// A drive letter that names nothing on this system.
char unusedLetter()
{
    for (char letter = 'Z'; letter >= 'A'; --letter) {
        const char root[] = {letter, ':', '\\', '\0'};
        if (GetDriveTypeA(root) == DRIVE_NO_ROOT_DIR)
            return letter;
    }
    return 0;
}

class Win32SystemView : public ::testing::Test
{
protected:
    void SetUp() override
    {
        SK_InstallPlatform(nullptr);
        ASSERT_STREQ(SK_CurrentPlatform().name(), "windows");
    }

    SK_SystemView &view() { return SK_CurrentPlatform().system(); }
};

TEST_F(Win32SystemView, elevationIsAnsweredEitherWay)
{
    const bool first = view().isElevated();
    EXPECT_EQ(view().isElevated(), first) << "the token's elevation changed between two asks";
}

TEST_F(Win32SystemView, computerNameIsNotEmpty)
{
    const std::string name = view().computerName();
    EXPECT_FALSE(name.empty());
    EXPECT_EQ(name.find('\0'), std::string::npos);
}

TEST_F(Win32SystemView, fixedDrivesAreLettersInOrderAndHoldTheSystemDrive)
{
    const std::string letters = view().fixedDriveLetters();
    ASSERT_FALSE(letters.empty()) << "no fixed drive at all";
    EXPECT_TRUE(std::is_sorted(letters.begin(), letters.end())) << letters;
    for (const char letter : letters)
        EXPECT_TRUE(letter >= 'A' && letter <= 'Z') << letters;

    const std::string system = view().systemDirectory();
    ASSERT_GE(system.size(), 3u);
    EXPECT_EQ(lower(system.substr(system.size() - 8)), "system32") << system;
    const char systemDrive = view().systemDriveLetter();
    EXPECT_EQ(systemDrive, system[0]);
    EXPECT_NE(letters.find(static_cast<char>(std::toupper(systemDrive))), std::string::npos)
        << "system drive " << systemDrive << " is not among the fixed drives " << letters;
}

TEST_F(Win32SystemView, aSystemLibraryHasItsVersionRecord)
{
    const std::vector<SK_FileVersionRecord> files =
        view().fileVersions(view().systemDirectory(), "kernel32.dll");
    ASSERT_EQ(files.size(), 1u);
    const SK_FileVersionRecord &file = files.front();
    EXPECT_EQ(lower(file.fileName), "kernel32.dll");
    EXPECT_GT(file.fileSize, 0u);
    EXPECT_EQ(file.attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    const std::regex time(R"(\d\d/\d\d/\d{4} \d\d:\d\d:\d\d\.\d{3})");
    EXPECT_TRUE(std::regex_match(file.creationTime, time)) << file.creationTime;
    EXPECT_TRUE(std::regex_match(file.lastWriteTime, time)) << file.lastWriteTime;

    ASSERT_EQ(file.strings.size(), 9u);
    EXPECT_EQ(file.strings[2].first, "FileVersion");
    EXPECT_FALSE(file.strings[2].second.empty()) << "kernel32.dll has no FileVersion";
    EXPECT_EQ(file.strings[8].first, "Product Version");
}

TEST_F(Win32SystemView, theVersionListWritesOneRowPerMatchingFile)
{
    auto rows = std::make_unique<SK_FileVersionRow[]>(4);
    std::uint32_t count = 0;
    const std::string folder = SK_CurrentPlatform().system().systemDirectory();
    ASSERT_EQ(SK_FileVersionList(folder.c_str(), "kernel32.dll", rows.get(), 4, &count),
              SK_STS_SUCCESS);
    ASSERT_EQ(count, 1u);
    const std::string row(rows[0]);
    EXPECT_NE(lower(row).find("filename=kernel32.dll\n"), std::string::npos) << row;
    EXPECT_TRUE(std::regex_search(row, std::regex("\nFileVersion=[^\n]+\n"))) << row;

    EXPECT_EQ(SK_FileVersionList(folder.c_str(), "no-such-file-*.sys", rows.get(), 4, &count),
              SK_STS_SUCCESS);
    EXPECT_EQ(count, 0u);
}

TEST_F(Win32SystemView, theLoadedDriverListIsConsistent)
{
    std::vector<std::string> names{"left over"};
    if (view().loadedDrivers(names)) {
        EXPECT_FALSE(names.empty());
        EXPECT_EQ(std::count(names.begin(), names.end(), "skraid.sys"), 0);
    } else {
        EXPECT_TRUE(names.empty());
    }
}

TEST_F(Win32SystemView, aRunningProgramIsFoundByItsExactImageName)
{
    const std::string self = ownImageName();
    ASSERT_FALSE(self.empty());
    EXPECT_TRUE(view().isProcessRunning(self)) << self;
    EXPECT_FALSE(view().isProcessRunning("skpopup.exe"));
}

TEST_F(Win32SystemView, noArrayOfTheRaidStackIsFound)
{
    std::uint32_t diskNumber = 12345;
    EXPECT_EQ(view().findOsDiskNumber(1, 0, diskNumber), SK_STS_FAILURE);
    EXPECT_EQ(diskNumber, 12345u);
    EXPECT_EQ(view().findOsDiskNumber(0, 0, diskNumber), SK_STS_FAILURE);
    std::uint32_t route = 0;
    EXPECT_EQ(view().arrayRouteOfOsDisk(0, route), SK_STS_FAILURE);
    EXPECT_EQ(view().arrayRouteOfOsDisk(48, route), SK_STS_FAILURE);
}

TEST_F(Win32SystemView, anAbsentVolumeCanBeNeitherOpenedNorFound)
{
    const char letter = unusedLetter();
    ASSERT_NE(letter, 0) << "every drive letter is in use";
    std::vector<std::uint32_t> disks{7};
    testing::internal::CaptureStdout();
    EXPECT_FALSE(view().volumeDiskNumbers(letter, disks));
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Invalid Handle\n");
    EXPECT_TRUE(disks.empty());

    EXPECT_EQ(view().lockAndDismountVolume(letter), SK_VolumeLock::OpenFailed);
    std::uint32_t number = 0;
    std::uint32_t error = 0;
    EXPECT_FALSE(view().volumeDeviceNumber(letter, number, error));
    EXPECT_NE(error, 0u);
}

TEST_F(Win32SystemView, aDiskDeviceNumberThatNoDiskHasFindsNoInstance)
{
    std::uint32_t instance = 0;
    std::uint32_t error = 0;
    EXPECT_FALSE(view().findDeviceInstance(4000000, instance, error));
    EXPECT_NE(error, 0u);
}

TEST_F(Win32SystemView, anAbsentServiceIsStoppedAndDoesNotExist)
{
    const char *absent = "SKNoSuchService";
    EXPECT_EQ(SK_ServiceControl(absent, "", SK_SERVICE_EXISTS), SK_STS_FAILURE);
    EXPECT_EQ(SK_ServiceControl(absent, "", SK_SERVICE_QUERY), SK_STS_FAILURE);
    if (!view().isElevated() && !runningUnderWine())
        GTEST_SKIP() << "stopping a service needs administrator rights";
    EXPECT_EQ(SK_ServiceControl(absent, "", SK_SERVICE_STOP), SK_STS_SUCCESS);
    EXPECT_EQ(SK_ServiceControl(absent, "", SK_SERVICE_DELETE), SK_STS_SUCCESS);
    EXPECT_EQ(SK_ServiceControl(absent, "", SK_SERVICE_START), SK_STS_FAILURE);
}

TEST_F(Win32SystemView, driverParametersAreReadFromTheirKey)
{
    if (!runningUnderWine()) {
        // Only read: a real system's driver parameters are not a test's to change.
        std::uint32_t arrays = 0;
        std::uint32_t files = 0;
        view().driverParameters(arrays, files);
        return;
    }
    const char *key = "SYSTEM\\CurrentControlSet\\Services\\SKDriver\\Parameters";
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, key);
    {
        SK_RegistryInfo info;
        EXPECT_NE(info.Key, 0u) << "the key was neither opened nor created";
        EXPECT_EQ(info.ArrayCount, 0u);
        EXPECT_EQ(info.FileCount, 0u);
    }
    HKEY handle = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_WRITE, &handle), ERROR_SUCCESS)
        << "opening the parameters did not create their key";
    const DWORD arrays = 3;
    const DWORD files = 7;
    RegSetValueExA(handle, "ArrayCount", 0, REG_DWORD, reinterpret_cast<const BYTE *>(&arrays),
                   sizeof arrays);
    RegSetValueExA(handle, "FileCount", 0, REG_DWORD, reinterpret_cast<const BYTE *>(&files),
                   sizeof files);
    RegCloseKey(handle);
    {
        SK_RegistryInfo info;
        EXPECT_EQ(info.ArrayCount, 3u);
        EXPECT_EQ(info.FileCount, 7u);
    }
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, key);
}

} // namespace
