// SPDX-License-Identifier: MIT
#include "ui/OutputEntries.h"
#include "control/AppSettings.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class OutputEntriesTest : public testing::Test {
protected:
    OutputEntriesTest()
    {
        state.devices.assign(
            {{.id = 1, .uid = "a", .name = "Speakers"}, {.id = 2, .uid = "b", .name = "Speakers"}});
        state.defaultDeviceUID.assign("b");
    }
    void choose(const std::string& uid)
    {
        state.settings.modify(
            [&](auto& settings) { storeAppSettings(settings, "player", {.outputUID = uid}); });
    }

    ControllerState state;
};

TEST_F(OutputEntriesTest, ofTwoDevicesWithOneNameTheDefaultIsChecked)
{
    const auto entries = systemOutputEntries(state);

    ASSERT_EQ(entries.size(), 2U);
    EXPECT_FALSE(entries.at(0).isChecked);
    EXPECT_TRUE(entries.at(1).isChecked);
    EXPECT_EQ(entries.at(1).key, "2");
}

TEST_F(OutputEntriesTest, withoutAKnownDefaultThereIsNoOutput)
{
    state.defaultDeviceUID.assign("gone");
    EXPECT_EQ(systemOutputLabel(state), "No output");
    EXPECT_EQ(appOutputEntries(state, "player").front().text, "System Output");
    state.defaultDeviceUID.assign(std::nullopt);
    EXPECT_EQ(systemOutputLabel(state), "No output");
}

TEST_F(OutputEntriesTest, anAppFollowsTheSystemFirst)
{
    const auto entries = appOutputEntries(state, "player");

    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries.front().text, "System Output (Speakers)");
    EXPECT_TRUE(entries.front().isChecked);
    EXPECT_EQ(appOutputLabel(state, "player"), "System Output");
}

TEST_F(OutputEntriesTest, aChosenDeviceIsNamedAndChecked)
{
    choose("a");

    EXPECT_EQ(appOutputLabel(state, "player"), "Speakers");
    EXPECT_TRUE(appOutputEntries(state, "player").at(1).isChecked);
    EXPECT_FALSE(appOutputEntries(state, "player").front().isChecked);
}

TEST_F(OutputEntriesTest, aMissingDeviceIsShownAsSuch)
{
    choose("gone");
    EXPECT_EQ(appOutputLabel(state, "player"), "System Output");
    state.missingOutput.assign({"player"});
    EXPECT_EQ(appOutputLabel(state, "player"), "Disconnected, muted");
}

TEST_F(OutputEntriesTest, aDeviceChosenByTheAppIsLabelledAsSuch)
{
    state.apps.assign({{.bundleID = "player", .ownOutputs = {"a"}}});
    EXPECT_EQ(appOutputLabel(state, "player"), "Speakers, chosen by the app");

    state.apps.assign({{.bundleID = "player", .ownOutputs = {"b"}}});
    EXPECT_EQ(appOutputLabel(state, "player"), "System Output") << "it follows the system";

    state.apps.assign({{.bundleID = "player", .ownOutputs = {"a", "b"}}});
    EXPECT_EQ(appOutputLabel(state, "player"), "Speakers + Speakers, chosen by the app");

    choose("a");
    EXPECT_EQ(appOutputLabel(state, "player"), "Speakers");
}

}  // namespace
}  // namespace fadeloom
