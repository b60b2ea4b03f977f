#include "emulator/sk_emu_scenario.h"
#include "emulator/sk_emu_statefile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace sk_emu {

using Json = nlohmann::ordered_json;

namespace {

constexpr char kFormat[] = "StrataKeep emulated host";
constexpr int kVersion = 1;

// --- Vocabularies of the file ---------------------------------------------------------

struct Word
{
    const char *word;
    std::uint32_t value;
};

const Word kDiskTypes[] = {{"disk", code::DiskTypeDisk},
                           {"core", code::DiskTypeCore},
                           {"unknown", code::DiskTypeUnknown},
                           {"legacy", code::DiskTypeLegacy},
                           {"foreign", code::DiskTypeForeign}};
const Word kDiskStates[] = {{"online", code::DiskOnline},
                            {"offline", code::DiskOffline},
                            {"smart-error", code::DiskSmartError},
                            {"locked", code::DiskLocked}};
const Word kArrayStates[] = {{"normal", code::ArrayNormal},
                             {"critical", code::ArrayCritical},
                             {"offline", code::ArrayOffline},
                             {"outdated", code::ArrayOutdated},
                             {"locked", code::ArrayLocked}};
const Word kTaskTypes[] = {
    {"none", code::TaskNone},         {"transform", code::TaskTransform},
    {"create", code::TaskCreate},     {"check", code::TaskCheck},
    {"copy", code::TaskCopy},         {"restore", code::TaskRestore},
    {"zero", code::TaskZero},         {"secure-erase", code::TaskSecureErase},
    {"tier-move", code::TaskTierMove}};
const Word kTaskStates[] = {{"none", code::TaskStateNone},
                            {"started", code::TaskStarted},
                            {"paused", code::TaskPaused},
                            {"failed", code::TaskFailed},
                            {"completed", code::TaskCompleted}};
const Word kCaches[] = {{"NC", 0},
                        {"R", code::CacheRead},
                        {"W", code::CacheWrite},
                        {"RW", code::CacheRead | code::CacheWrite}};
const Word kPortBits[] = {
    {"1.5g", code::Port1_5G},     {"3g", code::Port3G},         {"6g", code::Port6G},
    {"gen4", code::PortNvmeGen4}, {"gen5", code::PortNvmeGen5}, {"x2", code::PortNvmeX2},
    {"x4", code::PortNvmeX4},     {"x8", code::PortNvmeX8},     {"sata", code::PortSata},
    {"ncq", code::PortNcq},       {"ssd", code::PortSsd},       {"external", code::PortExternal},
    {"4kn", code::Port4Kn},       {"sas", code::PortSas},       {"removable", code::PortRemovable},
    {"gen2", code::PortNvmeGen2}, {"nvme", code::PortNvme}};

template <std::size_t N>
const char *wordOf(const Word (&words)[N], std::uint32_t value)
{
    for (const Word &w : words) {
        if (w.value == value)
            return w.word;
    }
    return nullptr;
}

std::string hex(std::uint64_t value)
{
    char text[24];
    std::snprintf(text, sizeof text, "0x%016llx", static_cast<unsigned long long>(value));
    return text;
}

std::string hex16(std::uint32_t value)
{
    char text[12];
    std::snprintf(text, sizeof text, "0x%04x", value);
    return text;
}

// --- Reading, with the path of every field for the error message ----------------------

std::string join(const std::string &path, const char *key)
{
    return path.empty() ? std::string(key) : path + "." + key;
}

class Reader
{
public:
    bool failed() const { return !m_error.empty(); }
    const std::string &error() const { return m_error; }

    void fail(const std::string &path, const std::string &message)
    {
        if (m_error.empty())
            m_error = path + ": " + message;
    }

    const Json *member(const Json &object, const std::string &path, const char *key, bool required)
    {
        if (!object.is_object()) {
            fail(path, "expected an object");
            return nullptr;
        }
        auto it = object.find(key);
        if (it == object.end()) {
            if (required)
                fail(join(path, key), "is missing");
            return nullptr;
        }
        return &*it;
    }

    // Unsigned numbers: a JSON number, or text in decimal or "0x" hexadecimal.
    std::uint64_t number(const Json &object, const std::string &path, const char *key,
                         std::uint64_t fallback, std::uint64_t max, bool required = false)
    {
        const Json *v = member(object, path, key, required);
        if (!v)
            return fallback;
        const std::string where = join(path, key);
        std::uint64_t value = 0;
        if (v->is_number_unsigned()) {
            value = v->get<std::uint64_t>();
        } else if (v->is_number_integer()) {
            fail(where, "must not be negative");
            return fallback;
        } else if (v->is_string()) {
            const std::string text = v->get<std::string>();
            // Decimal, or hexadecimal behind "0x"; never octal.
            const bool isHex =
                text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
            char *end = nullptr;
            errno = 0;
            value = std::strtoull(text.c_str() + (isHex ? 2 : 0), &end, isHex ? 16 : 10);
            if (text.empty() || text[0] == '-' || *end != '\0' || errno == ERANGE) {
                fail(where, "\"" + text + "\" is not a number");
                return fallback;
            }
        } else {
            fail(where, "expected a number");
            return fallback;
        }
        if (value > max) {
            fail(where,
                 std::to_string(value) + " is out of range (at most " + std::to_string(max) + ")");
            return fallback;
        }
        return value;
    }

    std::uint32_t u32(const Json &o, const std::string &p, const char *k, std::uint32_t fallback,
                      std::uint32_t max = 0xFFFFFFFFu, bool required = false)
    {
        return static_cast<std::uint32_t>(number(o, p, k, fallback, max, required));
    }

