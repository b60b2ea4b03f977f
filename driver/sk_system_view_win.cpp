// The Win32 system view: what the console asks of Windows beyond the control device.
// Volumes and disks are found through the storage and SCSI control codes, the disk
// devices through SetupDi and the configuration manager, and the host facts through
// the ordinary Win32 calls. Every call tolerates a missing right or device: the
// answer is then "nothing there", never a crash.

#include "driver/sk_system_view.h"
#include "driver/sk_types.h"

// clang-format off
#include <windows.h>
#include <initguid.h> // GUID_DEVINTERFACE_DISK is defined, not only declared, here
#include <cfgmgr32.h>
#include <ntddscsi.h>
#include <ntddstor.h>
#include <psapi.h>
#include <setupapi.h>
#include <tlhelp32.h>
#include <winioctl.h>
// clang-format on

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

// Highest SCSI port number searched for the RAID stack's ports, and how many
// operating-system disks are searched for its arrays.
constexpr int kHighestScsiPort = 16;
constexpr int kDiskNumbersSearched = 48;
constexpr int kInquiryDataTries = 4;
constexpr DWORD kInquiryDataSize = 2048;

// The configuration device of the RAID stack answers a standard inquiry with this
// vendor and product; its array devices answer the identifying inquiry with the
// array prefix followed by the device route.
constexpr char kConfigurationIdentity[] = "VOR-RAIDConfiguration";
constexpr std::size_t kConfigurationIdentityLength = 21;
constexpr char kArrayIdentity[] = "VOR-RAID Array ";
constexpr std::size_t kArrayIdentityLength = 15;

// Reply of IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS as the console asks for it: a count,
// then extents of 24 bytes that start with a disk number.
constexpr DWORD kDiskExtentsSize = 416;
constexpr std::size_t kFirstExtent = 8;
constexpr std::size_t kExtentSize = 24;

constexpr int kServiceRounds = 600;
constexpr DWORD kServiceTypeCreated = 272; // own process, interactive
constexpr DWORD kStartAutomatic = 2;
constexpr DWORD kStartOnDemand = 3;
constexpr DWORD kErrorControlNormal = 1;

constexpr char kParametersKey[] = "SYSTEM\\CurrentControlSet\\Services\\SKDriver\\Parameters";

// Where the vendor identification of a standard inquiry sits inside one record of the
// SCSI inquiry data.
constexpr std::size_t kRecordVendorOffset = offsetof(SCSI_INQUIRY_DATA, InquiryData) + 8;
static_assert(kRecordVendorOffset == 20, "inquiry records carry their data from byte 12");

// The pass-through block of the identifying inquiry: request, sense area and reply in
// one 256-byte block.
struct InquiryBlock
{
    SCSI_PASS_THROUGH request;
    UCHAR sense[32];
    UCHAR reply[256 - sizeof(SCSI_PASS_THROUGH) - 32];
};
static_assert(sizeof(InquiryBlock) == 256, "the inquiry block is 256 bytes");

// Closes a handle when it goes out of scope.
class OwnedHandle
{
public:
    explicit OwnedHandle(HANDLE handle) : m_handle(handle) {}
    ~OwnedHandle()
    {
        if (valid())
            CloseHandle(m_handle);
    }
    OwnedHandle(const OwnedHandle &) = delete;
    OwnedHandle &operator=(const OwnedHandle &) = delete;

