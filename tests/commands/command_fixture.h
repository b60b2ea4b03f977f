#pragma once
// A fresh emulated host per test, on a manual clock, behind a recording endpoint, so a
// test sees both the exact bytes a command wrote and what the host made of them.

#include "commands/commands.h"
#include "emulator/emulator.h"
#include "support/recording_endpoint.h"
#include "support/scripted_device.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace cmdtest {

constexpr std::uint64_t kMemberMiB = 488; // 1,000,000 usable sectors of a lab disk, whole MiB
constexpr std::uint64_t kMirrorId = 0xA1, kParityId = 0xA2, kControllerId = 0xC0;
constexpr std::uint16_t kMirrorRoute = 1, kParityRoute = 2;
constexpr std::uint16_t kLabPciVendor = 0x1F3C, kLabPciDevice = 0x43B6;
constexpr int kNvmeDisk = 7;

inline std::uint64_t diskId(int i)
{
    return 0xD00 + static_cast<std::uint64_t>(i);
}

// Disks sit on controller 0 (core route 1) at port i (device route i + 1); arrays on
// core route 0.
inline std::string diskName(int i)
{
    return "//./Core1/Route1/Device" + std::to_string(i + 1);
}

inline std::string arrayName(std::uint16_t route)
{
    return "//./Core1/Route0/Device" + std::to_string(route);
}

// One controller with eight disks (the last one NVMe); with `arrays` a RAID1 on disks
// 0 and 1 (route 1) and a RAID5 on disks 2 to 4 (route 2).
inline sk_emu::Model lab(bool arrays = true)
{
    using namespace sk_emu;
    Model m;
    m.generation = 5;
    m.host.drivers = {{"skraid.sys", "9.0.0.1", true}, {"skcfg.sys", "9.0.0.1", true}};
    Controller c;
    c.id = kControllerId;
    c.name = "LAB RAID";
    c.pciVendor = kLabPciVendor;
    c.pciDevice = kLabPciDevice;
    m.controllers.push_back(c);
    for (int i = 0; i < 8; ++i) {
        Disk d;
        d.id = diskId(i);
        d.port = static_cast<std::uint32_t>(i);
        d.capacity = 1000000 + kMetadataSectors;
        d.portType = code::PortSata | code::Port6G;
        d.features = code::FeatureWriteCache | code::FeatureReadAhead | code::FeatureSmartPolling;
        d.smartVersion = 10;
        d.smart = {SmartAttribute{9, 0x32, 99, 99, 1234, 0}};
        m.disks.push_back(d);
    }
    Disk &nvme = m.disks[kNvmeDisk];
    nvme.portType = code::PortNvme | code::PortNvmeGen4;
    nvme.smartVersion = 0;
    nvme.smart.clear();
    nvme.nvme = NvmeHealth{};
    nvme.nvme->temperatureKelvin = 310;
    nvme.nvme->powerOnHours = 77;
    const std::uint64_t extent = kMemberMiB * 2048;
    auto make = [&](std::uint64_t id, std::uint16_t route, std::uint32_t type, int first, int n) {
        Array a;
        a.id = id;
        a.route = route;
        a.name = route == kMirrorRoute ? "Mirror" : "Parity";
        a.layout = Layout{type, 1, static_cast<std::uint32_t>(n), 0, {}};
        for (int i = 0; i < n; ++i)
            a.layout.members.push_back(Member{diskId(first + i), 0, extent, 0, extent, 0});
        a.layout.capacity = layoutCapacity(type, 1, n, extent, extent * n);
        return a;
    };
    if (arrays)
        m.arrays = {make(kMirrorId, kMirrorRoute, code::TypeMirrorStripe, 0, 2),
                    make(kParityId, kParityRoute, code::TypeParity, 2, 3)};
    return m;
}

