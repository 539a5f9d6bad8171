// SPDX-License-Identifier: MIT
#include "platform/pipewire/GraphRules.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using Trust = ClientIdentity::Trust;

ClientIdentity identityWith(GraphProperties properties)
{
    return identityOf({.properties = std::move(properties), .hasInfo = true});
}

GraphNode streamWith(GraphProperties properties)
{
    properties.insert({"media.class", "Stream/Output/Audio"});
    return {.properties = std::move(properties), .state = GraphNode::State::running, .hasInfo = true};
}

DeviceLayout layoutWith(const std::vector<std::string>& channels)
{
    GraphOf world;
    return layoutOf(world.graph.inputPorts(world.sink("device", channels)));
}

TEST(GraphRules, aNativeClientIsIdentifiedByTheKernel)
{
    const auto identity = identityWith({{"pipewire.sec.pid", "100"}, {"application.process.id", "7"}});

    EXPECT_EQ(identity.pid, 100);
    EXPECT_EQ(identity.trust, Trust::verified);
}

TEST(GraphRules, aPulseClientIsIdentifiedByItsClaim)
{
    const auto identity = identityWith({{"client.api", "pipewire-pulse"}, {"pipewire.sec.pid", "50"},
        {"application.process.id", "7"}, {"application.process.binary", "pacat"}});

    EXPECT_EQ(identity.pid, 7);
    EXPECT_EQ(identity.trust, Trust::claimed);
    EXPECT_EQ(identity.binary, "pacat");
}

TEST(GraphRules, aPidFromASandboxOrAnotherMachineIsIgnored)
{
    const auto sandboxed = identityWith({{"client.api", "pipewire-pulse"}, {"application.process.id", "2"},
        {"pipewire.access.portal.app_id", "org.example.Player"}});
    const auto remote = identityWith(
        {{"client.api", "pipewire-pulse"}, {"application.process.id", "2"}, {"pulse.server.type", "tcp"}});

    EXPECT_EQ(sandboxed.pid, -1);
    EXPECT_EQ(sandboxed.portalAppID, "org.example.Player");
    EXPECT_EQ(remote.pid, -1);
    EXPECT_EQ(remote.trust, Trust::unknown);
}

TEST(GraphRules, invalidPidsAreIgnored)
{
    for (const char* pid : {"0", "-5", "99999999999", "abc", ""})
        EXPECT_EQ(identityWith({{"pipewire.sec.pid", pid}}).pid, -1) << pid;
}

TEST(GraphRules, pinnedStreamsAreNotTapped)
{
    EXPECT_TRUE(isTappable(streamWith({})));
    for (const char* key :
        {"node.dont-reconnect", "node.dont-move", "node.dont-fallback", "node.exclusive"}) {
        EXPECT_FALSE(isTappable(streamWith({{key, "true"}}))) << key;
        EXPECT_TRUE(isTappable(streamWith({{key, "false"}}))) << key;
    }
    EXPECT_FALSE(isTappable(streamWith({{"iec958.codec", "AC3"}})));
}

TEST(GraphRules, eventSoundsBelongToNoApp)
{
    EXPECT_TRUE(isAppSound(streamWith({{"media.role", "Music"}})));
    EXPECT_FALSE(isAppSound(streamWith({{"media.role", "Notification"}})));
    EXPECT_FALSE(isAppSound(streamWith({{"media.role", "event"}})));
}

TEST(GraphRules, aCorkedStreamIsNotPlaying)
{
    EXPECT_TRUE(isPlaying(streamWith({{"pulse.corked", "false"}})));
    EXPECT_FALSE(isPlaying(streamWith({{"pulse.corked", "true"}})));
    auto idle = streamWith({});
    idle.state = GraphNode::State::idle;
    EXPECT_FALSE(isPlaying(idle));
}

TEST(GraphRules, onlyACaptureOfASourceUsesTheMicrophone)
{
    GraphOf world;
    const auto source = world.node({{"media.class", "Audio/Source"}}, GraphNode::State::running);
    const auto sink = world.sink("speakers", {"FL", "FR"});
    const auto capture = [&](GraphProperties properties, GraphID from) -> const GraphNode& {
        properties.insert({"media.class", "Stream/Input/Audio"});
        const auto id = world.node(std::move(properties), GraphNode::State::running);
        world.link(from, id);
        return *world.graph.node(id);
    };

    EXPECT_TRUE(isUsingMicrophone(world.graph, capture({}, source)));
    EXPECT_FALSE(isUsingMicrophone(world.graph, capture({}, sink)));
    EXPECT_FALSE(isUsingMicrophone(world.graph, capture({{"stream.capture.sink", "true"}}, source)));
    EXPECT_FALSE(isUsingMicrophone(world.graph, capture({{"stream.monitor", "true"}}, source)));
}

TEST(GraphRules, onlyAPulseStreamWithoutAReplyNeedsTheDoorbell)
{
    EXPECT_TRUE(needsDoorbell(streamWith({{"client.api", "pipewire-pulse"}})));
    EXPECT_FALSE(
        needsDoorbell(streamWith({{"client.api", "pipewire-pulse"}, {"pulse.attr.tlength", "4096"}})));
    EXPECT_FALSE(needsDoorbell(streamWith({})));
}

TEST(GraphRules, everyChannelMapsToASide)
{
    for (const char* channel : {"FL", "SL", "RL"})
        EXPECT_EQ(sideOf(channel), TapSide::left) << channel;
    for (const char* channel : {"FR", "SR", "RR"})
        EXPECT_EQ(sideOf(channel), TapSide::right) << channel;
    for (const char* channel : {"MONO", "FC", "LFE", "AUX0", ""})
        EXPECT_EQ(sideOf(channel), TapSide::both) << channel;
}

TEST(GraphRules, thePairOfADeviceIsItsFrontSides)
{
    const auto pair = [](const std::vector<std::string>& channels) {
        const auto layout = layoutWith(channels);
        return std::pair{layout.left, layout.right};
    };

    EXPECT_EQ(pair({"FL", "FR"}), std::pair(1U, 2U));
    EXPECT_EQ(pair({"FR", "FL"}), std::pair(2U, 1U));
    EXPECT_EQ(pair({"AUX0", "AUX1", "FL", "FR"}), std::pair(3U, 4U));
    EXPECT_EQ(pair({"MONO"}), std::pair(1U, 1U));
    EXPECT_EQ(pair({"AUX0", "AUX1", "AUX2"}), std::pair(1U, 2U));
    EXPECT_EQ(pair({"FL", "FC"}), std::pair(1U, 2U));
}

TEST(GraphRules, aDeviceIsCalledByTheFirstNameItHas)
{
    EXPECT_EQ(displayNameOf({.properties = {{"node.description", "Long"}, {"node.nick", "Short"}}}), "Long");
    EXPECT_EQ(displayNameOf({.properties = {{"node.nick", "Short"}, {"node.name", "id"}}}), "Short");
    EXPECT_EQ(displayNameOf({.properties = {{"node.name", "id"}}}), "id");
}

TEST(GraphRules, theDefaultDeviceIsWrittenAsJsonThatReadsBack)
{
    for (const std::string& name : {std::string{"plain"}, std::string{"quo\"ted\\"},
             std::string{"new\nline\t\x01"}, std::string{"Größe 🎧"}, std::string(10000, '"')}) {
        Graph graph;
        graph.metadata[0]["default.audio.sink"] = defaultDeviceValue(name);
        EXPECT_EQ(graph.defaultSinkName(), name);
    }
}

}  // namespace
}  // namespace fadeloom
