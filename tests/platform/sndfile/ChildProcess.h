// SPDX-License-Identifier: MIT
// Runs part of a test in a child process: one that may be killed, or that has its own limits.
#pragma once

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace fadeloom {

/// How a child process ended: its exit status, or minus the signal that killed it.
using ChildEnd = int;

constexpr ChildEnd childFailed = 255;

/// Runs `act` in a child process, which exits with the status that it returns, or `childFailed` after a failed
/// expectation.
inline ChildEnd endOfChild(const std::function<int()>& act)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int status = act();
        std::fflush(nullptr);
        ::_exit(::testing::Test::HasFailure() ? childFailed : status);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR)
        continue;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

/// Limits the size of this process's files to `bytes`.
inline void limitFileSizes(rlim_t bytes)
{
    const rlimit limit{bytes, bytes};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

/// Mounts a disk of `bytes` on `folder`, visible only to this single-threaded process. Works for root and, if the
/// system allows user namespaces, for everyone. Returns 0, or why it is impossible.
inline int mountSmallDisk(const std::filesystem::path& folder, std::size_t bytes)
{
    const auto user = std::to_string(::geteuid());
    const auto group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return errno;
        std::ofstream{"/proc/self/setgroups"} << "deny";
        std::ofstream{"/proc/self/uid_map"} << "0 " + user + " 1";
        std::ofstream{"/proc/self/gid_map"} << "0 " + group + " 1";
    }
    const std::string size = "size=" + std::to_string(bytes);
    const bool isMounted = ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && ::mount("tmpfs", folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, size.c_str()) == 0;
    return isMounted ? 0 : errno;
}

}  // namespace fadeloom
