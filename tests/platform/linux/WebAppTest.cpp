// SPDX-License-Identifier: MIT
// Web apps: the page they show, and how their processes are distinguished from those of their browser.
#include "platform/linux/WebPage.h"

#include "tests/platform/linux/ApplicationFinderStage.h"

#include <gtest/gtest.h>

#include <vector>

namespace fadeloom {
namespace {

TEST(WebPage, aHostIsReadFromAnyText)
{
    EXPECT_EQ(hostOf("--app=https://Meet.Google.com/landing?x=1"), "meet.google.com");
    EXPECT_EQ(hostOf("run 'http://localhost:8080' now"), "localhost");
    EXPECT_EQ(hostOf("https://example.org"), "example.org");
    EXPECT_EQ(hostOf("https://"), "");
    EXPECT_EQ(hostOf("player %U"), "");
    EXPECT_EQ(hostOf(""), "");
}

TEST(WebPage, onlyCommandsCount)
{
    EXPECT_EQ(hostOfExec("[Desktop Entry]\nComment=See https://a.example\nExec=x\n"), "");
    EXPECT_EQ(hostOfExec("[Desktop Entry]\nExec=x\n[Desktop Action New]\nExec = y https://b.example/"),
        "b.example");
}

TEST(WebPage, optionsHaveTheirValuesInOneWordOrTwo)
{
    const std::vector<std::string> one = {"--app-id=abc", "--class=Web"};
    const std::vector<std::string> two = {"--class", "Web", "--app-id", "abc"};

    for (const auto& arguments : {one, two}) {
        EXPECT_EQ(chromiumIDOf(arguments), "abc");
        EXPECT_EQ(windowClassOf(arguments), "Web");
    }
    EXPECT_EQ(windowClassOf(std::vector<std::string>{"--classic=1", "--class"}), "");
}

class WebAppTest : public ApplicationFinderStage { };

TEST_F(WebAppTest, ofChromiumHasTheHelpersOfItsBrowser)
{
    tree.entry("chromium", "Exec=chromium %U\n");
    tree.entry("chrome-abc-Default", "Exec=chromium --profile-directory=Default --app-id=abc\n");
    const auto browser = tree.program("chromium");
    tree.start({.pid = 10,
        .executable = browser,
        .arguments = {"chromium", "--profile-directory=Default", "--app-id=abc"}});
    tree.start({.pid = 11, .parent = 10, .executable = browser, .arguments = {"chromium", "--type=utility"}});
    tree.start({.pid = 12, .parent = 11, .executable = browser, .arguments = {"chromium", "--type=x"}});
    tree.start({.pid = 20, .executable = browser, .arguments = {"chromium"}});
    tree.start({.pid = 21, .parent = 20, .executable = browser, .arguments = {"chromium", "--type=utility"}});

    EXPECT_EQ(found(10), "chrome-abc-Default 10");
    EXPECT_EQ(found(11), "chrome-abc-Default 10");
    EXPECT_EQ(found(12), "chrome-abc-Default 10");
    EXPECT_EQ(found(20), "chromium 20");
    EXPECT_EQ(found(21), "chromium 20");
}

TEST_F(WebAppTest, ofFirefoxIsKnownByTheWindowClassThatItIsGiven)
{
    tree.entry("firefox", "Exec=firefox %u\nStartupWMClass=firefox\n");
    tree.entry("webapp-Meet1", "Exec=sh -c 'firefox --class WebApp-Meet1'\nStartupWMClass=WebApp-Meet1\n");
    tree.entry("FFPWA-01H", "Exec=firefoxpwa site launch 01H\nStartupWMClass=FFPWA-01H\n");
    const auto browser = tree.program("firefox");
    tree.start({.pid = 10, .executable = browser, .arguments = {"firefox", "--class", "WebApp-Meet1"}});
    tree.start(
        {.pid = 11, .executable = browser, .arguments = {"firefox", "--class=FFPWA-01H", "--pwa", "01H"}});
    tree.start({.pid = 12, .executable = browser, .arguments = {"firefox", "--class", "Unknown"}});
    tree.start({.pid = 13, .parent = 10, .executable = browser, .arguments = {"firefox", "-contentproc"}});

    EXPECT_EQ(found(10), "webapp-Meet1 10");
    EXPECT_EQ(found(11), "FFPWA-01H 11");
    EXPECT_EQ(found(12), "firefox 12");
    EXPECT_EQ(found(13), "webapp-Meet1 10");
}

TEST_F(WebAppTest, isKnownAlsoWhereTheBrowserWroteItsArgumentsAsOneText)
{
    tree.entry("browser", "Exec=browser\n");
    tree.entry("webapp-Meet1", "Exec=browser --app=x\nStartupWMClass=WebApp-Meet1\n");
    const auto browser = tree.program("browser");
    tree.start({.pid = 10,
        .executable = browser,
        .arguments = {browser.string() + " --load-extension --class=WebApp-Meet1 --app=x"}});

    EXPECT_EQ(found(10), "webapp-Meet1 10");
}

TEST_F(WebAppTest, aProgramInItsOwnUnitIsNotAHelper)
{
    tree.entry("browser", "Exec=browser\n");
    tree.entry("web", "Exec=browser --app-id=abc\n");
    const auto browser = tree.program("browser");
    tree.start({.pid = 10,
        .executable = browser,
        .arguments = {"browser", "--app-id=abc"},
        .unit = "app-web-10.scope"});
    tree.start({.pid = 11, .parent = 10, .executable = browser, .unit = "app-browser-11.scope"});

    EXPECT_EQ(found(11), "browser 11");
}

}  // namespace
}  // namespace fadeloom
