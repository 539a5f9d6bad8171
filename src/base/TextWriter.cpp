// SPDX-License-Identifier: MIT
#include "base/TextWriter.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace fadeloom {

struct TextWriter::State {
    State(Sink itsSink, Notice itsNotice)
        : sink(std::move(itsSink))
        , notice(std::move(itsNotice))
    {
    }

    void work();
    void add(std::string text)
    {
        size += text.size();
        waiting.push_back(std::move(text));
    }
    void reportDropped()
    {
        if (dropped > 0)
            add(notice(std::exchange(dropped, 0)));
    }

    const Sink sink;
    const Notice notice;
    std::mutex mutex;  // Guards the rest; not held while the sink runs.
    std::condition_variable changed;
    std::deque<std::string> waiting;
    std::size_t size = 0;
    std::uint64_t dropped = 0;
    std::uint64_t taken = 0;  // Texts that the sink has completed.
    bool isWorking = false;
    bool isClosing = false;
};

void TextWriter::State::work()
{
    std::unique_lock lock(mutex);
    while (true) {
        if (waiting.empty())
            reportDropped();
        if (!waiting.empty()) {
            const auto text = std::move(waiting.front());
            waiting.pop_front();
            size -= text.size();
            lock.unlock();
            sink(text);
            lock.lock();
            ++taken;
            changed.notify_all();
        } else if (isClosing) {
            break;
        } else {
            changed.wait(lock);
        }
    }
    isWorking = false;
    changed.notify_all();
}

TextWriter::TextWriter(Sink sink, Notice notice)
    : state_(std::make_shared<State>(std::move(sink), std::move(notice)))
{
    state_->isWorking = true;
    try {
        std::thread([state = state_] { state->work(); }).detach();
    } catch (const std::system_error&) {
        state_->isWorking = false;  // The rest is dropped.
    }
}

TextWriter::~TextWriter()
{
    close();
}

void TextWriter::write(std::string text)
{
    const std::scoped_lock lock(state_->mutex);
    if (!state_->isWorking || state_->size + text.size() > room) {
        ++state_->dropped;
        return;
    }
    state_->reportDropped();
    state_->add(std::move(text));
    state_->changed.notify_all();
}

bool TextWriter::close()
{
    std::unique_lock lock(state_->mutex);
    state_->isClosing = true;
    state_->changed.notify_all();
    while (state_->isWorking) {
        const auto before = state_->taken;
        const auto hasMoved = [&] { return !state_->isWorking || state_->taken != before; };
        if (!state_->changed.wait_for(lock, timeout, hasMoved))
            return false;
    }
    return true;
}

TextWriter::Sink writeToDescriptor(int descriptor)
{
    return [descriptor](std::string_view text) {
        while (!text.empty()) {
            const auto count = ::write(descriptor, text.data(), text.size());
            if (count >= 0) {
                text.remove_prefix(static_cast<std::size_t>(count));
            } else if (errno == EAGAIN) {  // Another process that shares the file has made it non-blocking.
                pollfd file{.fd = descriptor, .events = POLLOUT, .revents = 0};
                ::poll(&file, 1, -1);
            } else if (errno != EINTR) {
                return;
            }
        }
    };
}

}  // namespace fadeloom
