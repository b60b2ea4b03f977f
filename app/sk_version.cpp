#include "app/sk_version.h"

namespace {

// One array keeps the three strings adjacent and in order; `used` keeps an optimising
// linker from dropping the markers, which nothing in the program reads.
#if defined(__GNUC__)
__attribute__((used))
#endif
const char versionBlock[] = "SKBNBGN\0"
                            "9.3.3-00097\0"
                            "SKBNEND";

constexpr int kMarkerLength = 8; // "SKBNBGN" and its terminator

} // namespace

const char *const SK_VersionText = versionBlock + kMarkerLength;
