// SPDX-License-Identifier: MIT
// Brings the graph to the wanted state: which streams run through which tap.
//
//      app stream ─► park (the session manager's doing; cut once our own link is up)
//          └───────► tap filter ─► device (our links)
//
// There is one function that decides, `update`. It is run after every burst of events and whenever the wanted state
// has changed, looks at the mirror as it is, and takes the next steps; it may be run at any time, any number of times.
//
// A stream's way, seen from here: *direct* (on its device, not ours) -> *parked* (the session manager keeps it on the
// park; our links carry it through a filter) -> *given back* (its target is restored; our links stay until the
// session manager's link to a device is there, so that nothing is missing in between) -> direct.
#pragma once

#include "platform/pipewire/AudioWorld.h"
#include "platform/pipewire/HeldStreams.h"
#include "platform/pipewire/OwnLinks.h"
#include "platform/pipewire/Park.h"
#include "platform/pipewire/ParkedStream.h"
#include "platform/pipewire/StreamRouting.h"
#include "platform/pipewire/TapFilter.h"

#include <chrono>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace fadeloom {

/// The way of one tap: from the streams of some processes to one device.
struct TapPath {
    TapRoute route;
    DeviceLayout layout;
    std::unique_ptr<TapFilter> filter;
    bool isReleased = false;  // No other path has: its streams go back to their own devices.
};

/// Thread: the graph thread or one that holds its lock.
class TapRouter {
public:
    /// `report` is given sentences for the log.
    TapRouter(GraphConnection& connection, std::function<void(std::string)> report);
    ~TapRouter();
    TapRouter(const TapRouter&) = delete;
    TapRouter& operator=(const TapRouter&) = delete;

    /// Starts a path; null when there is no server or it refuses. Takes effect in the following updates.
    TapPath* addPath(TapRoute route, const DeviceLayout& layout, std::shared_ptr<AudioIOProc> proc);
    void setProcesses(TapPath& path, std::set<AudioProcessID> processes);
    /// When this returns the path's procedure is not running and is not called again.
    void stop(TapPath& path);
    /// Gives the streams of stopped paths back, unless a path added since has taken them over.
    void releaseStopped();
    /// No path is left, and no stream is still being given back.
    [[nodiscard]] std::size_t pathCount() const { return paths_.size(); }
    [[nodiscard]] bool isIdle() const { return paths_.empty() && streams_.empty(); }

    /// Takes the next steps; `world` is the picture of the graph as it is.
    void update(const AudioWorld& world);
    void sessionManagerAppeared();
    void sessionManagerVanished();
    void metadataChanged(GraphID subject, const std::string& key, const std::string& value);
    void disconnected();
    /// A new stream that is not to be heard past a tap.
    void hold(const GraphNode& stream);
    /// Whether a stream waits for its tap.
    [[nodiscard]] bool isHolding(const GraphNode& stream) const { return held_.has(stream); }
    /// Whether a stream is left to another program, which keeps moving it.
    [[nodiscard]] bool isLeftAlone(const GraphNode& stream) const
    {
        return leftAlone_.contains(stream.serial);
    }
    /// More is known of a stream: what follows from it at once, before the burst of events is over.
    void streamChanged(const GraphNode& stream);

    /// What anybody but us has chosen for a stream.
    [[nodiscard]] ChosenTarget chosenTarget(const GraphNode& stream) const;
    /// The rate of the cycles in which a device is played to by us, in hertz; 0 when unknown.
    [[nodiscard]] double rateOf(GraphSerial deviceSerial) const;

private:
    /// A stream that plays is moved once our own links to it stand, so that nothing is missing; that takes no longer.
    static constexpr std::chrono::milliseconds linksWithin{100};

    struct Stream {
        ParkedStream parked;
        TapPath* path = nullptr;
        std::chrono::steady_clock::time_point since;  // Since it was taken hold of, or its giving back began.
        bool isBeingGivenBack = false;
        std::optional<std::chrono::steady_clock::time_point> homelessSince{};  // Since when no path wants it.
        bool isStuckReported = false;
        std::map<GraphSerial, std::chrono::steady_clock::time_point> parkLinks;  // Since when they are there.
        std::set<GraphSerial> cutLinks;
    };
    /// The filter's ports, once the graph shows them all.
    struct FilterPorts {
        GraphID node = 0;
        std::vector<GraphPort> inputs;
        std::vector<GraphPort> outputs;
    };

    void forgetVanishedStreams();
    /// By stream.
    using WantedPaths = std::map<GraphID, TapPath*>;
    [[nodiscard]] WantedPaths wantedPaths(const AudioWorld& world);
    void takeHoldOfStreams(const WantedPaths& wanted);
    void follow(Stream& stream, TapPath* wanted);
    [[nodiscard]] bool mayStillFindAPath(Stream& stream);
    [[nodiscard]] Stream* streamWith(GraphID id);
    void keepParked(Stream& stream);
    void giveBack(Stream& stream);
    void finishGivingBack();
    [[nodiscard]] std::set<WantedLink> wantedLinks() const;
    void addDeviceLinks(std::set<WantedLink>& links, const TapPath& path, const FilterPorts& ports) const;
    void addStreamLinks(std::set<WantedLink>& links, const Stream& stream, const FilterPorts& ports) const;
    void cutParkLinks();
    void setGates();
    void destroyReleasedPaths();
    [[nodiscard]] std::optional<FilterPorts> portsOf(const TapPath& path) const;
    [[nodiscard]] bool isReady(const TapPath& path) const;
    [[nodiscard]] bool isWaitingForLinks(const Stream& stream) const;
    [[nodiscard]] bool isDirect(const Stream& stream) const;
    [[nodiscard]] bool isRunning(const Stream& stream) const;
    [[nodiscard]] bool hasAnotherSettledStream(const Stream& stream) const;

    GraphConnection& connection_;
    std::function<void(std::string)> report_;
    std::unique_ptr<Park> park_;
    std::list<TapPath> paths_;
    std::list<Stream> streams_;
    HeldStreams held_;
    std::set<GraphSerial> leftAlone_;  // Streams that somebody else keeps moving.
    std::set<GraphSerial> circles_;  // Streams that were reported not to be led in a circle.
    OwnLinks links_;
    unsigned nodesMade_ = 0;
};

}  // namespace fadeloom
