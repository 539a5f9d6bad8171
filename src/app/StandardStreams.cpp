// SPDX-License-Identifier: MIT
#include "app/StandardStreams.h"

#include <cerrno>
#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fadeloom {

namespace {

// Standard error is written to by every library and on every thread, with no thread of its own to wait. A file opened
// anew is ours alone: whoever shares the old one sees no difference. A file on a disk is left as it is, for it has a
// place to write at, and so is what cannot be opened twice.
void dropErrorsThatNobodyReads()
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
        // The lowest free number is given to what is opened: exactly the one that is missing.
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF && open("/dev/null", O_RDWR) == -1)
            return;
    }
    dropErrorsThatNobodyReads();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN);
    std::signal(SIGTTOU, SIG_IGN);
}

}  // namespace fadeloom