    // The drivers report some texts as one word; a blank would split them in the
    // configuration report the console reads.
    std::string oneWord(const Json &object, const std::string &path, const char *key,
                        std::size_t maxLength)
    {
        std::string value = text(object, path, key, maxLength);
        if (value.find_first_of(" \t") != std::string::npos)
            fail(join(path, key), "must be one word without blanks");
        return value;
    }

    std::string text(const Json &object, const std::string &path, const char *key,
                     std::size_t maxLength, bool required = false)
    {
        const Json *v = member(object, path, key, required);
        if (!v)
            return {};
        if (!v->is_string()) {
            fail(join(path, key), "expected text");
            return {};
        }
        std::string value = v->get<std::string>();
        if (value.size() > maxLength)
            fail(join(path, key), "is longer than " + std::to_string(maxLength) + " bytes");
        return value;
    }

    bool flag(const Json &object, const std::string &path, const char *key, bool fallback)
    {
        const Json *v = member(object, path, key, false);
        if (!v)
            return fallback;
        if (!v->is_boolean()) {
            fail(join(path, key), "expected true or false");
            return fallback;
        }
        return v->get<bool>();
    }

    template <std::size_t N>
    std::uint32_t word(const Json &object, const std::string &path, const char *key,
                       const Word (&words)[N], std::uint32_t fallback)
    {
        const Json *v = member(object, path, key, false);
        if (!v)
            return fallback;
        if (v->is_string()) {
            const std::string text = v->get<std::string>();
            for (const Word &w : words) {
                if (text == w.word)
                    return w.value;
            }
            std::string known;
            for (const Word &w : words)
                known += std::string(known.empty() ? "" : ", ") + w.word;
            fail(join(path, key), "\"" + text + "\" is not one of " + known);
            return fallback;
        }
        return u32(object, path, key, fallback);
    }

    const Json *list(const Json &object, const std::string &path, const char *key)
    {
        const Json *v = member(object, path, key, false);
        if (v && !v->is_array()) {
            fail(join(path, key), "expected a list");
            return nullptr;
        }
        return v;
    }

private:
    std::string m_error;
};

std::string at(const std::string &path, const char *key, std::size_t index)
{
    return path + "." + key + "[" + std::to_string(index) + "]";
}

// An ID in a list: "0x..." text or a number.
std::uint64_t idIn(Reader &r, const Json &value, const std::string &path)
{
    Json wrapper = Json::object();
    wrapper["id"] = value;
    return r.number(wrapper, path, "id", 0, ~0ull);
}

std::uint32_t portTypeFrom(Reader &r, const Json &disk, const std::string &path)
{
    const Json *v = r.member(disk, path, "portType", false);
    if (!v || !v->is_array())
        return r.u32(disk, path, "portType", 0);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < v->size(); ++i) {
        const Json &item = (*v)[i];
        bool known = false;
        if (item.is_string()) {
            for (const Word &w : kPortBits) {
                if (item.get<std::string>() == w.word) {
                    bits |= w.value;
                    known = true;
                }
            }
        }
        if (!known)
            r.fail(at(path, "portType", i), "is not a known port property");
    }
    return bits;
}

void readSmart(Reader &r, const Json &d, const std::string &path, Disk &disk)
{
    if (const Json *smart = r.member(d, path, "smart", false)) {
        const std::string p = path + ".smart";
        disk.smartVersion = static_cast<std::uint16_t>(r.u32(*smart, p, "version", 0, 0xFFFF));
        if (const Json *attrs = r.list(*smart, p, "attributes")) {
            if (attrs->size() > 30)
                r.fail(p + ".attributes", "holds more than 30 attributes");
            for (std::size_t i = 0; i < attrs->size() && !r.failed(); ++i) {
                const Json &a = (*attrs)[i];
                const std::string ap = at(p, "attributes", i);
                SmartAttribute s;
                s.id = static_cast<std::uint8_t>(r.u32(a, ap, "id", 0, 255, true));
                s.flags = static_cast<std::uint16_t>(r.u32(a, ap, "flags", 0, 0xFFFF));
                s.current = static_cast<std::uint8_t>(r.u32(a, ap, "current", 100, 255));
                s.worst = static_cast<std::uint8_t>(r.u32(a, ap, "worst", s.current, 255));
                s.raw = r.number(a, ap, "raw", 0, 0xFFFFFFFFFFFFull);
                s.threshold = static_cast<std::uint8_t>(r.u32(a, ap, "threshold", 0, 255));
                disk.smart.push_back(s);
            }
        }
    }
    if (const Json *n = r.member(d, path, "nvme", false)) {
        const std::string p = path + ".nvme";
        NvmeHealth h;
        h.criticalWarning = static_cast<std::uint8_t>(r.u32(*n, p, "criticalWarning", 0, 255));
        h.temperatureKelvin =
            static_cast<std::uint16_t>(r.u32(*n, p, "temperatureKelvin", 308, 0xFFFF));
        h.availableSpare = static_cast<std::uint8_t>(r.u32(*n, p, "availableSpare", 100, 255));
        h.spareThreshold = static_cast<std::uint8_t>(r.u32(*n, p, "spareThreshold", 10, 255));
        h.percentUsed = static_cast<std::uint8_t>(r.u32(*n, p, "percentUsed", 0, 255));
        h.dataUnitsRead = r.number(*n, p, "dataUnitsRead", 0, ~0ull);
        h.dataUnitsWritten = r.number(*n, p, "dataUnitsWritten", 0, ~0ull);
        h.hostReads = r.number(*n, p, "hostReads", 0, ~0ull);
        h.hostWrites = r.number(*n, p, "hostWrites", 0, ~0ull);
        h.busyMinutes = r.number(*n, p, "busyMinutes", 0, ~0ull);
        h.powerCycles = r.number(*n, p, "powerCycles", 0, ~0ull);
        h.powerOnHours = r.number(*n, p, "powerOnHours", 0, ~0ull);
        h.unsafeShutdowns = r.number(*n, p, "unsafeShutdowns", 0, ~0ull);
        h.mediaErrors = r.number(*n, p, "mediaErrors", 0, ~0ull);
        h.errorLogEntries = r.number(*n, p, "errorLogEntries", 0, ~0ull);
        disk.nvme = h;
    }
}

