// SPDX-License-Identifier: MIT
// A socket in the user's runtime directory, through which instances communicate without a session bus, and other
// programs send commands.
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

/// A request and its reply are one line each: a name of InstanceRequest.h and one in reply, or "Run" or "Json", which
/// select the format of the reply, with the words of a command, after which the connection stays open. After "Watch"
/// with its words the connection receives lines until either side closes it, or the reader falls behind. Only the user
/// can reach the socket. Needs Qt's application object; requests are handled by its running event loop. Thread: the one
/// that creates it.
class InstanceSocket {
public:
    static constexpr qint64 longestLine = 256 * 1024;  // Bytes: enough for the largest settings on one line.
    static constexpr qint64 mostUnread = 256 * 1024;  // What a caller may leave unread.
    static constexpr int mostConnections = 64;
    static constexpr std::size_t mostWatchers = 64;
    /// How long a connection may be idle.
    static constexpr std::chrono::seconds longestSilence{10};

    InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer, RunInstanceCommand run,
        WatchInstance watch);
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    /// Starts listening. Only for the first instance: it replaces a stale socket.
    void listen();
    /// Flushes and closes the connections of watchers.
    void endWatches();
    /// Sends a request to the listening instance. nullopt without a reply in time; blocks for that.
    [[nodiscard]] std::optional<InstanceAnswer> ask(
        InstanceRequest request, std::chrono::milliseconds timeout) const;

private:
    void accept();
    void read(QLocalSocket& connection);
    static void refuse(QLocalSocket& connection, std::string_view answer);
    void watch(QLocalSocket& connection, const InstanceCommand& command);

    const QString file_;
    const AnswerInstanceRequest answer_;
    const RunInstanceCommand run_;
    const WatchInstance watch_;
    int connections_ = 0;  // Without watchers.
    std::map<QLocalSocket*, std::shared_ptr<void>> watches_;
    QLocalServer server_;
};

}  // namespace fadeloom
