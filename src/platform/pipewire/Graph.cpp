// SPDX-License-Identifier: MIT
#include "platform/pipewire/Graph.h"

#include <spa/utils/json.h>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace fadeloom {

namespace {

GraphID idOf(const GraphProperties& properties, std::string_view key)
{
    constexpr GraphID none = 0xffffffff;  // PipeWire's invalid id.
    return static_cast<GraphID>(numberOf(properties, key).value_or(none));
}

enum class Direction { input, output };

std::vector<GraphPort> portsOf(const Graph& graph, GraphID nodeID, Direction direction)
{
    const bool isOutput = direction == Direction::output;
    std::vector<GraphPort> ports;
    for (const auto& [id, port] : graph.ports) {
        if (port.nodeID == nodeID && port.isOutput == isOutput && !port.isMonitor && port.isAudio)
            ports.push_back(port);
    }
    std::ranges::sort(ports, {}, &GraphPort::index);
    return ports;
}

}  // namespace

std::string_view propertyOf(const GraphProperties& properties, std::string_view key)
{
    const auto found = properties.find(key);
    return found == properties.end() ? std::string_view{} : std::string_view{found->second};
}

std::optional<std::int64_t> numberOf(const GraphProperties& properties, std::string_view key)
{
    const auto text = propertyOf(properties, key);
    std::int64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || result.ec != std::errc{} || result.ptr != text.data() + text.size())
        return std::nullopt;
    return number;
}

GraphPort portFrom(GraphID id, const GraphProperties& properties)
{
    const auto format = propertyOf(properties, "format.dsp");
    return {
        .id = id,
        .nodeID = idOf(properties, "node.id"),
        .index = idOf(properties, "port.id"),
        .isOutput = propertyOf(properties, "port.direction") == "out",
        .isMonitor = propertyOf(properties, "port.monitor") == "true",
        .isAudio = format.empty() || format.find("audio") != std::string_view::npos,
        .channel = std::string{propertyOf(properties, "audio.channel")},
        .name = std::string{propertyOf(properties, "port.name")},
    };
}

GraphLink linkFrom(GraphID id, const GraphProperties& properties)
{
    return {
        .id = id,
        .serial = static_cast<GraphSerial>(numberOf(properties, "object.serial").value_or(0)),
        .outputNode = idOf(properties, "link.output.node"),
        .outputPort = idOf(properties, "link.output.port"),
        .inputNode = idOf(properties, "link.input.node"),
        .inputPort = idOf(properties, "link.input.port"),
    };
}

std::optional<GraphID> GraphNode::clientID() const
{
    const auto number = numberOf(properties, "client.id");
    if (!number || *number < 0)
        return std::nullopt;
    return static_cast<GraphID>(*number);
}

const GraphNode* Graph::node(GraphID id) const
{
    const auto found = nodes.find(id);
    return found == nodes.end() ? nullptr : &found->second;
}

const GraphNode* Graph::node(GraphID id, GraphSerial serial) const
{
    const auto* found = node(id);
    return found && found->serial == serial ? found : nullptr;
}

const GraphNode* Graph::nodeNamed(std::string_view name) const
{
    for (const auto& [id, node] : nodes) {
        if (node.name() == name)
            return &node;
    }
    return nullptr;
}

const GraphNode* Graph::nodeWithSerial(GraphSerial serial) const
{
    for (const auto& [id, node] : nodes) {
        if (node.serial == serial)
            return &node;
    }
    return nullptr;
}

std::vector<GraphPort> Graph::outputPorts(GraphID nodeID) const
{
    return portsOf(*this, nodeID, Direction::output);
}

std::vector<GraphPort> Graph::inputPorts(GraphID nodeID) const
{
    return portsOf(*this, nodeID, Direction::input);
}

const GraphLink* Graph::link(GraphID outputPort, GraphID inputPort) const
{
    for (const auto& [id, link] : links) {
        if (link.outputPort == outputPort && link.inputPort == inputPort)
            return &link;
    }
    return nullptr;
}

std::string_view Graph::metadataValue(GraphID subject, std::string_view key) const
{
    const auto entries = metadata.find(subject);
    if (entries == metadata.end())
        return {};
    const auto found = entries->second.find(key);
    return found == entries->second.end() ? std::string_view{} : std::string_view{found->second};
}

std::string Graph::defaultSinkName() const
{
    const std::string json{metadataValue(0, "default.audio.sink")};
    spa_json outer{};
    spa_json object{};
    spa_json_init(&outer, json.data(), json.size());
    if (spa_json_enter_object(&outer, &object) <= 0)
        return {};

    // Decoding never makes a text longer.
    std::string text(json.size() + 1, '\0');
    const auto capacity = static_cast<int>(text.size());
    while (spa_json_get_string(&object, text.data(), capacity) > 0) {
        const bool isName = std::strcmp(text.c_str(), "name") == 0;
        if (spa_json_get_string(&object, text.data(), capacity) <= 0)
            return {};
        if (isName)
            return text.c_str();
    }
    return {};
}

double Graph::graphRate() const
{
    constexpr double usualRate = 48000.0;
    for (const char* key : {"clock.force-rate", "clock.rate"}) {
        const auto rate = numberOf(settings, key);
        if (rate && *rate > 0)
            return static_cast<double>(*rate);
    }
    return usualRate;
}

}  // namespace fadeloom
