// SPDX-License-Identifier: MIT
// Where instances of the program meet without a session bus, and where other programs give it commands: a socket in the
// user's runtime folder.
#pragma once

#include "platform/linux/InstanceRequest.h"

#include <QLocalServer>
#include <QString>

#include <chrono>
#include <filesystem>
#include <optional>

class QLocalSocket;

namespace fadeloom {

/// A request and its answer are a line each: a name of InstanceRequest.h and one in answer, or "Run" with the words of a
/// command, after which the connection stays for more. Only the user can reach the socket. Needs Qt's application object;
/// questions are answered by its running event loop. Thread: the one that makes it.
class InstanceSocket {
public:
    static constexpr qint64 longestLine = 4096;  // Bytes.
    static constexpr int mostConnections = 64;
    /// How long a connection may say nothing.
    static constexpr std::chrono::seconds longestSilence{10};

    InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer, RunInstanceCommand run);
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    /// Answers from now on. Only the one instance may call this: it takes the place of a socket that was left behind.
    void listen();
    /// Asks whoever listens. Absent when nobody answers in time; waits for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds patience) const;

private:
    void accept();
    void read(QLocalSocket& connection);

    const QString file_;
    const AnswerInstanceRequest answer_;
    const RunInstanceCommand run_;
    int connections_ = 0;
    QLocalServer server_;
};

}  // namespace fadeloom
