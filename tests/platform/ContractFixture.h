// SPDX-License-Identifier: MIT
// The fixture of all contract tests.
#pragma once

#include "tests/platform/AudioReading.h"
#include "tests/platform/ContractWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

namespace fadeloom {

class PlatformContract : public ::testing::TestWithParam<ContractWorldFactory> {
protected:
    /// Plugs a device in and returns it once it is listed.
    OutputDevice plugged(
        const std::string& uid, const std::string& name = "A device", std::uint32_t channels = 2)
    {
        world->plug(uid, name, channels);
        EXPECT_TRUE(world->waitUntil([&] { return reading.hasDevice(uid); })) << uid;
        return reading.device(uid);
    }

    void unplugged(const std::string& uid)
    {
        world->unplug(uid);
        EXPECT_TRUE(world->waitUntil([&] { return !reading.hasDevice(uid); })) << uid;
    }

    void makeDefault(const std::string& uid)
    {
        world->setDefaultOutput(uid);
        EXPECT_TRUE(world->waitUntil([&] { return audio.defaultOutput() == uid; })) << uid;
    }

    /// Starts a player and returns its audio process once it is playing.
    AudioProcess playing(float amplitude = 0.5F)
    {
        const ProcessID pid = world->startPlayer(amplitude);
        EXPECT_TRUE(world->waitUntil([&] { return reading.isPlaying(pid); }));
        return reading.process(pid);
    }

    /// Ends a player and waits until it is no longer listed.
    void ended(ProcessID player)
    {
        world->endPlayer(player);
        EXPECT_TRUE(world->waitUntil([&] { return !reading.hasProcess(player); }));
    }

    std::unique_ptr<ContractWorld> world = GetParam()();
    AudioSystem& audio = world->audio();
    AudioReading reading{audio};
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PlatformContract);

}  // namespace fadeloom
