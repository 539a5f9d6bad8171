// SPDX-License-Identifier: MIT
// A network whose only server is the test.
#pragma once

#include "base/Subscription.h"
#include "platform/HttpClient.h"

#include <cstdint>
#include <list>
#include <vector>

namespace fadeloom {

class MainLoop;

/// Requests stay open until they are answered or time out, on the loop's clock.
class SimulatedHttpClient final : public HttpClient {
public:
    /// `mainLoop` must outlive this.
    explicit SimulatedHttpClient(MainLoop& mainLoop)
        : mainLoop_(mainLoop)
    {
    }
    SimulatedHttpClient(const SimulatedHttpClient&) = delete;
    SimulatedHttpClient& operator=(const SimulatedHttpClient&) = delete;

    void get(const HttpRequest& request, Answered answered) override;

    /// All requests so far, in order.
    [[nodiscard]] const std::vector<HttpRequest>& requests() const { return requests_; }
    [[nodiscard]] std::size_t openRequests() const { return exchanges_.size(); }
    /// Answers an open request: the one at `position`, 0 for the oldest. Does nothing without an open one.
    void answer(int status, const std::string& body, std::size_t position = 0);
    /// Aborts it.
    void cutOff(std::size_t position = 0);
    /// No request succeeds from now on: each fails in the next iteration of the loop.
    void goOffline() { isOnline_ = false; }

private:
    struct Exchange {
        std::uint64_t number = 0;
        std::size_t largestBody = 0;
        Answered answered;
        Subscription ending;
    };

    void end(std::uint64_t number, const std::optional<HttpResponse>& response);

    MainLoop& mainLoop_;
    std::vector<HttpRequest> requests_;
    std::list<Exchange> exchanges_;
    std::uint64_t lastNumber_ = 0;
    bool isOnline_ = true;
};

}  // namespace fadeloom
