#include "emulator/sk_emu_events.h"

#include "emulator/sk_emu_wire.h"

#include <algorithm>

namespace sk_emu {

using namespace wire;

void writeEventReply(const Model &model, std::uint32_t cursor, std::uint8_t *reply)
{
    const auto it = std::find_if(model.events.begin(), model.events.end(),
                                 [cursor](const Event &e) { return e.number >= cursor; });
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
