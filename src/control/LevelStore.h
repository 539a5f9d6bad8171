// SPDX-License-Identifier: MIT
// The current level of each app, for its meter.
//
// A meter rises immediately and decays slowly. It is updated twenty times a second while somebody watches, and no timer
// runs otherwise.
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

/// The position of a meter for a linear peak, 1 being full scale: 0 at and below −60 dB, 1 at and above 0 dB, linear in
/// decibels in between.
[[nodiscard]] float meterPosition(float peak);
/// The level for a meter's position, in dBFS.
[[nodiscard]] float meterDecibels(float position);

/// Apps are identified by bundle identifier. Thread: main.
class LevelStore {
public:
    using Levels = std::map<std::string, float>;
    /// Each app's peak since the last call, linear.
    using Provider = std::function<Levels()>;

    static constexpr std::chrono::milliseconds interval{50};
    /// The factor by which a meter's position decays per interval.
    static constexpr float decay = 0.85F;

    LevelStore(MainLoop& mainLoop, Provider provider);
    LevelStore(const LevelStore&) = delete;
    LevelStore& operator=(const LevelStore&) = delete;

    /// The meters' positions, 0 to 1; 0 for an app that is not contained.
    [[nodiscard]] const Published<Levels>& levels() const { return levels_; }

    /// Whether the panel is watching.
    void setWanted(bool isWanted);
    /// Adds another watcher, until the subscription ends. This object must outlive it.
    [[nodiscard]] Subscription want();
    /// The user's setting for meters.
    void setEnabled(bool isEnabled);
    /// Sets the meters explicitly; they are kept until the next interval, or until nobody watches any more.
    void show(Levels levels) { levels_.assign(std::move(levels)); }
    [[nodiscard]] bool isRunning() const { return timer_.has_value(); }

private:
    void update();
    void tick();

    MainLoop& mainLoop_;
    Provider provider_;
    Published<Levels> levels_;
    bool isWanted_ = false;
    int wants_ = 0;  // The number of subscriptions.
    bool isEnabled_ = true;
    std::optional<Subscription> timer_;
};

}  // namespace fadeloom
