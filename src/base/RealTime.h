// SPDX-License-Identifier: MIT
// Marks the code that runs on an IO thread, for readers, compilers and tests.
#pragma once

#if defined(__clang__) && __has_cpp_attribute(clang::nonblocking)
#define FADELOOM_NONBLOCKING [[clang::nonblocking]]
#else
/// For functions that run on an IO thread: no allocation or release, no blocking, no system call.
#define FADELOOM_NONBLOCKING
#endif

namespace fadeloom {

/// While an instance exists, its thread runs real-time code. Test programs interpose the allocator, the locks and
/// blocking system calls, and count calls while `isActive`; a release build compiles this away.
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
