// SPDX-License-Identifier: MIT
// Requests to a web server by Qt.
#pragma once

#include "platform/HttpClient.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

namespace fadeloom {

/// Speaks HTTP and HTTPS, through the system's proxy where there is one, and is never redirected from HTTPS to HTTP.
/// Beside its address a request tells nothing but the user agent: no cookies, no language. Needs a running Qt event
/// loop. Thread: main; callbacks may destroy the client.
class QtHttpClient final : public HttpClient {
public:
    QtHttpClient();
    /// Ends what is open, without an answer.
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    void get(const HttpRequest& request, Answered answered) override;

private:
    class Exchange;

    void end(std::uint64_t number);
    void later(std::function<void()> task);

    QObject turns_;  // What waits for the next turn of the loop ends with it.
    QNetworkAccessManager network_;
    std::map<std::uint64_t, std::unique_ptr<Exchange>> exchanges_;
    std::uint64_t lastNumber_ = 0;
};

}  // namespace fadeloom
