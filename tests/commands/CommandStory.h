// SPDX-License-Identifier: MIT
// A controller on the simulated platform where one app plays, and the command interpreter: the fixture of their
// stories.
#pragma once

#include "commands/CommandInterpreter.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "settings/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

namespace fadeloom {

using namespace std::chrono_literals;

class CommandStory : public testing::Test {
protected:
    CommandStory()
    {
        world.advance(1s);
        std::filesystem::remove(settingsFile());  // It contains the player's name already.
    }

    ProcessID launchPlaying(const std::string& name, const SimulatedAppTraits& traits = {})
    {
        const auto pid = world.launchApp(name, traits);
        world.startPlaying(pid);
        world.runPosted();
        return pid;
    }
    std::string answer(std::string_view command) { return commands.interpret(command).text; }
    [[nodiscard]] std::filesystem::path settingsFile()
    {
        return SettingsFile::defaultURL(world.platform().folders);
    }
    [[nodiscard]] SettingsData saved()
    {
        return SettingsFile::load(settingsFile(), world.systemLog()).settings;
    }
    /// Whether nothing was saved since the story began.
    bool isUnchanged()
    {
        world.advance(1s);
        return !std::filesystem::exists(settingsFile());
    }
    [[nodiscard]] float heardAt(const std::string& uid)
    {
        world.advance(1s);
        return world.heard(uid).peak(1);
    }

    static constexpr float source = 0.25F;
    static constexpr float tolerance = 0.0005F;

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    const ProcessID player = [this] {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
        return launchPlaying("Player");
    }();
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path()};
    AudioController controller{world.platform(), engineLog, "1.2.3"};
    CommandInterpreter commands{controller, world.platform().text};
};

}  // namespace fadeloom
