#include "emulator/sk_emu_commands.h"

#include "emulator/sk_emu_events.h"
#include "emulator/sk_emu_host.h"
#include "emulator/sk_emu_rules.h"
#include "emulator/sk_emu_wire.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace sk_emu {

using namespace wire;

namespace {

// Statuses the drivers refuse with.
namespace st {
constexpr std::uint32_t Ok = 1;
constexpr std::uint32_t ArrayTooSmall = 4;
constexpr std::uint32_t InvalidParameter = 7;
constexpr std::uint32_t NoArray = 10;
constexpr std::uint32_t NoDisk = 11;
constexpr std::uint32_t OutOfBounds = 27;
constexpr std::uint32_t Busy = 40;
constexpr std::uint32_t Critical = 41;
constexpr std::uint32_t Offline = 42;
constexpr std::uint32_t NotSupported = 43;
constexpr std::uint32_t Duplicate = 44;
constexpr std::uint32_t NoSpace = 45;
constexpr std::uint32_t NoResource = 46;
constexpr std::uint32_t ControllerNotFound = 64;
constexpr std::uint32_t PciMismatch = 73;
constexpr std::uint32_t LevelDisabled = 56;
constexpr std::uint32_t SmartError = 75;
constexpr std::uint32_t InUse = 77;
} // namespace st

constexpr std::uint32_t kMaxRoutes = 24;
constexpr std::uint64_t kSectorsPerMiB = 2048;
constexpr std::size_t kRefSize = 16;

CommandResult done(bool changed = true)
{
    return CommandResult{st::Ok, changed};
}

CommandResult refused(std::uint32_t status)
{
    return CommandResult{status, false};
}

// --- Requests ---------------------------------------------------------------------

// Bounds of a request: every field read must lie inside it.
class Request
{
public:
    Request(const std::uint8_t *bytes, std::uint32_t size) : m_bytes(bytes), m_size(size) {}

    bool fits(std::size_t at, std::size_t width) const
    {
        return at <= m_size && width <= m_size - at;
    }
    std::uint32_t u32at(std::size_t at) const { return fits(at, 4) ? u32(m_bytes, at) : 0; }
    std::uint32_t u16at(std::size_t at) const { return fits(at, 2) ? u16(m_bytes, at) : 0; }
    std::uint64_t u64at(std::size_t at) const { return fits(at, 8) ? u64(m_bytes, at) : 0; }
    std::string textAt(std::size_t at, std::size_t width) const
    {
        if (!fits(at, width))
            return {};
        std::string text(reinterpret_cast<const char *>(m_bytes + at), width);
        return text.substr(0, text.find('\0'));
    }

    // `count` device references from `at`; false when they run past the request.
    bool references(std::size_t at, std::uint32_t count, std::vector<std::uint64_t> &ids,
                    std::vector<std::uint32_t> &routes) const
    {
        if (count > 1024 || !fits(at, static_cast<std::size_t>(count) * kRefSize))
            return false;
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::size_t r = at + i * kRefSize;
            ids.push_back(u64(m_bytes, r));
            routes.push_back(u16(m_bytes, r + 8) | (u16(m_bytes, r + 10) << 16));
        }
        return true;
    }

private:
    const std::uint8_t *m_bytes;
    std::uint32_t m_size;
};

Disk *referencedDisk(Model &m, std::uint64_t id, std::uint32_t routes)
{
    Disk *d = m.findDisk(id);
    if (!d || d->type == code::DiskTypeCore)
        return nullptr;
    const std::uint32_t expected = diskDeviceRoute(*d) | (diskCoreRoute(*d) << 16);
    return routes == expected ? d : nullptr;
}

Array *referencedArray(Model &m, std::uint64_t id, std::uint32_t deviceRoute)
{
    Array *a = m.findArray(id);
    return a && a->route == deviceRoute ? a : nullptr;
}

// --- Facts about disks and arrays --------------------------------------------------

bool isRedundant(const Layout &l)
{
    return (l.type == code::TypeMirrorStripe && l.secondCount >= 2) || l.type == code::TypeParity ||
           l.type == code::TypeDoubleParity;
}

bool diskInAnyArray(const Model &m, std::uint64_t id)
{
    for (const Array &a : m.arrays) {
        for (const Member &mem : a.layout.members) {
            if (mem.disk == id)
                return true;
        }
        if (a.target) {
            for (const Member &mem : a.target->members) {
                if (mem.disk == id)
                    return true;
            }
        }
    }
    return false;
}

Array *dedicatedSpareOwner(Model &m, std::uint64_t id)
{
    for (Array &a : m.arrays) {
        if (std::find(a.spares.begin(), a.spares.end(), id) != a.spares.end())
            return &a;
    }
    return nullptr;
}

bool diskIsSpare(Model &m, const Disk &d)
{
    return d.globalSpare || dedicatedSpareOwner(m, d.id);
}

// Why a disk can't carry a new member extent, or Ok.
std::uint32_t diskUsability(const Disk &d)
{
    if (d.state == code::DiskSmartError)
        return st::SmartError;
    if (!d.attached || d.state != code::DiskOnline)
        return st::Offline;
    if (d.type != code::DiskTypeDisk && d.type != code::DiskTypeUnknown)
        return st::InUse;
    return st::Ok;
}

std::uint64_t largestFree(const Model &m, const Disk &d, std::uint64_t &offset)
{
    std::uint64_t best = 0;
    offset = 0;
    for (const Extent &e : freeExtents(m, d)) {
        if (e.size > best) {
            best = e.size;
            offset = e.offset;
        }
    }
    return best / kSectorsPerMiB * kSectorsPerMiB;
}

std::uint32_t nextFreeRoute(const Model &m)
{
    for (std::uint32_t route = 1; route <= kMaxRoutes; ++route) {
        if (!m.findArrayByRoute(route))
            return route;
    }
    return 0;
}

const char *levelName(std::uint32_t type, std::uint32_t first, std::uint32_t second)
{
    switch (type) {
    case code::TypeVolume:
        return "VOLUME";
    case code::TypeRaidable:
        return "RAIDABLE";
    case code::TypeTier:
        return "RAIDTIER";
    case code::TypeParity:
        return first == 1 ? "RAID5" : "RAID50";
    case code::TypeDoubleParity:
        return first == 1 ? "RAID6" : "RAID60";
    case code::TypeMirrorStripe:
        if (second == 1)
            return "RAID0";
        if (first == 1)
            return second == 2 ? "RAID1" : "RAID1N";
        return second == 2 ? "RAID10" : "RAID10N";
    default:
        return "UNKNOWN";
    }
}

