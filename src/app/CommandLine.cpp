// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include "app/PrintableText.h"

namespace fadeloom {

std::expected<CommandLine, std::string> parseCommandLine(std::span<const std::string_view> arguments)
{
    bool isHeadless = false;
    bool isSimulated = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
    for (const auto argument : arguments) {
        if (argument == "--headless")
            isHeadless = true;
        else if (argument == "--simulate")
            isSimulated = true;
        else if (argument == "--help" || argument == "-h")
            wantsHelp = true;
        else if (argument == "--version")
            wantsVersion = true;
        else
            return std::unexpected("unknown argument: " + printable(argument));
    }

    if (wantsHelp)
        return CommandLine{.action = CommandLine::Action::showHelp};
    if (wantsVersion)
        return CommandLine{.action = CommandLine::Action::showVersion};
    if (!isHeadless)
        return std::unexpected("--headless is missing: it is the only way to run that this version has");
    return CommandLine{.action = CommandLine::Action::runHeadless, .isSimulated = isSimulated};
}

std::string_view usageText()
{
    return "Usage: fadeloom --headless [--simulate]\n"
           "       fadeloom --help | --version\n"
           "\n"
           "Gives every application that plays sound its own volume, mute, output and equalizer.\n"
           "\n"
           "  --headless   run without a window: tell on standard output what happens, take commands on\n"
           "               standard input (\"help\" lists them), end on SIGINT or SIGTERM\n"
           "  --simulate   with --headless: run on a small world in memory, without any audio system\n"
           "  --help       show this text\n"
           "  --version    show the version\n";
}

}  // namespace fadeloom
