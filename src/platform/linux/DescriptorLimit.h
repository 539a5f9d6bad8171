// SPDX-License-Identifier: MIT
// The limit of open files: each tapped application takes about a dozen.
#pragma once

#include <sys/resource.h>

namespace fadeloom {

/// Raises the soft limit to the hard limit. The first call remembers the original one. Thread: main, before other
/// threads.
void raiseDescriptorLimit();

/// While an instance exists, the original limit is in effect, for child processes: some do not cope with a higher one.
/// Open files stay open. Thread: any, one at a time.
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
