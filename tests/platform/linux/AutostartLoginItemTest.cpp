// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartLoginItem.h"

#include "platform/linux/DesktopEntry.h"
#include "tests/platform/linux/TestVariables.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Status = LoginItem::Status;

class AutostartLoginItemTest : public ::testing::Test {
protected:
    static void put(const fs::path& path, const std::string& content)
    {
        fs::create_directories(path.parent_path());
        std::ofstream{path, std::ios::binary} << content;
    }
    static fs::path installed(const fs::path& path)
    {
        put(path, "#!");
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }
    std::string entryContent() const
    {
        std::ostringstream content;
        content << std::ifstream{entry, std::ios::binary}.rdbuf();
        return content.str();
    }
    /// An entry written by another program.
    void putEntry(const std::string& keys) const
    {
        put(entry, "[Desktop Entry]\nType=Application\nExec=" + program.string() + "\n" + keys);
    }
    LoginItem::Status statusWith(const std::string& keys) const
    {
        putEntry(keys);
        return item.status();
    }

    TemporaryFolder folder;
    const fs::path entry = folder.path() / "config/autostart/com.fadeloom.app.desktop";
    const fs::path program = installed(folder.path() / "bin/fadeloom");
    const Variables session =
        variables({{"XDG_CONFIG_HOME", folder.path() / "config"}, {"PATH", folder.path() / "bin"}});
    AutostartLoginItem item{session, program};
};

TEST_F(AutostartLoginItemTest, isOffUntilItIsRegistered)
{
    EXPECT_EQ(item.status(), Status::notRegistered);

    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), Status::enabled);

    ASSERT_TRUE(item.unregisterItem());
    EXPECT_EQ(item.status(), Status::notRegistered);
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(AutostartLoginItemTest, entryStartsTheProgram)
{
    ASSERT_TRUE(item.registerItem());

    EXPECT_EQ(entryContent(),
        "[Desktop Entry]\n"
        "Type=Application\n"
        "Name=Fadeloom\n"
        "Comment=Volume, output and equalizer for every application\n"
        "Icon=com.fadeloom.app\n"
        "Terminal=false\n"
        "X-GNOME-Autostart-enabled=true\n"
        "Exec=\""
            + program.string() + "\"\n");
    EXPECT_EQ(std::distance(fs::directory_iterator{entry.parent_path()}, fs::directory_iterator{}), 1);
}

