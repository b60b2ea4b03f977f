#include "driver/sk_status.h"

#include <cstdio>
#include <cstring>

// Indexed by status value. The code column is historical, see SK_StatusRow.
const SK_StatusRow SK_StatusTable[SK_STATUS_TABLE_ROWS] = {
    {82, "SK_STS_UNKNOWN"},                      // 0
    {1, "SK_STS_SUCCESS"},                       // 1
    {2, "SK_STS_EOF"},                           // 2
    {3, "SK_STS_FAILURE"},                       // 3
    {4, "SK_STS_ARRAY_TOO_SMALL"},               // 4
    {5, "SK_STS_SPACE_NOT_ALLOCATED"},           // 5
    {21, "SKTL_STS_INVALID_BUFFER"},             // 6
    {7, "SKTL_STS_INVALID_PARAMETER"},           // 7
    {8, "SK_STS_INVALID_CORE_HANDLE"},           // 8
    {9, "SK_STS_TRANSFORM_FAILURE"},             // 9
    {10, "SK_STS_LOGICAL_DEVICE_NOT_FOUND"},     // 10
    {11, "SK_STS_PHYSICAL_DEVICE_NOT_FOUND"},    // 11
    {82, "SK_STS_UNKNOWN"},                      // 12
    {82, "SK_STS_UNKNOWN"},                      // 13
    {82, "SK_STS_UNKNOWN"},                      // 14
    {82, "SK_STS_UNKNOWN"},                      // 15
    {82, "SK_STS_UNKNOWN"},                      // 16
    {82, "SK_STS_UNKNOWN"},                      // 17
    {82, "SK_STS_UNKNOWN"},                      // 18
    {82, "SK_STS_UNKNOWN"},                      // 19
    {20, "SK_STS_BAD_FUNCTION"},                 // 20
    {21, "SK_STS_INVALID_BUFFER"},               // 21
    {22, "SK_STS_BAD_CONFIG_FUNCTION"},          // 22
    {23, "SK_STS_READ_COMMAND_PENDING"},         // 23
    {24, "SK_STS_NO_CFG_READ_CMD_FOUND"},        // 24
    {25, "SK_STS_IO_ERROR"},                     // 25
    {26, "SK_STS_BUFFER_TOO_SMALL"},             // 26
    {27, "SK_STS_OUT_OF_BOUNDS"},                // 27
    {28, "SK_STS_DRIVER_SPECIFIC"},              // 28
    {29, "SK_STS_DEVICE_NOT_FOUND"},             // 29
    {30, "SK_STS_NOT_IMPLEMENTED"},              // 30
    {31, "SK_STS_CONNECTION_ABORTED"},           // 31
    {32, "SK_STS_XOR_RESULT_NOT_ZERO"},          // 32
    {33, "SK_STS_COMPARE_NO_MATCH"},             // 33
    {34, "SK_STS_INJECTED_ERROR"},               // 34
    {35, "SK_STS_TIMER_FAILED"},                 // 35
    {36, "SK_STS_INVALID_ROUTING_PATH"},         // 36
    {37, "SK_STS_MEDIA_ERROR"},                  // 37
    {38, "SK_STS_INVALID_GENERATION_NUMBER"},    // 38
    {39, "SK_STS_ACCEPT_CONFIG_CHANGE_PENDING"}, // 39
    {40, "SK_STS_DEVICE_IS_BUSY"},               // 40
    {41, "SK_STS_DEVICE_IS_CRITICAL"},           // 41
    {42, "SK_STS_DEVICE_OFFLINE"},               // 42
    {43, "SK_STS_NOT_SUPPORT"},                  // 43
    {44, "SK_STS_DUPLICATE_DEVICES"},            // 44
    {45, "SK_STS_NO_SPACE_AVAILABLE"},           // 45
    {46, "SK_STS_NO_RESOURCE_AVAILABLE"},        // 46
    {47, "SK_STS_NO_SPARE_AVAILABLE"},           // 47
    {48, "SK_STS_NO_MEMORY_AVAILABLE"},          // 48
    {49, "SK_STS_ARRAY_IDENTICAL"},              // 49
    {50, "SK_STS_DEVICE_RESERVED"},              // 50
    {51, "SK_STS_CHECK_DEVICE_DATA"},            // 51
    {52, "SK_STS_DEVICE_ID_MISMATCH"},           // 52
    {53, "SK_STS_VALID_USER_MESSAGE"},           // 53
    {54, "SK_STS_NO_USER_MESSAGE"},              // 54
    {55, "SK_STS_DEVICE_NOT_INITIALIZE"},        // 55
    {56, "SK_STS_UNSUPPORT_FEATURE_SET"},        // 56
    {57, "SK_STS_MEMORY_ERROR"},                 // 57
    {58, "SK_STS_MEMORY_ERROR_DELAYED"},         // 58
    {59, "SK_STS_CORE_STOPPED"},                 // 59
    {60, "SK_STS_UNSUPPORTED_API_VERSION"},      // 60
    {61, "SK_STS_DEVICE_LIST_SPAN_MULTI_CORE"},  // 61
    {62, "SK_STS_INVALID_LOGICAL_DEVICE"},       // 62
    {63, "SK_STS_INVALID_DEVICE_LIST"},          // 63
    {64, "SK_STS_CONTROLLER_DEVICE_NOT_FOUND"},  // 64
    {65, "SK_STS_CRC_ERROR"},                    // 65
    {66, "SK_STS_INVALID_SEQUENCE_NUMBER"},      // 66
    {67, "SK_STS_UNALIGN_OFFSET"},               // 67
    {68, "SK_STS_INVALID_SECTOR_SIZE"},          // 68
    {69, "SK_STS_READ_SECTOR_ERROR"},            // 69
    {70, "SK_STS_WRITE_SECTOR_ERROR"},           // 70
    {71, "SK_STS_IO_SIZE_TOO_LARGE"},            // 71
    {72, "SK_STS_INVALID_CHECKSUM"},             // 72
    {73, "SK_STS_INVALID_PCI_ID"},               // 73
    {74, "SK_STS_UNKNOWN_DEVICE"},               // 74
    {75, "SK_STS_DEVICE_SMART_ERROR"},           // 75
    {76, "SK_STS_UNALIGN_SECTOR_SIZE"},          // 76
    {77, "SK_STS_LOGICAL_DEVICE_IN_USE"},        // 77
    {78, "SK_STS_UNUSED"},                       // 78
    {79, "SK_STS_DOUBLE_MEDIA_ERROR"},           // 79
    {80, "SK_STS_RETRY_MEDIA_ERROR"},            // 80
    {82, "SK_STS_RESERVED"},                     // 81
    {83, "SK_STS_LAST_ERROR"},                   // 82
};

int SK_GetStatusName(std::uint32_t status, char *nameOut, std::uint32_t nameSize)
{
    const std::uint32_t limit = nameSize <= SK_STATUS_NAME_SIZE ? nameSize : SK_STATUS_NAME_SIZE;
    if (status >= SK_STATUS_TABLE_ROWS) {
        std::strncpy(nameOut, "SK_STS_UNKNOWN", limit);
        return 0;
    }
    std::strncpy(nameOut, SK_StatusTable[status].Name, limit);
    return 1;
}

const char *SK_StatusText(std::uint32_t status)
{
    return status < SK_STATUS_TABLE_ROWS ? SK_StatusTable[status].Name : "SK_STS_UNKNOWN";
}
