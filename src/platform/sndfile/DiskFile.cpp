// SPDX-License-Identifier: MIT
#include "platform/sndfile/DiskFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace fadeloom {

static_assert(sizeof(off_t) == 8);  // Files may exceed 2 GiB.

std::expected<std::unique_ptr<DiskFile>, int> DiskFile::create(const std::filesystem::path& location)
{
    if (::unlink(location.c_str()) != 0 && errno != ENOENT)
        return std::unexpected(errno);
    const int descriptor = ::open(location.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return std::unexpected(errno);
    return std::unique_ptr<DiskFile>(new DiskFile(descriptor));
}

std::size_t DiskFile::write(std::uint64_t offset, std::span<const std::byte> bytes)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        const auto rest = bytes.subspan(written);
        const auto count =
            ::pwrite(descriptor_, rest.data(), rest.size(), static_cast<off_t>(offset + written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            note(count < 0 ? errno : EIO);
            break;
        }
        written += static_cast<std::size_t>(count);
    }
    size_ = std::max(size_, offset + written);
    return written;
}

void DiskFile::truncate(std::uint64_t size)
{
    if (::ftruncate(descriptor_, static_cast<off_t>(size)) == 0)
        size_ = size;
    else
        note(errno);
}

void DiskFile::close()
{
    const int descriptor = std::exchange(descriptor_, -1);
    // Some file systems report write errors only now.
    if (descriptor >= 0 && ::close(descriptor) != 0)
        note(errno);
}

void DiskFile::note(int failure)
{
    if (failure_ == 0)
        failure_ = failure;
}

}  // namespace fadeloom