// Whether the type and counts form a layout the drivers can build.
bool shapeIsValid(std::uint32_t type, std::uint32_t first, std::uint32_t second)
{
    if (first == 0 || second == 0 || first * second > 32)
        return false;
    switch (type) {
    case code::TypeVolume:
        return second == 1;
    case code::TypeRaidable:
        return first == 1 && second == 1;
    case code::TypeMirrorStripe:
        return first * second >= 2;
    case code::TypeParity:
        return second >= 3;
    case code::TypeDoubleParity:
        return second >= 4;
    case code::TypeTier:
        return first * second == 2;
    default:
        return false;
    }
}

bool levelDisabled(const Model &m, std::uint32_t type, std::uint32_t first, std::uint32_t second)
{
    const std::string level = levelName(type, first, second);
    return std::find(m.host.disabledLevels.begin(), m.host.disabledLevels.end(), level) !=
           m.host.disabledLevels.end();
}

std::uint32_t cacheTagSizeOf(std::uint32_t code)
{
    switch (code) {
    case 1:
        return 64;
    case 2:
        return 128;
    case 3:
        return 256;
    default:
        return 0;
    }
}

// --- Planning a new layout ---------------------------------------------------------

struct Plan
{
    std::uint32_t status = st::Ok;
    Layout layout;
    std::uint64_t maxMiB = 0;
};

std::uint64_t smallestMemberSize(const Layout &layout)
{
    std::uint64_t smallest = ~0ull;
    for (const Member &mem : layout.members)
        smallest = std::min(smallest, mem.size);
    return layout.members.empty() ? 0 : smallest;
}

// Lays out members on `disks`: each takes the largest free extent its disk offers, or
// keeps its extent in `keep` (the array being transformed). A volume concatenates its
// members, so each keeps the size it found; every other level stripes or mirrors over
// members alike, sized by the smallest extent (in a transform, by the array's own).
Plan planLayout(Model &m, std::uint32_t type, std::uint32_t first, std::uint32_t second,
                const std::vector<Disk *> &disks, const Array *keep)
{
    Plan plan;
    plan.layout.type = type;
    plan.layout.firstCount = first;
    plan.layout.secondCount = second;
    std::vector<std::uint64_t> offsets, sizes;
    for (Disk *d : disks) {
        const Member *kept = nullptr;
        if (keep) {
            for (const Member &mem : keep->layout.members) {
                if (mem.disk == d->id)
                    kept = &mem;
            }
        }
        if (kept) {
            offsets.push_back(kept->offset);
            sizes.push_back(kept->size);
            continue;
        }
        if (const std::uint32_t why = diskUsability(*d); why != st::Ok) {
            plan.status = why;
            return plan;
        }
        if (diskIsSpare(m, *d)) {
            plan.status = st::InUse;
            return plan;
        }
        std::uint64_t offset = 0;
        const std::uint64_t free = largestFree(m, *d, offset);
        if (free == 0) {
            plan.status = st::NoSpace;
            return plan;
        }
        offsets.push_back(offset);
        sizes.push_back(free);
    }
    if (type != code::TypeVolume) {
        std::uint64_t alike = sizes.empty() ? 0 : *std::min_element(sizes.begin(), sizes.end());
        if (keep && !keep->layout.members.empty())
            alike = smallestMemberSize(keep->layout);
        std::fill(sizes.begin(), sizes.end(), alike);
    }
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < disks.size(); ++i) {
        plan.layout.members.push_back(
            Member{disks[i]->id, offsets[i], sizes[i], offsets[i], sizes[i], 0});
        sum += sizes[i];
    }
    const std::uint64_t capacity =
        layoutCapacity(type, first, second, smallestMemberSize(plan.layout), sum);
    plan.layout.capacity = capacity / kSectorsPerMiB * kSectorsPerMiB;
    plan.maxMiB = capacity / kSectorsPerMiB;
    return plan;
}

// Sector counts of big disks pass 2^37, so a product of two needs 128 bits.
__extension__ typedef unsigned __int128 Wide;

// Shrinks the members so the layout offers `wantedMiB` (never grows them). Each member
// gives up the same share of its size, so a volume's unequal members stay in proportion.
void fitCapacity(Layout &layout, std::uint64_t wantedMiB)
{
    const std::uint64_t wanted = wantedMiB * kSectorsPerMiB;
    if (wanted == 0 || wanted >= layout.capacity || layout.members.empty())
        return;
    const std::uint64_t full = layout.capacity;
    std::uint64_t sum = 0;
    for (Member &mem : layout.members) {
        auto member = static_cast<std::uint64_t>((Wide{mem.size} * wanted + full - 1) / full);
        member = (member + kSectorsPerMiB - 1) / kSectorsPerMiB * kSectorsPerMiB;
        mem.size = mem.dataSize = std::min(member, mem.size);
        sum += mem.size;
    }
    layout.capacity =
        std::min(wanted, layoutCapacity(layout.type, layout.firstCount, layout.secondCount,
                                        smallestMemberSize(layout), sum));
}

// Resolves the drive references of a create or transform.
std::uint32_t resolveDrives(Model &m, const Request &req, std::size_t at, std::uint32_t count,
                            std::vector<Disk *> &disks)
{
    std::vector<std::uint64_t> ids;
    std::vector<std::uint32_t> routes;
    if (!req.references(at, count, ids, routes))
        return st::OutOfBounds;
    std::set<std::uint64_t> seen;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        Disk *d = referencedDisk(m, ids[i], routes[i]);
        if (!d)
            return st::NoDisk;
        if (!seen.insert(d->id).second)
            return st::Duplicate;
        disks.push_back(d);
    }
    return st::Ok;
}

// --- Create ------------------------------------------------------------------------

struct CreateFields
{
    std::uint32_t type, count, cacheTagCode, cacheWord, policy, first, second;
    std::uint64_t capacityMiB, id;
    std::size_t drivesAt;
    std::string name;
};

