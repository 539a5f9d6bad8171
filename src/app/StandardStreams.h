// SPDX-License-Identifier: MIT
// Makes the standard streams safe to use, whoever started the program and however.
#pragma once

namespace fadeloom {

/// A standard stream that was closed reads and writes nothing, instead of whatever is opened first. Writing to a pipe
/// that nobody reads is an error of that write, and no longer the end of the program; reading from the terminal while
/// in the background likewise, instead of a stop. What is written to standard error waits for no reader: what finds no
/// room in a pipe or terminal is lost. To be called first.
void secureStandardStreams();

}  // namespace fadeloom
