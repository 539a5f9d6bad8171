// SPDX-License-Identifier: MIT
// Requests to a web server.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

struct HttpRequest {
    std::string url;
    std::string userAgent;
    std::chrono::milliseconds timeout{15'000};  // For the whole exchange.
    std::size_t largestBody = 64 * 1024;  // Bytes; an answer with more counts as none.
};

struct HttpResponse {
    int status = 0;
    std::string body;
};

/// Thread: main.
class HttpClient {
public:
    /// Gets nothing when there was no whole answer in time: no network, refused, cut off, too large.
    using Answered = std::function<void(const std::optional<HttpResponse>& response)>;

    virtual ~HttpClient() = default;

    /// Asks by GET, past every cache, and follows redirects. Returns at once; `answered` is called once, later, unless
    /// this object ends first.
    virtual void get(const HttpRequest& request, Answered answered) = 0;
};

}  // namespace fadeloom
