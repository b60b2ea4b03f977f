#pragma once
// A scripted control device with a scripted system view behind it, for the config
// tests that need a core opened through the channel.

#include "config/config.h"
#include "config_images.h"
#include "support/scripted_device.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

class ScriptedSystem : public SK_SystemView
{
public:
    std::uint32_t findOsDiskNumber(std::uint32_t coreNumber, std::uint32_t deviceRoute,
                                   std::uint32_t &diskNumber) override
    {
        lookups.emplace_back(coreNumber, deviceRoute);
        const auto it = osDisks.find(deviceRoute);
        if (it == osDisks.end())
            return 3;
        diskNumber = it->second;
        return 1;
    }
    std::uint32_t serviceControl(const std::string &name, const std::string &path,
                                 std::uint32_t action) override
    {
        serviceCalls.push_back(name + "|" + path + "|" + std::to_string(action));
        return serviceAnswer;
    }
    bool driverParameters(std::uint32_t &arrayCount, std::uint32_t &fileCount) override
    {
        arrayCount = parameterArrays;
        fileCount = parameterFiles;
        return parametersOpen;
    }
    std::vector<SK_FileVersionRecord> fileVersions(const std::string &folder,
                                                   const std::string &pattern) override
    {
        versionQueries.push_back(folder + "|" + pattern);
        return files;
    }

    std::map<std::uint32_t, std::uint32_t> osDisks; // device route -> disk number
    std::vector<std::pair<std::uint32_t, std::uint32_t>> lookups;
    std::uint32_t serviceAnswer = 1;
    std::vector<std::string> serviceCalls;
    bool parametersOpen = true;
    std::uint32_t parameterArrays = 0, parameterFiles = 0;
    std::vector<SK_FileVersionRecord> files;
    std::vector<std::string> versionQueries;
};

class ScriptedHost : public ScriptedDevice
{
public:
    SK_SystemView &system() override { return view; }
    ScriptedSystem view;
};

class ScriptedCoreTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        host = std::make_shared<ScriptedHost>();
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
        SK_InstallConfigRecords();
    }
    void TearDown() override { SK_InstallPlatform(nullptr); }

    // Queues `image` as the answer of the next configuration read(s).
    void serve(const images::Image &image, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            host->readReplies.push_back(ScriptedReply{SK_SYSERR_NONE, image.bytes()});
    }

    SK_CoreEntry entry{1, ".", "Core1"};
    std::shared_ptr<ScriptedHost> host;
};
