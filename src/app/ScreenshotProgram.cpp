// SPDX-License-Identifier: MIT
#include "app/ScreenshotProgram.h"

#include "app/CommandLine.h"
#include "app/EarlyEnd.h"
#include "app/Home.h"
#include "app/InterfaceLanguage.h"
#include "app/ProductPages.h"
#include "app/ScratchFolder.h"
#include "app/Version.h"
#include "log/EngineLog.h"
#include "platform/qt/QtText.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "shell/AppLanguage.h"
#include "ui/DemoData.h"
#include "ui/PanelParts.h"
#include "ui/ScreenshotRenderer.h"

#include <QApplication>

#include <iostream>

namespace fadeloom {

int runScreenshots(int argumentCount, char** arguments, const CommandLine& commandLine)
{
    ScreenshotRenderer::prepareEnvironment();
    const QApplication application(argumentCount, arguments);
    const auto folder = ScratchFolder::create();
    if (!folder)
        return endEarly({folder.error(), 1});
    // A private simulation: the pictures must show nothing of this machine.
    QtText text;
    SimulatedPlatform world(folder->path(), &text);
    HomeFolders folders;  // The recordings folder is shown, as "~/Music/…".
    const auto platform = world.platform({.folders = &folders});
    EngineLog engineLog(platform.systemLog, platform.logQueue, folder->path());
    const PanelParts parts = {
        .mainLoop = platform.mainLoop,
        .clock = platform.clock,
        .workspace = platform.workspace,
        .application = world.application(),
        .dialogs = world.dialogs(),
        .userDefaults = platform.userDefaults,
        .version = std::string(programVersion()),
        .webPage = webPage(),
        .translate = InterfaceLanguage::texts(),
    };
    const auto userDefaults = homeUserDefaults();
    const InterfaceLanguage language(AppLanguage::preferred(userDefaults));
    const auto home = homeWording == Wording::ofLinux ? DemoHome::ofLinux : DemoHome::ofMacOS;
    ScreenshotRenderer::run(platform, engineLog, parts, commandLine.outputFolder, commandLine.languageSuffix,
        commandLine.isLight ? Theme::light : Theme::dark, home, std::cout);
    return 0;
}

}  // namespace fadeloom
