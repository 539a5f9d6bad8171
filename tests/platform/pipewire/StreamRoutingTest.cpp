// SPDX-License-Identifier: MIT
#include "platform/pipewire/StreamRouting.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

#include <list>

namespace fadeloom {
namespace {

class StreamRoutingTest : public ::testing::Test {
protected:
    StreamRoutingTest() { world.graph.metadata[0]["default.audio.sink"] = R"({ "name": "speakers" })"; }

    AudioWorld picture()
    {
        return builder.build(world.graph,
            {.chosenTarget = chosenTarget,
                .isHeld = [](const GraphNode&) { return false; },
                .isLeftAlone = [](const GraphNode&) { return false; }});
    }
    // A separate process with one stream.
    GraphID player(const std::string& target = {}, int pid = 0)
    {
        const auto client = world.nativeClient(pid ? pid : nextPid++);
        GraphProperties properties;
        if (!target.empty())
            properties.insert({"target.object", target});
        return world.stream(client, GraphNode::State::running, std::move(properties));
    }
    // Another stream of the process, which captures a device's output.
    void capture(GraphID player, GraphID device)
    {
        const auto client = *world.graph.node(player)->clientID();
        const auto id =
            world.node({{"media.class", "Stream/Input/Audio"}, {"client.id", std::to_string(client)}},
                GraphNode::State::running);
        world.link(device, id);
    }
    AudioProcessID processOf(GraphID stream)
    {
        const auto client = world.graph.clients.at(*world.graph.node(stream)->clientID()).serial;
        return picture().processOfClient(client)->id;
    }
    void tap(GraphID stream, GraphID device, StreamScope scope = StreamScope::every)
    {
        taps.push_back({.processes = {processOf(stream)},
            .deviceNode = device,
            .deviceSerial = world.graph.node(device)->serial,
            .scope = scope});
    }
    StreamRouting route()
    {
        std::vector<const TapRoute*> all;
        for (const auto& each : taps)
            all.push_back(&each);
        return routeStreams(world.graph, picture(), all, chosenTarget);
    }
    std::string deviceOf(GraphID stream)
    {
        const auto routing = route();
        const auto found = routing.routes.find(stream);
        return found == routing.routes.end()
            ? "its own"
            : std::string{world.graph.node(found->second->deviceNode)->name()};
    }

    GraphOf world;
    ChosenTargetOf chosenTarget = [this](const GraphNode& stream) {
        return chosenTargetIn(world.graph, stream.id);
    };
    AudioWorldBuilder builder{{.runs = [](std::int32_t, const std::string&) { return true; },
        .watch = [](std::int32_t) { return true; }}};
    std::list<TapRoute> taps;
    int nextPid = 100;
    GraphID speakers = world.sink("speakers", {"FL", "FR"});
    GraphID headphones = world.sink("headphones", {"FL", "FR"});
};

TEST_F(StreamRoutingTest, aTapForEveryStreamTakesThemWhereverTheyWouldPlay)
{
    const auto first = player({}, 50);
    const auto second = player("headphones", 50);

    tap(first, speakers);

    EXPECT_EQ(deviceOf(first), "speakers");
    EXPECT_EQ(deviceOf(second), "speakers");
}

TEST_F(StreamRoutingTest, anAppThatPlaysOnTwoDevicesHasATapForEach)
{
    const auto first = player({}, 50);
    const auto second = player("headphones", 50);

    tap(first, speakers, StreamScope::ofTheDevice);
    EXPECT_EQ(deviceOf(first), "speakers");
    EXPECT_EQ(deviceOf(second), "its own");

    tap(first, headphones, StreamScope::ofTheDevice);
    EXPECT_EQ(deviceOf(first), "speakers");
    EXPECT_EQ(deviceOf(second), "headphones");
}

TEST_F(StreamRoutingTest, aStreamThatIsMovedChangesItsTap)
{
    const auto stream = player();
    tap(stream, speakers, StreamScope::ofTheDevice);
    tap(stream, headphones, StreamScope::ofTheDevice);

    world.graph.metadata[stream]["target.node"] = std::to_string(headphones);

    EXPECT_EQ(deviceOf(stream), "headphones");
}

TEST_F(StreamRoutingTest, aRunningTapTakesOverFromAStoppedOne)
{
    const auto stream = player();
    tap(stream, speakers);
    tap(stream, headphones);

    taps.front().isStopped = true;

    EXPECT_EQ(deviceOf(stream), "headphones");
}

TEST_F(StreamRoutingTest, aStreamThatCapturesADeviceIsNotRoutedBackToIt)
{
    const auto stream = player("headphones");
    capture(stream, speakers);

    tap(stream, speakers);

    EXPECT_EQ(deviceOf(stream), "its own");
    EXPECT_EQ(route().feedbackLoops, std::set{stream});
}

TEST_F(StreamRoutingTest, aStreamAlreadyPlayingToTheDeviceItCapturesKeepsItsTap)
{
    // A call that shares the audio of its own device.
    const auto stream = player();
    capture(stream, speakers);

    tap(stream, speakers);

    EXPECT_EQ(deviceOf(stream), "speakers");
}

TEST_F(StreamRoutingTest, twoAppsAreNotRoutedInALoopThroughEachOther)
{
    const auto desk = world.sink("desk", {"FL", "FR"});
    const auto first = player("desk");
    const auto second = player("desk");
    capture(first, speakers);
    capture(second, headphones);

    tap(first, headphones);
    tap(second, speakers);

    EXPECT_EQ(deviceOf(first), "headphones");
    EXPECT_EQ(deviceOf(second), "its own");
    EXPECT_NE(desk, 0U);
}

TEST_F(StreamRoutingTest, aCarrierIsNeverTapped)
{
    const auto client = world.nativeClient(70);
    world.node({{"media.class", "Stream/Input/Audio"}, {"client.id", std::to_string(client)},
                   {"node.link-group", "loopback-1"}},
        GraphNode::State::running);
    const auto out = world.stream(client, GraphNode::State::running, {{"node.link-group", "loopback-1"}});
    const auto voice = world.stream(client);

    tap(voice, headphones);

    EXPECT_EQ(deviceOf(voice), "headphones");
    EXPECT_EQ(deviceOf(out), "its own");
}

}  // namespace
}  // namespace fadeloom
