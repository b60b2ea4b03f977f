// The token report is the contract between the library and the application; the
// reader must end cleanly on any text, whatever its carets, keys and indexes.

#include "config/config.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto snapshot = std::make_unique<SK_ConfigSnapshot>();
    SK_ParseConfigText(reinterpret_cast<const char *>(data), size, snapshot.get());
    return 0;
}
