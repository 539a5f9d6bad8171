// SPDX-License-Identifier: MIT
// Random graphs with players, loopbacks, virtual sinks and programs that capture: no set of taps creates a feedback
// loop.
#include "platform/pipewire/StreamRouting.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <list>
#include <random>

namespace fadeloom {
namespace {

/// A session from the test's viewpoint: where each node receives and sends audio. Loops are searched for here, not in
/// the code under test.
class RandomSession {
public:
    explicit RandomSession(unsigned seed)
        : random_(seed)
    {
        for (int i = 0; i < 4; ++i)
            devices_.push_back(world_.sink("device" + std::to_string(i), {"FL", "FR"}));
    }

    /// One change; one that creates a loop without us is undone, because it would be the user's own.
    void step()
    {
        auto before = *this;
        change();
        if (hasCircle([this](const Source& source) { return homeOf(source); })) {
            before.random_ = random_;
            *this = std::move(before);
        }
    }

    /// The fault in the decisions made for this session, or nullopt.
    std::string fault()
    {
        std::vector<const TapRoute*> taps;
        for (const auto& tap : taps_)
            taps.push_back(&tap);
        const auto routing = routeStreams(world_.graph, picture(), taps,
            [this](const GraphNode& stream) { return chosenTargetIn(world_.graph, stream.id); });
        const auto deviceOf = [&](const Source& source) {
            const auto found = routing.routes.find(source.stream);
            return found == routing.routes.end() ? homeOf(source) : found->second->deviceNode;
        };
        if (hasCircle(deviceOf))
            return "a circle";
        for (const auto& source : sources_) {
            if (source.isCarrier && routing.routes.contains(source.stream))
                return "a carrier is taken";
            if (!source.isCarrier && source.captured.empty() && isTapped(source)
                && !routing.routes.contains(source.stream))
                return "a player is left alone";
        }
        return {};
    }

private:
    struct Source {
        GraphID stream = 0;
        std::vector<GraphID> captured{};  // Devices whose audio comes out of the stream.
        bool isCarrier = false;
    };

    GraphID anyDevice() { return devices_[random_() % devices_.size()]; }
    static int pidOf(const GraphClient& client) { return identityOf(client).pid; }
    const GraphClient& clientOf(GraphID stream) const
    {
        return world_.graph.clients.at(*world_.graph.node(stream)->clientID());
    }
    AudioWorld picture() const
    {
        std::map<int, AudioWorld::Process> processes;
        for (const auto& [id, client] : world_.graph.clients)
            processes[pidOf(client)].clients.insert(client.serial);
        AudioWorld picture;
        for (auto& [pid, process] : processes) {
            process.id = static_cast<AudioProcessID>(pid);
            picture.processes.push_back(process);
        }
        return picture;
    }
    GraphID homeOf(const Source& source) const
    {
        const auto* device = ownDevice(
            world_.graph, *world_.graph.node(source.stream), chosenTargetIn(world_.graph, source.stream));
        return device ? device->id : 0;
    }
    bool isTapped(const Source& source) const
    {
        const auto process = static_cast<AudioProcessID>(pidOf(clientOf(source.stream)));
        return std::ranges::any_of(taps_, [&](const TapRoute& tap) {
            return tap.processes.contains(process)
                && (tap.scope == StreamScope::every || tap.deviceNode == homeOf(source));
        });
    }

    bool hasCircle(const std::function<GraphID(const Source&)>& deviceOf) const
    {
        std::map<GraphID, std::set<GraphID>> ways;
        for (const auto& source : sources_) {
            for (const auto device : source.captured)
                ways[device].insert(deviceOf(source));
        }
        // A dead end is on no loop.
        const auto leadsNowhere = [&](const auto& way) {
            return std::ranges::none_of(way.second, [&](GraphID next) { return ways.contains(next); });
        };
        while (std::erase_if(ways, leadsNowhere) > 0) { }
        return !ways.empty();
    }

    void change()
    {
        using Change = void (RandomSession::*)();
        constexpr std::array<Change, 8> changes{&RandomSession::changeDefault, &RandomSession::addPlayer,
            &RandomSession::addCapturingPlayer, &RandomSession::addLoopback, &RandomSession::addVirtualSink,
            &RandomSession::removePlayer, &RandomSession::move, &RandomSession::changeTaps};
        (this->*changes[random_() % changes.size()])();
        relink();
    }

