// SPDX-License-Identifier: MIT
// The simulated user's desktop: messages, prompts, opened files and URLs, other instances of the program.
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/UserDefaultsContract.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedDefaultsWorld final : public ContractDefaultsWorld {
public:
    UserDefaults& defaults() override { return defaults_; }

private:
    SimulatedUserDefaults defaults_;
};

std::unique_ptr<ContractDefaultsWorld> makeSimulatedDefaultsWorld()
{
    return std::make_unique<SimulatedDefaultsWorld>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, UserDefaultsContract, ::testing::Values(&makeSimulatedDefaultsWorld));

class SimulatedDesktopTest : public ::testing::Test {
protected:
    SimulatedPlatform world{"/some/folder"};
};

TEST_F(SimulatedDesktopTest, aMessageIsOpenUntilTheUserAnswers)
{
    std::vector<std::size_t> answers;
    world.dialogs().showAlert({.title = "Full", .text = "Empty it?", .buttons = {"Yes", "No"}},
        [&](std::size_t button) { answers.push_back(button); });
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_EQ(world.dialogs().openAlerts(), 1U);

    world.dialogs().answerAlert(1);
    world.dialogs().answerAlert(0);

    EXPECT_THAT(answers, ElementsAre(1U));
    EXPECT_EQ(world.dialogs().openAlerts(), 0U);
    EXPECT_EQ(world.dialogs().alerts().at(0).title, "Full");
}

TEST_F(SimulatedDesktopTest, aQuestionForAnApplicationIsAnsweredOnce)
{
    std::vector<std::optional<std::string>> answers;
    world.dialogs().chooseApplication([&](const auto& bundleID) { answers.push_back(bundleID); });
    EXPECT_EQ(world.dialogs().applicationQuestions(), 1U);

    world.dialogs().answerApplication("com.example.call");
    world.dialogs().answerApplication(std::nullopt);

    EXPECT_THAT(answers, ElementsAre(std::optional<std::string>("com.example.call")));
}

TEST_F(SimulatedDesktopTest, anInstalledAppHasANameAlsoWhenItDoesNotRun)
{
    world.workspace().install("com.example.call", "Call");

    EXPECT_EQ(world.workspace().installedName("com.example.call"), "Call");
    EXPECT_EQ(world.workspace().installedName("com.example.other"), std::nullopt);
    EXPECT_THAT(world.workspace().runningApplications(), IsEmpty());
}

TEST_F(SimulatedDesktopTest, addressesAreOpenedInOrder)
{
    world.workspace().open("https://one.example");
    world.workspace().open("https://two.example");

    EXPECT_THAT(world.workspace().opened(), ElementsAre("https://one.example", "https://two.example"));
}

TEST_F(SimulatedDesktopTest, aStartIsReportedWhetherItSucceedsOrNot)
{
    int reports = 0;
    world.workspace().openNewInstance([&] { ++reports; });
    world.workspace().failToStart();
    world.workspace().openNewInstance([&] { ++reports; });
    EXPECT_EQ(reports, 0);

    world.workspace().reportStarts();
    world.workspace().reportStarts();

    EXPECT_EQ(reports, 2);
    EXPECT_EQ(world.workspace().newInstances(), 1);
}

TEST_F(SimulatedDesktopTest, theAboutPanelSaysWhatItWasGiven)
{
    EXPECT_FALSE(world.application().aboutPanel());

    world.application().showAboutPanel({.text = "Good.", .linkText = "host", .linkURL = "https://host"});

    EXPECT_EQ(world.application().aboutPanel()->text, "Good.");
}

}  // namespace
}  // namespace fadeloom
