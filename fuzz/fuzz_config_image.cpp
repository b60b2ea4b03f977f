// Configuration images come from the driver; a corrupt one must end the record walk,
// not the console. Each input is an image: the records are built in both disk formats
// and printed in every report form.

#include "config/config.h"

#include <algorithm>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The driver's read never delivers more than this.
    const auto length = static_cast<std::uint32_t>(std::min<std::size_t>(size, SK_IMAGE_SIZE));
    // An exactly-sized copy, so that a read past the image is a sanitizer finding.
    std::vector<std::uint8_t> image(data, data + length);
    static std::vector<char> report(SK_REPORT_MIN_SIZE * 4);

    SK_Core core(image.data(), length);
    for (std::uint32_t form = 0; form < 3; ++form)
        SK_BufferPrintConfig(core, report.data(), static_cast<std::uint32_t>(report.size()), 0,
                             form != 1, form == 2);
    SK_CheckImage(image.data(), length, false);

    // The current format, with its texts, through the record classes themselves.
    std::uint32_t position = 0;
    SK_WalkImage(image.data(), length, false, [&](const SK_ImageRecord &record) {
        const std::uint8_t *bytes = image.data() + record.offset;
        const auto size32 = static_cast<std::uint32_t>(report.size());
        if (record.tag == SK_TAG_DISK) {
            SK_C_PhysicalDevice disk(bytes, "/Route", false, record.length);
            position = disk.BufferPrint(0, position, report.data(), size32, 0, 0);
        } else if (record.tag == SK_TAG_ARRAY) {
            SK_C_LogicalDevice array(bytes, "/Route", 1, record.length);
            position = array.BufferPrint(0, position, report.data(), size32, 0, 1, 1);
        }
        if (position > size32 / 2)
            position = 0;
    });
    return 0;
}
