// Service control, registry parameters and file version rows over the system view.

#include "driver/driver.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

// Each test on a fresh scripted host whose system view answers what the test sets.
class Services : public ::testing::Test
{
protected:
    void SetUp() override
    {
        host = std::make_shared<ScriptedHost>();
        SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(host));
    }
    void TearDown() override { SK_InstallPlatform(nullptr); }

    std::shared_ptr<ScriptedHost> host;
};

TEST_F(Services, controlPassesKnownActionsToTheSystemAndAnswersOneOrThree)
{
    for (std::uint32_t action = 16; action <= 128; action += 16)
        EXPECT_EQ(SK_ServiceControl("skraid", "C:/d/skraid.sys", action), 1u) << action;
    ASSERT_EQ(host->view.serviceCalls.size(), 8u);
    EXPECT_EQ(host->view.serviceCalls[4], "skraid|C:/d/skraid.sys|80");

    host->view.serviceAnswer = 0;
    EXPECT_EQ(SK_ServiceControl("skraid", nullptr, SK_SERVICE_QUERY), 3u);
    EXPECT_EQ(host->view.serviceCalls.back(), "skraid||80");

    const std::size_t calls = host->view.serviceCalls.size();
    for (std::uint32_t action : {0u, 15u, 17u, 144u})
        EXPECT_EQ(SK_ServiceControl("skraid", "", action), 3u) << action;
    EXPECT_EQ(SK_ServiceControl(nullptr, "", SK_SERVICE_START), 3u);
    EXPECT_EQ(SK_ServiceControl("", "", SK_SERVICE_START), 3u);
    EXPECT_EQ(host->view.serviceCalls.size(), calls) << "refused before reaching the system";
}

TEST_F(Services, registryInfoReadsTheTwoValuesOrStaysZero)
{
    host->view.parameterArrays = 4;
    host->view.parameterFiles = 9;
    {
        SK_RegistryInfo info;
        EXPECT_NE(info.Key, 0u);
        EXPECT_EQ(info.ArrayCount, 4u);
        EXPECT_EQ(info.FileCount, 9u);
    }
    host->view.parametersOpen = false;
    SK_RegistryInfo closed;
    EXPECT_EQ(closed.Key, 0u);
    EXPECT_EQ(closed.ArrayCount, 0u);
    EXPECT_EQ(closed.FileCount, 0u);
}

TEST_F(Services, fileVersionRowsListAttributesThenVersionStrings)
{
    SK_FileVersionRecord file;
    file.fileName = "skraid.sys";
    file.attributes = 0x20;
    file.creationTime = "01/02/2024 03:04:05.006";
    file.fileSize = 123456;
    file.strings = {{"ProductName", "StrataKeep"}, {"ProductVersion", "9.3.3"}};
    SK_FileVersionRecord huge = file;
    huge.strings = {{"FileDescription", std::string(5000, 'x')}};
    host->view.files = {file, huge, file};

    std::vector<SK_FileVersionRow> rows(2);
    std::uint32_t count = 0;
    EXPECT_EQ(SK_FileVersionList("C:/Windows/System32/drivers", "*.sys", rows.data(), 2, &count),
              SK_STS_BUFFER_TOO_SMALL);
    ASSERT_EQ(count, 2u);
    EXPECT_EQ(host->view.versionQueries.back(), "C:/Windows/System32/drivers|*.sys");
    const std::string first = rows[0];
    EXPECT_EQ(first, "FileName=skraid.sys\nAttributes=0x00000020\n"
                     "CreationTime=01/02/2024 03:04:05.006\nLastAccessTime=\nLastWriteTime=\n"
                     "FileSize=123456\nProductName=StrataKeep\nProductVersion=9.3.3\n");
    EXPECT_EQ(std::strlen(rows[1]), SK_FILE_VERSION_ROW_SIZE - 1) << "cut, and terminated";

    host->view.files.pop_back();
    EXPECT_EQ(SK_FileVersionList("d", "*", rows.data(), 2, &count), 1u);
    EXPECT_EQ(SK_FileVersionList(nullptr, "*", rows.data(), 2, &count), 7u);
    EXPECT_EQ(SK_FileVersionList("d", "*", nullptr, 2, &count), 7u);
}

} // namespace