    bool valid() const { return m_handle && m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

class OwnedService
{
public:
    explicit OwnedService(SC_HANDLE handle) : m_handle(handle) {}
    ~OwnedService()
    {
        if (m_handle)
            CloseServiceHandle(m_handle);
    }
    OwnedService(const OwnedService &) = delete;
    OwnedService &operator=(const OwnedService &) = delete;

    explicit operator bool() const { return m_handle != nullptr; }
    SC_HANDLE get() const { return m_handle; }

private:
    SC_HANDLE m_handle;
};

HANDLE openScsiPort(int port)
{
    char name[32];
    std::snprintf(name, sizeof name, "\\\\.\\Scsi%d:", port);
    return CreateFileA(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       nullptr, OPEN_EXISTING, 0, nullptr);
}

// True when any inquiry record on any bus of the reply names the configuration device.
bool inquiryDataShowsConfiguration(const std::uint8_t *data, std::size_t length)
{
    const std::size_t busesAt = offsetof(SCSI_ADAPTER_BUS_INFO, BusData);
    if (length < busesAt)
        return false;
    const unsigned buses = data[0];
    for (unsigned bus = 0; bus < buses; ++bus) {
        const std::size_t busAt = busesAt + bus * sizeof(SCSI_BUS_DATA);
        if (busAt + sizeof(SCSI_BUS_DATA) > length)
            break;
        std::size_t record = SK_GetU32(data, busAt + offsetof(SCSI_BUS_DATA, InquiryDataOffset));
        // Records are chained forward; a chain that doesn't move forward is broken.
        while (record != 0 &&
               record + kRecordVendorOffset + kConfigurationIdentityLength <= length) {
            if (std::memcmp(data + record + kRecordVendorOffset, kConfigurationIdentity,
                            kConfigurationIdentityLength) == 0)
                return true;
            const std::size_t next =
                SK_GetU32(data, record + offsetof(SCSI_INQUIRY_DATA, NextInquiryDataOffset));
            if (next <= record)
                break;
            record = next;
        }
    }
    return false;
}

// The RAID stack's SCSI ports, scanned from the highest number down; the first found
// is the first of the list. 1, or 3 when a port's inquiry data could not be had.
std::uint32_t raidPorts(std::vector<int> &ports)
{
    ports.clear();
    for (int port = kHighestScsiPort; port >= 0; --port) {
        OwnedHandle handle(openScsiPort(port));
        if (!handle.valid())
            continue;
        std::uint8_t data[kInquiryDataSize];
        DWORD returned = 0;
        bool answered = false;
        for (int attempt = 0; attempt < kInquiryDataTries && !answered; ++attempt) {
            std::memset(data, 0, sizeof data);
            answered = DeviceIoControl(handle.get(), IOCTL_SCSI_GET_INQUIRY_DATA, nullptr, 0, data,
                                       sizeof data, &returned, nullptr);
        }
        if (!answered) {
            std::printf("Error on IOCTL_SCSI_GET_INQUIRY_DATA\n %d",
                        static_cast<int>(GetLastError()));
            return 3;
        }
        if (inquiryDataShowsConfiguration(data, returned))
            ports.push_back(port);
    }
    return 1;
}

// Port, path, target and lun of an operating-system disk.
bool scsiAddressOfDisk(int diskNumber, SCSI_ADDRESS &address)
{
    char name[40];
    std::snprintf(name, sizeof name, "\\\\.\\physicaldrive%d", diskNumber);
    // The address query needs no access right, so it works without elevation.
    OwnedHandle disk(CreateFileA(name, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                 OPEN_EXISTING, 0, nullptr));
    if (!disk.valid())
        return false;
    std::memset(&address, 0, sizeof address);
    DWORD returned = 0;
    return DeviceIoControl(disk.get(), IOCTL_SCSI_GET_ADDRESS, nullptr, 0, &address, sizeof address,
                           &returned, nullptr);
}

// Asks the device at `address` behind `port` who it is; an array of the RAID stack
// answers with its device route.
bool inquireArrayRoute(HANDLE port, const SCSI_ADDRESS &address, std::uint32_t &deviceRoute)
{
    InquiryBlock block;
    std::memset(&block, 0, sizeof block);
    SCSI_PASS_THROUGH &request = block.request;
    request.Length = sizeof(SCSI_PASS_THROUGH);
    request.PathId = address.PathId;
    request.TargetId = address.TargetId;
    request.Lun = address.Lun;
    request.CdbLength = 6;
    request.SenseInfoLength = sizeof block.sense;
    request.DataIn = SCSI_IOCTL_DATA_IN;
    request.DataTransferLength = sizeof block.reply;
    request.TimeOutValue = 5;
    request.DataBufferOffset = offsetof(InquiryBlock, reply);
    request.SenseInfoOffset = offsetof(InquiryBlock, sense);
    request.Cdb[0] = 18; // INQUIRY
    request.Cdb[1] = static_cast<UCHAR>(address.Lun | 1);
    request.Cdb[4] = sizeof block.reply;

    DWORD returned = 0;
    if (!DeviceIoControl(port, IOCTL_SCSI_PASS_THROUGH, &block, sizeof block, &block, sizeof block,
                         &returned, nullptr))
        return false;
    if (std::memcmp(block.reply, kArrayIdentity, kArrayIdentityLength) != 0)
        return false;
    std::uint32_t route = 0;
    std::size_t i = kArrayIdentityLength;
    if (i >= sizeof block.reply || block.reply[i] < '0' || block.reply[i] > '9')
        return false;
    for (; i < sizeof block.reply && block.reply[i] >= '0' && block.reply[i] <= '9'; ++i)
        route = route * 10 + static_cast<std::uint32_t>(block.reply[i] - '0');
    deviceRoute = route;
    return true;
}

// The array route of a disk on `port` (whose handle is `portHandle`). Only a disk
// that sits on that port is asked: another adapter may use the same path, target and
// lun for a device of its own.
bool arrayRouteOnPort(HANDLE portHandle, int port, int diskNumber, std::uint32_t &deviceRoute)
{
    SCSI_ADDRESS address;
    if (!scsiAddressOfDisk(diskNumber, address) || address.PortNumber != port)
        return false;
    return inquireArrayRoute(portHandle, address, deviceRoute);
}

std::string narrow(const WCHAR *text)
{
    const int size = WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1)
        return {};
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text, -1, &result[0], size, nullptr, nullptr);
    result.resize(static_cast<std::size_t>(size - 1));
    return result;
}

