// SPDX-License-Identifier: MIT
#include "platform/pipewire/TapRouter.h"

#include <unistd.h>

#include <algorithm>
#include <random>

namespace fadeloom {

namespace {

std::string uniqueSuffix(unsigned number)
{
    static const auto run = std::random_device{}();
    return std::to_string(getpid()) + "-" + std::to_string(run) + "-" + std::to_string(number);
}

}  // namespace

TapRouter::TapRouter(GraphConnection& connection, std::function<void(std::string)> report)
    : connection_(connection)
    , report_(std::move(report))
    , held_(connection)
    , links_([this] { connection_.requestUpdate(); })
{
}

TapRouter::~TapRouter() = default;

TapPath* TapRouter::addPath(TapRoute route, const DeviceLayout& layout, std::shared_ptr<AudioIOProc> proc)
{
    if (!connection_.core())
        return nullptr;
    auto filter = std::make_unique<TapFilter>(connection_.core(),
        std::string{tapNamePrefix} + uniqueSuffix(++nodesMade_), layout, std::move(proc),
        [this] { connection_.requestUpdate(); });
    if (!filter->isConnected())
        return nullptr;
    paths_.push_back({.route = std::move(route), .layout = layout, .filter = std::move(filter)});
    connection_.requestUpdate();
    return &paths_.back();
}

void TapRouter::setProcesses(TapPath& path, std::set<AudioProcessID> processes)
{
    path.route.processes = std::move(processes);
    connection_.requestUpdate();
}

void TapRouter::stop(TapPath& path)
{
    path.route.isStopped = true;
    if (path.filter)
        path.filter->stopRendering();
}

void TapRouter::releaseStopped()
{
    for (auto& path : paths_) {
        if (path.route.isStopped)
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

    forgetVanishedStreams();
    const auto wanted = wantedPaths(world);
    captureStreams(wanted);
    for (auto& stream : streams_) {
        const auto found = wanted.find(stream.parked.id());
        if (!stream.isBeingGivenBack)
            follow(stream, found == wanted.end() ? nullptr : found->second);
    }
    held_.update();
    finishReleasing();
    setGates();
    if (links_.reconcile(connection_.core(), wantedLinks()))
        connection_.callBackIn(OwnLinks::retryDelay);
    cutParkLinks();
    destroyReleasedPaths();
}

void TapRouter::forgetVanishedStreams()
{
    streams_.remove_if([&](const Stream& stream) {
        return !connection_.graph().node(stream.parked.id(), stream.parked.serial());
    });
    for (auto* serials : {&leftAlone_, &reportedLoops_})
        std::erase_if(
            *serials, [&](GraphSerial serial) { return !connection_.graph().nodeWithSerial(serial); });
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
        // Once its last stream is back on a device, a released path falls silent, before its filter is actually gone.
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
    // The next one could not adopt it: some versions then stop linking anything.
    park_.reset();
    held_.clear();
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
    held_.clear();
    leftAlone_.clear();
    reportedLoops_.clear();
    park_.reset();
    for (auto& path : paths_)
        path.filter.reset();
    paths_.remove_if([](const TapPath& path) { return path.isReleased; });
}

double TapRouter::rateOf(GraphSerial deviceSerial) const
{
    for (const auto& path : paths_) {
        if (path.route.deviceSerial == deviceSerial && path.filter && !path.route.isStopped
            && path.filter->rate() > 0)
            return path.filter->rate();
    }
    return 0;
}

}  // namespace fadeloom
