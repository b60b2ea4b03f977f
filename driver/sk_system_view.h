#pragma once
// What the console asks of the operating system beyond the control device: volumes
// and drive letters, the system drive, which disk an array is, volume lock and device
// eject, and host facts (rights, loaded drivers, computer name, running programs,
// driver services, registry parameters, file versions). The defaults answer as a
// system without any of it would: no volumes, no drivers, nothing to find.

#include <cstdint>
#include <string>
#include <vector>

// How a volume lock and dismount ended.
enum class SK_VolumeLock {
    Done,
    OpenFailed,     // the volume could not be opened
    LockFailed,     // FSCTL_LOCK_VOLUME refused: the volume is in use
    DismountFailed, // FSCTL_DISMOUNT_VOLUME refused
};

// Answer of one device eject request.
struct SK_EjectAnswer
{
    bool ejected = false;
    std::uint32_t vetoType = 0;  // 0: no veto, the request failed for another reason
    std::string vetoName;        // who vetoed
    std::uint32_t errorCode = 0; // configuration-manager result when not ejected
};

// Version resources and attributes of one file.
struct SK_FileVersionRecord
{
    std::string fileName;
    std::uint32_t attributes = 0;
    std::string creationTime; // "%02d/%02d/%04d %02d:%02d:%02d.%03d"
    std::string lastAccessTime;
    std::string lastWriteTime;
    std::uint64_t fileSize = 0;
    // Version strings in the order the console prints them: ProductName,
    // FileDescription, FileVersion, InternalName, CompanyName, LegalCopyright,
    // OriginalFilename, ProductVersion, "Product Version".
    std::vector<std::pair<std::string, std::string>> strings;
};

class SK_SystemView
{
public:
    virtual ~SK_SystemView();

    // Letters A to Z whose root is a fixed disk, in order ("CD").
    virtual std::string fixedDriveLetters();
    // First letter of the system folder, or 0 when unknown.
    virtual char systemDriveLetter();
    // Operating-system disk numbers a volume's extents lie on. False when the volume
    // can't be opened.
    virtual bool volumeDiskNumbers(char letter, std::vector<std::uint32_t> &diskNumbers);
    // Operating-system disk number of an array of the given core. 1, or 3 when the
    // array has none (a hidden array, or no such array).
    virtual std::uint32_t findOsDiskNumber(std::uint32_t coreNumber, std::uint32_t deviceRoute,
                                           std::uint32_t &diskNumber);
    // The array route behind an operating-system disk number. 1, or 3 when the disk
    // is not an array of the RAID stack.
    virtual std::uint32_t arrayRouteOfOsDisk(std::uint32_t diskNumber, std::uint32_t &deviceRoute);
    virtual SK_VolumeLock lockAndDismountVolume(char letter);
    // Storage device number of a volume; on failure `error` holds the system error.
    virtual bool volumeDeviceNumber(char letter, std::uint32_t &deviceNumber, std::uint32_t &error);
    // Device instance of the disk device with that number.
    virtual bool findDeviceInstance(std::uint32_t deviceNumber, std::uint32_t &instance,
                                    std::uint32_t &error);
    virtual SK_EjectAnswer requestDeviceEject(std::uint32_t instance);

    virtual bool isElevated();
    // Base names of the loaded kernel modules ("skraid.sys"); false when the
    // enumeration fails.
    virtual bool loadedDrivers(std::vector<std::string> &baseNames);
    virtual std::string computerName();
    virtual bool isProcessRunning(const std::string &imageName);
    virtual std::string systemDirectory();

    // Driver service control with the action codes of SK_ServiceControl; 1 or 3.
    virtual std::uint32_t serviceControl(const std::string &name, const std::string &path,
                                         std::uint32_t action);
    // The values ArrayCount and FileCount of the driver's parameter key; missing values
    // stay 0. False when the key can't be opened or created.
    virtual bool driverParameters(std::uint32_t &arrayCount, std::uint32_t &fileCount);
    // Version records of the files of `folder` whose names match `pattern` ("*.sys").
    virtual std::vector<SK_FileVersionRecord> fileVersions(const std::string &folder,
                                                           const std::string &pattern);
};
