#pragma once
// The default workstation and a varied one for the service suites: a degraded array
// with a dedicated spare, a hidden array, a transform in progress and a tier.

#include "emulator/emulator.h"

namespace lab {

using namespace sk_emu;

// Disk ids of the default workstation: port + 1 on the one controller.
constexpr int kSsdA = 1, kSsdB = 2, kHdd1 = 3, kHdd2 = 4, kHdd3 = 5, kSpare = 6, kNvme = 7;
constexpr int kSystem = 1, kData = 2;

// Ids of the arrays the varied scenario adds.
// Array members that are arrays are named by the array's id in the same field as a
// disk's, so the tier's parts get ids no disk has.
constexpr int kScratch = 3, kGrowing = 4, kTier = 5, kFast = 16, kSlow = 17;

inline std::uint64_t diskIdOf(const Model &m, int disk)
{
    for (const Disk &d : m.disks) {
        if (diskDeviceRoute(d) == disk)
            return d.id;
    }
    return 0;
}

// The default workstation made varied: Data degraded by a failed member, a hidden
// scratch array on the spare disk's extents, a mirror being transformed into a
// RAID 5 (two layouts), a tier over two small arrays, a dedicated spare and a member
// whose disk is gone.
inline Model variedScenario()
{
    Model m = defaultScenario();
    const std::uint64_t extent = 1 << 20;
    Array &data = m.arrays[1];
    data.layout.members[2].flags = code::MemberFailed;
    data.state = code::ArrayCritical;
    data.spares = {diskIdOf(m, kNvme)};
    m.disks[5].globalSpare = false;

    Array scratch = plainArray(0xB3, kScratch, "Scratch", code::TypeMirrorStripe, 1, 1,
                               {diskIdOf(m, kSpare)}, extent);
    scratch.attributes = code::AttributeHidden;

    Array growing = plainArray(0xB4, kGrowing, "Growing", code::TypeMirrorStripe, 2, 1,
                               {diskIdOf(m, kSpare), 0}, extent);
    growing.layout.members[1].flags = code::MemberNotPresent;
    growing.target = growing.layout;
    growing.target->type = code::TypeParity;
    growing.target->firstCount = 1;
    growing.target->secondCount = 3;
    growing.target->members.push_back(Member{diskIdOf(m, kHdd1), extent, extent, 0, extent, 0});
    growing.task = Task{code::TaskTransform, code::TaskStarted, 12000};

    Array fast =
        plainArray(0xB6, kFast, "Fast", code::TypeMirrorStripe, 1, 1, {diskIdOf(m, kSsdA)}, extent);
    Array slow =
        plainArray(0xB7, kSlow, "Slow", code::TypeMirrorStripe, 1, 1, {diskIdOf(m, kHdd2)}, extent);
    Array tier;
    tier.id = 0xB5;
    tier.route = kTier;
    tier.name = "Tier";
    tier.layout.type = code::TypeTier;
    tier.layout.firstCount = 1;
    tier.layout.secondCount = 2;
    tier.layout.members = {Member{fast.id, 0, extent, 0, extent, 0},
                           Member{slow.id, 0, extent, 0, extent, 0}};
    tier.layout.capacity = 2 * extent;
    fast.referenceCount = slow.referenceCount = 1;
    m.arrays.insert(m.arrays.end(), {scratch, growing, tier, fast, slow});
    return m;
}

} // namespace lab
