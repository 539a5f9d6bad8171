// SPDX-License-Identifier: MIT
// Prints one line for each thing that happens to the controller.
#pragma once

#include "base/Subscription.h"
#include "commands/EventLines.h"

#include <set>
#include <string>
#include <vector>

namespace fadeloom {

class AudioController;
class Console;

/// Thread: main.
class EventPrinter {
public:
    /// Prints how things stand now, and from then on what changes. Both must outlive this.
    EventPrinter(const AudioController& controller, Console& console);
    EventPrinter(const EventPrinter&) = delete;
    EventPrinter& operator=(const EventPrinter&) = delete;

private:
    void printApps();
    void printDevices();
    void printOutputs();
    void printCall();
    void printCallOffers();
    void printRecordings();
    void printSavedRecording();
    void printMessage();
    void print(const std::vector<std::string>& lines);

    const AudioController& controller_;
    Console& console_;
    std::vector<AppEntry> apps_;  // As last printed, all five.
    std::vector<OutputDevice> devices_;
    AppOutputs outputs_;
    std::set<std::string> callOffers_;
    std::set<std::string> recordings_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace fadeloom
