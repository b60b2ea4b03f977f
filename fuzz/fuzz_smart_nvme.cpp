// NVMe health pages reach the decoders straight from the driver's reply; the overview
// also walks them as ATA attributes.

#include "service/sk_smart_decode.h"

#include <algorithm>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::vector<std::uint8_t> reply(SK_SMART_REPLY_SIZE, 0);
    std::copy_n(data, std::min(size, reply.size()), reply.begin());
    const SK_SmartView view{reply.data(), reply.size()};
    SK_SmartNvmeOverview(view, size % 2 == 0);
    SK_SmartNvmeReport(view);
    return 0;
}
