// SPDX-License-Identifier: MIT
#include "platform/pipewire/StreamTarget.h"

#include "platform/pipewire/GraphRules.h"

#include <algorithm>
#include <array>

namespace fadeloom {

namespace {

enum class NumberIs { serial, id };

struct Target {
    std::string_view text;
    NumberIs number = NumberIs::serial;
};

// The first entry that is set counts, even if it names no existing node.
Target firstTarget(const GraphNode& stream, const ChosenTarget& chosen)
{
    const std::array targets{
        Target{chosen.object, NumberIs::serial},
        Target{chosen.node, NumberIs::id},
        Target{propertyOf(stream.properties, "target.object"), NumberIs::serial},
        Target{propertyOf(stream.properties, "node.target"), NumberIs::id},
    };
    const auto* first =
        std::ranges::find_if(targets, [](const Target& target) { return !target.text.empty(); });
    return first == targets.end() ? Target{} : *first;
}

const GraphNode* nodeNamedBy(const Graph& graph, const Target& target)
{
    const GraphProperties words{{"number", std::string{target.text}}};
    if (const auto number = numberOf(words, "number")) {
        const auto* node = target.number == NumberIs::serial
            ? graph.nodeWithSerial(static_cast<GraphSerial>(*number))
            : graph.node(static_cast<GraphID>(*number));
        if (node)
            return node;
    }
    return target.text.empty() ? nullptr : graph.nodeNamed(target.text);
}

}  // namespace

ChosenTarget chosenTargetIn(const Graph& graph, GraphID stream)
{
    ChosenTarget chosen{
        .object = std::string{graph.metadataValue(stream, "target.object")},
        .node = std::string{graph.metadataValue(stream, "target.node")},
    };
    if (chosen.object.starts_with(parkNamePrefix))
        chosen.object.clear();
    return chosen;
}

const GraphNode* targetOf(const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen)
{
    const auto* node = nodeNamedBy(graph, firstTarget(stream, chosen));
    return node && node->name().starts_with(parkNamePrefix) ? nullptr : node;
}

const GraphNode* ownDevice(const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen)
{
    if (const auto* target = targetOf(graph, stream, chosen))
        return target->isSink() ? target : nullptr;
    const auto* standard = graph.nodeNamed(graph.defaultSinkName());
    return standard && standard->isSink() ? standard : nullptr;
}

}  // namespace fadeloom
