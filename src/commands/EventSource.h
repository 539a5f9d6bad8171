// SPDX-License-Identifier: MIT
// Turns a controller's state changes into events.
#pragma once

#include "base/Subscription.h"
#include "commands/Events.h"

#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

class AudioController;
class MainLoop;

/// Thread: main.
class EventSource {
public:
    using Tell = std::function<void(const Event&)>;

    /// Changes of apps' settings are coalesced over this time: dragging a slider gives one event per interval.
    static constexpr std::chrono::milliseconds collecting{30};

    /// Emits the current state, without apps' settings, and then every change. All arguments must outlive this.
    EventSource(const AudioController& controller, MainLoop& mainLoop, Tell tell);
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;

private:
    void emitApps();
    void emitDevices();
    void emitOutputs();
    void emitCallOffers();
    void emitRecordings();
    void settingsChanged();
    void emitSettings();
    void emitAll(const Events& events);

    const AudioController& controller_;
    MainLoop& mainLoop_;
    const Tell emit_;
    std::vector<AppEntry> apps_;  // As last emitted, all six.
    std::vector<OutputDevice> devices_;
    AppOutputs outputs_;
    AppSettingsByID settings_;
    std::set<std::string> callOffers_;
    std::set<std::string> recordings_;
    bool isCollecting_ = false;
    Subscription settingsTimer_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace fadeloom
