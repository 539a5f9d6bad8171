// SPDX-License-Identifier: MIT
// Taps that deliver zeros while their applications play.
//
// A tap may fall silent for good although its application is heard by the system. It cannot be told from an application
// that plays silence, so a tap is made anew after a while, and each time that this has not helped, after twice as long.
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

/// What all taps share for that. Thread: main.
class SilentTaps {
public:
    static constexpr std::chrono::seconds firstPatience{10};
    static constexpr std::chrono::seconds longestPatience{3600};

    /// By processes and output: the next tap has the same.
    using Key = std::pair<std::vector<AudioProcessID>, std::string>;

    /// Has the taps look at themselves: this is what the processes do now.
    void look(std::span<const AudioProcess> processes);
    /// `lookAtIt` is called each time, until the subscription ends.
    [[nodiscard]] Subscription whenLooking(std::function<void()> lookAtIt)
    {
        return looks_.add(std::move(lookAtIt));
    }

    /// Whether one of these plays.
    [[nodiscard]] bool isAnyPlaying(std::span<const AudioProcessID> processes) const;
    /// How long zeros of such a tap are borne.
    [[nodiscard]] std::chrono::seconds patienceWith(const Key& key) const;
    /// Zeros were borne long enough, and the tap is made anew.
    void noteRenewal(const Key& key);
    /// Sound has come.
    void noteSound(const Key& key) { patience_.erase(key); }

private:
    Observers looks_;
    std::set<AudioProcessID> playing_;
    std::map<Key, std::chrono::seconds> patience_;
};

}  // namespace fadeloom
