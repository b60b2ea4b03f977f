// Event lines come from the driver's log and are taken apart again by the console; the
// parser must end cleanly on any text, whatever its brackets, numbers and lengths.

#include "events/events.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::wstring line(data, data + size); // one byte, one character
    constexpr std::uint32_t kTextLimit = 64;
    wchar_t text[kTextLimit + 2];
    std::int32_t code = 0, params[8] = {};
    std::uint32_t priority = 0;
    SK_ParseUserMessageLine(line.c_str(), &code, &priority, text, kTextLimit, params);
    return 0;
}
