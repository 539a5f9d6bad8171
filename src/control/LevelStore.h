// SPDX-License-Identifier: MIT
// How loud each app is right now, for its meter.
//
// A meter jumps up at once and sinks slowly. It is looked at twenty times a second while somebody watches, and nothing
// runs while nobody does.
#pragma once

#include "base/Published.h"
#include "base/Subscription.h"
#include "platform/MainLoop.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {

/// Where a meter stands for a linear peak of 1 at full scale: 0 at and below −60 dB, 1 at and above 0 dB, even steps of
/// decibels between them.
[[nodiscard]] float meterPosition(float peak);
/// The level at which a meter stands there, in decibels of full scale.
[[nodiscard]] float meterDecibels(float position);

/// Apps are named by their bundle identifiers. Thread: main.
class LevelStore {
public:
    using Levels = std::map<std::string, float>;
    /// Each app's highest sample since the last call, linear.
    using Provider = std::function<Levels()>;

    static constexpr std::chrono::milliseconds interval{50};
    /// What is left of a meter's position after each interval when nothing louder comes.
    static constexpr float decay = 0.85F;

    LevelStore(MainLoop& mainLoop, Provider provider);
    LevelStore(const LevelStore&) = delete;
    LevelStore& operator=(const LevelStore&) = delete;

    /// The meters' positions, 0 to 1; an app that is not in it stands at 0.
    [[nodiscard]] const Published<Levels>& levels() const { return levels_; }

    /// The panel watches, or does not any more.
    void setWanted(bool isWanted);
    /// Somebody more watches, until the subscription ends. This must outlive it.
    [[nodiscard]] Subscription want();
    /// The user's choice to have meters at all.
    void setEnabled(bool isEnabled);
    /// Sets the meters by hand; they stay until the next interval, or until nobody watches any more.
    void show(Levels levels) { levels_.assign(std::move(levels)); }
    [[nodiscard]] bool isRunning() const { return timer_.has_value(); }

private:
    void update();
    void tick();

    MainLoop& mainLoop_;
    Provider provider_;
    Published<Levels> levels_;
    bool isWanted_ = false;
    int wants_ = 0;  // Of those that hold a subscription.
    bool isEnabled_ = true;
    std::optional<Subscription> timer_;
};

}  // namespace fadeloom
