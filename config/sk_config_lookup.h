#pragma once
// Finding things in a configuration: records of an SK_Core by name or identity, the
// cores of the system, whole-core lookups, the checks a device list passes before a
// command is sent, and the older enumeration through the second control device.

#include "config/sk_device_records.h"
#include "config/sk_logical_device.h"
#include "driver/sk_core.h"

// A device list of the application: count names of 80 bytes each.
using SK_DeviceName = char[SK_DEVICE_NAME_SIZE];

// Room the application gives the core list: eight entries.
constexpr std::uint32_t SK_CORE_LIST_SIZE = 8 * sizeof(SK_CoreEntry);

// Record searches on an open core. The caller holds the library lock. Each returns
// the index of the first matching record, or the list's count when none matches.
// Names: one trailing blank of the record's name is ignored, otherwise lengths and
// bytes must be equal; an empty or null name matches nothing. An ID of 0 matches
// nothing. Empty slots (records that couldn't be built) are skipped.
std::uint32_t SK_FindDiskByName(const SK_Core &core, const char *name);
std::uint32_t SK_FindDiskById(const SK_Core &core, std::uint64_t id);
std::uint32_t SK_FindArrayByName(const SK_Core &core, const char *name);
std::uint32_t SK_FindArrayById(const SK_Core &core, std::uint64_t id);
std::uint32_t SK_FindControllerById(const SK_Core &core, std::uint64_t id);

// 1 when the record name `recordName` names `name` by the rule above, else 0.
std::uint32_t SK_DeviceNameMatches(const char *recordName, const char *name);

// The ID of the array of that name, 0 when there is none.
std::uint64_t SK_ArrayIdByName(const SK_Core &core, const char *name);

// Enumerates the cores: only "Core1" is ever tried. Writes an entry for each core
// whose control device opens and stores the number found in `count`.
// Returns 1 (also when no core exists, with count 0); 7 for a null `count`, or a null
// list with room; 26 (SK_STS_BUFFER_TOO_SMALL) when `sizeInBytes` can't hold the
// entries; 48 when the core object can't be allocated.
std::uint32_t SK_ApiGetCoreList(SK_CoreEntry *coreList, std::uint32_t sizeInBytes,
                                std::uint32_t *count);

// Whole-core lookups; each builds its own SK_Core under the library lock.
// SerialNumber of the controller at `index`, or 0.
std::uint64_t SK_ApiGetControllerSerial(const SK_CoreEntry *core, std::uint32_t index);
// Routes of the array (or disk) with that ID as one word: DeviceRoute in bits 0-15,
// CoreRoute in bits 16-31; 0 when not found or the core can't be opened.
std::uint64_t SK_ApiGetArrayRoute(const SK_CoreEntry *core, std::uint64_t id);
std::uint64_t SK_ApiGetDiskRoute(const SK_CoreEntry *core, std::uint64_t id);

// Searches every core for the controller with that serial number, the array or the
// disk with that ID. On success fills `entryOut` with the core and copies the record's
// name to `nameOut` (17 bytes for a controller, 80 for an array or disk).
// Returns 1; 7 for a null argument; 64, 10 or 11 when nothing matches.
std::uint32_t SK_ApiFindControllerBySerial(SK_CoreEntry *entryOut, std::uint64_t serial,
                                           char *nameOut);
std::uint32_t SK_ApiFindArrayById(SK_CoreEntry *entryOut, std::uint64_t id, char *nameOut);
std::uint32_t SK_ApiFindDiskById(SK_CoreEntry *entryOut, std::uint64_t id, char *nameOut);

// The core number all names of a list share; 0 for a null or empty list, a name
// without a core number, or names of different cores.
std::uint32_t SK_CommonCore(const SK_DeviceName *list, std::uint32_t count);

// Writes the core entry a device list addresses to `out`: 1 when any name belongs to
// core 1 (the entry is `core`'s bus, number 1, "Core1"), else 0. Names of core 2 alone
// count as none. `outSize` is not looked at: `out` must hold one entry.
std::uint32_t SK_BuildCoreList(const SK_CoreEntry *core, SK_CoreEntry *out, std::uint32_t outSize,
                               const SK_DeviceName *list, std::uint32_t count);

// Copies the names of `list` that belong to core `coreNumber` to `out` and returns how
// many. With `out` equal to `list` nothing is copied and `count` is returned.
std::uint32_t SK_FilterByCore(std::uint32_t coreNumber, SK_DeviceName *out,
                              const SK_DeviceName *list, std::uint32_t count);

// Checks two device lists against one core before a command is sent and stores their
// common core number in `coreOut`.
// Returns 1; 63 (SK_STS_INVALID_DEVICE_LIST) for empty lists or names of no core;
// 61 (SK_STS_DEVICE_LIST_SPAN_MULTI_CORE) when the lists name different cores;
// 48 when the scratch entry can't be allocated; 7 for a null `core` or `coreOut`.
std::uint32_t SK_ValidateCoreDeviceLists(const SK_CoreEntry *core, std::uint32_t count1,
                                         std::uint32_t count2, const SK_DeviceName *list1,
                                         const SK_DeviceName *list2, std::uint32_t *coreOut);

// One row of the older enumeration.
constexpr std::uint32_t W2KP_ROW_SIZE = 128;
constexpr std::uint32_t W2KP_ROW_PATH = 48;
constexpr std::uint32_t W2KP_KIND_CONFIG = 1;
constexpr std::uint32_t W2KP_KIND_ARRAY = 3;
constexpr std::uint32_t W2KP_KIND_DISK = 4;
constexpr std::uint32_t W2KP_IMAGE_SIZE = 0x40000;

// The older enumeration through the second control device ("\\.\BKConfig0", opened
// by the caller): reads the image in its 1024-byte disk format and writes one 128-byte
// row per disk and array into `rows`: u64 size, u32 kind, u32 depth and at byte 48 the
// path, composed in `pathScratch` (80 bytes, may be null). The walk ends normally at a
// controller record. Stores the number of rows in `rowCount`.
// Returns 1; 7 for a null handle, rows or count; 48 when the image block can't be
// allocated; a transfer's status when a transfer fails; 27 (SK_STS_OUT_OF_BOUNDS) for
// an image the walk can't finish (unknown tag, record past the image, more than
// `maxRows` rows).
std::uint32_t W2KP_EnumerateForCore(SK_Handle handle, char *pathScratch, std::uint8_t *rows,
                                    std::uint32_t maxRows, std::uint32_t *rowCount);

// Checks that the record walk of an image ends where the image does: at tag 0, at an
// unknown tag or at its end, rather than at a record that can't be real (an array
// shorter than its fixed part, a record running past the image, tables that don't fit
// their array). Returns 1; 7 for a null image; 27 (SK_STS_OUT_OF_BOUNDS) otherwise.
std::uint32_t SK_CheckImage(const std::uint8_t *image, std::uint32_t size, bool previous);
