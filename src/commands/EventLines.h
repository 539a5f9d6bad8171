// SPDX-License-Identifier: MIT
// What has happened between two states of the world, as lines that begin with a fixed word.
//
//     app appeared com.example.player Player      device added speakers "Desk Speakers"
//     app playing com.example.player              device removed speakers "Desk Speakers"
//     app output com.example.player speakers      default speakers
//     app silent com.example.player               permission granted
//     app disappeared com.example.player          message "Could not switch output to Headphones."
//     call com.example.chat                       recording started com.example.player
//     call none                                   recording stopped com.example.player
//                                                 recording saved "/music/Player 2030-01-02 12.00.00.wav"
#pragma once

#include "control/AppEntry.h"
#include "control/AudioPermission.h"
#include "platform/OutputDevice.h"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace fadeloom {

/// Where each app plays, by bundle identifier; absent for an app that has no output.
using AppOutputs = std::map<std::string, std::optional<std::string>>;

[[nodiscard]] std::vector<std::string> appLines(
    std::span<const AppEntry> before, std::span<const AppEntry> now);
[[nodiscard]] std::vector<std::string> outputLines(const AppOutputs& before, const AppOutputs& now);
[[nodiscard]] std::vector<std::string> deviceLines(
    std::span<const OutputDevice> before, std::span<const OutputDevice> now);
[[nodiscard]] std::string callLine(const std::optional<std::string>& bundleID);
[[nodiscard]] std::vector<std::string> callOfferLines(
    const std::set<std::string>& before, const std::set<std::string>& now);
[[nodiscard]] std::vector<std::string> recordingLines(
    const std::set<std::string>& before, const std::set<std::string>& now);
[[nodiscard]] std::string savedRecordingLine(const std::filesystem::path& location);
[[nodiscard]] std::string defaultLine(const std::optional<std::string>& uid);
[[nodiscard]] std::string permissionLine(AudioPermission::State state);
[[nodiscard]] std::string messageLine(const std::string& message);

}  // namespace fadeloom
