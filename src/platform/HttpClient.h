// SPDX-License-Identifier: MIT
// HTTP requests.
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
    std::size_t largestBody = 64 * 1024;  // Bytes; a larger response is an error.
};

struct HttpResponse {
    int status = 0;
    std::string body;
};

/// Thread: main.
class HttpClient {
public:
    /// Gets nullopt without a complete response in time: no network, refused, aborted, too large.
    using Answered = std::function<void(const std::optional<HttpResponse>& response)>;

    virtual ~HttpClient() = default;

    /// Sends a GET that bypasses caches, and follows redirects. Returns immediately; `answered` is called once, later,
    /// unless this object is destroyed first.
    virtual void get(const HttpRequest& request, Answered answered) = 0;
};

}  // namespace fadeloom
