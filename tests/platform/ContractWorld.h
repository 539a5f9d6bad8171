// SPDX-License-Identifier: MIT
// An environment for testing an implementation of the platform interfaces.
//
// It may consist of real processes and a real audio server: nothing takes effect immediately, so tests wait for
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

/// Thread: main. Initially without players; may have its own devices. The destructor ends everything that a test
/// started.
class ContractWorld {
public:
    virtual ~ContractWorld() = default;

    virtual AudioSystem& audio() = 0;
    virtual MainLoop& mainLoop() = 0;

    /// Starts a process that plays an endless sine of 441 Hz on both channels to the default output; returns its pid.
    /// `amplitude`: linear, 0 to 1.
    virtual ProcessID startPlayer(float amplitude) = 0;
    /// The player keeps its audio open without playing.
    virtual void pausePlayer(ProcessID player) = 0;
    virtual void resumePlayer(ProcessID player) = 0;
    /// Ends the process.
    virtual void endPlayer(ProcessID player) = 0;
    /// The bundle identifier of players.
    virtual std::string bundleIDOf(ProcessID player) = 0;

    /// Connects an output device with this many channels, in one stream of 1, 2 or 6 channels.
    virtual void plug(const std::string& uid, const std::string& name, std::uint32_t channels) = 0;
    virtual void unplug(const std::string& uid) = 0;
    /// Another program makes the device the default output.
    virtual void setDefaultOutput(const std::string& uid) = 0;

    /// Runs the main loop until `condition` holds; false if that takes too long for a working implementation.
    [[nodiscard]] virtual bool waitUntil(const std::function<bool()>& condition) = 0;
    /// Runs the main loop long enough for everything in flight to arrive, and for IO cycles to run.
    virtual void settle() = 0;
};

using ContractWorldFactory = std::unique_ptr<ContractWorld> (*)();

}  // namespace fadeloom
