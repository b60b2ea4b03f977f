// Device paths reach the path grammar from device lists built out of driver records.

#include "driver/sktl.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string path(reinterpret_cast<const char *>(data), size);
    std::string osName;
    SKTL_TranslatePath(path.c_str(), osName);
    return 0;
}
