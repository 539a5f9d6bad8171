// SPDX-License-Identifier: MIT
// The program with its user interface: a status icon, and the panel beside it.
#pragma once

namespace fadeloom {

struct CommandLine;

/// Runs until it is asked to quit; returns the exit status. Thread: main.
int runTray(int argumentCount, char** arguments, const CommandLine& commandLine);

}  // namespace fadeloom