Disk readDisk(Reader &r, const Json &d, const std::string &path)
{
    Disk disk;
    disk.id = r.number(d, path, "id", 0, ~0ull, true);
    disk.controller = r.u32(d, path, "controller", 0, 9);
    disk.port = r.u32(d, path, "port", 0, 254);
    disk.type = r.word(d, path, "type", kDiskTypes, code::DiskTypeDisk);
    disk.state = r.word(d, path, "state", kDiskStates, code::DiskOnline);
    disk.attached = r.flag(d, path, "attached", true);
    disk.globalSpare = r.flag(d, path, "globalSpare", false);
    disk.capacity = r.number(d, path, "capacitySectors", 0, ~0ull, true);
    disk.portType = portTypeFrom(r, d, path);
    disk.features = r.u32(d, path, "featureBits", 0);
    if (r.flag(d, path, "writeCache", false))
        disk.features |= code::FeatureWriteCache;
    if (r.flag(d, path, "readAhead", false))
        disk.features |= code::FeatureReadAhead;
    if (r.flag(d, path, "smartPolling", false))
        disk.features |= code::FeatureSmartPolling;
    disk.model = r.text(d, path, "model", 40);
    disk.serial = r.text(d, path, "serial", 20);
    disk.firmware = r.text(d, path, "firmware", 8);
    disk.vendor = r.text(d, path, "vendor", 8);
    disk.ledState = r.u32(d, path, "led", 0, 10);
    disk.awaitingRescan = r.flag(d, path, "awaitingRescan", false);
    readSmart(r, d, path, disk);
    if (disk.id == 0 && !r.failed())
        r.fail(path + ".id", "0 is not a valid disk ID");
    return disk;
}

// Level words and the type code and counts they stand for, given the member count.
bool levelLayout(const std::string &level, std::size_t members, std::uint32_t rows, Layout &layout)
{
    const auto n = static_cast<std::uint32_t>(members);
    layout.firstCount = 1;
    layout.secondCount = n;
    if (level == "RAID0" || level == "VOLUME") {
        layout.type = level == "RAID0" ? code::TypeMirrorStripe : code::TypeVolume;
        layout.firstCount = n;
        layout.secondCount = 1;
    } else if (level == "RAID1" || level == "RAID1N") {
        layout.type = code::TypeMirrorStripe;
    } else if (level == "RAID10" || level == "RAID10N") {
        layout.type = code::TypeMirrorStripe;
        layout.firstCount = rows ? rows : n / 2;
        layout.secondCount = layout.firstCount ? n / layout.firstCount : 0;
    } else if (level == "RAID5" || level == "RAID50" || level == "RAID6" || level == "RAID60") {
        layout.type =
            (level == "RAID5" || level == "RAID50") ? code::TypeParity : code::TypeDoubleParity;
        layout.firstCount = rows ? rows : 1;
        layout.secondCount = n / layout.firstCount;
    } else if (level == "RAIDTIER") {
        layout.type = code::TypeTier;
        layout.firstCount = n;
        layout.secondCount = 1;
    } else {
        return false;
    }
    return true;
}

const char *levelWord(const Layout &l)
{
    switch (l.type) {
    case code::TypeVolume:
        return "VOLUME";
    case code::TypeTier:
        return "RAIDTIER";
    case code::TypeMirrorStripe:
        if (l.secondCount == 1)
            return "RAID0";
        if (l.firstCount == 1)
            return l.secondCount == 2 ? "RAID1" : "RAID1N";
        return l.secondCount == 2 ? "RAID10" : "RAID10N";
    case code::TypeParity:
        return l.firstCount == 1 ? "RAID5" : "RAID50";
    case code::TypeDoubleParity:
        return l.firstCount == 1 ? "RAID6" : "RAID60";
    default:
        return nullptr;
    }
}

Layout readLayout(Reader &r, const Json &a, const std::string &path)
{
    Layout layout;
    if (const Json *members = r.list(a, path, "members")) {
        if (members->size() > 64)
            r.fail(path + ".members", "holds more than 64 members");
        for (std::size_t i = 0; i < members->size() && !r.failed(); ++i) {
            const Json &m = (*members)[i];
            const std::string mp = at(path, "members", i);
            Member member;
            member.disk = r.number(m, mp, "disk", 0, ~0ull);
            member.offset = r.number(m, mp, "offsetSectors", 0, ~0ull);
            member.size = r.number(m, mp, "sizeSectors", 0, ~0ull, true);
            member.dataOffset = r.number(m, mp, "dataOffsetSectors", member.offset, ~0ull);
            member.dataSize = r.number(m, mp, "dataSizeSectors", member.size, ~0ull);
            member.flags = r.u32(m, mp, "flags", 0);
            layout.members.push_back(member);
        }
    }
    if (r.member(a, path, "type", false)) {
        layout.type = r.u32(a, path, "type", 0);
        layout.firstCount = r.u32(a, path, "firstCount", 1, 64);
        layout.secondCount = r.u32(a, path, "secondCount", 1, 64);
    } else {
        const std::string level = r.text(a, path, "level", 16, true);
        const std::uint32_t rows = r.u32(a, path, "rows", 0, 64);
        if (!r.failed() && !levelLayout(level, layout.members.size(), rows, layout))
            r.fail(path + ".level", "\"" + level + "\" is not a known level");
    }
    if (!r.failed() &&
        static_cast<std::size_t>(layout.firstCount) * layout.secondCount != layout.members.size())
        r.fail(path + ".members", std::to_string(layout.members.size()) + " members do not fill " +
                                      std::to_string(layout.firstCount) + " x " +
                                      std::to_string(layout.secondCount));

    std::uint64_t smallest = ~0ull, sum = 0;
    for (const Member &m : layout.members) {
        smallest = std::min(smallest, m.size);
        sum += m.size;
    }
    const std::uint64_t computed =
        layout.members.empty()
            ? 0
            : layoutCapacity(layout.type, layout.firstCount, layout.secondCount, smallest, sum);
    layout.capacity = r.number(a, path, "capacitySectors", computed, ~0ull);
    return layout;
}

