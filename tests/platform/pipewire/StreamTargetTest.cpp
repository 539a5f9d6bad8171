// SPDX-License-Identifier: MIT
#include "platform/pipewire/StreamTarget.h"

#include "platform/pipewire/GraphRules.h"
#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class StreamTargetTest : public ::testing::Test {
protected:
    StreamTargetTest() { world.graph.metadata[0]["default.audio.sink"] = R"({ "name": "speakers" })"; }

    GraphID streamWith(GraphProperties properties)
    {
        return world.stream(world.nativeClient(100), GraphNode::State::running, std::move(properties));
    }
    [[nodiscard]] std::string ownDeviceOf(GraphID stream) const
    {
        const auto* device =
            ownDevice(world.graph, *world.graph.node(stream), chosenTargetIn(world.graph, stream));
        return device ? std::string{device->name()} : "none";
    }
    [[nodiscard]] std::string serialOf(GraphID node) const
    {
        return std::to_string(world.graph.node(node)->serial);
    }

    GraphOf world;
    GraphID speakers = world.sink("speakers", {"FL", "FR"});
    GraphID headphones = world.sink("headphones", {"FL", "FR"});
    GraphID desk = world.sink("desk", {"FL", "FR"});
};

TEST_F(StreamTargetTest, withoutATargetItIsTheDefault)
{
    EXPECT_EQ(ownDeviceOf(streamWith({})), "speakers");
    world.graph.metadata.clear();
    EXPECT_EQ(ownDeviceOf(streamWith({})), "none");
}

TEST_F(StreamTargetTest, aPropertyNamesADeviceByNameSerialOrId)
{
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", "headphones"}})), "headphones");
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", serialOf(headphones)}})), "headphones");
    EXPECT_EQ(ownDeviceOf(streamWith({{"node.target", "headphones"}})), "headphones");
    EXPECT_EQ(ownDeviceOf(streamWith({{"node.target", std::to_string(headphones)}})), "headphones");
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", "desk"}, {"node.target", "headphones"}})), "desk");
}

TEST_F(StreamTargetTest, theMetadataOverridesTheProperties)
{
    const auto stream = streamWith({{"target.object", "desk"}});

    world.graph.metadata[stream]["target.node"] = std::to_string(headphones);
    EXPECT_EQ(ownDeviceOf(stream), "headphones");
    world.graph.metadata[stream]["target.object"] = serialOf(speakers);
    EXPECT_EQ(ownDeviceOf(stream), "speakers");
}

TEST_F(StreamTargetTest, minusOneIsTheDefaultRegardlessOfTheProperties)
{
    const auto stream = streamWith({{"target.object", "desk"}});

    world.graph.metadata[stream]["target.node"] = "-1";
    EXPECT_EQ(ownDeviceOf(stream), "speakers");
    world.graph.metadata[stream]["target.object"] = "-1";
    EXPECT_EQ(ownDeviceOf(stream), "speakers");
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", "-1"}})), "speakers");
}

TEST_F(StreamTargetTest, aMissingDeviceGivesTheDefault)
{
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", "elsewhere"}, {"node.target", "desk"}})), "speakers");
}

TEST_F(StreamTargetTest, aTargetThatIsNotADeviceGivesNone)
{
    const auto recorder = world.node(
        {{"media.class", "Stream/Input/Audio"}, {"node.name", "recorder"}}, GraphNode::State::running);

    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", "recorder"}})), "none");
    EXPECT_EQ(ownDeviceOf(streamWith({{"target.object", serialOf(recorder)}})), "none");
}

TEST_F(StreamTargetTest, ourOwnTargetIsNotAChoice)
{
    const auto stream = streamWith({{"target.object", "desk"}});

    world.graph.metadata[stream]["target.object"] = std::string{parkNamePrefix} + "1-2-3";

    EXPECT_EQ(ownDeviceOf(stream), "desk");
}

}  // namespace
}  // namespace fadeloom
