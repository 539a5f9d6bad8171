// SPDX-License-Identifier: MIT
// The links of a tap: the wanted ones, when they are ready, and the session manager's that they replace.
#include "platform/pipewire/TapRouter.h"

#include <algorithm>
#include <array>

namespace fadeloom {

namespace {

using namespace std::chrono_literals;

// Cutting a link that the session manager is still setting up can crash some versions of it.
constexpr auto cutAfter = 250ms;

}  // namespace

bool TapRouter::isReady(const TapPath& path) const
{
    const auto ports = portsOf(path);
    if (!ports)
        return false;
    std::set<WantedLink> links;
    addDeviceLinks(links, path, *ports);
    return std::ranges::all_of(links, [&](const WantedLink& link) {
        return connection_.graph().link(link.outputPort, link.inputPort) != nullptr;
    });
}

std::optional<TapRouter::FilterPorts> TapRouter::portsOf(const TapPath& path) const
{
    const auto node = path.filter ? path.filter->nodeID() : std::nullopt;
    if (!node)
        return std::nullopt;
    FilterPorts ports{
        .node = *node,
        .inputs = connection_.graph().inputPorts(*node),
        .outputs = connection_.graph().outputPorts(*node),
    };
    // By name: the two sides must not be swapped, whatever ids the ports have.
    std::ranges::sort(ports.inputs, {}, &GraphPort::name);
    std::ranges::sort(ports.outputs, {}, &GraphPort::name);
    if (ports.inputs.size() != 2
        || ports.outputs.size() != static_cast<std::size_t>(path.filter->outputCount()))
        return std::nullopt;
    return ports;
}

std::set<WantedLink> TapRouter::wantedLinks() const
{
    std::set<WantedLink> links;
    for (const auto& path : paths_) {
        const auto ports = portsOf(path);
        if (!ports)
            continue;
        addDeviceLinks(links, path, *ports);
        for (const auto& stream : streams_) {
            if (stream.path == &path)
                addStreamLinks(links, stream, *ports);
        }
    }
    return links;
}

void TapRouter::addDeviceLinks(
    std::set<WantedLink>& links, const TapPath& path, const FilterPorts& ports) const
{
    if (!connection_.graph().node(path.route.deviceNode, path.route.deviceSerial))
        return;
    const auto devicePorts = connection_.graph().inputPorts(path.route.deviceNode);
    const std::array<std::uint32_t, 2> channels{path.layout.left, path.layout.right};
    for (std::size_t i = 0; i < ports.outputs.size(); ++i) {
        if (channels[i] <= devicePorts.size())
            links.insert({ports.node, ports.outputs[i].id, path.route.deviceNode,
                devicePorts[channels[i] - 1].id, true});
    }
}

void TapRouter::addStreamLinks(
    std::set<WantedLink>& links, const Stream& stream, const FilterPorts& ports) const
{
    const auto id = stream.parked.id();
    const auto streamPorts = connection_.graph().outputPorts(id);

    // A stream that is still audible directly is mixed with others only once it no longer is: closing the gate would
    // interrupt them.
    const bool mustWait =
        !stream.isBeingGivenBack && isDirect(stream) && isRunning(stream) && hasAnotherSettledStream(stream);
    for (const auto& port : streamPorts) {
        const auto side = sideOf(port.channel);
        for (std::size_t i = 0; i < 2 && !mustWait; ++i) {
            if (side == TapSide::both || side == (i == 0 ? TapSide::left : TapSide::right))
                links.insert({id, port.id, ports.node, ports.inputs[i].id, false});
        }
    }

    const auto* node = connection_.graph().node(id);
    const auto devicePorts = connection_.graph().inputPorts(stream.path->route.deviceNode);
    if (!stream.isBeingGivenBack && node && needsDoorbell(*node) && !streamPorts.empty()
        && !devicePorts.empty())
        links.insert(
            {id, streamPorts.front().id, stream.path->route.deviceNode, devicePorts.front().id, true});
}

bool TapRouter::isWaitingForLinks(const Stream& stream) const
{
    const auto ports = portsOf(*stream.path);
    if (!ports || !isDirect(stream) || !isRunning(stream)
        || std::chrono::steady_clock::now() - stream.since >= linksWithin)
        return false;
    std::set<WantedLink> links;
    addStreamLinks(links, stream, *ports);
    return !std::ranges::all_of(links, [&](const WantedLink& link) { return links_.isActive(link); });
}

void TapRouter::cutParkLinks()
{
    const auto park = park_ ? park_->nodeID() : std::nullopt;
    if (!park)
        return;
    const auto& graph = connection_.graph();
    for (auto& stream : streams_) {
        const auto filter = stream.path && stream.path->filter ? stream.path->filter->nodeID() : std::nullopt;
        if (!filter || stream.isBeingGivenBack)
            continue;
        for (const auto& [id, link] : graph.links) {
            if (link.outputNode != stream.parked.id() || link.inputNode != *park
                || stream.cutLinks.contains(link.serial))
                continue;
            const bool isCarriedByUs = std::ranges::any_of(graph.links, [&](const auto& entry) {
                return entry.second.outputPort == link.outputPort && entry.second.inputNode == *filter;
            });
            if (!isCarriedByUs)
                continue;
            const auto now = std::chrono::steady_clock::now();
            const auto age = now - stream.parkLinks.try_emplace(link.serial, now).first->second;
            if (age < cutAfter) {
                connection_.callBackIn(cutAfter);
                continue;
            }
            stream.cutLinks.insert(link.serial);
            connection_.destroyGlobal(id);
        }
    }
}

}  // namespace fadeloom