Array readArray(Reader &r, const Json &a, const std::string &path)
{
    Array array;
    array.id = r.number(a, path, "id", 0, ~0ull, true);
    array.route = static_cast<std::uint16_t>(r.u32(a, path, "route", 0, 0xFFFF, true));
    array.name = r.text(a, path, "name", 32);
    array.state = r.word(a, path, "state", kArrayStates, code::ArrayNormal);
    array.layout = readLayout(r, a, path);
    if (const Json *target = r.member(a, path, "target", false))
        array.target = readLayout(r, *target, path + ".target");
    if (const Json *spares = r.list(a, path, "spares")) {
        for (std::size_t i = 0; i < spares->size(); ++i)
            array.spares.push_back(idIn(r, (*spares)[i], at(path, "spares", i)));
    }
    if (const Json *parents = r.list(a, path, "parents")) {
        for (std::size_t i = 0; i < parents->size(); ++i)
            array.parents.push_back(idIn(r, (*parents)[i], at(path, "parents", i)));
    }
    if (const Json *task = r.member(a, path, "task", false)) {
        const std::string tp = path + ".task";
        array.task.type = r.word(*task, tp, "type", kTaskTypes, code::TaskNone);
        array.task.state = r.word(*task, tp, "state", kTaskStates, code::TaskStateNone);
        array.task.progress = r.u32(*task, tp, "progress", 0, 100000);
    }
    array.priority = r.u32(a, path, "priority", 50, 100);
    array.attributes = r.u32(a, path, "attributes", 0);
    if (r.flag(a, path, "hidden", false))
        array.attributes |= code::AttributeHidden;
    array.cachePolicy = r.word(a, path, "cache", kCaches, 0);
    array.cacheTagSize = r.u32(a, path, "cacheTagSize", 0);
    array.referenceCount = r.u32(a, path, "referenceCount", 0);
    array.generation = r.number(a, path, "generation", 1, ~0ull);
    array.copyFrom = r.number(a, path, "copyFrom", 0, ~0ull);
    array.copyTo = r.number(a, path, "copyTo", 0, ~0ull);
    if (array.id == 0 && !r.failed())
        r.fail(path + ".id", "0 is not a valid array ID");
    return array;
}

char driveLetter(Reader &r, const Json &object, const std::string &path, const char *key,
                 char fallback)
{
    const std::string text = r.text(object, path, key, 2);
    if (text.empty())
        return fallback;
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    if (letter < 'A' || letter > 'Z' || (text.size() == 2 && text[1] != ':'))
        r.fail(join(path, key), "\"" + text + "\" is not a drive letter");
    return letter;
}

void readHost(Reader &r, const Json &h, const std::string &path, HostFacts &host)
{
    host.computerName = r.text(h, path, "computerName", 255);
    host.elevated = r.flag(h, path, "elevated", true);
    host.systemDrive = driveLetter(r, h, path, "systemDrive", 'C');
    host.notifierRunning = r.flag(h, path, "notifierRunning", false);
    host.driverBuild = r.oneWord(h, path, "driverBuild", 64);
    if (const Json *drivers = r.list(h, path, "drivers")) {
        for (std::size_t i = 0; i < drivers->size(); ++i) {
            const std::string dp = at(path, "drivers", i);
            DriverFile file;
            file.name = r.text((*drivers)[i], dp, "name", 64, true);
            file.version = r.text((*drivers)[i], dp, "version", 64);
            file.loaded = r.flag((*drivers)[i], dp, "loaded", true);
            host.drivers.push_back(file);
        }
    }
    if (const Json *levels = r.list(h, path, "disabledLevels")) {
        for (std::size_t i = 0; i < levels->size(); ++i) {
            if (!(*levels)[i].is_string())
                r.fail(at(path, "disabledLevels", i), "expected a level word");
            else
                host.disabledLevels.push_back((*levels)[i].get<std::string>());
        }
    }
    if (const Json *p = r.member(h, path, "parameters", false)) {
        host.parameterArrayCount = r.u32(*p, path + ".parameters", "arrayCount", 0);
        host.parameterFileCount = r.u32(*p, path + ".parameters", "fileCount", 0);
    }
}

Controller readController(Reader &r, const Json &c, const std::string &path)
{
    Controller controller;
    controller.id = r.number(c, path, "id", 0, ~0ull, true);
    controller.name = r.oneWord(c, path, "name", 16);
    controller.biosBuild = r.oneWord(c, path, "biosBuild", 32);
    controller.maxArraySectors = r.number(c, path, "maxArraySectors", 0, ~0ull);
    controller.serial = r.number(c, path, "serial", 0, ~0ull);
    controller.ports = r.u32(c, path, "ports", 0, 255);
    if (const Json *pci = r.member(c, path, "pci", false)) {
        const std::string pp = path + ".pci";
        controller.pciVendor = static_cast<std::uint16_t>(r.u32(*pci, pp, "vendor", 0, 0xFFFF));
        controller.pciDevice = static_cast<std::uint16_t>(r.u32(*pci, pp, "device", 0, 0xFFFF));
        controller.pciSubVendor =
            static_cast<std::uint16_t>(r.u32(*pci, pp, "subVendor", 0, 0xFFFF));
        controller.pciSubDevice =
            static_cast<std::uint16_t>(r.u32(*pci, pp, "subDevice", 0, 0xFFFF));
        controller.origPciVendor = static_cast<std::uint16_t>(
            r.u32(*pci, pp, "originalVendor", controller.pciVendor, 0xFFFF));
        controller.origPciDevice = static_cast<std::uint16_t>(
            r.u32(*pci, pp, "originalDevice", controller.pciDevice, 0xFFFF));
        controller.pciLocation = r.u32(*pci, pp, "location", 0);
    }
    return controller;
}

