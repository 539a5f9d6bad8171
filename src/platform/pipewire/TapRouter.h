// SPDX-License-Identifier: MIT
// Reconciles the graph with the wanted state: which streams run through which tap.
//
//      app stream ─► park (the session manager's doing; cut once our own link is up)
//          └───────► tap filter ─► device (our links)
//
// There is a single function that decides, `update`. It runs after every burst of events and whenever the wanted state
// has changed, reads the current mirror, and takes the next steps; it is idempotent and may run at any time.
//
// The states of a stream: *direct* (on its device, not ours) -> *parked* (the session manager keeps it on the park; our
// links carry it through a filter) -> *released* (its target is restored; our links remain until the session manager's
// link to a device exists, so that nothing is lost in between) -> direct.
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

/// The path of one tap: from the streams of some processes to one device.
struct TapPath {
    TapRoute route;
    DeviceLayout layout;
    std::unique_ptr<TapFilter> filter;
    bool isReleased = false;  // No other path wants its streams: they return to their own devices.
};

/// Thread: the graph thread or one that holds its lock.
class TapRouter {
public:
    /// `report` receives messages for the log.
    TapRouter(GraphConnection& connection, std::function<void(std::string)> report);
    ~TapRouter();
    TapRouter(const TapRouter&) = delete;
    TapRouter& operator=(const TapRouter&) = delete;

    /// Starts a path; null if there is no server or it refuses. Takes effect in the following updates.
    TapPath* addPath(TapRoute route, const DeviceLayout& layout, std::shared_ptr<AudioIOProc> proc);
    void setProcesses(TapPath& path, std::set<AudioProcessID> processes);
    /// When this returns the path's procedure is not running and is not called again.
    void stop(TapPath& path);
    /// Releases the streams of stopped paths, unless a path added since has taken them over.
    void releaseStopped();
    /// No path is left, and no stream is still being released.
    [[nodiscard]] std::size_t pathCount() const { return paths_.size(); }
    [[nodiscard]] bool isIdle() const { return paths_.empty() && streams_.empty(); }

    /// Takes the next steps; `world` is the current snapshot of the graph.
    void update(const AudioWorld& world);
    void sessionManagerAppeared();
    void sessionManagerVanished();
    void metadataChanged(GraphID subject, const std::string& key, const std::string& value);
    void disconnected();
    /// A new stream that must not bypass its tap.
    void hold(const GraphNode& stream);
    /// Whether a stream is held for its tap.
    [[nodiscard]] bool isHolding(const GraphNode& stream) const { return held_.has(stream); }
    /// Whether a stream is left to another program, which keeps moving it.
    [[nodiscard]] bool isLeftAlone(const GraphNode& stream) const
    {
        return leftAlone_.contains(stream.serial);
    }
    /// More properties of a stream are known: takes immediate steps, before the burst of events is over.
    void streamChanged(const GraphNode& stream);

    /// A stream's target as chosen by anybody but us.
    [[nodiscard]] ChosenTarget chosenTarget(const GraphNode& stream) const;
    /// The rate of the cycles in which we play to a device, in hertz; 0 if unknown.
    [[nodiscard]] double rateOf(GraphSerial deviceSerial) const;

private:
    /// A playing stream is moved once our own links to it are established, so that nothing is lost; at most this much
    /// later.
    static constexpr std::chrono::milliseconds linksWithin{100};

    struct Stream {
        ParkedStream parked;
        TapPath* path = nullptr;
        std::chrono::steady_clock::time_point since;  // Since it was captured, or its release began.
        bool isBeingGivenBack = false;
        std::optional<std::chrono::steady_clock::time_point> unroutedSince{};  // Since no path wants it.
        bool isStuckReported = false;
        // With the times at which they appeared.
        std::map<GraphSerial, std::chrono::steady_clock::time_point> parkLinks;
        std::set<GraphSerial> cutLinks;
    };
    /// The filter's ports, once the graph contains all of them.
    struct FilterPorts {
        GraphID node = 0;
        std::vector<GraphPort> inputs;
        std::vector<GraphPort> outputs;
    };

    void forgetVanishedStreams();
    /// By stream.
    using WantedPaths = std::map<GraphID, TapPath*>;
    [[nodiscard]] WantedPaths wantedPaths(const AudioWorld& world);
    void captureStreams(const WantedPaths& wanted);
    void follow(Stream& stream, TapPath* wanted);
    [[nodiscard]] bool mayFindPath(Stream& stream);
    [[nodiscard]] Stream* streamWith(GraphID id);
    void keepParked(Stream& stream);
    void release(Stream& stream);
    void finishReleasing();
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
    std::set<GraphSerial> reportedLoops_;  // Streams whose feedback loop has been reported.
    OwnLinks links_;
    unsigned nodesMade_ = 0;
};

}  // namespace fadeloom
