// SPDX-License-Identifier: MIT
// A proxy for one node or client of the graph, which updates its mirror entry from info events.
#pragma once

#include "platform/pipewire/Graph.h"

#include <pipewire/client.h>
#include <pipewire/core.h>
#include <pipewire/node.h>
#include <pipewire/proxy.h>

#include <functional>

namespace fadeloom {

[[nodiscard]] GraphProperties propertiesFrom(const spa_dict* dictionary);

/// `changed` is called after each event. The mirror entry must outlive the binding. Thread: the graph thread.
class GraphBinding {
public:
    GraphBinding(pw_registry* registry, GraphNode& node, std::function<void()> changed);
    GraphBinding(pw_registry* registry, GraphClient& client, std::function<void()> changed);
    ~GraphBinding();
    GraphBinding(const GraphBinding&) = delete;
    GraphBinding& operator=(const GraphBinding&) = delete;

private:
    static void onNodeInfo(void* self, const pw_node_info* info);
    static void onClientInfo(void* self, const pw_client_info* info);

    GraphNode* node_ = nullptr;
    GraphClient* client_ = nullptr;
    std::function<void()> changed_;
    pw_proxy* proxy_ = nullptr;
    spa_hook listener_{};
};

}  // namespace fadeloom
