#include "config/sk_device_records.h"

#include "config/sk_record_bytes.h"
#include "config/sk_report_writer.h"
#include "config/sk_vocabulary.h"
#include "driver/sk_status.h"

#include <cstdio>

namespace {

// Controller and channel before the inquiry block says otherwise.
constexpr std::uint32_t kNoPosition = 0xFFFF;

// Disk record layout.
constexpr std::uint32_t kDiskId = 4;
constexpr std::uint32_t kDiskDeviceRoute = 12;
constexpr std::uint32_t kDiskCoreRoute = 14;
constexpr std::uint32_t kDiskReserved1 = 16;
constexpr std::uint32_t kDiskReserved2 = 24;
constexpr std::uint32_t kDiskCapacity = 28;
constexpr std::uint32_t kDiskType = 36;
constexpr std::uint32_t kDiskState = 44;
constexpr std::uint32_t kDiskSpareState = 48;
constexpr std::uint32_t kDiskFeatures = 84;
constexpr std::uint32_t kDiskPortType = 88;
constexpr std::uint32_t kDiskFirmware = 128;
constexpr std::uint32_t kDiskInquiry = 136;
constexpr std::uint32_t kDiskLargestFree = 200;
constexpr std::uint32_t kDiskTotalFree = 208;
constexpr std::uint32_t kDiskVendor = 216;
// Inside the inquiry block.
constexpr std::uint32_t kInquiryModel = 0;
constexpr std::uint32_t kInquirySerial = 40;
constexpr std::uint32_t kInquiryController = 60;
constexpr std::uint32_t kInquiryChannel = 61;

// Controller record layout.
constexpr std::uint32_t kCtlId = 4;
constexpr std::uint32_t kCtlDeviceRoute = 12;
constexpr std::uint32_t kCtlCoreRoute = 14;
constexpr std::uint32_t kCtlReserved1 = 16;
constexpr std::uint32_t kCtlName = 36;
constexpr std::uint32_t kCtlBiosBuild = 56;
constexpr std::uint32_t kCtlMaxArraySize = 88;
constexpr std::uint32_t kCtlSerial = 96;
constexpr std::uint32_t kCtlPorts = 104;
constexpr std::uint32_t kCtlPciVendor = 108;
constexpr std::uint32_t kCtlPciDevice = 110;
constexpr std::uint32_t kCtlNumber = 112;
constexpr std::uint32_t kCtlPciSubVendor = 116;
constexpr std::uint32_t kCtlPciSubDevice = 118;
constexpr std::uint32_t kCtlControllerId = 120;
constexpr std::uint32_t kCtlOrigPciVendor = 128;
constexpr std::uint32_t kCtlOrigPciDevice = 130;
constexpr std::uint32_t kCtlPciLocation = 132;

// Enclosure record layout.
constexpr std::uint32_t kSepId = 4;
constexpr std::uint32_t kSepDeviceRoute = 12;
constexpr std::uint32_t kSepCoreRoute = 14;
constexpr std::uint32_t kSepReserved1 = 16;
constexpr std::uint32_t kSepVendor = 20;
constexpr std::uint32_t kSepProduct = 28;
constexpr std::uint32_t kSepRevision = 44;
constexpr std::uint32_t kSepSerial = 48;

// An ASCII digit's value, kept to 8 bits as the driver's byte arithmetic does, so a
// non-digit gives its byte value minus 48 wrapped.
std::uint32_t digitValue(std::uint8_t byte)
{
    return static_cast<std::uint8_t>(byte - '0');
}

std::int32_t asInt(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

} // namespace

std::uint32_t SK_ComposeDeviceName(char *name, const char *routePrefix, std::uint32_t coreRoute,
                                   std::uint32_t deviceRoute)
{
    if (!name || !routePrefix)
        return SKTL_STS_INVALID_PARAMETER;
    std::snprintf(name, SK_DEVICE_NAME_SIZE, "%.60s%u/Device%u%s", routePrefix, coreRoute,
                  deviceRoute, deviceRoute < 10 ? " " : "");
    return SK_STS_SUCCESS;
}

// ---------------------------------------------------------------------------------
// Disk

SK_C_PhysicalDevice::SK_C_PhysicalDevice(const std::uint8_t *record, const char *routePrefix,
                                         bool previous, std::uint32_t length)
{
    const std::uint32_t formatLength =
        previous ? SK_DISK_RECORD_SIZE_PREVIOUS : SK_DISK_RECORD_SIZE;
    const SK_RecordBytes bytes(record, length < formatLength ? length : formatLength);

    ControllerNumber = kNoPosition;
    Channel = kNoPosition;
    ID = bytes.u64(kDiskId);
    DeviceRoute = bytes.u16(kDiskDeviceRoute);
    CoreRoute = bytes.u16(kDiskCoreRoute);
    Reserved1 = bytes.u32(kDiskReserved1);
    Reserved2 = bytes.u32(kDiskReserved2);
    Capacity = bytes.u64(kDiskCapacity);
    DeviceType = bytes.u32(kDiskType);
    DeviceState = bytes.u32(kDiskState);
    SpareState = bytes.u32(kDiskSpareState);
    Features = bytes.u32(kDiskFeatures);
    PortType = bytes.u32(kDiskPortType);

    if (!previous) {
        // The bounded reader leaves all of these empty when the record stops short.
        bytes.text(kDiskFirmware, 8, FirmwareRevision);
        bytes.text(kDiskInquiry, 64, Inquiry);
        bytes.text(kDiskInquiry + kInquiryModel, 40, Model);
        bytes.text(kDiskInquiry + kInquirySerial, 20, SerialNumber);
        LargestFreeSpace = bytes.u64(kDiskLargestFree);
        TotalFreeSpace = bytes.u64(kDiskTotalFree);
        bytes.text(kDiskVendor, 8, VendorID);
        if (bytes.fits(kDiskInquiry + kInquiryChannel, 1)) {
            ControllerNumber = digitValue(bytes.u8(kDiskInquiry + kInquiryController));
            Channel = digitValue(bytes.u8(kDiskInquiry + kInquiryChannel));
        }
        // The core's own device carries build text where a disk has its position.
        if (DeviceType == SK_DEVICE_TYPE_CORE)
            ControllerNumber = Channel = 0;
    }
    SK_ComposeDeviceName(Name, routePrefix ? routePrefix : "", CoreRoute, DeviceRoute);
}

SK_C_PhysicalDevice::~SK_C_PhysicalDevice() = default;

std::uint32_t SK_C_PhysicalDevice::BufferPrint(std::uint32_t index, std::uint32_t position,
                                               char *buffer, std::uint32_t size,
                                               std::uint32_t compact, std::uint32_t xml)
{
    SK_ReportWriter w(buffer, size, position, compact, xml, 1);
    if (!w.hasRoom(SK_RECORD_PRINT_ROOM))
        return position;

    SK_CaretSafe(Model, 40);
    SK_CaretSafe(VendorID, 8);
    SK_BlankSafe(SerialNumber, 20);
    SK_BlankSafe(FirmwareRevision, 8);

    w.open("PhysicalDevice");
    w.number("PD", "Number", asInt(index));
    w.text("TY", "Type", SK_DeviceTypeWord(DeviceType));
    w.text("ST", "State", SK_DeviceStateWord(DeviceState));
    w.hex64("ID", "ID", ID);
    w.text("NM", "Name", Name);
    if (DeviceType != SK_DEVICE_TYPE_CORE) {
        w.number("CD", "Controller", asInt(ControllerNumber));
        w.number("CH", "Channel", asInt(Channel));
        w.number("RT", "CoreRoute", CoreRoute);
        w.number("HD", "DeviceRoute", DeviceRoute);
        w.hex32("FE", "Features", Features);
        w.text("GS", "GlobalSpare", SpareState == SK_SPARE_STATE_GLOBAL ? "Y" : "N");
        w.hex64("SI", "Capacity", Capacity);
        w.hex64("LS", "LargestFreeSpace", LargestFreeSpace);
        w.hex64("TS", "TotalFreeSpace", TotalFreeSpace);
        w.caret("MO", "Model", Model);
        w.caret("SN", "SerialNumber", SerialNumber);
        w.text("FW", "FirmwareRevision", FirmwareRevision);
        w.hex32("PT", "PortType", PortType);
        w.plainBreak();
        w.caret("VI", "VendorID", VendorID);
    }
    w.endLine();
    w.close("PhysicalDevice");
    return w.position();
}

// ---------------------------------------------------------------------------------
// Controller

SK_C_ControllerDevice::SK_C_ControllerDevice(const std::uint8_t *record, const char *,
                                             std::uint32_t length)
{
    const SK_RecordBytes bytes(
        record, length < SK_CONTROLLER_RECORD_SIZE ? length : SK_CONTROLLER_RECORD_SIZE);
    ID = bytes.u64(kCtlId);
    DeviceRoute = bytes.u16(kCtlDeviceRoute);
    CoreRoute = bytes.u16(kCtlCoreRoute);
    Reserved1 = bytes.u32(kCtlReserved1);
    bytes.text(kCtlName, 16, Name);
    bytes.text(kCtlBiosBuild, 32, BiosBuild);
    MaxArraySize = bytes.u64(kCtlMaxArraySize);
    SerialNumber = bytes.u64(kCtlSerial);
    NumberOfPorts = bytes.u32(kCtlPorts);
    PciVendorID = bytes.u16(kCtlPciVendor);
    PciDeviceID = bytes.u16(kCtlPciDevice);
    ControllerNumber = bytes.u32(kCtlNumber);
    PciSubVendorID = bytes.u16(kCtlPciSubVendor);
    PciSubDeviceID = bytes.u16(kCtlPciSubDevice);
    ControllerId = bytes.u64(kCtlControllerId);
    OrigPciVendorID = bytes.u16(kCtlOrigPciVendor);
    OrigPciDeviceID = bytes.u16(kCtlOrigPciDevice);
    PCILocation = bytes.u32(kCtlPciLocation);
}

SK_C_ControllerDevice::~SK_C_ControllerDevice() = default;

std::uint32_t SK_C_ControllerDevice::BufferPrint(std::uint32_t, std::uint32_t position,
                                                 char *buffer, std::uint32_t size,
                                                 std::uint32_t compact, std::uint32_t xml)
{
    SK_ReportWriter w(buffer, size, position, compact, xml, 1);
    if (!w.hasRoom(SK_RECORD_PRINT_ROOM))
        return position;

    w.open("Controller");
    w.number("CD", "Number", asInt(ControllerNumber));
    w.text("CN", "Name", Name);
    w.hex64("CSN", "SerialNumber", SerialNumber);
    w.text("BB", "BiosBuild", BiosBuild);
    w.hex64("MX", "MaxArraySize", MaxArraySize);
    w.plainBreak();
    w.number("NP", "NumberOfPorts", asInt(NumberOfPorts));
    w.hex16("VI", "PciVendorID", PciVendorID);
    w.hex16("DI", "PciDeviceID", PciDeviceID);
    w.hex16("SVI", "PciSubVendorID", PciSubVendorID);
    w.hex16("SDI", "PciSubDeviceID", PciSubDeviceID);
    w.hex64("ID", "ID", ControllerId);
    w.hex16("OVI", "OrigPciVendorID", OrigPciVendorID);
    w.hex16("ODI", "OrigPciDeviceID", OrigPciDeviceID);
    w.hex32("LOC", "PCILocation", PCILocation);
    w.endLine();
    w.close("Controller");
    return w.position();
}

// ---------------------------------------------------------------------------------
// Enclosure

SK_C_SEPDevice::SK_C_SEPDevice(const std::uint8_t *record, const char *routePrefix,
                               std::uint32_t length)
{
    const SK_RecordBytes bytes(
        record, length < SK_ENCLOSURE_RECORD_SIZE ? length : SK_ENCLOSURE_RECORD_SIZE);
    ID = bytes.u64(kSepId);
    DeviceRoute = bytes.u16(kSepDeviceRoute);
    CoreRoute = bytes.u16(kSepCoreRoute);
    Reserved1 = bytes.u32(kSepReserved1);
    bytes.text(kSepVendor, 8, Vendor);
    bytes.text(kSepProduct, 16, Product);
    bytes.text(kSepRevision, 4, Revision);
    bytes.text(kSepSerial, 8, SerialNumber);
    SK_ComposeDeviceName(Name, routePrefix ? routePrefix : "", CoreRoute, DeviceRoute);
}

SK_C_SEPDevice::~SK_C_SEPDevice() = default;

std::uint32_t SK_C_SEPDevice::BufferPrint(std::uint32_t index, std::uint32_t position, char *buffer,
                                          std::uint32_t size, std::uint32_t compact,
                                          std::uint32_t xml)
{
    SK_ReportWriter w(buffer, size, position, compact, xml, 1);
    if (!w.hasRoom(SK_RECORD_PRINT_ROOM))
        return position;

    SK_CaretSafe(Vendor, 8);
    SK_CaretSafe(Product, 16);
    SK_CaretSafe(Revision, 4);
    SK_CaretSafe(SerialNumber, 8);

    w.open("SCSIEnclosureProcessor");
    w.number("SEP", "Number", asInt(index));
    w.hex64("ID", "ID", ID);
    w.text("NM", "Name", Name);
    w.caret("VID", "Vendor", Vendor);
    w.caret("PID", "Product", Product);
    w.caret("REV", "Revision", Revision);
    w.caret("SN", "SerialNumber", SerialNumber);
    w.endLine();
    w.close("SCSIEnclosureProcessor");
    return w.position();
}
