// skemu: look into and act on an emulated host's state file.
//
// The running console notices a changed state file at its next request, so faults
// applied here reach it within one refresh.

#include "emulator/emulator.h"
#include "emulator/sk_emu_wire.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace sk_emu;

void usage(std::FILE *out)
{
    std::fprintf(out,
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
                 "  insert-disk PORT CAPACITY MODEL SERIAL [ssd|nvme]\n"
                 "                            a disk is plugged into PORT of controller 0\n"
                 "  smart-error ID on|off     a disk reports (or stops reporting) a SMART error\n"
                 "  refuse N STATUS           refuse the next N requests with STATUS\n"
                 "  stale-writes N            answer the next N write commands with 38\n"
                 "  fail-transfers N          fail the next N transfers at the system level\n"
                 "  event MESSAGE [P1 ... P8] append an event to the driver's log\n");
}

bool parseNumber(const char *text, std::uint64_t &value)
{
    if (!text || !*text)
        return false;
    char *end = nullptr;
    const bool hex = std::strncmp(text, "0x", 2) == 0 || std::strncmp(text, "0X", 2) == 0;
    value = std::strtoull(hex ? text + 2 : text, &end, hex ? 16 : 10);
    return *end == '\0' && text[0] != '-';
}

std::string fixedText(const std::uint8_t *p, std::size_t width)
{
    std::string text(reinterpret_cast<const char *>(p), width);
    text.resize(std::strlen(text.c_str()));
    return text;
}

// --- Field-by-field listing, read from the image's own layout ----------------------

