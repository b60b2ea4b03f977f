#include "driver/sk_core.h"

#include "driver/sk_image.h"
#include "driver/sk_status.h"
#include "driver/sktl.h"

#include <atomic>
#include <cctype>
#include <cstdio>

namespace {

std::atomic<const SK_RecordFactory *> g_recordFactory{nullptr};

constexpr std::uint32_t kChannelIdReadSize = 1024;

template <class Record>
Record **allocateTable(std::uint32_t count)
{
    if (count == 0)
        return nullptr;
    void *table = SKTL_Alloc(count * sizeof(Record *), "SK_Core::SK_BuildConfig");
    if (table)
        std::memset(table, 0, count * sizeof(Record *));
    return static_cast<Record **>(table);
}

template <class Record>
void destroyTable(Record **&table, std::uint32_t count, const SK_RecordFactory *factory)
{
    if (!table)
        return;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (table[i] && factory)
            factory->destroy(table[i]);
    }
    SKTL_Free(table);
    table = nullptr;
}

} // namespace

SK_RecordFactory::~SK_RecordFactory() = default;

const SK_RecordFactory *SK_SetRecordFactory(const SK_RecordFactory *factory)
{
    return g_recordFactory.exchange(factory);
}

const SK_RecordFactory *SK_GetRecordFactory()
{
    return g_recordFactory.load();
}

std::uint32_t SK_ParseCoreNumber(const char *name)
{
    if (!name)
        return 0;
    char lowered[81] = {};
    for (std::size_t i = 0; i < 80 && name[i]; ++i)
        lowered[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[i])));
    const char *word = std::strstr(lowered, "core");
    if (!word)
        return 0;
    std::uint64_t value = 0;
    for (const char *p = word + 4; *p >= '0' && *p <= '9'; ++p) {
        value = value * 10 + static_cast<std::uint64_t>(*p - '0');
        if (value > 0xFFFFFFFFu)
            return 0xFFFFFFFFu;
    }
    return static_cast<std::uint32_t>(value);
}

SK_Core::SK_Core(const char *busName, const char *coreName, std::uint64_t previousGeneration)
{
    composePaths(busName, coreName);

    Handle = SKTL_DeviceOpen(ChannelPath, SK_OPEN_SHARED_ALWAYS, SK_FLAGS_UNBUFFERED);
    if (Handle == 0)
        return;

    SK_GetChannelID();
    if (previousGeneration != 0)
        readImage(previousGeneration, "SK_Core::SK_GetPrevConfig");
    else
        readImage(0, "SK_Core::SK_GetConfig");
}

SK_Core::SK_Core(const std::uint8_t *image, std::uint32_t size)
{
    composePaths("", "");
    SK_LoadImage(image, size, true);
}

SK_Core::~SK_Core()
{
    if (Handle != 0)
        SKTL_DeviceClose(Handle);
    freeRecords();
    if (Reserved)
        SKTL_Free(Reserved);
}

void SK_Core::composePaths(const char *busName, const char *coreName)
{
    if (busName && *busName)
        std::snprintf(BusPrefix, sizeof BusPrefix, "//%s", busName);
    if (coreName && *coreName)
        std::snprintf(CorePrefix, sizeof CorePrefix, "/%s", coreName);
    CoreNumber = SK_ParseCoreNumber(CorePrefix);
    std::snprintf(ChannelPath, sizeof ChannelPath, "%s%s/Route0/Device0", BusPrefix, CorePrefix);
    std::snprintf(RoutePrefix, sizeof RoutePrefix, "%s%s/Route", BusPrefix, CorePrefix);
}

void SK_Core::SK_GetChannelID()
{
    if (Handle == 0)
        return;
    SKTL_AlignedBuffer buffer(kChannelIdReadSize, "SK_Core::SK_GetChannelID");
    if (!buffer.ok())
        return;
    const std::uint32_t result =
        SKTL_DeviceTransfer(true, Handle, buffer.data(), 0, kChannelIdReadSize, nullptr, nullptr);
    ChannelId = result == SK_STS_SUCCESS ? SK_GetU32(buffer.data(), 0) : 0;
}