void readEvents(Reader &r, const Json &e, const std::string &path, Model &model)
{
    model.eventCapacity = r.u32(e, path, "capacity", 512, 65536);
    if (model.eventCapacity == 0)
        r.fail(path + ".capacity", "must be at least 1");
    std::uint32_t last = 2;
    if (const Json *entries = r.list(e, path, "entries")) {
        for (std::size_t i = 0; i < entries->size() && !r.failed(); ++i) {
            const Json &x = (*entries)[i];
            const std::string ep = at(path, "entries", i);
            Event event;
            event.number = r.u32(x, ep, "number", 0, 0xFFFFFFFEu, true);
            event.message = static_cast<std::uint16_t>(r.u32(x, ep, "message", 0, 0xFFFF, true));
            event.entryByte = static_cast<std::uint8_t>(r.u32(x, ep, "entryByte", 0, 255));
            if (const Json *params = r.list(x, ep, "params")) {
                if (params->size() > 8)
                    r.fail(ep + ".params", "holds more than 8 parameters");
                for (std::size_t p = 0; p < params->size() && p < 8; ++p) {
                    const Json &v = (*params)[p];
                    if (v.is_number_integer() && !v.is_number_unsigned())
                        event.params[p] = static_cast<std::uint32_t>(v.get<std::int32_t>());
                    else
                        event.params[p] = static_cast<std::uint32_t>(
                            idIn(r, v, ep + ".params[" + std::to_string(p) + "]"));
                }
            }
            if (event.number <= last && !r.failed())
                r.fail(ep + ".number", "event numbers must rise and start at 3 or more");
            last = event.number;
            model.events.push_back(event);
        }
    }
    model.nextEventNumber = r.u32(e, path, "nextNumber", last + 1);
    if (model.nextEventNumber <= last && !r.failed())
        r.fail(path + ".nextNumber", "must be above the last entry's number");
    if (model.events.size() > model.eventCapacity && !r.failed())
        r.fail(path + ".entries", "holds more entries than the capacity");
}

// Cross-checks between sections, once every section has been read.
void checkConsistency(Reader &r, const Model &m)
{
    std::set<std::uint64_t> ids;
    for (std::size_t i = 0; i < m.disks.size(); ++i) {
        const Disk &d = m.disks[i];
        const std::string p = "disks[" + std::to_string(i) + "]";
        if (!ids.insert(d.id).second)
            r.fail(p + ".id", hex(d.id) + " is used twice");
        if (d.controller >= m.controllers.size() && d.type != code::DiskTypeCore)
            r.fail(p + ".controller", "there is no controller " + std::to_string(d.controller));
        for (std::size_t j = 0; j < i; ++j) {
            if (m.disks[j].controller == d.controller && m.disks[j].port == d.port)
                r.fail(p + ".port", "port " + std::to_string(d.port) + " is taken by disks[" +
                                        std::to_string(j) + "]");
        }
    }
    std::set<std::uint32_t> routes;
    std::map<std::uint64_t, std::vector<Extent>> extents;
    for (std::size_t i = 0; i < m.arrays.size(); ++i) {
        const Array &a = m.arrays[i];
        const std::string p = "arrays[" + std::to_string(i) + "]";
        if (!ids.insert(a.id).second)
            r.fail(p + ".id", hex(a.id) + " is used twice");
        if (a.route == 0 || !routes.insert(a.route).second)
            r.fail(p + ".route", "route " + std::to_string(a.route) + " is 0 or used twice");
    }
    for (std::size_t i = 0; i < m.arrays.size(); ++i) {
        const Array &a = m.arrays[i];
        const std::string p = "arrays[" + std::to_string(i) + "]";
        for (std::size_t j = 0; j < a.layout.members.size(); ++j) {
            const Member &mem = a.layout.members[j];
            const std::string mp = p + ".members[" + std::to_string(j) + "]";
            if (mem.disk == 0)
                continue; // a missing member
            if (a.layout.type == code::TypeTier) {
                if (!m.findArray(mem.disk))
                    r.fail(mp + ".disk", "no array " + hex(mem.disk));
                continue;
            }
            const Disk *disk = m.findDisk(mem.disk);
            if (!disk) {
                r.fail(mp + ".disk", "no disk " + hex(mem.disk));
                continue;
            }
            if (mem.offset + mem.size > disk->capacity || mem.offset + mem.size < mem.offset)
                r.fail(mp, "the extent runs past the end of disk " + hex(mem.disk));
            for (const Extent &e : extents[mem.disk]) {
                if (mem.offset < e.offset + e.size && e.offset < mem.offset + mem.size)
                    r.fail(mp,
                           "the extent overlaps another array's extent on disk " + hex(mem.disk));
            }
            extents[mem.disk].push_back({mem.offset, mem.size});
        }
        for (std::uint64_t spare : a.spares) {
            if (!m.findDisk(spare))
                r.fail(p + ".spares", "no disk " + hex(spare));
        }
        for (std::uint64_t parent : a.parents) {
            if (!m.findArray(parent))
                r.fail(p + ".parents", "no array " + hex(parent));
        }
    }
    std::set<char> letters;
    for (std::size_t i = 0; i < m.volumes.size(); ++i) {
        const Volume &v = m.volumes[i];
        const std::string p = "volumes[" + std::to_string(i) + "]";
        if (!letters.insert(v.letter).second)
            r.fail(p + ".letter", std::string(1, v.letter) + ": is used twice");
        for (std::uint64_t a : v.arrays) {
            if (!m.findArray(a))
                r.fail(p + ".arrays", "no array " + hex(a));
        }
        for (std::uint64_t d : v.disks) {
            if (!m.findDisk(d))
                r.fail(p + ".disks", "no disk " + hex(d));
        }
    }
}