std::wstring volumePath(char letter)
{
    std::wstring path = L"\\\\.\\";
    path += static_cast<wchar_t>(static_cast<unsigned char>(letter));
    path += L':';
    return path;
}

bool storageDeviceNumber(HANDLE device, std::uint32_t &deviceNumber)
{
    STORAGE_DEVICE_NUMBER number;
    std::memset(&number, 0, sizeof number);
    DWORD returned = 0;
    if (!DeviceIoControl(device, IOCTL_STORAGE_GET_DEVICE_NUMBER, nullptr, 0, &number,
                         sizeof number, &returned, nullptr))
        return false;
    deviceNumber = number.DeviceNumber;
    return true;
}

std::string formatFileTime(const FILETIME &time)
{
    FILETIME local;
    SYSTEMTIME t;
    if (!FileTimeToLocalFileTime(&time, &local) || !FileTimeToSystemTime(&local, &t))
        return {};
    char text[40];
    std::snprintf(text, sizeof text, "%02d/%02d/%04d %02d:%02d:%02d.%03d", t.wMonth, t.wDay,
                  t.wYear, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds);
    return text;
}

// Turns the file system redirection of a 32-bit process on a 64-bit system off for
// the life of the object, so a scan of the system folder sees the real drivers. The
// switch is looked up at run time: older systems and 64-bit processes may lack it or
// not need it, and then nothing happens.
class FsRedirectionOff
{
public:
    FsRedirectionOff()
    {
        if (HMODULE kernel = GetModuleHandleA("kernel32.dll")) {
            // GetProcAddress answers a generic function pointer; void (*)() is the
            // neutral type that may be cast to the real one.
            const auto generic = reinterpret_cast<void (*)()>(
                GetProcAddress(kernel, "Wow64EnableWow64FsRedirection"));
            m_switch = reinterpret_cast<Switch>(generic);
        }
        if (m_switch)
            m_switch(FALSE);
    }
    ~FsRedirectionOff()
    {
        if (m_switch)
            m_switch(TRUE);
    }
    FsRedirectionOff(const FsRedirectionOff &) = delete;
    FsRedirectionOff &operator=(const FsRedirectionOff &) = delete;

private:
    using Switch = BOOLEAN(WINAPI *)(BOOLEAN);
    Switch m_switch = nullptr;
};

