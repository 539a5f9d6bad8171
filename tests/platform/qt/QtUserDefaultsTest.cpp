// SPDX-License-Identifier: MIT
#include "platform/qt/QtUserDefaults.h"
#include "tests/platform/UserDefaultsContract.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

#include <sys/stat.h>

#include <fstream>
#include <sstream>

namespace fadeloom {
namespace {

class QtDefaultsWorld final : public ContractDefaultsWorld {
public:
    UserDefaults& defaults() override { return defaults_; }

private:
    TemporaryFolder folder_;
    QtUserDefaults defaults_{folder_.path() / "Fadeloom" / "preferences.ini"};
};

std::unique_ptr<ContractDefaultsWorld> makeQtDefaultsWorld()
{
    return std::make_unique<QtDefaultsWorld>();
}

INSTANTIATE_TEST_SUITE_P(Qt, UserDefaultsContract, ::testing::Values(&makeQtDefaultsWorld));

class QtUserDefaultsTest : public ::testing::Test {
protected:
    using List = std::vector<std::string>;

    void write(const std::string& content) const { std::ofstream{file, std::ios::binary} << content; }
    std::string content() const
    {
        std::ostringstream text;
        text << std::ifstream{file, std::ios::binary}.rdbuf();
        return text.str();
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "preferences.ini";
    QtUserDefaults defaults{file};
};

TEST_F(QtUserDefaultsTest, theFileIsCreatedWithTheFirstValue)
{
    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(file));

    defaults.setStringList("Colours", {"red", "blue"});

    EXPECT_EQ(content(), "[General]\nColours=red, blue\n");
}

TEST_F(QtUserDefaultsTest, nothingElseIsLeftInTheFolder)
{
    defaults.setStringList("Colours", {"red"});
    defaults.remove("Colours");

    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        EXPECT_EQ(entry.path(), file);
}

TEST_F(QtUserDefaultsTest, itIsLoadedAtTheNextStart)
{
    defaults.setStringList("Colours", {"red"});

    EXPECT_EQ(QtUserDefaults{file}.stringList("Colours"), List{"red"});
}

TEST_F(QtUserDefaultsTest, whatAnotherProgramWritesIsReadAtOnce)
{
    defaults.setStringList("Colours", {"red"});
    write("[General]\nColours=green, yellow, black\nSizes=small\n");

    EXPECT_EQ(defaults.stringList("Colours"), (List{"green", "yellow", "black"}));
    EXPECT_EQ(defaults.stringList("Sizes"), List{"small"});
}

TEST_F(QtUserDefaultsTest, aFileThatCannotBeReadIsNotReplaced)
{
    const OrdinaryUser user(folder.path());
    write("[General]\nColours=green\n");
    ::chmod(file.c_str(), 0);

    defaults.setStringList("Sizes", {"small"});
    defaults.remove("Colours");

    ::chmod(file.c_str(), 0600);
    EXPECT_EQ(content(), "[General]\nColours=green\n");
}

TEST_F(QtUserDefaultsTest, invalidTextIsAbsent)
{
    write("[General]\nPlace=@Point(1 2)\nBytes=@ByteArray(abc)\n");

    EXPECT_EQ(defaults.stringList("Place"), std::nullopt);
    EXPECT_EQ(defaults.stringList("Bytes"), std::nullopt);
}

TEST_F(QtUserDefaultsTest, aDamagedFileCountsAsEmpty)
{
    write("[General]\nColours=red\nneither this nor that\n[[[");

    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
}

TEST_F(QtUserDefaultsTest, aDamagedFileIsReplacedByTheNextChange)
{
    write("[General]\nColours=red\nneither this nor that\n[[[");

    defaults.setStringList("Sizes", {"small"});

    EXPECT_EQ(content(), "[General]\nSizes=small\n");
    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
}

TEST_F(QtUserDefaultsTest, anyBytesAreReadSafely)
{
    write(std::string("\0\xFF\xFE[\n=\n@Variant(\0\0", 17) + std::string(100'000, '\xC3'));

    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
}

TEST_F(QtUserDefaultsTest, aFolderInItsPlaceIsIgnored)
{
    std::filesystem::create_directory(file);

    defaults.setStringList("Colours", {"red"});

    EXPECT_EQ(defaults.stringList("Colours"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_directory(file));
}

TEST_F(QtUserDefaultsTest, withoutWritePermissionNothingIsStored)
{
    std::ofstream{folder.path() / "taken"} << "no folder";
    QtUserDefaults nowhere{folder.path() / "taken" / "preferences.ini"};

    nowhere.setStringList("Colours", {"red"});
    nowhere.remove("Sizes");

    EXPECT_EQ(nowhere.stringList("Colours"), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
