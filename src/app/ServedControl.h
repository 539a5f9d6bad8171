// SPDX-License-Identifier: MIT
// What other programs reach of a running one.
#pragma once

#include <functional>
#include <string>

namespace fadeloom {

class AudioController;
class CommandInterpreter;
class MainLoop;
class Text;
class Watchers;

struct ServedControl {
    AudioController& controller;
    CommandInterpreter& commands;
    Watchers& watchers;
    MainLoop& mainLoop;
    const Text& text;
    std::string version;
    std::function<void()> quit;
};

}  // namespace fadeloom
