// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphConnection.h"

#include "platform/pipewire/ClientRelease.h"
#include "platform/pipewire/GraphBinding.h"
#include "platform/pipewire/Heartbeat.h"
#include "platform/pipewire/MetadataBinding.h"

#include <pipewire/context.h>
#include <pipewire/core.h>
#include <pipewire/extensions/metadata.h>
#include <pipewire/keys.h>
#include <pipewire/pipewire.h>
#include <pipewire/properties.h>
#include <pipewire/thread-loop.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <utility>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A server that restarts is back within a fraction of a second; one that was never there need not be asked as often.
constexpr auto quickRetry = 200ms;
constexpr auto slowRetry = 1000ms;
constexpr int quickRetries = 25;
// While a client binds the metadata, the server holds back what changes from the clients that have bound it already,
// and never sends it. So once the tool that made a change has gone, the metadata is asked for anew.
constexpr auto rebindDelay = 300ms;

timespec toTimespec(std::chrono::milliseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    return {seconds.count(), std::chrono::nanoseconds{duration - seconds}.count()};
}

}  // namespace

class GraphConnection::Implementation {
public:
    explicit Implementation(GraphListener& listenerToTell)
        : listener(listenerToTell)
    {
        pw_init(nullptr, nullptr);
        loop = pw_thread_loop_new("fadeloom-graph", nullptr);
        context = pw_context_new(pw_thread_loop_get_loop(loop),
            pw_properties_new(PW_KEY_CONFIG_NAME, "client-rt.conf", nullptr), 0);
        update = pw_loop_add_event(pw_thread_loop_get_loop(loop), &onUpdate, this);
        callBack = pw_loop_add_timer(pw_thread_loop_get_loop(loop), &onCallBack, this);
        rebindTimer = pw_loop_add_timer(pw_thread_loop_get_loop(loop), &onRebind, this);
        retry = pw_loop_add_timer(pw_thread_loop_get_loop(loop), &onRetry, this);
        heartbeat =
            std::make_unique<Heartbeat>(pw_thread_loop_get_loop(loop), pw_context_get_data_loop(context),
                Heartbeat::Callbacks{.stalled = [this] { letGo(); },
                    .recovered = [this] { pw_loop_signal_event(pw_thread_loop_get_loop(loop), update); }});
    }

    ~Implementation()
    {
        stop();
        for (auto* source : {update, callBack, rebindTimer, retry})
            pw_loop_destroy_source(pw_thread_loop_get_loop(loop), source);
        pw_context_destroy(context);
        heartbeat.reset();
        pw_thread_loop_destroy(loop);
        pw_deinit();
    }

    void stop()
    {
        pw_thread_loop_stop(loop);
        disconnect();
    }
    void tryToConnect();
    void disconnect();
    void scheduleRetry(std::chrono::milliseconds delay) { setTimer(retry, delay); }
    void setTimer(spa_source* timer, std::chrono::milliseconds delay);
    void bindMetadataAgain();
    void globalAppeared(GraphID id, const char* type, const GraphProperties& properties);
    void globalVanished(GraphID id);
    void nodeChanged(GraphID id);
    void clientChanged(GraphID id);
    [[nodiscard]] std::unique_ptr<MetadataBinding> bindMetadata(GraphID id);
    void metadataProperty(GraphID subject, const char* key, const char* value);
    void settingProperty(const char* key, const char* value);

    static void onUpdate(void* self, std::uint64_t) { static_cast<Implementation*>(self)->runUpdate(); }
    static void onCallBack(void* self, std::uint64_t)
    {
        static_cast<Implementation*>(self)->callBackAt.reset();
        static_cast<Implementation*>(self)->runUpdate();
    }
    static void onRebind(void* self, std::uint64_t)
    {
        static_cast<Implementation*>(self)->bindMetadataAgain();
    }
    static void onRetry(void* self, std::uint64_t) { static_cast<Implementation*>(self)->tryToConnect(); }
    void runUpdate();
    void letGo();

