// SPDX-License-Identifier: MIT
// Assigns streams to taps: a pure function that decides for all streams together.
#pragma once

#include "platform/pipewire/AudioWorld.h"
#include "platform/pipewire/StreamTarget.h"

#include <map>
#include <set>
#include <vector>

namespace fadeloom {

/// Which streams of its processes a tap captures.
enum class StreamScope {
    every,  // All of them, wherever they would play without us.
    ofTheDevice,  // Those that would play on the tap's device without us.
};

/// One tap: from the streams of some processes to one device.
struct TapRoute {
    std::set<AudioProcessID> processes;
    GraphID deviceNode = 0;
    GraphSerial deviceSerial = 0;
    StreamScope scope = StreamScope::every;
    // It no longer renders, and hands its streams over to any other tap that wants them.
    bool isStopped = false;
};

struct StreamRouting {
    std::map<GraphID, const TapRoute*> routes;  // By stream.
    /// Streams that stay where they are, because the audio of their tap's device feeds back into them.
    std::set<GraphID> feedbackLoops;
};

/// No combination of decisions creates a feedback loop: audio that a program captures from a device is never routed
/// back to it, unless it already flows there without us.
[[nodiscard]] StreamRouting routeStreams(const Graph& graph, const AudioWorld& world,
    const std::vector<const TapRoute*>& taps, const ChosenTargetOf& chosenTarget);

}  // namespace fadeloom
