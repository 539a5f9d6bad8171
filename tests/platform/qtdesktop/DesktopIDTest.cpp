// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/DesktopID.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

const QStringList folders = {"/home/anna/.local/share/applications", "/usr/share/applications/"};

TEST(DesktopID, isTheNameOfTheFile)
{
    EXPECT_EQ(desktopID("/usr/share/applications/org.example.Call.desktop", folders), "org.example.Call");
    EXPECT_EQ(desktopID("/home/anna/.local/share/applications/call.desktop", folders), "call");
}

TEST(DesktopID, namesTheFoldersOnTheWay)
{
    EXPECT_EQ(desktopID("/usr/share/applications/kde/old/call.desktop", folders), "kde-old-call");
}

TEST(DesktopID, isTheNameAloneElsewhere)
{
    EXPECT_EQ(desktopID("/home/anna/Desktop/call.desktop", folders), "call");
    EXPECT_EQ(desktopID("/usr/share/applications2/call.desktop", folders), "call");
}

TEST(DesktopID, isMissingForFilesThatAreNotEntries)
{
    EXPECT_EQ(desktopID("/usr/bin/call", folders), std::nullopt);
    EXPECT_EQ(desktopID("/usr/share/applications/.desktop", folders), std::nullopt);
    EXPECT_EQ(desktopID("", folders), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
