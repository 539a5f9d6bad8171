// SPDX-License-Identifier: MIT
// What the panel uses besides the controller.
#pragma once

#include "platform/MainLoop.h"
#include "platform/WallClock.h"
#include "shell/Translate.h"

#include <functional>
#include <string>

namespace fadeloom {

class Application;
class Dialogs;
class UpdateChecker;
class UserDefaults;
class Workspace;

/// All must outlive the panel. Thread: main.
struct PanelParts {
    MainLoop& mainLoop;
    const WallClock& clock;
    Workspace& workspace;  // Opens URLs, names applications, restarts the program.
    Application& application;
    Dialogs& dialogs;
    UserDefaults& userDefaults;
    UpdateChecker* updates = nullptr;  // Null in a program without update check.
    std::string version{};
    std::string webPage{};  // The URL of the product's page.
    Translate translate{};
    std::function<void()> quit = [] { };
};

}  // namespace fadeloom