CreateFields createFields(const Request &r, bool info)
{
    const std::size_t s = info ? 4 : 0; // the planning read has every field 4 bytes on
    CreateFields f{};
    f.type = r.u32at(32 + s);
    f.count = r.u32at(36 + s);
    f.cacheTagCode = r.u32at(44 + s);
    f.cacheWord = r.u32at(48 + s);
    f.policy = r.u32at(52 + s);
    f.capacityMiB = r.u64at(56 + s);
    f.id = info ? 0 : r.u64at(64);
    f.first = r.u32at(72 + s);
    f.second = r.u32at(76 + s);
    f.name = info ? std::string() : r.textAt(92, 32);
    f.drivesAt = info ? 192 : 188;
    return f;
}

// Plans a tier over two arrays: the cold one first, then the hot one.
Plan planTier(Model &m, const Request &req, const CreateFields &f, std::vector<Array *> &parts)
{
    Plan plan;
    std::vector<std::uint64_t> ids;
    std::vector<std::uint32_t> routes;
    if (f.count != 2 || !req.references(f.drivesAt, 2, ids, routes)) {
        plan.status = st::InvalidParameter;
        return plan;
    }
    for (std::size_t i = 0; i < 2; ++i) {
        Array *a = referencedArray(m, ids[i], routes[i] & 0xFFFF);
        if (!a) {
            plan.status = st::NoArray;
            return plan;
        }
        if (a->referenceCount || a->layout.type == code::TypeTier || a->task.type) {
            plan.status = st::InUse;
            return plan;
        }
        parts.push_back(a);
    }
    if (parts[0] == parts[1]) {
        plan.status = st::Duplicate;
        return plan;
    }
    plan.layout.type = code::TypeTier;
    plan.layout.firstCount = 1;
    plan.layout.secondCount = 2;
    for (Array *a : parts)
        plan.layout.members.push_back(
            Member{a->id, 0, a->layout.capacity, 0, a->layout.capacity, 0});
    // A cache adds no room; a tier offers both arrays' room.
    plan.layout.capacity = f.cacheWord ? parts[0]->layout.capacity
                                       : parts[0]->layout.capacity + parts[1]->layout.capacity;
    plan.maxMiB = plan.layout.capacity / kSectorsPerMiB;
    return plan;
}

Plan planCreate(Model &m, const Request &req, const CreateFields &f, std::vector<Array *> &parts)
{
    Plan plan;
    if (!shapeIsValid(f.type, f.first, f.second) || f.first * f.second != f.count) {
        plan.status = f.type == code::TypeTier || f.type == code::TypeVolume ||
                              f.type == code::TypeMirrorStripe || f.type == code::TypeParity ||
                              f.type == code::TypeDoubleParity || f.type == code::TypeRaidable
                          ? st::InvalidParameter
                          : st::NotSupported;
        return plan;
    }
    if (levelDisabled(m, f.type, f.first, f.second)) {
        plan.status = st::LevelDisabled;
        return plan;
    }
    if (f.type == code::TypeTier)
        return planTier(m, req, f, parts);
    std::vector<Disk *> disks;
    if (const std::uint32_t why = resolveDrives(m, req, f.drivesAt, f.count, disks);
        why != st::Ok) {
        plan.status = why;
        return plan;
    }
    return planLayout(m, f.type, f.first, f.second, disks, nullptr);
}

CommandResult createInfo(Host &, Model &m, std::uint8_t *reply, std::uint32_t size)
{
    const Request req(reply, size);
    std::vector<Array *> parts;
    const Plan plan = planCreate(m, req, createFields(req, true), parts);
    if (plan.status != st::Ok)
        return refused(plan.status);
    std::memset(reply + 8, 0, 168);
    put64(reply, 24, plan.maxMiB);
    put64(reply, 32, plan.layout.capacity);
    put32(reply, 40, plan.layout.members.empty() ? 0 : 1);
    return done(false);
}

void startCreateTask(Model &m, Array &a, std::uint32_t policyBits)
{
    if (policyBits & policy::ZeroCreate)
        startTask(m, a, code::TaskZero);
    else if (!(policyBits & (policy::SkipInit | policy::LeaveData)) && isRedundant(a.layout))
        startTask(m, a, code::TaskCreate);
}

CommandResult create(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    const CreateFields f = createFields(req, false);
    if (f.capacityMiB == 0 || f.id == 0)
        return refused(st::InvalidParameter);
    if (m.findArray(f.id) || m.findDisk(f.id))
        return refused(st::Duplicate);
    std::vector<Array *> parts;
    Plan plan = planCreate(m, req, f, parts);
    if (plan.status != st::Ok)
        return refused(plan.status);
    if (f.capacityMiB > plan.maxMiB)
        return refused(st::NoSpace);
    const std::uint32_t route = nextFreeRoute(m);
    if (route == 0)
        return refused(st::NoResource);
    if (f.type != code::TypeTier)
        fitCapacity(plan.layout, f.capacityMiB);

    Array a;
    a.id = f.id;
    a.route = static_cast<std::uint16_t>(route);
    a.name = f.name;
    a.layout = plan.layout;
    a.cachePolicy = f.cacheWord & (code::CacheRead | code::CacheWrite);
    a.cacheTagSize = cacheTagSizeOf(f.cacheTagCode);
    a.generation = m.generation + 1;
    if (f.policy & policy::BackgroundScan)
        a.attributes |= 0x400;
    for (Array *part : parts) {
        part->referenceCount += 1;
        part->parents.push_back(a.id);
    }
    m.arrays.push_back(a);
    m.logEvent(event::ConfigChange);
    startCreateTask(m, m.arrays.back(), f.policy);
    return done();
}

// --- Transform ---------------------------------------------------------------------

struct TransformFields
{
    std::uint32_t type, count, first, second;
    std::uint64_t id, capacityMiB;
    std::uint32_t route;
    std::size_t drivesAt;
};

TransformFields transformFields(const Request &r, bool info)
{
    TransformFields f{};
    if (info) {
        f.type = r.u32at(36);
        f.id = r.u64at(40);
        f.route = r.u16at(48);
        f.count = r.u32at(56);
        f.capacityMiB = r.u64at(68);
        f.first = r.u32at(76);
        f.second = r.u32at(80);
        f.drivesAt = 160;
    } else {
        f.type = r.u32at(32);
        f.id = r.u64at(36);
        f.route = r.u16at(44);
        f.count = r.u32at(52);
        f.capacityMiB = r.u64at(64);
        f.first = r.u32at(72);
        f.second = r.u32at(76);
        f.drivesAt = 156;
    }
    return f;
}