void field(std::size_t at, const char *name, const std::string &value)
{
    std::printf("  %5zu  %-24s %s\n", at, name, value.c_str());
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

void listDisk(const std::uint8_t *r, std::size_t base, std::size_t size)
{
    using namespace wire;
    std::printf("@%zu disk record (%zu bytes)\n", base, size);
    field(4, "ID", hexNum(u64(r, 4)));
    field(12, "DeviceRoute", num(u16(r, 12)));
    field(14, "CoreRoute", num(u16(r, 14)));
    field(28, "Capacity (sectors)", num(u64(r, 28)));
    field(36, "DeviceType", num(u32(r, 36)));
    field(44, "DeviceState", num(u32(r, 44)));
    field(48, "SpareState", num(u32(r, 48)));
    field(84, "Features", hexNum(u32(r, 84)));
    field(88, "PortType", hexNum(u32(r, 88)));
    if (size < image::DiskSize)
        return;
    field(128, "FirmwareRevision", fixedText(r + 128, 8));
    field(136, "Inquiry model", fixedText(r + 136, 40));
    field(176, "Inquiry serial", fixedText(r + 176, 20));
    field(196, "Controller digit", std::string(1, static_cast<char>(r[196] ? r[196] : ' ')));
    field(197, "Channel digit", std::string(1, static_cast<char>(r[197] ? r[197] : ' ')));
    field(200, "LargestFreeSpace", num(u64(r, 200)));
    field(208, "TotalFreeSpace", num(u64(r, 208)));
    field(216, "VendorID", fixedText(r + 216, 8));
}

void listController(const std::uint8_t *r, std::size_t base)
{
    using namespace wire;
    std::printf("@%zu controller record\n", base);
    field(4, "ID", hexNum(u64(r, 4)));
    field(12, "DeviceRoute", num(u16(r, 12)));
    field(14, "CoreRoute", num(u16(r, 14)));
    field(36, "Name", fixedText(r + 36, 16));
    field(56, "BiosBuild", fixedText(r + 56, 32));
    field(88, "MaxArraySize", num(u64(r, 88)));
    field(96, "SerialNumber", hexNum(u64(r, 96)));
    field(104, "NumberOfPorts", num(u32(r, 104)));
    field(108, "PciVendorID", hexNum(u16(r, 108)));
    field(110, "PciDeviceID", hexNum(u16(r, 110)));
    field(112, "ControllerNumber", num(u32(r, 112)));
    field(120, "ControllerId", hexNum(u64(r, 120)));
    field(132, "PCILocation", hexNum(u32(r, 132)));
}

void listEnclosure(const std::uint8_t *r, std::size_t base)
{
    using namespace wire;
    std::printf("@%zu enclosure record\n", base);
    field(4, "ID", hexNum(u64(r, 4)));
    field(12, "DeviceRoute", num(u16(r, 12)));
    field(14, "CoreRoute", num(u16(r, 14)));
    field(20, "Vendor", fixedText(r + 20, 8));
    field(28, "Product", fixedText(r + 28, 16));
    field(44, "Revision", fixedText(r + 44, 4));
    field(48, "SerialNumber", fixedText(r + 48, 8));
}

void listArray(const std::uint8_t *r, std::size_t base, std::size_t length)
{
    using namespace wire;
    std::printf("@%zu array record (%zu bytes)\n", base, length);
    field(8, "State", num(u32(r, 8)));
    field(12, "Type", num(u32(r, 12)));
    field(16, "TaskType", num(u32(r, 16)));
    field(24, "TaskState", num(u32(r, 24)));
    field(44, "ID", hexNum(u64(r, 44)));
    field(52, "DeviceRoute", num(u16(r, 52)));
    field(54, "CoreRoute", num(u16(r, 54)));
    field(80, "Capacity (sectors)", num(u64(r, 80)));
    field(96, "Generation", num(u64(r, 96)));
    field(104, "ElementCount", num(u32(r, 104)));
    field(108, "FirstCount", num(u32(r, 108)));
    field(112, "SecondCount", num(u32(r, 112)));
    field(116, "ParentCount", num(u32(r, 116)));
    field(128, "CachePolicy", hexNum(u32(r, 128)));
    field(140, "SpareCount", num(u32(r, 140)));
    field(148, "PercentComplete", num(u32(r, 148)));
    field(152, "Attributes", hexNum(u32(r, 152)));
    field(168, "TaskPriority", num(u32(r, 168)));
    field(176, "DisplayName", fixedText(r + 176, 32));
    field(208, "ReferenceCount", num(u32(r, 208)));
    field(272, "CacheTagSize", num(u32(r, 272)));
    const std::size_t members = static_cast<std::size_t>(u32(r, 108)) * u32(r, 112);
    std::size_t at = image::ArrayFixedSize;
    for (std::size_t i = 0; i < members && at + image::MemberSize <= length; ++i) {
        std::printf("  %5zu  member %-17zu ID %s route %u/%u offset %llu size %llu flags 0x%x\n",
                    at, i, hexNum(u64(r, at)).c_str(), u16(r, at + 10), u16(r, at + 8),
                    static_cast<unsigned long long>(u64(r, at + 16)),
                    static_cast<unsigned long long>(u64(r, at + 24)), u32(r, at + 48));
        at += image::MemberSize;
    }
    const std::size_t parents = u32(r, 116), spares = u32(r, 140);
    for (std::size_t i = 0; i < parents + spares && at + image::ReferenceSize <= length; ++i) {
        std::printf("  %5zu  %-6s %-17zu ID %s route %u/%u\n", at, i < parents ? "parent" : "spare",
                    i < parents ? i : i - parents, hexNum(u64(r, at)).c_str(), u16(r, at + 10),
                    u16(r, at + 8));
        at += image::ReferenceSize;
    }
}

void listImage(const std::vector<std::uint8_t> &bytes, bool previous)
{
    using namespace wire;
    std::printf("image of %zu bytes, generation %llu\n", bytes.size(),
                static_cast<unsigned long long>(u64(bytes.data(), image::GenerationAt)));
    std::size_t at = image::HeaderSize;
    while (at + 4 <= bytes.size()) {
        const std::uint8_t *r = bytes.data() + at;
        const std::uint32_t tag = u32(r, 0);
        std::size_t length = 0;
        if (tag == image::TagDisk) {
            length = previous ? image::DiskSizePrevious : image::DiskSize;
            listDisk(r, at, length);
        } else if (tag == image::TagController) {
            length = image::ControllerSize;
            listController(r, at);
        } else if (tag == image::TagEnclosure) {
            length = image::EnclosureSize;
            listEnclosure(r, at);
        } else if (tag == image::TagArray) {
            length = u32(r, 144);
            listArray(r, at, length);
        } else {
            break;
        }
        if (length == 0)
            break;
        at += length;
    }
}

void hexDump(const std::vector<std::uint8_t> &bytes)
{
    for (std::size_t at = 0; at < bytes.size(); at += 16) {
        std::printf("%06zx ", at);
        for (std::size_t i = 0; i < 16; ++i) {
            if (at + i < bytes.size())
                std::printf(" %02x", bytes[at + i]);
            else
                std::printf("   ");
        }
        std::printf("  ");
        for (std::size_t i = 0; i < 16 && at + i < bytes.size(); ++i) {
            const int c = bytes[at + i];
            std::putchar(c >= 32 && c < 127 ? c : '.');
        }
        std::putchar('\n');
    }
}

void listEvents(const Model &model)
{
    for (const Event &e : model.events) {
        std::printf("%05u: [%02x] (%05u)", e.number, e.entryByte, e.message);
        for (std::uint32_t p : e.params)
            std::printf(" %d", static_cast<int>(p));
        std::putchar('\n');
    }
    std::printf("next event number %u, %zu of %u entries kept\n", model.nextEventNumber,
                model.events.size(), model.eventCapacity);
}

int run(const std::string &state, const std::vector<std::string> &args)
{
    const std::string &command = args[0];
    auto arg = [&](std::size_t i) { return i < args.size() ? args[i].c_str() : nullptr; };
    std::uint64_t a = 0, b = 0;

    if (command == "init") {
        std::FILE *existing = std::fopen(state.c_str(), "rb");
        if (existing && !(arg(1) && args[1] == "--force")) {
            std::fclose(existing);
            std::fprintf(stderr, "skemu: %s exists; use init --force to replace it\n",
                         state.c_str());
            return 1;
        }
        if (existing)
            std::fclose(existing);
        std::string error;
        if (!writeStateFileAtomically(state, defaultScenario(), error)) {
            std::fprintf(stderr, "skemu: %s\n", error.c_str());
            return 1;
        }
        std::printf("wrote the default scenario to %s\n", state.c_str());
        return 0;
    }

    std::string error;
    auto host = Host::openStateFile(state, error, std::make_shared<SK_EmuManualClock>());
    if (!host) {
        std::fprintf(stderr, "skemu: %s\n", error.c_str());
        return 1;
    }
    // Looking needs no turn at the file's lock: the file is only ever replaced whole.
    Model model;
    if (!readStateFile(state, model, error)) {
        std::fprintf(stderr, "skemu: %s\n", error.c_str());
        return 1;
    }

    if (command == "check") {
        std::printf("%s: %zu controllers, %zu disks, %zu arrays, %zu volumes, %zu events\n",
                    state.c_str(), model.controllers.size(), model.disks.size(),
                    model.arrays.size(), model.volumes.size(), model.events.size());
        return 0;
    }
    if (command == "show" || command == "hex") {
        const bool previous = arg(1) && args[1] == "--previous";
        const auto bytes = writeImage(model, ImageOptions{previous, 0});
        if (command == "show")
            listImage(bytes, previous);
        else
            hexDump(bytes);
        return 0;
    }
    if (command == "events") {
        listEvents(model);
        return 0;
    }
    if (command == "disks") {
        for (const Disk &d : model.disks)
            std::printf("0x%016llx  port %u  %-6s %-24s %s\n",
                        static_cast<unsigned long long>(d.id), d.port, d.attached ? "" : "pulled",
                        d.model.c_str(), d.serial.c_str());
        return 0;
    }
    if (command == "arrays") {
        for (const Array &x : model.arrays)
            std::printf("0x%016llx  route %u  %-16s state %u  task %u\n",
                        static_cast<unsigned long long>(x.id), x.route, x.name.c_str(), x.state,
                        x.task.type);
        return 0;
    }

    bool ok = true;
    if (command == "fail-disk" && parseNumber(arg(1), a)) {
        ok = host->failDisk(a);
    } else if (command == "pull-disk" && parseNumber(arg(1), a)) {
        ok = host->pullDisk(a);
    } else if (command == "smart-error" && parseNumber(arg(1), a) && arg(2)) {
        ok = host->setSmartError(a, args[2] == "on");
    } else if (command == "insert-disk" && parseNumber(arg(1), a) && parseNumber(arg(2), b) &&
               arg(4)) {
        Disk d;
        d.port = static_cast<std::uint32_t>(a);
        d.capacity = b;
        d.model = args[3];
        d.serial = args[4];
        d.id = 0x5000000000000000ull | (std::hash<std::string>{}(d.serial) & 0xFFFFFFFFFFFFull);
        const std::string kind = arg(5) ? args[5] : "";
        d.portType =
            kind == "nvme"
                ? (code::PortNvme | code::PortNvmeGen4 | code::PortNvmeX4)
                : (code::PortSata | code::Port6G | (kind == "ssd" ? code::PortSsd : code::PortNcq));
        d.vendor = kind == "nvme" ? "NVMe" : "ATA";
        for (const Disk &other : model.disks) {
            if (other.controller == 0 && other.port == d.port && other.attached) {
                std::fprintf(stderr, "skemu: port %u is taken\n", d.port);
                return 1;
            }
        }
        host->insertDisk(d);
    } else if (command == "refuse" && parseNumber(arg(1), a) && parseNumber(arg(2), b)) {
        host->refuseNextRequests(static_cast<std::uint32_t>(a), static_cast<std::uint32_t>(b));
    } else if (command == "stale-writes" && parseNumber(arg(1), a)) {
        host->staleNextWrites(static_cast<std::uint32_t>(a));
    } else if (command == "fail-transfers" && parseNumber(arg(1), a)) {
        host->failNextTransfers(static_cast<std::uint32_t>(a));
    } else if (command == "event" && parseNumber(arg(1), a) && a <= 0xFFFF) {
        std::array<std::uint32_t, 8> params{};
        for (std::size_t i = 0; i < 8 && arg(2 + i); ++i) {
            if (!parseNumber(arg(2 + i), b)) {
                usage(stderr);
                return 2;
            }
            params[i] = static_cast<std::uint32_t>(b);
        }
        host->injectEvent(static_cast<std::uint16_t>(a), params);
    } else {
        usage(stderr);
        return 2;
    }
    if (!ok) {
        std::fprintf(stderr, "skemu: no disk %s\n", arg(1));
        return 1;
    }
    std::printf("%s: done, generation %llu\n", command.c_str(),
                static_cast<unsigned long long>(host->generation()));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    std::string state;
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--state" && i + 1 < argc) {
            state = argv[++i];
        } else if (word == "--help" || word == "-h") {
            usage(stdout);
            return 0;
        } else {
            args.push_back(word);
        }
    }
    if (args.empty()) {
        usage(stderr);
        return 2;
    }
    if (state.empty())
        state = defaultStateFilePath();
    return run(state, args);
}
