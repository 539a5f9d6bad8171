// SPDX-License-Identifier: MIT
#include "platform/linux/Guardian.h"

#include "platform/linux/GuardianWatch.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <new>
#include <string>

namespace fadeloom {
namespace {

/// A debugger that started the program expects a single process.
bool isTraced()
{
    std::ifstream status("/proc/self/status");
    const std::string key = "TracerPid:";
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key))
            return line.find_first_of("123456789", key.size()) != std::string::npos;
    }
    return false;
}

/// Files belong to the child: otherwise the parent would keep the other ends of pipes waiting.
void letGoOfFiles()
{
    const int nothing = open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nothing, stream);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    [[maybe_unused]] const int moved = chdir("/");
}

}  // namespace

Guardian::Guardian(Release release, int quitSignal)
{
    if (isTraced())
        return;
    void* const memory =
        mmap(nullptr, sizeof(Held), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return;
    auto* const held = new (memory) Held(0);

    const auto awaited = GuardianWatch::signals();
    sigset_t former;
    sigprocmask(SIG_BLOCK, &awaited, &former);
    std::signal(SIGCHLD, SIG_DFL);  // Ignored, it would not report stops.
    const pid_t parent = getpid();
    const pid_t program = fork();
    if (program > 0) {
        prctl(PR_SET_NAME, "fadeloom-guard");
        letGoOfFiles();
        GuardianWatch(program, quitSignal, release, *held).run();
    }
    if (program == 0) {
        // Killing the parent's pid is meant for the program too.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)
            _exit(0);
        held_ = held;
    } else {
        munmap(memory, sizeof(Held));
    }
    sigprocmask(SIG_SETMASK, &former, nullptr);
}

Guardian::~Guardian()
{
    hold(0);
}

void Guardian::hold(std::uint64_t what) noexcept
{
    if (held_)
        held_->store(what, std::memory_order_relaxed);
}

}  // namespace fadeloom
