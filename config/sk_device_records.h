#pragma once
// Controller, disk and enclosure records of the configuration image. Each object is
// built from its image record and the core's route prefix, keeps what the console
// needs, and prints itself into the configuration report.

#include "driver/sk_image.h"
#include "driver/sk_types.h"

constexpr std::size_t SK_DEVICE_NAME_SIZE = 80;

// Composes "<routePrefix><coreRoute>/Device<deviceRoute>", with one trailing blank
// when the device number is below 10 so printed names line up. The blank is part of
// the name; name searches ignore it. Returns 1, or 7 for a null argument.
std::uint32_t SK_ComposeDeviceName(char *name, const char *routePrefix, std::uint32_t coreRoute,
                                   std::uint32_t deviceRoute);

// Disk record, tag 9660: 256 bytes, or the first 128 of them in a previous-generation
// image, which carries no free space, inquiry, firmware or vendor fields.
class SK_C_PhysicalDevice
{
public:
    // Reads at most `length` bytes of `record` (and never more than the format has).
    SK_C_PhysicalDevice(const std::uint8_t *record, const char *routePrefix, bool previous,
                        std::uint32_t length = SK_DISK_RECORD_SIZE);
    virtual ~SK_C_PhysicalDevice();

    // Appends the disk's report line (token or tagged form) at `position` and returns
    // the new position; with less than 512 bytes left it prints nothing. Makes the
    // model, vendor, serial and firmware fields safe for the report in place.
    std::uint32_t BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                              std::uint32_t size, std::uint32_t compact, std::uint32_t xml);

    std::uint64_t ID = 0;
    std::uint16_t DeviceRoute = 0;
    std::uint16_t CoreRoute = 0;
    std::uint32_t Reserved1 = 0;
    std::uint32_t ControllerNumber = 0;
    std::uint32_t Channel = 0;
    std::uint32_t Reserved2 = 0;
    std::uint64_t Capacity = 0;
    std::uint64_t LargestFreeSpace = 0;
    std::uint64_t TotalFreeSpace = 0;
    std::uint32_t Features = 0;
    std::uint32_t DeviceType = 0;
    std::uint32_t DeviceState = 0;
    std::uint32_t SpareState = 0;
    std::uint32_t PortType = 0;
    char Inquiry[64 + 1] = {};
    char Name[SK_DEVICE_NAME_SIZE] = {};
    char FirmwareRevision[8 + 1] = {};
    char Model[40 + 1] = {};
    char SerialNumber[20 + 1] = {};
    char VendorID[8 + 1] = {};
};

// Controller record, tag 9662, 136 bytes.
class SK_C_ControllerDevice
{
public:
    SK_C_ControllerDevice(const std::uint8_t *record, const char *routePrefix,
                          std::uint32_t length = SK_CONTROLLER_RECORD_SIZE);
    virtual ~SK_C_ControllerDevice();

    // As SK_C_PhysicalDevice::BufferPrint; the line is keyed by ControllerNumber.
    std::uint32_t BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                              std::uint32_t size, std::uint32_t compact, std::uint32_t xml);

    std::uint64_t ID = 0;
    std::uint16_t DeviceRoute = 0;
    std::uint16_t CoreRoute = 0;
    std::uint32_t Reserved1 = 0;
    char Name[16 + 1] = {};
    char BiosBuild[32 + 1] = {};
    std::uint64_t MaxArraySize = 0;
    std::uint64_t SerialNumber = 0;
    std::uint32_t NumberOfPorts = 0;
    std::uint16_t PciVendorID = 0;
    std::uint16_t PciDeviceID = 0;
    std::uint32_t ControllerNumber = 0;
    std::uint16_t PciSubVendorID = 0;
    std::uint16_t PciSubDeviceID = 0;
    std::uint64_t ControllerId = 0;
    std::uint16_t OrigPciVendorID = 0;
    std::uint16_t OrigPciDeviceID = 0;
    std::uint32_t PCILocation = 0;
};

// Enclosure processor record, tag 9663, 64 bytes.
class SK_C_SEPDevice
{
public:
    SK_C_SEPDevice(const std::uint8_t *record, const char *routePrefix,
                   std::uint32_t length = SK_ENCLOSURE_RECORD_SIZE);
    virtual ~SK_C_SEPDevice();

    // As SK_C_PhysicalDevice::BufferPrint; makes the four text fields caret-safe.
    std::uint32_t BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                              std::uint32_t size, std::uint32_t compact, std::uint32_t xml);

    std::uint64_t ID = 0;
    std::uint16_t DeviceRoute = 0;
    std::uint16_t CoreRoute = 0;
    std::uint32_t Reserved1 = 0;
    char Name[SK_DEVICE_NAME_SIZE] = {};
    char Vendor[8 + 1] = {};
    char Product[16 + 1] = {};
    char Revision[4 + 1] = {};
    char SerialNumber[8 + 1] = {};
};
