// SPDX-License-Identifier: MIT
// A world in which an implementation of the platform interfaces is put to the test.
//
// It may be made of real processes and a real audio server: nothing here takes effect at once, so tests wait for
// conditions and never assume them.
#pragma once

#include "platform/AudioSystem.h"
#include "platform/MainLoop.h"
#include "platform/Workspace.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace fadeloom {

/// Thread: main. Starts with no player; may start with devices of its own. What a test started ends with the world.
class ContractWorld {
public:
    virtual ~ContractWorld() = default;

    virtual AudioSystem& audio() = 0;
    virtual MainLoop& mainLoop() = 0;

    /// Starts a process that plays a sine of 441 Hz without end on both channels to the default output; returns its
    /// pid. `amplitude`: linear, 0 to 1.
    virtual ProcessID startPlayer(float amplitude) = 0;
    /// The player stays, with its audio open, and plays nothing.
    virtual void pausePlayer(ProcessID player) = 0;
    virtual void resumePlayer(ProcessID player) = 0;
    /// Ends the process.
    virtual void endPlayer(ProcessID player) = 0;
    /// The bundle identifier that players go by.
    virtual std::string bundleIDOf(ProcessID player) = 0;

    /// Connects an output device with this many channels, in one stream of 1, 2 or 6 channels.
    virtual void plug(const std::string& uid, const std::string& name, std::uint32_t channels) = 0;
    virtual void unplug(const std::string& uid) = 0;
    /// Someone else makes the device the default output.
    virtual void setDefaultOutput(const std::string& uid) = 0;

    /// Runs the main loop until `condition` holds; false when that takes too long for a working implementation.
    [[nodiscard]] virtual bool waitUntil(const std::function<bool()>& condition) = 0;
    /// Runs the main loop for so long that whatever was on its way has arrived, and IO cycles would have run.
    virtual void settle() = 0;
};

using ContractWorldFactory = std::unique_ptr<ContractWorld> (*)();

}  // namespace fadeloom
