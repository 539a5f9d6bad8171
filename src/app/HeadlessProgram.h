// SPDX-License-Identifier: MIT
// The headless mode as a program: standard streams, signals, and its platform.
#pragma once

namespace fadeloom {

/// Runs until a command or a signal ends it; returns the exit status. `isSimulated`: on a simulation instead of this
/// machine's audio system.
[[nodiscard]] int runHeadless(int argumentCount, char** arguments, bool isSimulated);

}  // namespace fadeloom
