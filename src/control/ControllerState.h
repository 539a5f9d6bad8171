// SPDX-License-Identifier: MIT
// Everything about the controller that others may watch.
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

/// Apps are named by their bundle identifiers. Thread: main.
struct ControllerState {
    /// The mixer's rows in display order: every app that has played and still has an audio process.
    Published<std::vector<AppEntry>> apps{};
    /// The output devices that are connected.
    Published<std::vector<OutputDevice>> devices{};
    /// Absent when the system has no default output.
    Published<std::optional<std::string>> defaultDeviceUID{};
    Published<AudioPermission::State> permission{};
    /// The app whose call lowers the others.
    Published<std::optional<std::string>> callApp{};
    /// The listed apps that are no call apps and have used the microphone while they played, until the user says what
    /// they are.
    Published<std::set<std::string>> callOffers{};
    /// Why the tap of an app could not be made.
    Published<std::map<std::string, TapError>> tapErrors{};
    /// The listed apps whose chosen output is not connected; they are muted.
    Published<std::set<std::string>> missingOutput{};
    /// The apps that are being recorded, and since when.
    Published<std::map<std::string, std::chrono::system_clock::time_point>> recordings{};
    /// The recording that was stopped last.
    Published<std::optional<std::filesystem::path>> lastRecording{};
    /// Whether the program starts when the user logs in; as the system has it.
    Published<bool> launchAtLogin{};
    /// What went wrong last, until the user dismisses it.
    Published<std::optional<ControllerError>> error{};
    Published<SettingsData> settings{};
};

}  // namespace fadeloom
