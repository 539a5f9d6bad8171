// SPDX-License-Identifier: MIT
#include "platform/sndfile/DiskFile.h"
#include "tests/platform/sndfile/ChildProcess.h"
#include "tests/platform/sndfile/WaveReading.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;

class DiskFileTest : public ::testing::Test {
protected:
    static std::span<const std::byte> bytes(std::string_view text) { return std::as_bytes(std::span{text}); }
    void put(const fs::path& path, std::string_view content) const { std::ofstream{path} << content; }

    TemporaryFolder folder;
    const fs::path location = folder.path() / "file";
};

TEST_F(DiskFileTest, storesWritesAtTheirPositions)
{
    const auto file = *DiskFile::create(location);

    EXPECT_EQ(file->write(0, bytes("hello world")), 11U);
    EXPECT_EQ(file->write(6, bytes("W")), 1U);
    EXPECT_EQ(file->size(), 11U);
    file->truncate(8);

    EXPECT_EQ(file->size(), 8U);
    EXPECT_EQ(file->failure(), 0);
    EXPECT_EQ(bytesOf(location), "hello Wo");
}

TEST_F(DiskFileTest, anOpenHandleKeepsTheReplacedFile)
{
    put(location, "old");
    std::ifstream reader{location};

    const auto file = *DiskFile::create(location);
    file->write(0, bytes("new"));

    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old");
    EXPECT_EQ(bytesOf(location), "new");
}

TEST_F(DiskFileTest, aSymbolicLinkIsReplacedAndNotFollowed)
{
    const fs::path target = folder.path() / "target";
    put(target, "of others");
    fs::create_symlink(target, location);

    const auto file = *DiskFile::create(location);
    file->write(0, bytes("new"));

    EXPECT_FALSE(fs::is_symlink(location));
    EXPECT_EQ(bytesOf(target), "of others");
}

TEST_F(DiskFileTest, permissionsAreTheUsersChoice)
{
    for (const mode_t mask : {0022U, 0077U}) {
        const mode_t former = ::umask(mask);
        const auto file = DiskFile::create(location);
        ::umask(former);

        struct stat status{};
        ASSERT_EQ(::stat(location.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0666U & ~mask);
    }
}

TEST_F(DiskFileTest, reportsWhyAFileCannotBeCreated)
{
    put(folder.path() / "document", "");
    fs::create_directory(folder.path() / "folder");

    EXPECT_EQ(DiskFile::create(folder.path() / "document" / "file").error(), ENOTDIR);
    EXPECT_EQ(DiskFile::create(folder.path() / "nowhere" / "file").error(), ENOENT);
    EXPECT_EQ(DiskFile::create(folder.path() / "folder").error(), EISDIR);
    EXPECT_TRUE(fs::is_directory(folder.path() / "folder"));
}

TEST_F(DiskFileTest, keepsWhatFitsAndTheFirstFailure)
{
    const auto end = endOfChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        limitFileSizes(5);
        const auto file = *DiskFile::create(location);

        EXPECT_EQ(file->write(0, bytes("hello world")), 5U);
        EXPECT_EQ(file->failure(), EFBIG);
        EXPECT_EQ(file->size(), 5U);
        file->truncate(~std::uint64_t{0});  // Fails for another reason.

        EXPECT_EQ(file->failure(), EFBIG);
        return 0;
    });

    EXPECT_EQ(end, 0);
    EXPECT_EQ(bytesOf(location), "hello");
}

}  // namespace
}  // namespace fadeloom
