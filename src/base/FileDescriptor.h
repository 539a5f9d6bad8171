// SPDX-License-Identifier: MIT
// An open file of the system, closed when its owner goes.
#pragma once

#include <unistd.h>

#include <utility>

namespace fadeloom {

class FileDescriptor {
public:
    /// Takes over what `open` returned; below 0 it stands for no file.
    explicit FileDescriptor(int descriptor)
        : descriptor_(descriptor)
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

    /// Closes now; false when the system tells only then that something was not written.
    bool close()
    {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int descriptor_;
};

}  // namespace fadeloom
