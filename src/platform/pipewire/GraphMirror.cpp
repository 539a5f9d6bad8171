// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphMirror.h"

#include "platform/pipewire/ClientRelease.h"

#include <pipewire/client.h>
#include <pipewire/core.h>
#include <pipewire/extensions/metadata.h>
#include <pipewire/link.h>
#include <pipewire/node.h>
#include <pipewire/port.h>
#include <pipewire/proxy.h>
#include <pipewire/type.h>

#include <chrono>
#include <cstring>
#include <utility>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// While a client binds the metadata, the server withholds changes from the clients that have already bound it, and
// never sends them. So after the tool that made a change has gone, the metadata is bound again.
constexpr auto rebindDelay = 300ms;

}  // namespace

GraphMirror::GraphMirror(
    pw_core* core, pw_loop* loop, const GraphEvents& events, std::function<void()> changed)
    : core_(core)
    , events_(events)
    , changed_(std::move(changed))
    , registry_(pw_core_get_registry(core, PW_VERSION_REGISTRY, 0))
    , rebindTimer_(loop, [this] {
        if (metadata_)
            bindMetadata(metadata_->id());
    })
{
    static constexpr pw_registry_events registryEvents{
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = &onGlobal,
        .global_remove = &onGlobalRemove,
    };
    pw_registry_add_listener(registry_, &listener_, &registryEvents, this);
}

GraphMirror::~GraphMirror()
{
    metadata_.reset();
    settings_.reset();
    bindings_.clear();
    pw_proxy_destroy(reinterpret_cast<pw_proxy*>(registry_));
}

void GraphMirror::setMetadata(
    GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value)
{
    if (!metadata_)
        return;
    metadata_->set(subject, key, type, value);
    if (value)
        graph_.metadata[subject][key] = *value;
    else
        graph_.metadata[subject].erase(key);
}

void GraphMirror::destroyGlobal(GraphID id)
{
    pw_registry_destroy(registry_, id);
}

void GraphMirror::coreDone(int sequence)
{
    if (sequence != metadataSync_)
        return;
    metadataSync_ = -1;
    hasSessionManager_ = true;
    events_.sessionManagerAppeared();
    changed_();
}

void GraphMirror::onGlobal(void* self, std::uint32_t id, std::uint32_t /*permissions*/, const char* type,
    std::uint32_t /*version*/, const spa_dict* properties)
{
    auto& mirror = *static_cast<GraphMirror*>(self);
    mirror.globalAppeared(id, type, propertiesFrom(properties));
    mirror.changed_();
}

void GraphMirror::onGlobalRemove(void* self, std::uint32_t id)
{
    auto& mirror = *static_cast<GraphMirror*>(self);
    mirror.globalVanished(id);
    mirror.changed_();
}

void GraphMirror::globalAppeared(GraphID id, const char* type, const GraphProperties& properties)
{
    const auto serial = static_cast<GraphSerial>(numberOf(properties, "object.serial").value_or(0));
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) == 0)
        nodeAppeared(id, serial, properties);
    else if (std::strcmp(type, PW_TYPE_INTERFACE_Client) == 0)
        clientAppeared(id, serial, properties);
    else if (std::strcmp(type, PW_TYPE_INTERFACE_Port) == 0)
        graph_.ports[id] = portFrom(id, properties);
    else if (std::strcmp(type, PW_TYPE_INTERFACE_Link) == 0)
        graph_.links[id] = linkFrom(id, properties);
    else if (std::strcmp(type, PW_TYPE_INTERFACE_Metadata) == 0)
        metadataAppeared(id, propertyOf(properties, "metadata.name"));
}

void GraphMirror::nodeAppeared(GraphID id, GraphSerial serial, const GraphProperties& properties)
{
    auto& node = graph_.nodes[id] = {.id = id, .serial = serial, .properties = properties};
    // Only the info event tells which nodes belong together, so every node that produces or consumes audio is bound.
    if (node.mediaClass().find("Audio") != std::string_view::npos)
        bindings_[id] = std::make_unique<GraphBinding>(registry_, node, [this, id] { nodeChanged(id); });
    if (node.isOutputStream())
        events_.streamAppeared(node);
}

void GraphMirror::clientAppeared(GraphID id, GraphSerial serial, const GraphProperties& properties)
{
    auto& client = graph_.clients[id] = {.id = id, .serial = serial, .properties = properties};
    if (id == pw_proxy_get_bound_id(reinterpret_cast<pw_proxy*>(pw_core_get_client(core_)))) {
        ownClient_ = id;
        events_.ownClientChanged(clientWord(id, serial));
    }
    bindings_[id] = std::make_unique<GraphBinding>(registry_, client, [this, id] { clientChanged(id); });
}

void GraphMirror::metadataAppeared(GraphID id, std::string_view name)
{
    if (name == "default" && !metadata_) {
        bindMetadata(id);
        metadataSync_ = pw_core_sync(core_, PW_ID_CORE, 0);
        rebindTimer_.start(rebindDelay);
    } else if (name == "settings" && !settings_) {
        settings_ = std::make_unique<MetadataBinding>(registry_, id,
            [this](GraphID, const char* key, const char* value) { settingProperty(key, value); });
    }
}

void GraphMirror::globalVanished(GraphID id)
{
    bindings_.erase(id);
    graph_.nodes.erase(id);
    if (graph_.clients.erase(id) > 0)
        rebindTimer_.start(rebindDelay);
    graph_.ports.erase(id);
    graph_.links.erase(id);
    graph_.metadata.erase(id);  // The id may be reused immediately.
    if (metadata_ && metadata_->id() == id) {
        metadata_.reset();
        metadataSync_ = -1;
        graph_.metadata.clear();
        if (std::exchange(hasSessionManager_, false))
            events_.sessionManagerVanished();
    } else if (settings_ && settings_->id() == id) {
        settings_.reset();
        graph_.settings.clear();
    }
}

void GraphMirror::nodeChanged(GraphID id)
{
    const auto& node = graph_.nodes.at(id);
    if (node.isOutputStream())
        events_.streamChanged(node);
    changed_();
}

void GraphMirror::clientChanged(GraphID id)
{
    events_.clientChanged(graph_.clients.at(id));
    changed_();
}

void GraphMirror::bindMetadata(GraphID id)
{
    metadata_ = std::make_unique<MetadataBinding>(
        registry_, id, [this](auto... change) { metadataProperty(change...); });
}

void GraphMirror::metadataProperty(GraphID subject, const char* key, const char* value)
{
    if (!key) {
        graph_.metadata.erase(subject);
        return;
    }
    if (value)
        graph_.metadata[subject][key] = value;
    else if (const auto entries = graph_.metadata.find(subject); entries != graph_.metadata.end())
        entries->second.erase(key);
    events_.metadataChanged(subject, key, value ? value : "");
    changed_();
}

void GraphMirror::settingProperty(const char* key, const char* value)
{
    if (key && value)
        graph_.settings[key] = value;
    else if (key)
        graph_.settings.erase(key);
    changed_();
}

}  // namespace fadeloom
