// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphSession.h"

#include <pipewire/thread-loop.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// How long startup may wait for the first snapshot.
constexpr auto startTimeout = 300ms;
// How long shutdown may wait for the applications to be back on their own devices.
constexpr auto stopTimeout = 1000ms;
// A device's new rate becomes visible only in its first cycle, which causes no event; so each burst of events is
// followed by another check.
constexpr auto recheckDelay = 150ms;

bool runs(std::int32_t pid, const std::string& binary)
{
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/" + std::to_string(pid) + "/exe", error);
    return !error && executable.filename() == binary;
}

}  // namespace

GraphSession::GraphSession(Callbacks callbacks)
    : callbacks_(std::move(callbacks))
    , connection_(events())
    , router_(connection_,
          [this](std::string text) { callbacks_.report(SystemLog::Level::error, std::move(text)); })
    , builder_({.runs = &runs, .watch = [this](std::int32_t pid) { return watch(pid); }})
    , world_(std::make_shared<AudioWorld>())
{
    connection_.start();
    // The first query should find the devices, as with any other audio system.
    const auto deadline = std::chrono::steady_clock::now() + startTimeout;
    while (!isReady_.load(std::memory_order_acquire) && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(1ms);
}

GraphSession::~GraphSession()
{
    releaseStopped();
    const auto deadline = std::chrono::steady_clock::now() + stopTimeout;
    const auto isIdle = [this] {
        const GraphLock lock{connection_};
        return !connection_.core() || router_.isIdle();
    };
    while (!isIdle() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(2ms);
    connection_.stop();
}

GraphEvents GraphSession::events()
{
    return {
        .graphChanged = [this] { graphChanged(); },
        .streamAppeared = [this](const GraphNode& stream) { streamAppeared(stream); },
        .streamChanged = [this](const GraphNode& stream) { router_.streamChanged(stream); },
        .clientChanged = [this](const GraphClient& client) { clientChanged(client); },
        .sessionManagerAppeared = [this] { router_.sessionManagerAppeared(); },
        .sessionManagerVanished = [this] { router_.sessionManagerVanished(); },
        .metadataChanged = [this](GraphID subject, const std::string& key,
                               const std::string& value) { router_.metadataChanged(subject, key, value); },
        .ownClientChanged = [this](std::uint64_t client) { callbacks_.ownClient(client); },
        .connected = [this] { connected(); },
        .stalled = [this] { stalled(); },
        .disconnected = [this] { disconnected(); },
    };
}

std::shared_ptr<const AudioWorld> GraphSession::world() const
{
    const std::scoped_lock lock{worldMutex_};
    return world_;
}

double GraphSession::rateOf(const AudioWorld::Device& device) const
{
    const GraphLock lock{connection_};
    const auto rate = router_.rateOf(device.serial);
    return rate > 0 ? rate : connection_.graph().graphRate();
}

bool GraphSession::isConnected() const
{
    const GraphLock lock{connection_};
    return connection_.core() != nullptr;
}

bool GraphSession::setDefaultDevice(const std::string& nodeName)
{
    const GraphLock lock{connection_};
    if (!connection_.hasSessionManager())
        return false;
    connection_.setMetadata(
        0, "default.configured.audio.sink", "Spa:String:JSON", defaultDeviceValue(nodeName));
    return true;
}

TapPath* GraphSession::startPath(std::set<AudioProcessID> processes, const AudioWorld::Device& device,
    std::shared_ptr<AudioIOProc> proc, StreamScope scope)
{
    const GraphLock lock{connection_};
    const auto* node = connection_.graph().node(device.node, device.serial);
    return node ? router_.addPath({.processes = std::move(processes),
                                      .deviceNode = node->id,
                                      .deviceSerial = node->serial,
                                      .scope = scope},
                      device.layout, std::move(proc))
                : nullptr;
}

std::size_t GraphSession::pathCount() const
{
    const GraphLock lock{connection_};
    return router_.pathCount();
}

void GraphSession::setProcesses(TapPath& path, std::set<AudioProcessID> processes)
{
    const GraphLock lock{connection_};
    router_.setProcesses(path, std::move(processes));
}

void GraphSession::stopPath(TapPath& path)
{
    const GraphLock lock{connection_};
    router_.stop(path);
}

void GraphSession::releaseStopped()
{
    const GraphLock lock{connection_};
    router_.releaseStopped();
}

void GraphSession::graphChanged()
{
    auto world = builder_.build(connection_.graph(),
        {.chosenTarget = [this](const GraphNode& stream) { return router_.chosenTarget(stream); },
            .isHeld = [this](const GraphNode& stream) { return router_.isHolding(stream); },
            .isLeftAlone = [this](const GraphNode& stream) { return router_.isLeftAlone(stream); }});
    router_.update(world);
    std::erase_if(applications_, [&](const auto& entry) {
        return std::ranges::none_of(connection_.graph().clients,
            [&](const auto& client) { return client.second.serial == entry.first; });
    });
    connection_.watchDataLoop(!router_.isIdle());
    std::erase_if(exits_, [&](const auto& entry) {
        return std::ranges::find(world.processes, entry.first, &AudioWorld::Process::pid)
            == world.processes.end();
    });
    publish(std::move(world));
    if (connection_.hasSessionManager())
        isReady_.store(true, std::memory_order_release);
    isRecheckDue_ = !isRecheckDue_;
    if (isRecheckDue_)
        connection_.callBackIn(recheckDelay);
}

void GraphSession::holdStreamsOf(std::set<std::string> applications)
{
    const GraphLock lock{connection_};
    heldApplications_ = std::move(applications);
}

bool GraphSession::isToBeHeld(const GraphClient& client)
{
    const auto identity = identityOf(client);
    const bool isBelieved =
        identity.trust != ClientIdentity::Trust::claimed || runs(identity.pid, identity.binary);
    if (heldApplications_.empty() || !callbacks_.application || !client.hasInfo || !isBelieved)
        return false;
    const auto [known, isNew] = applications_.try_emplace(client.serial);
    if (isNew)
        known->second = callbacks_.application(identity.pid, identity.portalAppID);
    return heldApplications_.contains(known->second);
}

void GraphSession::streamAppeared(const GraphNode& stream)
{
    const auto& clients = connection_.graph().clients;
    const auto id = stream.clientID();
    const auto client = id ? clients.find(*id) : clients.end();
    if (client != clients.end() && isToBeHeld(client->second))
        router_.hold(stream);
}

void GraphSession::clientChanged(const GraphClient& client)
{
    // If known beforehand, its streams can be held immediately; one that was faster is held now.
    if (applications_.contains(client.serial) || !isToBeHeld(client))
        return;
    for (const auto& [id, node] : connection_.graph().nodes) {
        if (node.clientID() == client.id && node.isOutputStream() && node.state == GraphNode::State::creating)
            router_.hold(node);
    }
}

void GraphSession::publish(AudioWorld next)
{
    auto changes = changesBetween(*world(), next);
    changes.outputDevices |= updateRates(next);
    {
        const std::scoped_lock lock{worldMutex_};
        world_ = std::make_shared<const AudioWorld>(std::move(next));
    }
    if (changes.any())
        callbacks_.changed(changes);
}

bool GraphSession::watch(std::int32_t pid)
{
    auto* loop = pw_thread_loop_get_loop(connection_.threadLoop());
    auto exit = std::make_unique<ProcessExit>(loop, pid, [this, pid] {
        builder_.processEnded(pid);
        connection_.requestUpdate();
    });
    const bool isWatching = exit->isWatching();
    exits_[pid] = std::move(exit);
    return isWatching;
}

bool GraphSession::updateRates(const AudioWorld& world)
{
    std::map<OutputDeviceID, double> rates;
    bool isAnyNew = false;
    for (const auto& device : world.devices) {
        const auto driven = router_.rateOf(device.serial);
        const auto rate = driven > 0 ? driven : connection_.graph().graphRate();
        rates[device.id] = rate;
        const auto former = rates_.find(device.id);
        isAnyNew |= former != rates_.end() && former->second != rate;
    }
    rates_ = std::move(rates);
    return isAnyNew;
}

void GraphSession::stalled()
{
    callbacks_.report(
        SystemLog::Level::error, "the audio thread stands still; applications play on without us");
}

void GraphSession::connected()
{
    callbacks_.report(SystemLog::Level::notice, "connected to PipeWire");
    // The first lookup reads all desktop entries; the first sound must not wait for that.
    if (callbacks_.application)
        static_cast<void>(callbacks_.application(getpid(), {}));
}

void GraphSession::disconnected()
{
    callbacks_.report(SystemLog::Level::error, "no PipeWire server; waiting for one");
    isReady_.store(true, std::memory_order_release);
    router_.disconnected();
    applications_.clear();
    builder_.forget();
    exits_.clear();
}

}  // namespace fadeloom
