// SPDX-License-Identifier: MIT
#include "platform/pipewire/AudioWorld.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fadeloom {
namespace {

class AudioWorldBuilding : public ::testing::Test {
protected:
    AudioWorld build()
    {
        return builder.build(world.graph,
            {.chosenTarget = [&](const GraphNode& stream) { return chosenTargetIn(world.graph, stream.id); },
                .isHeld = [&](const GraphNode& stream) { return held.contains(stream.id); },
                .isLeftAlone = [&](const GraphNode& stream) { return leftAlone.contains(stream.id); }});
    }

    GraphOf world;
    bool canWatch = true;
    std::set<GraphID> held;
    std::set<GraphID> leftAlone;
    AudioWorldBuilder builder{
        {.runs = [](std::int32_t, const std::string& binary) { return binary == "pacat"; },
            .watch = [this](std::int32_t) { return canWatch; }}};
};

TEST_F(AudioWorldBuilding, aClientWithoutAStreamIsNotAProcess)
{
    world.nativeClient(100);

    EXPECT_TRUE(build().processes.empty());
}

TEST_F(AudioWorldBuilding, clientsOfOnePidAreOneProcess)
{
    const auto first = world.nativeClient(100);
    const auto second = world.nativeClient(100);
    world.stream(first, GraphNode::State::idle);
    world.stream(second);

    const auto picture = build();

    ASSERT_EQ(picture.processes.size(), 1U);
    EXPECT_EQ(picture.processes[0].pid, 100);
    EXPECT_TRUE(picture.processes[0].isPlaying);
    EXPECT_EQ(picture.processOfClient(second + 1000), picture.processes.data());
}

TEST_F(AudioWorldBuilding, aProcessIsKeptWithoutClientsUntilItExits)
{
    const auto client = world.nativeClient(100);
    const auto stream = world.stream(client);
    const auto id = build().processes.at(0).id;

    world.graph.nodes.erase(stream);
    world.graph.clients.erase(client);
    const auto alone = build();
    builder.processEnded(100);

    ASSERT_EQ(alone.processes.size(), 1U);
    EXPECT_EQ(alone.processes[0].id, id);
    EXPECT_FALSE(alone.processes[0].isPlaying);
    EXPECT_TRUE(build().processes.empty());
}

TEST_F(AudioWorldBuilding, aProcessThatCannotBeWatchedEndsWithItsLastClient)
{
    canWatch = false;
    const auto client = world.nativeClient(100);
    world.graph.nodes.erase(world.stream(client));
    world.stream(client);
    EXPECT_EQ(build().processes.size(), 1U);

    world.graph.clients.erase(client);

    EXPECT_TRUE(build().processes.empty());
}

TEST_F(AudioWorldBuilding, aClaimedPidIsAcceptedOnlyIfItsProgramMatches)
{
    const auto pulse = [&](const char* binary) {
        world.stream(world.client({{"client.api", "pipewire-pulse"}, {"application.process.id", "7"},
            {"application.process.binary", binary}}));
    };
    pulse("pacat");
    pulse("liar");

    const auto picture = build();

    ASSERT_EQ(picture.processes.size(), 2U);
    EXPECT_EQ(std::ranges::count(picture.processes, 7, &AudioWorld::Process::pid), 1);
    EXPECT_EQ(std::ranges::count(picture.processes, -1, &AudioWorld::Process::pid), 1);
}

TEST_F(AudioWorldBuilding, aNewProcessWithAnOldPidHasANewId)
{
    const auto client = world.nativeClient(100);
    world.stream(client);
    const auto id = build().processes.at(0).id;
    world.graph.clients.clear();
    world.graph.nodes.clear();
    builder.processEnded(100);
    EXPECT_TRUE(build().processes.empty());

    world.stream(world.nativeClient(100));

    EXPECT_NE(build().processes.at(0).id, id);
}

TEST_F(AudioWorldBuilding, aDeviceIsListedOnceAllItsPortsExist)
{
    const auto sink = world.sink("speakers", {"FL"});
    world.graph.nodes[sink].inputPortCount = 2;
    EXPECT_TRUE(build().devices.empty());

    world.port(sink, "FR");

    EXPECT_EQ(build().devices.size(), 1U);
}

TEST_F(AudioWorldBuilding, aDeviceWhoseChannelsChangeIsAnotherDevice)
{
    const auto sink = world.sink("speakers", {"FL", "FR"});
    const auto before = build().devices.at(0);

    world.graph.nodes[sink].inputPortCount = 4;
    world.port(sink, "RL");
    world.port(sink, "RR");
    const auto after = build().devices.at(0);

    EXPECT_EQ(after.uid, before.uid);
    EXPECT_NE(after.id, before.id);
}

TEST_F(AudioWorldBuilding, namesOfAnyBytesAreKeptVerbatim)
{
    const std::string longName(10000, 'n');
    world.sink("quo\"ted\n\xff", {"FL", "FR"});
    world.sink(longName, {"FL", "FR"});

    const auto picture = build();

    ASSERT_EQ(picture.devices.size(), 2U);
    EXPECT_EQ(picture.devices[0].uid, "quo\"ted\n\xff");
    EXPECT_NE(picture.deviceWithUID(longName), nullptr);
}

TEST_F(AudioWorldBuilding, differencesAreAnnounced)
{
    const auto client = world.nativeClient(100);
    const auto stream = world.stream(client, GraphNode::State::idle);
    const auto before = build();

    world.graph.nodes[stream].state = GraphNode::State::running;
    const auto playing = build();
    world.sink("speakers", {"FL", "FR"});
    world.graph.metadata[0]["default.audio.sink"] = R"({"name":"speakers"})";
    const auto plugged = build();

    EXPECT_FALSE(changesBetween(before, before).any());
    EXPECT_EQ(changesBetween(before, playing), AudioChanges{.processes = true});
    EXPECT_EQ(changesBetween(playing, plugged),
        (AudioChanges{.processes = true, .outputDevices = true, .defaultOutput = true}))
        << "the stream has a device now";
}

TEST_F(AudioWorldBuilding, aProcessHasTheDevicesThatItsStreamsWouldPlayTo)
{
    world.sink("speakers", {"FL", "FR"});
    world.sink("headphones", {"FL", "FR"});
    world.graph.metadata[0]["default.audio.sink"] = R"({ "name": "speakers" })";
    const auto client = world.nativeClient(100);
    const auto stream = world.stream(client);
    world.stream(
        client, GraphNode::State::running, {{"node.dont-reconnect", "true"}, {"target.object", "desk"}});
    EXPECT_EQ(build().processes.at(0).ownOutputs, std::set<std::string>{"speakers"});

    world.stream(client, GraphNode::State::idle, {{"target.object", "headphones"}});
    EXPECT_EQ(build().processes.at(0).ownOutputs, (std::set<std::string>{"headphones", "speakers"}));

    world.graph.metadata[stream]["target.object"] = "headphones";
    EXPECT_EQ(build().processes.at(0).ownOutputs, std::set<std::string>{"headphones"});
}

TEST_F(AudioWorldBuilding, aProcessIsOutOfReachWhileItPlaysWhatCannotBeTapped)
{
    const auto client = world.nativeClient(100);
    const auto stream = world.stream(client);
    EXPECT_EQ(build().processes.at(0).outOfReach, std::nullopt);

    const auto tied = world.stream(client, GraphNode::State::idle, {{"node.dont-move", "true"}});
    EXPECT_EQ(build().processes.at(0).outOfReach, std::nullopt) << "what does not play is not missed";
    const auto before = build();
    world.graph.nodes.at(tied).state = GraphNode::State::running;
    EXPECT_EQ(build().processes.at(0).outOfReach, OutOfReach::fixed);
    EXPECT_TRUE(changesBetween(before, build()).processes);

    world.graph.nodes.erase(tied);
    leftAlone.insert(stream);
    EXPECT_EQ(build().processes.at(0).outOfReach, OutOfReach::contested);
}

TEST_F(AudioWorldBuilding, aStreamThatWaitsForUsCountsAsPlaying)
{
    const auto stream = world.stream(world.nativeClient(100), GraphNode::State::suspended);
    EXPECT_FALSE(build().processes.at(0).isPlaying);

    held.insert(stream);

    EXPECT_TRUE(build().processes.at(0).isPlaying);
}

TEST_F(AudioWorldBuilding, whatForwardsAudioForOthersIsNotAProcess)
{
    const auto client = world.nativeClient(100);
    world.node({{"media.class", "Stream/Input/Audio"}, {"client.id", std::to_string(client)},
                   {"node.link-group", "loopback-1"}},
        GraphNode::State::running);
    world.stream(client, GraphNode::State::running, {{"node.link-group", "loopback-1"}});

    EXPECT_TRUE(build().processes.empty());
}

}  // namespace
}  // namespace fadeloom
