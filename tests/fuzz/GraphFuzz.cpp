// SPDX-License-Identifier: MIT
// Arbitrary properties and metadata of a graph's nodes and clients: its devices and processes have ids, no stream is
// led to something that is no device, and a device of any name can be made the default.
//
// Each line of the input is "N KEY VALUE": for N from 0 a property of the client, the stream, the device and a
// recorder, 4 and 5 metadata about nothing and about the stream, 6 a setting of the server.
#include "platform/pipewire/AudioWorld.h"
#include "tests/fuzz/Require.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fadeloom;

namespace {

constexpr GraphID client = 1;
constexpr GraphID stream = 2;
constexpr GraphID device = 3;
constexpr GraphID recorder = 4;

Graph plainGraph()
{
    Graph graph;
    graph.clients[client] = {.id = client,
        .serial = 11,
        .properties = {{"application.process.id", "100"}, {"application.process.binary", "player"}},
        .hasInfo = true};
    const auto add = [&](GraphID id, const char* mediaClass, const char* name) {
        graph.nodes[id] = {.id = id,
            .serial = id + 10,
            .properties = {{"media.class", mediaClass}, {"node.name", name}, {"client.id", "1"}},
            .state = GraphNode::State::running,
            .inputPortCount = 2,
            .hasInfo = true};
    };
    add(stream, "Stream/Output/Audio", "player");
    add(device, "Audio/Sink", "speakers");
    add(recorder, "Stream/Input/Audio", "recorder");
    for (GraphID i = 0; i < 2; ++i) {
        graph.ports[20 + i] = {
            .id = 20 + i, .nodeID = device, .index = i, .isAudio = true, .channel = {}, .name = {}};
        graph.ports[30 + i] = {.id = 30 + i,
            .nodeID = stream,
            .index = i,
            .isOutput = true,
            .isAudio = true,
            .channel = {},
            .name = {}};
    }
    graph.metadata[0]["default.audio.sink"] = R"({"name":"speakers"})";
    return graph;
}

void change(Graph& graph, std::string_view line)
{
    const auto key = line.substr(0, 1);
    const auto rest = line.substr(std::min<std::size_t>(line.size(), 2));
    const std::string name(rest.substr(0, rest.find(' ')));
    const std::string value(rest.substr(std::min(rest.size(), name.size() + 1)));
    if (key == "0")
        graph.clients[client].properties[name] = value;
    else if (key == "1" || key == "2" || key == "3")
        graph.nodes[static_cast<GraphID>(key.front() - '0') + 1].properties[name] = value;
    else if (key == "4" || key == "5")
        graph.metadata[key == "4" ? 0 : stream][name] = value;
    else if (key == "6")
        graph.settings[name] = value;
}

/// Device names are JSON in metadata: PipeWire rejects what is not UTF-8, and the delete character.
bool isDeviceName(std::string_view bytes)
{
    try {
        static_cast<void>(nlohmann::json(bytes).dump());
    } catch (const nlohmann::json::type_error&) {
        return false;
    }
    return bytes.find_first_of(std::string_view("\0\x7f", 2)) == std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    auto graph = plainGraph();
    for (auto rest = bytes; !rest.empty();) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        change(graph, line);
    }

    AudioWorldBuilder builder({.runs = [](std::int32_t, const std::string&) { return true; },
        .watch = [](std::int32_t) { return true; }});
    const auto no = [](const GraphNode&) { return false; };
    const auto chosenTarget = [&](const GraphNode& node) { return chosenTargetIn(graph, node.id); };
    const auto build = [&] {
        return builder.build(graph, {.chosenTarget = chosenTarget, .isHeld = no, .isLeftAlone = no});
    };
    const auto world = build();
    require(!changesBetween(world, build()).any(), "a graph that stays the same is the same world");
    for (const auto& each : world.devices)
        require(each.id != 0 && world.device(each.id) == &each, "a device has an id of its own");
    for (const auto& process : world.processes) {
        require(process.id != 0 && world.process(process.id) == &process, "a process has an id of its own");
        for (const auto& uid : process.ownOutputs)
            require(world.deviceWithUID(uid) != nullptr, "a stream plays to a device");
    }
    require(graph.graphRate() > 0, "a graph has a rate");

    if (isDeviceName(bytes)) {
        graph.metadata[0]["default.audio.sink"] = defaultDeviceValue(std::string(bytes));
        require(graph.defaultSinkName() == bytes, "a device of any name can be the default");
    }
    return 0;
}
