// SPDX-License-Identifier: MIT
// There is no guardian on macOS.
#pragma once

namespace fadeloom {

/// Taps belong to the audio system, which decides what happens to them while the program is stopped.
class HomeGuardian { };

}  // namespace fadeloom
