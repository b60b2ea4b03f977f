// Taking an array out of the system: the volume on it is locked and dismounted,
// Windows is asked to let go of the disk device, the member disks are marked for the
// pull and the array goes offline in the driver. Everything the operating system does
// here goes through the platform's system view, so the emulated host can answer each
// branch. Every step leaves its reason in the application log.

#include "service/sk_applog.h"
#include "service/sk_raidapi.h"

#include "driver/sk_platform.h"

#include <QDebug>
#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

// The disk extents reply has room for this many array ids of one volume.
constexpr int kMaxVolumeArrays = 24;
constexpr int kEjectAttempts = 3;
constexpr std::uint32_t kEjectPauseMs = 50;
constexpr std::uint32_t kHotSwapPort = 1u << 23;

SK_SystemView &systemView()
{
    return SK_CurrentPlatform().system();
}

// One writer of the application log for the span of one function: opened when made,
// each line flushed as it is written, closed at the end. When the file can't be
// opened the lines are lost and the work goes on.
class RemovalLog
{
public:
    RemovalLog()
    {
        if (SK_AppLog::open(m_file, SK_AppLog::filePath(), SK_AppLog::Writer::Dismount))
            m_out.setDevice(&m_file);
    }

    void line(const QString &text)
    {
        if (m_out.device())
            m_out << text << Qt::endl;
    }

    // The critical lines go to the Qt message stream as well.
    void critical(const QString &text)
    {
        qCritical().noquote() << text;
        line(text);
    }

private:
    QFile m_file;
    QTextStream m_out;
};

// The array ids a volume lies on, at most kMaxVolumeArrays. Disks the platform can't
// turn into an array of the stack (plain disks, other controllers) are left out.
std::vector<int> VolumeArrayIds(char letter)
{
    std::vector<int> ids;
    std::vector<std::uint32_t> diskNumbers;
    // The platform prints the failed open itself; it knows an open from the query.
    if (!systemView().volumeDiskNumbers(letter, diskNumbers))
        return ids;
    for (std::uint32_t number : diskNumbers) {
        if (static_cast<int>(ids.size()) == kMaxVolumeArrays)
            break;
        std::uint32_t route = 0;
        if (systemView().arrayRouteOfOsDisk(number, route) == 1)
            ids.push_back(static_cast<int>(route));
    }
    return ids;
}

char volumeLetter(QChar letter)
{
    return letter.toUpper().toLatin1();
}

// A device list of one entry, as the commands take it.
void copyName(SK_DeviceName &out, const char *name, std::size_t size)
{
    std::memset(out, 0, sizeof out);
    std::memcpy(out, name, std::min(size, sizeof out - 1));
}

} // namespace

QString SK_RaidApi::DriveLetters(int arrayId) const
{
    QStringList letters;
    for (char letter : systemView().fixedDriveLetters()) {
        const std::vector<int> ids = VolumeArrayIds(letter);
        if (std::find(ids.begin(), ids.end(), arrayId) != ids.end())
            letters << QString(QLatin1Char(letter)) + QLatin1Char(':');
    }
    return letters.join(QStringLiteral(", "));
}

bool SK_RaidApi::HoldsSystemDrive(int arrayId) const
{
    const char letter = systemView().systemDriveLetter();
    if (letter == 0)
        return false;
    const std::vector<int> ids = VolumeArrayIds(letter);
    return std::find(ids.begin(), ids.end(), arrayId) != ids.end();
}

bool SK_RaidApi::GetVolumeDeviceNumber(QChar letter, quint32 &deviceNumber) const
{
    RemovalLog log;
    const char drive = volumeLetter(letter);
    std::uint32_t number = 0, error = 0;
    if (systemView().volumeDeviceNumber(drive, number, error)) {
        deviceNumber = number;
        return true;
    }
    // The view answers open and query in one; a letter that isn't a volume of the
    // system is one that could not be opened.
    const std::string volumes = systemView().fixedDriveLetters();
    const bool opened = volumes.find(drive) != std::string::npos;
    log.line((opened ? QStringLiteral("Failed to get storage device number: ")
                     : QStringLiteral("Failed to open volume: ")) +
             QString::number(error));
    return false;
}

bool SK_RaidApi::FindMatchingDeviceInstance(quint32 deviceNumber, quint32 &instance) const
{
    RemovalLog log;
    std::uint32_t found = 0, error = 0;
    if (!systemView().findDeviceInstance(deviceNumber, found, error)) {
        log.line(QStringLiteral("Unable to get disk devices: ") + QString::number(error));
        return false;
    }
    instance = found;
    return true;
}

bool SK_RaidApi::LockAndDismountvolume(QChar letter) const
{
    RemovalLog log;
    switch (systemView().lockAndDismountVolume(volumeLetter(letter))) {
    case SK_VolumeLock::Done:
        return true;
    case SK_VolumeLock::OpenFailed:
        log.critical(QStringLiteral("LockAndDismountvolume(): INVALID_HANDLE_VALUE"));
        return false;
    case SK_VolumeLock::LockFailed:
        qCritical("DeviceIoControl - unable to complete FSCTL_LOCK_VOLUME");
        log.line(QStringLiteral(
            "DeviceIoControl - unable to complete FSCTL_LOCK_VOLUME. Device likely in use."));
        return false;
    case SK_VolumeLock::DismountFailed:
        log.critical(QStringLiteral("DeviceIoControl - unable to complete FSCTL_DISMOUNT_VOLUME"));
        return false;
    }
    return false;
}

