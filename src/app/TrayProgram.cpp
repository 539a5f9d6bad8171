// SPDX-License-Identifier: MIT
#include "app/TrayProgram.h"

#include "app/AppDelegate.h"
#include "app/Home.h"
#include "app/InterfaceLanguage.h"
#include "app/PanelServices.h"
#include "app/ProductPages.h"
#include "app/ScratchFolder.h"
#include "app/SimulatedHome.h"
#include "app/Version.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QuitSignals.h"
#include "settings/SettingsFile.h"
#include "shell/AppLanguage.h"
#include "shell/UpdateChecker.h"
#include "ui/PanelEngine.h"
#include "ui/PanelModel.h"

#include <QApplication>
#include <QIcon>
#include <QQuickItem>

#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {
namespace {

/// What the program is on that a simulated world does not have, too.
struct Host {
    Workspace& workspace;  // Opens addresses, names applications, starts us anew.
    HomeInstance* instance;  // Null for one of many.
};

std::optional<UpdateChecker> makeUpdateChecker(const Platform& platform, Workspace& workspace)
{
    const auto endpoint = updateEndpoint();
    if (!endpoint)
        return std::nullopt;
    return std::optional<UpdateChecker>(std::in_place,
        UpdateChecker::Product{.version = std::string(programVersion()),
            .build = std::string(programBuild()),
            .endpoint = *endpoint},
        UpdateChecker::Parts{.mainLoop = platform.mainLoop,
            .http = platform.http,
            .workspace = workspace,
            .application = *platform.application,
            .dialogs = *platform.dialogs,
            .translate = InterfaceLanguage::texts()});
}

/// The program with its icon and its panel, from the start to the end.
class TrayRun {
public:
    TrayRun(const Platform& platform, QtMainLoop& mainLoop, Host host);
    TrayRun(const TrayRun&) = delete;
    TrayRun& operator=(const TrayRun&) = delete;
    ~TrayRun();

    /// Returns the exit status.
    int run();

private:
    [[nodiscard]] Platform withWindows(Platform platform);
    [[nodiscard]] AppDelegate::Actions actions();
    void quit();

    QtMainLoop& mainLoop_;
    const Host host_;
    const QuitSignals quitSignals_{[this] { quit(); }};
    HomeDesktop desktop_;
    const Platform platform_;
    const InterfaceLanguage language_;
    EngineLog engineLog_;
    AudioController controller_;
    std::optional<UpdateChecker> updates_;
    PanelServices services_;
    PanelModel panel_;
    std::optional<PanelEngine> engine_;  // Once the panel has been opened.
    HomePanel window_{desktop_};
    std::optional<AppDelegate> delegate_;  // Shows the icon.
};

TrayRun::TrayRun(const Platform& platform, QtMainLoop& mainLoop, Host host)
    : mainLoop_(mainLoop)
    , host_(host)
    , platform_(withWindows(platform))
    , language_(AppLanguage::preferred(platform_.userDefaults))
    , engineLog_(
          platform_.systemLog, platform_.logQueue, SettingsFile::defaultURL(platform_.folders).parent_path())
    , controller_(platform_, engineLog_, std::string(programVersion()))
    , updates_(makeUpdateChecker(platform_, host_.workspace))
    , services_({.workspace = host_.workspace,
          .application = desktop_.application(),
          .dialogs = desktop_.dialogs(),
          .userDefaults = platform_.userDefaults,
          .updates = updates_ ? &*updates_ : nullptr,
          .translate = InterfaceLanguage::texts(),
          .quit = [this] { quit(); }})
    , panel_(controller_, platform_, services_)
{
    panel_.setSystemIsDark(desktop_.isDark());
    desktop_.whenLookChanges([this](bool isDark) { panel_.setSystemIsDark(isDark); });
    if (updates_)
        updates_->start();
}

TrayRun::~TrayRun()
{
    desktop_.whenLookChanges([](bool) { });
    if (host_.instance != nullptr)
        host_.instance->serve({});
}

int TrayRun::run()
{
    window_.setContent([this] { return engine_.emplace().makeRootView(panel_); });
    delegate_.emplace(controller_, desktop_.icon(), window_.popover(), desktop_.application(), actions());
    if (host_.instance != nullptr)
        host_.instance->serve({.open = [this] { delegate_->showPopover(); },
            .toggle = [this] { delegate_->togglePopover(); },
            .quit = [this] { quit(); }});
    mainLoop_.run();
    controller_.shutdown();
    return 0;
}

Platform TrayRun::withWindows(Platform platform)
{
    platform.application = &desktop_.application();
    platform.dialogs = &desktop_.dialogs();
    return platform;
}

AppDelegate::Actions TrayRun::actions()
{
    AppDelegate::Actions actions{
        .showPage = [this](bool isSettings) { panel_.setShowsSettings(isSettings); },
        .showAbout = [this] { services_.openAboutPanel(); },
        .quit = [this] { quit(); },
        .translate = InterfaceLanguage::texts(),
    };
    if (updates_)
        actions.checkForUpdates = [this] { updates_->checkInteractively(); };
    return actions;
}

void TrayRun::quit()
{
    if (host_.instance != nullptr)
        host_.instance->beginEnding();
    mainLoop_.quit();
}

int runSimulated(QtMainLoop& mainLoop)
{
    const auto folder = ScratchFolder::create();
    if (!folder) {
        std::cerr << "fadeloom: " << folder.error() << '\n';
        return 1;
    }
    QtText text;
    SimulatedHome home(folder->path(), mainLoop, text);
    HomeWorkspace real;
    home.start();
    return TrayRun(home.platform(home.world().systemLog()), mainLoop, {real.workspace(), nullptr}).run();
}

int runOnThisMachine(QtMainLoop& mainLoop, HomeGuardian& guardian)
{
    HomeInstance instance;
    if (const auto end = instance.claim(true)) {
        std::cerr << "fadeloom: " << end->message << '\n';
        return end->exitStatus;
    }
    HomeLog systemLog;
    HomePlatform home(mainLoop, systemLog, guardian);
    const auto platform = home.platform();
    return TrayRun(platform, mainLoop, {platform.workspace, &instance}).run();
}

}  // namespace

int runTray(int argumentCount, char** arguments, bool isSimulated)
{
    if (!HomeDesktop::prepare()) {
        std::cerr << "fadeloom: there is no display to show a panel on; --headless runs without one\n";
        return 1;
    }
    std::optional<HomeGuardian> guardian;
    if (!isSimulated)
        guardian.emplace();  // Before the first thread.
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("fadeloom"));
    QApplication::setApplicationVersion(QString::fromStdString(std::string(programVersion())));
    QApplication::setDesktopFileName(QStringLiteral("com.fadeloom.app"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app-icon.svg")));
    QtMainLoop mainLoop;
    return guardian ? runOnThisMachine(mainLoop, *guardian) : runSimulated(mainLoop);
}

}  // namespace fadeloom
