// SPDX-License-Identifier: MIT
// An Objective-C runtime for tests: enough of the platform's to run the compiler's output for our sources.
//
// Classes are the compiler's own data, with methods found by name. Every object on the heap is counted and tracked, so
// that a leak, an over-release and a message to a non-object are detected.
#pragma once

#include <cstddef>
#include <string>

namespace doubles {

/// The number of live objects on the heap.
std::size_t liveObjects();
/// Their classes, one per line, for a failed test.
std::string describeLiveObjects();
/// An object's retain count; 0 for a freed one.
int retainCount(const void* object);

/// While an instance exists, autoreleased objects are collected until its end.
class AutoreleasePool {
public:
    AutoreleasePool();
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;
    ~AutoreleasePool();

private:
    void* const pool_;
};

/// Aborts with a message: for what the platform would crash on.
[[noreturn]] void crash(const std::string& why);

}  // namespace doubles