// The version strings of one file, in the order the console prints them. A string
// is looked up under the file's own translation first, then under U.S. English with
// the Windows Latin-1 and the Unicode code pages, the two that version resources
// commonly use.
std::vector<std::pair<std::string, std::string>> versionStrings(const std::string &path)
{
    static const char *const names[] = {"ProductName",      "FileDescription", "FileVersion",
                                        "InternalName",     "CompanyName",     "LegalCopyright",
                                        "OriginalFilename", "ProductVersion",  "Product Version"};
    std::vector<std::pair<std::string, std::string>> strings;
    for (const char *name : names)
        strings.emplace_back(name, std::string());

    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &ignored);
    if (size == 0)
        return strings;
    std::vector<char> info(size);
    if (!GetFileVersionInfoA(path.c_str(), 0, size, info.data()))
        return strings;

    std::vector<std::uint32_t> codes;
    void *translation = nullptr;
    UINT translationLength = 0;
    if (VerQueryValueA(info.data(), "\\VarFileInfo\\Translation", &translation,
                       &translationLength) &&
        translation && translationLength >= 4) {
        const auto *words = static_cast<const std::uint8_t *>(translation);
        codes.push_back((static_cast<std::uint32_t>(SK_GetU16(words, 0)) << 16) |
                        SK_GetU16(words, 2));
    }
    codes.push_back(0x040904E4);
    codes.push_back(0x040904B0);

    for (auto &entry : strings) {
        for (const std::uint32_t code : codes) {
            char block[128];
            std::snprintf(block, sizeof block, "\\StringFileInfo\\%08x\\%s",
                          static_cast<unsigned>(code), entry.first.c_str());
            void *value = nullptr;
            UINT length = 0;
            if (VerQueryValueA(info.data(), block, &value, &length) && value && length > 0) {
                const auto *text = static_cast<const char *>(value);
                entry.second.assign(text, strnlen(text, length));
                break;
            }
        }
    }
    return strings;
}

// How long to wait between two looks at a service in transition: its own wait hint,
// unless that is unreasonably long.
DWORD serviceWait(const SERVICE_STATUS &status, DWORD fallback)
{
    return status.dwWaitHint >= 5000 ? fallback : status.dwWaitHint;
}

bool waitForServiceState(SC_HANDLE service, DWORD wanted, DWORD fallback)
{
    for (int round = 0; round < kServiceRounds; ++round) {
        SERVICE_STATUS status;
        if (!QueryServiceStatus(service, &status))
            return false;
        if (status.dwCurrentState == wanted)
            return true;
        Sleep(serviceWait(status, fallback));
    }
    return false;
}

// Waits while the service is between states. 1: it reached `wanted`; 0: it rests in
// another state; 3: it could not be asked or never came to rest.
std::uint32_t settleService(SC_HANDLE service, DWORD wanted, DWORD fallback)
{
    for (int round = 0; round < kServiceRounds; ++round) {
        SERVICE_STATUS status;
        if (!QueryServiceStatus(service, &status))
            return 3;
        if (status.dwCurrentState == wanted)
            return 1;
        switch (status.dwCurrentState) {
        case SERVICE_START_PENDING:
        case SERVICE_STOP_PENDING:
        case SERVICE_CONTINUE_PENDING:
        case SERVICE_PAUSE_PENDING:
            Sleep(serviceWait(status, fallback));
            break;
        default:
            return 0;
        }
    }
    return 3;
}

