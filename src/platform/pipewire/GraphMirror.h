// SPDX-License-Identifier: MIT
// Keeps a `Graph` in sync with the server, for the lifetime of a connection.
#pragma once

#include "platform/pipewire/GraphBinding.h"
#include "platform/pipewire/GraphEvents.h"
#include "platform/pipewire/LoopTimer.h"
#include "platform/pipewire/MetadataBinding.h"

#include <spa/utils/hook.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct pw_core;
struct pw_loop;
struct pw_registry;
struct spa_dict;

namespace fadeloom {

/// Thread: the graph thread, or one that holds its lock.
class GraphMirror {
public:
    /// Starts listening to the registry of `core`. `changed` is called after each change. All arguments must outlive
    /// this.
    GraphMirror(pw_core* core, pw_loop* loop, const GraphEvents& events, std::function<void()> changed);
    ~GraphMirror();
    GraphMirror(const GraphMirror&) = delete;
    GraphMirror& operator=(const GraphMirror&) = delete;

    [[nodiscard]] const Graph& graph() const { return graph_; }
    [[nodiscard]] bool hasSessionManager() const { return hasSessionManager_; }
    /// The graph's object for our own connection, once it is known.
    [[nodiscard]] std::optional<GraphID> ownClient() const { return ownClient_; }

    /// Writes a metadata value, or removes it if `value` is nullopt. The mirror is updated immediately.
    void setMetadata(
        GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value);
    /// Destroys an object of the server's graph.
    void destroyGlobal(GraphID id);
    /// The core has processed everything up to this sequence number.
    void coreDone(int sequence);

private:
    static void onGlobal(void* self, std::uint32_t id, std::uint32_t permissions, const char* type,
        std::uint32_t version, const spa_dict* properties);
    static void onGlobalRemove(void* self, std::uint32_t id);

    void globalAppeared(GraphID id, const char* type, const GraphProperties& properties);
    void nodeAppeared(GraphID id, GraphSerial serial, const GraphProperties& properties);
    void clientAppeared(GraphID id, GraphSerial serial, const GraphProperties& properties);
    void metadataAppeared(GraphID id, std::string_view name);
    void globalVanished(GraphID id);
    void nodeChanged(GraphID id);
    void clientChanged(GraphID id);
    void bindMetadata(GraphID id);
    void metadataProperty(GraphID subject, const char* key, const char* value);
    void settingProperty(const char* key, const char* value);

    pw_core* const core_;
    const GraphEvents& events_;
    const std::function<void()> changed_;
    Graph graph_;
    std::optional<GraphID> ownClient_;
    int metadataSync_ = -1;  // The sequence number after which the metadata is completely known.
    bool hasSessionManager_ = false;

    pw_registry* const registry_;
    spa_hook listener_{};
    LoopTimer rebindTimer_;
    std::map<GraphID, std::unique_ptr<GraphBinding>> bindings_;
    std::unique_ptr<MetadataBinding> metadata_;  // The session manager's.
    std::unique_ptr<MetadataBinding> settings_;
};

}  // namespace fadeloom
