// SPDX-License-Identifier: MIT
#include "platform/pipewire/Carriers.h"

namespace fadeloom {

namespace {

constexpr std::string_view linkGroup = "node.link-group";
constexpr std::string_view clientID = "client.id";

}  // namespace

Carriers::Carriers(const Graph& graph)
{
    for (const auto& [id, node] : graph.nodes) {
        const bool isDuplex = node.mediaClass() == "Audio/Duplex";
        const bool isSink = isDuplex || node.mediaClass().starts_with("Audio/Sink");
        const bool isSource = isDuplex || node.mediaClass().starts_with("Audio/Source");
        const std::string group{propertyOf(node.properties, linkGroup)};
        const std::string client{propertyOf(node.properties, clientID)};
        ++membersOfGroup_[group];
        if (isSink || node.isInputStream())
            groups_.inlets.insert(group);
        if (isSource || node.isOutputStream())
            groups_.outlets.insert(group);
        if (isSink)
            clients_.inlets.insert(client);
        if (isSource)
            clients_.outlets.insert(client);
    }
    for (auto* names : {&groups_.inlets, &groups_.outlets, &clients_.inlets, &clients_.outlets})
        names->erase("");
}

bool Carriers::contains(const GraphNode& stream) const
{
    if (!stream.isOutputStream() && !stream.isInputStream())
        return false;
    const bool playsForOthers = stream.isOutputStream();
    const auto& groups = playsForOthers ? groups_.inlets : groups_.outlets;
    const auto& clients = playsForOthers ? clients_.inlets : clients_.outlets;
    const auto group = propertyOf(stream.properties, linkGroup);
    const auto members = group.empty() ? membersOfGroup_.end() : membersOfGroup_.find(group);
    return groups.contains(group) || (members != membersOfGroup_.end() && members->second == 1)
        || clients.contains(propertyOf(stream.properties, clientID));
}

}  // namespace fadeloom
