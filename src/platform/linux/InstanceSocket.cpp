// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceSocket.h"

#include "platform/linux/CallerSandbox.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <sys/socket.h>

#include <string>
#include <utility>

namespace fadeloom {

namespace {

constexpr const char* sandboxProperty = "isSandboxed";
constexpr std::string_view runPrefix = "Run ";
constexpr std::string_view jsonPrefix = "Json ";
constexpr std::string_view watchPrefix = "Watch ";

QByteArray lineOf(std::string_view name)
{
    return QByteArray(name.data(), static_cast<qsizetype>(name.size())) + '\n';
}

int left(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

/// The peer's process; 0 if the system does not report it.
pid_t processOf(const QLocalSocket& connection)
{
    ucred credentials{};
    socklen_t size = sizeof credentials;
    const auto descriptor = static_cast<int>(connection.socketDescriptor());
    return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 ? credentials.pid : 0;
}

}  // namespace

InstanceSocket::InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer,
    RunInstanceCommand run, WatchInstance watch)
    : file_(QFile::decodeName(file.c_str()))
    , answer_(std::move(answer))
    , run_(std::move(run))
    , watch_(std::move(watch))
{
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

void InstanceSocket::listen()
{
    QLocalServer::removeServer(file_);
    server_.listen(file_);
}

void InstanceSocket::endWatches()
{
    for (const auto& [connection, watch] : watches_) {
        connection->flush();
        connection->disconnectFromServer();
    }
}

void InstanceSocket::accept()
{
    auto* const connection = server_.nextPendingConnection();
    QObject::connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
    if (connections_ == mostConnections) {
        connection->abort();
        return;
    }
    ++connections_;
    connection->setReadBufferSize(2 * longestLine);
    connection->setProperty(sandboxProperty, isSandboxed(processOf(*connection)));
    QObject::connect(connection, &QObject::destroyed, &server_, [this, connection] {
        if (watches_.erase(connection) == 0)
            --connections_;
    });
    auto* const silence = new QTimer(connection);
    silence->setSingleShot(true);
    QObject::connect(silence, &QTimer::timeout, connection, &QLocalSocket::abort);
    const auto readOn = [this, connection, silence] {
        silence->start(longestSilence);
        read(*connection);
        if (watches_.contains(connection))
            silence->stop();
    };
    QObject::connect(connection, &QLocalSocket::readyRead, connection, readOn);
    readOn();
}

void InstanceSocket::read(QLocalSocket& connection)
{
    if (watches_.contains(&connection))
        connection.readAll();
    while (connection.state() == QLocalSocket::ConnectedState && connection.canReadLine()) {
        const auto line = connection.readLine(longestLine + 1).toStdString();
        if (!line.ends_with('\n'))
            return refuse(connection, "usage error the line is too long");
        const auto text = std::string_view(line).substr(0, line.size() - 1);
        const auto command = [&](std::string_view prefix) {
            return InstanceCommand{.line = std::string(text.substr(prefix.size())),
                .caller = processOf(connection),
                .isSandboxed = connection.property(sandboxProperty).toBool()};
        };
        if (text.starts_with(watchPrefix))
            return watch(connection, command(watchPrefix));
        if (text.starts_with(runPrefix)) {
            connection.write(lineOf(run_(command(runPrefix))));
            continue;
        }
        if (text.starts_with(jsonPrefix)) {
            auto asked = command(jsonPrefix);
            asked.wantsJson = true;
            connection.write(lineOf(run_(asked)));
            continue;
        }
        if (const auto request =
                instanceRequestNamed(QByteArray::fromStdString(line).trimmed().toStdString()))
            connection.write(lineOf(nameOf(answer_(*request))));
        return connection.disconnectFromServer();
    }
    if (connection.bytesAvailable() > longestLine)
        return refuse(connection, "usage error the line is too long");
    if (connection.bytesToWrite() > mostUnread)
        connection.abort();
}

void InstanceSocket::refuse(QLocalSocket& connection, std::string_view answer)
{
    connection.write(lineOf(answer));
    connection.disconnectFromServer();
}

void InstanceSocket::watch(QLocalSocket& connection, const InstanceCommand& command)
{
    if (watches_.size() == mostWatchers)
        return refuse(connection, "refused error too many programs watch already");
    // Dropped in a later iteration: the sender must not lose its watch while it sends.
    const QPointer<QLocalSocket> reader(&connection);
    const auto send = [reader](const std::string& line) {
        if (!reader || reader->state() != QLocalSocket::ConnectedState || reader->bytesToWrite() > mostUnread)
            return;
        reader->write(lineOf(line));
        if (reader->bytesToWrite() > mostUnread)
            QMetaObject::invokeMethod(reader, &QLocalSocket::abort, Qt::QueuedConnection);
    };
    auto watch = watch_(command, send);
    if (!watch)
        return connection.disconnectFromServer();
    watches_.emplace(&connection, std::move(watch));
    --connections_;
}

std::optional<InstanceAnswer> InstanceSocket::ask(
    InstanceRequest request, std::chrono::milliseconds timeout) const
{
    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    socket.connectToServer(file_);
    if (!socket.waitForConnected(left(deadline)))
        return std::nullopt;
    socket.write(lineOf(nameOf(request)));
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(left(deadline)))
            return std::nullopt;
    return instanceAnswerNamed(socket.readLine().trimmed().toStdString());
}

}  // namespace fadeloom
