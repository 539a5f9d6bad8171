// SPDX-License-Identifier: MIT
#include "ctl/Client.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace fadeloom::ctl {

Client::~Client()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

bool Client::connect(const std::filesystem::path& socket)
{
    const auto& name = socket.native();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= sizeof address.sun_path)
        return false;
    std::ranges::copy(name, address.sun_path);
    if (descriptor_ >= 0)
        close(descriptor_);
    descriptor_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval limit{.tv_sec = patience.count(), .tv_usec = 0};
    for (const int option : {SO_RCVTIMEO, SO_SNDTIMEO})
        setsockopt(descriptor_, SOL_SOCKET, option, &limit, sizeof limit);
    return ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

std::optional<std::string> Client::run(const std::string& line)
{
    if (!send("Run " + line + "\n"))
        return std::nullopt;
    while (true) {
        const auto end = received_.find('\n');
        if (end != std::string::npos) {
            auto answer = received_.substr(0, end);
            received_.erase(0, end + 1);
            return answer;
        }
        std::array<char, 4096> part{};
        const auto count = recv(descriptor_, part.data(), part.size(), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return std::nullopt;
        received_.append(part.data(), static_cast<std::size_t>(count));
    }
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
