// SPDX-License-Identifier: MIT
// A connected program that receives events, line by line, until it disconnects.
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

/// What to send: the format, and which events.
struct WatchRequest {
    enum class Format { text, json, waybar };

    Format format = Format::text;
    bool wantsLevels = false;  // Only levels.
    std::optional<std::string> app{};  // As typed; nullopt for all apps.
    bool isSandboxed = false;  // It does not learn where recordings are saved.

    /// FORMAT [apps|levels] [APP]. The error is a sentence for the user, in English.
    [[nodiscard]] static std::expected<WatchRequest, std::string> parse(std::span<const std::string> words);
};

/// Thread: main.
class Watch {
public:
    using Send = std::function<void(const std::string& line)>;

    /// Sends the current state, and then every change. All arguments must outlive this.
    Watch(AudioController& controller, MainLoop& mainLoop, const Text& text, WatchRequest request, Send send);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Sends the end event.
    void end();

private:
    [[nodiscard]] bool isAbout(const std::string& id) const;
    void deliver(const Event& event);
    void sendLevels();
    void sendBarStatus();

    AudioController& controller_;
    const Text& text_;
    const WatchRequest request_;
    const Send send_;
    bool isBeginning_ = true;
    std::string last_;  // The last line, for formats that send the whole state each time.
    Subscription levelsWanted_;
    Subscription levels_;
    std::optional<EventSource> events_;
};

}  // namespace fadeloom
