// SPDX-License-Identifier: MIT
// Where a stream plays without us: its own target, as the session manager reads it, else the default device.
#pragma once

#include "platform/pipewire/Graph.h"

#include <functional>
#include <string>

namespace fadeloom {

/// What anybody but us has written about a stream in the session manager's metadata. Empty: nothing. "-1": the default
/// device, whatever the stream's properties say.
struct ChosenTarget {
    std::string object;  // "target.object": a serial or a name.
    std::string node;  // "target.node": an id.

    friend bool operator==(const ChosenTarget&, const ChosenTarget&) = default;
};

using ChosenTargetOf = std::function<ChosenTarget(const GraphNode& stream)>;

/// As the metadata has it now. A target of ours is nobody's choice.
[[nodiscard]] ChosenTarget chosenTargetIn(const Graph& graph, GraphID stream);

/// The node that a stream's target names, in the session manager's order: metadata object, metadata node, the stream's
/// "target.object", its "node.target". Null when it has none, or what it names is not there.
[[nodiscard]] const GraphNode* targetOf(
    const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen);
/// The device that a stream plays to without us: its target, else the default device. Null when its target is no
/// device, or there is no default.
[[nodiscard]] const GraphNode* ownDevice(
    const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen);

}  // namespace fadeloom
