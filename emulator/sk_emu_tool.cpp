#include "emulator/sk_emu_tool.h"

#include "emulator/emulator.h"
#include "emulator/sk_emu_wire.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <tuple>

namespace sk_emu {

namespace {

#ifdef __MINGW32__
#define SK_SAY_FORMAT __attribute__((format(gnu_printf, 2, 3)))
#else
#define SK_SAY_FORMAT __attribute__((format(printf, 2, 3)))
#endif

void say(std::string &to, const char *format, ...) SK_SAY_FORMAT;

void say(std::string &to, const char *format, ...)
{
    va_list args, again;
    va_start(args, format);
    va_copy(again, args);
    const int n = std::vsnprintf(nullptr, 0, format, args);
    if (n > 0) {
        const std::size_t at = to.size();
        to.resize(at + static_cast<std::size_t>(n) + 1);
        std::vsnprintf(&to[at], static_cast<std::size_t>(n) + 1, format, again);
        to.resize(at + static_cast<std::size_t>(n));
    }
    va_end(again);
    va_end(args);
}

const char kUsage[] =
    "usage: skemu [--state FILE] COMMAND [ARGS]\n"
    "\n"
    "The state file is FILE, else $STRATAKEEP_EMULATED_HOST, else the console's own.\n"
    "\n"
    "  init [--force]            write the default scenario to the state file\n"
    "  check                     read the state file and report the first problem\n"
    "  show                      the configuration image, field by field\n"
    "  hex [--previous]          the configuration image as hex\n"
    "  events                    the driver's event log\n"
    "  disks | arrays            short lists with IDs\n"
    "  fail-disk ID              a disk fails\n"
    "  pull-disk ID              a disk is pulled out\n"
    "  insert-disk PORT SIZE MODEL SERIAL [ssd|nvme]\n"
    "                            a disk is plugged into PORT of controller 0;\n"
    "                            SIZE as 4TB, 960GB (decimal units) or 7814037168s (sectors)\n"
    "  smart-error ID on|off     a disk reports (or stops reporting) a SMART error\n"
    "  refuse N STATUS           refuse the next N requests with STATUS\n"
    "  stale-writes N            answer the next N write commands with 38\n"
    "  fail-transfers N          fail the next N transfers at the system level\n"
    "  event MESSAGE [P1 ... P8] append an event to the driver's log\n";

// A number in decimal or 0x hex that fits `max`; false for anything else.
bool parseNumber(const std::string &text, std::uint64_t max, std::uint64_t &value)
{
    const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const std::string digits = hex ? text.substr(2) : text;
    if (digits.empty() || digits.find_first_not_of(hex ? "0123456789abcdefABCDEF" : "0123456789") !=
                              std::string::npos)
        return false;
    errno = 0;
    value = std::strtoull(digits.c_str(), nullptr, hex ? 16 : 10);
    return errno != ERANGE && value <= max;
}

std::string fixedText(const std::uint8_t *p, std::size_t width)
{
    std::string text(reinterpret_cast<const char *>(p), width);
    text.resize(std::strlen(text.c_str()));
    return text;
}

// --- Field-by-field listing, read from the image's own layout ----------------------

void field(std::string &out, std::size_t at, const char *name, const std::string &value)
{
    say(out, "  %5zu  %-24s %s\n", at, name, value.c_str());
}

std::string num(std::uint64_t v)
{
    return std::to_string(v);
}

std::string hexNum(std::uint64_t v)
{
    char text[24];
    std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(v));
    return text;
}

void listDisk(std::string &out, const std::uint8_t *r, std::size_t base, std::size_t size)
{
    using namespace wire;
    say(out, "@%zu disk record (%zu bytes)\n", base, size);
    field(out, 4, "ID", hexNum(u64(r, 4)));
    field(out, 12, "DeviceRoute", num(u16(r, 12)));
    field(out, 14, "CoreRoute", num(u16(r, 14)));
    field(out, 28, "Capacity (sectors)", num(u64(r, 28)));
    field(out, 36, "DeviceType", num(u32(r, 36)));
    field(out, 44, "DeviceState", num(u32(r, 44)));
    field(out, 48, "SpareState", num(u32(r, 48)));
    field(out, 84, "Features", hexNum(u32(r, 84)));
    field(out, 88, "PortType", hexNum(u32(r, 88)));
    if (size < image::DiskSize)
        return;
    field(out, 128, "FirmwareRevision", fixedText(r + 128, 8));
    field(out, 136, "Inquiry model", fixedText(r + 136, 40));
    field(out, 176, "Inquiry serial", fixedText(r + 176, 20));
    field(out, 196, "Controller digit", std::string(1, static_cast<char>(r[196] ? r[196] : ' ')));
    field(out, 197, "Channel digit", std::string(1, static_cast<char>(r[197] ? r[197] : ' ')));
    field(out, 200, "LargestFreeSpace", num(u64(r, 200)));
    field(out, 208, "TotalFreeSpace", num(u64(r, 208)));
    field(out, 216, "VendorID", fixedText(r + 216, 8));
}

void listController(std::string &out, const std::uint8_t *r, std::size_t base)
{
    using namespace wire;
    say(out, "@%zu controller record\n", base);
    field(out, 4, "ID", hexNum(u64(r, 4)));
    field(out, 12, "DeviceRoute", num(u16(r, 12)));
    field(out, 14, "CoreRoute", num(u16(r, 14)));
    field(out, 36, "Name", fixedText(r + 36, 16));
    field(out, 56, "BiosBuild", fixedText(r + 56, 32));
    field(out, 88, "MaxArraySize", num(u64(r, 88)));
    field(out, 96, "SerialNumber", hexNum(u64(r, 96)));
    field(out, 104, "NumberOfPorts", num(u32(r, 104)));
    field(out, 108, "PciVendorID", hexNum(u16(r, 108)));
    field(out, 110, "PciDeviceID", hexNum(u16(r, 110)));
    field(out, 112, "ControllerNumber", num(u32(r, 112)));
    field(out, 120, "ControllerId", hexNum(u64(r, 120)));
    field(out, 132, "PCILocation", hexNum(u32(r, 132)));
}

void listEnclosure(std::string &out, const std::uint8_t *r, std::size_t base)
{
    using namespace wire;
    say(out, "@%zu enclosure record\n", base);
    field(out, 4, "ID", hexNum(u64(r, 4)));
    field(out, 12, "DeviceRoute", num(u16(r, 12)));
    field(out, 14, "CoreRoute", num(u16(r, 14)));
    field(out, 20, "Vendor", fixedText(r + 20, 8));
    field(out, 28, "Product", fixedText(r + 28, 16));
    field(out, 44, "Revision", fixedText(r + 44, 4));
    field(out, 48, "SerialNumber", fixedText(r + 48, 8));
}

void listArray(std::string &out, const std::uint8_t *r, std::size_t base, std::size_t length)
{
    using namespace wire;
    say(out, "@%zu array record (%zu bytes)\n", base, length);
    field(out, 8, "State", num(u32(r, 8)));
    field(out, 12, "Type", num(u32(r, 12)));
    field(out, 16, "TaskType", num(u32(r, 16)));
    field(out, 24, "TaskState", num(u32(r, 24)));
    field(out, 44, "ID", hexNum(u64(r, 44)));
    field(out, 52, "DeviceRoute", num(u16(r, 52)));
    field(out, 54, "CoreRoute", num(u16(r, 54)));
    field(out, 80, "Capacity (sectors)", num(u64(r, 80)));
    field(out, 96, "Generation", num(u64(r, 96)));
    field(out, 104, "ElementCount", num(u32(r, 104)));
    field(out, 108, "FirstCount", num(u32(r, 108)));
    field(out, 112, "SecondCount", num(u32(r, 112)));
    field(out, 116, "ParentCount", num(u32(r, 116)));
    field(out, 128, "CachePolicy", hexNum(u32(r, 128)));
    field(out, 140, "SpareCount", num(u32(r, 140)));
    field(out, 148, "PercentComplete", num(u32(r, 148)));
    field(out, 152, "Attributes", hexNum(u32(r, 152)));
    field(out, 168, "TaskPriority", num(u32(r, 168)));
    field(out, 176, "DisplayName", fixedText(r + 176, 32));
    field(out, 208, "ReferenceCount", num(u32(r, 208)));
    field(out, 272, "CacheTagSize", num(u32(r, 272)));
    const std::size_t members = static_cast<std::size_t>(u32(r, 108)) * u32(r, 112);
    std::size_t at = image::ArrayFixedSize;
    for (std::size_t i = 0; i < members && at + image::MemberSize <= length; ++i) {
        say(out, "  %5zu  member %-17zu ID %s route %u/%u offset %llu size %llu flags 0x%x\n", at,
            i, hexNum(u64(r, at)).c_str(), u16(r, at + 10), u16(r, at + 8),
            static_cast<unsigned long long>(u64(r, at + 16)),
            static_cast<unsigned long long>(u64(r, at + 24)), u32(r, at + 48));
        at += image::MemberSize;
    }
    const std::size_t parents = u32(r, 116), spares = u32(r, 140);
    for (std::size_t i = 0; i < parents + spares && at + image::ReferenceSize <= length; ++i) {
        say(out, "  %5zu  %-6s %-17zu ID %s route %u/%u\n", at, i < parents ? "parent" : "spare",
            i < parents ? i : i - parents, hexNum(u64(r, at)).c_str(), u16(r, at + 10),
            u16(r, at + 8));
        at += image::ReferenceSize;
    }
}

void listImage(std::string &out, const std::vector<std::uint8_t> &bytes, bool previous)
{
    using namespace wire;
    say(out, "image of %zu bytes, generation %llu\n", bytes.size(),
        static_cast<unsigned long long>(u64(bytes.data(), image::GenerationAt)));
    std::size_t at = image::HeaderSize;
    while (at + 4 <= bytes.size()) {
        const std::uint8_t *r = bytes.data() + at;
        const std::uint32_t tag = u32(r, 0);
        std::size_t length = 0;
        if (tag == image::TagDisk) {
            length = previous ? image::DiskSizePrevious : image::DiskSize;
            listDisk(out, r, at, length);
        } else if (tag == image::TagController) {
            length = image::ControllerSize;
            listController(out, r, at);
        } else if (tag == image::TagEnclosure) {
            length = image::EnclosureSize;
            listEnclosure(out, r, at);
        } else if (tag == image::TagArray) {
            length = u32(r, 144);
            listArray(out, r, at, length);
        } else {
            break;
        }
        if (length == 0)
            break;
        at += length;
    }
}

void hexDump(std::string &out, const std::vector<std::uint8_t> &bytes)
{
    for (std::size_t at = 0; at < bytes.size(); at += 16) {
        say(out, "%06zx ", at);
        for (std::size_t i = 0; i < 16; ++i) {
            if (at + i < bytes.size())
                say(out, " %02x", bytes[at + i]);
            else
                say(out, "   ");
        }
        say(out, "  ");
        for (std::size_t i = 0; i < 16 && at + i < bytes.size(); ++i) {
            const int c = bytes[at + i];
            out += static_cast<char>(c >= 32 && c < 127 ? c : '.');
        }
        out += '\n';
    }
}

void listEvents(std::string &out, const Model &model)
{
    for (const Event &e : model.events) {
        say(out, "%05u: [%02x] (%05u)", e.number, e.entryByte, e.message);
        for (std::uint32_t p : e.params)
            say(out, " %d", static_cast<int>(p));
        out += '\n';
    }
    say(out, "next event number %u, %zu of %u entries kept\n", model.nextEventNumber,
        model.events.size(), model.eventCapacity);
}

// Each refusal names the command and what is wrong with which argument.
class Refusal
{
public:
    explicit Refusal(std::string &err) : m_err(err) {}
    int operator()(const std::string &command, const std::string &why)
    {
        say(m_err, "skemu: %s: %s\n", command.c_str(), why.c_str());
        return 1;
    }

private:
    std::string &m_err;
};

std::string quoted(const std::string &text)
{
    return "'" + text + "'";
}

std::string diskId(std::uint64_t id)
{
    char text[24];
    std::snprintf(text, sizeof text, "0x%016llx", static_cast<unsigned long long>(id));
    return text;
}

int run(const std::string &state, const std::vector<std::string> &args, std::string &out,
        std::string &err)
{
    const std::string &command = args[0];
    const std::size_t given = args.size() - 1;
    Refusal refuse(err);
    auto arity = [&](std::size_t least, std::size_t most) -> std::string {
        if (given < least)
            return "too few arguments (see skemu --help)";
        if (given > most)
            return "too many arguments: " + quoted(args[most + 1]) + " is one too many";
        return {};
    };
    // Counts and codes: a number that fits 32 bits.
    auto word32 = [&](std::size_t i, const char *what, std::uint32_t &value) -> std::string {
        std::uint64_t v = 0;
        if (!parseNumber(args[i], 0xFFFFFFFFull, v))
            return std::string(what) + " " + quoted(args[i]) +
                   " is not a number from 0 to 4294967295";
        value = static_cast<std::uint32_t>(v);
        return {};
    };

    static const std::vector<std::pair<std::string, std::pair<std::size_t, std::size_t>>> kArity = {
        {"init", {0, 1}},         {"check", {0, 0}},          {"show", {0, 1}},
        {"hex", {0, 1}},          {"events", {0, 0}},         {"disks", {0, 0}},
        {"arrays", {0, 0}},       {"fail-disk", {1, 1}},      {"pull-disk", {1, 1}},
        {"insert-disk", {4, 5}},  {"smart-error", {2, 2}},    {"refuse", {2, 2}},
        {"stale-writes", {1, 1}}, {"fail-transfers", {1, 1}}, {"event", {1, 9}}};
    const auto known = std::find_if(kArity.begin(), kArity.end(),
                                    [&](const auto &entry) { return entry.first == command; });
    if (known == kArity.end()) {
        say(err, "skemu: unknown command %s\n", quoted(command).c_str());
        err += kUsage;
        return 2;
    }
    if (const std::string why = arity(known->second.first, known->second.second); !why.empty())
        return refuse(command, why);
    const bool previousAsked = given == 1 && args[1] == "--previous";
    if ((command == "show" || command == "hex") && given == 1 && !previousAsked)
        return refuse(command, "unknown option " + quoted(args[1]));

    if (command == "init") {
        const bool force = given == 1 && args[1] == "--force";
        if (given == 1 && !force)
            return refuse(command, "unknown option " + quoted(args[1]));
        StateFileLock lock(state);
        std::FILE *existing = std::fopen(state.c_str(), "rb");
        if (existing)
            std::fclose(existing);
        if (existing && !force)
            return refuse(command, state + " exists; use init --force to replace it");
        std::string error;
        if (!writeStateFileAtomically(state, defaultScenario(), error))
            return refuse(command, error);
        say(out, "wrote the default scenario to %s\n", state.c_str());
        return 0;
    }

    // The arguments are checked before the file is opened: a refused command must not
    // even create a missing state file.
    std::uint64_t id = 0;
    std::uint32_t count = 0, status = 0;
    std::array<std::uint32_t, 8> params{};
    Disk inserted;
    std::string why;
    if (command == "fail-disk" || command == "pull-disk" || command == "smart-error") {
        if (!parseNumber(args[1], ~0ull, id) || id == 0)
            return refuse(command, "disk ID " + quoted(args[1]) +
                                       " is not a number such as 0x5000c500e4b1d203");
        if (command == "smart-error" && args[2] != "on" && args[2] != "off")
            return refuse(command, quoted(args[2]) + " is neither on nor off");
    } else if (command == "refuse") {
        if (!(why = word32(1, "count", count)).empty() ||
            !(why = word32(2, "status", status)).empty())
            return refuse(command, why);
    } else if (command == "stale-writes" || command == "fail-transfers") {
        if (!(why = word32(1, "count", count)).empty())
            return refuse(command, why);
    } else if (command == "event") {
        std::uint64_t message = 0;
        if (!parseNumber(args[1], 0xFFFF, message))
            return refuse(command,
                          "message " + quoted(args[1]) + " is not a number from 0 to 65535");
        id = message;
        for (std::size_t i = 2; i < args.size(); ++i) {
            const std::string what = "parameter " + std::to_string(i - 1);
            if (!(why = word32(i, what.c_str(), params[i - 2])).empty())
                return refuse(command, why);
        }
    } else if (command == "insert-disk") {
        std::uint64_t port = 0;
        if (!parseNumber(args[1], 254, port))
            return refuse(command, "port " + quoted(args[1]) + " is not a port number");
        inserted.port = static_cast<std::uint32_t>(port);
        if (!parseSectors(args[2], inserted.capacity, why))
            return refuse(command, why);
        inserted.model = args[3];
        inserted.serial = args[4];
        for (const auto &[what, text, most] :
             {std::make_tuple("model", &inserted.model, std::size_t{40}),
              std::make_tuple("serial", &inserted.serial, std::size_t{20})}) {
            if (text->empty())
                return refuse(command, std::string("the ") + what + " is empty");
            if (text->size() > most)
                return refuse(command, std::string("the ") + what + " " + quoted(*text) + " has " +
                                           std::to_string(text->size()) + " characters, at most " +
                                           std::to_string(most));
        }
        const std::string kind = given == 5 ? args[5] : "";
        if (!kind.empty() && kind != "ssd" && kind != "nvme")
            return refuse(command, "kind " + quoted(kind) + " is neither ssd nor nvme");
        inserted.id =
            0x5000000000000000ull | (std::hash<std::string>{}(inserted.serial) & 0xFFFFFFFFFFFFull);
        inserted.portType =
            kind == "nvme"
                ? (code::PortNvme | code::PortNvmeGen4 | code::PortNvmeX4)
                : (code::PortSata | code::Port6G | (kind == "ssd" ? code::PortSsd : code::PortNcq));
        inserted.vendor = kind == "nvme" ? "NVMe" : "ATA";
    }

    std::string error;
    auto host = Host::openStateFile(state, error, std::make_shared<SK_EmuManualClock>());
    if (!host) {
        say(err, "skemu: %s\n", error.c_str());
        return 1;
    }
    // Looking needs no turn at the file's lock: the file is only ever replaced whole.
    Model model;
    if (!readStateFile(state, model, error)) {
        say(err, "skemu: %s\n", error.c_str());
        return 1;
    }

    if (command == "check") {
        say(out, "%s: %zu controllers, %zu disks, %zu arrays, %zu volumes, %zu events\n",
            state.c_str(), model.controllers.size(), model.disks.size(), model.arrays.size(),
            model.volumes.size(), model.events.size());
        return 0;
    }
    if (command == "show" || command == "hex") {
        const auto bytes = writeImage(model, ImageOptions{previousAsked, 0});
        if (command == "show")
            listImage(out, bytes, previousAsked);
        else
            hexDump(out, bytes);
        return 0;
    }
    if (command == "events") {
        listEvents(out, model);
        return 0;
    }
    if (command == "disks") {
        for (const Disk &d : model.disks)
            say(out, "%s  port %u  %-6s %-24s %s\n", diskId(d.id).c_str(), d.port,
                d.attached ? "" : "pulled", d.model.c_str(), d.serial.c_str());
        return 0;
    }
    if (command == "arrays") {
        for (const Array &x : model.arrays)
            say(out, "%s  route %u  %-16s state %u  task %u\n", diskId(x.id).c_str(), x.route,
                x.name.c_str(), x.state, x.task.type);
        return 0;
    }

    // Changes: the checks that need the state run again inside the change, under the
    // file's lock, so they judge the state the change is applied to.
    bool done = true;
    if (command == "fail-disk" || command == "pull-disk" || command == "smart-error") {
        host->modify([&](Model &m) {
            const Disk *disk = m.findDisk(id);
            if (!disk)
                why = "there is no disk " + diskId(id);
            else if (command == "pull-disk" && !disk->attached)
                why = "disk " + diskId(id) + " is already pulled out";
            return false;
        });
        if (!why.empty())
            return refuse(command, why);
        done = command == "fail-disk"   ? host->failDisk(id)
               : command == "pull-disk" ? host->pullDisk(id)
                                        : host->setSmartError(id, args[2] == "on");
    } else if (command == "insert-disk") {
        done = host->insertDisk(inserted, why);
        if (!done)
            return refuse(command, why);
    } else if (command == "refuse") {
        host->refuseNextRequests(count, status);
    } else if (command == "stale-writes") {
        host->staleNextWrites(count);
    } else if (command == "fail-transfers") {
        host->failNextTransfers(count);
    } else if (command == "event") {
        host->injectEvent(static_cast<std::uint16_t>(id), params);
    }
    if (!done)
        return refuse(command, "disk " + diskId(id) + " changed meanwhile; nothing was done");
    if (const std::string lost = host->lastSaveError(); !lost.empty()) {
        say(err, "skemu: %s: the change could not be written: %s\n", command.c_str(), lost.c_str());
        return 1;
    }
    say(out, "%s: done, generation %llu\n", command.c_str(),
        static_cast<unsigned long long>(host->generation()));
    return 0;
}

} // namespace

