// SPDX-License-Identifier: MIT
// Another program that is told what happens, line by line, for as long as it listens.
#pragma once

#include "base/Subscription.h"
#include "commands/EventSource.h"

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace fadeloom {

class AudioController;
class MainLoop;
class Text;

/// What is told: in which form, about what.
struct WatchRequest {
    enum class Format { text, json, waybar };

    Format format = Format::text;
    bool wantsLevels = false;  // And nothing else.
    std::optional<std::string> app{};  // As typed; absent for all.
    bool isSandboxed = false;  // It is not told where recordings are.

    /// FORMAT [apps|levels] [APP]. The error is a sentence for the user, in English.
    [[nodiscard]] static std::expected<WatchRequest, std::string> parse(std::span<const std::string> words);
};

/// Thread: main.
class Watch {
public:
    using Send = std::function<void(const std::string& line)>;

    /// Sends how things stand now, and from then on what changes. All must outlive this.
    Watch(AudioController& controller, MainLoop& mainLoop, const Text& text, WatchRequest request, Send send);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Sends that it is over.
    void end();

private:
    [[nodiscard]] bool isAbout(const std::string& id) const;
    void tell(const Event& event);
    void tellLevels();
    void tellBar();

    AudioController& controller_;
    const Text& text_;
    const WatchRequest request_;
    const Send send_;
    bool isBeginning_ = true;
    std::string last_;  // What was sent of what is sent as a whole.
    Subscription levelsWanted_;
    Subscription levels_;
    std::optional<EventSource> events_;
};

}  // namespace fadeloom
