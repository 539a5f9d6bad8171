// SPDX-License-Identifier: MIT
// Keeps signals away from the threads that write files.
#pragma once

#include <csignal>

namespace fadeloom {

/// While one lives, no signal interrupts its thread. A thread that is started meanwhile is spared for its whole life.
///
/// So a write beyond the limit of file sizes fails like any other: SIGXFSZ, which it sends to its own thread and which
/// would end the program, stays with the thread. The program's way with signals is left as it is.
class SignalsHeld {
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t former_{};
};

}  // namespace fadeloom