// --- Writing ---------------------------------------------------------------------------

Json layoutJson(const Layout &l)
{
    Json j = Json::object();
    if (const char *level = levelWord(l))
        j["level"] = level;
    j["type"] = l.type;
    j["firstCount"] = l.firstCount;
    j["secondCount"] = l.secondCount;
    j["capacitySectors"] = l.capacity;
    Json members = Json::array();
    for (const Member &m : l.members) {
        Json x = Json::object();
        x["disk"] = hex(m.disk);
        x["offsetSectors"] = m.offset;
        x["sizeSectors"] = m.size;
        if (m.dataOffset != m.offset)
            x["dataOffsetSectors"] = m.dataOffset;
        if (m.dataSize != m.size)
            x["dataSizeSectors"] = m.dataSize;
        if (m.flags)
            x["flags"] = m.flags;
        members.push_back(x);
    }
    j["members"] = members;
    return j;
}

Json diskJson(const Disk &d)
{
    Json j = Json::object();
    j["id"] = hex(d.id);
    j["controller"] = d.controller;
    j["port"] = d.port;
    j["type"] = wordOf(kDiskTypes, d.type) ? Json(wordOf(kDiskTypes, d.type)) : Json(d.type);
    j["state"] = wordOf(kDiskStates, d.state) ? Json(wordOf(kDiskStates, d.state)) : Json(d.state);
    if (!d.attached)
        j["attached"] = false;
    if (d.globalSpare)
        j["globalSpare"] = true;
    j["capacitySectors"] = d.capacity;
    Json port = Json::array();
    std::uint32_t known = 0;
    for (const Word &w : kPortBits) {
        if (d.portType & w.value) {
            port.push_back(w.word);
            known |= w.value;
        }
    }
    j["portType"] = known == d.portType ? port : Json(d.portType);
    j["writeCache"] = (d.features & code::FeatureWriteCache) != 0;
    j["readAhead"] = (d.features & code::FeatureReadAhead) != 0;
    j["smartPolling"] = (d.features & code::FeatureSmartPolling) != 0;
    const std::uint32_t otherFeatures =
        d.features &
        ~(code::FeatureWriteCache | code::FeatureReadAhead | code::FeatureSmartPolling);
    if (otherFeatures)
        j["featureBits"] = otherFeatures;
    j["model"] = d.model;
    j["serial"] = d.serial;
    j["firmware"] = d.firmware;
    j["vendor"] = d.vendor;
    if (d.ledState)
        j["led"] = d.ledState;
    if (d.awaitingRescan)
        j["awaitingRescan"] = true;
    if (d.smartVersion || !d.smart.empty()) {
        Json attrs = Json::array();
        for (const SmartAttribute &a : d.smart) {
            attrs.push_back(Json{{"id", a.id},
                                 {"flags", a.flags},
                                 {"current", a.current},
                                 {"worst", a.worst},
                                 {"raw", a.raw},
                                 {"threshold", a.threshold}});
        }
        j["smart"] = Json{{"version", d.smartVersion}, {"attributes", attrs}};
    }
    if (d.nvme) {
        const NvmeHealth &h = *d.nvme;
        j["nvme"] = Json{{"criticalWarning", h.criticalWarning},
                         {"temperatureKelvin", h.temperatureKelvin},
                         {"availableSpare", h.availableSpare},
                         {"spareThreshold", h.spareThreshold},
                         {"percentUsed", h.percentUsed},
                         {"dataUnitsRead", h.dataUnitsRead},
                         {"dataUnitsWritten", h.dataUnitsWritten},
                         {"hostReads", h.hostReads},
                         {"hostWrites", h.hostWrites},
                         {"busyMinutes", h.busyMinutes},
                         {"powerCycles", h.powerCycles},
                         {"powerOnHours", h.powerOnHours},
                         {"unsafeShutdowns", h.unsafeShutdowns},
                         {"mediaErrors", h.mediaErrors},
                         {"errorLogEntries", h.errorLogEntries}};
    }
    return j;
}

Json arrayJson(const Array &a)
{
    Json j = Json::object();
    j["id"] = hex(a.id);
    j["route"] = a.route;
    j["name"] = a.name;
    j["state"] =
        wordOf(kArrayStates, a.state) ? Json(wordOf(kArrayStates, a.state)) : Json(a.state);
    const Json layout = layoutJson(a.layout);
    for (auto &[key, value] : layout.items())
        j[key] = value;
    if (a.target)
        j["target"] = layoutJson(*a.target);
    Json spares = Json::array(), parents = Json::array();
    for (std::uint64_t s : a.spares)
        spares.push_back(hex(s));
    for (std::uint64_t p : a.parents)
        parents.push_back(hex(p));
    j["spares"] = spares;
    j["parents"] = parents;
    Json task = Json::object();
    task["type"] =
        wordOf(kTaskTypes, a.task.type) ? Json(wordOf(kTaskTypes, a.task.type)) : Json(a.task.type);
    task["state"] = wordOf(kTaskStates, a.task.state) ? Json(wordOf(kTaskStates, a.task.state))
                                                      : Json(a.task.state);
    task["progress"] = a.task.progress;
    j["task"] = task;
    j["priority"] = a.priority;
    j["attributes"] = a.attributes;
    j["cache"] =
        wordOf(kCaches, a.cachePolicy) ? Json(wordOf(kCaches, a.cachePolicy)) : Json(a.cachePolicy);
    j["cacheTagSize"] = a.cacheTagSize;
    j["referenceCount"] = a.referenceCount;
    j["generation"] = a.generation;
    if (a.copyFrom)
        j["copyFrom"] = hex(a.copyFrom);
    if (a.copyTo)
        j["copyTo"] = hex(a.copyTo);
    return j;
}

