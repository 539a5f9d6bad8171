// SPDX-License-Identifier: MIT
// Start at login, and the windows' appearance.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using Appearance = Application::Appearance;

class DesktopStory : public ControllerStory {
protected:
    bool launchesAtLogin() { return *state().launchAtLogin; }
    void setTheme(Theme theme)
    {
        auto settings = this->settings();
        settings.appearance.theme = theme;
        controller->setSettings(settings);
    }
    void setMeters(bool isOn)
    {
        auto settings = this->settings();
        settings.appearance.levelMeters = isOn;
        controller->setSettings(settings);
    }
};

TEST_F(DesktopStory, knowsFromTheStartWhetherItLaunchesAtLogin)
{
    world.loginItem().set(LoginItem::Status::enabled);
    start();
    EXPECT_TRUE(launchesAtLogin());
    end();

    world.loginItem().set(LoginItem::Status::requiresApproval);
    start();
    EXPECT_FALSE(launchesAtLogin());
}

TEST_F(DesktopStory, launchAtLoginIsSwitchedOnAndOff)
{
    start();

    controller->setLaunchAtLogin(true);
    EXPECT_TRUE(launchesAtLogin());
    EXPECT_EQ(world.loginItem().status(), LoginItem::Status::enabled);

    controller->setLaunchAtLogin(false);
    EXPECT_FALSE(launchesAtLogin());
    EXPECT_EQ(world.loginItem().status(), LoginItem::Status::notRegistered);
    EXPECT_EQ(message(), "");
}

TEST_F(DesktopStory, anUnchangedSwitchCallsNobody)
{
    start();

    controller->setLaunchAtLogin(false);

    EXPECT_EQ(world.loginItem().changeCount(), 0);
}

TEST_F(DesktopStory, aRefusedLaunchAtLoginFallsBackWithTheReason)
{
    start();
    world.loginItem().refuse("The folder is not writable.");

    controller->setLaunchAtLogin(true);

    EXPECT_FALSE(launchesAtLogin());
    EXPECT_EQ(message(), "Launch at login: The folder is not writable.");
}

TEST_F(DesktopStory, aRefusedUnregistrationStaysOn)
{
    world.loginItem().set(LoginItem::Status::enabled);
    start();
    world.loginItem().refuse("The folder is not writable.");

    controller->setLaunchAtLogin(false);

    EXPECT_TRUE(launchesAtLogin());
    EXPECT_EQ(message(), "Launch at login: The folder is not writable.");
}

TEST_F(DesktopStory, launchAtLoginThatWaitsForApprovalShowsOff)
{
    start();
    world.loginItem().askForApproval();
    int assignments = 0;
    const auto subscription = state().launchAtLogin.whenAssigned([&] { assignments += 1; });

    controller->setLaunchAtLogin(true);

    EXPECT_FALSE(launchesAtLogin());
    EXPECT_EQ(assignments, 1);  // A switch in the panel must move back.
}

TEST_F(DesktopStory, theThemeIsAppliedFromTheStart)
{
    SettingsData settings;
    settings.appearance.theme = Theme::dark;
    givenSettings(settings);

    start();

    EXPECT_EQ(world.application().appearance(), Appearance::dark);
}

TEST_F(DesktopStory, theThemeFollowsItsSetting)
{
    start();
    EXPECT_EQ(world.application().appearance(), Appearance::system);

    setTheme(Theme::light);
    EXPECT_EQ(world.application().appearance(), Appearance::light);
    setTheme(Theme::dark);
    EXPECT_EQ(world.application().appearance(), Appearance::dark);
    setTheme(Theme::system);
    EXPECT_EQ(world.application().appearance(), Appearance::system);
}

TEST_F(DesktopStory, metersRunWhileTheyAreWatchedAndSwitchedOn)
{
    start();
    launchPlaying("Player");
    controller->levels().setWanted(true);
    world.advance(1s);
    EXPECT_NEAR(controller->levels().levels()->at("com.example.player"), meterPosition(source), 0.001);

    setMeters(false);
    EXPECT_TRUE(controller->levels().levels()->empty());
    EXPECT_FALSE(controller->levels().isRunning());

    setMeters(true);
    world.advance(1s);
    EXPECT_FALSE(controller->levels().levels()->empty());
}

TEST_F(DesktopStory, unwatchedMetersNeverRun)
{
    start();
    launchPlaying("Player");

    setMeters(false);
    setMeters(true);

    EXPECT_FALSE(controller->levels().isRunning());
}

TEST_F(DesktopStory, metersThatAreSwitchedOffStayOffFromTheStart)
{
    SettingsData settings;
    settings.appearance.levelMeters = false;
    givenSettings(settings);
    start();

    controller->levels().setWanted(true);

    EXPECT_FALSE(controller->levels().isRunning());
}

}  // namespace
}  // namespace fadeloom
