// SPDX-License-Identifier: MIT
// Which stream runs through which tap. One function decides it for all streams together, from values alone.
#pragma once

#include "platform/pipewire/AudioWorld.h"
#include "platform/pipewire/StreamTarget.h"

#include <map>
#include <set>
#include <vector>

namespace fadeloom {

/// Which streams of its processes a tap is for.
enum class StreamScope {
    every,  // All of them, wherever they would play by themselves.
    ofTheDevice,  // Those that would play on the tap's device by themselves.
};

/// One tap: from the streams of some processes to one device.
struct TapRoute {
    std::set<AudioProcessID> processes;
    GraphID deviceNode = 0;
    GraphSerial deviceSerial = 0;
    StreamScope scope = StreamScope::every;
    bool isStopped = false;  // It renders no more, and hands its streams to another tap that wants them.
};

struct StreamRouting {
    std::map<GraphID, const TapRoute*> routes;  // By stream.
    /// Streams that stay where they are, because what their tap's device plays comes out of them again.
    std::set<GraphID> circles;
};

/// No two decisions together make a circle: sound that a program captures from a device is never led back into it,
/// unless it goes there without us.
[[nodiscard]] StreamRouting routeStreams(const Graph& graph, const AudioWorld& world,
    const std::vector<const TapRoute*>& taps, const ChosenTargetOf& chosenTarget);

}  // namespace fadeloom
