// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include "platform/simulated/SimulatedFolders.h"
#include "platform/simulated/SimulatedSystemLog.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <sstream>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

class SettingsFileTest : public testing::Test {
protected:
    void put(const std::string& content) const
    {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
    }
    static std::string contentOf(const fs::path& path)
    {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }

    TemporaryFolder folder;
    SimulatedSystemLog log;
    fs::path file = SettingsFile::defaultURL(SimulatedFolders(folder.path()));
    fs::path backup = folder.path() / "Fadeloom" / "settings.broken.json";
};

TEST_F(SettingsFileTest, isInItsOwnFolder)
{
    EXPECT_EQ(file, folder.path() / "Fadeloom" / "settings.json");
}

TEST_F(SettingsFileTest, aMissingFileSilentlyGivesTheDefaults)
{
    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());

    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(folder.path())) << "nothing is made by reading";
}

TEST_F(SettingsFileTest, firstSaveMakesTheFolderAndTheFile)
{
    SettingsData settings;
    settings.volumeLimit = 2;

    ASSERT_TRUE(SettingsFile::save(settings, file));

    EXPECT_EQ(SettingsFile::load(file, log).settings, settings);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SettingsFileTest, savingTheSameTwiceGivesTheSameBytes)
{
    SettingsData settings;
    settings.apps["b"] = {};
    settings.apps["a"] = {.volume = 0.3F};
    ASSERT_TRUE(SettingsFile::save(settings, file));
    const auto first = contentOf(file);

    ASSERT_TRUE(SettingsFile::save(settings, file));

    EXPECT_EQ(contentOf(file), first);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
}

TEST_F(SettingsFileTest, emptyObjectLoadsWithoutABackup)
{
    put("{}");

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());
    EXPECT_FALSE(fs::exists(backup));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SettingsFileTest, oneDamagedAppDoesNotCauseABackup)
{
    put(R"({"apps": {"bad": {"volume": "loud"}, "good": {"volume": 0.5}}})");

    const auto settings = SettingsFile::load(file, log).settings;

    EXPECT_EQ(settings.apps.size(), 1U);
    EXPECT_EQ(settings.apps.at("good").volume, 0.5F);
    EXPECT_FALSE(fs::exists(backup));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SettingsFileTest, anInvalidFileIsBackedUpAndReportedOnce)
{
    put("{\"volumeLimit\": 2, ");

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());

    EXPECT_EQ(contentOf(backup), "{\"volumeLimit\": 2, ");
    EXPECT_EQ(contentOf(file), "{\"volumeLimit\": 2, ") << "left in place until the next save";
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(log.lines()[0].message,
        "Fadeloom: settings unreadable (not JSON at line 1, column 20), backup at " + backup.string());
}

TEST_F(SettingsFileTest, anEmptyFileIsInvalid)
{
    put("");

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());
    EXPECT_TRUE(fs::exists(backup));
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(SettingsFileTest, wrongTypeIsReportedWithItsPlace)
{
    put(R"({"appearance": {"theme": "sepia"}})");

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());

    EXPECT_EQ(log.lines().at(0).message,
        "Fadeloom: settings unreadable (appearance: theme: no such theme), backup at " + backup.string());
}

TEST_F(SettingsFileTest, laterBackupReplacesTheEarlierOne)
{
    put("first");
    (void)SettingsFile::load(file, log);
    put("second");
    (void)SettingsFile::load(file, log);
    (void)SettingsFile::load(file, log);

    EXPECT_EQ(contentOf(backup), "second");
    EXPECT_EQ(log.lines().size(), 3U);
}

TEST_F(SettingsFileTest, folderInTheBackupsPlaceIsReplaced)
{
    fs::create_directories(backup / "deep");
    put("broken");

    (void)SettingsFile::load(file, log);

    EXPECT_EQ(contentOf(backup), "broken");
}

TEST_F(SettingsFileTest, isReportedEvenWhenTheBackupCannotBeMade)
{
    // A file that everyone can read, that is not JSON, and beside which nobody can create another.
    const fs::path status = "/proc/self/status";

    EXPECT_EQ(SettingsFile::load(status, log).settings, SettingsData());

    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_THAT(log.lines()[0].message, HasSubstr("backup at /proc/self/status.broken.json"));
}

TEST_F(SettingsFileTest, oneThatIsFarTooLargeIsNotParsed)
{
    put("{}" + std::string(std::size_t{17} * 1024 * 1024, ' '));

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());

    EXPECT_EQ(fs::file_size(backup), fs::file_size(file));
    EXPECT_EQ(log.lines().at(0).message,
        "Fadeloom: settings unreadable (larger than 16777216 bytes), backup at " + backup.string());
}

TEST_F(SettingsFileTest, aFolderInTheFilesPlaceSilentlyGivesTheDefaults)
{
    fs::create_directories(file);

    EXPECT_EQ(SettingsFile::load(file, log).settings, SettingsData());

    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_FALSE(fs::exists(backup));
    EXPECT_FALSE(SettingsFile::save(SettingsData(), file));
}

TEST_F(SettingsFileTest, fileThatCannotBeReadIsNeitherReportedNorReplaced)
{
    const OrdinaryUser user(folder.path());
    put(R"({"volumeLimit": 2})");
    ::chmod(file.c_str(), 0);
    const SettingsFileError reason = FileError{
        .step = FileError::Step::read, .file = file, .reason = make_error_code(std::errc::permission_denied)};

    const auto loaded = SettingsFile::load(file, log);
    const auto saved = SettingsFile::save(SettingsData(), file);

    EXPECT_EQ(loaded.settings, SettingsData());
    EXPECT_EQ(loaded.unreadable, reason);
    EXPECT_EQ(saved, std::unexpected(reason));
    ::chmod(file.c_str(), 0600);
    EXPECT_EQ(contentOf(file), R"({"volumeLimit": 2})");
    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_FALSE(fs::exists(backup));
}

TEST_F(SettingsFileTest, fileThatFailsWhileItIsReadCountsAsUnreadable)
{
    const auto loaded = SettingsFile::load("/proc/self/mem", log);

    ASSERT_TRUE(loaded.unreadable);
    EXPECT_EQ(std::get<FileError>(*loaded.unreadable).description(),
        "Cannot read /proc/self/mem: Input/output error");
}

TEST_F(SettingsFileTest, whatWouldBeTooLargeToReadIsNotWritten)
{
    SettingsData settings;
    ASSERT_TRUE(SettingsFile::save(settings, file));
    const auto before = contentOf(file);
    settings.knownAppNames["com.example.player"] = std::string(std::size_t{16} * 1024 * 1024, 'x');

    const auto saved = SettingsFile::save(settings, file);

    EXPECT_EQ(saved, std::unexpected(SettingsFileError{SettingsTooLarge{16777216}}));
    EXPECT_EQ(contentOf(file), before);
}

TEST_F(SettingsFileTest, folderThatCannotBeCreatedIsReported)
{
    std::ofstream(folder.path() / "Fadeloom") << "a file where the folder should be";

    const auto saved = SettingsFile::save(SettingsData(), file);

    ASSERT_FALSE(saved);
    EXPECT_EQ(std::get<FileError>(saved.error()).description(),
        "Cannot create the folder " + file.parent_path().string() + ": Not a directory");
}

}  // namespace
}  // namespace fadeloom
