// SPDX-License-Identifier: MIT
#include "ctl/Client.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <thread>

namespace fadeloom::ctl {

namespace {

constexpr std::chrono::milliseconds pause{50};

/// Whether standard output is a pipe that nobody reads any more: a bar that exits leaves its commands behind.
bool isOutputUnread()
{
    pollfd output{.fd = STDOUT_FILENO, .events = 0, .revents = 0};
    return poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

}  // namespace

Client::~Client()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

bool Client::connect()
{
    const auto end = std::chrono::steady_clock::now() + wait_;
    while (!tryToConnect()) {
        if (std::chrono::steady_clock::now() >= end || isOutputUnread())
            return false;
        std::this_thread::sleep_for(pause);
    }
    return true;
}

bool Client::tryToConnect()
{
    const auto& name = socket_.native();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= sizeof address.sun_path)
        return false;
    std::ranges::copy(name, address.sun_path);
    if (descriptor_ >= 0)
        close(descriptor_);
    isEnded_ = false;
    isClosed_ = false;
    received_.clear();
    descriptor_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval limit{.tv_sec = timeout.count(), .tv_usec = 0};
    for (const int option : {SO_RCVTIMEO, SO_SNDTIMEO})
        setsockopt(descriptor_, SOL_SOCKET, option, &limit, sizeof limit);
    return ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

std::optional<std::string> Client::ask(const std::string& request)
{
    const auto end = std::chrono::steady_clock::now() + std::max(wait_, timeout);
    auto answer = askOnce(request);
    // An instance that is exiting closes the connection without a reply.
    const auto shouldRetry = [&] {
        return answer ? answer->starts_with("busy ") : isClosed_ && wait_.count() > 0;
    };
    while (shouldRetry() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(pause);
        if (!connect())
            break;
        answer = askOnce(request);
    }
    return answer;
}

std::optional<std::string> Client::askOnce(const std::string& request)
{
    // An instance may reject a line before reading all of it; its reply counts.
    static_cast<void>(send(request + "\n"));
    while (true) {
        if (auto answer = takeLine())
            return answer;
        if (!receive())
            return std::nullopt;
    }
}

bool Client::follow(const std::function<void(const std::string&)>& take)
{
    while (true) {
        while (const auto line = takeLine())
            take(*line);
        if (isEnded_)
            return true;
        std::array<pollfd, 2> ends{{{descriptor_, POLLIN, 0}, {STDOUT_FILENO, 0, 0}}};
        if (poll(ends.data(), ends.size(), -1) < 0 && errno != EINTR)
            return false;
        if ((ends[1].revents & POLLERR) != 0)
            return false;
        if (ends[0].revents != 0)
            static_cast<void>(receive());
    }
}

std::optional<std::string> Client::takeLine()
{
    const auto end = received_.find('\n');
    if (end == std::string::npos)
        return std::nullopt;
    auto line = received_.substr(0, end);
    received_.erase(0, end + 1);
    return line;
}

bool Client::receive()
{
    std::array<char, 4096> part{};
    ssize_t count = 0;
    do
        count = recv(descriptor_, part.data(), part.size(), 0);
    while (count < 0 && errno == EINTR);
    if (count <= 0) {
        isEnded_ = true;
        isClosed_ = count == 0 || errno == ECONNRESET;
        return false;
    }
    received_.append(part.data(), static_cast<std::size_t>(count));
    return true;
}

bool Client::send(std::string text) const
{
    while (!text.empty()) {
        const auto count = ::send(descriptor_, text.data(), text.size(), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        text.erase(0, static_cast<std::size_t>(count));
    }
    return true;
}

}  // namespace fadeloom::ctl
