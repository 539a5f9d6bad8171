// SPDX-License-Identifier: MIT
#include "app/SimulatedHome.h"

#include "app/EarlyEnd.h"
#include "app/ScratchFolder.h"
#include "platform/MainLoop.h"
#include "platform/qt/QtText.h"

#include <chrono>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

constexpr auto timeStep = 20ms;
constexpr int scriptLength = 60;  // Seconds.

SimulatedSignal tone(double frequency)
{
    return SimulatedSignal::sine(frequency, 0.25F);
}

}  // namespace

SimulatedHome::SimulatedHome(const std::filesystem::path& folder, MainLoop& realLoop, Text& text)
    : realLoop_(realLoop)
    , world_(folder, &text)
{
    world_.http().goOffline();
    world_.plug({.uid = "speakers", .name = "Desk Speakers"});
    world_.plug({.uid = "headphones", .name = "Headphones"});
    player_ = world_.launchApp("Player");
    browserTab_ = world_.launchHelper(world_.launchApp("Browser"), "com.example.browser.helper");
    chat_ = world_.launchApp("Chat");
    world_.startPlaying(player_, tone(440));
}

void SimulatedHome::start()
{
    script_ = world_.mainLoop().every(1s, [this] { act(++second_ % scriptLength); });
    time_ = realLoop_.every(timeStep, [this] { world_.advance(timeStep); });
}

void SimulatedHome::act(int second)
{
    switch (second) {
    case 1:
        return world_.startPlaying(browserTab_, tone(330));
    case 3:
        return world_.startPlaying(chat_, tone(220));
    case 20:
        return world_.stopPlaying(chat_);
    case 25:
        return world_.unplug("headphones");
    case 30:
        world_.plug({.uid = "headphones", .name = "Headphones"});
        return;
    case 40:
        return world_.closeAudio(browserTab_);
    default:
        return;
    }
}

int runSimulated(MainLoop& realLoop, const std::function<int(SimulatedHome&)>& program)
{
    const auto folder = ScratchFolder::create();
    if (!folder)
        return endEarly({folder.error(), 1});
    QtText text;
    SimulatedHome home(folder->path(), realLoop, text);
    home.start();
    return program(home);
}

}  // namespace fadeloom
