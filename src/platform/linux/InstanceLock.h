// SPDX-License-Identifier: MIT
// A lock file, held by one process at a time.
#pragma once

#include "base/FileDescriptor.h"

#include <filesystem>
#include <memory>

namespace fadeloom {

/// The kernel releases the lock when its process ends, for any reason. Thread: one.
class InstanceLock {
public:
    enum class Outcome {
        taken,  // It is ours now.
        heldByAnother,
        unusable,  // Something else has the file's name, or nothing can be created or locked there.
    };

    explicit InstanceLock(std::filesystem::path file);
    /// Releases it.
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Never blocks: neither on a lock held by another process nor on the other end of a pipe.
    [[nodiscard]] Outcome tryToLock();
    /// Releases our lock, and removes its file.
    void release();

private:
    [[nodiscard]] bool isStillNamed(int descriptor) const;

    const std::filesystem::path file_;
    std::unique_ptr<FileDescriptor> descriptor_;  // Set while we hold the lock.
};

}  // namespace fadeloom
