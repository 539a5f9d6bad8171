// SPDX-License-Identifier: MIT
#include "ctl/CompositorSocket.h"

#include <nlohmann/json.hpp>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace fadeloom::ctl {
namespace {

using Json = nlohmann::json;

constexpr std::size_t longestAnswer = 16 * 1024 * 1024;

/// A connection that times out after two seconds of silence.
class Connection {
public:
    explicit Connection(const std::string& socket)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (socket.size() >= sizeof address.sun_path)
            return;
        std::ranges::copy(socket, address.sun_path);
        const timeval timeout{.tv_sec = 2, .tv_usec = 0};
        for (const int option : {SO_RCVTIMEO, SO_SNDTIMEO})
            setsockopt(descriptor_, SOL_SOCKET, option, &timeout, sizeof timeout);
        isConnected_ = connect(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(descriptor_); }

    bool send(std::string_view bytes)
    {
        const auto count = ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        return isConnected_ && count == static_cast<ssize_t>(bytes.size());
    }
    /// The data received once `isEnough` returns true; nullopt at end of file.
    template <typename IsEnough>
    std::optional<std::string> receive(IsEnough isEnough)
    {
        std::string text;
        std::array<char, 65536> part{};
        while (!isEnough(text)) {
            const auto count = recv(descriptor_, part.data(), part.size(), 0);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0 || text.size() > longestAnswer)
                return std::nullopt;
            text.append(part.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    const int descriptor_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool isConnected_ = false;
};

pid_t processIn(const Json& window)
{
    const auto pid = window.is_object() ? window.value("pid", Json()) : Json();
    return pid.is_number_integer() ? pid.get<pid_t>() : 0;
}

/// The focused window in a subtree of sway's tree.
pid_t focusedIn(const Json& node, int depth = 0)
{
    constexpr int deepest = 200;
    if (!node.is_object() || depth > deepest)
        return 0;
    if (const auto focused = node.find("focused"); focused != node.end() && *focused == true)
        return processIn(node);
    for (const auto* const children : {"nodes", "floating_nodes"}) {
        const auto list = node.find(children);
        if (list == node.end() || !list->is_array())
            continue;
        for (const auto& child : *list) {
            if (const auto found = focusedIn(child, depth + 1); found > 0)
                return found;
        }
    }
    return 0;
}

}  // namespace

std::optional<Focus> focusOfSway(const std::string& socket)
{
    constexpr std::string_view magic = "i3-ipc";
    constexpr std::size_t headSize = 14;  // Magic, payload length, type.
    constexpr std::uint32_t getTree = 4;
    std::string question(magic);
    question.append(4, '\0').append(reinterpret_cast<const char*>(&getTree), sizeof getTree);
    Connection connection(socket);
    if (!connection.send(question))
        return std::nullopt;
    const auto answer = connection.receive([&](const std::string& text) {
        if (text.size() < headSize)
            return false;
        std::uint32_t length = 0;
        std::memcpy(&length, text.data() + magic.size(), sizeof length);
        return text.size() - headSize >= length;
    });
    if (!answer || !answer->starts_with(magic))
        return std::nullopt;
    const auto tree = Json::parse(answer->begin() + headSize, answer->end(), nullptr, false);
    return tree.is_discarded() ? std::nullopt : std::optional(focusedIn(tree));
}

std::optional<Focus> focusOfNiri(const std::string& socket)
{
    Connection connection(socket);
    if (!connection.send("\"FocusedWindow\"\n"))
        return std::nullopt;
    const auto answer = connection.receive([](const std::string& text) { return text.ends_with('\n'); });
    const auto reply = answer ? Json::parse(*answer, nullptr, false) : Json();
    if (!reply.is_object() || !reply.contains("Ok") || !reply["Ok"].is_object())
        return std::nullopt;
    return processIn(reply["Ok"].value("FocusedWindow", Json()));
}

}  // namespace fadeloom::ctl