void SK_Core::SK_GetConfig()
{
    readImage(0, "SK_Core::SK_GetConfig");
}

void SK_Core::SK_GetPrevConfig(std::uint64_t generation)
{
    readImage(generation, "SK_Core::SK_GetPrevConfig");
}

void SK_Core::readImage(std::uint64_t generation, const char *tag)
{
    SKTL_AlignedBuffer image(SK_IMAGE_SIZE, tag);
    if (!image.ok())
        return;
    const std::uint32_t status =
        SK_ConfigRead(image.data(), SK_IMAGE_SIZE, SK_READ_CONFIG, generation);
    // A failed read may have left a status reply in the buffer; it is no image.
    if (status != SK_STS_SUCCESS)
        std::memset(image.data(), 0, SK_IMAGE_SIZE);
    SK_LoadImage(image.data(), SK_IMAGE_SIZE, generation != 0);
}

void SK_Core::SK_LoadImage(const std::uint8_t *image, std::uint32_t size, bool previous)
{
    if (!image || size < SK_IMAGE_GENERATION_OFFSET + 8)
        return;
    Generation = SK_GetU64(image, SK_IMAGE_GENERATION_OFFSET);

    DiskCount = ArrayCount = ControllerCount = EnclosureCount = 0;
    SK_WalkImage(image, size, previous, [this](const SK_ImageRecord &record) {
        switch (record.tag) {
        case SK_TAG_DISK:
            ++DiskCount;
            break;
        case SK_TAG_ARRAY:
            ++ArrayCount;
            break;
        case SK_TAG_CONTROLLER:
            ++ControllerCount;
            break;
        case SK_TAG_ENCLOSURE:
            ++EnclosureCount;
            break;
        default:
            break;
        }
    });

    Disks = allocateTable<SK_C_PhysicalDevice>(DiskCount);
    Arrays = allocateTable<SK_C_LogicalDevice>(ArrayCount);
    Controllers = allocateTable<SK_C_ControllerDevice>(ControllerCount);
    Enclosures = allocateTable<SK_C_SEPDevice>(EnclosureCount);

    m_factory = SK_GetRecordFactory();
    if (!m_factory)
        return;
    std::uint32_t disk = 0, array = 0, controller = 0, enclosure = 0;
    SK_WalkImage(image, size, previous, [&](const SK_ImageRecord &record) {
        const std::uint8_t *bytes = image + record.offset;
        switch (record.tag) {
        case SK_TAG_DISK:
            if (Disks)
                Disks[disk++] = m_factory->makeDisk(bytes, record.length, RoutePrefix, previous);
            break;
        case SK_TAG_ARRAY:
            if (Arrays)
                Arrays[array++] =
                    m_factory->makeArray(bytes, record.length, RoutePrefix, CoreNumber);
            break;
        case SK_TAG_CONTROLLER:
            if (Controllers)
                Controllers[controller++] = m_factory->makeController(bytes, RoutePrefix);
            break;
        case SK_TAG_ENCLOSURE:
            if (Enclosures)
                Enclosures[enclosure++] = m_factory->makeEnclosure(bytes, RoutePrefix);
            break;
        default:
            break;
        }
    });
}

void SK_Core::freeRecords()
{
    destroyTable(Disks, DiskCount, m_factory);
    destroyTable(Arrays, ArrayCount, m_factory);
    destroyTable(Controllers, ControllerCount, m_factory);
    destroyTable(Enclosures, EnclosureCount, m_factory);
}

void SK_Core::writeHeader(std::uint8_t *buffer, std::uint32_t command) const
{
    SK_PutU32(buffer, SK_HDR_COMMAND, command);
    SK_PutU32(buffer, SK_HDR_CHANNEL, ChannelId);
    SK_PutU32(buffer, SK_HDR_API_LEVEL, SK_API_LEVEL);
    SK_PutU32(buffer, SK_HDR_API_REVISION, SK_API_REVISION);
}

