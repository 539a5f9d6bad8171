// SPDX-License-Identifier: MIT
// A file that one process at a time has locked.
#pragma once

#include "base/FileDescriptor.h"

#include <filesystem>
#include <memory>

namespace fadeloom {

/// The kernel frees the lock when its process ends, however it ends. Thread: one.
class InstanceLock {
public:
    enum class Outcome {
        taken,  // It is ours now.
        heldByAnother,
        unusable,  // Something else has the file's name, or nothing can be made or locked there.
    };

    explicit InstanceLock(std::filesystem::path file);
    /// Frees it.
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Waits for nobody: neither for a lock that another process holds nor for the other end of a pipe.
    [[nodiscard]] Outcome tryToTake();
    /// Frees a lock that is ours, and removes its file.
    void release();

private:
    [[nodiscard]] bool isStillInPlace(int descriptor) const;

    const std::filesystem::path file_;
    std::unique_ptr<FileDescriptor> descriptor_;  // There while the lock is ours.
};

}  // namespace fadeloom
