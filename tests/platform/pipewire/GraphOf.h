// SPDX-License-Identifier: MIT
// Builds small graphs for tests.
#pragma once

#include "platform/pipewire/Graph.h"

#include <string>
#include <vector>

namespace fadeloom {

/// A graph that a test adds objects to. Ids and serials are assigned sequentially.
class GraphOf {
public:
    GraphID client(GraphProperties properties)
    {
        const auto id = next();
        graph.clients[id] = {
            .id = id, .serial = id + 1000, .properties = std::move(properties), .hasInfo = true};
        return id;
    }

    GraphID nativeClient(int pid) { return client({{"pipewire.sec.pid", std::to_string(pid)}}); }

    GraphID stream(
        GraphID clientID, GraphNode::State state = GraphNode::State::running, GraphProperties more = {})
    {
        more.insert({"media.class", "Stream/Output/Audio"});
        more.insert({"client.id", std::to_string(clientID)});
        return node(std::move(more), state);
    }

    GraphID sink(const std::string& name, const std::vector<std::string>& channels)
    {
        const auto id = node({{"media.class", "Audio/Sink"}, {"node.name", name}}, GraphNode::State::idle);
        graph.nodes[id].inputPortCount = static_cast<std::uint32_t>(channels.size());
        for (const auto& channel : channels)
            port(id, channel);
        return id;
    }

    GraphID node(GraphProperties properties, GraphNode::State state)
    {
        const auto id = next();
        graph.nodes[id] = {.id = id,
            .serial = id + 1000,
            .properties = std::move(properties),
            .state = state,
            .hasInfo = true};
        return id;
    }

    GraphID port(GraphID nodeID, const std::string& channel, bool isOutput = false, bool isMonitor = false)
    {
        const auto id = next();
        graph.ports[id] = {.id = id,
            .nodeID = nodeID,
            .index = static_cast<GraphID>(graph.ports.size()),
            .isOutput = isOutput,
            .isMonitor = isMonitor,
            .isAudio = true,
            .channel = channel,
            .name = channel};
        return id;
    }

    void link(GraphID outputNode, GraphID inputNode)
    {
        const auto id = next();
        graph.links[id] = {.id = id, .serial = id + 1000, .outputNode = outputNode, .inputNode = inputNode};
    }

    Graph graph;

private:
    GraphID next() { return ++last_; }

    GraphID last_ = 30;
};

}  // namespace fadeloom
