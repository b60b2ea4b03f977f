#include "driver/sk_system_view.h"

SK_SystemView::~SK_SystemView() = default;

std::string SK_SystemView::fixedDriveLetters()
{
    return {};
}

char SK_SystemView::systemDriveLetter()
{
    return 0;
}

bool SK_SystemView::volumeDiskNumbers(char, std::vector<std::uint32_t> &diskNumbers)
{
    diskNumbers.clear();
    return false;
}

std::uint32_t SK_SystemView::findOsDiskNumber(std::uint32_t, std::uint32_t, std::uint32_t &)
{
    return 3;
}

std::uint32_t SK_SystemView::arrayRouteOfOsDisk(std::uint32_t, std::uint32_t &)
{
    return 3;
}

SK_VolumeLock SK_SystemView::lockAndDismountVolume(char)
{
    return SK_VolumeLock::OpenFailed;
}

bool SK_SystemView::volumeDeviceNumber(char, std::uint32_t &, std::uint32_t &error)
{
    error = 2; // ERROR_FILE_NOT_FOUND
    return false;
}

bool SK_SystemView::findDeviceInstance(std::uint32_t, std::uint32_t &, std::uint32_t &error)
{
    error = 2;
    return false;
}

SK_EjectAnswer SK_SystemView::requestDeviceEject(std::uint32_t)
{
    SK_EjectAnswer answer;
    answer.errorCode = 13; // CR_NO_SUCH_DEVNODE
    return answer;
}

bool SK_SystemView::isElevated()
{
    return false;
}

bool SK_SystemView::loadedDrivers(std::vector<std::string> &baseNames)
{
    baseNames.clear();
    return false;
}

std::string SK_SystemView::computerName()
{
    return {};
}

bool SK_SystemView::isProcessRunning(const std::string &)
{
    return false;
}

std::string SK_SystemView::systemDirectory()
{
    return {};
}

std::uint32_t SK_SystemView::serviceControl(const std::string &, const std::string &, std::uint32_t)
{
    return 3;
}

bool SK_SystemView::driverParameters(std::uint32_t &arrayCount, std::uint32_t &fileCount)
{
    arrayCount = fileCount = 0;
    return false;
}

std::vector<SK_FileVersionRecord> SK_SystemView::fileVersions(const std::string &,
                                                              const std::string &)
{
    return {};
}
