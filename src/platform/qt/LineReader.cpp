// SPDX-License-Identifier: MIT
#include "platform/qt/LineReader.h"

#include <QSocketNotifier>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace fadeloom {

struct LineReader::State : std::enable_shared_from_this<State> {
    State(int itsDescriptor, std::function<void(const LineSplitter::Line&)> itsReceived,
        std::function<void()> itsEnded)
        : descriptor(itsDescriptor)
        , received(std::move(itsReceived))
        , ended(std::move(itsEnded))
        , notifier(itsDescriptor, QSocketNotifier::Read)
    {
    }

    void readOnce()
    {
        const auto self = shared_from_this();
        std::array<char, 4096> bytes;
        const ssize_t count = ::read(descriptor, bytes.data(), bytes.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            return;
        if (count > 0) {
            deliver(splitter.feed({bytes.data(), static_cast<std::size_t>(count)}));
            return;
        }
        notifier.setEnabled(false);
        deliver(splitter.finish());
        if (isAlive)
            ended();
    }

    void deliver(const std::vector<LineSplitter::Line>& lines) const
    {
        for (const LineSplitter::Line& line : lines)
            if (isAlive)
                received(line);
    }

    const int descriptor;
    const std::function<void(const LineSplitter::Line&)> received;
    const std::function<void()> ended;
    LineSplitter splitter{longestLine};
    bool isAlive = true;
    QSocketNotifier notifier;
};

LineReader::LineReader(
    int descriptor, std::function<void(const LineSplitter::Line&)> received, std::function<void()> ended)
    : state_(std::make_shared<State>(descriptor, std::move(received), std::move(ended)))
{
    QObject::connect(
        &state_->notifier, &QSocketNotifier::activated, &state_->notifier, [weakly = std::weak_ptr{state_}] {
            if (const auto state = weakly.lock())
                state->readOnce();
        });
}

LineReader::~LineReader()
{
    state_->isAlive = false;
    state_->notifier.setEnabled(false);
}

}  // namespace fadeloom
