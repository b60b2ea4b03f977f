#pragma once
// A scripted control device with a scripted system view behind it: the system's
// answers (disk numbers, services, driver parameters, file versions) come from fields
// the test sets, and every question asked is recorded.

#include "driver/sk_system_view.h"
#include "support/scripted_device.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

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
