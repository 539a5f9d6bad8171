// SPDX-License-Identifier: MIT
// Streams that carry sound on for others: the halves of loopbacks, filter chains, virtual sinks and effects.
//
// They are no applications. Led through a tap they would be led into their own input, and every application that
// plays through them would fall silent.
#pragma once

#include "platform/pipewire/Graph.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace fadeloom {

/// Which streams of a graph are carriers. A moment's answer: made from the graph, it does not follow its changes.
///
/// A stream is one when its link group holds the other half, or when its client owns the device that feeds it. The
/// process is no evidence: pipewire-pulse owns the virtual devices of everybody.
class Carriers {
public:
    explicit Carriers(const Graph& graph);

    /// For output streams: it plays what a sink or an input stream was given. For input streams: it captures for a
    /// source or an output stream. A stream that is alone in its group counts as well: its other half is still to come.
    [[nodiscard]] bool contains(const GraphNode& stream) const;

private:
    /// What there is on each side, by link group or client.
    struct Ends {
        std::set<std::string, std::less<>> inlets;  // Take sound in: sinks, input streams.
        std::set<std::string, std::less<>> outlets;  // Give sound out: sources, output streams.
    };

    Ends groups_;
    std::map<std::string, int, std::less<>> membersOfGroup_;
    Ends clients_;  // Devices alone: an application may well play and capture.
};

}  // namespace fadeloom
