// SPDX-License-Identifier: MIT
// The ground that all contract tests stand on.
#pragma once

#include "tests/platform/AudioReading.h"
#include "tests/platform/ContractWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace fadeloom {

class PlatformContract : public ::testing::TestWithParam<ContractWorldFactory> {
protected:
    /// Plugs a device in and returns its id once it is listed.
    AudioObjectID plugged(
        const std::string& uid, const std::string& name = "A device", std::uint32_t channels = 2)
    {
        world->plug(uid, name, channels);
        EXPECT_TRUE(world->waitUntil([&] { return reading.device(uid) != kAudioObjectUnknown; })) << uid;
        return reading.device(uid);
    }

    void unplugged(const std::string& uid)
    {
        world->unplug(uid);
        EXPECT_TRUE(world->waitUntil([&] { return reading.device(uid) == kAudioObjectUnknown; })) << uid;
    }

    void makeDefault(const std::string& uid)
    {
        world->setDefaultOutput(uid);
        EXPECT_TRUE(world->waitUntil([&] { return reading.defaultOutput() == reading.device(uid); })) << uid;
    }

    /// Starts a player and returns its pid and audio object once it plays.
    std::pair<ProcessID, AudioObjectID> playing(float amplitude = 0.5F)
    {
        const ProcessID pid = world->startPlayer(amplitude);
        EXPECT_TRUE(world->waitUntil([&] { return reading.isPlaying(reading.process(pid)); }));
        return {pid, reading.process(pid)};
    }

    std::unique_ptr<ContractWorld> world = GetParam()();
    AudioHardware& hardware = world->hardware();
    AudioReading reading{hardware};
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PlatformContract);

}  // namespace fadeloom
