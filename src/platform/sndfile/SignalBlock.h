// SPDX-License-Identifier: MIT
// Blocks signals for the threads that write files.
#pragma once

#include <csignal>

namespace fadeloom {

/// While an instance exists, all signals are blocked on its thread, and permanently on threads started meanwhile.
///
/// So a write beyond the file size limit fails like any other: SIGXFSZ, which is sent to the writing thread and would
/// end the program, stays pending. The program's signal actions are unchanged.
class SignalBlock {
public:
    SignalBlock();
    ~SignalBlock();
    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    sigset_t former_{};
};

}  // namespace fadeloom
