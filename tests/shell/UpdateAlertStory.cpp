// SPDX-License-Identifier: MIT
// The result of a check requested by the user.
#include "tests/shell/UpdateStage.h"

namespace fadeloom {
namespace {

using std::chrono_literals::operator""h;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UpdateAlertStory : public UpdateStage {
protected:
    Alert lastAlert() { return world.dialogs().alerts().empty() ? Alert{} : world.dialogs().alerts().back(); }
};

TEST_F(UpdateAlertStory, aNewerVersionIsOffered)
{
    checker->checkInteractively();
    EXPECT_THAT(world.dialogs().alerts(), IsEmpty());

    feed("1.4", "43");

    EXPECT_EQ(lastAlert().title, "Fadeloom 1.4 is available");
    EXPECT_EQ(lastAlert().text,
        "You have version 1.3. Download the new version and replace Fadeloom in Applications.");
    EXPECT_THAT(lastAlert().buttons, ElementsAre("Download", "Later"));
    EXPECT_EQ(world.application().activationCount(), 1);
}

TEST_F(UpdateAlertStory, downloadOpensThePageOnce)
{
    checker->checkInteractively();
    feed("1.4", "43");
    EXPECT_THAT(world.workspace().opened(), IsEmpty());

    world.dialogs().answerAlert(0);

    EXPECT_THAT(world.workspace().opened(), ElementsAre("https://updates.example/base/download.php"));
}

TEST_F(UpdateAlertStory, laterOpensNothing)
{
    checker->checkInteractively();
    feed("1.4", "43");

    world.dialogs().answerAlert(1);

    EXPECT_THAT(world.workspace().opened(), IsEmpty());
}

TEST_F(UpdateAlertStory, theLatestVersionIsCalledThat)
{
    checker->checkInteractively();
    feed("1.3", "42");

    EXPECT_EQ(lastAlert().title, "Fadeloom is up to date");
    EXPECT_EQ(lastAlert().text, "You have the latest version.");
    EXPECT_THAT(lastAlert().buttons, IsEmpty());
    EXPECT_EQ(world.application().activationCount(), 1);
    world.dialogs().answerAlert(0);
    EXPECT_THAT(world.workspace().opened(), IsEmpty());
}

TEST_F(UpdateAlertStory, aServerErrorIsReportedAsUnreachable)
{
    for (const int status : {404, 500}) {
        checker->checkInteractively();
        world.http().answer(status, "");

        EXPECT_EQ(lastAlert().title, "Could not check for updates");
        EXPECT_EQ(lastAlert().text, "Check your internet connection and try again.");
        EXPECT_THAT(lastAlert().buttons, IsEmpty());
        world.dialogs().answerAlert(0);
    }
    EXPECT_THAT(world.workspace().opened(), IsEmpty());
    EXPECT_EQ(world.dialogs().alerts().size(), 2U);
}

TEST_F(UpdateAlertStory, withoutANetworkItIsUnreachable)
{
    world.http().goOffline();

    checker->checkInteractively();
    world.advance(std::chrono::milliseconds(0));

    EXPECT_EQ(lastAlert().title, "Could not check for updates");
}

TEST_F(UpdateAlertStory, anEarlierResultIsOfferedEvenIfTheServerIsGone)
{
    checker->start();
    feed("1.4", "43");

    checker->checkInteractively();
    world.http().cutOff();

    EXPECT_EQ(lastAlert().title, "Fadeloom 1.4 is available");
}

TEST_F(UpdateAlertStory, aConcurrentSilentCheckDoesNotAffectItsReport)
{
    world.advance(1h);
    checker->checkInteractively();
    checker->start();
    world.http().answer(200, R"({"version": "1.4", "build": 43})", 1);
    EXPECT_THAT(world.dialogs().alerts(), IsEmpty());

    world.http().cutOff();

    EXPECT_EQ(lastAlert().title, "Fadeloom 1.4 is available");
    EXPECT_EQ(world.dialogs().alerts().size(), 1U);
}

TEST_F(UpdateAlertStory, itsTextsAreTranslated)
{
    checker.emplace(
        UpdateChecker::Product{.version = "1.3", .build = "42", .endpoint = "https://updates.example"},
        UpdateChecker::Parts{.mainLoop = world.mainLoop(),
            .http = world.http(),
            .workspace = world.workspace(),
            .application = world.application(),
            .dialogs = world.dialogs(),
            .translate = [](const char* context, const char*) { return std::string(context) + " %1!"; }});

    checker->checkInteractively();
    world.http().cutOff();
    EXPECT_EQ(lastAlert().title, "UpdateChecker %1!");
    EXPECT_EQ(lastAlert().text, "UpdateChecker %1!");

    checker->checkInteractively();
    feed("1.3", "42");
    EXPECT_EQ(lastAlert().title, "UpdateChecker %1!");
    EXPECT_EQ(lastAlert().text, "UpdateChecker %1!");

    checker->checkInteractively();
    feed("1.4", "43");
    EXPECT_EQ(lastAlert().title, "UpdateChecker 1.4!");
    EXPECT_EQ(lastAlert().text, "PlatformTexts 1.3!");
    EXPECT_THAT(lastAlert().buttons, ElementsAre("UpdateChecker %1!", "UpdateChecker %1!"));
}

TEST_F(UpdateAlertStory, anAnswerAfterItsDestructionOpensNothing)
{
    checker->checkInteractively();
    feed("1.4", "43");

    checker.reset();
    world.dialogs().answerAlert(0);

    EXPECT_THAT(world.workspace().opened(), IsEmpty());
}

}  // namespace
}  // namespace fadeloom