Plan planTransform(Model &m, const Request &req, const TransformFields &f, Array *&array)
{
    Plan plan;
    array = referencedArray(m, f.id, f.route);
    if (!array) {
        plan.status = st::NoArray;
        return plan;
    }
    const std::uint32_t source = array->layout.type;
    if (source == code::TypeTier || source == code::TypeLegacy || source == code::TypeForeign ||
        f.type == code::TypeTier || f.type == code::TypeRaidable) {
        plan.status = st::NotSupported;
        return plan;
    }
    if (!shapeIsValid(f.type, f.first, f.second) || f.first * f.second != f.count) {
        plan.status = st::InvalidParameter;
        return plan;
    }
    if (array->referenceCount) {
        plan.status = st::InUse;
        return plan;
    }
    if (array->task.type != code::TaskNone) {
        plan.status = st::Busy;
        return plan;
    }
    if (array->state != code::ArrayNormal) {
        plan.status = st::Critical;
        return plan;
    }
    std::vector<Disk *> disks;
    if (const std::uint32_t why = resolveDrives(m, req, f.drivesAt, f.count, disks);
        why != st::Ok) {
        plan.status = why;
        return plan;
    }
    // Growth only: every present member stays, and no room is lost.
    for (const Member &mem : array->layout.members) {
        if (std::none_of(disks.begin(), disks.end(), [&](Disk *d) { return d->id == mem.disk; })) {
            plan.status = st::ArrayTooSmall;
            return plan;
        }
    }
    for (Disk *d : disks) {
        const bool isMember =
            std::any_of(array->layout.members.begin(), array->layout.members.end(),
                        [&](const Member &mem) { return mem.disk == d->id; });
        if (isMember)
            continue;
        std::uint64_t offset = 0;
        if (largestFree(m, *d, offset) < smallestMemberSize(array->layout)) {
            plan.status = st::NoSpace;
            return plan;
        }
    }
    plan = planLayout(m, f.type, f.first, f.second, disks, array);
    if (plan.status == st::Ok && plan.layout.capacity < array->layout.capacity)
        plan.status = st::ArrayTooSmall;
    return plan;
}

CommandResult transformInfo(Host &, Model &m, std::uint8_t *reply, std::uint32_t size)
{
    const Request req(reply, size);
    Array *array = nullptr;
    const Plan plan = planTransform(m, req, transformFields(req, true), array);
    if (plan.status != st::Ok)
        return refused(plan.status);
    std::memset(reply + 8, 0, 136);
    put64(reply, 24, array->layout.capacity / kSectorsPerMiB);
    put64(reply, 32, plan.maxMiB);
    return done(false);
}

CommandResult transform(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    const TransformFields f = transformFields(req, false);
    if (f.capacityMiB == 0)
        return refused(st::InvalidParameter);
    Array *array = nullptr;
    Plan plan = planTransform(m, req, f, array);
    if (plan.status != st::Ok)
        return refused(plan.status);
    if (f.capacityMiB > plan.maxMiB)
        return refused(st::NoSpace);
    array->target = plan.layout;
    startTask(m, *array, code::TaskTransform);
    return done();
}

// --- Delete, initialise, offline ---------------------------------------------------

void forgetArray(Model &m, std::uint64_t id)
{
    for (Array &a : m.arrays) {
        if (std::find(a.parents.begin(), a.parents.end(), id) != a.parents.end()) {
            a.parents.erase(std::remove(a.parents.begin(), a.parents.end(), id), a.parents.end());
            if (a.referenceCount)
                --a.referenceCount;
        }
    }
    for (Volume &v : m.volumes)
        v.arrays.erase(std::remove(v.arrays.begin(), v.arrays.end(), id), v.arrays.end());
    m.volumes.erase(
        std::remove_if(m.volumes.begin(), m.volumes.end(),
                       [](const Volume &v) { return v.arrays.empty() && v.disks.empty(); }),
        m.volumes.end());
    m.arrays.erase(std::remove_if(m.arrays.begin(), m.arrays.end(),
                                  [id](const Array &a) { return a.id == id; }),
                   m.arrays.end());
}

// The arrays a list command names: every one with the all-flag, else the references.
std::uint32_t namedArrays(Model &m, const Request &req, bool all, std::size_t at,
                          std::uint32_t count, std::vector<Array *> &arrays)
{
    if (all) {
        for (Array &a : m.arrays)
            arrays.push_back(&a);
        return st::Ok;
    }
    std::vector<std::uint64_t> ids;
    std::vector<std::uint32_t> routes;
    if (!req.references(at, count, ids, routes))
        return st::OutOfBounds;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        Array *a = referencedArray(m, ids[i], routes[i] & 0xFFFF);
        if (!a)
            return st::NoArray;
        arrays.push_back(a);
    }
    return st::Ok;
}

CommandResult deleteArrays(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    std::vector<Array *> arrays;
    if (const auto why = namedArrays(m, req, req.u32at(32) != 0, 40, req.u32at(36), arrays);
        why != st::Ok)
        return refused(why);
    for (Array *a : arrays) {
        if (a->referenceCount)
            return refused(st::InUse);
    }
    std::vector<std::pair<std::uint64_t, std::uint16_t>> gone;
    for (Array *a : arrays)
        gone.emplace_back(a->id, a->route);
    for (const auto &[id, route] : gone) {
        forgetArray(m, id);
        m.logEvent(event::ArrayDeleted, {route});
    }
    return done();
}

