// SPDX-License-Identifier: MIT
// A simulated platform with two output devices, and the controller on it: the fixture of the controller's stories.
#pragma once

#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "settings/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

using namespace std::chrono_literals;

class ControllerStory : public testing::Test {
protected:
    // An app's signal, and the tolerance for a device to count as playing it: the renderer approaches a new volume
    // asymptotically.
    static constexpr float source = 0.25F;
    static constexpr float tolerance = 0.0005F;

    ControllerStory()
    {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
    }

    // Scenes.

    void start() { controller.emplace(world.platform(), engineLog, "1.2.3"); }
    void end() { controller.reset(); }
    /// Settings that the user changed in an earlier run.
    void givenSettings(const SettingsData& settings)
    {
        ASSERT_TRUE(SettingsFile::save(settings, settingsFile()));
    }
    ProcessID launchPlaying(const std::string& name)
    {
        const auto pid = world.launchApp(name);
        world.startPlaying(pid, SimulatedSignal::constant(source));
        world.runPosted();
        return pid;
    }
    /// The user changes one app's settings.
    template <typename Change>
    void change(const std::string& bundleID, Change change)
    {
        auto settings = this->settings();
        auto app = appSettings(settings, bundleID);
        change(app);
        storeAppSettings(settings, bundleID, app);
        controller->setSettings(settings);
    }
    void chooseOutput(const std::string& bundleID, std::optional<std::string> uid)
    {
        change(bundleID, [&](auto& app) { app.outputUID = uid; });
    }
    void setVolumeLimit(float limit)
    {
        auto settings = this->settings();
        settings.volumeLimit = limit;
        controller->setSettings(settings);
    }
    void unplug(const std::string& uid)
    {
        world.unplug(uid);
        world.runPosted();
    }
    void plug(const std::string& uid)
    {
        world.plug({.uid = uid, .name = uid});
        world.runPosted();
    }

    // Measurements.

    [[nodiscard]] const ControllerState& state() const { return controller->state(); }
    /// The error shown to the user; empty if there is none.
    [[nodiscard]] std::string message() const
    {
        const auto& error = *state().error;
        return error ? englishText(*error) : "";
    }
    [[nodiscard]] const SettingsData& settings() const { return *state().settings; }
    /// The mixer's rows as the log describes them.
    [[nodiscard]] std::string mixer() const { return describe(*state().apps); }
    [[nodiscard]] const AppTap* tapOf(const std::string& bundleID) const
    {
        return controller->tapOf(bundleID);
    }
    /// Where the app's tap plays; empty without a tap.
    [[nodiscard]] std::string outputOf(const std::string& bundleID) const
    {
        const auto* const tap = tapOf(bundleID);
        return tap ? tap->outputUID() : "";
    }
    /// The values passed to the app's renderer; the defaults without one.
    [[nodiscard]] TapParameters::Values valuesOf(const std::string& bundleID) const
    {
        const auto* const block = controller->parametersOf(bundleID);
        return block ? block->values : TapParameters::Values{};
    }
    /// The peak of a device once the gains have settled.
    [[nodiscard]] float heardAt(const std::string& uid)
    {
        world.advance(1s);
        return world.heard(uid).peak(1);
    }
    [[nodiscard]] std::vector<std::string> log()
    {
        std::vector<std::string> messages;
        for (const auto& line : world.systemLog().lines())
            messages.push_back(line.message);
        return messages;
    }
    [[nodiscard]] bool hasLogged(const std::string& message) { return logCount(message) > 0; }
    [[nodiscard]] long logCount(const std::string& message) { return std::ranges::count(log(), message); }
    [[nodiscard]] long callCount(AudioOperation operation)
    {
        return std::ranges::count(world.audio().operations(), operation);
    }
    [[nodiscard]] std::vector<AudioOperation> tapsMadeAndTakenDown()
    {
        auto operations = world.audio().operations();
        std::erase_if(operations, [](auto operation) {
            return operation != AudioOperation::createTap && operation != AudioOperation::destroyTap;
        });
        return operations;
    }
    /// The number of taps requested so far.
    [[nodiscard]] long tapAttempts() { return callCount(AudioOperation::createTap); }
    /// The taps that exist, where none was refused.
    [[nodiscard]] long tapCount() { return tapAttempts() - callCount(AudioOperation::destroyTap); }

    [[nodiscard]] std::filesystem::path settingsFile()
    {
        return SettingsFile::defaultURL(world.platform().folders);
    }
    [[nodiscard]] bool isSaveWaiting() { return world.utilityQueue().waitingCount() > 0; }
    /// The settings as a later run would load them.
    [[nodiscard]] SettingsData saved()
    {
        return SettingsFile::load(settingsFile(), world.systemLog()).settings;
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    std::optional<AudioController> controller;
};

}  // namespace fadeloom
