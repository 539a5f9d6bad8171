// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopEntry.h"

#include "platform/linux/LinuxEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

DesktopEntry parsed(std::string_view text, const std::vector<std::string>& languages = {})
{
    return parseDesktopEntry(text, languages).value_or(DesktopEntry{});
}

TEST(DesktopEntry, readsOnlyItsGroup)
{
    const auto entry =
        parsed("# A comment\n\n"
               "[Desktop Entry]\nType=Application\nName = Music\nExec=music\nIcon=org.example.Music\n"
               "[Desktop Action new]\nName=New window\nExec=music --new\nNoDisplay=true\n"
               "[Desktop Entry]\nName=Twice\n");

    EXPECT_TRUE(entry.isApplication);
    EXPECT_EQ(entry.name, "Music");
    EXPECT_EQ(entry.icon, "org.example.Music");
    EXPECT_THAT(entry.command, ElementsAre("music"));
    EXPECT_FALSE(entry.noDisplay);
}

TEST(DesktopEntry, isAbsentWithoutItsGroup)
{
    EXPECT_FALSE(parseDesktopEntry("", {}).has_value());
    EXPECT_FALSE(parseDesktopEntry("Name=Music\n[Other]\nName=Music\n", {}).has_value());
}

TEST(DesktopEntry, readsItsSwitches)
{
    const auto entry = parsed("[Desktop Entry]\r\nNoDisplay=true\r\nHidden=true\r\nTerminal=true\r\n"
                              "TryExec=music\r\nCategories=System;TerminalEmulator;\r\n");

    EXPECT_TRUE(entry.noDisplay);
    EXPECT_TRUE(entry.isHidden);
    EXPECT_TRUE(entry.wantsTerminal);
    EXPECT_TRUE(entry.isTerminalEmulator);
    EXPECT_EQ(entry.tryExec, "music");
    EXPECT_TRUE(entry.startsAtLogin);
    EXPECT_FALSE(parsed("[Desktop Entry]\nX-GNOME-Autostart-enabled=false").startsAtLogin);
    EXPECT_FALSE(parsed("[Desktop Entry]\nNoDisplay=1\nCategories=NotATerminalEmulator").noDisplay);
    EXPECT_FALSE(parsed("[Desktop Entry]\nCategories=NotATerminalEmulator").isTerminalEmulator);
}

TEST(DesktopEntry, namesItselfInTheBestLanguage)
{
    constexpr auto text =
        "[Desktop Entry]\nName=Music\nName[pl]=Muzyka\nName[pt_BR]=Música\nName[sr@latin]=Muzika\n";

    EXPECT_EQ(parsed(text, languageKeys("pl_PL.UTF-8")).name, "Muzyka");
    EXPECT_EQ(parsed(text, languageKeys("pt_BR.UTF-8")).name, "Música");
    EXPECT_EQ(parsed(text, languageKeys("pt_PT.UTF-8")).name, "Music");
    EXPECT_EQ(parsed(text, languageKeys("sr_RS.UTF-8@latin")).name, "Muzika");
    EXPECT_EQ(parsed(text, languageKeys("C.UTF-8")).name, "Music");
    EXPECT_EQ(parsed("[Desktop Entry]\nName[pl]=Muzyka\n", {}).name, std::nullopt);
}

TEST(DesktopEntry, undoesEscapes)
{
    EXPECT_EQ(parsed("[Desktop Entry]\nName=a\\sb\\tc\\nd\\re\\\\f\\;g\\\n").name, "a b\tc\nd\re\\f\\;g\\");
}

TEST(DesktopEntry, survivesAnyBytes)
{
    std::string wild = "[Desktop Entry]\nName=";
    for (int i = 0; i < 10'000; ++i)
        wild += static_cast<char>(i * 7 % 255 + 1);

    EXPECT_TRUE(parseDesktopEntry(wild, {"pl"}).has_value());
    EXPECT_TRUE(
        parseDesktopEntry(std::string{"[Desktop Entry]\n=\n==\n[\n]\n[]\nExec=\"\nName=\0x", 39}, {}));
}

TEST(LanguageKeys, areBestFirst)
{
    EXPECT_THAT(languageKeys("sr_RS.UTF-8@latin"), ElementsAre("sr_RS@latin", "sr_RS", "sr@latin", "sr"));
    EXPECT_THAT(languageKeys("pl"), ElementsAre("pl"));
    EXPECT_THAT(languageKeys("POSIX"), IsEmpty());
    EXPECT_THAT(languageKeys(""), IsEmpty());
}

TEST(ParseExec, omitsFieldCodes)
{
    EXPECT_THAT(parseExec("music --started-from %U --uri=%u 100%%  last"),
        ElementsAre("music", "--started-from", "100%", "last"));
    EXPECT_THAT(parseExec("/usr/bin/flatpak run --command=vlc --file-forwarding org.videolan.VLC @@u %U @@"),
        ElementsAre("/usr/bin/flatpak", "run", "--command=vlc", "--file-forwarding", "org.videolan.VLC"));
}

TEST(ParseExec, removesQuotes)
{
    EXPECT_THAT(parseExec(R"("/opt/My Player/player" "--say=\"hi\" \$HOME \\" pl"ain"ed)"),
        ElementsAre("/opt/My Player/player", R"(--say="hi" $HOME \)", "plained"));
    EXPECT_THAT(parseExec(R"("unclosed quote)"), ElementsAre("unclosed quote"));
    EXPECT_THAT(parseExec(R"("trailing\)"), ElementsAre(R"(trailing\)"));
}

TEST(ParseExec, skipsTheEnvironment)
{
    EXPECT_THAT(
        parseExec("env HINT=/x/y.desktop LANG=C /snap/bin/spotify %U"), ElementsAre("/snap/bin/spotify"));
    EXPECT_THAT(parseExec("/usr/bin/env A=1"), IsEmpty());
    EXPECT_THAT(parseExec("  "), IsEmpty());
}

TEST(ExecValue, isQuotedAndThenEscaped)
{
    EXPECT_EQ(execValue("/usr/bin/player"), R"("/usr/bin/player")");
    // As specified: four backslashes for one, and two before a character that is special in quotes.
    EXPECT_EQ(execValue(R"(/a b/"$`\%U)"), R"("/a b/\\"\\$\\`\\\\%%U")");
    EXPECT_EQ(execValue("a\nb\tc\rd"), R"("a\nb\tc\rd")");
}

}  // namespace
}  // namespace fadeloom
