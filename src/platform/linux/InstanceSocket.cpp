// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceSocket.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QTimer>

#include <string>
#include <utility>

#include <sys/socket.h>

namespace fadeloom {

namespace {

constexpr std::string_view runPrefix = "Run ";

QByteArray lineOf(std::string_view name)
{
    return QByteArray(name.data(), static_cast<qsizetype>(name.size())) + '\n';
}

int left(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

/// The process at the other end; 0 when the system does not tell.
pid_t processOf(const QLocalSocket& connection)
{
    ucred credentials{};
    socklen_t size = sizeof credentials;
    const auto descriptor = static_cast<int>(connection.socketDescriptor());
    return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 ? credentials.pid : 0;
}

}  // namespace

InstanceSocket::InstanceSocket(
    const std::filesystem::path& file, AnswerInstanceRequest answer, RunInstanceCommand run)
    : file_(QFile::decodeName(file.c_str()))
    , answer_(std::move(answer))
    , run_(std::move(run))
{
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

void InstanceSocket::listen()
{
    QLocalServer::removeServer(file_);
    server_.listen(file_);
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
    QObject::connect(connection, &QObject::destroyed, &server_, [this] { --connections_; });
    auto* const silence = new QTimer(connection);
    silence->setSingleShot(true);
    QObject::connect(silence, &QTimer::timeout, connection, &QLocalSocket::abort);
    const auto readOn = [this, connection, silence] {
        silence->start(longestSilence);
        read(*connection);
    };
    QObject::connect(connection, &QLocalSocket::readyRead, connection, readOn);
    readOn();
}

void InstanceSocket::read(QLocalSocket& connection)
{
    while (connection.canReadLine()) {
        const auto line = connection.readLine(longestLine + 1).toStdString();
        if (!line.ends_with('\n'))
            return connection.abort();
        const auto text = std::string_view(line).substr(0, line.size() - 1);
        if (text.starts_with(runPrefix)) {
            const auto answer = run_(std::string(text.substr(runPrefix.size())), processOf(connection));
            connection.write(lineOf(answer));
            continue;
        }
        if (const auto request =
                instanceRequestNamed(QByteArray::fromStdString(line).trimmed().toStdString()))
            connection.write(lineOf(nameOf(answer_(*request))));
        return connection.disconnectFromServer();
    }
    // A caller that does not read its answers, or a line without an end.
    if (connection.bytesToWrite() > 64 * longestLine || connection.bytesAvailable() > longestLine)
        connection.abort();
}

std::optional<InstanceAnswer> InstanceSocket::ask(
    InstanceRequest request, std::chrono::milliseconds patience) const
{
    const QDeadlineTimer deadline(patience);
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
