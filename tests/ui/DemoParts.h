// SPDX-License-Identifier: MIT
// A panel's parts on the simulated platform.
#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "shell/UpdateChecker.h"
#include "ui/PanelParts.h"

#include <string>

namespace fadeloom {

struct DemoParts {
    explicit DemoParts(SimulatedPlatform& simulated)
        : world(simulated)
    {
    }
    [[nodiscard]] PanelParts parts()
    {
        return {
            .mainLoop = world.mainLoop(),
            .clock = world.platform().clock,
            .workspace = world.workspace(),
            .application = world.application(),
            .dialogs = world.dialogs(),
            .userDefaults = world.userDefaults(),
            .updates = &updates,
            .version = "1.0",
            .webPage = "https://fadeloom.example/",
            .translate = english,
            .quit = [this] { ++quits; },
        };
    }
    /// A newer version is released, and found.
    void publish(const std::string& version)
    {
        updates.check([](bool) { });
        world.http().answer(200, R"({"version": ")" + version + R"(", "build": 2})");
    }

    SimulatedPlatform& world;
    const Translate english = [](const char*, const char* text) { return std::string(text); };
    UpdateChecker updates{{.version = "1.0", .build = "1", .endpoint = "https://updates.example"},
        {world.mainLoop(), world.http(), world.workspace(), world.application(), world.dialogs(), english}};
    int quits = 0;
};

}  // namespace fadeloom