bool parseSectors(const std::string &text, std::uint64_t &sectors, std::string &why)
{
    const std::size_t numberEnd = text.find_first_not_of("0123456789.");
    const std::string number = text.substr(0, numberEnd);
    std::string unit = numberEnd == std::string::npos ? "" : text.substr(numberEnd);
    for (char &c : unit)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    const std::size_t point = number.find('.');
    const std::string whole = number.substr(0, point);
    const std::string fraction = point == std::string::npos ? "" : number.substr(point + 1);
    if (whole.empty() || (point != std::string::npos && fraction.empty()) ||
        fraction.find('.') != std::string::npos) {
        why = "size " + quoted(text) + " is not a number with a unit, such as 4TB or 960GB";
        return false;
    }
    static const std::pair<const char *, int> kUnits[] = {{"S", 0},  {"KB", 3},  {"MB", 6},
                                                          {"GB", 9}, {"TB", 12}, {"PB", 15}};
    const auto found = std::find_if(std::begin(kUnits), std::end(kUnits),
                                    [&](const auto &u) { return unit == u.first; });
    if (unit.empty()) {
        why = "size " + quoted(text) + " has no unit: write it as 4TB, 960GB or " + text +
              "s for sectors";
        return false;
    }
    if (found == std::end(kUnits)) {
        why = "size " + quoted(text) + ": unit " + quoted(unit) +
              " is none of s (sectors), KB, MB, GB, TB, PB";
        return false;
    }
    const int exponent = found->second;
    if (exponent == 0 && !fraction.empty()) {
        why = "size " + quoted(text) + ": sectors are whole";
        return false;
    }
    if (static_cast<int>(fraction.size()) > exponent) {
        why = "size " + quoted(text) + " has more decimals than bytes";
        return false;
    }
    // Whole number of bytes (or sectors) from the digits, checked against overflow.
    std::uint64_t value = 0;
    const std::string digits = whole + fraction + std::string(exponent - fraction.size(), '0');
    for (char c : digits) {
        if (value > (~0ull - 9) / 10) {
            why = "size " + quoted(text) + " is too large";
            return false;
        }
        value = value * 10 + static_cast<std::uint64_t>(c - '0');
    }
    sectors = exponent == 0 ? value : value / 512;
    if (sectors <= kMetadataSectors) {
        why = "size " + quoted(text) + " is too small: the last " +
              std::to_string(kMetadataSectors) + " sectors hold the driver's metadata";
        return false;
    }
    return true;
}

int skemuMain(const std::vector<std::string> &arguments, std::string &out, std::string &err)
{
    std::string state;
    std::vector<std::string> args;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string &word = arguments[i];
        if (word == "--state") {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                say(err, "skemu: --state needs a file name\n");
                return 2;
            }
            state = arguments[++i];
        } else if (word == "--help" || word == "-h") {
            out += kUsage;
            return 0;
        } else {
            args.push_back(word);
        }
    }
    if (args.empty()) {
        err += kUsage;
        return 2;
    }
    if (state.empty())
        state = defaultStateFilePath();
    return run(state, args, out, err);
}

} // namespace sk_emu
