// SPDX-License-Identifier: MIT
// An Objective-C runtime for tests: enough of the platform's to run what a compiler makes of our sources.
//
// Classes are the compiler's own data, found by their methods' names. Every object on the heap is counted and known, so
// that a leak, a second release and a message to something that is no object are seen.
#pragma once

#include <cstddef>
#include <string>

namespace doubles {

/// How many objects live on the heap now.
std::size_t liveObjects();
/// Their classes, one to a line, for a test that failed.
std::string describeLiveObjects();
/// How often an object is retained; 0 for one that is gone.
int retainCount(const void* object);

/// While one lives, what is autoreleased waits for its end.
class AutoreleasePool {
public:
    AutoreleasePool();
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;
    ~AutoreleasePool();

private:
    void* const pool_;
};

/// Ends the program with a message: what the platform would crash on.
[[noreturn]] void crash(const std::string& why);

}  // namespace doubles
