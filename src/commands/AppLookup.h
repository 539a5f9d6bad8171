// SPDX-License-Identifier: MIT
// Finds the application that a user means by what the user typed.
#pragma once

#include "control/ControllerState.h"
#include "platform/Text.h"

#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

class AudioController;

/// The bundle identifier of the app that `typed` names: by its identifier, or by its name in any letter case when no
/// other app has it. Apps in the mixer count before those known from earlier. The error is a sentence for the user,
/// in English.
[[nodiscard]] std::expected<std::string, std::string> findApp(
    const ControllerState& state, const Text& text, const std::string& typed);

/// The apps of `@playing`, `@all` or `@call`, perhaps none; absent for any other word.
[[nodiscard]] std::optional<std::vector<std::string>> appsOfGroup(
    const ControllerState& state, const std::string& word);

/// The apps that the word of a command means: findApp, appsOfGroup, or "pid:N". The error names what is unknown.
[[nodiscard]] std::expected<std::vector<std::string>, std::string> appsNamed(
    const AudioController& controller, const Text& text, const std::string& word);

}  // namespace fadeloom
