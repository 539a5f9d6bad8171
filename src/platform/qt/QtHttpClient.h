// SPDX-License-Identifier: MIT
// HTTP requests through Qt.
#pragma once

#include "platform/HttpClient.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

namespace fadeloom {

/// Supports HTTP and HTTPS, through the system's proxy if there is one, and never follows redirects from HTTPS to HTTP.
/// Besides the URL a request sends only the user agent: no cookies, no language. Needs a running Qt event loop. Thread:
/// main; callbacks may destroy the client.
class QtHttpClient final : public HttpClient {
public:
    QtHttpClient();
    /// Aborts pending requests without calling back.
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    void get(const HttpRequest& request, Answered answered) override;

private:
    class Exchange;

    void end(std::uint64_t number);
    void later(std::function<void()> task);

    QObject turns_;  // Context of deferred calls, which end with it.
    QNetworkAccessManager network_;
    std::map<std::uint64_t, std::unique_ptr<Exchange>> exchanges_;
    std::uint64_t lastNumber_ = 0;
};

}  // namespace fadeloom