std::uint32_t startService(SC_HANDLE manager, const std::string &name)
{
    OwnedService service(OpenServiceA(manager, name.c_str(), SERVICE_ALL_ACCESS));
    if (!service)
        return 3;
    const std::uint32_t settled = settleService(service.get(), SERVICE_RUNNING, 500);
    if (settled != 0)
        return settled;
    if (!StartServiceA(service.get(), 0, nullptr) &&
        GetLastError() != ERROR_SERVICE_ALREADY_RUNNING)
        return 3;
    return waitForServiceState(service.get(), SERVICE_RUNNING, 500) ? 1 : 3;
}

std::uint32_t stopService(SC_HANDLE manager, const std::string &name)
{
    OwnedService service(OpenServiceA(manager, name.c_str(), SERVICE_ALL_ACCESS));
    if (!service)
        return GetLastError() == ERROR_SERVICE_DOES_NOT_EXIST ? 1 : 3;
    const std::uint32_t settled = settleService(service.get(), SERVICE_STOPPED, 1000);
    if (settled != 0)
        return settled;
    SERVICE_STATUS status;
    if (!ControlService(service.get(), SERVICE_CONTROL_STOP, &status) &&
        GetLastError() != ERROR_SERVICE_NOT_ACTIVE)
        return 3;
    return waitForServiceState(service.get(), SERVICE_STOPPED, 1000) ? 1 : 3;
}

std::uint32_t deleteService(SC_HANDLE manager, const std::string &name)
{
    OwnedService service(OpenServiceA(manager, name.c_str(), DELETE));
    if (!service)
        return GetLastError() == ERROR_SERVICE_DOES_NOT_EXIST ? 1 : 3;
    if (DeleteService(service.get()) || GetLastError() == ERROR_SERVICE_MARKED_FOR_DELETE)
        return 1;
    return 3;
}

std::uint32_t createService(SC_HANDLE manager, const std::string &name, const std::string &path)
{
    OwnedService service(CreateServiceA(manager, name.c_str(), name.c_str(), SERVICE_ALL_ACCESS,
                                        kServiceTypeCreated, kStartAutomatic, kErrorControlNormal,
                                        path.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr));
    return service ? 1 : 3;
}

std::uint32_t setStartType(SC_HANDLE manager, const std::string &name, DWORD startType)
{
    OwnedService service(OpenServiceA(manager, name.c_str(), SERVICE_CHANGE_CONFIG));
    if (!service)
        return 3;
    return ChangeServiceConfigA(service.get(), SERVICE_NO_CHANGE, startType, SERVICE_NO_CHANGE,
                                nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)
               ? 1
               : 3;
}

