// SPDX-License-Identifier: MIT
// Asks a running Fadeloom through the socket in the user's runtime folder.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace fadeloom::ctl {

/// One connection for many commands. Blocks, for `patience` at most at each step.
class Client {
public:
    static constexpr std::chrono::seconds patience{2};

    Client() = default;
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Whether somebody listens there.
    [[nodiscard]] bool connect(const std::filesystem::path& socket);
    /// The answer in one line, without its end; absent when there is none in time.
    [[nodiscard]] std::optional<std::string> run(const std::string& line);

private:
    [[nodiscard]] bool send(std::string text) const;

    int descriptor_ = -1;
    std::string received_;
};

}  // namespace fadeloom::ctl
