// SPDX-License-Identifier: MIT
// A local web server whose responses are specified by a test, byte for byte.
#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// Needs a running Qt event loop on the thread that created it.
class LoopbackServer {
public:
    /// Gets each connection once its request has arrived completely.
    using Answer = std::function<void(QTcpSocket& connection, const std::string& request)>;

    explicit LoopbackServer(Answer answer)
        : answer_(std::move(answer))
    {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
    }
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    [[nodiscard]] std::string url(const std::string& path) const
    {
        return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
    }
    /// All requests in order of arrival; header names in lower case, which differs between versions of Qt.
    [[nodiscard]] const std::vector<std::string>& requests() const { return requests_; }
    [[nodiscard]] int disconnections() const { return disconnections_; }

    /// A complete response, after which the connection is closed.
    static void answer(QTcpSocket& connection, const std::string& status, const std::string& body,
        const std::string& headers = {})
    {
        connection.write(QByteArray::fromStdString("HTTP/1.1 " + status + "\r\nContent-Length: "
            + std::to_string(body.size()) + "\r\nConnection: close\r\n" + headers + "\r\n" + body));
        connection.disconnectFromHost();
    }

private:
    static std::string withLowerNames(std::string request)
    {
        bool isName = false;  // The first line is not a header.
        for (char& letter : request) {
            if (isName && letter >= 'A' && letter <= 'Z')
                letter = static_cast<char>(letter - 'A' + 'a');
            isName = letter == '\n' || (isName && letter != ':');
        }
        return request;
    }

    void accept()
    {
        auto* const connection = server_.nextPendingConnection();
        QObject::connect(connection, &QTcpSocket::disconnected, &server_, [this] { disconnections_ += 1; });
        QObject::connect(connection, &QTcpSocket::readyRead, connection,
            [this, connection, request = std::string()]() mutable {
                request += connection->readAll().toStdString();
                if (!request.ends_with("\r\n\r\n"))
                    return;
                requests_.push_back(withLowerNames(request));
                answer_(*connection, std::exchange(request, {}));
            });
    }

    Answer answer_;
    QTcpServer server_;
    std::vector<std::string> requests_;
    int disconnections_ = 0;
};

}  // namespace fadeloom
