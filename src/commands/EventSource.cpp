// SPDX-License-Identifier: MIT
#include "commands/EventSource.h"

#include "control/AudioController.h"

#include <utility>

namespace fadeloom {

EventSource::EventSource(const AudioController& controller, MainLoop& mainLoop, Tell tell)
    : controller_(controller)
    , mainLoop_(mainLoop)
    , tell_(std::move(tell))
    , settings_(controller.state().settings->apps)
{
    const auto& state = controller_.state();
    const auto listen = [this](const auto& published, auto react) {
        subscriptions_.push_back(published.whenAssigned(react));
    };
    // Emitted now, and again after each change.
    const auto follow = [&listen](const auto& published, auto react) {
        react();
        listen(published, react);
    };
    follow(state.permission, [this] { tell_(event::Permission{*controller_.state().permission}); });
    follow(state.devices, [this] { tellDevices(); });
    follow(state.defaultDeviceUID, [this] {
        tell_(event::DefaultOutput{*controller_.state().defaultDeviceUID});
        tellOutputs();
    });
    follow(state.apps, [this] { tellApps(); });
    follow(state.settings, [this] { settingsChanged(); });
    const auto tellCall = [this] { tell_(event::Call{*controller_.state().callApp}); };
    if (*state.callApp)
        tellCall();
    listen(state.callApp, tellCall);
    follow(state.callOffers, [this] { tellCallOffers(); });
    follow(state.recordings, [this] { tellRecordings(); });
    follow(state.lastRecording, [this] {
        if (const auto& file = *controller_.state().lastRecording)
            tell_(event::RecordingSaved{*file});
    });
    follow(state.error, [this] {
        if (const auto& error = *controller_.state().error)
            tell_(event::Message{englishText(*error)});
    });
}

void EventSource::tellApps()
{
    const auto& now = *controller_.state().apps;
    tellAll(appEvents(apps_, now));
    apps_ = now;
    tellOutputs();
}

void EventSource::tellDevices()
{
    const auto& now = *controller_.state().devices;
    tellAll(outputEvents(devices_, now));
    devices_ = now;
    tellOutputs();
}

void EventSource::tellOutputs()
{
    AppOutputs now;
    for (const auto& entry : apps_)
        now.emplace(entry.bundleID, controller_.outputUID(entry.bundleID));
    tellAll(appOutputEvents(outputs_, now));
    outputs_ = std::move(now);
}

void EventSource::tellCallOffers()
{
    const auto& now = *controller_.state().callOffers;
    tellAll(callOfferEvents(callOffers_, now));
    callOffers_ = now;
}

void EventSource::tellRecordings()
{
    std::set<std::string> now;
    for (const auto& [id, startedAt] : *controller_.state().recordings)
        now.insert(id);
    tellAll(recordingEvents(recordings_, now));
    recordings_ = std::move(now);
}

void EventSource::settingsChanged()
{
    tellOutputs();
    if (isCollecting_ || settings_ == controller_.state().settings->apps)
        return;
    isCollecting_ = true;
    settingsTimer_ = mainLoop_.after(collecting, [this] { tellSettings(); });
}

void EventSource::tellSettings()
{
    isCollecting_ = false;
    const auto& now = controller_.state().settings->apps;
    tellAll(appSettingsEvents(settings_, now));
    settings_ = now;
}

void EventSource::tellAll(const Events& events)
{
    for (const auto& event : events)
        tell_(event);
}

}  // namespace fadeloom
