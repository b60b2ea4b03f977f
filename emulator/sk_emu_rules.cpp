#include "emulator/sk_emu_rules.h"

#include "emulator/sk_emu_events.h"

namespace sk_emu {

namespace {

bool memberLost(const Member &member)
{
    return member.disk == 0 ||
           (member.flags & (code::MemberFailed | code::MemberOffline | code::MemberNotPresent));
}

} // namespace

std::uint32_t judgeArrayState(const Layout &layout)
{
    const std::uint32_t rows = layout.firstCount, width = layout.secondCount;
    if (layout.members.size() < static_cast<std::size_t>(rows) * width)
        return code::ArrayOffline;

    bool degraded = false;
    switch (layout.type) {
    case code::TypeMirrorStripe:
    case code::TypeParity:
    case code::TypeDoubleParity: {
        // Redundancy is per row: a mirror row survives while one copy is left, a parity
        // row while no more than one (two) members are gone.
        std::uint32_t tolerance = width > 1 ? width - 1 : 0;
        if (layout.type == code::TypeParity)
            tolerance = 1;
        if (layout.type == code::TypeDoubleParity)
            tolerance = 2;
        for (std::uint32_t row = 0; row < rows; ++row) {
            std::uint32_t lost = 0;
            for (std::uint32_t col = 0; col < width; ++col)
                lost += memberLost(layout.members[row * width + col]) ? 1 : 0;
            if (lost > tolerance)
                return code::ArrayOffline;
            degraded = degraded || lost > 0;
        }
        return degraded ? code::ArrayCritical : code::ArrayNormal;
    }
    default:
        // Spans and tiers have no redundancy.
        for (const Member &m : layout.members) {
            if (memberLost(m))
                return code::ArrayOffline;
        }
        return code::ArrayNormal;
    }
}

void updateArrayState(Model &model, Array &array)
{
    const std::uint32_t state = judgeArrayState(array.layout);
    if (state == array.state)
        return;
    array.state = state;
    if (state == code::ArrayCritical)
        model.logEvent(event::ArrayCritical, {array.route});
    else if (state == code::ArrayOffline)
        model.logEvent(event::ArrayOffline, {array.route});
}

void markMemberLost(Model &model, std::uint64_t diskId, std::uint32_t flags)
{
    for (Array &array : model.arrays) {
        bool touched = false;
        for (Member &m : array.layout.members) {
            if (m.disk == diskId) {
                m.flags |= flags;
                touched = true;
            }
        }
        if (touched)
            updateArrayState(model, array);
    }
}

} // namespace sk_emu
