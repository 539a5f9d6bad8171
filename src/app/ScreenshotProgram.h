// SPDX-License-Identifier: MIT
// Draws the panel's screens for the store and the web.
#pragma once

namespace fadeloom {

struct CommandLine;

/// Returns the exit status, which is 0 also when a picture could not be written: the output says so. Thread: main.
int runScreenshots(int argumentCount, char** arguments, const CommandLine& commandLine);

}  // namespace fadeloom
