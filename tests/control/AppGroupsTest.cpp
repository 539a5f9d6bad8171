// SPDX-License-Identifier: MIT
#include "control/AppGroups.h"

#include "platform/simulated/SimulatedWorkspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::ElementsAre;

class AppGroupsTest : public testing::Test {
protected:
    static AudioProcess process(AudioProcessID object, ProcessID pid, bool isPlaying = false)
    {
        return {.id = object, .pid = pid, .bundleID = {}, .isPlaying = isPlaying};
    }
    /// The identifiers of the apps that own the processes.
    std::vector<std::string> ownersOf(const std::vector<AudioProcess>& processes)
    {
        std::vector<std::string> ids;
        for (const auto& [id, group] : grouper.group(processes))
            ids.push_back(id);
        return ids;
    }

    SimulatedWorkspace workspace;
    AppGrouper grouper{workspace};
};

TEST_F(AppGroupsTest, gatherTheProcessesOfEachApp)
{
    const auto player = workspace.launchApp("Player", {});
    const auto helper = workspace.launchHelper(player);
    const auto chat = workspace.launchApp("Chat", {});

    const auto groups =
        grouper.group(std::vector{process(9, helper), process(5, player, true), process(7, chat)});

    ASSERT_EQ(groups.size(), 2);
    EXPECT_THAT(groups.at("com.example.player").processIDs(), ElementsAre(5, 9));
    EXPECT_TRUE(groups.at("com.example.player").isPlaying());
    EXPECT_EQ(groups.at("com.example.player").owner.localizedName, "Player");
    EXPECT_FALSE(groups.at("com.example.chat").isPlaying());
    EXPECT_FALSE(groups.at("com.example.chat").isUsingMic());
}

TEST_F(AppGroupsTest, excludeAnAppThatHasEnded)
{
    const auto player = workspace.launchApp("Player", {});
    ASSERT_THAT(ownersOf({process(5, player)}), ElementsAre("com.example.player"));

    workspace.quit(player);

    EXPECT_THAT(ownersOf({process(5, player)}), ElementsAre());
}

TEST_F(AppGroupsTest, detectAReusedPid)
{
    const auto player = workspace.launchApp("Player", {});
    ownersOf({process(5, player)});
    workspace.quit(player);
    ownersOf({});

    workspace.launchApp("Chat", {.pid = player});

    EXPECT_THAT(ownersOf({process(6, player)}), ElementsAre("com.example.chat"));
}

TEST_F(AppGroupsTest, excludeOurOwnProcessWhateverItsName)
{
    workspace.launchApp("Other", {.pid = workspace.ownPid()});

    EXPECT_THAT(ownersOf({process(5, workspace.ownPid())}), ElementsAre());
}

TEST_F(AppGroupsTest, excludeASecondInstanceOfOurs)
{
    const auto second = workspace.launchApp("Second", {.bundleID = workspace.ownBundleID()});

    EXPECT_THAT(ownersOf({process(5, second)}), ElementsAre());
}

TEST_F(AppGroupsTest, excludeProcessesWithoutAPid)
{
    workspace.launchApp("Player", {});

    EXPECT_THAT(ownersOf({{.id = 5, .pid = -1, .bundleID = "com.example.player"},
                    {.id = 6, .pid = 0, .bundleID = "com.example.player"}}),
        ElementsAre());
}

}  // namespace
}  // namespace fadeloom
