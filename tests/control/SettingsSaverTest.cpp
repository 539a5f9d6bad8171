// SPDX-License-Identifier: MIT
#include "control/SettingsSaver.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "settings/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class SettingsSaverTest : public testing::Test {
protected:
    void saveLimit(float limit)
    {
        SettingsData settings;
        settings.volumeLimit = limit;
        saver->schedule(settings);
    }
    float savedLimit() { return SettingsFile::load(file, world.systemLog()).settings.volumeLimit; }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    std::filesystem::path file = SettingsFile::defaultURL(world.platform().folders);
    std::vector<SettingsFileError> failures;
    std::optional<SettingsSaver> saver{std::in_place, world.platform().utilityQueue,
        world.platform().mainLoop, file,
        [this](const SettingsFileError& error) { failures.push_back(error); }};
};

TEST_F(SettingsSaverTest, writesHalfASecondAfterTheLastChangeAndNotBefore)
{
    saveLimit(1.25F);
    world.advance(400ms);
    saveLimit(1.5F);
    world.advance(499ms);
    EXPECT_FALSE(std::filesystem::exists(file));

    world.advance(1ms);

    EXPECT_EQ(savedLimit(), 1.5F);
}

TEST_F(SettingsSaverTest, reportsWhyAWriteFailed)
{
    std::filesystem::create_directories(file);
    saveLimit(2);

    world.advance(500ms);

    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(std::holds_alternative<FileError>(failures.front()));
}

TEST_F(SettingsSaverTest, isSilentOnceItIsGone)
{
    std::filesystem::create_directories(file);
    saveLimit(2);

    saver.reset();
    world.advance(1s);

    EXPECT_EQ(world.utilityQueue().waitingCount(), 0U) << "the write was tried";
    EXPECT_TRUE(failures.empty());
}

TEST_F(SettingsSaverTest, writesAtOnceWhenItIsAsked)
{
    saveLimit(2);

    saver->finish();

    EXPECT_EQ(savedLimit(), 2);
}

}  // namespace
}  // namespace fadeloom
