// SPDX-License-Identifier: MIT
#include "platform/qt/QuitSignals.h"

#include <QSocketNotifier>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cassert>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace fadeloom {

namespace {

constexpr std::array quitSignals{SIGINT, SIGTERM, SIGHUP, QuitSignals::requestSignal};

// A signal handler can access only globals.
std::atomic<int> wakeDescriptor = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void wakeMainLoop(int)
{
    const int savedError = errno;
    const char byte = 0;
    if (write(wakeDescriptor.load(std::memory_order_relaxed), &byte, 1) < 0) {
        // If the pipe is full, the loop has been woken already.
    }
    errno = savedError;
}

}  // namespace

struct QuitSignals::State {
    struct Pipe {
        std::array<int, 2> ends{-1, -1};

        Pipe()
        {
            if (::pipe(ends.data()) != 0)
                std::abort();  // No descriptors at startup: nothing else would work.
            for (const int end : ends) {
                fcntl(end, F_SETFD, FD_CLOEXEC);
                fcntl(end, F_SETFL, O_NONBLOCK);
            }
        }
        ~Pipe()
        {
            close(ends[0]);
            close(ends[1]);
        }
    };

    Pipe pipe;
    std::function<void()> asked;
    QSocketNotifier notifier{pipe.ends[0], QSocketNotifier::Read};
    std::array<struct sigaction, quitSignals.size()> former{};
};

QuitSignals::QuitSignals(std::function<void()> asked)
    : state_(std::make_unique<State>())
{
    assert(wakeDescriptor == -1);
    state_->asked = std::move(asked);
    QObject::connect(
        &state_->notifier, &QSocketNotifier::activated, &state_->notifier, [state = state_.get()] {
            state->notifier.setEnabled(false);
            const auto ask = state->asked;  // It may destroy this object.
            ask();
        });
    wakeDescriptor = state_->pipe.ends[1];
    struct sigaction action = {};
    action.sa_handler = wakeMainLoop;
    // Reset: the second signal has its default action.
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < quitSignals.size(); ++i) {
        const bool isRepeatable = quitSignals[i] == requestSignal;
        action.sa_flags = static_cast<int>(isRepeatable ? SA_RESTART : SA_RESTART | SA_RESETHAND);
        sigaction(quitSignals[i], &action, &state_->former[i]);
    }
}

QuitSignals::~QuitSignals()
{
    for (std::size_t i = 0; i < quitSignals.size(); ++i)
        sigaction(quitSignals[i], &state_->former[i], nullptr);
    wakeDescriptor = -1;
}

}  // namespace fadeloom