CommandResult initializeDisks(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    const bool all = req.u32at(32) != 0;
    const bool clearMetadata = req.u32at(40) != 0;
    std::vector<Disk *> disks;
    if (all) {
        for (Disk &d : m.disks) {
            if (d.type != code::DiskTypeCore)
                disks.push_back(&d);
        }
    } else if (const auto why = resolveDrives(m, req, 44, req.u32at(36), disks); why != st::Ok) {
        return refused(why);
    }
    for (Disk *d : disks) {
        // A disk still carrying a healthy member can't be wiped under its array.
        for (const Array &a : m.arrays) {
            for (const Member &mem : a.layout.members) {
                if (mem.disk == d->id &&
                    !(mem.flags & (code::MemberFailed | code::MemberOffline)) &&
                    a.layout.type != code::TypeLegacy)
                    return refused(st::InUse);
            }
        }
    }
    for (Disk *d : disks) {
        if (d->type == code::DiskTypeLegacy || d->type == code::DiskTypeForeign)
            d->type = code::DiskTypeDisk;
        d->globalSpare = false;
        if (Array *owner = dedicatedSpareOwner(m, d->id))
            owner->spares.erase(std::remove(owner->spares.begin(), owner->spares.end(), d->id),
                                owner->spares.end());
        m.logEvent(clearMetadata ? 1181 : 1029, {d->controller, d->port});
    }
    return done();
}

CommandResult offlineArrays(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    std::vector<Array *> arrays;
    if (const auto why = namedArrays(m, req, false, 36, req.u32at(32), arrays); why != st::Ok)
        return refused(why);
    for (Array *a : arrays) {
        if (a->referenceCount)
            return refused(st::InUse);
        if (a->task.type != code::TaskNone)
            return refused(st::Busy);
    }
    for (Array *a : arrays) {
        if (a->state != code::ArrayOffline) {
            a->state = code::ArrayOffline;
            m.logEvent(event::ArrayOffline, {a->route});
        }
    }
    return done();
}

// --- Rescan ------------------------------------------------------------------------

CommandResult rescan(Host &, Model &m, std::uint8_t *, std::uint32_t)
{
    m.logEvent(event::RescanReceived);
    // Pulled disks are forgotten; their member slots stay, empty.
    std::vector<std::uint64_t> gone;
    for (const Disk &d : m.disks) {
        if (!d.attached)
            gone.push_back(d.id);
    }
    for (std::uint64_t id : gone) {
        for (Array &a : m.arrays) {
            for (Member &mem : a.layout.members) {
                if (mem.disk == id) {
                    mem.disk = 0;
                    mem.flags |= code::MemberNotPresent | code::MemberOffline;
                }
            }
            a.spares.erase(std::remove(a.spares.begin(), a.spares.end(), id), a.spares.end());
        }
        m.disks.erase(std::remove_if(m.disks.begin(), m.disks.end(),
                                     [id](const Disk &d) { return d.id == id; }),
                      m.disks.end());
    }
    // Arrays taken offline for removal whose disks are all gone are forgotten too.
    std::vector<std::uint64_t> emptied;
    for (const Array &a : m.arrays) {
        const bool anyLeft = std::any_of(a.layout.members.begin(), a.layout.members.end(),
                                         [](const Member &mem) { return mem.disk != 0; });
        if (!anyLeft && a.layout.type != code::TypeTier)
            emptied.push_back(a.id);
    }
    for (std::uint64_t id : emptied)
        forgetArray(m, id);
    // Disks plugged in since the last rescan come online.
    for (Disk &d : m.disks) {
        if (d.attached && d.awaitingRescan) {
            d.awaitingRescan = false;
            d.state = code::DiskOnline;
        }
    }
    for (Array &a : m.arrays) {
        // Arrays taken offline come back while their disks are still there.
        updateArrayState(m, a);
        takeSpareForRebuild(m, a);
    }
    return done();
}

// --- Array management (command 7) ---------------------------------------------------

std::uint16_t cacheEvent(std::uint32_t word)
{
    const bool read = word & code::CacheRead, write = word & code::CacheWrite;
    return read && write ? 1067 : read ? 1034 : write ? 1035 : 1036;
}

CommandResult manageSpares(Model &m, const Request &req, Array *array, bool add, bool global)
{
    std::vector<Disk *> disks;
    if (const auto why = resolveDrives(m, req, 92, req.u32at(52), disks); why != st::Ok)
        return refused(why);
    for (Disk *d : disks) {
        if (add) {
            if (const auto why = diskUsability(*d); why != st::Ok)
                return refused(why);
            if (diskInAnyArray(m, d->id) || diskIsSpare(m, *d))
                return refused(st::InUse);
            if (array) {
                if (!isRedundant(array->layout))
                    return refused(st::NotSupported);
                if (array->spares.size() >= 4)
                    return refused(st::NoResource);
                if (!array->layout.members.empty() &&
                    d->capacity - kMetadataSectors < array->layout.members[0].size)
                    return refused(st::NoSpace);
            }
        } else if (global ? !d->globalSpare : (!array || dedicatedSpareOwner(m, d->id) != array)) {
            return refused(st::NoDisk);
        }
    }
    for (Disk *d : disks) {
        if (global) {
            d->globalSpare = add;
            m.logEvent(add ? 1132 : 1133, {d->controller, d->port});
        } else if (add) {
            array->spares.push_back(d->id);
            m.logEvent(1154, {d->controller, d->port, array->route});
        } else {
            array->spares.erase(std::remove(array->spares.begin(), array->spares.end(), d->id),
                                array->spares.end());
            m.logEvent(1155, {d->controller, d->port, array->route});
        }
    }
    // A degraded array takes a spare that just became available.
    if (add) {
        for (Array &a : m.arrays)
            takeSpareForRebuild(m, a);
    }
    return done();
}

