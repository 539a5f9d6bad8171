// SPDX-License-Identifier: MIT
#include "commands/Watchers.h"

#include "commands/LineWords.h"

#include <utility>

namespace fadeloom {

std::shared_ptr<void> Watchers::add(const std::string& line, bool isSandboxed, const Watch::Send& send)
{
    const auto words = wordsOf(line);
    auto request = words ? WatchRequest::parse(*words) : std::unexpected(words.error());
    if (!request) {
        send("usage error " + request.error());
        return nullptr;
    }
    send("ok ok watch");
    request->isSandboxed = isSandboxed;
    const Watch* const watch =
        &watches_.emplace_back(controller_, mainLoop_, text_, *std::move(request), send);
    auto forget = life_.whileAlive(
        [this, watch] { watches_.remove_if([&](const Watch& each) { return &each == watch; }); });
    return std::make_shared<Subscription>(std::move(forget));
}

void Watchers::end()
{
    life_.end();
    for (auto& watch : std::exchange(watches_, {}))
        watch.end();
}

}  // namespace fadeloom
