// SPDX-License-Identifier: MIT
// Where a stream plays without us: its own target, as interpreted by the session manager, else the default device.
#pragma once

#include "platform/pipewire/Graph.h"

#include <functional>
#include <string>

namespace fadeloom {

/// What anybody but us has written about a stream in the session manager's metadata. Empty: nothing. "-1": the default
/// device, regardless of the stream's properties.
struct ChosenTarget {
    std::string object;  // "target.object": a serial or a name.
    std::string node;  // "target.node": an id.

    friend bool operator==(const ChosenTarget&, const ChosenTarget&) = default;
};

using ChosenTargetOf = std::function<ChosenTarget(const GraphNode& stream)>;

/// The current metadata. Targets written by us are ignored.
[[nodiscard]] ChosenTarget chosenTargetIn(const Graph& graph, GraphID stream);

/// The node that is a stream's target, in the session manager's order: metadata object, metadata node, the stream's
/// "target.object", its "node.target". Null if it has none, or the node does not exist.
[[nodiscard]] const GraphNode* targetOf(
    const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen);
/// The device that a stream plays to without us: its target, else the default device. Null if its target is not a
/// device, or there is no default.
[[nodiscard]] const GraphNode* ownDevice(
    const Graph& graph, const GraphNode& stream, const ChosenTarget& chosen);

}  // namespace fadeloom
