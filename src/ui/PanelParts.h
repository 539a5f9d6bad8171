// SPDX-License-Identifier: MIT
// What the panel works with beside the controller.
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
    Workspace& workspace;  // Opens addresses, names applications, starts the program again.
    Application& application;
    Dialogs& dialogs;
    UserDefaults& userDefaults;
    UpdateChecker* updates = nullptr;  // Null in a program that looks for none.
    std::string version{};
    std::string webPage{};  // The address of the product's page.
    Translate translate{};
    std::function<void()> quit = [] { };
};

}  // namespace fadeloom
