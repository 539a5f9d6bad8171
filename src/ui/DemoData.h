// SPDX-License-Identifier: MIT
// The contents of screenshots.
#pragma once

#include "control/DemoContents.h"

namespace fadeloom {

/// The platform whose applications and devices are shown.
enum class DemoHome { ofLinux, ofMacOS };

/// The first app has its equalizer on; screenshots show it expanded.
[[nodiscard]] DemoContents demoContents(Theme theme, DemoHome home = DemoHome::ofMacOS);

}  // namespace fadeloom
