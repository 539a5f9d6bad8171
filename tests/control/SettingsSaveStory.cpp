// SPDX-License-Identifier: MIT
// A save that fails, and saving on shutdown.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::StartsWith;

class SettingsSaveStory : public ControllerStory {
protected:
    void setVolumeLimit(float limit)
    {
        controller->editSettings([&](SettingsData& settings) { settings.volumeLimit = limit; });
    }
};

TEST_F(SettingsSaveStory, aSaveThatFailsAfterTheControllerIsGoneIsNotReported)
{
    start();
    std::filesystem::create_directories(settingsFile());
    setVolumeLimit(2);

    end();
    ASSERT_TRUE(isSaveWaiting());
    world.advance(1s);  // The address sanitizer would detect a report to a destroyed object.

    EXPECT_FALSE(isSaveWaiting());
    EXPECT_TRUE(std::filesystem::is_directory(settingsFile()));
}

TEST_F(SettingsSaveStory, aSaveThatFailedIsTriedAgainAtTheEnd)
{
    start();
    std::filesystem::create_directories(settingsFile());
    setVolumeLimit(2);
    world.advance(1s);
    ASSERT_THAT(message(), StartsWith("Could not save settings: "));
    std::filesystem::remove(settingsFile());

    controller->shutdown();

    EXPECT_EQ(saved().volumeLimit, 2);
}

TEST_F(SettingsSaveStory, aChangeAfterTheEndIsSavedAtOnce)
{
    start();
    controller->shutdown();

    setVolumeLimit(2);

    EXPECT_FALSE(isSaveWaiting());
    EXPECT_EQ(saved().volumeLimit, 2);
}

}  // namespace
}  // namespace fadeloom
