// SPDX-License-Identifier: MIT
// Detects taps that deliver zeros while their applications play.
//
// A tap may fall silent permanently although its application is playing. That is indistinguishable from an application
// that plays silence, so a tap is replaced after some time, and each time that has not helped, after twice that time.
#pragma once

#include "base/Observers.h"
#include "platform/AudioProcess.h"

#include <chrono>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// Shared by all taps. Thread: main.
class SilentTaps {
public:
    static constexpr std::chrono::seconds initialTolerance{10};
    static constexpr std::chrono::seconds maximumTolerance{3600};

    /// By processes and output: the replacement of a tap has the same.
    using Key = std::pair<std::vector<AudioProcessID>, std::string>;

    /// Makes the taps check themselves against the current state of the processes.
    void check(std::span<const AudioProcess> processes);
    /// `check` is called each time, until the subscription ends.
    [[nodiscard]] Subscription whenChecking(std::function<void()> check)
    {
        return checks_.add(std::move(check));
    }

    /// Whether any of these plays.
    [[nodiscard]] bool isAnyPlaying(std::span<const AudioProcessID> processes) const;
    /// For how long zeros from such a tap are tolerated.
    [[nodiscard]] std::chrono::seconds toleratedSilence(const Key& key) const;
    /// The tap has exceeded that time, and is replaced.
    void tapReplaced(const Key& key);
    /// Audio has arrived.
    void soundArrived(const Key& key) { toleratedSilence_.erase(key); }

private:
    Observers checks_;
    std::set<AudioProcessID> playing_;
    std::map<Key, std::chrono::seconds> toleratedSilence_;
};

}  // namespace fadeloom
