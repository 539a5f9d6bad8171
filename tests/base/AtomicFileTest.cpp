// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>
#include <optional>
#include <sstream>
#include <vector>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;
using AtomicFile::ReadError;
using testing::ElementsAre;
using testing::HasSubstr;
using Reason = ReadError::Reason;

/// While an instance exists, no file of this process can grow beyond `bytes`: writes fail as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
        : oldHandler_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &oldLimit_);
        const rlimit limit{bytes, oldLimit_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::signal(SIGXFSZ, oldHandler_);
    }

private:
    rlimit oldLimit_{};
    void (*oldHandler_)(int);
};

class AtomicFileTest : public testing::Test {
protected:
    std::string contentOf(const fs::path& path) const
    {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }
    void put(const fs::path& path, const std::string& content) const
    {
        std::ofstream(path, std::ios::binary) << content;
    }
    static std::optional<Reason> reasonOf(const std::expected<std::string, ReadError>& content)
    {
        return content ? std::nullopt : std::optional(content.error().reason);
    }
    static mode_t modeOf(const fs::path& path)
    {
        struct stat status{};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777;
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            result.push_back(entry.path().filename().string());
        std::ranges::sort(result);
        return result;
    }

    TemporaryFolder folder;
    fs::path file = folder.path() / "file.json";
};