class SK_Win32SystemView final : public SK_SystemView
{
public:
    std::string fixedDriveLetters() override
    {
        std::string letters;
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            const char root[] = {letter, ':', '\\', '\0'};
            if (GetDriveTypeA(root) == DRIVE_FIXED)
                letters += letter;
        }
        return letters;
    }

    char systemDriveLetter() override
    {
        const std::string folder = systemDirectory();
        if (folder.size() < 2 || folder[1] != ':')
            return 0;
        return folder[0];
    }

    bool volumeDiskNumbers(char letter, std::vector<std::uint32_t> &diskNumbers) override
    {
        diskNumbers.clear();
        const char name[] = {'\\', '\\', '.', '\\', letter, ':', '\0'};
        OwnedHandle volume(CreateFileA(name, GENERIC_READ | GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
        if (!volume.valid()) {
            std::printf("Invalid Handle\n");
            return false;
        }
        std::uint8_t extents[kDiskExtentsSize] = {};
        DWORD returned = 0;
        if (!DeviceIoControl(volume.get(), IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, nullptr, 0,
                             extents, sizeof extents, &returned, nullptr))
            return false;
        const std::uint32_t count = SK_GetU32(extents, 0);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::size_t at = kFirstExtent + i * kExtentSize;
            if (at + kExtentSize > returned)
                break;
            diskNumbers.push_back(SK_GetU32(extents, at));
        }
        return true;
    }

    std::uint32_t findOsDiskNumber(std::uint32_t coreNumber, std::uint32_t deviceRoute,
                                   std::uint32_t &diskNumber) override
    {
        std::vector<int> ports;
        if (raidPorts(ports) != 1)
            return 3;
        // Ports were found from the highest number down and count from 1; core 1 is
        // the last one found.
        const std::size_t count = ports.size();
        if (coreNumber == 0 || coreNumber > count)
            return 3;
        const int port = ports[count - coreNumber];
        OwnedHandle portHandle(openScsiPort(port));
        if (!portHandle.valid())
            return 3;
        for (int disk = 0; disk < kDiskNumbersSearched; ++disk) {
            std::uint32_t route = 0;
            if (arrayRouteOnPort(portHandle.get(), port, disk, route) && route == deviceRoute) {
                diskNumber = static_cast<std::uint32_t>(disk);
                return 1;
            }
        }
        return 3;
    }

    std::uint32_t arrayRouteOfOsDisk(std::uint32_t diskNumber, std::uint32_t &deviceRoute) override
    {
        SCSI_ADDRESS address;
        if (diskNumber >= static_cast<std::uint32_t>(kDiskNumbersSearched) ||
            !scsiAddressOfDisk(static_cast<int>(diskNumber), address))
            return 3;
        std::vector<int> ports;
        if (raidPorts(ports) != 1)
            return 3;
        bool raidPort = false;
        for (const int port : ports)
            raidPort = raidPort || port == address.PortNumber;
        if (!raidPort)
            return 3;
        OwnedHandle portHandle(openScsiPort(address.PortNumber));
        if (!portHandle.valid())
            return 3;
        return inquireArrayRoute(portHandle.get(), address, deviceRoute) ? 1 : 3;
    }

    SK_VolumeLock lockAndDismountVolume(char letter) override
    {
        OwnedHandle volume(CreateFileW(volumePath(letter).c_str(), GENERIC_READ | GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
        if (!volume.valid())
            return SK_VolumeLock::OpenFailed;
        DWORD returned = 0;
        if (!DeviceIoControl(volume.get(), FSCTL_LOCK_VOLUME, nullptr, 0, nullptr, 0, &returned,
                             nullptr))
            return SK_VolumeLock::LockFailed;
        if (!DeviceIoControl(volume.get(), FSCTL_DISMOUNT_VOLUME, nullptr, 0, nullptr, 0, &returned,
                             nullptr))
            return SK_VolumeLock::DismountFailed;
        // The lock ends when the handle is closed; the volume stays dismounted.
        return SK_VolumeLock::Done;
    }

    bool volumeDeviceNumber(char letter, std::uint32_t &deviceNumber, std::uint32_t &error) override
    {
        OwnedHandle volume(CreateFileW(volumePath(letter).c_str(), 0,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
        if (!volume.valid() || !storageDeviceNumber(volume.get(), deviceNumber)) {
            error = GetLastError();
            return false;
        }
        return true;
    }

    bool findDeviceInstance(std::uint32_t deviceNumber, std::uint32_t &instance,
                            std::uint32_t &error) override
    {
        HDEVINFO devices = SetupDiGetClassDevsA(&GUID_DEVINTERFACE_DISK, nullptr, nullptr,
                                                DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
        if (devices == INVALID_HANDLE_VALUE) {
            error = GetLastError();
            return false;
        }
        bool found = false;
        SP_DEVINFO_DATA device;
        device.cbSize = sizeof device;
        for (DWORD index = 0; !found && SetupDiEnumDeviceInfo(devices, index, &device); ++index) {
            SP_DEVICE_INTERFACE_DATA face;
            face.cbSize = sizeof face;
            if (!SetupDiEnumDeviceInterfaces(devices, &device, &GUID_DEVINTERFACE_DISK, 0, &face))
                continue;
            DWORD needed = 0;
            SetupDiGetDeviceInterfaceDetailA(devices, &face, nullptr, 0, &needed, nullptr);
            if (needed < sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_A))
                continue;
            // The detail record is variable in length; a vector of pointer-sized cells
            // keeps it aligned as the record needs.
            std::vector<std::uintptr_t> storage(needed / sizeof(std::uintptr_t) + 1);
            auto *detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_A *>(storage.data());
            detail->cbSize = sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_A);
            if (!SetupDiGetDeviceInterfaceDetailA(devices, &face, detail, needed, nullptr, nullptr))
                continue;
            OwnedHandle disk(CreateFileA(detail->DevicePath, 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, 0, nullptr));
            std::uint32_t number = 0;
            if (disk.valid() && storageDeviceNumber(disk.get(), number) && number == deviceNumber) {
                instance = device.DevInst;
                found = true;
            }
        }
        if (!found)
            error = GetLastError();
        SetupDiDestroyDeviceInfoList(devices);
        return found;
    }

    SK_EjectAnswer requestDeviceEject(std::uint32_t instance) override
    {
        SK_EjectAnswer answer;
        PNP_VETO_TYPE vetoType = PNP_VetoTypeUnknown;
        WCHAR vetoName[260] = {};
        const CONFIGRET result = CM_Request_Device_EjectW(instance, &vetoType, vetoName,
                                                          sizeof vetoName / sizeof vetoName[0], 0);
        answer.ejected = result == CR_SUCCESS;
        if (!answer.ejected) {
            answer.errorCode = result;
            answer.vetoType = static_cast<std::uint32_t>(vetoType);
            answer.vetoName = narrow(vetoName);
        }
        return answer;
    }

    bool isElevated() override
    {
        HANDLE token = nullptr;
        if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
            return false;
        OwnedHandle owned(token);
        TOKEN_ELEVATION elevation;
        elevation.TokenIsElevated = 0;
        DWORD size = 0;
        if (!GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size))
            return false;
        return elevation.TokenIsElevated != 0;
    }

    bool loadedDrivers(std::vector<std::string> &baseNames) override
    {
        baseNames.clear();
        LPVOID addresses[1024];
        static_assert(sizeof addresses == 8192 || sizeof(LPVOID) != 8,
                      "room for 1024 driver addresses");
        DWORD needed = 0;
        if (!K32EnumDeviceDrivers(addresses, sizeof addresses, &needed) || needed < 8 ||
            needed > 8191)
            return false;
        const DWORD count = needed / sizeof(LPVOID);
        for (DWORD i = 0; i < count; ++i) {
            char name[MAX_PATH];
            if (K32GetDeviceDriverBaseNameA(addresses[i], name, sizeof name) > 0)
                baseNames.emplace_back(name);
        }
        return true;
    }

    std::string computerName() override
    {
        char name[256] = {};
        DWORD size = sizeof name;
        if (!GetComputerNameA(name, &size) || size >= sizeof name)
            return {};
        return std::string(name, size);
    }

    // Whether a process of exactly that image name runs, as the task list would name
    // it.
    bool isProcessRunning(const std::string &imageName) override
    {
        OwnedHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
        if (!snapshot.valid())
            return false;
        PROCESSENTRY32 entry;
        entry.dwSize = sizeof entry;
        for (BOOL more = Process32First(snapshot.get(), &entry); more;
             more = Process32Next(snapshot.get(), &entry)) {
            if (imageName == entry.szExeFile)
                return true;
        }
        return false;
    }

    std::string systemDirectory() override
    {
        char folder[MAX_PATH + 1] = {};
        const UINT length = GetSystemDirectoryA(folder, sizeof folder);
        if (length == 0 || length >= sizeof folder)
            return {};
        return std::string(folder, length);
    }

    std::uint32_t serviceControl(const std::string &name, const std::string &path,
                                 std::uint32_t action) override
    {
        const bool onlyAsks = action == 80 || action == 128;
        OwnedService manager(OpenSCManagerA(nullptr, nullptr,
                                            onlyAsks ? SC_MANAGER_CONNECT : SC_MANAGER_ALL_ACCESS));
        if (!manager)
            return 3;
        switch (action) {
        case 16:
            if (stopService(manager.get(), name) != 1 || deleteService(manager.get(), name) != 1 ||
                createService(manager.get(), name, path) != 1)
                return 3;
            return startService(manager.get(), name);
        case 32:
            return startService(manager.get(), name);
        case 48:
            return stopService(manager.get(), name);
        case 64:
            if (stopService(manager.get(), name) != 1)
                return 3;
            return deleteService(manager.get(), name);
        case 80: {
            OwnedService service(OpenServiceA(manager.get(), name.c_str(), SERVICE_QUERY_STATUS));
            SERVICE_STATUS status;
            if (!service || !QueryServiceStatus(service.get(), &status))
                return 3;
            return status.dwCurrentState == SERVICE_RUNNING ? 1 : 3;
        }
        case 96:
            return setStartType(manager.get(), name, kStartAutomatic);
        case 112:
            return setStartType(manager.get(), name, kStartOnDemand);
        case 128: {
            OwnedService service(OpenServiceA(manager.get(), name.c_str(), SERVICE_QUERY_STATUS));
            return service ? 1 : 3;
        }
        default:
            return 3;
        }
    }

    bool driverParameters(std::uint32_t &arrayCount, std::uint32_t &fileCount) override
    {
        arrayCount = fileCount = 0;
        HKEY key = nullptr;
        // Creating the key needs the right to write; without it an existing key is
        // still read.
        if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, kParametersKey, 0, nullptr, 0, KEY_READ | KEY_WRITE,
                            nullptr, &key, nullptr) != ERROR_SUCCESS &&
            RegOpenKeyExA(HKEY_LOCAL_MACHINE, kParametersKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        arrayCount = readNumber(key, "ArrayCount");
        fileCount = readNumber(key, "FileCount");
        RegCloseKey(key);
        return true;
    }

    std::vector<SK_FileVersionRecord> fileVersions(const std::string &folder,
                                                   const std::string &pattern) override
    {
        std::vector<SK_FileVersionRecord> records;
        std::string base = folder;
        if (!base.empty() && base.back() != '\\' && base.back() != '/')
            base += '\\';

        FsRedirectionOff redirectionOff;
        WIN32_FIND_DATAA found;
        HANDLE search = FindFirstFileA((base + pattern).c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
            return records;
        do {
            if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                continue;
            SK_FileVersionRecord record;
            record.fileName = found.cFileName;
            record.attributes = found.dwFileAttributes;
            record.creationTime = formatFileTime(found.ftCreationTime);
            record.lastAccessTime = formatFileTime(found.ftLastAccessTime);
            record.lastWriteTime = formatFileTime(found.ftLastWriteTime);
            record.fileSize =
                (static_cast<std::uint64_t>(found.nFileSizeHigh) << 32) | found.nFileSizeLow;
            record.strings = versionStrings(base + found.cFileName);
            records.push_back(std::move(record));
        } while (FindNextFileA(search, &found));
        FindClose(search);
        return records;
    }

private:
    static std::uint32_t readNumber(HKEY key, const char *name)
    {
        DWORD value = 0;
        DWORD type = 0;
        DWORD size = sizeof value;
        if (RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE *>(&value), &size) !=
                ERROR_SUCCESS ||
            type != REG_DWORD || size != sizeof value)
            return 0;
        return value;
    }
};

} // namespace

std::unique_ptr<SK_SystemView> SK_CreateWin32SystemView()
{
    return std::make_unique<SK_Win32SystemView>();
}
