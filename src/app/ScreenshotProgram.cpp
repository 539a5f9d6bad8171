// SPDX-License-Identifier: MIT
#include "app/ScreenshotProgram.h"

#include "app/CommandLine.h"
#include "app/Home.h"
#include "app/InterfaceLanguage.h"
#include "app/PanelServices.h"
#include "app/ScratchFolder.h"
#include "log/EngineLog.h"
#include "platform/qt/QtText.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "ui/ScreenshotRenderer.h"

#include <QApplication>

#include <iostream>

namespace fadeloom {

int runScreenshots(int argumentCount, char** arguments, const CommandLine& commandLine)
{
    ScreenshotRenderer::prepareEnvironment();
    const QApplication application(argumentCount, arguments);
    const auto folder = ScratchFolder::create();
    if (!folder) {
        std::cerr << "fadeloom: " << folder.error() << '\n';
        return 1;
    }
    // A world of its own: nothing of this machine is to be seen in the pictures.
    QtText text;
    SimulatedPlatform world(folder->path(), &text);
    const auto own = world.platform();
    HomeFolders folders;  // The one for recordings is shown, as "~/Music/…".
    const Platform platform = {own.audio, own.audioFiles, own.workspace, own.capturePermission, own.loginItem,
        own.mainLoop, own.utilityQueue, own.logQueue, folders, own.systemLog, own.text, own.clock,
        own.userDefaults, own.http};
    EngineLog engineLog(platform.systemLog, platform.logQueue, folder->path());
    PanelServices services({.workspace = own.workspace,
        .application = world.application(),
        .dialogs = world.dialogs(),
        .userDefaults = own.userDefaults,
        .updates = nullptr,
        .translate = InterfaceLanguage::texts(),
        .quit = [] { }});
    const InterfaceLanguage language({});
    ScreenshotRenderer::run(platform, engineLog, services, commandLine.outputFolder,
        commandLine.languageSuffix, commandLine.isLight ? Theme::light : Theme::dark, std::cout);
    return 0;
}

}  // namespace fadeloom
