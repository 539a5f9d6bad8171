// SPDX-License-Identifier: MIT
// Display names of presets.
#pragma once

#include <QString>

#include <optional>
#include <string>

namespace fadeloom {

/// The translated name of a built-in preset, any other name unchanged, "Custom" for a curve without one.
[[nodiscard]] QString presetTitle(const std::optional<std::string>& name);

/// The translated heading of a group of built-in presets.
[[nodiscard]] QString presetGroupTitle(const std::string& title);

}  // namespace fadeloom