TEST_F(AtomicFileTest, isReadToItsEnd)
{
    const std::string content = std::string(100'000, 'x') + '\0' + "\r\n\xFF";
    put(file, content);

    EXPECT_EQ(AtomicFile::read(file, 200'000), content);
    put(file, "");
    EXPECT_EQ(AtomicFile::read(file, 200'000), "");
}

TEST_F(AtomicFileTest, isReadUpToTheLargestSize)
{
    put(file, "12345");

    EXPECT_EQ(AtomicFile::read(file, 5), "12345");
    const auto tooLarge = AtomicFile::read(file, 4);
    ASSERT_FALSE(tooLarge);
    EXPECT_EQ(tooLarge.error().reason, Reason::tooLarge);
}

TEST_F(AtomicFileTest, specialFilesAreUnreadableAndDoNotBlock)
{
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    for (const auto& path : {folder.path(), pipe, fs::path("/dev/zero")})
        EXPECT_EQ(reasonOf(AtomicFile::read(path, 100)), Reason::unreadable) << path;
}

TEST_F(AtomicFileTest, onlyAnAbsentFileIsMissing)
{
    put(file, "a file");

    for (const auto& path :
        {folder.path() / "other", folder.path() / "no" / "file", file / "below", fs::path()})
        EXPECT_EQ(reasonOf(AtomicFile::read(path, 100)), Reason::missing) << path;
}

TEST_F(AtomicFileTest, aFileThatIsNotOursIsUnreadable)
{
    const OrdinaryUser user(folder.path());
    put(file, "secret");
    ::chmod(file.c_str(), 0);

    const auto content = AtomicFile::read(file, 100);

    ASSERT_FALSE(content);
    EXPECT_EQ(content.error().reason, Reason::unreadable);
    EXPECT_EQ(content.error().error.description(), "Cannot read " + file.string() + ": Permission denied");
}

TEST_F(AtomicFileTest, aFileInAnInaccessibleFolderIsUnreadable)
{
    const OrdinaryUser user(folder.path());
    const auto closed = folder.path() / "closed";
    fs::create_directory(closed);
    ::chmod(closed.c_str(), 0);

    EXPECT_EQ(reasonOf(AtomicFile::read(closed / "file.json", 100)), Reason::unreadable);
}

TEST_F(AtomicFileTest, aFileThatFailsWhileItIsReadIsUnreadable)
{
    const auto content =
        AtomicFile::read("/proc/self/mem", 100);  // Opens, but nothing is mapped at its start.

    ASSERT_FALSE(content);
    EXPECT_EQ(content.error().reason, Reason::unreadable);
    EXPECT_EQ(content.error().error.description(), "Cannot read /proc/self/mem: Input/output error");
}

TEST_F(AtomicFileTest, replacedOneKeepsItsOwner)
{
    put(file, "old");
    constexpr uid_t nobody = 65534;
    const uid_t owner = ::geteuid() == 0 ? nobody : ::geteuid();  // Root could take ownership.
    ASSERT_EQ(::chown(file.c_str(), owner, static_cast<gid_t>(-1)), 0);

    ASSERT_TRUE(AtomicFile::replace(file, "new"));

    struct stat status{};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, owner);
}

TEST_F(AtomicFileTest, aNewFileIsPrivateToItsOwner)
{
    const auto oldMask = ::umask(0);
    ASSERT_TRUE(AtomicFile::replace(file, "new"));
    ::umask(oldMask);

    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(modeOf(file), mode_t{0600});
    EXPECT_THAT(names(), ElementsAre("file.json"));
}

TEST_F(AtomicFileTest, replacedOneKeepsItsPermissions)
{
    for (const mode_t mode : {0644U, 0640U, 0666U, 0600U}) {
        put(file, "old");
        ASSERT_EQ(::chmod(file.c_str(), mode), 0);

        ASSERT_TRUE(AtomicFile::replace(file, "new"));

        EXPECT_EQ(modeOf(file), mode);
        EXPECT_EQ(contentOf(file), "new");
    }
}

TEST_F(AtomicFileTest, anOpenHandleStillReadsTheOldFile)
{
    put(file, "old content");
    std::ifstream reader(file);

    ASSERT_TRUE(AtomicFile::replace(file, "new"));

    std::ostringstream read;
    read << reader.rdbuf();
    EXPECT_EQ(read.str(), "old content");
}

TEST_F(AtomicFileTest, symbolicLinkStaysOneAndItsTargetIsReplaced)
{
    fs::create_directory(folder.path() / "elsewhere");
    const auto target = folder.path() / "elsewhere" / "real.json";
    put(target, "old");
    fs::create_symlink("elsewhere/real.json", folder.path() / "middle");
    fs::create_symlink(folder.path() / "middle", file);

    ASSERT_TRUE(AtomicFile::replace(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "middle"));
    EXPECT_EQ(contentOf(target), "new");
}

TEST_F(AtomicFileTest, aDanglingSymbolicLinkGetsItsTarget)
{
    fs::create_symlink("real.json", file);

    ASSERT_TRUE(AtomicFile::replace(file, "new"));

    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(folder.path() / "real.json"), "new");
}

TEST_F(AtomicFileTest, cyclicSymbolicLinksAreRefused)
{
    fs::create_symlink("file.json", folder.path() / "other");
    fs::create_symlink("other", file);

    const auto replaced = AtomicFile::replace(file, "new");

    ASSERT_FALSE(replaced);
    EXPECT_THAT(replaced.error().description(), HasSubstr("symbolic links"));
}

TEST_F(AtomicFileTest, onlyRegularFilesAreReplaced)
{
    fs::create_directory(file);
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    const auto replaced = AtomicFile::replace(file, "new");
    ASSERT_FALSE(replaced);
    EXPECT_THAT(replaced.error().description(), HasSubstr("Is a directory"));
    EXPECT_FALSE(AtomicFile::replace(pipe, "new"));
    EXPECT_FALSE(AtomicFile::replace("/dev/null", "new"));

    EXPECT_THAT(names(), ElementsAre("file.json", "pipe"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(AtomicFileTest, missingFolderIsReportedWithTheSystemsMessage)
{
    const auto replaced = AtomicFile::replace(folder.path() / "missing" / "file.json", "new");

    ASSERT_FALSE(replaced);
    EXPECT_THAT(replaced.error().description(), HasSubstr("missing/file.json: No such file or directory"));
}

TEST_F(AtomicFileTest, fullDiskLeavesTheOldContentAndNothingElse)
{
    put(file, "old");
    const std::string large(100'000, 'x');

    std::expected<void, FileError> replaced;
    {
        const FullDisk disk(4096);
        replaced = AtomicFile::replace(file, large);
    }

    ASSERT_FALSE(replaced);
    EXPECT_THAT(replaced.error().description(), HasSubstr("File too large"));
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_THAT(names(), ElementsAre("file.json"));
    EXPECT_TRUE(AtomicFile::replace(file, large)) << "once there is room";
}

TEST_F(AtomicFileTest, pathWithoutAFolderIsInTheCurrentOne)
{
    const auto old = fs::current_path();
    fs::current_path(folder.path());
    const auto replaced = AtomicFile::replace("bare.json", "new");
    fs::current_path(old);

    ASSERT_TRUE(replaced);
    EXPECT_EQ(contentOf(folder.path() / "bare.json"), "new");
}

}  // namespace
}  // namespace fadeloom
