// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "app/ControlProgram.h"
#include "app/HeadlessProgram.h"
#include "app/ScreenshotProgram.h"
#include "app/StandardStreams.h"
#include "app/TrayProgram.h"
#include "app/Version.h"

#include <iostream>
#include <vector>

int main(int argc, char** argv)
{
    using namespace fadeloom;
    secureStandardStreams();

    const auto commandLine = parseCommandLine(std::vector<std::string_view>(argv + (argc > 0), argv + argc));
    if (!commandLine) {
        std::cerr << "fadeloom: " << commandLine.error() << "\n\n" << usageText();
        return 2;
    }
    switch (commandLine->action) {
    case CommandLine::Action::showHelp:
        std::cout << usageText() << std::flush;
        return 0;
    case CommandLine::Action::showVersion:
        std::cout << "fadeloom " << programVersion() << std::endl;
        return 0;
    case CommandLine::Action::runTray:
        return runTray(argc, argv, *commandLine);
    case CommandLine::Action::giveCommand:
        return execControl(argv);
    case CommandLine::Action::renderScreenshots:
        return runScreenshots(argc, argv, *commandLine);
    case CommandLine::Action::runHeadless:
        return runHeadless(argc, argv, commandLine->isSimulated);
    }
    return 0;
}