    // Core events
    static void onCoreDone(void* self, std::uint32_t id, int sequence);
    static void onCoreError(void* self, std::uint32_t id, int sequence, int result, const char* message);
    // Registry events
    static void onGlobal(void* self, std::uint32_t id, std::uint32_t permissions, const char* type,
        std::uint32_t version, const spa_dict* properties);
    static void onGlobalRemove(void* self, std::uint32_t id)
    {
        static_cast<Implementation*>(self)->globalVanished(id);
    }
    GraphListener& listener;
    Graph graph;
    pw_thread_loop* loop = nullptr;
    pw_context* context = nullptr;
    spa_source* update = nullptr;
    spa_source* callBack = nullptr;
    spa_source* rebindTimer = nullptr;
    spa_source* retry = nullptr;
    std::optional<std::chrono::steady_clock::time_point> callBackAt;
    int failedAttempts = 0;
    std::unique_ptr<Heartbeat> heartbeat;

    pw_core* core = nullptr;
    spa_hook coreListener{};
    pw_registry* registry = nullptr;
    spa_hook registryListener{};
    GraphID ownClient = SPA_ID_INVALID;
    bool isLost = false;  // The server has gone; to be cleaned up in the loop's next turn.

    std::map<GraphID, std::unique_ptr<GraphBinding>> bindings;
    std::unique_ptr<MetadataBinding> metadata;  // The session manager's.
    std::unique_ptr<MetadataBinding> settings;
    int metadataSync = -1;  // The sequence after which the metadata is known in full.
    bool hasSessionManager = false;
};

void GraphConnection::Implementation::setTimer(spa_source* timer, std::chrono::milliseconds delay)
{
    auto value = toTimespec(delay);
    pw_loop_update_timer(pw_thread_loop_get_loop(loop), timer, &value, nullptr, false);
}

void GraphConnection::Implementation::tryToConnect()
{
    if (core)
        return;
    core = pw_context_connect(context, nullptr, 0);
    if (!core) {
        ++failedAttempts;
        scheduleRetry(failedAttempts < quickRetries ? quickRetry : slowRetry);
        if (failedAttempts == 1)
            listener.disconnected();
        return;
    }

    static constexpr pw_core_events coreEvents{
        .version = PW_VERSION_CORE_EVENTS,
        .done = &onCoreDone,
        .error = &onCoreError,
    };
    static constexpr pw_registry_events registryEvents{
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = &onGlobal,
        .global_remove = &onGlobalRemove,
    };
    failedAttempts = 0;
    isLost = false;
    coreListener = {};
    pw_core_add_listener(core, &coreListener, &coreEvents, this);
    registry = pw_core_get_registry(core, PW_VERSION_REGISTRY, 0);
    registryListener = {};
    pw_registry_add_listener(registry, &registryListener, &registryEvents, this);
    listener.connected();
}

void GraphConnection::Implementation::disconnect()
{
    if (!core)
        return;
    ownClient = SPA_ID_INVALID;
    listener.ownClientChanged(0);
    listener.disconnected();
    hasSessionManager = false;
    metadataSync = -1;
    metadata.reset();
    settings.reset();
    bindings.clear();
    pw_proxy_destroy(reinterpret_cast<pw_proxy*>(std::exchange(registry, nullptr)));
    spa_hook_remove(&coreListener);
    pw_core_disconnect(std::exchange(core, nullptr));
    graph = {};
}

/// The data loop stands still, and with it the sound of every application: the server drops all that we have, as if we
/// had ended.
void GraphConnection::Implementation::letGo()
{
    if (!registry || ownClient == SPA_ID_INVALID)
        return;
    listener.stalled();
    pw_registry_destroy(registry, ownClient);
}

void GraphConnection::Implementation::runUpdate()
{
    // Taking filters down waits for the data loop.
    if (heartbeat->isStalled())
        return;
    if (isLost) {
        isLost = false;
        disconnect();
        scheduleRetry(quickRetry);
    }
    listener.graphChanged();
}

