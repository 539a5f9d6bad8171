// SPDX-License-Identifier: MIT
// All programs that receive events.
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
    /// All arguments must outlive this.
    Watchers(AudioController& controller, MainLoop& mainLoop, const Text& text)
        : controller_(controller)
        , mainLoop_(mainLoop)
        , text_(text)
    {
    }
    Watchers(const Watchers&) = delete;
    Watchers& operator=(const Watchers&) = delete;

    /// Sends events to `send` until the result is destroyed or `end` is called. `line`: see WatchRequest::parse. The
    /// first line sent is "ok ok watch", or "usage error" with a sentence, in which case the result is null. The result
    /// may outlive this.
    [[nodiscard]] std::shared_ptr<void> add(
        const std::string& line, bool isSandboxed, const Watch::Send& send);
    /// Sends the end event to all watchers, and drops them.
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
