// SPDX-License-Identifier: MIT
// Renders the panel's screens for the store and the web.
#pragma once

namespace fadeloom {

struct CommandLine;

/// Returns the exit status, which is 0 even if a picture could not be written: the output reports that. Thread: main.
int runScreenshots(int argumentCount, char** arguments, const CommandLine& commandLine);

}  // namespace fadeloom
