#pragma once
// Small operating-system services of the library: control of a driver service, the
// driver's parameters in the registry, and file version records for the About box
// and the developer dump. All go through the platform's system view, so the emulated
// host answers them as the real system would.

#include <cstdint>

// Service actions.
constexpr std::uint32_t SK_SERVICE_REINSTALL = 16; // stop, delete, create anew, start
constexpr std::uint32_t SK_SERVICE_START = 32;
constexpr std::uint32_t SK_SERVICE_STOP = 48;
constexpr std::uint32_t SK_SERVICE_DELETE = 64; // stop and delete
constexpr std::uint32_t SK_SERVICE_QUERY = 80;  // 1 when running
constexpr std::uint32_t SK_SERVICE_AUTO_START = 96;
constexpr std::uint32_t SK_SERVICE_DEMAND_START = 112;
constexpr std::uint32_t SK_SERVICE_EXISTS = 128; // 1 when the service exists

// Carries out `action` on the driver service `name` (`path` is its binary, used when
// the service is created anew). Returns 1, or 3 on failure, for a stopped service
// asked with 80, an absent one asked with 128, a null name or an unknown action.
// Stopping an absent service succeeds.
std::uint32_t SK_ServiceControl(const char *name, const char *path, std::uint32_t action);

// The driver's parameters under
// "SYSTEM\CurrentControlSet\Services\SKDriver\Parameters", opened or created on
// construction. Missing values stay 0.
class SK_RegistryInfo
{
public:
    SK_RegistryInfo();
    virtual ~SK_RegistryInfo();

    SK_RegistryInfo(const SK_RegistryInfo &) = delete;
    SK_RegistryInfo &operator=(const SK_RegistryInfo &) = delete;

    std::uint64_t Key = 0; // non-zero while the key is open
    std::uint32_t ArrayCount = 0;
    std::uint32_t FileCount = 0;
};

// One row of SK_FileVersionList.
constexpr std::uint32_t SK_FILE_VERSION_ROW_SIZE = 2048;
using SK_FileVersionRow = char[SK_FILE_VERSION_ROW_SIZE];

// Writes one text row per file of `folder` matching `pattern` ("*.sys"): lines
// "Name=value\n" for FileName, Attributes, CreationTime, LastAccessTime,
// LastWriteTime, FileSize, then the version strings in their fixed order (ProductName,
// FileDescription, FileVersion, InternalName, CompanyName, LegalCopyright,
// OriginalFilename, ProductVersion, "Product Version"). A row is cut at 2048 bytes and
// always terminated. Stores the number of rows written in `rowCount`.
// Returns 1; 7 for a null argument; 26 (SK_STS_BUFFER_TOO_SMALL) when more files
// matched than `maxRows` (the first maxRows rows are written).
std::uint32_t SK_FileVersionList(const char *folder, const char *pattern, SK_FileVersionRow *rows,
                                 std::uint32_t maxRows, std::uint32_t *rowCount);
