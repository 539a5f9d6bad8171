// SPDX-License-Identifier: MIT
// Location and name of recordings.
#pragma once

#include "platform/WallClock.h"
#include "settings/SettingsData.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace fadeloom {

class StandardFolders;

/// The user's choice, else "Fadeloom Recordings" in the music folder.
[[nodiscard]] std::filesystem::path recordingsFolder(
    const SettingsData& settings, const StandardFolders& folders);

/// "Player 2025-03-02 14.05.09.wav". Path separators become "-". A `count` above 1 distinguishes recordings of the same
/// second: "Player 2025-03-02 14.05.09 2.wav".
[[nodiscard]] std::string recordingFileName(std::string_view appName, LocalTime startedAt, int count = 1);

}  // namespace fadeloom
