// SPDX-License-Identifier: MIT
#include "app/HeadlessProgram.h"

#include "app/Console.h"
#include "app/EarlyEnd.h"
#include "app/HeadlessRun.h"
#include "app/Home.h"
#include "app/PrintedLog.h"
#include "app/SimulatedHome.h"
#include "app/StartConditions.h"
#include "app/TerminalSize.h"
#include "app/Version.h"
#include "base/TextWriter.h"
#include "platform/qt/LineReader.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QuitSignals.h"

#include <QCoreApplication>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {
namespace {

/// `instance`: null for a simulation, which other programs cannot reach.
void runOn(const Platform& platform, QtMainLoop& mainLoop, Console& console, HomeInstance* instance,
    const std::function<void()>& quit)
{
    // First, so that a signal during startup also leads to a clean exit.
    const QuitSignals quitSignals(quit);
    HeadlessRun run(platform, console,
        {
            .version = std::string(programVersion()),
            .quit = quit,
            .terminalSize = [] { return terminalSize(STDOUT_FILENO); },
        });
    const bool isEchoedBelowTable = isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
    const LineReader input(
        STDIN_FILENO,
        [&](const LineSplitter::Line& line) {
            if (isEchoedBelowTable)
                console.noteEnteredLine();
            if (line.isTooLong)
                console.print("error the line is too long");
            else
                run.takeLine(line.text);
        },
        [] {});  // End of file on standard input does not end the program.

    if (instance != nullptr)
        instance->serve({.quit = quit, .control = run.served(mainLoop)});
    mainLoop.run();
    run.endWatches();
    if (instance != nullptr)
        instance->serve({});
    run.shutdown();
}

int runOnThisMachine(QtMainLoop& mainLoop, Console& console, HomeGuardian& guardian)
{
    HomeInstance instance;
    if (const auto end = instance.claim(OpenPanel::no))
        return endEarly(*end);
    const auto quit = [&] {
        instance.beginEnding();
        mainLoop.quit();
    };
    instance.serve({.quit = quit});
    HomeLog systemLog;
    PrintedLog log(systemLog, console, mainLoop);
    HomePlatform home(mainLoop, log, guardian);
    const auto platform = home.platform();
    if (const auto end = reasonNotToStart(platform))
        return endEarly(*end);
    runOn(platform, mainLoop, console, &instance, quit);
    return 0;
}

}  // namespace

int runHeadless(int argumentCount, char** arguments, bool isSimulated)
{
    std::optional<HomeGuardian> guardian;
    if (!isSimulated)
        guardian.emplace();  // Before the first thread.
    prepareMainLoop();
    const QCoreApplication application(argumentCount, arguments);
    QtMainLoop mainLoop;
    TextWriter output(writeToDescriptor(STDOUT_FILENO), [](std::uint64_t dropped) {
        return "dropped " + std::to_string(dropped) + " line(s) that nobody read\n";
    });
    Console console([&output](std::string text) { output.write(std::move(text)); });
    if (guardian)
        return runOnThisMachine(mainLoop, console, *guardian);
    return runSimulated(mainLoop, [&](SimulatedHome& home) {
        PrintedLog log(home.world().systemLog(), console, mainLoop);
        runOn(
            home.world().platform({.systemLog = &log}), mainLoop, console, nullptr, [&] { mainLoop.quit(); });
        return 0;
    });
}

}  // namespace fadeloom
