// SPDX-License-Identifier: MIT
// A player process for the tests: a sine of 441 Hz on the default output.
#pragma once

#include <csignal>

namespace fadeloom::SinePlayer {

/// Whether audio stays open, and whether it keeps playing.
inline constexpr int pauseSignal = SIGUSR1;
inline constexpr int resumeSignal = SIGUSR2;

/// Plays until SIGTERM; returns the exit status.
int play(float amplitude);

}  // namespace fadeloom::SinePlayer
