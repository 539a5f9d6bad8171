// SPDX-License-Identifier: MIT
// Asks a running Fadeloom through the socket in the user's runtime folder.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom::ctl {

/// One connection for many commands. Blocks, but for `follow` for `patience` at most at each step.
class Client {
public:
    static constexpr std::chrono::seconds patience{2};

    /// `socket`: where the program listens. `wait`: how long one is waited for that does not run yet, or starts, or ends.
    Client(std::filesystem::path socket, std::chrono::seconds wait)
        : socket_(std::move(socket))
        , wait_(wait)
    {
    }
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Whether somebody listens there, at once or within the wait.
    [[nodiscard]] bool connect();
    /// The answer in one line, without its end; absent when there is none in time. `request`: what the socket takes,
    /// "Run" and a command for instance.
    [[nodiscard]] std::optional<std::string> ask(const std::string& request);
    /// Has each line that comes handed to `take`, until the other side ends the connection, or nobody reads our
    /// standard output any more; says whether it was the former.
    bool follow(const std::function<void(const std::string& line)>& take);

private:
    [[nodiscard]] bool tryToConnect();
    [[nodiscard]] std::optional<std::string> askOnce(const std::string& request);
    [[nodiscard]] bool send(std::string text) const;
    [[nodiscard]] std::optional<std::string> takeLine();
    /// Whether more has come; false at the end.
    [[nodiscard]] bool receive();

    const std::filesystem::path socket_;
    const std::chrono::seconds wait_;
    int descriptor_ = -1;
    bool isEnded_ = false;
    bool isClosed_ = false;  // By the other side.
    std::string received_;
};

}  // namespace fadeloom::ctl
