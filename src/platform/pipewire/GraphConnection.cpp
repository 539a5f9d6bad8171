// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphConnection.h"

#include <pipewire/context.h>
#include <pipewire/core.h>
#include <pipewire/keys.h>
#include <pipewire/pipewire.h>
#include <pipewire/properties.h>
#include <pipewire/thread-loop.h>

#include <cerrno>
#include <utility>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A restarting server is back within a fraction of a second; one that never existed need not be tried as often.
constexpr auto quickRetry = 200ms;
constexpr auto slowRetry = 1000ms;
constexpr int quickRetries = 25;

}  // namespace

GraphConnection::GraphConnection(GraphEvents events)
    : events_(std::move(events))
{
    pw_init(nullptr, nullptr);
    loop_ = pw_thread_loop_new("fadeloom-graph", nullptr);
    auto* const loop = pw_thread_loop_get_loop(loop_);
    context_ = pw_context_new(loop, pw_properties_new(PW_KEY_CONFIG_NAME, "client-rt.conf", nullptr), 0);
    update_ = pw_loop_add_event(
        loop, [](void* self, std::uint64_t) { static_cast<GraphConnection*>(self)->update(); }, this);
    heartbeat_ = std::make_unique<Heartbeat>(loop, pw_context_get_data_loop(context_),
        Heartbeat::Callbacks{
            .stalled = [this] { releaseEverything(); }, .recovered = [this] { requestUpdate(); }});
    callBackTimer_ = std::make_unique<LoopTimer>(loop, [this] {
        callBackAt_.reset();
        update();
    });
    retryTimer_ = std::make_unique<LoopTimer>(loop, [this] { tryToConnect(); });
}

GraphConnection::~GraphConnection()
{
    stop();
    retryTimer_.reset();
    callBackTimer_.reset();
    pw_loop_destroy_source(pw_thread_loop_get_loop(loop_), update_);
    pw_context_destroy(context_);
    heartbeat_.reset();  // After the data loop's thread, which ends with the context.
    pw_thread_loop_destroy(loop_);
    pw_deinit();
}

void GraphConnection::start()
{
    retryTimer_->start(1ms);
    pw_thread_loop_start(loop_);
}

void GraphConnection::stop()
{
    pw_thread_loop_stop(loop_);
    disconnect();
}

const Graph& GraphConnection::graph() const
{
    static const Graph none;
    return mirror_ ? mirror_->graph() : none;
}

void GraphConnection::setMetadata(
    GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value)
{
    if (mirror_)
        mirror_->setMetadata(subject, key, type, value);
}

void GraphConnection::destroyGlobal(GraphID id)
{
    if (mirror_)
        mirror_->destroyGlobal(id);
}

void GraphConnection::requestUpdate()
{
    pw_loop_signal_event(pw_thread_loop_get_loop(loop_), update_);
}

void GraphConnection::callBackIn(std::chrono::milliseconds delay)
{
    const auto at = std::chrono::steady_clock::now() + delay;
    if (callBackAt_ && *callBackAt_ <= at)
        return;
    callBackAt_ = at;
    callBackTimer_->start(delay);
}

void GraphConnection::tryToConnect()
{
    if (core_)
        return;
    core_ = pw_context_connect(context_, nullptr, 0);
    if (!core_) {
        ++failedAttempts_;
        retryTimer_->start(failedAttempts_ < quickRetries ? quickRetry : slowRetry);
        if (failedAttempts_ == 1)
            events_.disconnected();
        return;
    }

    static constexpr pw_core_events coreEvents{
        .version = PW_VERSION_CORE_EVENTS,
        .done = &onCoreDone,
        .error = &onCoreError,
    };
    failedAttempts_ = 0;
    isLost_ = false;
    coreListener_ = {};
    pw_core_add_listener(core_, &coreListener_, &coreEvents, this);
    mirror_ = std::make_unique<GraphMirror>(
        core_, pw_thread_loop_get_loop(loop_), events_, [this] { requestUpdate(); });
    events_.connected();
}

void GraphConnection::disconnect()
{
    if (!core_)
        return;
    events_.ownClientChanged(0);
    events_.disconnected();
    mirror_.reset();
    spa_hook_remove(&coreListener_);
    pw_core_disconnect(std::exchange(core_, nullptr));
}

/// The data loop has stalled, and with it the audio of every application: the server drops all our objects, as if we
/// had exited.
void GraphConnection::releaseEverything()
{
    if (!mirror_ || !mirror_->ownClient())
        return;
    events_.stalled();
    mirror_->destroyGlobal(*mirror_->ownClient());
}

void GraphConnection::update()
{
    // Destroying filters would block on the data loop.
    if (heartbeat_->isStalled())
        return;
    if (isLost_) {
        isLost_ = false;
        disconnect();
        retryTimer_->start(quickRetry);
    }
    events_.graphChanged();
}

void GraphConnection::onCoreDone(void* self, std::uint32_t id, int sequence)
{
    auto& connection = *static_cast<GraphConnection*>(self);
    if (id == PW_ID_CORE && connection.mirror_)
        connection.mirror_->coreDone(sequence);
}

void GraphConnection::onCoreError(
    void* self, std::uint32_t id, int /*sequence*/, int result, const char* /*message*/)
{
    // All other errors that arrive here are races with an object that has just been removed.
    if (id != PW_ID_CORE || result != -EPIPE)
        return;
    auto& connection = *static_cast<GraphConnection*>(self);
    connection.isLost_ = true;
    connection.requestUpdate();
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