// Takes the parser's first complaint, without exceptions: the byte it stopped at and
// its reason.
class SyntaxErrorCatcher final : public nlohmann::json_sax<Json>
{
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t &) override { return true; }
    bool string(string_t &) override { return true; }
    bool binary(binary_t &) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t &) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t position, const std::string &,
                     const nlohmann::detail::exception &problem) override
    {
        byte = position;
        reason = problem.what();
        return false;
    }

    std::size_t byte = 0;
    std::string reason;
};

// "line 3, column 14: syntax error while parsing object - ..." for text that is no JSON.
// The parser counts the bytes it read; the last of them is the offending one.
std::string jsonSyntaxError(const std::string &text)
{
    SyntaxErrorCatcher catcher;
    Json::sax_parse(text, &catcher);
    const std::size_t at = std::min(catcher.byte ? catcher.byte - 1 : 0, text.size());
    std::size_t line = 1, lineStart = 0;
    for (std::size_t i = 0; i < at; ++i) {
        if (text[i] == '\n') {
            ++line;
            lineStart = i + 1;
        }
    }
    // The reason without the library's own prefix and its own idea of the place.
    std::string reason = catcher.reason;
    if (const std::size_t colon = reason.find(": "); colon != std::string::npos)
        reason = reason.substr(colon + 2);
    if (reason.empty())
        reason = "not valid JSON";
    return "line " + std::to_string(line) + ", column " + std::to_string(at - lineStart + 1) +
           ": " + reason;
}

} // namespace

bool parseScenario(const std::string &text, Model &model, std::string &error)
{
    const Json root = Json::parse(text, nullptr, false);
    if (root.is_discarded()) {
        error = jsonSyntaxError(text);
        return false;
    }
    Reader r;
    model = Model{};
    const std::string format = r.text(root, "", "format", 64, true);
    if (!r.failed() && format != kFormat)
        r.fail("format", "expected \"" + std::string(kFormat) + "\"");
    const std::uint32_t version = r.u32(root, "", "version", 0, 0xFFFF, true);
    if (!r.failed() && version != kVersion)
        r.fail("version", "version " + std::to_string(version) + " is not supported");
    model.generation = r.number(root, "", "generation", 1, ~0ull - 1);

    if (const Json *host = r.member(root, "", "host", false))
        readHost(r, *host, "host", model.host);
    if (const Json *list = r.list(root, "", "controllers")) {
        for (std::size_t i = 0; i < list->size() && i < 10; ++i)
            model.controllers.push_back(
                readController(r, (*list)[i], "controllers[" + std::to_string(i) + "]"));
        if (list->size() > 10)
            r.fail("controllers", "more than 10 controllers");
    }
    if (const Json *list = r.list(root, "", "disks")) {
        if (list->size() > 256)
            r.fail("disks", "more than 256 disks");
        for (std::size_t i = 0; i < list->size() && !r.failed(); ++i)
            model.disks.push_back(readDisk(r, (*list)[i], "disks[" + std::to_string(i) + "]"));
    }
    if (const Json *list = r.list(root, "", "enclosures")) {
        for (std::size_t i = 0; i < list->size() && !r.failed(); ++i) {
            const std::string p = "enclosures[" + std::to_string(i) + "]";
            Enclosure e;
            e.id = r.number((*list)[i], p, "id", 0, ~0ull, true);
            e.controller = r.u32((*list)[i], p, "controller", 0, 9);
            e.slot = r.u32((*list)[i], p, "slot", i, 63);
            e.vendor = r.text((*list)[i], p, "vendor", 8);
            e.product = r.text((*list)[i], p, "product", 16);
            e.revision = r.text((*list)[i], p, "revision", 4);
            e.serial = r.text((*list)[i], p, "serial", 8);
            model.enclosures.push_back(e);
        }
    }
    if (const Json *list = r.list(root, "", "arrays")) {
        if (list->size() > 128)
            r.fail("arrays", "more than 128 arrays");
        for (std::size_t i = 0; i < list->size() && !r.failed(); ++i)
            model.arrays.push_back(readArray(r, (*list)[i], "arrays[" + std::to_string(i) + "]"));
    }
    if (const Json *list = r.list(root, "", "volumes")) {
        for (std::size_t i = 0; i < list->size() && !r.failed(); ++i) {
            const std::string p = "volumes[" + std::to_string(i) + "]";
            Volume v;
            v.letter = driveLetter(r, (*list)[i], p, "letter", 0);
            if (!v.letter && !r.failed())
                r.fail(p + ".letter", "is missing");
            if (const Json *arrays = r.list((*list)[i], p, "arrays")) {
                for (std::size_t k = 0; k < arrays->size(); ++k)
                    v.arrays.push_back(idIn(r, (*arrays)[k], at(p, "arrays", k)));
            }
            if (const Json *disks = r.list((*list)[i], p, "disks")) {
                for (std::size_t k = 0; k < disks->size(); ++k)
                    v.disks.push_back(idIn(r, (*disks)[k], at(p, "disks", k)));
            }
            v.inUse = r.flag((*list)[i], p, "inUse", false);
            v.ejectVeto = r.text((*list)[i], p, "ejectVeto", 260);
            model.volumes.push_back(v);
        }
    }
    if (const Json *events = r.member(root, "", "events", false))
        readEvents(r, *events, "events", model);
    if (const Json *f = r.member(root, "", "faults", false)) {
        model.faults.refuseCount = r.u32(*f, "faults", "refuseRequests", 0);
        model.faults.refuseStatus = r.u32(*f, "faults", "refuseStatus", 3, 82);
        model.faults.staleWrites = r.u32(*f, "faults", "staleWrites", 0);
        model.faults.failedTransfers = r.u32(*f, "faults", "failTransfers", 0);
    }

    if (!r.failed())
        checkConsistency(r, model);
    if (r.failed()) {
        error = r.error();
        return false;
    }
    return true;
}

