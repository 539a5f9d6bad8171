// SPDX-License-Identifier: MIT
// The flow of audio in the graph, along every kind of path: links, link groups, effects, programs that play what they
// capture. Determines whether another connection would create a feedback loop.
#pragma once

#include "platform/pipewire/Graph.h"

#include <map>
#include <set>

namespace fadeloom {

/// A snapshot of the paths, which does not follow changes of the graph. Streams can be hypothetically moved.
class SoundFlow {
public:
    explicit SoundFlow(const Graph& graph);

    /// From now on the stream is assumed to play to this device only.
    void lead(GraphID stream, GraphID device);
    /// Whether the device's input comes out of the stream again: connecting them would create a feedback loop.
    [[nodiscard]] bool wouldFeedBack(GraphID device, GraphID stream) const;

private:
    void addLinks(const Graph& graph);
    void addGroups(const Graph& graph);
    void addPrograms(const Graph& graph);

    std::map<GraphID, std::set<GraphID>> edges_;  // From a node to those that receive its audio.
    std::set<GraphID> receivers_;  // Nodes that receive audio.
};

}  // namespace fadeloom