void GraphConnection::Implementation::onCoreDone(void* self, std::uint32_t id, int sequence)
{
    auto& me = *static_cast<Implementation*>(self);
    if (id != PW_ID_CORE || sequence != me.metadataSync)
        return;
    me.metadataSync = -1;
    me.hasSessionManager = true;
    me.listener.sessionManagerAppeared();
    pw_loop_signal_event(pw_thread_loop_get_loop(me.loop), me.update);
}

void GraphConnection::Implementation::onCoreError(
    void* self, std::uint32_t id, int /*sequence*/, int result, const char* /*message*/)
{
    // Everything else that arrives here is a race with an object that has just gone.
    auto& me = *static_cast<Implementation*>(self);
    if (id != PW_ID_CORE || result != -EPIPE)
        return;
    me.isLost = true;
    pw_loop_signal_event(pw_thread_loop_get_loop(me.loop), me.update);
}

void GraphConnection::Implementation::onGlobal(void* self, std::uint32_t id, std::uint32_t /*permissions*/,
    const char* type, std::uint32_t /*version*/, const spa_dict* properties)
{
    auto& me = *static_cast<Implementation*>(self);
    me.globalAppeared(id, type, propertiesFrom(properties));
    pw_loop_signal_event(pw_thread_loop_get_loop(me.loop), me.update);
}

void GraphConnection::Implementation::globalAppeared(
    GraphID id, const char* type, const GraphProperties& properties)
{
    const auto serial = static_cast<GraphSerial>(numberOf(properties, "object.serial").value_or(0));
    if (std::strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        auto& node = graph.nodes[id] = {.id = id, .serial = serial, .properties = properties};
        // Only the info event tells which nodes belong together, so every node that makes or takes sound is bound.
        if (node.mediaClass().find("Audio") != std::string_view::npos)
            bindings[id] = std::make_unique<GraphBinding>(registry, node, [this, id] { nodeChanged(id); });
        if (node.isOutputStream())
            listener.streamAppeared(node);
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Client) == 0) {
        auto& client = graph.clients[id] = {.id = id, .serial = serial, .properties = properties};
        if (id == pw_proxy_get_bound_id(reinterpret_cast<pw_proxy*>(pw_core_get_client(core)))) {
            ownClient = id;
            listener.ownClientChanged(clientWord(id, serial));
        }
        bindings[id] = std::make_unique<GraphBinding>(registry, client, [this, id] { clientChanged(id); });
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Port) == 0) {
        graph.ports[id] = portFrom(id, properties);
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Link) == 0) {
        graph.links[id] = linkFrom(id, properties);
    } else if (std::strcmp(type, PW_TYPE_INTERFACE_Metadata) == 0) {
        const auto name = propertyOf(properties, "metadata.name");
        if (name == "default" && !metadata) {
            metadata = bindMetadata(id);
            metadataSync = pw_core_sync(core, PW_ID_CORE, 0);
            setTimer(rebindTimer, rebindDelay);
        } else if (name == "settings" && !settings) {
            settings = std::make_unique<MetadataBinding>(registry, id,
                [this](GraphID, const char* key, const char* value) { settingProperty(key, value); });
        }
    }
}

void GraphConnection::Implementation::nodeChanged(GraphID id)
{
    const auto& node = graph.nodes.at(id);
    if (node.isOutputStream())
        listener.streamChanged(node);
    pw_loop_signal_event(pw_thread_loop_get_loop(loop), update);
}

void GraphConnection::Implementation::clientChanged(GraphID id)
{
    listener.clientChanged(graph.clients.at(id));
    pw_loop_signal_event(pw_thread_loop_get_loop(loop), update);
}

