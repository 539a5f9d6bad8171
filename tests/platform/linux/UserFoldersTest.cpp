// SPDX-License-Identifier: MIT
#include "platform/linux/UserFolders.h"

#include <gtest/gtest.h>

#include <string>

namespace fadeloom {
namespace {

std::optional<std::filesystem::path> music(
    std::string_view text, const std::filesystem::path& home = "/home/anna")
{
    return userFolder(text, "XDG_MUSIC_DIR", home);
}

TEST(UserFolder, isBelowHomeOrAnywhere)
{
    EXPECT_EQ(music(R"(XDG_MUSIC_DIR="$HOME/Muzyka")"), "/home/anna/Muzyka");
    EXPECT_EQ(music(R"(XDG_MUSIC_DIR="/mnt/big disk/music/")")->native(), "/mnt/big disk/music");
    EXPECT_EQ(music(R"(XDG_MUSIC_DIR="/")"), "/");
}

TEST(UserFolder, isFoundAmongOtherLines)
{
    constexpr auto text = "# XDG_MUSIC_DIR=\"/comment\"\n"
                          "\n"
                          "XDG_MUSIC_DIR_OLD=\"/other\"\n"
                          "XDG_VIDEOS_DIR=\"$HOME/Videos\"\n"
                          " \tXDG_MUSIC_DIR = \"$HOME/first\"\n"
                          "XDG_MUSIC_DIR=\"$HOME/last\" # as a shell would have it\n"
                          "XDG_MUSIC_DIR=$HOME/damaged\n";

    EXPECT_EQ(music(text), "/home/anna/last");
    EXPECT_EQ(music(""), std::nullopt);
}

TEST(UserFolder, homeItselfMeansNone)
{
    for (const auto* const line : {R"(XDG_MUSIC_DIR="$HOME/")", R"(XDG_MUSIC_DIR="$HOME")",
             R"(XDG_MUSIC_DIR="/home/anna")", R"(XDG_MUSIC_DIR="/home/anna//")"}) {
        EXPECT_EQ(music(line), std::nullopt) << line;
        EXPECT_EQ(music(line, "/home/anna/"), std::nullopt) << line;
    }
    EXPECT_EQ(music("XDG_MUSIC_DIR=\"$HOME/first\"\nXDG_MUSIC_DIR=\"$HOME/\"\n"), std::nullopt);
}

TEST(UserFolder, undoesEscapes)
{
    EXPECT_EQ(music(R"(XDG_MUSIC_DIR="$HOME/a\"b\\c\$d\`e")"), R"(/home/anna/a"b\c$d`e)");
    EXPECT_EQ(music("XDG_MUSIC_DIR=\"/m\xFFsic\""), "/m\xFFsic");
}

TEST(UserFolder, otherFormsAreIgnored)
{
    for (const auto* const line : {R"(XDG_MUSIC_DIR="Music")", R"(XDG_MUSIC_DIR="$HOMES/Music")",
             R"(XDG_MUSIC_DIR="${HOME}/Music")", R"(XDG_MUSIC_DIR="~/Music")",
             R"(XDG_MUSIC_DIR="\$HOME/Music")", R"(XDG_MUSIC_DIR='/Music')", R"(XDG_MUSIC_DIR="/unclosed)",
             R"(XDG_MUSIC_DIR="/unclosed\")", R"(XDG_MUSIC_DIR="")", R"(XDG_MUSIC_DIR)", R"(XDG_MUSIC_DIR=)",
             R"(XDG_MUSIC_DIR=")", R"(xdg_music_dir="/music")", R"(export XDG_MUSIC_DIR="/music")"})
        EXPECT_EQ(music(line), std::nullopt) << line;
}

}  // namespace
}  // namespace fadeloom
