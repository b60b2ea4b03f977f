#pragma once
// A fresh emulated host on a manual clock behind a recording endpoint, installed as the
// platform for one SK_RaidApi, so a test reads back every request the service sent.

#include "emulator/emulator.h"
#include "service/service.h"
#include "support/recording_endpoint.h"

#include <cstring>
#include <memory>

// Passes everything to the host and, once armed, has the driver refuse the next
// planning read of one code with a status of its own finding.
class ArmingEndpoint : public RecordingEndpoint
{
public:
    explicit ArmingEndpoint(std::shared_ptr<sk_emu::Host> host)
        : RecordingEndpoint(host), m_host(std::move(host))
    {
    }
    SK_HostIo write(std::uint64_t session, std::uint64_t position, const std::uint8_t *data,
                    std::uint32_t size) override
    {
        if (armedStatus && size >= 36 && SK_GetU32(data, 0) == SK_COMMAND_READ &&
            SK_GetU32(data, 32) == armedCode) {
            m_host->refuseNextRequests(1, armedStatus);
            armedStatus = 0;
        }
        return RecordingEndpoint::write(session, position, data, size);
    }
    std::uint32_t armedCode = 0;
    std::uint32_t armedStatus = 0;

private:
    std::shared_ptr<sk_emu::Host> m_host;
};

class Lab
{
public:
    explicit Lab(sk_emu::Model model = sk_emu::defaultScenario())
        : clock(std::make_shared<SK_EmuManualClock>(1000000)),
          host(std::make_shared<sk_emu::Host>(std::move(model), clock)),
          endpoint(std::make_shared<ArmingEndpoint>(host))
    {
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(endpoint));
        api = std::make_unique<SK_RaidApi>();
    }
    ~Lab() { SK_InstallPlatform(nullptr); }
    SK_RaidApi *operator->() const { return api.get(); }

    // Write commands other than the configuration traffic.
    std::vector<RecordedRequest> sent() const
    {
        std::vector<RecordedRequest> out;
        for (const RecordedRequest &r : endpoint->commands()) {
            if (r.u32(0) != SK_COMMAND_READ)
                out.push_back(r);
        }
        return out;
    }

    // Runs the emulated clock until the array's task has ended, reading the
    // configuration as the main window would.
    bool runTaskToEnd(int array)
    {
        for (int step = 0; step < 20000; ++step) {
            api->RefreshConfig();
            if (!api->ArrayHasTask(array))
                return true;
            clock->advance(5000);
        }
        return false;
    }

    const SK_ConfigArray *arrayNamed(const char *name) const
    {
        for (const LogicalDrive *a : api->GetArrayList()) {
            if (std::strcmp(a->DisplayName, name) == 0)
                return a;
        }
        return nullptr;
    }

    std::shared_ptr<SK_EmuManualClock> clock;
    std::shared_ptr<sk_emu::Host> host;
    std::shared_ptr<ArmingEndpoint> endpoint;
    std::unique_ptr<SK_RaidApi> api;
};
