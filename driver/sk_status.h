#pragma once
// Status values. One numbering serves the whole library and the driver: the first
// word of a reply, the result of every SK_Api... function and of every transfer.
// 1 is success. The numbers are part of the protocol and never change.

#include <cstdint>

enum SK_Status : std::uint32_t {
    SK_STS_UNKNOWN = 0,
    SK_STS_SUCCESS = 1,
    SK_STS_EOF = 2,
    SK_STS_FAILURE = 3,
    SK_STS_ARRAY_TOO_SMALL = 4,
    SK_STS_SPACE_NOT_ALLOCATED = 5,
    SKTL_STS_INVALID_BUFFER = 6,
    SKTL_STS_INVALID_PARAMETER = 7,
    SK_STS_INVALID_CORE_HANDLE = 8,
    SK_STS_TRANSFORM_FAILURE = 9,
    SK_STS_LOGICAL_DEVICE_NOT_FOUND = 10,
    SK_STS_PHYSICAL_DEVICE_NOT_FOUND = 11,
    SK_STS_BAD_FUNCTION = 20,
    SK_STS_INVALID_BUFFER = 21,
    SK_STS_BAD_CONFIG_FUNCTION = 22,
    SK_STS_READ_COMMAND_PENDING = 23,
    SK_STS_NO_CFG_READ_CMD_FOUND = 24,
    SK_STS_IO_ERROR = 25,
    SK_STS_BUFFER_TOO_SMALL = 26,
    SK_STS_OUT_OF_BOUNDS = 27,
    SK_STS_DRIVER_SPECIFIC = 28,
    SK_STS_DEVICE_NOT_FOUND = 29,
    SK_STS_NOT_IMPLEMENTED = 30,
    SK_STS_CONNECTION_ABORTED = 31,
    SK_STS_XOR_RESULT_NOT_ZERO = 32,
    SK_STS_COMPARE_NO_MATCH = 33,
    SK_STS_INJECTED_ERROR = 34,
    SK_STS_TIMER_FAILED = 35,
    SK_STS_INVALID_ROUTING_PATH = 36,
    SK_STS_MEDIA_ERROR = 37,
    SK_STS_INVALID_GENERATION_NUMBER = 38,
    SK_STS_ACCEPT_CONFIG_CHANGE_PENDING = 39,
    SK_STS_DEVICE_IS_BUSY = 40,
    SK_STS_DEVICE_IS_CRITICAL = 41,
    SK_STS_DEVICE_OFFLINE = 42,
    SK_STS_NOT_SUPPORT = 43,
    SK_STS_DUPLICATE_DEVICES = 44,
    SK_STS_NO_SPACE_AVAILABLE = 45,
    SK_STS_NO_RESOURCE_AVAILABLE = 46,
    SK_STS_NO_SPARE_AVAILABLE = 47,
    SK_STS_NO_MEMORY_AVAILABLE = 48,
    SK_STS_ARRAY_IDENTICAL = 49,
    SK_STS_DEVICE_RESERVED = 50,
    SK_STS_CHECK_DEVICE_DATA = 51,
    SK_STS_DEVICE_ID_MISMATCH = 52,
    SK_STS_VALID_USER_MESSAGE = 53,
    SK_STS_NO_USER_MESSAGE = 54,
    SK_STS_DEVICE_NOT_INITIALIZE = 55,
    SK_STS_UNSUPPORT_FEATURE_SET = 56,
    SK_STS_MEMORY_ERROR = 57,
    SK_STS_MEMORY_ERROR_DELAYED = 58,
    SK_STS_CORE_STOPPED = 59,
    SK_STS_UNSUPPORTED_API_VERSION = 60,
    SK_STS_DEVICE_LIST_SPAN_MULTI_CORE = 61,
    SK_STS_INVALID_LOGICAL_DEVICE = 62,
    SK_STS_INVALID_DEVICE_LIST = 63,
    SK_STS_CONTROLLER_DEVICE_NOT_FOUND = 64,
    SK_STS_CRC_ERROR = 65,
    SK_STS_INVALID_SEQUENCE_NUMBER = 66,
    SK_STS_UNALIGN_OFFSET = 67,
    SK_STS_INVALID_SECTOR_SIZE = 68,
    SK_STS_READ_SECTOR_ERROR = 69,
    SK_STS_WRITE_SECTOR_ERROR = 70,
    SK_STS_IO_SIZE_TOO_LARGE = 71,
    SK_STS_INVALID_CHECKSUM = 72,
    SK_STS_INVALID_PCI_ID = 73,
    SK_STS_UNKNOWN_DEVICE = 74,
    SK_STS_DEVICE_SMART_ERROR = 75,
    SK_STS_UNALIGN_SECTOR_SIZE = 76,
    SK_STS_LOGICAL_DEVICE_IN_USE = 77,
    SK_STS_UNUSED = 78,
    SK_STS_DOUBLE_MEDIA_ERROR = 79,
    SK_STS_RETRY_MEDIA_ERROR = 80,
    SK_STS_RESERVED = 81,
    SK_STS_LAST_ERROR = 82,
};

// Number of rows in the status name table (values 0 to 82).
constexpr std::uint32_t SK_STATUS_TABLE_ROWS = 83;
constexpr std::uint32_t SK_STATUS_NAME_SIZE = 64;

// One row of the status name table. The code column equals the row's value except
// for a few historical rows (0 and the unnamed 12..19 carry 82, 6 carries 21, 81
// carries 82 and 82 carries 83); lookups go by row and never read it.
struct SK_StatusRow
{
    std::uint32_t Code;
    char Name[SK_STATUS_NAME_SIZE];
};

extern const SK_StatusRow SK_StatusTable[SK_STATUS_TABLE_ROWS];

// Copies the name of `status` into `nameOut`: at most 64 bytes, or `nameSize` when
// that is 64 or less; like strncpy the copy is not terminated when the name fills it.
// Returns 1; for a value of 83 or more copies "SK_STS_UNKNOWN" and returns 0.
int SK_GetStatusName(std::uint32_t status, char *nameOut, std::uint32_t nameSize);

// Convenience for diagnostics and test messages: the name as a terminated string.
const char *SK_StatusText(std::uint32_t status);
