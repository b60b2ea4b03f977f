#include "config/sk_record_factory.h"

#include "config/sk_device_records.h"
#include "config/sk_logical_device.h"
#include "driver/sk_core.h"
#include "driver/sk_status.h"

#include <new>

namespace {

class ConfigRecordFactory final : public SK_RecordFactory
{
public:
    SK_C_PhysicalDevice *makeDisk(const std::uint8_t *record, std::uint32_t length,
                                  const char *routePrefix, bool previous) const override
    {
        return new (std::nothrow) SK_C_PhysicalDevice(record, routePrefix, previous, length);
    }

    SK_C_LogicalDevice *makeArray(const std::uint8_t *record, std::uint32_t length,
                                  const char *routePrefix, std::uint32_t coreNumber) const override
    {
        // An array whose tables don't fit its own record can't be trusted in any
        // field; its slot stays empty, as for a failed allocation.
        if (SK_C_LogicalDevice::SK_CheckRecord(record, length) != SK_STS_SUCCESS)
            return nullptr;
        return new (std::nothrow) SK_C_LogicalDevice(record, routePrefix, coreNumber, length);
    }

    SK_C_ControllerDevice *makeController(const std::uint8_t *record,
                                          const char *routePrefix) const override
    {
        return new (std::nothrow) SK_C_ControllerDevice(record, routePrefix);
    }

    SK_C_SEPDevice *makeEnclosure(const std::uint8_t *record,
                                  const char *routePrefix) const override
    {
        return new (std::nothrow) SK_C_SEPDevice(record, routePrefix);
    }

    void destroy(SK_C_PhysicalDevice *disk) const override { delete disk; }
    void destroy(SK_C_LogicalDevice *array) const override { delete array; }
    void destroy(SK_C_ControllerDevice *controller) const override { delete controller; }
    void destroy(SK_C_SEPDevice *enclosure) const override { delete enclosure; }
};

} // namespace

std::uint32_t SK_InstallConfigRecords()
{
    // Never destroyed: cores built during static destruction may still use it.
    static const ConfigRecordFactory *const factory = new ConfigRecordFactory;
    if (SK_GetRecordFactory() != factory)
        SK_SetRecordFactory(factory);
    return SK_STS_SUCCESS;
}

namespace {

// Commands build cores of their own without passing through an entry point of this
// layer first, so a program that links the record classes installs them before main.
// Nothing may depend on this running first: the entry points install the factory too.
[[maybe_unused]] const std::uint32_t g_installedAtStart = SK_InstallConfigRecords();

} // namespace
