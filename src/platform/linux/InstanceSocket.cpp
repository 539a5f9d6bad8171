// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceSocket.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>

#include <string>
#include <utility>

namespace fadeloom {

namespace {

constexpr qint64 longestLine = 64;  // Bytes, with room to spare.

QByteArray lineOf(std::string_view name)
{
    return QByteArray(name.data(), static_cast<qsizetype>(name.size())) + '\n';
}

int left(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

}  // namespace

InstanceSocket::InstanceSocket(const std::filesystem::path& file, AnswerInstanceRequest answer)
    : file_(QFile::decodeName(file.c_str()))
    , answer_(std::move(answer))
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
    const auto read = [this, connection] {
        if (!connection->canReadLine()) {
            if (connection->bytesAvailable() > longestLine)
                connection->abort();
            return;
        }
        if (const auto request = instanceRequestNamed(connection->readLine().trimmed().toStdString()))
            connection->write(lineOf(nameOf(answer_(*request))));
        connection->disconnectFromServer();
    };
    QObject::connect(connection, &QLocalSocket::readyRead, connection, read);
    read();
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
