// SPDX-License-Identifier: MIT
// A headless run on the simulated platform whose output is kept: the fixture of stories about commands and events.
#pragma once

#include "app/Console.h"
#include "app/HeadlessRun.h"
#include "app/PrintedLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "settings/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace fadeloom {

using namespace std::chrono_literals;

class HeadlessStory : public testing::Test {
protected:
    HeadlessStory()
    {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
    }

    void start()
    {
        run.emplace(world.platform({.systemLog = &printedLog}), console,
            HeadlessRun::Options{.version = "1.2.3",
                .quit = [this] { ++quitCount; },
                .terminalSize = [this] { return terminal; }});
    }
    ProcessID launchPlaying(const std::string& name, const SimulatedAppTraits& traits = {})
    {
        const auto pid = world.launchApp(name, traits);
        world.startPlaying(pid);
        world.runPosted();
        return pid;
    }
    /// The lines printed since the last call.
    std::vector<std::string> lines()
    {
        std::vector<std::string> result;
        std::istringstream text(out.str());
        out.str("");
        for (std::string line; std::getline(text, line);)
            result.push_back(line);
        return result;
    }
    /// The reply to a command: the last line that it printed.
    std::string answer(std::string_view command)
    {
        lines();
        run->takeLine(command);
        const auto printed = lines();
        return printed.empty() ? "" : printed.back();
    }
    [[nodiscard]] std::filesystem::path settingsFile()
    {
        return SettingsFile::defaultURL(world.platform().folders);
    }
    [[nodiscard]] SettingsData saved()
    {
        return SettingsFile::load(settingsFile(), world.systemLog()).settings;
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
    std::ostringstream out;
    Console console{[this](const std::string& text) { out << text; }};
    PrintedLog printedLog{world.systemLog(), console, world.mainLoop()};
    int quitCount = 0;
    std::optional<TerminalSize> terminal;
    std::optional<HeadlessRun> run;
};

}  // namespace fadeloom
