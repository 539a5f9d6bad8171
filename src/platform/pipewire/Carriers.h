// SPDX-License-Identifier: MIT
// Streams that forward the audio of others: the halves of loopbacks, filter chains, virtual sinks and effects.
//
// They are not applications. If one were routed through a tap, it would feed back into its own input, and every
// application that plays through it would fall silent.
#pragma once

#include "platform/pipewire/Graph.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace fadeloom {

/// The carriers among a graph's streams. A snapshot, which does not follow changes of the graph.
///
/// A stream is one if its link group contains the other half, or if its client owns the device that feeds it. The
/// process is no evidence: pipewire-pulse owns everybody's virtual devices.
class Carriers {
public:
    explicit Carriers(const Graph& graph);

    /// For output streams: it plays what a sink or an input stream received. For input streams: it captures for a
    /// source or an output stream. A stream that is alone in its group also counts: its other half has not appeared
    /// yet.
    [[nodiscard]] bool contains(const GraphNode& stream) const;

private:
    /// The nodes on each side, by link group or client.
    struct Ends {
        std::set<std::string, std::less<>> inlets;  // Consume audio: sinks, input streams.
        std::set<std::string, std::less<>> outlets;  // Produce audio: sources, output streams.
    };

    Ends groups_;
    std::map<std::string, int, std::less<>> membersOfGroup_;
    Ends clients_;  // Only devices: an application may both play and capture.
};

}  // namespace fadeloom
