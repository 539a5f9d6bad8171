// SPDX-License-Identifier: MIT
// The program as people meet it: an icon among the desktop's status icons, and the panel beside it.
#pragma once

namespace fadeloom {

/// Runs until it is asked to quit; returns the exit status. `isSimulated`: on a world in memory. Thread: main.
int runTray(int argumentCount, char** arguments, bool isSimulated);

}  // namespace fadeloom
