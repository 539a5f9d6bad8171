// SPDX-License-Identifier: MIT
// The mirror of the PipeWire graph: plain values, as received in registry and info events.
//
// PipeWire reuses ids within milliseconds, so anything that outlives one event is keyed by id *and* serial.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

using GraphID = std::uint32_t;
using GraphSerial = std::uint64_t;
using GraphProperties = std::map<std::string, std::string, std::less<>>;

/// A property's text; empty if it is not set.
[[nodiscard]] std::string_view propertyOf(const GraphProperties& properties, std::string_view key);
/// A property's number; nullopt if it is not set or not a whole number.
[[nodiscard]] std::optional<std::int64_t> numberOf(const GraphProperties& properties, std::string_view key);

struct GraphClient {
    GraphID id = 0;
    GraphSerial serial = 0;
    GraphProperties properties;
    bool hasInfo = false;  // An info event was received; before that some properties are missing.
};

struct GraphNode {
    enum class State { creating, suspended, idle, running, error };

    GraphID id = 0;
    GraphSerial serial = 0;
    GraphProperties properties;
    State state = State::creating;
    std::uint32_t inputPortCount = 0;  // The final number, once all have appeared.
    bool hasInfo = false;

    [[nodiscard]] std::string_view mediaClass() const { return propertyOf(properties, "media.class"); }
    [[nodiscard]] std::string_view name() const { return propertyOf(properties, "node.name"); }
    [[nodiscard]] std::optional<GraphID> clientID() const;
    [[nodiscard]] bool isOutputStream() const { return mediaClass() == "Stream/Output/Audio"; }
    [[nodiscard]] bool isInputStream() const { return mediaClass() == "Stream/Input/Audio"; }
    [[nodiscard]] bool isSink() const
    {
        return mediaClass() == "Audio/Sink" || mediaClass() == "Audio/Duplex";
    }
};

struct GraphPort {
    GraphID id = 0;
    GraphID nodeID = 0;
    GraphID index = 0;  // The port's index in its node and direction.
    bool isOutput = false;
    bool isMonitor = false;
    bool isAudio = false;
    std::string channel;  // "FL", "AUX0", ...
    std::string name;
};

struct GraphLink {
    GraphID id = 0;
    GraphSerial serial = 0;
    GraphID outputNode = 0;
    GraphID outputPort = 0;
    GraphID inputNode = 0;
    GraphID inputPort = 0;
};

/// As announced by the registry.
[[nodiscard]] GraphPort portFrom(GraphID id, const GraphProperties& properties);
[[nodiscard]] GraphLink linkFrom(GraphID id, const GraphProperties& properties);

/// The current state of the graph. Thread: the graph thread, or any thread that holds its lock.
struct Graph {
    std::map<GraphID, GraphClient> clients;
    std::map<GraphID, GraphNode> nodes;
    std::map<GraphID, GraphPort> ports;
    std::map<GraphID, GraphLink> links;
    /// The session manager's metadata: subject, key, value.
    std::map<GraphID, std::map<std::string, std::string, std::less<>>> metadata;
    /// The server's settings, such as "clock.rate".
    GraphProperties settings;

    [[nodiscard]] const GraphNode* node(GraphID id) const;
    /// The node, if it still is the one with this serial.
    [[nodiscard]] const GraphNode* node(GraphID id, GraphSerial serial) const;
    [[nodiscard]] const GraphNode* nodeNamed(std::string_view name) const;
    [[nodiscard]] const GraphNode* nodeWithSerial(GraphSerial serial) const;
    /// A node's audio ports of one direction without monitors, by index.
    [[nodiscard]] std::vector<GraphPort> outputPorts(GraphID nodeID) const;
    [[nodiscard]] std::vector<GraphPort> inputPorts(GraphID nodeID) const;
    [[nodiscard]] const GraphLink* link(GraphID outputPort, GraphID inputPort) const;
    [[nodiscard]] std::string_view metadataValue(GraphID subject, std::string_view key) const;
    /// The name in the JSON value of "default.audio.sink"; empty if there is none.
    [[nodiscard]] std::string defaultSinkName() const;
    /// The graph's default rate, in hertz, which a driver may override.
    [[nodiscard]] double graphRate() const;
};

}  // namespace fadeloom
