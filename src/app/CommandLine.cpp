// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include "commands/PrintableText.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace fadeloom {

namespace {

constexpr std::string_view screenshotsArgument = "--render-screenshots";

// The folder, optionally a suffix, optionally the appearance. Anything else is ignored.
std::optional<CommandLine> screenshotsIn(std::span<const std::string_view> arguments)
{
    const auto found = std::ranges::find(arguments, screenshotsArgument);
    const auto values = std::span(found, arguments.end());
    if (values.size() < 2)
        return std::nullopt;
    return CommandLine{
        .action = CommandLine::Action::renderScreenshots,
        .outputFolder = std::string(values[1]),
        .languageSuffix = values.size() > 2 ? std::string(values[2]) : "",
        .isLight = values.size() > 3 && values[3] == "light",
    };
}

}  // namespace

std::expected<CommandLine, std::string> parseCommandLine(std::span<const std::string_view> arguments)
{
    // A verb: validated by fadeloomctl.
    const char first = arguments.empty() || arguments.front().empty() ? '-' : arguments.front().front();
    if (first >= 'a' && first <= 'z')
        return CommandLine{.action = CommandLine::Action::giveCommand};
    if (auto screenshots = screenshotsIn(arguments))
        return std::move(*screenshots);

    bool isHeadless = false;
    bool isSimulated = false;
    bool isInBackground = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
    for (const auto argument : arguments) {
        if (argument == "--headless")
            isHeadless = true;
        else if (argument == "--simulate")
            isSimulated = true;
        else if (argument == "--background")
            isInBackground = true;
        else if (argument == "--help" || argument == "-h")
            wantsHelp = true;
        else if (argument == "--version")
            wantsVersion = true;
        else if (argument != screenshotsArgument)  // As the last argument it has no folder and is ignored.
            return std::unexpected("unknown argument: " + printable(argument));
    }

    if (wantsHelp)
        return CommandLine{.action = CommandLine::Action::showHelp};
    if (wantsVersion)
        return CommandLine{.action = CommandLine::Action::showVersion};
    return CommandLine{.action = isHeadless ? CommandLine::Action::runHeadless : CommandLine::Action::runTray,
        .isSimulated = isSimulated,
        .isInBackground = isInBackground};
}

std::string_view usageText()
{
    return "Usage: fadeloom [--headless|--background] [--simulate]\n"
           "       fadeloom VERB [WORD...]\n"
           "       fadeloom --render-screenshots FOLDER [SUFFIX [light]]\n"
           "       fadeloom --help | --version\n"
           "\n"
           "Gives every application that plays sound its own volume, mute, output, equalizer and recorder.\n"
           "Shows an icon in the system tray; click it to open the panel.\n"
           "\n"
           "  --headless   run without a window: print events on standard output, read commands\n"
           "               from standard input (\"help\" lists them), quit on SIGINT or SIGTERM\n"
           "  --background show only the icon: if an instance is already running, do not open its panel\n"
           "  VERB         send a command to the running Fadeloom, like fadeloomctl; \"fadeloom help\" lists "
           "them\n"
           "  --simulate   run on simulated audio in memory, without any audio system\n"
           "  --render-screenshots\n"
           "               render the panel with fixed contents to image files, dark or light, and exit\n"
           "  --help       show this text\n"
           "  --version    show the version\n";
}

}  // namespace fadeloom
