// SPDX-License-Identifier: MIT
// Where sound goes in the graph, by every way there is: links, link groups, effects, programs that play what they
// capture. It answers whether one more way would make a circle.
#pragma once

#include "platform/pipewire/Graph.h"

#include <map>
#include <set>

namespace fadeloom {

/// A moment's picture of the ways, which follows no changes of the graph. Streams may be thought elsewhere than they are.
class SoundFlow {
public:
    explicit SoundFlow(const Graph& graph);

    /// From now on the stream is taken to play to this device and nowhere else.
    void lead(GraphID stream, GraphID device);
    /// Whether what the device is given comes out of the stream again: leading the one to the other would be a circle.
    [[nodiscard]] bool comesBack(GraphID device, GraphID stream) const;

private:
    void addLinks(const Graph& graph);
    void addGroups(const Graph& graph);
    void addPrograms(const Graph& graph);

    std::map<GraphID, std::set<GraphID>> ways_;  // From a node to those that its sound goes to.
    std::set<GraphID> fed_;  // Nodes that something goes to.
};

}  // namespace fadeloom
