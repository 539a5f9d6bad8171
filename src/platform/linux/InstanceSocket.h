// SPDX-License-Identifier: MIT
// Where instances of the program meet without a session bus: a socket in the user's runtime folder.
#pragma once

#include "platform/linux/InstanceRequest.h"

#include <QLocalServer>
#include <QString>

#include <chrono>
#include <filesystem>
#include <optional>

namespace fadeloom {

/// A request and its answer are a line each, the names of InstanceRequest.h. Only the user can reach the socket. Needs
/// Qt's application object; questions are answered by its running event loop. Thread: the one that makes it.
class InstanceSocket {
public:
    InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer);
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    /// Answers from now on. Only the one instance may call this: it takes the place of a socket that was left behind.
    void listen();
    /// Asks whoever listens. Absent when nobody answers in time; waits for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds patience) const;

private:
    void accept();

    const QString file_;
    const AnswerInstanceRequest answer_;
    QLocalServer server_;
};

}  // namespace fadeloom
