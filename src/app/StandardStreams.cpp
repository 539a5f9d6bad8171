// SPDX-License-Identifier: MIT
#include "app/StandardStreams.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>

namespace fadeloom {

namespace {

// Every library writes to standard error, on every thread. Reopening the file gives us our own file description, so
// making it non-blocking affects nobody who shares the old one. A regular file is left alone, because it has a write
// position, and so is one that cannot be reopened.
void makeStandardErrorNonBlocking()
{
    struct stat status{};
    if (fstat(STDERR_FILENO, &status) != 0 || (!S_ISFIFO(status.st_mode) && isatty(STDERR_FILENO) == 0))
        return;
    const int opened = open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (opened == -1)
        return;
    dup2(opened, STDERR_FILENO);
    close(opened);
}

}  // namespace

void secureStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // Open returns the lowest free number: exactly the missing one.
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF && open("/dev/null", O_RDWR) == -1)
            return;
    }
    makeStandardErrorNonBlocking();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN);
    std::signal(SIGTTOU, SIG_IGN);
}

}  // namespace fadeloom
