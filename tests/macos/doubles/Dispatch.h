// SPDX-License-Identifier: MIT
// Dispatch queues that a test runs, with a clock that only the test advances.
#pragma once

#include <chrono>

namespace doubles {

/// Runs what is due on all queues, including the main queue, and what that submits.
void runQueues();
/// Advances the time and runs what becomes due, in order.
void advanceQueues(std::chrono::nanoseconds duration);
/// Whether the running block was submitted to the main queue, or to none.
bool isOnMainQueue();
/// The quality of service of the most recently created queue.
unsigned int lastQuality();
/// Drops pending blocks.
void clearQueues();

}  // namespace doubles
