// SPDX-License-Identifier: MIT
// The built-in presets.
#pragma once

#include "engine/EQPreset.h"

#include <string>
#include <vector>

namespace fadeloom {

struct EQPresetGroup {
    std::string title;
    std::vector<EQPreset> presets;
};

/// Constants, created on first use. Thread: any.
namespace EQPresets {

/// All presets, by group, in menu order.
[[nodiscard]] const std::vector<EQPresetGroup>& groups();
/// All presets in a flat list.
[[nodiscard]] const std::vector<EQPreset>& all();
/// The flat curve: the default of every app.
[[nodiscard]] const EQPreset& flat();

}  // namespace EQPresets

}  // namespace fadeloom