CommandResult manageArray(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    const std::uint32_t subcode = req.u32at(32);
    if (subcode == sub::GlobalSpareAdd || subcode == sub::GlobalSpareRemove)
        return manageSpares(m, req, nullptr, subcode == sub::GlobalSpareAdd, true);

    Array *a = referencedArray(m, req.u64at(36), req.u16at(44));
    if (!a)
        return refused(st::NoArray);
    const std::uint32_t value = req.u32at(56);
    switch (subcode) {
    case sub::CheckStart:
        if (!isRedundant(a->layout))
            return refused(st::NotSupported);
        if (a->state != code::ArrayNormal)
            return refused(st::Critical);
        if (a->task.type != code::TaskNone)
            return refused(st::Busy);
        startTask(m, *a, code::TaskCheck);
        return done();
    case sub::CheckStop:
        if (a->task.type != code::TaskCheck)
            return refused(st::InvalidParameter);
        a->task = Task{};
        m.logEvent(1103, {a->route});
        return done();
    case sub::DedicatedSpareAdd:
    case sub::DedicatedSpareRemove:
        return manageSpares(m, req, a, subcode == sub::DedicatedSpareAdd, false);
    case sub::Plain:
    case sub::Value:
        return done(false); // accepted; nothing the console can see changes
    case sub::CachePolicy:
        a->cachePolicy = value & (code::CacheRead | code::CacheWrite);
        m.logEvent(cacheEvent(a->cachePolicy), {a->route});
        return done();
    case sub::Priority:
        if (value == 0 || value > 100)
            return refused(st::InvalidParameter);
        a->priority = value;
        m.logEvent(1030, {a->route});
        return done();
    case sub::Attributes: {
        const std::uint32_t mask = value >> 16, state = value & 0xFFFF;
        const std::uint32_t before = a->attributes;
        a->attributes = (a->attributes & ~mask) | (state & mask);
        const std::uint32_t changed = before ^ a->attributes;
        if (changed & code::AttributeHidden)
            m.logEvent(a->hidden() ? 1135 : 1136, {a->route});
        if (changed & 0x400)
            m.logEvent((a->attributes & 0x400) ? 1116 : 1117, {a->route});
        return done();
    }
    case sub::DisplayName:
        a->name = req.textAt(60, 32);
        return done();
    case sub::RemoveAllSpares:
        for (std::uint64_t spare : a->spares) {
            if (const Disk *d = m.findDisk(spare))
                m.logEvent(1155, {d->controller, d->port, a->route});
        }
        a->spares.clear();
        return done();
    case sub::SecureErase:
        if (a->referenceCount)
            return refused(st::InUse);
        if (a->task.type != code::TaskNone)
            return refused(st::Busy);
        if (a->state == code::ArrayOffline)
            return refused(st::Offline);
        startTask(m, *a, code::TaskSecureErase);
        return done();
    default:
        return refused(st::InvalidParameter);
    }
}

// --- Task control, drive letters ---------------------------------------------------

struct TaskWords
{
    std::uint32_t type;
    std::uint16_t initiated, resumed, paused, removed, completed, failed;
};

const TaskWords kTaskWords[] = {
    {code::TaskCreate, 1138, 1026, 1100, 1105, 1027, 1028},
    {code::TaskZero, 1138, 1026, 1100, 1105, 1027, 1028},
    {code::TaskCheck, 1141, 1023, 1098, 1103, 1024, 1025},
    {code::TaskTransform, 1140, 1020, 1097, 1102, 1021, 1022},
    {code::TaskRestore, 1139, 1017, 1099, 1158, 1018, 1019},
    {code::TaskSecureErase, 0, 1166, 1165, 1170, 1168, 1167},
    {code::TaskCopy, 0, 1053, 1101, 1106, 1054, 1055},
};

const TaskWords *wordsOf(std::uint32_t type)
{
    for (const TaskWords &w : kTaskWords) {
        if (w.type == type)
            return &w;
    }
    return nullptr;
}

void logTask(Model &m, const Array &a, std::uint16_t TaskWords::*which)
{
    if (const TaskWords *w = wordsOf(a.task.type); w && w->*which)
        m.logEvent(w->*which, {a.route});
}

CommandResult taskControl(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    const std::uint32_t act = req.u32at(32);
    if (act != action::Pause && act != action::Resume && act != action::Remove)
        return refused(st::InvalidParameter);
    std::vector<Array *> arrays;
    if (const auto why = namedArrays(m, req, req.u32at(36) != 0, 44, req.u32at(40), arrays);
        why != st::Ok)
        return refused(why);
    for (Array *a : arrays) {
        if (a->task.type == code::TaskNone)
            continue;
        if (act == action::Pause && a->task.state == code::TaskStarted) {
            logTask(m, *a, &TaskWords::paused);
            a->task.state = code::TaskPaused;
        } else if (act == action::Resume && a->task.state == code::TaskPaused) {
            a->task.state = code::TaskStarted;
            logTask(m, *a, &TaskWords::resumed);
        } else if (act == action::Remove) {
            // A transform can't be undone half way; everything else just stops.
            if (a->task.type == code::TaskTransform)
                return refused(st::Busy);
            logTask(m, *a, &TaskWords::removed);
            a->task = Task{};
        }
    }
    return done();
}

CommandResult driveLetter(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    Array *a = m.findArray(req.u64at(16));
    if (!a)
        return refused(st::NoArray);
    const char letter = static_cast<char>(std::toupper(static_cast<int>(req.u32at(44) & 0xFF)));
    if (letter < 'A' || letter > 'Z')
        return refused(st::InvalidParameter);
    const bool assign = req.u32at(48) != 0;
    auto it = std::find_if(m.volumes.begin(), m.volumes.end(),
                           [&](const Volume &v) { return v.letter == letter; });
    if (assign) {
        if (it != m.volumes.end())
            return refused(st::InUse);
        m.volumes.push_back(Volume{letter, {a->id}, {}, false, ""});
    } else {
        if (it == m.volumes.end() ||
            std::find(it->arrays.begin(), it->arrays.end(), a->id) == it->arrays.end())
            return refused(st::InvalidParameter);
        m.volumes.erase(it);
    }
    return done(false);
}

// --- Disks (command 29 and its reply read) -----------------------------------------

// The disks have been running since the host's clock started: their power-on hours
// move on with it, while the scenario holds the hours they had before.
constexpr std::uint64_t kMsPerHour = 3600000;
constexpr std::uint8_t kAtaPowerOnHours = 9;

std::vector<std::uint8_t> smartReply(const Disk &d, bool nvme, std::uint64_t hoursRunning)
{
    std::vector<std::uint8_t> data(512, 0);
    if (nvme) {
        const NvmeHealth &h = *d.nvme;
        put8(data.data(), 0, h.criticalWarning);
        put16(data.data(), 1, h.temperatureKelvin);
        put8(data.data(), 3, h.availableSpare);
        put8(data.data(), 4, h.spareThreshold);
        put8(data.data(), 5, h.percentUsed);
        put64(data.data(), 32, h.dataUnitsRead);
        put64(data.data(), 48, h.dataUnitsWritten);
        put64(data.data(), 64, h.hostReads);
        put64(data.data(), 80, h.hostWrites);
        put64(data.data(), 96, h.busyMinutes);
        put64(data.data(), 112, h.powerCycles);
        put64(data.data(), 128, h.powerOnHours + hoursRunning);
        put64(data.data(), 144, h.unsafeShutdowns);
        put64(data.data(), 160, h.mediaErrors);
        put64(data.data(), 176, h.errorLogEntries);
        return data;
    }
    put16(data.data(), 0, d.smartVersion);
    for (std::size_t i = 0; i < d.smart.size() && i < 30; ++i) {
        const SmartAttribute &a = d.smart[i];
        const std::size_t at = 2 + 12 * i;
        put8(data.data(), at, a.id);
        put16(data.data(), at + 1, a.flags);
        put8(data.data(), at + 3, a.current);
        put8(data.data(), at + 4, a.worst);
        const std::uint64_t raw = a.id == kAtaPowerOnHours ? a.raw + hoursRunning : a.raw;
        for (int b = 0; b < 6; ++b)
            put8(data.data(), at + 5 + b, static_cast<std::uint32_t>(raw >> (8 * b)));
        put8(data.data(), at + 11, a.threshold);
    }
    return data;
}