std::string writeScenario(const Model &model)
{
    Json root = Json::object();
    root["format"] = kFormat;
    root["version"] = kVersion;
    root["generation"] = model.generation;

    const HostFacts &h = model.host;
    Json drivers = Json::array();
    for (const DriverFile &d : h.drivers)
        drivers.push_back(Json{{"name", d.name}, {"version", d.version}, {"loaded", d.loaded}});
    root["host"] = Json{{"computerName", h.computerName},
                        {"elevated", h.elevated},
                        {"systemDrive", std::string(1, h.systemDrive)},
                        {"notifierRunning", h.notifierRunning},
                        {"driverBuild", h.driverBuild},
                        {"drivers", drivers},
                        {"disabledLevels", h.disabledLevels},
                        {"parameters", Json{{"arrayCount", h.parameterArrayCount},
                                            {"fileCount", h.parameterFileCount}}}};

    Json controllers = Json::array();
    for (const Controller &c : model.controllers) {
        controllers.push_back(Json{{"id", hex(c.id)},
                                   {"name", c.name},
                                   {"biosBuild", c.biosBuild},
                                   {"maxArraySectors", c.maxArraySectors},
                                   {"serial", hex(c.serial)},
                                   {"ports", c.ports},
                                   {"pci", Json{{"vendor", hex16(c.pciVendor)},
                                                {"device", hex16(c.pciDevice)},
                                                {"subVendor", hex16(c.pciSubVendor)},
                                                {"subDevice", hex16(c.pciSubDevice)},
                                                {"originalVendor", hex16(c.origPciVendor)},
                                                {"originalDevice", hex16(c.origPciDevice)},
                                                {"location", hex16(c.pciLocation)}}}});
    }
    root["controllers"] = controllers;

    Json disks = Json::array();
    for (const Disk &d : model.disks)
        disks.push_back(diskJson(d));
    root["disks"] = disks;

    Json enclosures = Json::array();
    for (const Enclosure &e : model.enclosures) {
        enclosures.push_back(Json{{"id", hex(e.id)},
                                  {"controller", e.controller},
                                  {"slot", e.slot},
                                  {"vendor", e.vendor},
                                  {"product", e.product},
                                  {"revision", e.revision},
                                  {"serial", e.serial}});
    }
    root["enclosures"] = enclosures;

    Json arrays = Json::array();
    for (const Array &a : model.arrays)
        arrays.push_back(arrayJson(a));
    root["arrays"] = arrays;

    Json volumes = Json::array();
    for (const Volume &v : model.volumes) {
        Json va = Json::array(), vd = Json::array();
        for (std::uint64_t a : v.arrays)
            va.push_back(hex(a));
        for (std::uint64_t d : v.disks)
            vd.push_back(hex(d));
        Json j{{"letter", std::string(1, v.letter) + ":"}, {"arrays", va}, {"disks", vd}};
        if (v.inUse)
            j["inUse"] = true;
        if (!v.ejectVeto.empty())
            j["ejectVeto"] = v.ejectVeto;
        volumes.push_back(j);
    }
    root["volumes"] = volumes;

    Json entries = Json::array();
    for (const Event &e : model.events) {
        Json params = Json::array();
        for (std::uint32_t p : e.params)
            params.push_back(p);
        entries.push_back(Json{{"number", e.number},
                               {"message", e.message},
                               {"entryByte", e.entryByte},
                               {"params", params}});
    }
    root["events"] = Json{{"capacity", model.eventCapacity},
                          {"nextNumber", model.nextEventNumber},
                          {"entries", entries}};
    const PendingFaults &f = model.faults;
    if (f.refuseCount || f.staleWrites || f.failedTransfers) {
        root["faults"] = Json{{"refuseRequests", f.refuseCount},
                              {"refuseStatus", f.refuseStatus},
                              {"staleWrites", f.staleWrites},
                              {"failTransfers", f.failedTransfers}};
    }
    return root.dump(2) + "\n";
}

bool readStateFile(const std::string &path, Model &model, std::string &error)
{
    std::string text, why;
    if (!readStateText(path, text, error))
        return false;
    if (!parseScenario(text, model, why)) {
        error = path + ": " + why;
        return false;
    }
    return true;
}

bool writeStateFileAtomically(const std::string &path, const Model &model, std::string &error)
{
    return writeStateTextAtomically(path, writeScenario(model), error);
}

std::string defaultStateFilePath()
{
    if (const char *chosen = std::getenv("STRATAKEEP_EMULATED_HOST"); chosen && *chosen)
        return chosen;
#ifdef _WIN32
    const char *base = std::getenv("APPDATA");
    const std::string folder = base ? std::string(base) + "\\VOR\\StrataKeep" : ".";
    return folder + "\\emulated-host.json";
#else
    std::string folder;
    if (const char *data = std::getenv("XDG_DATA_HOME"); data && *data)
        folder = data;
    else if (const char *home = std::getenv("HOME"); home && *home)
        folder = std::string(home) + "/.local/share";
    else
        folder = ".";
    return folder + "/VOR/StrataKeep/emulated-host.json";
#endif
}

} // namespace sk_emu
