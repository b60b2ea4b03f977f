#pragma once

// The application version. The text lies in the data between the markers "SKBNBGN"
// and "SKBNEND" so a release step can find the three adjacent strings in the finished
// executable and stamp a build number in place.
extern const char *const SK_VersionText;