std::uint32_t manageOneDisk(Host &host, Model &m, Disk &d, std::uint32_t subcode,
                            std::uint32_t channel)
{
    const std::uint32_t c = d.controller, p = d.port;
    switch (subcode) {
    case disk::WriteCacheOn:
    case disk::WriteCacheOff:
        if (d.isNvme())
            return st::NotSupported;
        d.features = subcode == disk::WriteCacheOn ? d.features | code::FeatureWriteCache
                                                   : d.features & ~code::FeatureWriteCache;
        m.logEvent(subcode == disk::WriteCacheOn ? 1142 : 1143, {c, p});
        return st::Ok;
    case disk::ReadAheadOn:
    case disk::ReadAheadOff:
        if (d.isNvme())
            return st::NotSupported;
        d.features = subcode == disk::ReadAheadOn ? d.features | code::FeatureReadAhead
                                                  : d.features & ~code::FeatureReadAhead;
        m.logEvent(subcode == disk::ReadAheadOn ? 1144 : 1145, {c, p});
        return st::Ok;
    case disk::SmartPollingOn:
    case disk::SmartPollingOff:
        d.features = subcode == disk::SmartPollingOn ? d.features | code::FeatureSmartPolling
                                                     : d.features & ~code::FeatureSmartPolling;
        return st::Ok;
    case disk::IdentifyOn:
        d.ledState = 4;
        m.logEvent(1150, {c, p});
        return st::Ok;
    case disk::IdentifyOff:
        d.ledState = 0;
        m.logEvent(1152, {c, p});
        return st::Ok;
    case disk::PrepareRemoval:
        if (!(d.portType & code::PortRemovable))
            return st::NotSupported;
        d.ledState = 4; // lights the bay to pull
        return st::Ok;
    case disk::SmartNvme:
    case disk::SmartAta: {
        if (!d.attached || d.state == code::DiskOffline)
            return st::Offline;
        const bool nvme = subcode == disk::SmartNvme;
        if (nvme ? !d.nvme : (d.smartVersion == 0 || d.isNvme()))
            return st::NotSupported;
        host.setPendingReply(channel, smartReply(d, nvme, host.clock().nowMs() / kMsPerHour));
        return st::Ok;
    }
    default:
        if (subcode > disk::LedStateBase && subcode <= disk::LedStateBase + 10) {
            d.ledState = subcode - disk::LedStateBase;
            m.logEvent(static_cast<std::uint16_t>(1181 + d.ledState), {c, p});
            return st::Ok;
        }
        if (subcode >= disk::ReplyFirst && subcode <= disk::SmartAta)
            return st::NotSupported;
        return st::InvalidParameter;
    }
}

CommandResult manageDisks(Host &host, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    std::vector<Disk *> disks;
    if (const auto why = resolveDrives(m, req, 40, req.u32at(36), disks); why != st::Ok)
        return refused(why);
    const std::uint32_t subcode = req.u32at(32);
    bool changed = false;
    for (Disk *d : disks) {
        if (const std::uint32_t why = manageOneDisk(host, m, *d, subcode, req.u32at(4));
            why != st::Ok)
            return refused(why);
        changed = changed || (subcode != disk::SmartAta && subcode != disk::SmartNvme);
    }
    return done(changed);
}

CommandResult diskReply(Host &host, Model &, std::uint8_t *reply, std::uint32_t size)
{
    std::vector<std::uint8_t> data = host.takePendingReply(u32(reply, 4));
    if (data.empty())
        return refused(st::NotSupported);
    std::memset(reply, 0, size);
    std::memcpy(reply, data.data(), std::min<std::size_t>(size, data.size()));
    return done(false);
}

// --- Diagnostics and the rest of the surface ---------------------------------------

CommandResult checkPciId(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    for (const Controller &c : m.controllers) {
        if (c.id == req.u64at(16))
            return c.pciVendor == req.u32at(40) && c.pciDevice == req.u32at(44)
                       ? done(false)
                       : refused(st::PciMismatch);
    }
    return refused(st::ControllerNotFound);
}

CommandResult sendMessage(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    m.logEvent(static_cast<std::uint16_t>(req.u32at(32)));
    for (std::size_t i = 0; i < 8; ++i)
        m.events.back().params[i] = req.u32at(36 + 4 * i);
    return done(false);
}

CommandResult copyArray(Host &, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    Array *from = referencedArray(m, req.u64at(32), req.u16at(40));
    Array *to = referencedArray(m, req.u64at(48), req.u16at(56));
    if (!from || !to)
        return refused(st::NoArray);
    if (from == to)
        return refused(st::Duplicate);
    if (from->task.type || to->task.type)
        return refused(st::Busy);
    if (to->layout.capacity < from->layout.capacity)
        return refused(st::ArrayTooSmall);
    from->copyTo = to->id;
    to->copyFrom = from->id;
    startTask(m, *to, code::TaskCopy);
    return done();
}

// Goes back to the configuration of an earlier generation, as the drivers keep a few.
CommandResult commitPrevious(Host &host, Model &m, std::uint8_t *bytes, std::uint32_t size)
{
    const Request req(bytes, size);
    Model previous;
    // A generation the drivers no longer keep is out of their reach.
    if (!host.previousModel(req.u64at(32), previous))
        return refused(st::OutOfBounds);
    const std::uint64_t generation = m.generation;
    const std::vector<Event> events = m.events;
    const std::uint32_t nextEvent = m.nextEventNumber;
    m = previous;
    m.generation = generation; // raised once more as the change is committed
    m.events = events;
    m.nextEventNumber = nextEvent;
    m.logEvent(event::ConfigChange);
    return done();
}

