// SPDX-License-Identifier: MIT
#include "shell/AboutPanel.h"

#include "platform/simulated/SimulatedApplication.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class AboutPanelTest : public testing::Test {
protected:
    void show()
    {
        AboutPanel::show(
            application, [](const char*, const char* text) { return std::string(text); },
            "https://fadeloom.example/en");
    }

    SimulatedApplication application;
};

TEST_F(AboutPanelTest, describesTheProgram)
{
    show();

    EXPECT_EQ(application.aboutPanel()->text,
        "Free per-app volume, output routing, equalizer and recording for macOS.");
}

TEST_F(AboutPanelTest, linksToTheWebPageByItsHostName)
{
    show();

    EXPECT_EQ(application.aboutPanel()->linkText, "fadeloom.example");
    EXPECT_EQ(application.aboutPanel()->linkURL, "https://fadeloom.example/en");
}

TEST_F(AboutPanelTest, isRaisedEachTime)
{
    show();
    show();

    EXPECT_EQ(application.activationCount(), 2);
}

TEST_F(AboutPanelTest, usesTheUsersLanguage)
{
    AboutPanel::show(
        application, [](const char* context, const char*) { return std::string(context) + " po polsku"; },
        "");

    EXPECT_EQ(application.aboutPanel()->text, "PlatformTexts po polsku");
}

}  // namespace
}  // namespace fadeloom
