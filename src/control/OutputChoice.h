// SPDX-License-Identifier: MIT
// Rules for an app's output device, as pure functions.
//
// The user's selection here has precedence, then the app's own choice, then the system's default. A selection is kept
// while its device is missing: the app then plays on the default device, muted, so that its audio never unexpectedly
// moves to another device.
#pragma once

#include "platform/OutputDevice.h"
#include "settings/SettingsData.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// The device selected for the app; nullopt if the app follows the system's default.
[[nodiscard]] std::optional<std::string> chosenOutputUID(
    const SettingsData& settings, const std::string& bundleID);

/// The connected device with this unique id, or null.
[[nodiscard]] const OutputDevice* findDevice(std::span<const OutputDevice> devices, std::string_view uid);

/// Whether the app has a selected device that is not connected.
[[nodiscard]] bool isOutputMissing(
    const SettingsData& settings, std::span<const OutputDevice> devices, const std::string& bundleID);

/// The devices that an app plays through: the selected one while it is connected; those of its streams' own choice; the
/// default. `ownUIDs`: where its streams would play without us. Empty if there is no device at all.
[[nodiscard]] std::vector<OutputDevice> outputsOf(const SettingsData& settings,
    std::span<const OutputDevice> devices, const std::optional<std::string>& defaultUID,
    const std::string& bundleID, std::span<const std::string> ownUIDs);

/// The symmetric difference of two sets of identifiers.
[[nodiscard]] std::set<std::string> difference(
    const std::set<std::string>& left, const std::set<std::string>& right);

}  // namespace fadeloom
