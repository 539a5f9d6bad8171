// SPDX-License-Identifier: MIT
#include "platform/linux/BoundedFile.h"

#include "base/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace fadeloom {

std::optional<std::string> readBoundedFile(const std::filesystem::path& file, std::size_t limit)
{
    const FileDescriptor descriptor{open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)};
    struct stat status = {};
    if (!descriptor.isOpen() || fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string content;
    std::array<char, 8192> piece;
    while (content.size() < limit) {
        const auto wanted = std::min(piece.size(), limit - content.size());
        const ssize_t count = read(descriptor.get(), piece.data(), wanted);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;  // Usually a process that has just exited.
        if (count == 0)
            break;
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
    return content;
}

}  // namespace fadeloom
