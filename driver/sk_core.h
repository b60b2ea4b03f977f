#pragma once
// SK_Core: one short-lived open channel to one driver instance, together with the
// configuration that instance reported when the object was built. Each command builds
// one, sends one or a few requests, and destroys it, so every request quotes a
// generation that is at most a few instructions old.

#include "driver/sk_types.h"

class SK_C_PhysicalDevice;
class SK_C_LogicalDevice;
class SK_C_ControllerDevice;
class SK_C_SEPDevice;

// Request header offsets, shared by every request and reply.
constexpr std::size_t SK_HDR_COMMAND = 0;
constexpr std::size_t SK_HDR_CHANNEL = 4;
constexpr std::size_t SK_HDR_GENERATION = 8;
constexpr std::size_t SK_HDR_OPTION = 16;
constexpr std::size_t SK_HDR_API_LEVEL = 24;
constexpr std::size_t SK_HDR_API_REVISION = 28;
constexpr std::size_t SK_HDR_READ_CODE = 32;
constexpr std::size_t SK_HDR_PARAMETER = 36;

constexpr std::uint32_t SK_API_LEVEL = 2;
constexpr std::uint32_t SK_API_REVISION = 1;
constexpr std::uint32_t SK_COMMAND_READ = 1;
constexpr std::uint32_t SK_REQUEST_MIN_SIZE = 512;
// Every read request is written as 8192 bytes whatever reply size it asks for.
constexpr std::uint32_t SK_READ_REQUEST_SIZE = 8192;

constexpr std::uint32_t SK_READ_CONFIG = 4096;
constexpr std::uint32_t SK_READ_USER_MESSAGE = 4098;
constexpr std::uint32_t SK_READ_LAST_STATUS = 4118;

// Open and flag modes of the control device and of route handles.
constexpr std::uint32_t SK_OPEN_SHARED_ALWAYS = 8;
constexpr std::uint32_t SK_OPEN_EXCLUSIVE_ALWAYS = 7;
constexpr std::uint32_t SK_FLAGS_UNBUFFERED = 3;
constexpr std::uint32_t SK_FLAGS_WRITE_THROUGH = 2;

// Builds the record objects of an image. The record classes live in the configuration
// layer, which installs its factory; without one the tables are sized but every slot
// stays null, just as when a record's allocation fails.
class SK_RecordFactory
{
public:
    virtual ~SK_RecordFactory();
    virtual SK_C_PhysicalDevice *makeDisk(const std::uint8_t *record, std::uint32_t length,
                                          const char *routePrefix, bool previous) const = 0;
    virtual SK_C_LogicalDevice *makeArray(const std::uint8_t *record, std::uint32_t length,
                                          const char *routePrefix,
                                          std::uint32_t coreNumber) const = 0;
    virtual SK_C_ControllerDevice *makeController(const std::uint8_t *record,
                                                  const char *routePrefix) const = 0;
    virtual SK_C_SEPDevice *makeEnclosure(const std::uint8_t *record,
                                          const char *routePrefix) const = 0;
    virtual void destroy(SK_C_PhysicalDevice *disk) const = 0;
    virtual void destroy(SK_C_LogicalDevice *array) const = 0;
    virtual void destroy(SK_C_ControllerDevice *controller) const = 0;
    virtual void destroy(SK_C_SEPDevice *enclosure) const = 0;
};

// Installs the factory every SK_Core uses from now on; returns the previous one.
const SK_RecordFactory *SK_SetRecordFactory(const SK_RecordFactory *factory);
const SK_RecordFactory *SK_GetRecordFactory();

// The number behind the word "core" in a name, ignoring case ("//./CORE1/..." is 1);
// 0 when the word does not occur. Only the first 80 bytes of the name are looked at.
std::uint32_t SK_ParseCoreNumber(const char *name);

class SK_Core
{
public:
    // Opens the control device of the named core, reads a channel id and the current
    // configuration (previousGeneration 0) or an older one. Never fails by exception:
    // Handle is 0 when the device could not be opened.
    SK_Core(const char *busName, const char *coreName, std::uint64_t previousGeneration);
    // Builds the record lists from an image already in memory, with no device open.
    // The image is read in the previous-generation format.
    SK_Core(const std::uint8_t *image, std::uint32_t size);
    virtual ~SK_Core();

    SK_Core(const SK_Core &) = delete;
    SK_Core &operator=(const SK_Core &) = delete;

    // One read transaction: writes the 8192-byte request at the channel's position,
    // then reads `size` bytes of reply into the same buffer. A request write that fails
    // is returned as it stands; a refused read (3) is followed by a read of the last
    // status (4118), whose first word is returned. Returns 1, 2, 3, 6 or the driver's
    // status of a refused read. Without a handle or channel it returns 1 and transfers
    // nothing.
    std::uint32_t SK_ConfigRead(std::uint8_t *buffer, std::uint32_t size, std::uint32_t readCode,
                                std::uint64_t parameter);

    // One write transaction of `size` bytes. A refused write (transfer result 3) is
    // answered by the driver's status from a second exchange. Returns 1, 2, 6 or that
    // status; without a handle or channel 1 and nothing is sent.
    std::uint32_t SK_ConfigWrite(std::uint8_t *buffer, std::uint32_t size, std::uint32_t command);

    // As SK_ConfigWrite through a handle opened for one route; the generation is left
    // as the caller set it and no reason is fetched after a refusal. Returns the
    // transfer result, or 1 when no transfer took place.
    std::uint32_t SK_ConfigWriteRoute(std::uint8_t *buffer, std::uint32_t size,
                                      std::uint32_t command, std::uint32_t route);

    // Reads the channel id again; does nothing without a handle.
    void SK_GetChannelID();

    // Read the current or an older configuration into empty record lists.
    void SK_GetConfig();
    void SK_GetPrevConfig(std::uint64_t generation);

    // Counts and builds the records of an image (two passes); used by both readers.
    void SK_LoadImage(const std::uint8_t *image, std::uint32_t size, bool previous);

    std::uint64_t channelPosition() const { return static_cast<std::uint64_t>(ChannelId) << 9; }

    SK_Handle Handle = 0;
    std::uint32_t ChannelId = 0;
    std::uint32_t CoreNumber = 0;
    char BusPrefix[16] = {};
    char CorePrefix[16] = {};
    char ChannelPath[80] = {};
    char RoutePrefix[80] = {};
    std::uint32_t DiskCount = 0;
    std::uint32_t ArrayCount = 0;
    std::uint32_t ControllerCount = 0;
    std::uint32_t EnclosureCount = 0;
    std::uint32_t ReportLength = 0;
    std::uint64_t Generation = 0;
    std::uint32_t Printing = 0;
    char *ReportBuffer = nullptr;
    std::uint32_t ReportSize = 0;
    std::uint32_t ReportPosition = 0;
    void *Reserved = nullptr;
    SK_C_PhysicalDevice **Disks = nullptr;
    SK_C_LogicalDevice **Arrays = nullptr;
    SK_C_ControllerDevice **Controllers = nullptr;
    SK_C_SEPDevice **Enclosures = nullptr;

private:
    void composePaths(const char *busName, const char *coreName);
    void readImage(std::uint64_t generation, const char *tag);
    std::uint32_t exchange(std::uint8_t *buffer, std::uint32_t size, bool &readRefused);
    void writeHeader(std::uint8_t *buffer, std::uint32_t command) const;
    void freeRecords();

    const SK_RecordFactory *m_factory = nullptr; // built the records, so it destroys them
};
