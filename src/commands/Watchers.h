// SPDX-License-Identifier: MIT
// All programs that are told what happens.
#pragma once

#include "base/LifeToken.h"
#include "base/Subscription.h"
#include "commands/Watch.h"

#include <list>
#include <memory>
#include <string>

namespace fadeloom {

/// Thread: main.
class Watchers {
public:
    /// All must outlive this.
    Watchers(AudioController& controller, MainLoop& mainLoop, const Text& text)
        : controller_(controller)
        , mainLoop_(mainLoop)
        , text_(text)
    {
    }
    Watchers(const Watchers&) = delete;
    Watchers& operator=(const Watchers&) = delete;

    /// Tells whoever is behind `send`, until the result goes or `end`. `line`: what WatchRequest::parse takes apart.
    /// The first that is sent is "ok ok watch", or "usage error" and a sentence; the result is null then. May outlive
    /// this.
    [[nodiscard]] std::shared_ptr<void> add(
        const std::string& line, bool isSandboxed, const Watch::Send& send);
    /// Tells them that it is over, and forgets them.
    void end();
    [[nodiscard]] std::size_t count() const { return watches_.size(); }

private:
    AudioController& controller_;
    MainLoop& mainLoop_;
    const Text& text_;
    std::list<Watch> watches_;
    LifeToken life_;
};

}  // namespace fadeloom
