// SPDX-License-Identifier: MIT
// The headless run as a program: standard streams, signals, and the platform it runs on.
#pragma once

namespace fadeloom {

/// Runs until a command or a signal asks for the end; returns the program's exit status. `isSimulated`: on a world in
/// memory instead of this machine's audio system.
[[nodiscard]] int runHeadless(int argumentCount, char** arguments, bool isSimulated);

}  // namespace fadeloom
