// SPDX-License-Identifier: MIT
// A player that the tests start as a process of its own: a sine of 441 Hz on the default output.
#pragma once

#include <csignal>

namespace fadeloom::SinePlayer {

/// With audio that stays open; and playing on.
inline constexpr int pauseSignal = SIGUSR1;
inline constexpr int resumeSignal = SIGUSR2;

/// Plays until SIGTERM; returns the exit status.
int play(float amplitude);

}  // namespace fadeloom::SinePlayer
