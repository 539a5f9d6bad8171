// SPDX-License-Identifier: MIT
// Which device an application plays through, as rules over values.
//
// What the user chose here comes first, then what the app chose for itself, then the system's default. A choice made here
// is kept while its device is away: the app then goes to the default device, muted, so that its sound never
// jumps to another device by surprise.
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

/// The device that the user chose for the app; absent when the app follows the system's default.
[[nodiscard]] std::optional<std::string> chosenOutputUID(
    const SettingsData& settings, const std::string& bundleID);

/// The connected device of this unique id, or null.
[[nodiscard]] const OutputDevice* findDevice(std::span<const OutputDevice> devices, std::string_view uid);

/// Whether the app has a choice and its device is not connected.
[[nodiscard]] bool isOutputMissing(
    const SettingsData& settings, std::span<const OutputDevice> devices, const std::string& bundleID);

/// The devices that an app plays through: the chosen one while it is connected; those of its streams' own choice; the
/// default. `ownUIDs`: where its streams would play without us. None when there is no device at all.
[[nodiscard]] std::vector<OutputDevice> outputsOf(const SettingsData& settings,
    std::span<const OutputDevice> devices, const std::optional<std::string>& defaultUID,
    const std::string& bundleID, std::span<const std::string> ownUIDs);

/// The identifiers that are in one of the sets and not in the other.
[[nodiscard]] std::set<std::string> difference(
    const std::set<std::string>& left, const std::set<std::string>& right);

}  // namespace fadeloom
