// SPDX-License-Identifier: MIT
// Dispatch queues whose work runs when a test lets it, in a time that moves only when a test moves it.
#pragma once

#include <chrono>

namespace doubles {

/// Runs what is due on all queues, the main queue's included, and what that brings.
void runQueues();
/// Lets time pass and runs what becomes due, in its order.
void advanceQueues(std::chrono::nanoseconds duration);
/// Whether what runs now was given to the main queue, or to none.
bool isOnMainQueue();
/// The quality of service of the queue that was made last.
unsigned int lastQuality();
/// Drops what waits.
void clearQueues();

}  // namespace doubles
