// SPDX-License-Identifier: MIT
// A panel on a live controller: not everything can be provided as fixed contents.
#pragma once

#include "control/AudioController.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/DemoParts.h"
#include "ui/PanelModel.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {

/// Two devices, and an app named Phone for calls; `start` begins.
struct LivePanel {
    explicit LivePanel(std::function<void(SettingsData&)> changeSettings = [](auto&) { })
        : changeSettings_(std::move(changeSettings))
    {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
    }
    void start()
    {
        controller.emplace(world.platform(), engineLog, "1.0");
        panel.emplace(*controller, around.parts());
        controller->editSettings([&](auto& settings) {
            settings.appearance.animations = false;
            settings.focus.callApps = {"com.example.phone"};
            changeSettings_(settings);
        });
    }
    ProcessID play(const std::string& name)
    {
        const auto pid = world.launchApp(name);
        world.startPlaying(pid);
        world.advance(std::chrono::seconds(1));
        return pid;
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    DemoParts around{world};
    std::optional<AudioController> controller;
    std::optional<PanelModel> panel;

private:
    std::function<void(SettingsData&)> changeSettings_;
};

}  // namespace fadeloom
