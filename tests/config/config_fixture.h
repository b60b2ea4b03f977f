#pragma once
// The scripted host for the config tests that need a core opened through the channel.

#include "config/config.h"
#include "config_images.h"
#include "support/scripted_system.h"

#include <gtest/gtest.h>

#include <memory>

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
