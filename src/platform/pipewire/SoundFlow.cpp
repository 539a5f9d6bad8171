// SPDX-License-Identifier: MIT
#include "platform/pipewire/SoundFlow.h"

#include "platform/pipewire/GraphRules.h"

#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

namespace {

// The inputs and outputs of a group of nodes.
struct Passage {
    std::vector<GraphID> inlets;
    std::vector<GraphID> outlets;
};

// The program behind a client: its process, as far as that is known; else the client itself.
std::string programOf(const Graph& graph, const GraphNode& node)
{
    const auto id = node.clientID();
    const auto client = id ? graph.clients.find(*id) : graph.clients.end();
    if (client == graph.clients.end())
        return {};
    const auto pid = identityOf(client->second).pid;
    return pid > 0 ? "process " + std::to_string(pid) : "client " + std::to_string(*id);
}

}  // namespace

SoundFlow::SoundFlow(const Graph& graph)
{
    addLinks(graph);
    addGroups(graph);
    addPrograms(graph);
    for (const auto& [from, targets] : edges_)
        receivers_.insert(targets.begin(), targets.end());
}

void SoundFlow::addLinks(const Graph& graph)
{
    for (const auto& [id, link] : graph.links)
        edges_[link.outputNode].insert(link.inputNode);
}

void SoundFlow::addGroups(const Graph& graph)
{
    std::map<std::string, Passage, std::less<>> passages;
    for (const auto& [id, node] : graph.nodes) {
        const auto group = propertyOf(node.properties, "node.link-group");
        if (group.empty())
            continue;
        auto& passage = passages[std::string{group}];
        if (node.isInputStream() || node.mediaClass().starts_with("Audio/Sink"))
            passage.inlets.push_back(id);
        else
            passage.outlets.push_back(id);
    }
    for (const auto& [name, passage] : passages) {
        for (const auto inlet : passage.inlets)
            edges_[inlet].insert(passage.outlets.begin(), passage.outlets.end());
    }
}

void SoundFlow::addPrograms(const Graph& graph)
{
    std::map<std::string, Passage> passages;
    const auto add = [&](const std::string& name, const GraphNode& node) {
        if (node.isOutputStream())
            passages[name].outlets.push_back(node.id);
        else
            passages[name].inlets.push_back(node.id);
    };
    for (const auto& [id, node] : graph.nodes) {
        const bool isStream = node.isOutputStream() || node.isInputStream();
        // The halves of a loopback belong to their group, not to the server that runs all of them in one process.
        const auto client = node.clientID();
        if (!client || !propertyOf(node.properties, "node.link-group").empty())
            continue;
        if (isStream || node.isSink())
            add("client " + std::to_string(*client), node);
        if (isStream)
            add(programOf(graph, node), node);
    }
    for (const auto& [name, passage] : passages) {
        for (const auto inlet : passage.inlets)
            edges_[inlet].insert(passage.outlets.begin(), passage.outlets.end());
    }
}

void SoundFlow::lead(GraphID stream, GraphID device)
{
    edges_[stream] = {device};
    receivers_.insert(device);
}

bool SoundFlow::wouldFeedBack(GraphID device, GraphID stream) const
{
    if (!receivers_.contains(stream))
        return false;  // The usual case for players.
    std::set<GraphID> reached{device};
    std::vector<GraphID> open{device};
    while (!open.empty() && !reached.contains(stream)) {
        const auto ways = edges_.find(std::exchange(open.back(), 0));
        open.pop_back();
        if (ways == edges_.end())
            continue;
        for (const auto next : ways->second) {
            if (reached.insert(next).second)
                open.push_back(next);
        }
    }
    return reached.contains(stream);
}

}  // namespace fadeloom
