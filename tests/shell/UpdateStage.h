// SPDX-License-Identifier: MIT
// The fixture of stories about updates: a program of build 42, and a simulated web server.
#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "shell/UpdateChecker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>

namespace fadeloom {

class UpdateStage : public ::testing::Test {
protected:
    void install(const std::string& build)
    {
        checker.emplace(
            UpdateChecker::Product{
                .version = "1.3", .build = build, .endpoint = "https://updates.example/base/"},
            UpdateChecker::Parts{.mainLoop = world.mainLoop(),
                .http = world.http(),
                .workspace = world.workspace(),
                .application = world.application(),
                .dialogs = world.dialogs(),
                .translate = [](const char*, const char* text) { return std::string(text); }});
    }
    UpdateStage() { install("42"); }

    /// Answers the oldest open request.
    void feed(const std::string& version, const std::string& build)
    {
        world.http().answer(200, R"({"version": ")" + version + R"(", "build": )" + build + "}");
    }
    std::string availableVersion() const
    {
        const auto& found = *checker->available();
        return found ? found->version : "none";
    }

    SimulatedPlatform world{"/some/folder"};
    std::optional<UpdateChecker> checker;
};

}  // namespace fadeloom
