// SPDX-License-Identifier: MIT
// Marks the code that runs on an IO thread, for readers, compilers and tests.
#pragma once

#if defined(__clang__) && __has_cpp_attribute(clang::nonblocking)
#define FADELOOM_NONBLOCKING [[clang::nonblocking]]
#else
/// On a function that an IO thread runs: no allocation or release, no waiting, no system call.
#define FADELOOM_NONBLOCKING
#endif

namespace fadeloom {

/// While one lives, its thread is in real-time code. Test programs replace the allocator, the locks and the writing
/// system calls by ones that count while `isActive`; in a release build nothing is left of it.
class RealTimeSection {
public:
#ifdef NDEBUG
    static constexpr bool isActive() noexcept { return false; }
#else
    RealTimeSection() noexcept { ++depth; }
    ~RealTimeSection() { --depth; }
    RealTimeSection(const RealTimeSection&) = delete;
    RealTimeSection& operator=(const RealTimeSection&) = delete;
    static bool isActive() noexcept { return depth > 0; }

private:
    static inline thread_local int depth = 0;
#endif
};

}  // namespace fadeloom
