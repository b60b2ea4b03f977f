#include "emulator/sk_emu_system.h"

#include "emulator/sk_emu_host.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace sk_emu {

namespace {

constexpr std::uint32_t kDeviceInstanceBase = 0x1000;
constexpr std::uint32_t kVetoOutstandingOpen = 6; // PNP_VetoOutstandingOpen

bool isMemberOrSpare(const Model &model, std::uint64_t diskId)
{
    for (const Array &a : model.arrays) {
        for (const Member &m : a.layout.members) {
            if (m.disk == diskId)
                return true;
        }
        if (std::find(a.spares.begin(), a.spares.end(), diskId) != a.spares.end())
            return true;
    }
    const Disk *disk = model.findDisk(diskId);
    return disk && disk->globalSpare;
}

std::string upper(std::string text)
{
    for (char &c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// Simple wildcard match of file names: '*' any run, '?' one character, no case.
bool matches(const std::string &pattern, const std::string &name)
{
    const std::string p = upper(pattern), n = upper(name);
    std::size_t pi = 0, ni = 0, star = std::string::npos, mark = 0;
    while (ni < n.size()) {
        if (pi < p.size() && (p[pi] == '?' || p[pi] == n[ni])) {
            ++pi;
            ++ni;
        } else if (pi < p.size() && p[pi] == '*') {
            star = pi++;
            mark = ni;
        } else if (star != std::string::npos) {
            pi = star + 1;
            ni = ++mark;
        } else {
            return false;
        }
    }
    while (pi < p.size() && p[pi] == '*')
        ++pi;
    return pi == p.size();
}

class EmulatedSystemView final : public SK_SystemView
{
public:
    explicit EmulatedSystemView(Host &host) : m_host(host) {}

    std::string fixedDriveLetters() override
    {
        std::string letters;
        for (const Volume &v : m_host.model().volumes)
            letters += v.letter;
        std::sort(letters.begin(), letters.end());
        return letters;
    }

    char systemDriveLetter() override { return m_host.model().host.systemDrive; }

    bool volumeDiskNumbers(char letter, std::vector<std::uint32_t> &diskNumbers) override
    {
        diskNumbers.clear();
        const Model model = m_host.model();
        const Volume *volume = findVolume(model, letter);
        if (!volume) {
            // As the real view does when the volume can't be opened.
            std::printf("Invalid Handle\n");
            return false;
        }
        const auto numbers = osDiskNumbers(model);
        auto add = [&](std::uint64_t id) {
            for (const auto &[owner, number] : numbers) {
                if (owner == id)
                    diskNumbers.push_back(number);
            }
        };
        for (std::uint64_t a : volume->arrays)
            add(a);
        for (std::uint64_t d : volume->disks)
            add(d);
        return true;
    }

    std::uint32_t findOsDiskNumber(std::uint32_t coreNumber, std::uint32_t deviceRoute,
                                   std::uint32_t &diskNumber) override
    {
        const Model model = m_host.model();
        const Array *array = model.findArrayByRoute(deviceRoute);
        if (coreNumber != 1 || !array)
            return 3;
        for (const auto &[owner, number] : osDiskNumbers(model)) {
            if (owner == array->id) {
                diskNumber = number;
                return 1;
            }
        }
        return 3;
    }

    std::uint32_t arrayRouteOfOsDisk(std::uint32_t diskNumber, std::uint32_t &deviceRoute) override
    {
        const Model model = m_host.model();
        for (const auto &[owner, number] : osDiskNumbers(model)) {
            if (number != diskNumber)
                continue;
            if (const Array *array = model.findArray(owner)) {
                deviceRoute = array->route;
                return 1;
            }
        }
        return 3;
    }

    SK_VolumeLock lockAndDismountVolume(char letter) override
    {
        const Model model = m_host.model();
        const Volume *volume = findVolume(model, letter);
        if (!volume)
            return SK_VolumeLock::OpenFailed;
        return volume->inUse ? SK_VolumeLock::LockFailed : SK_VolumeLock::Done;
    }

    bool volumeDeviceNumber(char letter, std::uint32_t &deviceNumber, std::uint32_t &error) override
    {
        const Model model = m_host.model();
        const Volume *volume = findVolume(model, letter);
        std::vector<std::uint32_t> numbers;
        if (!volume || !volumeDiskNumbers(letter, numbers) || numbers.empty()) {
            error = 2; // ERROR_FILE_NOT_FOUND
            return false;
        }
        if (volume->noDeviceNumber) {
            error = 1; // ERROR_INVALID_FUNCTION
            return false;
        }
        deviceNumber = numbers.front();
        return true;
    }

    bool findDeviceInstance(std::uint32_t deviceNumber, std::uint32_t &instance,
                            std::uint32_t &error) override
    {
        const Model model = m_host.model();
        for (const auto &entry : osDiskNumbers(model)) {
            if (entry.second == deviceNumber && !unlisted(model, entry.first)) {
                instance = kDeviceInstanceBase + deviceNumber;
                return true;
            }
        }
        error = 259; // ERROR_NO_MORE_ITEMS
        return false;
    }

    SK_EjectAnswer requestDeviceEject(std::uint32_t instance) override
    {
        SK_EjectAnswer answer;
        const Model model = m_host.model();
        const auto numbers = osDiskNumbers(model);
        const auto it = std::find_if(numbers.begin(), numbers.end(), [&](const auto &e) {
            return kDeviceInstanceBase + e.second == instance;
        });
        if (instance < kDeviceInstanceBase || it == numbers.end()) {
            answer.errorCode = 13; // CR_NO_SUCH_DEVNODE
            return answer;
        }
        for (const Volume &v : model.volumes) {
            const bool onThisDisk =
                std::find(v.arrays.begin(), v.arrays.end(), it->first) != v.arrays.end() ||
                std::find(v.disks.begin(), v.disks.end(), it->first) != v.disks.end();
            if (onThisDisk && v.ejectError) {
                answer.errorCode = v.ejectError;
                return answer;
            }
            if (onThisDisk && !v.ejectVeto.empty()) {
                answer.vetoType = kVetoOutstandingOpen;
                answer.vetoName = v.ejectVeto;
                answer.errorCode = 23; // CR_REMOVE_VETOED
                if (v.ejectVetoes)
                    countVeto(v.letter);
                return answer;
            }
        }
        answer.ejected = true;
        return answer;
    }

    bool isElevated() override { return m_host.model().host.elevated; }

    bool loadedDrivers(std::vector<std::string> &baseNames) override
    {
        baseNames = {"ntoskrnl.exe", "hal.dll", "storport.sys", "disk.sys", "volmgr.sys"};
        for (const DriverFile &d : m_host.model().host.drivers) {
            if (d.loaded)
                baseNames.push_back(d.name);
        }
        return true;
    }

    std::string computerName() override { return m_host.model().host.computerName; }

    bool isProcessRunning(const std::string &imageName) override
    {
        return imageName == "skpopup.exe" && m_host.model().host.notifierRunning;
    }

    std::string systemDirectory() override
    {
        return std::string(1, m_host.model().host.systemDrive) + ":\\Windows\\system32";
    }

    std::uint32_t serviceControl(const std::string &name, const std::string &,
                                 std::uint32_t action) override
    {
        std::uint32_t result = 3;
        m_host.modify([&](Model &m) {
            DriverFile *driver = findDriver(m, name);
            switch (action) {
            case 16: // recreate and start
            case 32: // start
                if (driver) {
                    driver->loaded = true;
                    result = 1;
                }
                break;
            case 48: // stop
            case 64: // stop and delete: an absent service counts as stopped
                if (driver)
                    driver->loaded = false;
                result = 1;
                break;
            case 80: // query
                result = driver && driver->loaded ? 1 : 3;
                break;
            case 96:
            case 112:
            case 128:
                result = driver ? 1 : 3;
                break;
            default:
                break;
            }
            return false;
        });
        return result;
    }

    bool driverParameters(std::uint32_t &arrayCount, std::uint32_t &fileCount) override
    {
        const HostFacts facts = m_host.model().host;
        arrayCount = facts.parameterArrayCount;
        fileCount = facts.parameterFileCount;
        return true;
    }

    std::vector<SK_FileVersionRecord> fileVersions(const std::string &folder,
                                                   const std::string &pattern) override
    {
        std::vector<SK_FileVersionRecord> records;
        const std::string wanted = upper(systemDirectory() + "\\drivers");
        std::string asked = upper(folder);
        while (!asked.empty() && (asked.back() == '\\' || asked.back() == '/'))
            asked.pop_back();
        if (asked != wanted)
            return records;
        for (const DriverFile &d : m_host.model().host.drivers) {
            if (!matches(pattern, d.name))
                continue;
            SK_FileVersionRecord r;
            r.fileName = d.name;
            r.attributes = 0x20; // FILE_ATTRIBUTE_ARCHIVE
            r.creationTime = "03/14/2026 09:12:44.000";
            r.lastAccessTime = "11/21/2026 08:00:02.117";
            r.lastWriteTime = "03/14/2026 09:12:44.000";
            r.fileSize = 412672;
            r.strings = {{"ProductName", "VOR RAID"},   {"FileDescription", "VOR RAID driver"},
                         {"FileVersion", d.version},    {"InternalName", d.name},
                         {"CompanyName", "VOR"},        {"LegalCopyright", "Copyright (C) VOR"},
                         {"OriginalFilename", d.name},  {"ProductVersion", d.version},
                         {"Product Version", d.version}};
            records.push_back(r);
        }
        return records;
    }

private:
    // A veto that lifts after a number of requests: the holder lets go in the end.
    void countVeto(char letter)
    {
        m_host.modify([letter](Model &m) {
            for (Volume &v : m.volumes) {
                if (v.letter == letter && v.ejectVetoes && --v.ejectVetoes == 0)
                    v.ejectVeto.clear();
            }
            return false;
        });
    }

    static bool unlisted(const Model &model, std::uint64_t owner)
    {
        return std::any_of(model.volumes.begin(), model.volumes.end(), [owner](const Volume &v) {
            return v.unlisted &&
                   (std::find(v.arrays.begin(), v.arrays.end(), owner) != v.arrays.end() ||
                    std::find(v.disks.begin(), v.disks.end(), owner) != v.disks.end());
        });
    }

    static const Volume *findVolume(const Model &model, char letter)
    {
        const char wanted = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        for (const Volume &v : model.volumes) {
            if (v.letter == wanted)
                return &v;
        }
        return nullptr;
    }

    static DriverFile *findDriver(Model &model, const std::string &name)
    {
        for (DriverFile &d : model.host.drivers) {
            if (upper(d.name) == upper(name) || upper(d.name) == upper(name) + ".SYS")
                return &d;
        }
        return nullptr;
    }

    Host &m_host;
};

} // namespace

std::vector<std::pair<std::uint64_t, std::uint32_t>> osDiskNumbers(const Model &model)
{
    std::vector<std::pair<std::uint64_t, std::uint32_t>> numbers;
    std::vector<const Array *> arrays;
    for (const Array &a : model.arrays) {
        if (!a.hidden() && a.state != code::ArrayOffline)
            arrays.push_back(&a);
    }
    std::sort(arrays.begin(), arrays.end(),
              [](const Array *x, const Array *y) { return x->route < y->route; });
    std::uint32_t next = 0;
    for (const Array *a : arrays)
        numbers.emplace_back(a->id, next++);

    std::vector<const Disk *> plain;
    for (const Disk &d : model.disks) {
        if (d.attached && d.type == code::DiskTypeDisk && d.state == code::DiskOnline &&
            !isMemberOrSpare(model, d.id))
            plain.push_back(&d);
    }
    std::sort(plain.begin(), plain.end(), [](const Disk *x, const Disk *y) {
        return x->controller != y->controller ? x->controller < y->controller : x->port < y->port;
    });
    for (const Disk *d : plain)
        numbers.emplace_back(d->id, next++);
    return numbers;
}

std::unique_ptr<SK_SystemView> makeSystemView(Host &host)
{
    return std::make_unique<EmulatedSystemView>(host);
}

} // namespace sk_emu
