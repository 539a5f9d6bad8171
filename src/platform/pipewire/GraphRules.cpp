// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphRules.h"

#include <spa/utils/json.h>

#include <algorithm>
#include <array>

namespace fadeloom {

namespace {

bool isTrue(const GraphProperties& properties, std::string_view key)
{
    const auto value = propertyOf(properties, key);
    return value == "true" || value == "1";
}

bool isPulse(const GraphProperties& properties)
{
    return propertyOf(properties, "client.api") == "pipewire-pulse";
}

std::int32_t pidIn(const GraphProperties& properties, std::string_view key)
{
    const auto number = numberOf(properties, key).value_or(-1);
    return number > 0 && number <= INT32_MAX ? static_cast<std::int32_t>(number) : -1;
}

}  // namespace

ClientIdentity identityOf(const GraphClient& client)
{
    const auto& properties = client.properties;
    ClientIdentity identity;
    identity.binary = propertyOf(properties, "application.process.binary");
    identity.portalAppID = propertyOf(properties, "pipewire.access.portal.app_id");

    const bool isRemote = propertyOf(properties, "pulse.server.type") == "tcp";
    if (isRemote)
        return identity;
    if (!isPulse(properties)) {
        identity.pid = pidIn(properties, "pipewire.sec.pid");
        identity.trust = ClientIdentity::Trust::verified;
    } else if (identity.portalAppID.empty()) {
        // The kernel reports pipewire-pulse here, so only the client's own claim is left.
        identity.pid = pidIn(properties, "application.process.id");
        identity.trust = ClientIdentity::Trust::claimed;
    }
    return identity;
}

bool isAppSound(const GraphNode& stream)
{
    constexpr std::array desktopRoles{"event", "Event", "notification", "Notification"};
    return stream.isOutputStream()
        && std::ranges::find(desktopRoles, propertyOf(stream.properties, "media.role")) == desktopRoles.end();
}

bool isTappable(const GraphNode& stream)
{
    constexpr std::array fixedTarget{
        "node.dont-reconnect", "node.dont-move", "node.dont-fallback", "node.exclusive"};
    const auto insists = [&](const char* key) { return isTrue(stream.properties, key); };
    const bool isEncoded = !propertyOf(stream.properties, "iec958.codec").empty();
    return isAppSound(stream) && !isEncoded && std::ranges::none_of(fixedTarget, insists);
}

bool isPlaying(const GraphNode& stream)
{
    return stream.state == GraphNode::State::running && !isTrue(stream.properties, "pulse.corked");
}

bool isUsingMicrophone(const Graph& graph, const GraphNode& stream)
{
    if (!stream.isInputStream() || stream.state != GraphNode::State::running
        || isTrue(stream.properties, "stream.capture.sink") || isTrue(stream.properties, "stream.monitor"))
        return false;
    return std::ranges::any_of(graph.links, [&](const auto& entry) {
        const auto& link = entry.second;
        const auto* source = link.inputNode == stream.id ? graph.node(link.outputNode) : nullptr;
        return source && source->mediaClass().starts_with("Audio/Source");
    });
}

bool needsDoorbell(const GraphNode& stream)
{
    return isPulse(stream.properties) && propertyOf(stream.properties, "pulse.attr.tlength").empty();
}

TapSide sideOf(std::string_view channel)
{
    constexpr std::array leftChannels{"FL", "SL", "RL"};
    constexpr std::array rightChannels{"FR", "SR", "RR"};
    if (std::ranges::find(leftChannels, channel) != leftChannels.end())
        return TapSide::left;
    if (std::ranges::find(rightChannels, channel) != rightChannels.end())
        return TapSide::right;
    return TapSide::both;
}

DeviceLayout layoutOf(const std::vector<GraphPort>& inputPorts)
{
    DeviceLayout layout;
    for (const auto& port : inputPorts)
        layout.channels.push_back(port.channel);

    const auto numberOfChannel = [&](std::string_view channel) {
        const auto found = std::ranges::find(layout.channels, channel);
        return found == layout.channels.end()
            ? 0U
            : static_cast<std::uint32_t>(found - layout.channels.begin()) + 1;
    };
    const auto left = numberOfChannel("FL");
    const auto right = numberOfChannel("FR");
    if (left && right) {
        layout.left = left;
        layout.right = right;
    } else if (layout.channels.size() == 1) {
        layout.right = layout.left = 1;
    }
    return layout;
}

std::string displayNameOf(const GraphNode& device)
{
    for (const char* key : {"node.description", "node.nick"}) {
        const auto text = propertyOf(device.properties, key);
        if (!text.empty())
            return std::string{text};
    }
    return std::string{device.name()};
}

std::string defaultDeviceValue(const std::string& nodeName)
{
    // Each byte takes six at most ("\u0000"), plus the quotes and the terminator.
    std::string quoted(nodeName.size() * 6 + 3, '\0');
    const int length =
        spa_json_encode_string(quoted.data(), static_cast<int>(quoted.size()), nodeName.c_str());
    quoted.resize(static_cast<std::size_t>(length));
    return "{ \"name\": " + quoted + " }";
}

}  // namespace fadeloom
