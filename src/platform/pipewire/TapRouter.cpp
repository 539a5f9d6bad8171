// SPDX-License-Identifier: MIT
#include "platform/pipewire/TapRouter.h"

#include <unistd.h>

#include <algorithm>
#include <random>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A session manager moves a stream within milliseconds. One that has not by then is not going to.
constexpr auto stuckAfter = 300ms;
// How long a stream that is given back may stay on our links while no session manager takes it.
constexpr auto giveUpAfter = 1000ms;

std::string uniqueSuffix(unsigned number)
{
    static const auto run = std::random_device{}();
    return std::to_string(getpid()) + "-" + std::to_string(run) + "-" + std::to_string(number);
}

}  // namespace

TapRouter::TapRouter(GraphConnection& connection, std::function<void(std::string)> report)
    : connection_(connection)
    , report_(std::move(report))
    , links_([this] { connection_.requestUpdate(); })
{
}

TapRouter::~TapRouter() = default;

TapPath* TapRouter::addPath(
    std::set<AudioObjectID> processes, const GraphNode& device, const DeviceLayout& layout, AudioIOProc& proc)
{
    if (!connection_.core())
        return nullptr;
    auto filter = std::make_unique<TapFilter>(connection_.core(),
        std::string{tapNamePrefix} + uniqueSuffix(++nodesMade_), layout, proc,
        [this] { connection_.requestUpdate(); });
    if (!filter->isConnected())
        return nullptr;
    paths_.push_back({.processes = std::move(processes),
        .deviceNode = device.id,
        .deviceSerial = device.serial,
        .layout = layout,
        .filter = std::move(filter)});
    connection_.requestUpdate();
    return &paths_.back();
}

void TapRouter::setProcesses(TapPath& path, std::set<AudioObjectID> processes)
{
    path.processes = std::move(processes);
    connection_.requestUpdate();
}

void TapRouter::stop(TapPath& path)
{
    path.isStopped = true;
    if (path.filter)
        path.filter->stopRendering();
}

void TapRouter::releaseStopped()
{
    for (auto& path : paths_) {
        if (path.isStopped)
            path.isReleased = true;
    }
    connection_.requestUpdate();
}

void TapRouter::update(const AudioWorld& world)
{
    if (!connection_.core())
        return;
    if (connection_.hasSessionManager() && !park_)
        park_ = std::make_unique<Park>(connection_.core(),
            std::string{parkNamePrefix} + uniqueSuffix(++nodesMade_),
            [this] { connection_.requestUpdate(); });

    const Carriers carriers{connection_.graph()};
    forgetVanishedStreams();
    takeHoldOfStreams(world, carriers);
    for (auto& stream : streams_) {
        if (stream.isBeingGivenBack)
            continue;
        const auto* node = connection_.graph().node(stream.parked.id());
        auto* path = wantedPath(world, carriers, *node);
        if (path) {
            stream.path = path;
            keepParked(stream);
        } else {
            giveBack(stream);
        }
    }
    finishGivingBack();
    setGates();
    if (links_.bringAbout(connection_.core(), wantedLinks()))
        connection_.callBackIn(OwnLinks::retryDelay);
    cutParkLinks();
    destroyReleasedPaths();
}

void TapRouter::forgetVanishedStreams()
{
    streams_.remove_if([&](const Stream& stream) {
        return !connection_.graph().node(stream.parked.id(), stream.parked.serial());
    });
}

TapPath* TapRouter::wantedPath(const AudioWorld& world, const Carriers& carriers, const GraphNode& stream)
{
    const auto& clients = connection_.graph().clients;
    const auto clientID = stream.clientID();
    const auto client = clientID ? clients.find(*clientID) : clients.end();
    const auto* process = client == clients.end() ? nullptr : world.processOfClient(client->second.serial);
    if (!process || !isTappable(stream) || carriers.contains(stream))
        return nullptr;
    // A running path before a stopped one: it is the one that takes over.
    TapPath* wanted = nullptr;
    for (auto& path : paths_) {
        if (!path.isReleased && path.processes.contains(process->id) && (!wanted || wanted->isStopped))
            wanted = &path;
    }
    return wanted;
}

void TapRouter::takeHoldOfStreams(const AudioWorld& world, const Carriers& carriers)
{
    if (!park_ || !park_->nodeID())
        return;
    for (const auto& [id, node] : connection_.graph().nodes) {
        // What a stream insists on is told by its info event only.
        if (!node.isOutputStream() || !node.hasInfo)
            continue;
        const auto known =
            std::ranges::find_if(streams_, [&](const Stream& stream) { return stream.parked.id() == id; });
        auto* path = wantedPath(world, carriers, node);
        if (!path || !isReady(*path))
            continue;
        if (known == streams_.end()) {
            streams_.push_back(Stream{.parked = ParkedStream{connection_, node},
                .path = path,
                .since = std::chrono::steady_clock::now(),
                .parkLinks = {},
                .cutLinks = {}});
        } else if (known->isBeingGivenBack) {
            known->isBeingGivenBack = false;
            known->since = std::chrono::steady_clock::now();
        }
    }
}

