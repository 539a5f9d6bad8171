// SPDX-License-Identifier: MIT
// The evidence that identifies a process's application, and its precedence.
#include "tests/platform/linux/ApplicationFinderStage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class ApplicationFinderTest : public ApplicationFinderStage { };

TEST_F(ApplicationFinderTest, theSandboxWins)
{
    tree.entry("org.example.Boxed", "Exec=flatpak run org.example.Boxed\n");
    tree.entry("player", "Exec=player\n");
    tree.start({.pid = 10, .executable = tree.program("bwrap"), .unit = "app-player-1.scope"});
    tree.start({.pid = 11,
        .parent = 10,
        .executable = tree.program("player"),
        .unit = "app-player-1.scope",
        .flatpakID = "org.example.Boxed"});

    EXPECT_EQ(found(11), "org.example.Boxed 11");
}

TEST_F(ApplicationFinderTest, theUnitWinsOverTheProgram)
{
    tree.entry("org.example.Web", "Exec=browser --app=web\n");
    tree.entry("org.example.Browser", "Exec=browser\n");
    const auto browser = tree.program("browser");
    tree.start({.pid = 10, .executable = browser, .unit = "app-gnome-org.example.Web-10.scope"});
    tree.start(
        {.pid = 11, .parent = 10, .executable = browser, .unit = "app-gnome-org.example.Web-10.scope"});

    EXPECT_EQ(found(10), "org.example.Web 10");
    EXPECT_EQ(found(11), "org.example.Web 10");
}

TEST_F(ApplicationFinderTest, aUnitWithoutAnEntryIsIgnored)
{
    tree.entry("org.example.Music", "Exec=music\n");
    tree.start(
        {.pid = 10, .executable = tree.program("music"), .unit = "app-gnome-org.example.Gone-10.scope"});

    EXPECT_EQ(found(10), "org.example.Music 10");
}

TEST_F(ApplicationFinderTest, aProgramIsRecognizedByItsFileThroughLinksOrByItsName)
{
    tree.entry("org.example.Music", "Exec=music\n");
    const auto real = tree.program("music-4.2");
    std::filesystem::create_symlink(real, tree.root / "bin/music");
    tree.start({.pid = 10, .executable = real});
    tree.start({.pid = 11, .executable = "/opt/music/bin/main", .arguments = {"/usr/bin/music", "-x"}});
    tree.start({.pid = 12, .executable = "/opt/music/bin/main", .shortName = "music"});
    tree.start({.pid = 13, .executable = "/opt/music/bin/main", .shortName = "musical"});

    EXPECT_EQ(found(10), "org.example.Music 10");
    EXPECT_EQ(found(11), "org.example.Music 11");
    EXPECT_EQ(found(12), "org.example.Music 12");
    EXPECT_EQ(found(13), "main 13");
}

TEST_F(ApplicationFinderTest, ofManyEntriesForOneProgramItsArgumentsDecide)
{
    tree.entry("office", "Exec=office %U\n");
    tree.entry("office-calc", "Exec=office --calc %U\n");
    tree.entry("office-slides", "Exec=office --slides %U\nNoDisplay=true\n");
    const auto office = tree.program("office");
    tree.start({.pid = 10, .executable = office});
    tree.start({.pid = 11, .executable = office, .arguments = {"office", "--calc", "a.ods"}});

    EXPECT_EQ(found(10), "office 10");
    EXPECT_EQ(found(11), "office-calc 11");
}

TEST_F(ApplicationFinderTest, anEntryWithItsOwnArgumentsStillMatchesItsProgram)
{
    tree.entry("vlc", "Exec=vlc --started-from-file %U\n");
    tree.start({.pid = 10, .executable = tree.program("vlc"), .arguments = {"vlc", "song.ogg"}});

    EXPECT_EQ(found(10), "vlc 10");
}

TEST_F(ApplicationFinderTest, aProgramThatStartsOthersIsNotWhatItStarts)
{
    tree.entry("org.example.Boxed", "Exec=flatpak run org.example.Boxed\n");
    tree.start({.pid = 10, .executable = tree.program("flatpak"), .arguments = {"flatpak", "update"}});

    EXPECT_EQ(found(10), "flatpak 10");
}

