// SPDX-License-Identifier: MIT
// Where instances of the program meet without a session bus, and where other programs give it commands: a socket in the
// user's runtime folder.
#pragma once

#include "platform/linux/InstanceRequest.h"

#include <QLocalServer>
#include <QString>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string_view>

class QLocalSocket;

namespace fadeloom {

/// A request and its answer are a line each: a name of InstanceRequest.h and one in answer, or "Run" or "Json" with the
/// words of a command, after which the connection stays for more; the form of the answer is what they differ in. After
/// "Watch" with its words the connection is sent lines until one side ends it, or the reader falls behind. Only the user
/// can reach the socket. Needs Qt's application object; questions are answered by its running event loop. Thread: the
/// one that makes it.
class InstanceSocket {
public:
    static constexpr qint64 longestLine = 256 * 1024;  // Bytes: all settings of a long life in one line.
    static constexpr qint64 mostUnread = 256 * 1024;  // What a caller may leave unread.
    static constexpr int mostConnections = 64;
    static constexpr std::size_t mostWatchers = 64;
    /// How long a connection may say nothing.
    static constexpr std::chrono::seconds longestSilence{10};

    InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer, RunInstanceCommand run,
        WatchInstance watch);
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    /// Answers from now on. Only the one instance may call this: it takes the place of a socket that was left behind.
    void listen();
    /// Sends what is left to those that watch, and closes their connections.
    void endWatches();
    /// Asks whoever listens. Absent when nobody answers in time; waits for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds patience) const;

private:
    void accept();
    void read(QLocalSocket& connection);
    static void refuse(QLocalSocket& connection, std::string_view answer);
    void watch(QLocalSocket& connection, const InstanceCommand& command);

    const QString file_;
    const AnswerInstanceRequest answer_;
    const RunInstanceCommand run_;
    const WatchInstance watch_;
    int connections_ = 0;  // But for those that watch.
    std::map<QLocalSocket*, std::shared_ptr<void>> watches_;
    QLocalServer server_;
};

}  // namespace fadeloom
