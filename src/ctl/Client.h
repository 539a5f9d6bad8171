// SPDX-License-Identifier: MIT
// A client of a running Fadeloom, through the socket in the user's runtime directory.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom::ctl {

/// One connection for many commands. Blocks for at most `timeout` per step, except in `follow`.
class Client {
public:
    static constexpr std::chrono::seconds timeout{2};

    /// `socket`: where the program listens. `wait`: how long to wait for one that is not running, or is starting or
    /// exiting.
    Client(std::filesystem::path socket, std::chrono::seconds wait)
        : socket_(std::move(socket))
        , wait_(wait)
    {
    }
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Whether an instance is listening, immediately or within the wait, which ends early once nobody reads our
    /// standard output any more.
    [[nodiscard]] bool connect();
    /// The one-line reply, without the line feed; nullopt if there is none in time. `request`: in the socket's
    /// protocol, such as "Run" and a command.
    [[nodiscard]] std::optional<std::string> ask(const std::string& request);
    /// Passes each received line to `take`, until the peer closes the connection, or nobody reads our standard output
    /// any more; returns true in the former case.
    bool follow(const std::function<void(const std::string& line)>& take);

private:
    [[nodiscard]] bool tryToConnect();
    [[nodiscard]] std::optional<std::string> askOnce(const std::string& request);
    [[nodiscard]] bool send(std::string text) const;
    [[nodiscard]] std::optional<std::string> takeLine();
    /// Receives more data; false at end of file.
    [[nodiscard]] bool receive();

    const std::filesystem::path socket_;
    const std::chrono::seconds wait_;
    int descriptor_ = -1;
    bool isEnded_ = false;
    bool isClosed_ = false;  // By the peer.
    std::string received_;
};

}  // namespace fadeloom::ctl
