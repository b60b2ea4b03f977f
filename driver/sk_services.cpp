#include "driver/sk_services.h"

#include "driver/sk_platform.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>
#include <vector>

namespace {

bool isKnownAction(std::uint32_t action)
{
    return action >= SK_SERVICE_REINSTALL && action <= SK_SERVICE_EXISTS && action % 16 == 0;
}

// Appends "name=value\n" to a row, cutting at the row's end.
void appendLine(char *row, std::size_t &used, const std::string &name, const std::string &value)
{
    if (used + 1 >= SK_FILE_VERSION_ROW_SIZE)
        return;
    const int n = std::snprintf(row + used, SK_FILE_VERSION_ROW_SIZE - used, "%s=%s\n",
                                name.c_str(), value.c_str());
    if (n > 0)
        used +=
            std::min<std::size_t>(static_cast<std::size_t>(n), SK_FILE_VERSION_ROW_SIZE - 1 - used);
}

} // namespace

std::uint32_t SK_ServiceControl(const char *name, const char *path, std::uint32_t action)
{
    if (!name || !*name || !isKnownAction(action))
        return SK_STS_FAILURE;
    const std::uint32_t result =
        SK_CurrentPlatform().system().serviceControl(name, path ? path : "", action);
    return result == SK_STS_SUCCESS ? SK_STS_SUCCESS : SK_STS_FAILURE;
}

SK_RegistryInfo::SK_RegistryInfo()
{
    std::uint32_t arrays = 0;
    std::uint32_t files = 0;
    if (SK_CurrentPlatform().system().driverParameters(arrays, files)) {
        Key = 1;
        ArrayCount = arrays;
        FileCount = files;
    }
}

SK_RegistryInfo::~SK_RegistryInfo()
{
    // The system view reads the values and closes the key itself; this only marks
    // the object as closed.
    Key = 0;
}

std::uint32_t SK_FileVersionList(const char *folder, const char *pattern, SK_FileVersionRow *rows,
                                 std::uint32_t maxRows, std::uint32_t *rowCount)
{
    if (!folder || !pattern || !rowCount || (!rows && maxRows != 0))
        return SKTL_STS_INVALID_PARAMETER;
    *rowCount = 0;
    const std::vector<SK_FileVersionRecord> files =
        SK_CurrentPlatform().system().fileVersions(folder, pattern);

    std::uint32_t written = 0;
    for (const SK_FileVersionRecord &file : files) {
        if (written == maxRows)
            break;
        char *row = rows[written];
        row[0] = '\0';
        std::size_t used = 0;
        char number[32];
        appendLine(row, used, "FileName", file.fileName);
        std::snprintf(number, sizeof number, "0x%08x", file.attributes);
        appendLine(row, used, "Attributes", number);
        appendLine(row, used, "CreationTime", file.creationTime);
        appendLine(row, used, "LastAccessTime", file.lastAccessTime);
        appendLine(row, used, "LastWriteTime", file.lastWriteTime);
        std::snprintf(number, sizeof number, "%" PRIu64, file.fileSize);
        appendLine(row, used, "FileSize", number);
        for (const auto &entry : file.strings)
            appendLine(row, used, entry.first, entry.second);
        ++written;
    }
    *rowCount = written;
    return files.size() > maxRows ? SK_STS_BUFFER_TOO_SMALL : SK_STS_SUCCESS;
}
