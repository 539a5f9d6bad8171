// SPDX-License-Identifier: MIT
#include "platform/pipewire/Carriers.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class CarriersTest : public ::testing::Test {
protected:
    GraphID nodeOf(GraphID client, const std::string& mediaClass, const std::string& group = {})
    {
        GraphProperties properties{{"media.class", mediaClass}, {"client.id", std::to_string(client)}};
        if (!group.empty())
            properties.insert({"node.link-group", group});
        return world.node(std::move(properties), GraphNode::State::running);
    }
    [[nodiscard]] bool isCarrier(GraphID id) const
    {
        return Carriers{world.graph}.contains(*world.graph.node(id));
    }

    GraphOf world;
    GraphID one = world.nativeClient(100);
    GraphID other = world.nativeClient(100);
};

TEST_F(CarriersTest, anAppIsNotACarrier)
{
    const auto player = nodeOf(one, "Stream/Output/Audio");
    nodeOf(other, "Audio/Sink");

    EXPECT_FALSE(isCarrier(player));
}

TEST_F(CarriersTest, anAppThatPlaysAndCapturesIsNotACarrier)
{
    const auto voice = nodeOf(one, "Stream/Output/Audio");
    const auto microphone = nodeOf(one, "Stream/Input/Audio");

    EXPECT_FALSE(isCarrier(voice));
    EXPECT_FALSE(isCarrier(microphone));
}

TEST_F(CarriersTest, theOutputOfAFilterChainOrARemappedSinkIsOne)
{
    for (const char* mediaClass : {"Audio/Sink", "Audio/Duplex", "Audio/Sink/Internal"}) {
        const std::string group = std::string{"filter-chain-"} + mediaClass;
        nodeOf(one, mediaClass, group);
        EXPECT_TRUE(isCarrier(nodeOf(other, "Stream/Output/Audio", group))) << mediaClass;
    }
}

TEST_F(CarriersTest, bothEndsOfALoopbackAreCarriers)
{
    const auto capture = nodeOf(one, "Stream/Input/Audio", "loopback-1-1");
    const auto playback = nodeOf(one, "Stream/Output/Audio", "loopback-1-1");

    EXPECT_TRUE(isCarrier(capture));
    EXPECT_TRUE(isCarrier(playback));
}

TEST_F(CarriersTest, theCaptureOfAVirtualMicrophoneIsOne)
{
    const auto capture = nodeOf(one, "Stream/Input/Audio", "echo-cancel-1-1");
    nodeOf(one, "Audio/Source", "echo-cancel-1-1");

    EXPECT_TRUE(isCarrier(capture));
}

TEST_F(CarriersTest, theOutputOfAnEffectThatOwnsASinkIsOne)
{
    const auto output = nodeOf(one, "Stream/Output/Audio");
    const auto others = nodeOf(other, "Stream/Output/Audio");
    nodeOf(one, "Audio/Sink");

    EXPECT_TRUE(isCarrier(output));
    EXPECT_FALSE(isCarrier(others));  // Of the same process, like all virtual sinks of pipewire-pulse.
}

TEST_F(CarriersTest, aHalfWhoseOtherHalfHasNotAppearedIsOne)
{
    const auto playback = nodeOf(one, "Stream/Output/Audio", "loopback-1-1");
    EXPECT_TRUE(isCarrier(playback));

    nodeOf(one, "Stream/Output/Audio", "loopback-1-1");
    EXPECT_FALSE(isCarrier(playback));  // Two output streams forward nothing.
}

TEST_F(CarriersTest, devicesAreNotCarriers)
{
    EXPECT_FALSE(isCarrier(nodeOf(one, "Audio/Sink", "filter-chain-1-1")));
}

}  // namespace
}  // namespace fadeloom
