// SPDX-License-Identifier: MIT
// Names of presets as the panel shows them.
#pragma once

#include <QString>

#include <optional>
#include <string>

namespace fadeloom {

/// The name in the user's language for a built-in preset, any other name as it is, "Custom" for a curve without one.
[[nodiscard]] QString presetTitle(const std::optional<std::string>& name);

/// The heading of a group of built-in presets, in the user's language.
[[nodiscard]] QString presetGroupTitle(const std::string& title);

}  // namespace fadeloom
