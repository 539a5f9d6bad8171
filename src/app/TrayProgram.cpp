// SPDX-License-Identifier: MIT
#include "app/TrayProgram.h"

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/EarlyEnd.h"
#include "app/Home.h"
#include "app/InterfaceLanguage.h"
#include "app/ProductPages.h"
#include "app/ServedControl.h"
#include "app/SimulatedHome.h"
#include "app/StartConditions.h"
#include "app/Version.h"
#include "commands/CommandInterpreter.h"
#include "commands/Watchers.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QuitSignals.h"
#include "shell/AboutPanel.h"
#include "shell/AppLanguage.h"
#include "shell/UpdateChecker.h"
#include "ui/PanelEngine.h"
#include "ui/PanelModel.h"
#include "ui/PanelParts.h"

#include <QApplication>
#include <QIcon>
#include <QQuickItem>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {
namespace {

/// What a simulated program does not have.
struct Host {
    Workspace& workspace;  // Opens URLs, names applications, restarts the program.
    HomeInstance* instance;  // Null for a simulation.
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

/// The program with its icon and its panel, from startup to exit.
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
    [[nodiscard]] PanelParts panelParts();
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
    CommandInterpreter commands_{controller_, platform_.text,
        {.open = [this] { delegate_->showPopover(); }, .toggle = [this] { delegate_->togglePopover(); }}};
    Watchers watchers_{controller_, mainLoop_, platform_.text};
    std::optional<UpdateChecker> updates_;
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
    , engineLog_(platform_)
    , controller_(platform_, engineLog_, std::string(programVersion()))
    , updates_(makeUpdateChecker(platform_, host_.workspace))
    , panel_(controller_, panelParts())
{
    panel_.setDesktopAppearance(desktop_.appearance());
    desktop_.whenAppearanceChanges(
        [this](const DesktopAppearance& appearance) { panel_.setDesktopAppearance(appearance); });
    // The loop may not run again: shut down before this returns.
    desktop_.whenSessionEnds([this] {
        controller_.shutdown();
        quit();
    });
    if (updates_)
        updates_->start();
}

TrayRun::~TrayRun()
{
    desktop_.whenSessionEnds([] { });
    desktop_.whenAppearanceChanges([](const DesktopAppearance&) { });
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
            .quit = [this] { quit(); },
            .control = ServedControl{controller_, commands_, watchers_, mainLoop_, platform_.text,
                std::string(programVersion()), [this] { quit(); }}});
    mainLoop_.run();
    watchers_.end();
    controller_.shutdown();
    return 0;
}

Platform TrayRun::withWindows(Platform platform)
{
    platform.application = &desktop_.application();
    platform.dialogs = &desktop_.dialogs();
    return platform;
}

PanelParts TrayRun::panelParts()
{
    return {
        .mainLoop = platform_.mainLoop,
        .clock = platform_.clock,
        .workspace = host_.workspace,
        .application = desktop_.application(),
        .dialogs = desktop_.dialogs(),
        .userDefaults = platform_.userDefaults,
        .updates = updates_ ? &*updates_ : nullptr,
        .version = std::string(programVersion()),
        .webPage = webPage(),
        .translate = InterfaceLanguage::texts(),
        .quit = [this] { quit(); },
    };
}

AppDelegate::Actions TrayRun::actions()
{
    AppDelegate::Actions actions{
        .showPage = [this](auto page) { panel_.setShowsSettings(page == AppDelegate::Page::settings); },
        .showAbout =
            [this] { AboutPanel::show(desktop_.application(), InterfaceLanguage::texts(), webPage()); },
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

int runOnThisMachine(QtMainLoop& mainLoop, HomeGuardian& guardian, bool isInBackground)
{
    HomeInstance instance;
    if (const auto end = instance.claim(isInBackground ? OpenPanel::no : OpenPanel::yes))
        return endEarly(*end);
    HomeLog systemLog;
    HomePlatform home(mainLoop, systemLog, guardian);
    const auto platform = home.platform();
    if (const auto end = reasonNotToStart(platform))
        return endEarly(*end);
    return TrayRun(platform, mainLoop, {platform.workspace, &instance}).run();
}

}  // namespace

int runTray(int argumentCount, char** arguments, const CommandLine& commandLine)
{
    if (!HomeDesktop::prepare())
        return endEarly({"there is no display to show a panel on; --headless runs without one", 1});
    std::optional<HomeGuardian> guardian;
    if (!commandLine.isSimulated)
        guardian.emplace();  // Before the first thread.
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("fadeloom"));
    QApplication::setApplicationVersion(QString::fromStdString(std::string(programVersion())));
    QApplication::setDesktopFileName(QStringLiteral("com.fadeloom.app"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app-icon.svg")));
    QtMainLoop mainLoop;
    if (guardian)
        return runOnThisMachine(mainLoop, *guardian, commandLine.isInBackground);
    HomeWorkspace real;
    return runSimulated(mainLoop, [&](SimulatedHome& home) {
        return TrayRun(home.world().platform(), mainLoop, {real.workspace(), nullptr}).run();
    });
}

}  // namespace fadeloom
