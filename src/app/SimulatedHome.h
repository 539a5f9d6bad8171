// SPDX-License-Identifier: MIT
// A small simulation in real time: two devices, three apps, and a minute of events in a loop. It demonstrates the
// program where there is no audio system.
#pragma once

#include "base/Subscription.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <filesystem>
#include <functional>

namespace fadeloom {

/// Thread: main.
class SimulatedHome {
public:
    /// `folder`: for the program's files. `realLoop` drives the simulation once `start` is called. `realLoop` and
    /// `text` must outlive this.
    SimulatedHome(const std::filesystem::path& folder, MainLoop& realLoop, Text& text);
    SimulatedHome(const SimulatedHome&) = delete;
    SimulatedHome& operator=(const SimulatedHome&) = delete;

    [[nodiscard]] SimulatedPlatform& world() { return world_; }
    /// Starts the simulated clock.
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

/// Runs `program` in a started simulation, with its files in a temporary folder. Returns the exit status of `program`,
/// or an early end's. `realLoop` must outlive the call. Thread: main.
[[nodiscard]] int runSimulated(MainLoop& realLoop, const std::function<int(SimulatedHome&)>& program);

}  // namespace fadeloom
