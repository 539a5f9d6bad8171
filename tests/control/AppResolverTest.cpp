// SPDX-License-Identifier: MIT
#include "control/AppResolver.h"

#include "platform/simulated/SimulatedWorkspace.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace fadeloom {
namespace {

std::optional<std::string_view> match(std::string_view id, std::initializer_list<std::string_view> candidates)
{
    return bestPrefixMatch(id, std::vector(candidates));
}

TEST(BestPrefixMatch, prefersTheLongestCandidate)
{
    EXPECT_EQ(
        match("com.example.app.helper", {"com.example", "com.example.app", "com.other"}), "com.example.app");
    EXPECT_EQ(match("com.example.app.helper", {"com.example.app", "com.example"}), "com.example.app");
}

TEST(BestPrefixMatch, matchesTheIdentifierItself)
{
    EXPECT_EQ(match("com.example.app", {"com.example.app"}), "com.example.app");
}

TEST(BestPrefixMatch, endsOnlyAtADot)
{
    EXPECT_EQ(match("com.example.apple", {"com.example.app"}), std::nullopt);
    EXPECT_EQ(match("com.example", {"com.example.app"}), std::nullopt);
}

TEST(BestPrefixMatch, takesTheFirstOfEqualCandidates)
{
    const std::string first = "com.example";
    const std::string second = "com.example";

    const auto best = match("com.example.helper", {first, second});

    ASSERT_TRUE(best);
    EXPECT_EQ(best->data(), first.data());
}

TEST(BestPrefixMatch, findsNothingForAnEmptyIdentifierOrAmongNone)
{
    EXPECT_EQ(match("", {""}), std::nullopt);
    EXPECT_EQ(match("", {"com.example"}), std::nullopt);
    EXPECT_EQ(match("com.example", {}), std::nullopt);
}

class AppResolverTest : public testing::Test {
protected:
    std::optional<std::string> ownerOf(ProcessID pid, const std::string& bundleID = "")
    {
        const auto owner = AppResolver(workspace).owningApp(pid, bundleID, workspace.runningApplications());
        return owner ? owner->bundleID : std::nullopt;
    }

    SimulatedWorkspace workspace;
};

TEST_F(AppResolverTest, anApplicationOwnsItself)
{
    const auto player = workspace.launchApp("Player", {});

    EXPECT_EQ(ownerOf(player, "com.other"), "com.example.player");
}

TEST_F(AppResolverTest, anAccessoryApplicationOwnsItself)
{
    const auto player = workspace.launchApp("Player", {.policy = ActivationPolicy::accessory});

    EXPECT_EQ(ownerOf(player), "com.example.player");
}

TEST_F(AppResolverTest, aHelperBelongsToItsResponsibleApplication)
{
    const auto browser = workspace.launchApp("Browser", {});
    const auto helper = workspace.launchHelper(browser);

    EXPECT_EQ(ownerOf(helper), "com.example.browser");
}

TEST_F(AppResolverTest, theResponsibleProcessHasPrecedenceOverTheExtendedIdentifier)
{
    const auto launcher = workspace.launchApp("Launcher", {});
    workspace.launchApp("Browser", {});
    const auto helper = workspace.launchHelper(launcher);

    EXPECT_EQ(ownerOf(helper, "com.example.browser.helper"), "com.example.launcher");
}

TEST_F(AppResolverTest, aHelperOnItsOwnBelongsToTheApplicationThatItsIdentifierExtends)
{
    workspace.launchApp("Browser", {});
    const auto helper = workspace.launchHelper(-1);

    EXPECT_EQ(ownerOf(helper, "com.example.browser.helper"), "com.example.browser");
}

TEST_F(AppResolverTest, aDaemonHasNoOwner)
{
    workspace.launchApp("Browser", {});
    const auto daemon = workspace.launchHelper(-1);

    EXPECT_EQ(ownerOf(daemon, "com.example.daemon"), std::nullopt);
    EXPECT_EQ(ownerOf(daemon), std::nullopt);
}

TEST_F(AppResolverTest, whatTheUserNeverSeesOwnsNothing)
{
    const auto agent = workspace.launchApp("Agent", {.policy = ActivationPolicy::prohibited});
    const auto tool = workspace.launchApp("Tool", {.bundleLocation = "/usr/libexec/tool"});
    const auto agentHelper = workspace.launchHelper(agent);

    EXPECT_EQ(ownerOf(agent, "com.example.agent"), std::nullopt);
    EXPECT_EQ(ownerOf(tool, "com.example.tool"), std::nullopt);
    EXPECT_EQ(ownerOf(agentHelper, "com.example.agent.helper"), std::nullopt);
}

TEST_F(AppResolverTest, anApplicationInsideAnotherCountsAsItself)
{
    workspace.launchApp("Suite", {.bundleID = "com.example.suite"});
    const auto editor = workspace.launchApp("Editor", {.bundleID = "com.example.suite.editor"});

    EXPECT_EQ(ownerOf(editor, "com.example.suite.editor"), "com.example.suite.editor");
}

}  // namespace
}  // namespace fadeloom
