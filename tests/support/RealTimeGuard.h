// SPDX-License-Identifier: MIT
// Interposes the allocator, the locks and the blocking system calls of a test program, and counts calls inside
// real-time sections.
//
// Link RealTimeGuard.cpp into the test program. Under a sanitizer, which replaces the same functions, it counts
// nothing; see `isGuarding`.
#pragma once

#include <string>

namespace fadeloom {

[[nodiscard]] bool isGuarding();
/// Forbidden calls inside real-time sections since startup, on all threads.
[[nodiscard]] int realTimeViolations();
/// The name of the last function called in this way; empty if there was none.
[[nodiscard]] std::string lastRealTimeViolation();

}  // namespace fadeloom
