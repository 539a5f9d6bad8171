// SPDX-License-Identifier: MIT
// Makes the standard streams safe to use, however the program was started.
#pragma once

namespace fadeloom {

/// A closed standard stream is replaced by one that reads and writes nothing, so that the next opened file does not
/// take its number. SIGPIPE and terminal stop signals become write or read errors. Standard error is non-blocking: what
/// does not fit into a pipe or terminal is lost. Call first.
void secureStandardStreams();

}  // namespace fadeloom