void TapRouter::keepParked(Stream& stream)
{
    if (!park_ || !park_->nodeID())
        return;
    if (isWaitingForLinks(stream)) {
        connection_.callBackIn(linksWithin);
        return;
    }
    if (!stream.parked.keepOn(park_->name()))
        connection_.callBackIn(ParkedStream::rewriteInterval);

    if (!isDirect(stream) || stream.isStuckReported)
        return;
    if (std::chrono::steady_clock::now() - stream.since < stuckAfter) {
        connection_.callBackIn(stuckAfter);
    } else if (isRunning(stream)) {
        stream.isStuckReported = true;
        report_("the session manager does not move a stream to us; is moving streams switched off?");
    }
}

void TapRouter::giveBack(Stream& stream)
{
    stream.isBeingGivenBack = true;
    stream.since = std::chrono::steady_clock::now();
    if (stream.path && stream.path->isReleased && stream.path->filter)
        stream.path->filter->passThrough();
    stream.parked.giveBack();
}

void TapRouter::finishGivingBack()
{
    streams_.remove_if([&](const Stream& stream) {
        if (!stream.isBeingGivenBack)
            return false;
        if (isDirect(stream) || !connection_.hasSessionManager())
            return true;
        if (std::chrono::steady_clock::now() - stream.since >= giveUpAfter)
            return true;
        connection_.callBackIn(giveUpAfter);
        return false;
    });
}

bool TapRouter::isDirect(const Stream& stream) const
{
    return std::ranges::any_of(connection_.graph().links, [&](const auto& entry) {
        const auto& link = entry.second;
        if (link.outputNode != stream.parked.id() || links_.has(link.outputPort, link.inputPort))
            return false;
        const auto* target = connection_.graph().node(link.inputNode);
        return target && target->isSink();
    });
}

bool TapRouter::isRunning(const Stream& stream) const
{
    const auto* node = connection_.graph().node(stream.parked.id());
    return node && node->state == GraphNode::State::running;
}

bool TapRouter::hasAnotherSettledStream(const Stream& stream) const
{
    return std::ranges::any_of(streams_, [&](const Stream& other) {
        return &other != &stream && other.path == stream.path && !other.isBeingGivenBack && isRunning(other)
            && !isDirect(other);
    });
}

void TapRouter::setGates()
{
    for (auto& path : paths_) {
        if (!path.filter)
            continue;
        const auto runsThrough = [&](const Stream& stream) { return stream.path == &path; };
        const bool isHeardTwice = std::ranges::any_of(streams_, [&](const Stream& stream) {
            return runsThrough(stream) && isRunning(stream) && isDirect(stream)
                && !hasAnotherSettledStream(stream);
        });
        // Once its last stream is back on a device a released path falls silent, before its filter is really gone.
        const bool isOver = path.isReleased && std::ranges::none_of(streams_, runsThrough);
        path.filter->setGateOpen(!isHeardTwice && !isOver);
    }
}

void TapRouter::destroyReleasedPaths()
{
    paths_.remove_if([&](const TapPath& path) {
        return path.isReleased
            && std::ranges::none_of(streams_, [&](const Stream& stream) { return stream.path == &path; });
    });
}

void TapRouter::sessionManagerAppeared()
{
    for (auto& stream : streams_)
        stream.parked.sessionManagerForgot();
}

void TapRouter::sessionManagerVanished()
{
    // The next one could not adopt it: some generations then stop linking anything.
    park_.reset();
}

void TapRouter::metadataChanged(GraphID subject, const std::string& key, const std::string& value)
{
    for (auto& stream : streams_) {
        if (stream.parked.id() == subject)
            stream.parked.metadataChanged(key, value);
    }
}

void TapRouter::disconnected()
{
    links_.clear();
    streams_.clear();
    park_.reset();
    for (auto& path : paths_)
        path.filter.reset();
    paths_.remove_if([](const TapPath& path) { return path.isReleased; });
}

double TapRouter::rateOf(GraphSerial deviceSerial) const
{
    for (const auto& path : paths_) {
        if (path.deviceSerial == deviceSerial && path.filter && !path.isStopped && path.filter->rate() > 0)
            return path.filter->rate();
    }
    return 0;
}

}  // namespace fadeloom
