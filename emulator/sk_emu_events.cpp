#include "emulator/sk_emu_events.h"

#include "emulator/sk_emu_wire.h"

#include <algorithm>

namespace sk_emu {

using namespace wire;

void writeEventReply(const Model &model, std::uint32_t cursor, std::uint8_t *reply)
{
    // The log holds its entries in rising numbers: a reader following it through a full
    // log of 65536 entries finds each one without walking those before it.
    const auto it =
        std::lower_bound(model.events.begin(), model.events.end(), cursor,
                         [](const Event &e, std::uint32_t number) { return e.number < number; });
    if (it == model.events.end()) {
        put32(reply, eventReply::Available, 0);
        put32(reply, eventReply::NextCursor, model.nextEventNumber);
        return;
    }
    put32(reply, eventReply::Available, static_cast<std::uint32_t>(model.events.end() - it));
    put32(reply, eventReply::NextCursor, it->number + 1);
    put16(reply, eventReply::Message, it->message);
    put8(reply, eventReply::EntryByte, it->entryByte);
    put32(reply, eventReply::Number, it->number);
    for (std::size_t i = 0; i < it->params.size(); ++i)
        put32(reply, eventReply::Params + 4 * i, it->params[i]);
}

} // namespace sk_emu