    void changeDefault()
    {
        const std::string name{world_.graph.node(anyDevice())->name()};
        world_.graph.metadata[0]["default.audio.sink"] = defaultDeviceValue(name);
    }
    Source& addSource(GraphID client, const std::string& group = {})
    {
        GraphProperties properties{{"node.link-group", group}};
        if (random_() % 2 == 0)
            properties.insert({"target.object", std::string{world_.graph.node(anyDevice())->name()}});
        const auto stream = world_.stream(client, GraphNode::State::running, std::move(properties));
        return sources_.emplace_back(Source{.stream = stream, .isCarrier = !group.empty()});
    }
    GraphID anyPlayer() { return world_.nativeClient(static_cast<int>(100 + random_() % 5)); }
    void addPlayer()
    {
        addSource(anyPlayer());
        joinProcesses();
    }
    void addCapturingPlayer()
    {
        const auto client = anyPlayer();
        addCapture(addSource(client), client, {});
        joinProcesses();
    }
    void addLoopback()
    {
        const auto client = world_.nativeClient(7);  // Like pipewire-pulse, which owns all of them.
        const auto group = "loopback-" + std::to_string(random_());
        addCapture(addSource(client, group), client, group);
    }
    void addVirtualSink()
    {
        const auto group = "filter-chain-" + std::to_string(random_());
        auto& source = addSource(world_.nativeClient(7), group);
        const auto sink = world_.sink("virtual-" + group, {"FL", "FR"});
        world_.graph.nodes[sink].properties.insert({"node.link-group", group});
        devices_.push_back(sink);
        source.captured = {sink};
    }
    void addCapture(Source& source, GraphID client, const std::string& group)
    {
        const auto device = anyDevice();
        GraphProperties properties{
            {"media.class", "Stream/Input/Audio"}, {"client.id", std::to_string(client)}};
        if (!group.empty())
            properties.insert({"node.link-group", group});
        captures_.push_back({.node = world_.node(std::move(properties), GraphNode::State::running),
            .device = device,
            .stream = source.stream,
            .isCarrier = !group.empty()});
        source.captured.push_back(device);
    }
    // What a process captures may come out of any stream that it plays.
    void joinProcesses()
    {
        for (auto& source : sources_) {
            if (source.isCarrier)
                continue;
            source.captured.clear();
            for (const auto& capture : captures_) {
                if (!capture.isCarrier && pidOf(clientOf(capture.node)) == pidOf(clientOf(source.stream)))
                    source.captured.push_back(capture.device);
            }
        }
    }
    void removePlayer()
    {
        if (sources_.empty())
            return;
        const auto place = sources_.begin() + static_cast<std::ptrdiff_t>(random_() % sources_.size());
        if (place->isCarrier)
            return;  // Its sink would be removed, although others use it.
        std::erase_if(captures_, [&](const Capture& capture) {
            return capture.stream == place->stream && world_.graph.nodes.erase(capture.node) > 0;
        });
        world_.graph.nodes.erase(place->stream);
        sources_.erase(place);
        joinProcesses();
    }
    void move()
    {
        if (!sources_.empty())
            world_.graph.metadata[sources_[random_() % sources_.size()].stream]["target.node"] =
                random_() % 4 == 0 ? "-1" : std::to_string(anyDevice());
    }
    void changeTaps()
    {
        if (taps_.size() > 6)
            taps_.clear();
        const auto device = anyDevice();
        taps_.push_back({.processes = {static_cast<AudioProcessID>(100 + random_() % 5)},
            .deviceNode = device,
            .deviceSerial = world_.graph.node(device)->serial,
            .scope = random_() % 3 == 0 ? StreamScope::ofTheDevice : StreamScope::every});
    }
    void relink()
    {
        world_.graph.links.clear();
        for (const auto& source : sources_)
            world_.link(source.stream, homeOf(source));
        for (const auto& capture : captures_)
            world_.link(capture.device, capture.node);
    }

    struct Capture {
        GraphID node = 0;
        GraphID device = 0;
        GraphID stream = 0;  // Added with this one.
        bool isCarrier = false;
    };

    std::mt19937 random_;
    GraphOf world_;
    std::vector<GraphID> devices_;
    std::vector<Source> sources_;
    std::vector<Capture> captures_;
    std::list<TapRoute> taps_;
};

TEST(FeedbackLoop, noGraphContainsAFeedbackLoop)
{
    const auto* given = std::getenv("FADELOOM_SEED");  // Repeats a run.
    const unsigned first = given ? static_cast<unsigned>(std::stoul(given)) : 1;
    for (unsigned seed = first; seed < first + (given ? 1 : 60); ++seed) {
        RandomSession session{seed};
        for (int step = 0; step < 60; ++step) {
            session.step();
            ASSERT_EQ(session.fault(), "") << "FADELOOM_SEED=" << seed << " at step " << step;
        }
    }
}

}  // namespace
}  // namespace fadeloom