TEST_F(AutostartLoginItemTest, isBelowHomeWithoutAFolderForSettings)
{
    AutostartLoginItem plain{variables({{"HOME", folder.path() / "home"}}), program};

    ASSERT_TRUE(plain.registerItem());

    EXPECT_TRUE(fs::exists(folder.path() / "home/.config/autostart/com.fadeloom.app.desktop"));
    EXPECT_EQ(plain.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, redundantChangesAreNotErrors)
{
    EXPECT_TRUE(item.unregisterItem());
    ASSERT_TRUE(item.registerItem());
    EXPECT_TRUE(item.registerItem());
    ASSERT_TRUE(item.unregisterItem());
    EXPECT_TRUE(item.unregisterItem());

    EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(AutostartLoginItemTest, anEntryDisabledByAnotherToolIsOffUntilItIsRegisteredAgain)
{
    for (const auto* const key : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        EXPECT_EQ(statusWith(key), Status::notRegistered) << key;

        ASSERT_TRUE(item.registerItem());

        EXPECT_EQ(item.status(), Status::enabled) << key;
    }
    EXPECT_EQ(statusWith("Hidden=false\nX-GNOME-Autostart-enabled=true\n"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, entryWithoutItsProgramIsNotFoundUntilItIsRegisteredAgain)
{
    AutostartLoginItem old{session, installed(folder.path() / "old/fadeloom")};
    ASSERT_TRUE(old.registerItem());
    ASSERT_EQ(item.status(), Status::enabled);

    fs::permissions(folder.path() / "old/fadeloom", fs::perms::owner_read);
    EXPECT_EQ(item.status(), Status::notFound);
    fs::remove(folder.path() / "old/fadeloom");
    EXPECT_EQ(item.status(), Status::notFound);

    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, programIsFoundAsTheDesktopFindsIt)
{
    const auto statusStarting = [this](const std::string& keys) {
        put(entry, "[Desktop Entry]\nType=Application\n" + keys);
        return item.status();
    };

    EXPECT_EQ(statusStarting("Exec=fadeloom --quiet %U\n"), Status::enabled);
    EXPECT_EQ(statusStarting("Exec=env LANG=C fadeloom\n"), Status::enabled);
    EXPECT_EQ(statusStarting("Exec=faded\n"), Status::notFound);
    EXPECT_EQ(statusStarting("Exec=\n"), Status::notFound);
    EXPECT_EQ(statusStarting(""), Status::notFound);
    EXPECT_EQ(statusStarting("Exec=fadeloom\nTryExec=fadeloom\n"), Status::enabled);
    EXPECT_EQ(statusStarting("Exec=fadeloom\nTryExec=faded\n"), Status::notFound);
}

TEST_F(AutostartLoginItemTest, aFileThatIsNotAnEntryIsOff)
{
    for (const std::string content :
        {"", "\n", "Exec=fadeloom\n", "[Other]\nType=Application\nExec=fadeloom\n",
            "[Desktop Entry]\nType=Link\nExec=fadeloom\n", "\xFF\xFE"}) {
        put(entry, content);
        EXPECT_EQ(item.status(), Status::notRegistered) << content;
    }
    fs::remove(entry);
    fs::create_directory(entry);
    EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(AutostartLoginItemTest, linkToTheNullDeviceIsOffAndGetsReplaced)
{
    fs::create_directories(entry.parent_path());
    fs::create_symlink("/dev/null", entry);
    EXPECT_EQ(item.status(), Status::notRegistered);

    ASSERT_TRUE(item.registerItem());

    EXPECT_EQ(item.status(), Status::enabled);
    EXPECT_FALSE(fs::is_symlink(entry));
}

TEST_F(AutostartLoginItemTest, programsOfAnyNameAreStarted)
{
    for (const std::string name : {"my player", R"(a"b'c`d$e\f)", "100%", "%U%%u", "tab\tline\nreturn\r",
             "\\n\\s\\", " blanks ", "$(touch x)", "a;b#c=d&e|f<g>h*i?j~k[l]", "żółć 🎵", "\xFF\xFE\x01"}) {
        const auto named = installed(folder.path() / "bin" / name);
        AutostartLoginItem renamed{session, named};

        ASSERT_TRUE(renamed.registerItem()) << name;

        EXPECT_EQ(renamed.status(), Status::enabled) << name;
        EXPECT_THAT(parseDesktopEntry(entryContent(), {})->command, ElementsAre(named.string()));
        fs::remove(named);
        EXPECT_EQ(renamed.status(), Status::notFound) << name;
    }
}

std::string wordsOf(const std::expected<void, LoginItemError>& outcome)
{
    const auto* const error = outcome ? nullptr : std::get_if<FileError>(&outcome.error());
    return error == nullptr ? "" : error->description();
}

TEST_F(AutostartLoginItemTest, refusalsReportTheSystemsReason)
{
    put(folder.path() / "config", "a file where a folder should be");
    EXPECT_EQ(wordsOf(item.registerItem()),
        "Cannot create the folder " + entry.parent_path().string() + ": Not a directory");
    EXPECT_TRUE(item.unregisterItem()) << "there is none";

    fs::remove(folder.path() / "config");
    put(entry / "in the way", "");
    EXPECT_EQ(wordsOf(item.registerItem()), "Cannot replace " + entry.string() + ": Is a directory");
    EXPECT_EQ(wordsOf(item.unregisterItem()), "Cannot remove " + entry.string() + ": Directory not empty");
}

TEST_F(AutostartLoginItemTest, withoutAProgramThereIsNothingToRegister)
{
    AutostartLoginItem lost{session, fs::path{}};

    EXPECT_EQ(lost.registerItem(), std::unexpected(LoginItemError{ProgramUnknown{}}));
    EXPECT_FALSE(fs::exists(entry));
}

}  // namespace
}  // namespace fadeloom
