#include "emulator/sk_emu_model.h"

#include <algorithm>
#include <cstddef>

namespace sk_emu {

namespace {

template <class List, class Key, class Pred>
auto findIn(List &list, Key key, Pred matches) -> decltype(&list[0])
{
    for (auto &item : list) {
        if (matches(item, key))
            return &item;
    }
    return nullptr;
}

} // namespace

Disk *Model::findDisk(std::uint64_t id)
{
    return id ? findIn(disks, id, [](const Disk &d, std::uint64_t k) { return d.id == k; })
              : nullptr;
}

const Disk *Model::findDisk(std::uint64_t id) const
{
    return const_cast<Model *>(this)->findDisk(id);
}

Array *Model::findArray(std::uint64_t id)
{
    return id ? findIn(arrays, id, [](const Array &a, std::uint64_t k) { return a.id == k; })
              : nullptr;
}

const Array *Model::findArray(std::uint64_t id) const
{
    return const_cast<Model *>(this)->findArray(id);
}

Array *Model::findArrayByRoute(std::uint32_t route)
{
    return findIn(arrays, route, [](const Array &a, std::uint32_t r) { return a.route == r; });
}

const Array *Model::findArrayByRoute(std::uint32_t route) const
{
    return const_cast<Model *>(this)->findArrayByRoute(route);
}

void Model::logEvent(std::uint16_t message, std::initializer_list<std::uint32_t> params)
{
    Event event;
    event.number = nextEventNumber++;
    event.message = message;
    std::size_t i = 0;
    for (std::uint32_t p : params) {
        if (i < event.params.size())
            event.params[i++] = p;
    }
    events.push_back(event);
    const std::size_t capacity = std::max<std::uint32_t>(eventCapacity, 1);
    if (events.size() > capacity)
        events.erase(events.begin(),
                     events.begin() + static_cast<std::ptrdiff_t>(events.size() - capacity));
}

std::vector<Extent> freeExtents(const Model &model, const Disk &disk)
{
    std::vector<Extent> used;
    auto collect = [&](const Layout &layout) {
        for (const Member &m : layout.members) {
            if (m.disk == disk.id && m.size)
                used.push_back({m.offset, m.size});
        }
    };
    for (const Array &array : model.arrays) {
        collect(array.layout);
        if (array.target)
            collect(*array.target);
    }
    std::sort(used.begin(), used.end(),
              [](const Extent &a, const Extent &b) { return a.offset < b.offset; });

    const std::uint64_t usable =
        disk.capacity > kMetadataSectors ? disk.capacity - kMetadataSectors : 0;
    std::vector<Extent> free;
    std::uint64_t cursor = 0;
    for (const Extent &e : used) {
        if (e.offset > cursor)
            free.push_back({cursor, std::min(e.offset, usable) - cursor});
        cursor = std::max(cursor, e.offset + e.size);
        if (cursor >= usable)
            break;
    }
    if (cursor < usable)
        free.push_back({cursor, usable - cursor});
    free.erase(
        std::remove_if(free.begin(), free.end(), [](const Extent &e) { return e.size == 0; }),
        free.end());
    return free;
}

Array plainArray(std::uint64_t id, std::uint16_t route, const char *name, std::uint32_t type,
                 std::uint32_t first, std::uint32_t second, const std::vector<std::uint64_t> &disks,
                 std::uint64_t extent)
{
    Array a;
    a.id = id;
    a.route = route;
    a.name = name;
    a.layout.type = type;
    a.layout.firstCount = first;
    a.layout.secondCount = second;
    for (std::uint64_t disk : disks)
        a.layout.members.push_back(Member{disk, 0, extent, 0, extent, 0});
    a.layout.capacity = layoutCapacity(type, first, second, extent, extent * disks.size());
    a.generation = 1;
    a.cachePolicy = code::CacheRead | code::CacheWrite;
    return a;
}

std::uint64_t layoutCapacity(std::uint32_t type, std::uint32_t firstCount,
                             std::uint32_t secondCount, std::uint64_t smallestMember,
                             std::uint64_t sumOfMembers)
{
    const std::uint64_t n = static_cast<std::uint64_t>(firstCount) * secondCount;
    switch (type) {
    case code::TypeVolume:
    case code::TypeLegacy:
    case code::TypeRaidable:
    case code::TypeTier:
        return sumOfMembers;
    case code::TypeMirrorStripe:
        if (secondCount == 1)
            return n * smallestMember;      // stripe
        return firstCount * smallestMember; // mirror (1 row) or stripe of mirrors
    case code::TypeParity:
        return secondCount > 1 ? firstCount * (secondCount - 1) * smallestMember : 0;
    case code::TypeDoubleParity:
        return secondCount > 2 ? firstCount * (secondCount - 2) * smallestMember : 0;
    default:
        return 0;
    }
}

std::uint32_t layoutTolerance(const Layout &layout)
{
    switch (layout.type) {
    case code::TypeMirrorStripe:
        return layout.secondCount > 1 ? layout.secondCount - 1 : 0;
    case code::TypeParity:
        return 1;
    case code::TypeDoubleParity:
        return 2;
    default:
        return 0;
    }
}

} // namespace sk_emu
