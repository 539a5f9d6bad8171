// SPDX-License-Identifier: MIT
// The program as people meet it: an icon among the desktop's status icons, and the panel beside it.
#pragma once

namespace fadeloom {

struct CommandLine;

/// Runs until it is asked to quit; returns the exit status. Thread: main.
int runTray(int argumentCount, char** arguments, const CommandLine& commandLine);

}  // namespace fadeloom
