// SPDX-License-Identifier: MIT
#include "app/IconVolume.h"

#include "platform/simulated/SimulatedStatusItem.h"
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class IconVolumeStory : public ControllerStory {
protected:
    IconVolumeStory()
    {
        start();
        volume.emplace(*controller, icon, [](const char*, const char* text) { return std::string(text); });
    }

    AppAudioSettings of(const std::string& bundleID) { return appSettings(settings(), bundleID); }

    const std::string player = "com.example.player";
    const std::string chat = "com.example.chat";
    SimulatedStatusItem icon;
    std::optional<IconVolume> volume;
};

TEST_F(IconVolumeStory, theWheelChangesTheAppThatWasChangedLast)
{
    launchPlaying("Player");
    launchPlaying("Chat");
    change(player, [](auto& app) { app.volume = 0.5F; });

    icon.scroll(2);
    EXPECT_FLOAT_EQ(of(player).volume, 0.6F);
    icon.scroll(-3);
    EXPECT_FLOAT_EQ(of(player).volume, 0.45F);
    EXPECT_EQ(of(chat).volume, 1.0F);

    change(chat, [](auto& app) { app.muted = true; });
    icon.scroll(-1);
    EXPECT_FLOAT_EQ(of(chat).volume, 0.95F);
}

TEST_F(IconVolumeStory, scrollingIsClamped)
{
    launchPlaying("Player");
    change(player, [](auto& app) { app.volume = 0.1F; });

    icon.scroll(-5);
    EXPECT_EQ(of(player).volume, 0.0F);
    icon.scroll(50);
    EXPECT_EQ(of(player).volume, 1.0F);
    setVolumeLimit(1.5F);
    icon.scroll(50);
    EXPECT_EQ(of(player).volume, 1.5F);
}

TEST_F(IconVolumeStory, theLoudestIsSelectedIfNoPlayingAppWasChanged)
{
    const auto quiet = world.launchApp("Chat");
    world.startPlaying(quiet, SimulatedSignal::constant(0.05F));
    launchPlaying("Player");
    change("com.example.radio", [](auto& app) { app.volume = 0.5F; });
    world.advance(1s);

    icon.middleClick();

    EXPECT_TRUE(of(player).muted);
    EXPECT_FALSE(of(chat).muted);
    icon.middleClick();
    EXPECT_FALSE(of(player).muted);
}

TEST_F(IconVolumeStory, nothingHappensWhileNothingPlays)
{
    icon.scroll(3);
    icon.middleClick();

    EXPECT_TRUE(settings().apps.empty());
    EXPECT_EQ(icon.description(), "");
}

TEST_F(IconVolumeStory, theTooltipNamesTheApp)
{
    launchPlaying("Player");
    EXPECT_EQ(icon.description(), "Scroll: volume of the loudest app. Middle click: mute.");

    change(player, [](auto& app) { app.volume = 0.5F; });

    EXPECT_EQ(icon.description(), "Scroll: volume of Player. Middle click: mute.");
}

}  // namespace
}  // namespace fadeloom
