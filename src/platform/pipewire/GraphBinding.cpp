// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphBinding.h"

#include <pipewire/keys.h>
#include <pipewire/type.h>

namespace fadeloom {

namespace {

GraphNode::State stateFrom(pw_node_state state)
{
    switch (state) {
    case PW_NODE_STATE_ERROR:
        return GraphNode::State::error;
    case PW_NODE_STATE_CREATING:
        return GraphNode::State::creating;
    case PW_NODE_STATE_SUSPENDED:
        return GraphNode::State::suspended;
    case PW_NODE_STATE_IDLE:
        return GraphNode::State::idle;
    case PW_NODE_STATE_RUNNING:
        return GraphNode::State::running;
    }
    return GraphNode::State::error;
}

// An info event repeats all properties except some from the registry (such as those verified by the kernel), so they
// are merged into the known ones.
void overlay(GraphProperties& properties, const spa_dict* dictionary)
{
    for (auto& [key, value] : propertiesFrom(dictionary))
        properties.insert_or_assign(key, std::move(value));
}

}  // namespace

GraphProperties propertiesFrom(const spa_dict* dictionary)
{
    GraphProperties properties;
    if (!dictionary)
        return properties;
    for (std::uint32_t i = 0; i < dictionary->n_items; ++i) {
        const auto& item = dictionary->items[i];
        if (item.key && item.value)
            properties.emplace(item.key, item.value);
    }
    return properties;
}

GraphBinding::GraphBinding(pw_registry* registry, GraphNode& node, std::function<void()> changed)
    : node_(&node)
    , changed_(std::move(changed))
{
    static constexpr pw_node_events events{.version = PW_VERSION_NODE_EVENTS, .info = &onNodeInfo};
    proxy_ = static_cast<pw_proxy*>(
        pw_registry_bind(registry, node.id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0));
    if (proxy_)
        pw_proxy_add_object_listener(proxy_, &listener_, &events, this);
}

GraphBinding::GraphBinding(pw_registry* registry, GraphClient& client, std::function<void()> changed)
    : client_(&client)
    , changed_(std::move(changed))
{
    static constexpr pw_client_events events{.version = PW_VERSION_CLIENT_EVENTS, .info = &onClientInfo};
    proxy_ = static_cast<pw_proxy*>(
        pw_registry_bind(registry, client.id, PW_TYPE_INTERFACE_Client, PW_VERSION_CLIENT, 0));
    if (proxy_)
        pw_proxy_add_object_listener(proxy_, &listener_, &events, this);
}

GraphBinding::~GraphBinding()
{
    if (proxy_)
        pw_proxy_destroy(proxy_);
}

void GraphBinding::onNodeInfo(void* self, const pw_node_info* info)
{
    auto& me = *static_cast<GraphBinding*>(self);
    if ((info->change_mask & PW_NODE_CHANGE_MASK_PROPS) != 0)
        overlay(me.node_->properties, info->props);
    if ((info->change_mask & PW_NODE_CHANGE_MASK_STATE) != 0)
        me.node_->state = stateFrom(info->state);
    me.node_->inputPortCount = info->n_input_ports;
    me.node_->hasInfo = true;
    me.changed_();
}

void GraphBinding::onClientInfo(void* self, const pw_client_info* info)
{
    auto& me = *static_cast<GraphBinding*>(self);
    if ((info->change_mask & PW_CLIENT_CHANGE_MASK_PROPS) != 0)
        overlay(me.client_->properties, info->props);
    me.client_->hasInfo = true;
    me.changed_();
}

}  // namespace fadeloom
