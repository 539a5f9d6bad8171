// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedHttpClient.h"

#include "platform/MainLoop.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fadeloom {

void SimulatedHttpClient::get(const HttpRequest& request, Answered answered)
{
    requests_.push_back(request);
    const auto number = ++lastNumber_;
    const auto delay = isOnline_ ? request.timeout : std::chrono::milliseconds(0);
    exchanges_.push_back({number, request.largestBody, std::move(answered),
        mainLoop_.after(delay, [this, number] { end(number, std::nullopt); })});
}

void SimulatedHttpClient::answer(int status, const std::string& body, std::size_t position)
{
    if (position >= exchanges_.size())
        return;
    const auto& exchange = *std::next(exchanges_.begin(), static_cast<std::ptrdiff_t>(position));
    const bool fits = body.size() <= exchange.largestBody;
    end(exchange.number, fits ? std::optional(HttpResponse{status, body}) : std::nullopt);
}

void SimulatedHttpClient::cutOff(std::size_t position)
{
    if (position < exchanges_.size())
        end(std::next(exchanges_.begin(), static_cast<std::ptrdiff_t>(position))->number, std::nullopt);
}

void SimulatedHttpClient::end(std::uint64_t number, const std::optional<HttpResponse>& response)
{
    const auto found = std::ranges::find(exchanges_, number, &Exchange::number);
    if (found == exchanges_.end())
        return;
    const auto answered = std::move(found->answered);
    exchanges_.erase(found);
    answered(response);
}

}  // namespace fadeloom
