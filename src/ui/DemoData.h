// SPDX-License-Identifier: MIT
// What the pictures of the panel show.
#pragma once

#include "control/DemoContents.h"

namespace fadeloom {

/// The system whose applications and devices the pictures show.
enum class DemoHome { ofLinux, ofMacOS };

/// The first app has its equalizer on; pictures show it open.
[[nodiscard]] DemoContents demoContents(Theme theme, DemoHome home = DemoHome::ofMacOS);

}  // namespace fadeloom
