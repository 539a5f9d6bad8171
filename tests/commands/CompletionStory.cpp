// SPDX-License-Identifier: MIT
// Completion of partially typed commands.
#include "tests/commands/CommandStory.h"

namespace fadeloom {
namespace {

using testing::HasSubstr;
using testing::Not;

class CompletionStory : public CommandStory { };

TEST_F(CompletionStory, aVerbComesFirst)
{
    EXPECT_EQ(answer("complete vol"), "ok complete; volume \"an app's volume\"");
    EXPECT_THAT(answer("complete"), HasSubstr("; quit \"ends Fadeloom\""));
}

TEST_F(CompletionStory, thenTheCurrentObjects)
{
    EXPECT_EQ(answer("complete volume COM"), "ok complete; com.example.player Player");
    EXPECT_THAT(answer("complete volume @p"), HasSubstr("; @playing "));
    EXPECT_EQ(answer("complete output player sp"), "ok complete; speakers \"Desk Speakers\"");
    EXPECT_EQ(
        answer("complete default \"\""), "ok complete; speakers \"Desk Speakers\"; headphones Headphones");
    EXPECT_EQ(answer("complete output player n"), "ok complete; next \"an output\"");

    launchPlaying("Radio");
    world.unplug("speakers");
    world.runPosted();
    EXPECT_THAT(answer("complete volume \"\""), HasSubstr("com.example.radio Radio"));
    EXPECT_EQ(answer("complete default \"\""), "ok complete; headphones Headphones");
}

TEST_F(CompletionStory, presetsAreTheMatchingOnes)
{
    EXPECT_EQ(answer("complete preset player Ro"), "ok complete; Rock \"built in\"");
    EXPECT_EQ(answer("complete delete-preset \"\""), "ok complete");
    answer("save-preset player \"Rough Mix\"");
    EXPECT_EQ(answer("complete delete-preset \"\""), "ok complete; \"Rough Mix\" yours");
}

TEST_F(CompletionStory, choicesComeFromTheTable)
{
    EXPECT_EQ(answer("complete mute player t"), "ok complete; toggle \"silences an app\"");
    EXPECT_EQ(answer("complete record player \"\""),
        "ok complete; start \"records what an app plays\"; stop \"records what an app plays\"");
    EXPECT_EQ(answer("complete limit 1."),
        "ok complete; 1.25 \"the highest volume of an app\"; 1.5 \"the highest volume of an app\"");
    EXPECT_EQ(answer("complete recordings \"\""), "ok complete; default \"the folder for recordings\"");
    EXPECT_EQ(answer("complete list o"), "ok complete; outputs \"how things stand\"");
}

TEST_F(CompletionStory, unknownOrCompleteCommandsHaveNoCompletions)
{
    EXPECT_EQ(answer("complete louder x"), "ok complete");
    EXPECT_EQ(answer("complete quit x"), "ok complete");
    EXPECT_EQ(answer("complete mute player on x"), "ok complete");
    EXPECT_EQ(answer("complete band player 1 2 3 4"), "ok complete");
}

}  // namespace
}  // namespace fadeloom
