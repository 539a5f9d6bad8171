// SPDX-License-Identifier: MIT
// There is no guardian on macOS.
#pragma once

namespace fadeloom {

/// Taps belong to the audio system, which decides itself what becomes of them while the program stands still.
class HomeGuardian { };

}  // namespace fadeloom
