// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace fadeloom {
namespace {

using Action = CommandLine::Action;

std::expected<CommandLine, std::string> parse(std::initializer_list<std::string_view> arguments)
{
    return parseCommandLine(std::vector(arguments));
}

std::string errorOf(std::initializer_list<std::string_view> arguments)
{
    const auto result = parse(arguments);
    return result ? "" : result.error();
}

TEST(CommandLine, runsHeadless)
{
    EXPECT_EQ(parse({"--headless"}), (CommandLine{.action = Action::runHeadless, .isSimulated = false}));
}

TEST(CommandLine, simulatesInEitherOrder)
{
    const CommandLine simulated = {.action = Action::runHeadless, .isSimulated = true};

    EXPECT_EQ(parse({"--headless", "--simulate"}), simulated);
    EXPECT_EQ(parse({"--simulate", "--headless"}), simulated);
}

TEST(CommandLine, showsHelpAndVersion)
{
    EXPECT_EQ(parse({"--help"})->action, Action::showHelp);
    EXPECT_EQ(parse({"-h"})->action, Action::showHelp);
    EXPECT_EQ(parse({"--version"})->action, Action::showVersion);
}

TEST(CommandLine, helpHasPrecedence)
{
    EXPECT_EQ(parse({"--headless", "--version", "--help"})->action, Action::showHelp);
}

TEST(CommandLine, isACommandIfItBeginsWithAVerb)
{
    EXPECT_EQ(parse({"volume", "firefox", "-5%"}), CommandLine{.action = Action::giveCommand});
    EXPECT_EQ(parse({"help", "--loud"}), CommandLine{.action = Action::giveCommand});
}

TEST(CommandLine, startsInTheBackground)
{
    EXPECT_EQ(parse({"--background"}), (CommandLine{.action = Action::runTray, .isInBackground = true}));
}

TEST(CommandLine, namesAnUnknownArgument)
{
    EXPECT_EQ(errorOf({"--headless", "--loud"}), "unknown argument: --loud");
    EXPECT_EQ(errorOf({"--help", "loud"}), "unknown argument: loud");
    EXPECT_EQ(errorOf({""}), "unknown argument: ");
}

TEST(CommandLine, sanitizesAnUnknownArgument)
{
    EXPECT_EQ(errorOf({"\x1b[2J"}), "unknown argument: \uFFFD[2J");
}

TEST(CommandLine, showsItsIconByDefault)
{
    EXPECT_EQ(parse({}), CommandLine{.action = Action::runTray});
    EXPECT_EQ(parse({"--simulate"}), (CommandLine{.action = Action::runTray, .isSimulated = true}));
}

TEST(CommandLine, drawsScreenshotsDarkAndWithoutASuffix)
{
    EXPECT_EQ(parse({"--render-screenshots", "/pictures"}),
        (CommandLine{.action = Action::renderScreenshots, .outputFolder = "/pictures"}));
}

TEST(CommandLine, drawsScreenshotsWithASuffixInEitherTheme)
{
    const CommandLine light = {.action = Action::renderScreenshots,
        .outputFolder = "/pictures",
        .languageSuffix = "de",
        .isLight = true};
    EXPECT_EQ(parse({"--render-screenshots", "/pictures", "de", "light"}), light);

    auto dark = light;
    dark.isLight = false;
    EXPECT_EQ(parse({"--render-screenshots", "/pictures", "de"}), dark);
    EXPECT_EQ(parse({"--render-screenshots", "/pictures", "de", "Light"}), dark);
}

TEST(CommandLine, screenshotsWithoutAFolderAreANormalStart)
{
    EXPECT_EQ(parse({"--render-screenshots"}), CommandLine{.action = Action::runTray});
    EXPECT_EQ(parse({"--headless", "--render-screenshots"})->action, Action::runHeadless);
}

TEST(CommandLine, usageNamesEveryArgument)
{
    for (const auto argument : {"--headless", "--simulate", "--render-screenshots", "--help", "--version"})
        EXPECT_NE(usageText().find(argument), std::string_view::npos) << argument;
}

}  // namespace
}  // namespace fadeloom
