// SPDX-License-Identifier: MIT
#include "platform/pipewire/StreamRouting.h"

#include "platform/pipewire/Carriers.h"
#include "platform/pipewire/SoundFlow.h"

namespace fadeloom {

namespace {

struct Candidate {
    GraphID stream = 0;
    const TapRoute* tap = nullptr;
    const GraphNode* ownDevice = nullptr;
};

const AudioWorld::Process* processOf(const Graph& graph, const AudioWorld& world, const GraphNode& stream)
{
    const auto id = stream.clientID();
    const auto client = id ? graph.clients.find(*id) : graph.clients.end();
    return client == graph.clients.end() ? nullptr : world.processOfClient(client->second.serial);
}

// A running tap has precedence over a stopped one: it is the one that takes over.
const TapRoute* tapFor(
    const std::vector<const TapRoute*>& taps, AudioProcessID process, const GraphNode* ownDevice)
{
    const TapRoute* best = nullptr;
    for (const auto* tap : taps) {
        const bool isItsDevice = ownDevice && ownDevice->serial == tap->deviceSerial;
        const bool isWanted =
            tap->processes.contains(process) && (tap->scope == StreamScope::every || isItsDevice);
        if (isWanted && (!best || (best->isStopped && !tap->isStopped)))
            best = tap;
    }
    return best;
}

}  // namespace

StreamRouting routeStreams(const Graph& graph, const AudioWorld& world,
    const std::vector<const TapRoute*>& taps, const ChosenTargetOf& chosenTarget)
{
    const Carriers carriers{graph};
    std::vector<Candidate> candidates;
    for (const auto& [id, node] : graph.nodes) {
        // Whether a stream is pinned is known only from its info event.
        if (!node.isOutputStream() || !node.hasInfo || !isTappable(node) || carriers.contains(node))
            continue;
        const auto* process = processOf(graph, world, node);
        if (!process)
            continue;
        const auto* device = ownDevice(graph, node, chosenTarget(node));
        if (const auto* tap = tapFor(taps, process->id, device))
            candidates.push_back({.stream = id, .tap = tap, .ownDevice = device});
    }

    StreamRouting routing;
    SoundFlow flow{graph};
    // All of them start on their own devices. Each rerouted stream then sees the others where they will be.
    for (const auto& candidate : candidates) {
        if (candidate.ownDevice)
            flow.lead(candidate.stream, candidate.ownDevice->id);
    }
    for (const auto& [stream, tap, device] : candidates) {
        const bool isAtHome = device && device->serial == tap->deviceSerial;
        if (!isAtHome && flow.wouldFeedBack(tap->deviceNode, stream)) {
            routing.feedbackLoops.insert(stream);
            continue;
        }
        flow.lead(stream, tap->deviceNode);
        routing.routes[stream] = tap;
    }
    return routing;
}

}  // namespace fadeloom
