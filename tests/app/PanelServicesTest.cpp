// SPDX-License-Identifier: MIT
// What the panel's wishes come to.
#include "app/PanelServices.h"

#include "app/ProductPages.h"
#include "app/Version.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "shell/UpdateChecker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PanelServicesTest : public testing::Test {
protected:
    PanelServices servicesWith(UpdateChecker* checker)
    {
        return PanelServices({.workspace = world.workspace(),
            .application = world.application(),
            .dialogs = world.dialogs(),
            .userDefaults = world.userDefaults(),
            .updates = checker,
            .translate = words,
            .quit = [this] { ++quits; }});
    }

    const Translate words = [](const char*, const char* text) { return std::string(text); };
    SimulatedPlatform world{"/some/folder"};
    UpdateChecker updates{{.version = "1.0", .build = "1", .endpoint = "https://updates.example"},
        {world.mainLoop(), world.http(), world.workspace(), world.application(), world.dialogs(), words}};
    PanelServices services = servicesWith(&updates);
    int quits = 0;
};

TEST_F(PanelServicesTest, aNewerVersionIsAnnounced)
{
    std::vector<std::optional<std::string>> heard;
    const auto watch =
        services.whenAvailableVersionChanges([&] { heard.push_back(services.availableVersion()); });
    EXPECT_EQ(services.availableVersion(), std::nullopt);

    updates.start();
    world.http().answer(200, R"({"version": "1.4", "build": 2})");

    EXPECT_THAT(heard, ElementsAre(std::optional<std::string>("1.4")));
}

TEST_F(PanelServicesTest, itsPageIsOpened)
{
    services.openDownloadPage();
    services.openWebPage();

    EXPECT_THAT(world.workspace().opened(), ElementsAre("https://updates.example/download.php", webPage()));
}

TEST_F(PanelServicesTest, aProgramThatLooksForNoUpdatesKnowsOfNone)
{
    auto silent = servicesWith(nullptr);
    const auto watch = silent.whenAvailableVersionChanges([] { });

    silent.openDownloadPage();

    EXPECT_EQ(silent.availableVersion(), std::nullopt);
    EXPECT_THAT(world.workspace().opened(), IsEmpty());
    EXPECT_THAT(world.http().requests(), IsEmpty());
}

TEST_F(PanelServicesTest, theLanguageIsKeptInThePreferences)
{
    services.setLanguage("pl");

    EXPECT_EQ(services.language(), "pl");
    EXPECT_EQ(world.userDefaults().stringList("AppleLanguages"), std::vector<std::string>{"pl"});
}

TEST_F(PanelServicesTest, aRestartEndsThisInstanceAfterTheNewOne)
{
    services.restart();
    EXPECT_EQ(world.workspace().newInstances(), 1);
    EXPECT_EQ(quits, 0);

    world.workspace().reportStarts();

    EXPECT_EQ(quits, 1);
}

TEST_F(PanelServicesTest, anApplicationIsChosenOrNot)
{
    std::vector<std::string> chosen;
    services.chooseApplication([&](const auto& bundleID) { chosen.push_back(bundleID); });
    world.dialogs().answerApplication(std::nullopt);
    EXPECT_THAT(chosen, IsEmpty());

    services.chooseApplication([&](const auto& bundleID) { chosen.push_back(bundleID); });
    world.dialogs().answerApplication("com.example.call");

    EXPECT_THAT(chosen, ElementsAre("com.example.call"));
}

TEST_F(PanelServicesTest, anInstalledApplicationHasAName)
{
    world.workspace().install("com.example.call", "Call");

    EXPECT_EQ(services.installedName("com.example.call"), "Call");
    EXPECT_EQ(services.installedName("com.example.none"), std::nullopt);
}

TEST_F(PanelServicesTest, theAboutPanelLinksToTheWebPage)
{
    services.openAboutPanel();

    EXPECT_EQ(world.application().aboutPanel()->linkURL, webPage());
    EXPECT_EQ(world.application().aboutPanel()->linkText, services.webPageHost());
    EXPECT_EQ(services.version(), programVersion());
}

}  // namespace
}  // namespace fadeloom
