// SPDX-License-Identifier: MIT
// Replaces the allocator, the locks and the blocking system calls of a test program by ones that count their calls
// inside of real-time sections.
//
// Link RealTimeGuard.cpp into the test program. Under a sanitizer, which replaces the same functions, it counts nothing;
// `isGuarding` tells.
#pragma once

#include <string>

namespace fadeloom {

[[nodiscard]] bool isGuarding();
/// Forbidden calls inside of real-time sections since the program began, on all threads.
[[nodiscard]] int realTimeViolations();
/// The name of the last function that was called so; empty when there was none.
[[nodiscard]] std::string lastRealTimeViolation();

}  // namespace fadeloom
