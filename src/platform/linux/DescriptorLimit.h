// SPDX-License-Identifier: MIT
// How many files the process may have open: each tapped application takes about a dozen.
#pragma once

#include <sys/resource.h>

namespace fadeloom {

/// Raises the limit to what the user may have at most. The first call remembers what it was. Thread: main, before others.
void raiseDescriptorLimit();

/// While one lives, the limit is the one that the process was started with, for programs that are started meanwhile:
/// some do badly with a higher one. What is open stays open. Thread: any, one at a time.
class OriginalDescriptorLimit {
public:
    OriginalDescriptorLimit();
    ~OriginalDescriptorLimit();
    OriginalDescriptorLimit(const OriginalDescriptorLimit&) = delete;
    OriginalDescriptorLimit& operator=(const OriginalDescriptorLimit&) = delete;

private:
    rlimit raised_{};
    bool isLowered_ = false;
};

}  // namespace fadeloom
