// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace fadeloom {
namespace {

bool isRegularFile(int descriptor)
{
    struct stat status{};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

InstanceLock::InstanceLock(std::filesystem::path file)
    : file_(std::move(file))
{
}

InstanceLock::~InstanceLock()
{
    release();
}

InstanceLock::Outcome InstanceLock::tryToLock()
{
    constexpr int attempts = 10;  // The file may be removed by its last owner between opening and locking it.
    for (int attempt = 0; attempt < attempts; ++attempt) {
        auto descriptor = std::make_unique<FileDescriptor>(
            ::open(file_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
        if (!descriptor->isOpen() || !isRegularFile(descriptor->get()))
            return Outcome::unusable;
        if (::flock(descriptor->get(), LOCK_EX | LOCK_NB) != 0)
            return errno == EWOULDBLOCK ? Outcome::heldByAnother : Outcome::unusable;
        if (isStillNamed(descriptor->get())) {
            descriptor_ = std::move(descriptor);
            return Outcome::taken;
        }
    }
    return Outcome::heldByAnother;
}

void InstanceLock::release()
{
    if (!descriptor_)
        return;
    ::unlink(file_.c_str());
    descriptor_.reset();
}

bool InstanceLock::isStillNamed(int descriptor) const
{
    struct stat ours{};
    struct stat named{};
    return ::fstat(descriptor, &ours) == 0 && ::lstat(file_.c_str(), &named) == 0
        && ours.st_dev == named.st_dev && ours.st_ino == named.st_ino;
}

}  // namespace fadeloom
