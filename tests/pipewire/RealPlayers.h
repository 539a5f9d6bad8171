// SPDX-License-Identifier: MIT
// Real players and devices in the surrounding audio session.
#pragma once

#include "platform/Workspace.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

/// The destructor ends and unplugs everything. Fails the test if the session lacks something.
class RealPlayers {
public:
    RealPlayers();
    ~RealPlayers();
    RealPlayers(const RealPlayers&) = delete;
    RealPlayers& operator=(const RealPlayers&) = delete;

    /// An mpv on PipeWire that plays a sine of 441 Hz, both channels, endlessly.
    ProcessID startSine(float amplitude);
    void setPaused(ProcessID player, bool isPaused);
    void end(ProcessID player);

    /// `positions`: the channels as PipeWire names them, such as "FL FR".
    void plug(const std::string& uid, const std::string& name, const std::string& positions);
    void unplug(const std::string& uid);
    static void setDefaultOutput(const std::string& uid);

private:
    std::string folder_;
    std::map<ProcessID, std::string> players_;  // With their control sockets.
    std::vector<std::string> devices_;
};

}  // namespace fadeloom
