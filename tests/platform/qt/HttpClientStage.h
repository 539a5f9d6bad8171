// SPDX-License-Identifier: MIT
// A client, and a server whose pages respond in every possible way.
#pragma once

#include "platform/qt/QtHttpClient.h"
#include "tests/platform/qt/LoopbackServer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;

class HttpClientStage : public ::testing::Test {
protected:
    HttpClientStage()
    {
        for (const auto* const proxy :
            {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY"})
            qunsetenv(proxy);
    }

    void ask(
        const std::string& url, std::chrono::milliseconds timeout = 10s, std::size_t largestBody = 64 * 1024)
    {
        http->get({.url = url, .userAgent = "Fadeloom/42", .timeout = timeout, .largestBody = largestBody},
            [this](const auto& response) {
                statuses.push_back(response ? response->status : nothing);
                body = response ? response->body : "";
            });
    }
    template <typename Condition>
    static bool waitUntil(Condition condition, std::chrono::milliseconds timeout = 20s)
    {
        QElapsedTimer time;
        time.start();
        while (!condition() && !time.hasExpired(timeout.count()))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return condition();
    }
    /// The status of the response to one request; `nothing` if there was none.
    int statusOf(
        const std::string& url, std::chrono::milliseconds timeout = 10s, std::size_t largestBody = 64 * 1024)
    {
        ask(url, timeout, largestBody);
        EXPECT_THAT(statuses, ::testing::IsEmpty()) << "it answers later";
        EXPECT_TRUE(waitUntil([&] { return !statuses.empty(); }));
        return statuses.empty() ? -2 : statuses.front();
    }

    static constexpr int nothing = -1;
    static inline int argumentCount = 1;
    static inline char name[] = "test";
    static inline char* arguments[] = {name, nullptr};

    QCoreApplication application{argumentCount, arguments};
    LoopbackServer server{[this](QTcpSocket& connection, const std::string& request) {
        const auto path = request.substr(4, request.find(' ', 4) - 4);
        if (path == "/page")
            LoopbackServer::answer(connection, "200 OK", "the page");
        else if (path == "/moved")
            LoopbackServer::answer(connection, "302 Found", "", "Location: /page\r\n");
        else if (path == "/circle")
            LoopbackServer::answer(connection, "301 Moved Permanently", "", "Location: /circle\r\n");
        else if (path == "/file")
            LoopbackServer::answer(connection, "302 Found", "", "Location: file:///etc/hostname\r\n");
        else if (path == "/broken")
            LoopbackServer::answer(connection, "500 Internal Server Error", "oh");
        else if (path == "/cookie")
            LoopbackServer::answer(connection, "200 OK", "", "Set-Cookie: who=you\r\nETag: \"7\"\r\n");
        else if (path == "/cut") {
            connection.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf");
            connection.disconnectFromHost();
        } else if (path == "/drop")
            connection.abort();
        else if (path == "/garbage") {
            connection.write("I do not speak that\r\n\r\n");
            connection.disconnectFromHost();
        } else if (path == "/slow")
            connection.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf");
        else if (path == "/drip")
            drip(connection);
        else if (path == "/flood")
            flood(connection);
        else if (path == "/large")
            LoopbackServer::answer(connection, "200 OK", std::string(64 * 1024, 'x'));
        else if (path == "/larger")
            LoopbackServer::answer(connection, "200 OK", std::string(64 * 1024 + 1, 'x'));
        else
            LoopbackServer::answer(connection, "404 Not Found", "not here");
    }};
    std::optional<QtHttpClient> http{std::in_place};
    std::vector<int> statuses;
    std::string body;
    qint64 flooded = 0;

private:
    /// Sends a letter now and then, endlessly.
    static void drip(QTcpSocket& connection)
    {
        connection.write("HTTP/1.1 200 OK\r\n\r\n");
        auto* const timer = new QTimer(&connection);
        QObject::connect(timer, &QTimer::timeout, &connection, [&connection] { connection.write("."); });
        timer->start(20ms);
    }
    /// Sends as much as is accepted, endlessly.
    void flood(QTcpSocket& connection)
    {
        connection.write("HTTP/1.1 200 OK\r\n\r\n");
        QObject::connect(
            &connection, &QTcpSocket::bytesWritten, &connection, [this, &connection](qint64 count) {
                flooded += count;
                connection.write(QByteArray(4096, 'x'));
            });
    }
};

}  // namespace fadeloom
