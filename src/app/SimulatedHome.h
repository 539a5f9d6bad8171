// SPDX-License-Identifier: MIT
// A small world in memory that moves with the real time: two devices, three apps, and a minute of what they do, over
// and over. It shows the program at work where there is no audio system at all.
#pragma once

#include "base/Subscription.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <filesystem>
#include <functional>

namespace fadeloom {

/// Thread: main.
class SimulatedHome {
public:
    /// `folder`: for the program's files. `realLoop` moves the world from the moment `start` is called. `realLoop` and
    /// `text` must outlive this.
    SimulatedHome(const std::filesystem::path& folder, MainLoop& realLoop, Text& text);
    SimulatedHome(const SimulatedHome&) = delete;
    SimulatedHome& operator=(const SimulatedHome&) = delete;

    [[nodiscard]] SimulatedPlatform& world() { return world_; }
    /// Lets the time begin to pass.
    void start();

private:
    void act(int second);

    MainLoop& realLoop_;
    SimulatedPlatform world_;
    ProcessID player_ = -1;
    ProcessID browserTab_ = -1;
    ProcessID chat_ = -1;
    int second_ = 0;
    Subscription script_;
    Subscription time_;
};

/// Runs `program` in such a world, whose time has begun to pass, with its files in a folder that is gone afterwards.
/// Returns the exit status of `program`, or an early end's. `realLoop` must outlive the call. Thread: main.
[[nodiscard]] int runSimulated(MainLoop& realLoop, const std::function<int(SimulatedHome&)>& program);

}  // namespace fadeloom
