// SPDX-License-Identifier: MIT
#include "app/EventPrinter.h"

#include "app/Console.h"
#include "control/AudioController.h"

#include <utility>

namespace fadeloom {

EventPrinter::EventPrinter(const AudioController& controller, Console& console)
    : controller_(controller)
    , console_(console)
{
    const auto& state = controller_.state();
    // Told now, and again after each change.
    const auto follow = [this](const auto& published, auto tell) {
        tell();
        subscriptions_.push_back(published.whenAssigned(tell));
    };
    follow(state.permission, [this] { console_.print(permissionLine(*controller_.state().permission)); });
    follow(state.devices, [this] { printDevices(); });
    follow(state.defaultDeviceUID, [this] {
        console_.print(defaultLine(*controller_.state().defaultDeviceUID));
        printOutputs();
    });
    follow(state.apps, [this] { printApps(); });
    follow(state.settings, [this] { printOutputs(); });
    if (*state.callApp)
        printCall();
    subscriptions_.push_back(state.callApp.whenAssigned([this] { printCall(); }));
    follow(state.callOffers, [this] { printCallOffers(); });
    follow(state.recordings, [this] { printRecordings(); });
    follow(state.lastRecording, [this] { printSavedRecording(); });
    follow(state.error, [this] { printMessage(); });
}

void EventPrinter::printApps()
{
    const auto& now = *controller_.state().apps;
    print(appLines(apps_, now));
    apps_ = now;
    printOutputs();
}

void EventPrinter::printDevices()
{
    const auto& now = *controller_.state().devices;
    print(deviceLines(devices_, now));
    devices_ = now;
    printOutputs();
}

void EventPrinter::printOutputs()
{
    AppOutputs now;
    for (const auto& entry : apps_)
        now.emplace(entry.bundleID, controller_.outputUID(entry.bundleID));
    print(outputLines(outputs_, now));
    outputs_ = std::move(now);
}

void EventPrinter::printCall()
{
    console_.print(callLine(*controller_.state().callApp));
}

void EventPrinter::printCallOffers()
{
    const auto& now = *controller_.state().callOffers;
    print(callOfferLines(callOffers_, now));
    callOffers_ = now;
}

void EventPrinter::printRecordings()
{
    std::set<std::string> now;
    for (const auto& [id, startedAt] : *controller_.state().recordings)
        now.insert(id);
    print(recordingLines(recordings_, now));
    recordings_ = std::move(now);
}

void EventPrinter::printSavedRecording()
{
    if (const auto& location = *controller_.state().lastRecording)
        console_.print(savedRecordingLine(*location));
}

void EventPrinter::printMessage()
{
    if (const auto& error = *controller_.state().error)
        console_.print(messageLine(englishText(*error)));
}

void EventPrinter::print(const std::vector<std::string>& lines)
{
    for (const auto& line : lines)
        console_.print(line);
}

}  // namespace fadeloom