TEST_F(ApplicationFinderTest, aScriptIsNotItsInterpreter)
{
    tree.entry("python3", "Exec=python3.11\nTerminal=true\nNoDisplay=true\n");
    tree.entry("org.example.Lollipop", "Exec=lollipop\n");
    const auto python = tree.program("python3.11");
    const std::string script = tree.program("lollipop");
    tree.start({.pid = 10, .executable = python, .arguments = {"/usr/bin/python3", "-u", script, "--x"}});
    tree.start({.pid = 11, .executable = python, .arguments = {"python3", "radio.py"}});
    tree.start({.pid = 12, .executable = python, .arguments = {"python3", "-c", "import x"}});

    EXPECT_EQ(found(10), "org.example.Lollipop 10");
    EXPECT_EQ(found(11), "radio.py 11");
    EXPECT_EQ(found(12), "python3.11 12");
}

TEST_F(ApplicationFinderTest, shellsAndHiddenEntriesAreStepsNotOwners)
{
    tree.entry("org.example.Editor", "Exec=editor\n");
    tree.entry("launcher", "Exec=launcher\nNoDisplay=true\n");
    tree.entry("vim", "Exec=vim\nTerminal=true\n");
    tree.start({.pid = 10, .executable = tree.program("editor")});
    tree.start({.pid = 11, .parent = 10, .executable = tree.program("launcher")});
    tree.start({.pid = 12, .parent = 11, .executable = tree.program("bash")});
    tree.start({.pid = 13, .parent = 12, .executable = tree.program("pw-play")});
    tree.start({.pid = 20, .executable = tree.program("vim")});
    tree.start({.pid = 21, .parent = 20, .executable = tree.program("pw-play")});

    EXPECT_EQ(found(13), "org.example.Editor 10");
    EXPECT_EQ(found(20), "vim 20");
    EXPECT_EQ(found(21), "pw-play 21");
}

TEST_F(ApplicationFinderTest, whatATerminalStartsIsItsOwnApplication)
{
    tree.entry("org.example.Files", "Exec=files\n");
    tree.entry("org.example.Term", "Exec=term\nCategories=System;TerminalEmulator;\n");
    tree.entry("mpv", "Exec=mpv --pseudo-gui -- %U\n");
    const std::string unit = "app-org.example.Term-11.scope";
    tree.start({.pid = 10, .executable = tree.program("files")});
    tree.start({.pid = 11, .parent = 10, .executable = tree.program("term"), .unit = unit});
    tree.start({.pid = 12, .parent = 11, .executable = tree.program("bash"), .unit = unit});
    tree.start({.pid = 13, .parent = 12, .executable = tree.program("mpv"), .unit = unit});
    tree.start({.pid = 14, .parent = 12, .executable = tree.program("pw-play"), .unit = unit});
    tree.start({.pid = 15, .parent = 1, .executable = tree.program("tmux"), .unit = unit});

    EXPECT_EQ(found(11), "org.example.Term 11");
    EXPECT_EQ(found(13), "mpv 13");
    EXPECT_EQ(found(14), "pw-play 14");
    EXPECT_EQ(found(15), "tmux 15");
}

TEST_F(ApplicationFinderTest, aHiddenServicesUnitIsItsFirstProcessAlone)
{
    tree.entry("org.example.Daemon", "Exec=/nowhere/daemon\nNoDisplay=true\n");
    const std::string unit = "app-org.example.Daemon@autostart.service";
    tree.start({.pid = 10, .executable = "/usr/libexec/other-name", .unit = unit});
    tree.start({.pid = 11, .parent = 10, .executable = tree.program("pw-play"), .unit = unit});

    EXPECT_EQ(found(10), "org.example.Daemon 10");
    EXPECT_EQ(found(11), "pw-play 11");
}

TEST_F(ApplicationFinderTest, aCycleOfParentsTerminates)
{
    tree.start({.pid = 10, .parent = 11, .executable = tree.program("a")});
    tree.start({.pid = 11, .parent = 10, .executable = tree.program("b")});
    tree.start({.pid = 12, .parent = 12, .executable = tree.program("c")});

    EXPECT_EQ(found(10), "a 10");
    EXPECT_EQ(found(12), "c 12");
}

TEST_F(ApplicationFinderTest, entriesOfTheUserHideThoseOfTheSystem)
{
    tree.entry("music", "Exec=music\n");
    tree.entry("music", "Exec=music\nHidden=true\n", "home");
    tree.entry("sub/folder/radio", "Exec=radio\n");
    tree.entry("absent", "Exec=present\nTryExec=not-installed\n");
    tree.start({.pid = 10, .executable = tree.program("music")});
    tree.start({.pid = 11, .executable = tree.program("radio")});
    tree.start({.pid = 12, .executable = tree.program("present")});

    EXPECT_EQ(found(10), "music 10");
    EXPECT_EQ(found(11), "sub-folder-radio 11");
    EXPECT_EQ(found(12), "present 12");
}

}  // namespace
}  // namespace fadeloom
