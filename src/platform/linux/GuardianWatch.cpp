// SPDX-License-Identifier: MIT
#include "platform/linux/GuardianWatch.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

// Ending a whole group or unit sends the same signal to each of its processes: one that arrives this soon after the
// first is a duplicate.
constexpr auto oneWish = 1s;
// Between a signal that only removes a handler and one that ends the program.
constexpr auto handlerGone = 50ms;
constexpr unsigned releaseSeconds = 2;

void restoreDefault(int signal) noexcept
{
    std::signal(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    sigprocmask(SIG_UNBLOCK, &only, nullptr);
}

}  // namespace

GuardianWatch::GuardianWatch(
    pid_t program, int quitSignal, Release itsRelease, const std::atomic<std::uint64_t>& held) noexcept
    : program_(program)
    , quitSignal_(quitSignal)
    , release_(itsRelease)
    , held_(held)
{
}

sigset_t GuardianWatch::signals() noexcept
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGTSTP, SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGUSR1, SIGUSR2})
        sigaddset(&signals, signal);
    return signals;
}

void GuardianWatch::run() noexcept
{
    const auto awaited = signals();
    while (true) {
        siginfo_t info{};
        const int signal = sigwaitinfo(&awaited, &info);
        switch (signal) {
        case SIGCHLD:
            programChanged();
            break;
        case SIGTSTP:
            isStopWanted_ = true;
            // The terminal has already sent it to the program; a second one is harmless.
            kill(program_, SIGTSTP);
            if (isProgramStopped_)
                stopWithProgram();
            break;
        case SIGTERM:
        case SIGINT:
        case SIGHUP:
            askToQuit(signal);
            break;
        case SIGQUIT:
        case SIGUSR1:
        case SIGUSR2:
            if (info.si_code != SI_KERNEL)  // Those of the terminal reach the program directly.
                kill(program_, signal);
            break;
        default:
            break;
        }
    }
}

void GuardianWatch::programChanged() noexcept
{
    int status = 0;
    while (waitpid(program_, &status, WNOHANG | WUNTRACED | WCONTINUED) == program_) {
        if (WIFEXITED(status) || WIFSIGNALED(status))
            endAs(status);
        isProgramStopped_ = WIFSTOPPED(status);
        if (!isProgramStopped_)
            continue;
        release();
        if (isStopWanted_)
            stopWithProgram();
    }
}

void GuardianWatch::release() noexcept
{
    const auto held = held_.load(std::memory_order_relaxed);
    if (held == 0)
        return;
    const pid_t helper = fork();
    if (helper == 0) {
        for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGALRM})
            restoreDefault(signal);
        alarm(releaseSeconds);
        release_(held, program_);
        _exit(0);
    }
    // Before stopping ourselves, so that it is not stopped with us.
    while (helper > 0 && waitpid(helper, nullptr, 0) < 0 && errno == EINTR) { }
}

void GuardianWatch::stopWithProgram() noexcept
{
    isStopWanted_ = false;
    isProgramStopped_ = false;
    kill(getpid(), SIGSTOP);
    // Possibly only we were continued.
    kill(program_, SIGCONT);
}

void GuardianWatch::askToQuit(int signal) noexcept
{
    const auto now = std::chrono::steady_clock::now();
    if (!askedAt_) {
        askedAt_ = now;
        askedSignal_ = signal;
    }
    if (now - *askedAt_ < oneWish) {
        kill(program_, quitSignal_);
        return;
    }
    // The second request ends the program immediately.
    kill(program_, signal);
    std::this_thread::sleep_for(handlerGone);
    kill(program_, signal);
}

void GuardianWatch::endAs(int status) noexcept
{
    if (WIFEXITED(status))
        _exit(WEXITSTATUS(status));
    int signal = WTERMSIG(status);
    if (signal == quitSignal_ && askedSignal_ != 0)
        signal = askedSignal_;  // It ended before it could handle the forwarded one.
    const rlimit noSecondCore{0, 0};
    setrlimit(RLIMIT_CORE, &noSecondCore);
    restoreDefault(signal);
    kill(getpid(), signal);
    constexpr int endedBySignal = 128;
    _exit(endedBySignal + signal);
}

}  // namespace fadeloom
