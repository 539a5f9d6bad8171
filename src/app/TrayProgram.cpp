// SPDX-License-Identifier: MIT
#include "app/TrayProgram.h"

#include "app/AppDelegate.h"
#include "app/InterfaceLanguage.h"
#include "app/PanelServices.h"
#include "app/PlatformLinux.h"
#include "app/ProductPages.h"
#include "app/ScratchFolder.h"
#include "app/SecondStart.h"
#include "app/SimulatedHome.h"
#include "app/TrayPicture.h"
#include "app/Version.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/linux/FileManager.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/linux/Variables.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QuitSignals.h"
#include "platform/qtdesktop/QtApplication.h"
#include "platform/qtdesktop/QtDialogs.h"
#include "platform/qtdesktop/QtPopover.h"
#include "platform/qtdesktop/QtTrayIcon.h"
#include "platform/qtdesktop/SystemLook.h"
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

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// On Wayland a window can choose neither its place nor to stay in front, which the panel has to: X11 first.
void choosePlatform()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

/// What the program is on that a simulated world does not have, too.
struct Desktop {
    Workspace& workspace;  // Opens addresses, names applications, starts us anew.
    SingleInstance* instance;  // Null for one of many.
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
    TrayRun(const Platform& platform, QtMainLoop& mainLoop, Desktop desktop);
    TrayRun(const TrayRun&) = delete;
    TrayRun& operator=(const TrayRun&) = delete;
    ~TrayRun();

    /// Returns the exit status.
    int run();

private:
    [[nodiscard]] Platform withWindows(Platform platform);
    [[nodiscard]] AppDelegate::Actions actions();
    void beOrdinary();
    void quit();

    QtMainLoop& mainLoop_;
    const Desktop desktop_;
    const QuitSignals quitSignals_{[this] { quit(); }};
    QtApplication application_{[](auto) { }};  // The panel reads the choice from the settings.
    QtDialogs dialogs_;
    const Platform platform_;
    const InterfaceLanguage language_;
    EngineLog engineLog_;
    AudioController controller_;
    std::optional<UpdateChecker> updates_;
    PanelServices services_;
    PanelModel panel_;
    SystemLook systemLook_{[this](bool isDark) { panel_.setSystemIsDark(isDark); }};
    PanelEngine engine_;
    QtTrayIcon icon_;
    QtPopover popover_{[this] { return icon_.place(); }};
    std::optional<AppDelegate> delegate_;  // Shows the icon.
};

TrayRun::TrayRun(const Platform& platform, QtMainLoop& mainLoop, Desktop desktop)
    : mainLoop_(mainLoop)
    , desktop_(desktop)
    , platform_(withWindows(platform))
    , language_(AppLanguage::preferred(platform_.userDefaults))
    , engineLog_(
          platform_.systemLog, platform_.logQueue, SettingsFile::defaultURL(platform_.folders).parent_path())
    , controller_(platform_, engineLog_, std::string(programVersion()))
    , updates_(makeUpdateChecker(platform_, desktop_.workspace))
    , services_({.workspace = desktop_.workspace,
          .application = application_,
          .dialogs = dialogs_,
          .userDefaults = platform_.userDefaults,
          .updates = updates_ ? &*updates_ : nullptr,
          .translate = InterfaceLanguage::texts(),
          .quit = [this] { quit(); }})
    , panel_(controller_, platform_, services_)
    , icon_(trayPicture(systemLook_.isDark()), [this] { beOrdinary(); })
{
    panel_.setSystemIsDark(systemLook_.isDark());
    if (updates_)
        updates_->start();
}

TrayRun::~TrayRun()
{
    if (desktop_.instance != nullptr)
        desktop_.instance->serve({});
}

int TrayRun::run()
{
    auto view = engine_.makeRootView(panel_);
    if (!view)
        return 1;
    popover_.setContent(std::move(view));
    delegate_.emplace(controller_, icon_, popover_, application_, actions());
    if (desktop_.instance != nullptr)
        desktop_.instance->serve({.open = [this] { delegate_->showPopover(); },
            .toggle = [this] { delegate_->togglePopover(); },
            .quit = [this] { quit(); }});
    mainLoop_.run();
    controller_.shutdown();
    return 0;
}

Platform TrayRun::withWindows(Platform platform)
{
    platform.application = &application_;
    platform.dialogs = &dialogs_;
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

void TrayRun::beOrdinary()
{
    std::cerr << "fadeloom: this desktop shows no status icons; the panel is an ordinary window\n";
    popover_.becomeOrdinaryWindow();
    popover_.show();
}

void TrayRun::quit()
{
    if (desktop_.instance != nullptr)
        desktop_.instance->beginEnding();
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
    SyslogSystemLog systemLog;
    FileManager fileManager(systemLog);
    LinuxWorkspace workspace(linuxEnvironment(processVariables()), fileManager);
    home.start();
    return TrayRun(home.platform(home.world().systemLog()), mainLoop, {workspace, nullptr}).run();
}

int runOnThisMachine(QtMainLoop& mainLoop)
{
    SingleInstance instance(instanceFolder());
    if (const auto second = secondStart(instance.claim(InstanceRequest::open), InstanceRequest::open)) {
        std::cerr << "fadeloom: " << second->message << '\n';
        return second->exitStatus;
    }
    SyslogSystemLog systemLog;
    PlatformLinux home(mainLoop, systemLog);
    const auto platform = home.platform();
    return TrayRun(platform, mainLoop, {platform.workspace, &instance}).run();
}

}  // namespace

int runTray(int argumentCount, char** arguments, bool isSimulated)
{
    if (!hasDisplay()) {
        std::cerr << "fadeloom: there is no display to show a panel on; --headless runs without one\n";
        return 1;
    }
    choosePlatform();
    drawBySoftware();
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("fadeloom"));
    QApplication::setApplicationVersion(QString::fromStdString(std::string(programVersion())));
    QApplication::setDesktopFileName(QStringLiteral("com.fadeloom.app"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/app-icon.svg")));
    QtMainLoop mainLoop;
    return isSimulated ? runSimulated(mainLoop) : runOnThisMachine(mainLoop);
}

}  // namespace fadeloom