// A device list of the application: names of 80 bytes each.
class NameList
{
public:
    NameList(std::initializer_list<std::string> names = {})
    {
        for (const std::string &n : names)
            add(n);
    }
    NameList &add(const std::string &name)
    {
        m_bytes.resize(m_bytes.size() + SK_DEVICE_NAME_SIZE, 0);
        name.copy(m_bytes.data() + m_bytes.size() - SK_DEVICE_NAME_SIZE, SK_DEVICE_NAME_SIZE - 1);
        return *this;
    }
    const SK_DeviceName *data() const
    {
        return reinterpret_cast<const SK_DeviceName *>(m_bytes.data());
    }
    std::uint32_t count() const
    {
        return static_cast<std::uint32_t>(m_bytes.size() / SK_DEVICE_NAME_SIZE);
    }

private:
    std::vector<char> m_bytes;
};

// A create of the given shape over `drives`; everything else as the console leaves it
// when the user asks for nothing more.
inline std::uint32_t createArray(const SK_CoreEntry *core, std::uint32_t type, std::uint32_t first,
                                 std::uint32_t second, const NameList &drives,
                                 std::uint64_t mib = 100, std::uint64_t id = 0,
                                 std::uint32_t cacheTag = 0)
{
    return SK_ApiCreateLogicalDevice(core, type, drives.count(), 0, 0, cacheTag, 0, mib, first,
                                     second, drives.data(), nullptr, "", 0, 0, 0, 0, id, 0,
                                     nullptr);
}

// Statuses compared with their names, so a failure says what came back.
inline ::testing::AssertionResult statusEquals(const char *, const char *callText,
                                               std::uint32_t expected, std::uint32_t got)
{
    if (expected == got)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << callText << " returned " << got << " (" << SK_StatusText(got) << "), expected "
           << expected << " (" << SK_StatusText(expected) << ")";
}

#define EXPECT_STATUS(expected, call) EXPECT_PRED_FORMAT2(cmdtest::statusEquals, expected, call)

class CommandTest : public ::testing::Test
{
protected:
    CommandTest() { install(lab()); }
    ~CommandTest() override { SK_InstallPlatform(nullptr); }

    // A fresh host over `model` replaces the current one.
    void install(sk_emu::Model model)
    {
        clock = std::make_shared<SK_EmuManualClock>(1000000);
        host = std::make_shared<sk_emu::Host>(std::move(model), clock);
        recorder = std::make_shared<RecordingEndpoint>(host);
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(recorder));
    }

    // No control device at all.
    void installNoDevice()
    {
        auto device = std::make_shared<ScriptedDevice>();
        device->devices.clear();
        recorder = std::make_shared<RecordingEndpoint>(device);
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(recorder));
    }

    // The lab drivers take this command or read code and change nothing.
    void accept(std::uint32_t code)
    {
        host->setCommandHandler(code,
                                [](sk_emu::Host &, sk_emu::Model &, std::uint8_t *, std::uint32_t) {
                                    return sk_emu::CommandResult{1, false};
                                });
    }

    // The one request of this code; the test fails unless there is exactly one.
    RecordedRequest only(std::uint32_t code) const
    {
        const std::vector<RecordedRequest> found = recorder->withCode(code);
        EXPECT_EQ(found.size(), 1u) << "requests with code " << code;
        return found.empty() ? RecordedRequest{} : found.front();
    }

    // The configuration as the next command would see it.
    std::unique_ptr<SK_Core> look() const { return std::make_unique<SK_Core>(".", "Core1", 0); }
    const SK_C_LogicalDevice *arrayIn(const SK_Core &open, std::uint64_t id) const
    {
        return SK_LookupArrayById(open, id);
    }
    const SK_C_PhysicalDevice *diskIn(const SK_Core &open, int i) const
    {
        return SK_LookupDiskById(open, diskId(i));
    }

    SK_CoreEntry core{1, ".", "Core1"};
    std::shared_ptr<SK_EmuManualClock> clock;
    std::shared_ptr<sk_emu::Host> host;
    std::shared_ptr<RecordingEndpoint> recorder;
};

} // namespace cmdtest
