// SPDX-License-Identifier: MIT
#include "platform/pipewire/Graph.h"

#include "tests/platform/pipewire/GraphOf.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(Graph, nonIntegerPropertiesAreAbsent)
{
    const GraphProperties properties{
        {"good", "42"}, {"empty", ""}, {"tail", "42x"}, {"huge", "99999999999999999999"}};

    EXPECT_EQ(numberOf(properties, "good"), 42);
    EXPECT_EQ(numberOf(properties, "empty"), std::nullopt);
    EXPECT_EQ(numberOf(properties, "tail"), std::nullopt);
    EXPECT_EQ(numberOf(properties, "huge"), std::nullopt);
    EXPECT_EQ(numberOf(properties, "missing"), std::nullopt);
}

TEST(Graph, aReusedIdIsADifferentNode)
{
    GraphOf world;
    const auto id = world.sink("speakers", {"FL", "FR"});
    const auto serial = world.graph.node(id)->serial;

    world.graph.nodes[id].serial = serial + 1;

    EXPECT_NE(world.graph.node(id), nullptr);
    EXPECT_EQ(world.graph.node(id, serial), nullptr);
}

TEST(Graph, portsComeInTheirOrderWithoutMonitorsAndOtherMedia)
{
    GraphOf world;
    const auto sink = world.sink("speakers", {"FL", "FR"});
    world.port(sink, "FL", true, true);
    const auto midi = world.port(sink, "MIDI");
    world.graph.ports[midi].isAudio = false;
    world.graph.ports.begin()->second.index = 99;  // FL, the first to appear, has the highest index.

    const auto ports = world.graph.inputPorts(sink);

    ASSERT_EQ(ports.size(), 2U);
    EXPECT_EQ(ports[0].channel, "FR");
    EXPECT_EQ(ports[1].channel, "FL");
    EXPECT_TRUE(world.graph.outputPorts(sink).empty());
}

TEST(Graph, theDefaultSinkIsReadFromJson)
{
    const auto nameIn = [](const char* json) {
        Graph graph;
        graph.metadata[0]["default.audio.sink"] = json;
        return graph.defaultSinkName();
    };

    EXPECT_EQ(nameIn(R"({"name":"speakers"})"), "speakers");
    EXPECT_EQ(nameIn(R"({ "other": 1, "name": "quo\"ted \u017c" })"), "quo\"ted ż");
    EXPECT_EQ(nameIn(R"({"name":})"), "");
    EXPECT_EQ(nameIn(R"({)"), "");
    EXPECT_EQ(nameIn(R"([1, 2])"), "");
    EXPECT_EQ(nameIn("nonsense"), "");
    EXPECT_EQ(nameIn(""), "");
    EXPECT_EQ(Graph{}.defaultSinkName(), "");
}

TEST(Graph, aForcedRateOverridesTheDefault)
{
    Graph graph;
    EXPECT_EQ(graph.graphRate(), 48000.0);

    graph.settings = {{"clock.rate", "96000"}, {"clock.force-rate", "0"}};
    EXPECT_EQ(graph.graphRate(), 96000.0);

    graph.settings["clock.force-rate"] = "44100";
    EXPECT_EQ(graph.graphRate(), 44100.0);
}

}  // namespace
}  // namespace fadeloom
