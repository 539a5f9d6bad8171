// SPDX-License-Identifier: MIT
// A file descriptor that is closed by its owner's destructor.
#pragma once

#include <unistd.h>

#include <utility>

namespace fadeloom {

class FileDescriptor {
public:
    /// Takes ownership of the result of `open`; a negative one means no file.
    explicit FileDescriptor(int descriptor)
        : descriptor_(descriptor)
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

    /// Closes now; false if a deferred write error is reported only then.
    bool close()
    {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int descriptor_;
};

}  // namespace fadeloom
