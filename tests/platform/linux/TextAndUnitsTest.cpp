// SPDX-License-Identifier: MIT
// Sanitized texts, and parsing the names of systemd units.
#include "platform/linux/SafeText.h"
#include "platform/linux/UnitNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(SafeText, leavesTextAlone)
{
    EXPECT_EQ(safeText("Muzyka ▶ 音楽 🎵 \u00a0é"), "Muzyka ▶ 音楽 🎵 \u00a0é");
    EXPECT_EQ(safeText(""), "");
}

TEST(SafeText, replacesControlsAndInvalidText)
{
    EXPECT_EQ(safeText("a\nb\x1b[0m\x7f"), "a b [0m ");
    EXPECT_EQ(safeText("\xc2\x85"), " ");
    EXPECT_EQ(safeText("a\xff\xc3"), "a??");
    EXPECT_EQ(safeText("\xc0\xaf"), "??");  // An overlong slash.
    EXPECT_EQ(safeText("\xed\xa0\x80"), "???");  // Half of a surrogate pair.
    EXPECT_EQ(safeText("\xf4\x90\x80\x80"), "????");  // Beyond the last code point.
    EXPECT_EQ(safeText("\xe0\x80\xaf\xf0\x80\x80\xaf"), "???????");
}

TEST(SafeText, cutsBetweenCharacters)
{
    EXPECT_EQ(safeText("aaé", 3), "aa");
    EXPECT_EQ(safeText("aaé", 4), "aaé");
    EXPECT_EQ(safeText(std::string(10'000, 'x')).size(), 255U);
}

TEST(ApplicationUnit, isTheInnermostMatch)
{
    EXPECT_EQ(applicationUnit("0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
                              "app-gnome-firefox-2345.scope\n"),
        "app-gnome-firefox-2345.scope");
    EXPECT_EQ(
        applicationUnit("0::/app.slice/app-org.kde.konsole-1.scope/app-org.example.Player-2.scope/tab\n"),
        "app-org.example.Player-2.scope");
    EXPECT_EQ(applicationUnit("4:memory:/app-wrong-1.scope\n1:name=systemd:/app-right-2.scope\n0::/\n"),
        "app-right-2.scope");
    EXPECT_EQ(applicationUnit("0::/app.slice/app-org.kde.x.slice/vte-spawn-1.scope\n"), "");
    EXPECT_EQ(applicationUnit("garbage"), "");
    EXPECT_EQ(applicationUnit(""), "");
}

TEST(DesktopIDsOfUnit, supportTheFormatsOfLaunchers)
{
    EXPECT_THAT(desktopIDsOfUnit("app-firefox-2345.scope"), ElementsAre("firefox"));
    EXPECT_THAT(desktopIDsOfUnit("app-gnome-org.example.Player-2345.scope"),
        ElementsAre("gnome-org.example.Player", "org.example.Player"));
    EXPECT_THAT(desktopIDsOfUnit("app-org.kde.elisa@8a2bd1.service"), ElementsAre("org.kde.elisa"));
    EXPECT_THAT(desktopIDsOfUnit("app-org.kde.elisa.service"), ElementsAre("org.kde.elisa"));
    EXPECT_THAT(desktopIDsOfUnit("app-flatpak-org.videolan.VLC-17.scope"), Contains("org.videolan.VLC"));
}

TEST(DesktopIDsOfUnit, undoEscapedDashes)
{
    EXPECT_THAT(desktopIDsOfUnit(R"(app-gnome-google\x2dchrome-77.scope)"), Contains("google-chrome"));
    EXPECT_THAT(desktopIDsOfUnit(R"(app-a\x2-1.scope)"), ElementsAre(R"(a\x2)"));
    EXPECT_THAT(desktopIDsOfUnit(R"(app-a\xzz-1.scope)"), ElementsAre(R"(a\xzz)"));
}

TEST(DesktopIDsOfUnit, supportSnaps)
{
    EXPECT_THAT(desktopIDsOfUnit("snap.spotify.spotify-0b1c-2d.scope"), Contains("spotify_spotify"));
    EXPECT_THAT(desktopIDsOfUnit("snap.firefox.firefox.0b1c.scope"), Contains("firefox_firefox"));
}

TEST(DesktopIDsOfUnit, areEmptyForOtherUnits)
{
    EXPECT_THAT(desktopIDsOfUnit("session-2.scope"), IsEmpty());
    EXPECT_THAT(desktopIDsOfUnit(""), IsEmpty());
    EXPECT_THAT(desktopIDsOfUnit("app-.scope"), IsEmpty());
    EXPECT_THAT(desktopIDsOfUnit("snap..scope"), IsEmpty());
}

}  // namespace
}  // namespace fadeloom
