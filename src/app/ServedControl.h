// SPDX-License-Identifier: MIT
// The parts of a running program that other programs can reach.
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