SK_RemovalResult SK_RaidApi::RequestDeviceEject(QChar letter) const
{
    RemovalLog log;
    // Without a device number the attempts still go out, for device instance 0: the
    // eject is optional and its failure is reported, not fatal.
    quint32 deviceNumber = 0, instance = 0;
    if (GetVolumeDeviceNumber(letter, deviceNumber)) {
        if (!FindMatchingDeviceInstance(deviceNumber, instance)) {
            qCritical("Failed to FindMatchingDeviceInstance()");
            log.line(QStringLiteral("Failed to FindMatchingDeviceInstance(): ") + letter);
            return SK_REMOVAL_NO_DEVICE_INSTANCE;
        }
        qDebug("Found Matching Device Instance");
    }
    for (int attempt = 1; attempt <= kEjectAttempts; ++attempt) {
        const SK_EjectAnswer answer = systemView().requestDeviceEject(instance);
        if (answer.ejected) {
            log.line(QStringLiteral("Success! Completed Windows device eject."));
            return SK_REMOVAL_READY;
        }
        const QString head =
            QStringLiteral("Request Windows device eject - Attempt ") + QString::number(attempt);
        if (answer.vetoType != 0) {
            log.critical(head + QStringLiteral(" unsuccessful. Vetoed by:") +
                         QString::fromLocal8Bit(answer.vetoName.c_str()));
        } else {
            qCritical().noquote() << head + QStringLiteral(" unsuccessful. Error:") +
                                         QString::number(answer.errorCode);
            log.line(head + QStringLiteral(" unsuccessful."));
        }
        // Whoever holds the device often lets go a moment later.
        SK_CurrentPlatform().sleep(kEjectPauseMs);
    }
    log.line(QStringLiteral("Unable to complete optional Windows device eject call - continuing "
                            "prepare to remove operation."));
    return SK_REMOVAL_EJECT_FAILED;
}

SK_RemovalResult SK_RaidApi::DismountAndEject(QChar letter) const
{
    if (!LockAndDismountvolume(letter))
        return SK_REMOVAL_VOLUME_IN_USE;
    return RequestDeviceEject(letter);
}

SK_RemovalResult SK_RaidApi::PrepareArrayRemoval(int arrayId)
{
    RemovalLog log;
    const QString subject = QStringLiteral("PrepareArrayRemoval(%1): ").arg(arrayId);
    const SK_ConfigArray *array = GetArrayRecord(arrayId, true);
    if (!array) {
        log.line(subject + QStringLiteral("no such array"));
        return SK_REMOVAL_REFUSED;
    }
    // A disk shared with another array would take that array down as well.
    if (ArrayHasSharedDisk(arrayId)) {
        log.line(subject + QStringLiteral("a member disk is shared with another array"));
        return SK_REMOVAL_SHARED_DISK;
    }
    if (ArrayIsSystem(arrayId)) {
        log.line(subject + QStringLiteral("the array holds the system drive"));
        return SK_REMOVAL_REFUSED;
    }
    if (ArrayHasTask(arrayId) || array->ReferenceCount != 0) {
        log.line(subject + QStringLiteral("the array is busy"));
        return SK_REMOVAL_REFUSED;
    }

    // What the later steps need, taken now: the hide re-reads the picture.
    SK_DeviceName arrayName;
    copyName(arrayName, array->Name, sizeof array->Name);
    const bool legacy = std::strncmp(array->Type, "LEGACY", sizeof array->Type) == 0;
    std::vector<int> members;
    const int elements = std::clamp(array->FirstCount * array->SecondCount, 0,
                                    static_cast<int>(SK_SNAPSHOT_MEMBERS));
    for (int i = 0; i < elements; ++i)
        members.push_back(array->Members[i].Device);

    // Only the first volume of the array is taken down.
    const QString letters = DriveLetters(arrayId);
    if (!letters.isEmpty()) {
        const SK_RemovalResult ejected = DismountAndEject(letters.at(0));
        if (ejected == SK_REMOVAL_VOLUME_IN_USE || ejected == SK_REMOVAL_NO_DEVICE_INSTANCE)
            return ejected;
    }

    bool hiddenHere = false;
    if (!ArrayIsHidden(arrayId) && !legacy) {
        if (!HideArray(arrayId)) {
            log.line(subject + QStringLiteral("the array could not be hidden"));
            return SK_REMOVAL_REFUSED;
        }
        hiddenHere = true;
    }

    for (int disk : members) {
        const int index = GetDiskIndex(disk);
        if (index < 0 || DiskIsInSystemArray(disk) || DiskIsDedicatedSpare(disk) ||
            DiskIsInRestore(disk))
            continue;
        const SK_ConfigDisk *record = GetDiskRecord(index);
        if (!record || !(record->PortType & kHotSwapPort))
            continue;
        SK_DeviceName diskName;
        copyName(diskName, record->Name, sizeof record->Name);
        SK_ApiManagePhysicalDevice(Channel(), 1, &diskName, 0, SK_DISK_PREPARE_REMOVAL, 0);
    }

    if (SK_ApiOfflineLogicalDevice(Channel(), 1, &arrayName, 0, 0) == SK_STS_SUCCESS) {
        log.line(subject + QStringLiteral("the array is ready to be removed"));
        return SK_REMOVAL_READY;
    }
    log.line(subject + QStringLiteral("the driver refused to take the array offline"));
    if (!hiddenHere)
        return SK_REMOVAL_REFUSED;
    // Give the array back as it was found, unless it changed meanwhile.
    RefreshConfig();
    const SK_ConfigArray *now = GetArrayRecord(arrayId, true);
    if (now && now->ReferenceCount == 0 && ArrayIsHidden(arrayId) && !ArrayHasTask(arrayId)) {
        if (SK_ApiManageLogicalDevice(Channel(), arrayName, SK_HiddenAttributeValue(0), 0) ==
            SK_STS_SUCCESS) {
            Rescan();
            log.line(subject + QStringLiteral("the array is shown again"));
        }
    }
    return SK_REMOVAL_REFUSED;
}