// One read exchange: the 8192-byte request, then the reply of `size` bytes. Only a
// refused read sets `readRefused`; a request the device did not take is returned as it
// stands, since the driver kept no reason for it.
std::uint32_t SK_Core::exchange(std::uint8_t *buffer, std::uint32_t size, bool &readRefused)
{
    readRefused = false;
    const std::uint64_t position = channelPosition();
    const std::uint32_t sent = SKTL_DeviceTransfer(false, Handle, buffer, position,
                                                   SK_READ_REQUEST_SIZE, nullptr, nullptr);
    if (sent != SK_STS_SUCCESS)
        return sent;
    const std::uint32_t read =
        SKTL_DeviceTransfer(true, Handle, buffer, position, size, nullptr, nullptr);
    readRefused = read == SK_STS_FAILURE;
    return read;
}

std::uint32_t SK_Core::SK_ConfigRead(std::uint8_t *buffer, std::uint32_t size,
                                     std::uint32_t readCode, std::uint64_t parameter)
{
    writeHeader(buffer, SK_COMMAND_READ);
    SK_PutU64(buffer, SK_HDR_GENERATION, Generation);
    SK_PutU32(buffer, SK_HDR_READ_CODE, readCode);
    if (readCode == SK_READ_CONFIG || readCode == SK_READ_USER_MESSAGE)
        SK_PutU32(buffer, SK_HDR_PARAMETER, static_cast<std::uint32_t>(parameter));
    else if (readCode == SK_READ_LAST_STATUS)
        SK_PutU64(buffer, SK_HDR_PARAMETER, parameter);

    if (Handle == 0 || ChannelId == 0)
        return SK_STS_SUCCESS;

    bool readRefused = false;
    const std::uint32_t result = exchange(buffer, size, readRefused);
    if (!readRefused)
        return result;

    // The driver refused the read and kept the reason for this channel: ask for it.
    SK_PutU32(buffer, SK_HDR_COMMAND, SK_COMMAND_READ);
    SK_PutU32(buffer, SK_HDR_READ_CODE, SK_READ_LAST_STATUS);
    SK_PutU64(buffer, SK_HDR_PARAMETER, Generation);
    const std::uint32_t reason = exchange(buffer, size, readRefused);
    if (reason != SK_STS_SUCCESS)
        return reason;
    return SK_GetU32(buffer, 0);
}

std::uint32_t SK_Core::SK_ConfigWrite(std::uint8_t *buffer, std::uint32_t size,
                                      std::uint32_t command)
{
    writeHeader(buffer, command);
    SK_PutU64(buffer, SK_HDR_GENERATION, Generation);
    if (Handle == 0 || ChannelId == 0)
        return SK_STS_SUCCESS;

    const std::uint32_t result =
        SKTL_DeviceTransfer(false, Handle, buffer, channelPosition(), size, nullptr, nullptr);
    if (result != SK_STS_FAILURE)
        return result;

    // A refused write only says "failed"; the driver's status comes from a second exchange.
    SKTL_AlignedBuffer reply(SK_READ_REQUEST_SIZE, "SK_Core::SK_ConfigWrite");
    if (!reply.ok())
        return SK_STS_NO_MEMORY_AVAILABLE;
    SK_ConfigRead(reply.data(), SK_READ_REQUEST_SIZE, SK_READ_LAST_STATUS,
                  static_cast<std::uint32_t>(Generation));
    return SK_GetU32(reply.data(), 0);
}

std::uint32_t SK_Core::SK_ConfigWriteRoute(std::uint8_t *buffer, std::uint32_t size,
                                           std::uint32_t command, std::uint32_t route)
{
    writeHeader(buffer, command);

    char path[112];
    std::snprintf(path, sizeof path, "%s%u/Device0", RoutePrefix, route);
    const SK_Handle routeHandle =
        SKTL_DeviceOpen(path, SK_OPEN_EXCLUSIVE_ALWAYS, SK_FLAGS_WRITE_THROUGH);
    if (routeHandle == 0)
        return SK_STS_SUCCESS;

    std::uint32_t result = SK_STS_SUCCESS;
    if (ChannelId != 0)
        result = SKTL_DeviceTransfer(false, routeHandle, buffer, channelPosition(), size, nullptr,
                                     nullptr);
    SKTL_DeviceClose(routeHandle);
    return result;
}