std::unique_ptr<MetadataBinding> GraphConnection::Implementation::bindMetadata(GraphID id)
{
    return std::make_unique<MetadataBinding>(
        registry, id, [this](auto... change) { metadataProperty(change...); });
}

void GraphConnection::Implementation::bindMetadataAgain()
{
    if (metadata)
        metadata = bindMetadata(metadata->id());
}

void GraphConnection::Implementation::globalVanished(GraphID id)
{
    bindings.erase(id);
    graph.nodes.erase(id);
    if (graph.clients.erase(id) > 0)
        setTimer(rebindTimer, rebindDelay);
    graph.ports.erase(id);
    graph.links.erase(id);
    graph.metadata.erase(id);  // The id may be given to another object at once.
    if (metadata && metadata->id() == id) {
        metadata.reset();
        metadataSync = -1;
        graph.metadata.clear();
        if (std::exchange(hasSessionManager, false))
            listener.sessionManagerVanished();
    } else if (settings && settings->id() == id) {
        settings.reset();
        graph.settings.clear();
    }
    pw_loop_signal_event(pw_thread_loop_get_loop(loop), update);
}

void GraphConnection::Implementation::metadataProperty(GraphID subject, const char* key, const char* value)
{
    if (!key) {
        graph.metadata.erase(subject);
        return;
    }
    if (value)
        graph.metadata[subject][key] = value;
    else if (const auto entries = graph.metadata.find(subject); entries != graph.metadata.end())
        entries->second.erase(key);
    listener.metadataChanged(subject, key, value ? value : "");
    pw_loop_signal_event(pw_thread_loop_get_loop(loop), update);
}

void GraphConnection::Implementation::settingProperty(const char* key, const char* value)
{
    if (key && value)
        graph.settings[key] = value;
    else if (key)
        graph.settings.erase(key);
    pw_loop_signal_event(pw_thread_loop_get_loop(loop), update);
}

GraphConnection::GraphConnection(GraphListener& listener)
    : implementation_(std::make_unique<Implementation>(listener))
{
}

GraphConnection::~GraphConnection() = default;

void GraphConnection::start()
{
    implementation_->scheduleRetry(1ms);
    pw_thread_loop_start(implementation_->loop);
}

void GraphConnection::stop()
{
    implementation_->stop();
}

pw_thread_loop* GraphConnection::threadLoop() const
{
    return implementation_->loop;
}

const Graph& GraphConnection::graph() const
{
    return implementation_->graph;
}

pw_core* GraphConnection::core() const
{
    return implementation_->isLost ? nullptr : implementation_->core;
}

bool GraphConnection::hasSessionManager() const
{
    return implementation_->hasSessionManager;
}

void GraphConnection::setMetadata(
    GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value)
{
    auto& me = *implementation_;
    if (!me.metadata)
        return;
    me.metadata->set(subject, key, type, value);
    if (value)
        me.graph.metadata[subject][key] = *value;
    else
        me.graph.metadata[subject].erase(key);
}

void GraphConnection::destroyGlobal(GraphID id)
{
    if (implementation_->registry)
        pw_registry_destroy(implementation_->registry, id);
}

void GraphConnection::watchDataLoop(bool isNeeded)
{
    implementation_->heartbeat->setActive(isNeeded);
}

void GraphConnection::requestUpdate()
{
    pw_loop_signal_event(pw_thread_loop_get_loop(implementation_->loop), implementation_->update);
}

void GraphConnection::callBackIn(std::chrono::milliseconds delay)
{
    auto& me = *implementation_;
    const auto at = std::chrono::steady_clock::now() + delay;
    if (me.callBackAt && *me.callBackAt <= at)
        return;
    me.callBackAt = at;
    me.setTimer(me.callBack, delay);
}

GraphLock::GraphLock(const GraphConnection& connection)
    : loop_(connection.threadLoop())
{
    pw_thread_loop_lock(loop_);
}

GraphLock::~GraphLock()
{
    pw_thread_loop_unlock(loop_);
}

}  // namespace fadeloom
