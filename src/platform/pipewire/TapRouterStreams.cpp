// SPDX-License-Identifier: MIT
// The streams of the taps: which ones are captured, kept and released.
#include "platform/pipewire/TapRouter.h"

#include <algorithm>
#include <string>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// A session manager moves a stream within milliseconds, on a busy machine within a second. If it has not by then, it is
// not going to.
constexpr auto stuckAfter = 2000ms;
// How long a released stream may stay on our links while no session manager takes it.
constexpr auto giveUpAfter = 1000ms;
// How long a stream that has changed its device waits for a tap there.
constexpr auto pathWithin = 500ms;

/// Why a stream that should be ours stays on its device.
std::string reasonNotCaptured(const GraphNode& stream)
{
    // No session manager manages such a stream: whoever created its links keeps them.
    const auto autoconnect = propertyOf(stream.properties, "node.autoconnect");
    if (autoconnect != "true" && autoconnect != "1")
        return "the links of a stream were made by hand and stay; its application is heard as it is";
    return "the session manager does not move a stream to us; is moving streams switched off?";
}

}  // namespace

ChosenTarget TapRouter::chosenTarget(const GraphNode& stream) const
{
    const auto known = std::ranges::find_if(
        streams_, [&](const Stream& each) { return each.parked.serial() == stream.serial; });
    return known == streams_.end() ? chosenTargetIn(connection_.graph(), stream.id) : known->parked.chosen();
}

TapRouter::WantedPaths TapRouter::wantedPaths(const AudioWorld& world)
{
    const auto& graph = connection_.graph();
    std::vector<const TapRoute*> routes;
    std::map<const TapRoute*, TapPath*> paths;
    for (auto& path : paths_) {
        if (path.isReleased)
            continue;
        routes.push_back(&path.route);
        paths[&path.route] = &path;
    }
    const auto routing =
        routeStreams(graph, world, routes, [this](const GraphNode& stream) { return chosenTarget(stream); });
    for (const auto stream : routing.feedbackLoops) {
        if (reportedLoops_.insert(graph.node(stream)->serial).second)
            report_("a stream is not led to a device whose sound its program captures");
    }
    WantedPaths wanted;
    for (const auto& [stream, route] : routing.routes) {
        if (!leftAlone_.contains(graph.node(stream)->serial))
            wanted[stream] = paths.at(route);
    }
    return wanted;
}

TapRouter::Stream* TapRouter::streamWith(GraphID id)
{
    const auto found =
        std::ranges::find_if(streams_, [&](const Stream& stream) { return stream.parked.id() == id; });
    return found == streams_.end() ? nullptr : &*found;
}

void TapRouter::captureStreams(const WantedPaths& wanted)
{
    if (!park_ || !park_->nodeID())
        return;
    for (const auto& [id, path] : wanted) {
        if (!isReady(*path))
            continue;
        auto* known = streamWith(id);
        held_.handOver(id);
        if (!known) {
            streams_.push_back(Stream{.parked = ParkedStream{connection_, *connection_.graph().node(id)},
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

void TapRouter::hold(const GraphNode& stream)
{
    if (park_ && park_->nodeID() && isTappable(stream) && !streamWith(stream.id))
        held_.hold(stream, park_->name());
}

void TapRouter::streamChanged(const GraphNode& stream)
{
    if (held_.has(stream) && !isTappable(stream))
        held_.release(stream.id);
    // The doorbell has been answered: from now on it would be audible.
    const auto* known = streamWith(stream.id);
    if (known && known->path && !needsDoorbell(stream))
        links_.drop(stream.id, known->path->route.deviceNode);
}

void TapRouter::follow(Stream& stream, TapPath* wanted)
{
    // A path whose streams are handed over is left once the next one can take over.
    if (wanted && stream.path && wanted != stream.path && !stream.path->route.isStopped && !isReady(*wanted))
        wanted = stream.path;
    if (wanted) {
        stream.unroutedSince.reset();
        stream.path = wanted;
        keepParked(stream);
        if (!stream.parked.isContested())
            return;
        leftAlone_.insert(stream.parked.serial());
        report_("a stream that another program keeps moving is left alone");
    } else if (mayFindPath(stream)) {
        keepParked(stream);
        return;
    }
    release(stream);
}

bool TapRouter::mayFindPath(Stream& stream)
{
    // It has moved to a device for which its application has no tap yet. Until there is one, it stays where it is.
    if (!stream.path || stream.path->isReleased || stream.path->route.scope == StreamScope::every)
        return false;
    const auto now = std::chrono::steady_clock::now();
    if (!stream.unroutedSince)
        stream.unroutedSince = now;
    if (now - *stream.unroutedSince >= pathWithin)
        return false;
    connection_.callBackIn(pathWithin);
    return true;
}

void TapRouter::keepParked(Stream& stream)
{
    if (!park_ || !park_->nodeID())
        return;
    if (isWaitingForLinks(stream)) {
        connection_.callBackIn(linksWithin);
        return;
    }
    if (!stream.parked.ensureParkedOn(park_->name()))
        connection_.callBackIn(ParkedStream::rewriteInterval);

    if (!isDirect(stream) || stream.isStuckReported)
        return;
    if (std::chrono::steady_clock::now() - stream.since < stuckAfter) {
        connection_.callBackIn(stuckAfter);
    } else if (isRunning(stream)) {
        stream.isStuckReported = true;
        report_(reasonNotCaptured(*connection_.graph().node(stream.parked.id())));
    }
}

void TapRouter::release(Stream& stream)
{
    stream.isBeingGivenBack = true;
    stream.since = std::chrono::steady_clock::now();
    if (stream.path && stream.path->isReleased && stream.path->filter)
        stream.path->filter->passThrough();
    stream.parked.restoreTarget();
}

void TapRouter::finishReleasing()
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

}  // namespace fadeloom
