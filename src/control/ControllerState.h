// SPDX-License-Identifier: MIT
// The observable state of the controller.
#pragma once

#include "base/Published.h"
#include "control/AppEntry.h"
#include "control/AudioPermission.h"
#include "control/ControllerError.h"
#include "platform/OutputDevice.h"
#include "settings/SettingsData.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

/// Apps are identified by bundle identifier. Thread: main.
struct ControllerState {
    /// The mixer's rows in display order: every app that has played and still has an audio process.
    Published<std::vector<AppEntry>> apps{};
    /// The connected output devices.
    Published<std::vector<OutputDevice>> devices{};
    /// nullopt if the system has no default output.
    Published<std::optional<std::string>> defaultDeviceUID{};
    Published<AudioPermission::State> permission{};
    /// The app whose call ducks the others.
    Published<std::optional<std::string>> callApp{};
    /// Apps in the mixer that are no call apps but have used the microphone while they played, until the user has
    /// decided.
    Published<std::set<std::string>> callOffers{};
    /// Why an app's tap could not be created.
    Published<std::map<std::string, TapError>> tapErrors{};
    /// Apps in the mixer whose selected output is not connected; they are muted.
    Published<std::set<std::string>> missingOutput{};
    /// The apps being recorded, with their start times.
    Published<std::map<std::string, std::chrono::system_clock::time_point>> recordings{};
    /// The last recording that was stopped.
    Published<std::optional<std::filesystem::path>> lastRecording{};
    /// Whether the program starts at login; the system's actual state.
    Published<bool> launchAtLogin{};
    /// The last error, until the user dismisses it.
    Published<std::optional<ControllerError>> error{};
    Published<SettingsData> settings{};
};

}  // namespace fadeloom
