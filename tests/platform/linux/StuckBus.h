// SPDX-License-Identifier: MIT
// A message bus that accepts connections and never replies.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>

namespace fadeloom {

class StuckBus {
public:
    /// Its socket is "bus" in `folder`.
    explicit StuckBus(const std::filesystem::path& folder)
    {
        const auto path = folder / "bus";
        std::filesystem::remove(path);
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        path.native().copy(static_cast<char*>(name.sun_path), sizeof(name.sun_path) - 1);
        EXPECT_EQ(bind(number_, reinterpret_cast<const sockaddr*>(&name), sizeof(name)), 0);
        EXPECT_EQ(listen(number_, 8), 0);
    }
    StuckBus(const StuckBus&) = delete;
    StuckBus& operator=(const StuckBus&) = delete;
    ~StuckBus() { close(number_); }

    [[nodiscard]] bool isConnectedTo() const
    {
        pollfd waiting{number_, POLLIN, 0};
        return poll(&waiting, 1, 0) > 0;
    }

private:
    const int number_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

}  // namespace fadeloom
