// SPDX-License-Identifier: MIT
#include "app/TrayProgram.h"

#include "app/AppDelegate.h"
#include "app/InterfaceLanguage.h"
#include "app/PanelServices.h"
#include "app/PlatformLinux.h"
#include "app/ScratchFolder.h"
#include "app/SimulatedHome.h"
#include "app/TrayPicture.h"
#include "app/Version.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QuitSignals.h"
#include "platform/qtdesktop/QtApplication.h"
#include "platform/qtdesktop/QtDialogs.h"
#include "platform/qtdesktop/QtPopover.h"
#include "platform/qtdesktop/QtTrayIcon.h"
#include "platform/qtdesktop/SystemLook.h"
#include "settings/SettingsFile.h"
#include "ui/PanelEngine.h"
#include "ui/PanelModel.h"

#include <QApplication>
#include <QLockFile>
#include <QQuickItem>
#include <QStandardPaths>

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

using InstalledName = std::function<std::optional<std::string>(const std::string&)>;

int runOn(Platform platform, QtMainLoop& mainLoop, InstalledName installedName)
{
    const QuitSignals quitSignals([&] { mainLoop.quit(); });
    QtApplication application([](auto) { });  // The panel reads the choice from the settings.
    QtDialogs dialogs;
    platform.application = &application;
    platform.dialogs = &dialogs;

    const auto folder = SettingsFile::defaultURL(platform.folders).parent_path();
    EngineLog engineLog(platform.systemLog, platform.logQueue, folder);
    AudioController controller(platform, engineLog, std::string(programVersion()));
    PanelServices services({.quit = [&] { mainLoop.quit(); }, .installedName = std::move(installedName)},
        folder / "preferences.ini");
    const InterfaceLanguage language(services.language());
    PanelModel panel(controller, platform, services);
    SystemLook systemLook([&](bool isDark) { panel.setSystemIsDark(isDark); });
    panel.setSystemIsDark(systemLook.isDark());

    PanelEngine engine;
    auto view = engine.makeRootView(panel);
    if (!view)
        return 1;
    QtPopover* shown = nullptr;
    QtTrayIcon icon(trayPicture(systemLook.isDark()), [&] {
        std::cerr << "fadeloom: this desktop shows no status icons; the panel is an ordinary window\n";
        shown->becomeOrdinaryWindow();
        shown->show();
    });
    QtPopover popover([&] { return icon.place(); });
    shown = &popover;
    popover.setContent(std::move(view));
    AppDelegate delegate(controller, icon, popover, application,
        {
            .showPage = [&](bool isSettings) { panel.setShowsSettings(isSettings); },
            .showAbout = [&] { services.openAboutPanel(); },
            .quit = [&] { mainLoop.quit(); },
            .translate =
                [](std::string_view text) {
                    return QCoreApplication::translate("AppDelegate", std::string(text).c_str())
                        .toStdString();
                },
        });

    mainLoop.run();
    controller.shutdown();
    return 0;
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
    home.start();
    return runOn(home.platform(home.world().systemLog()), mainLoop, [](const auto&) { return std::nullopt; });
}

// Two of us would take each other's applications away.
int runOnThisMachine(QtMainLoop& mainLoop)
{
    QLockFile lock(
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/fadeloom.lock"));
    lock.setStaleLockTime(0);  // Only the end of its process frees it, however long that runs.
    if (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError) {
        std::cerr << "fadeloom: it is running already, and shows its icon among the status icons\n";
        return 0;
    }
    SyslogSystemLog systemLog;
    PlatformLinux home(mainLoop, systemLog);
    return runOn(
        home.platform(), mainLoop, [&](const std::string& bundleID) { return home.installedName(bundleID); });
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
    QApplication::setDesktopFileName(QStringLiteral("com.fadeloom.app"));
    QtMainLoop mainLoop;
    return isSimulated ? runSimulated(mainLoop) : runOnThisMachine(mainLoop);
}

}  // namespace fadeloom
