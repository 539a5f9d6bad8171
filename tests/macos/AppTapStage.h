// SPDX-License-Identifier: MIT
// A player on an output device of the audio world, and the engine's tap for it. For Objective-C++ only.
#pragma once

#include "engine/AppTap.h"
#include "platform/macos/CoreAudioSystem.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Dispatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

class AppTapStage : public ::testing::Test {
protected:
    using Lines = std::vector<std::string>;

    AppTapStage()
    {
        world.reset();
        speakers = world.plug({.uid = "speakers"});
        player = world.addProcess({.pid = 501, .isRunningOutput = true, .amplitude = 0.5F});
        doubles::journal().clear();
    }
    ~AppTapStage() override
    {
        EXPECT_TRUE(world.taps.empty());
        EXPECT_TRUE(world.aggregates.empty());
        world.reset();
    }

    auto create() { return createOn("speakers", speakers); }
    std::expected<std::unique_ptr<AppTap>, TapError> createOn(const std::string& uid, AudioObjectID device)
    {
        return AppTap::create(audio, {player}, {.id = device, .uid = uid, .name = "A device"},
            TapScope::everyStream, parameters, "Music");
    }
    /// The calls since the last query, without those of listeners.
    static Lines asked()
    {
        Lines lines = std::exchange(doubles::journal(), {});
        std::erase_if(lines, [](const std::string& line) {
            return line.starts_with("listen to ") || line.starts_with("forget ");
        });
        return lines;
    }
    const doubles::Tap& onlyTap() { return world.taps.begin()->second; }
    const doubles::Aggregate& onlyAggregate() { return world.aggregates.begin()->second; }
    const doubles::Proc& onlyProc() { return onlyAggregate().procs.begin()->second; }

    doubles::AudioWorld& world = doubles::AudioWorld::current();
    CoreAudioSystem audio;
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    AudioObjectID speakers = kAudioObjectUnknown;
    AudioObjectID player = kAudioObjectUnknown;
};

}  // namespace fadeloom
