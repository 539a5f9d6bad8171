// SPDX-License-Identifier: MIT
// The curves that come with the program.
#pragma once

#include "engine/EQPreset.h"

#include <string>
#include <vector>

namespace fadeloom {

struct EQPresetGroup {
    std::string title;
    std::vector<EQPreset> presets;
};

/// Constants, made on first use. Thread: any.
namespace EQPresets {

/// Every preset, in the groups and the order in which a menu shows them.
[[nodiscard]] const std::vector<EQPresetGroup>& groups();
/// The groups one after the other.
[[nodiscard]] const std::vector<EQPreset>& all();
/// The curve that changes nothing: where every app starts.
[[nodiscard]] const EQPreset& flat();

}  // namespace EQPresets

}  // namespace fadeloom
