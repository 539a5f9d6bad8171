// SPDX-License-Identifier: MIT
// Resolves what the user typed to an application.
#pragma once

#include "control/ControllerState.h"
#include "platform/Text.h"

#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

class AudioController;

/// The bundle identifier of the app that `typed` names: by its identifier, or by its name, ignoring case, if that is
/// unique. Apps in the mixer take precedence over those known from earlier. The error is a sentence for the user, in
/// English.
[[nodiscard]] std::expected<std::string, std::string> findApp(
    const ControllerState& state, const Text& text, const std::string& typed);

/// The apps of `@playing`, `@all` or `@call`, possibly none; nullopt for any other word.
[[nodiscard]] std::optional<std::vector<std::string>> appsOfGroup(
    const ControllerState& state, const std::string& word);

/// The apps that a command's argument denotes: findApp, appsOfGroup, or "pid:N". The error names what is unknown.
[[nodiscard]] std::expected<std::vector<std::string>, std::string> appsNamed(
    const AudioController& controller, const Text& text, const std::string& word);

}  // namespace fadeloom