CommandResult accepted(Host &, Model &, std::uint8_t *, std::uint32_t)
{
    return done(false);
}

double priorityFactor(std::uint32_t priority)
{
    return std::max(priority, 5u) / 50.0;
}

std::uint64_t taskWork(const Array &a)
{
    switch (a.task.type) {
    case code::TaskRestore: {
        std::uint64_t member = 0;
        for (const Member &mem : a.layout.members)
            member = std::max(member, mem.size);
        return member;
    }
    case code::TaskTransform:
        return a.target ? a.target->capacity : a.layout.capacity;
    default:
        return a.layout.capacity;
    }
}

void finishTask(Model &m, Array &a)
{
    logTask(m, a, &TaskWords::completed);
    switch (a.task.type) {
    case code::TaskTransform:
        if (a.target) {
            a.layout = *a.target;
            a.target.reset();
        }
        break;
    case code::TaskRestore:
        for (Member &mem : a.layout.members)
            mem.flags &= ~(code::MemberFailed | code::MemberOffline | code::MemberNotPresent);
        break;
    case code::TaskCopy:
        if (Array *source = m.findArray(a.copyFrom))
            source->copyTo = 0;
        a.copyFrom = 0;
        break;
    default:
        break;
    }
    a.task = Task{};
    updateArrayState(m, a);
}

} // namespace

std::uint32_t taskRateMBps(std::uint32_t taskType)
{
    switch (taskType) {
    case code::TaskCreate:
    case code::TaskZero:
        return 300;
    case code::TaskCheck:
        return 250;
    case code::TaskTransform:
        return 120;
    case code::TaskRestore:
        return 200;
    case code::TaskSecureErase:
        return 150;
    default:
        return 250;
    }
}

void startTask(Model &m, Array &a, std::uint32_t taskType)
{
    a.task = Task{taskType, code::TaskStarted, 0};
    logTask(m, a, &TaskWords::initiated);
}

bool advanceTasks(Model &m, std::uint64_t elapsedMs, bool &progressed)
{
    progressed = false;
    bool ended = false;
    for (Array &a : m.arrays) {
        if (a.task.type == code::TaskNone || a.task.state != code::TaskStarted)
            continue;
        const std::uint64_t work = std::max<std::uint64_t>(taskWork(a), 1);
        const double sectors =
            taskRateMBps(a.task.type) * 1953.125 * priorityFactor(a.priority) * elapsedMs / 1000.0;
        const double step = sectors * 100000.0 / static_cast<double>(work);
        const double next = std::min(100000.0, a.task.progress + step);
        if (static_cast<std::uint32_t>(next) != a.task.progress) {
            a.task.progress = static_cast<std::uint32_t>(next);
            progressed = true;
        }
        if (a.task.progress >= 100000) {
            finishTask(m, a);
            ended = true;
        }
    }
    return ended;
}

void failRunningTask(Model &m, Array &a)
{
    if (a.task.type == code::TaskNone || a.task.type == code::TaskRestore ||
        a.task.state == code::TaskFailed)
        return;
    logTask(m, a, &TaskWords::failed);
    a.task.state = code::TaskFailed;
    a.target.reset(); // a transform that can't finish keeps the layout it had
}

bool takeSpareForRebuild(Model &m, Array &a)
{
    // A failed task gives way to the rebuild; a running one keeps the array busy.
    if (!isRedundant(a.layout) || a.state != code::ArrayCritical ||
        (a.task.type != code::TaskNone && a.task.state != code::TaskFailed))
        return false;
    auto lost =
        std::find_if(a.layout.members.begin(), a.layout.members.end(), [](const Member &mem) {
            return mem.disk == 0 || (mem.flags & (code::MemberFailed | code::MemberOffline |
                                                  code::MemberNotPresent));
        });
    if (lost == a.layout.members.end())
        return false;
    auto fits = [&](const Disk &d) {
        return d.attached && d.state == code::DiskOnline && !diskInAnyArray(m, d.id) &&
               d.capacity - kMetadataSectors >= lost->size;
    };
    Disk *spare = nullptr;
    for (std::uint64_t id : a.spares) {
        Disk *d = m.findDisk(id);
        if (d && fits(*d)) {
            spare = d;
            break;
        }
    }
    if (!spare) {
        for (Disk &d : m.disks) {
            if (d.globalSpare && fits(d)) {
                spare = &d;
                break;
            }
        }
    }
    if (!spare)
        return false;
    a.spares.erase(std::remove(a.spares.begin(), a.spares.end(), spare->id), a.spares.end());
    spare->globalSpare = false;
    *lost = Member{spare->id, 0, lost->size, 0, lost->size, code::MemberOffline};
    startTask(m, a, code::TaskRestore);
    return true;
}

void installDriverCommands(Host &host)
{
    host.setCommandHandler(cmd::Create, create);
    host.setCommandHandler(cmd::Delete, deleteArrays);
    host.setCommandHandler(cmd::Initialize, initializeDisks);
    host.setCommandHandler(cmd::Manage, manageArray);
    host.setCommandHandler(cmd::Transform, transform);
    host.setCommandHandler(cmd::DriveLetter, driveLetter);
    host.setCommandHandler(cmd::Rescan, rescan);
    host.setCommandHandler(cmd::Offline, offlineArrays);
    host.setCommandHandler(cmd::ManageDisk, manageDisks);
    host.setCommandHandler(cmd::TaskControl, taskControl);
    host.setCommandHandler(cmd::Copy, copyArray);
    host.setCommandHandler(cmd::CommitPrevious, commitPrevious);
    host.setCommandHandler(cmd::SendMessage, sendMessage);
    host.setCommandHandler(cmd::CheckPciId, checkPciId);
    host.setCommandHandler(cmd::BuzzOn, accepted);
    host.setCommandHandler(cmd::BuzzOff, accepted);
    host.setCommandHandler(cmd::ReadCreateInfo, createInfo);
    host.setCommandHandler(cmd::ReadTransformInfo, transformInfo);
    host.setCommandHandler(cmd::ReadDiskReply, diskReply);
}

} // namespace sk_emu
