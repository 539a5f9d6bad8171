// SPDX-License-Identifier: MIT
#include "commands/EventSource.h"

#include "control/AudioController.h"

#include <utility>

namespace fadeloom {

EventSource::EventSource(const AudioController& controller, MainLoop& mainLoop, Tell tell)
    : controller_(controller)
    , mainLoop_(mainLoop)
    , emit_(std::move(tell))
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
    follow(state.permission, [this] { emit_(event::Permission{*controller_.state().permission}); });
    follow(state.devices, [this] { emitDevices(); });
    follow(state.defaultDeviceUID, [this] {
        emit_(event::DefaultOutput{*controller_.state().defaultDeviceUID});
        emitOutputs();
    });
    follow(state.apps, [this] { emitApps(); });
    follow(state.settings, [this] { settingsChanged(); });
    const auto emitCall = [this] { emit_(event::Call{*controller_.state().callApp}); };
    if (*state.callApp)
        emitCall();
    listen(state.callApp, emitCall);
    follow(state.callOffers, [this] { emitCallOffers(); });
    follow(state.recordings, [this] { emitRecordings(); });
    follow(state.lastRecording, [this] {
        if (const auto& file = *controller_.state().lastRecording)
            emit_(event::RecordingSaved{*file});
    });
    follow(state.error, [this] {
        if (const auto& error = *controller_.state().error)
            emit_(event::Message{englishText(*error)});
    });
}

void EventSource::emitApps()
{
    const auto& now = *controller_.state().apps;
    emitAll(appEvents(apps_, now));
    apps_ = now;
    emitOutputs();
}

void EventSource::emitDevices()
{
    const auto& now = *controller_.state().devices;
    emitAll(outputEvents(devices_, now));
    devices_ = now;
    emitOutputs();
}

void EventSource::emitOutputs()
{
    AppOutputs now;
    for (const auto& entry : apps_)
        now.emplace(entry.bundleID, controller_.outputUID(entry.bundleID));
    emitAll(appOutputEvents(outputs_, now));
    outputs_ = std::move(now);
}

void EventSource::emitCallOffers()
{
    const auto& now = *controller_.state().callOffers;
    emitAll(callOfferEvents(callOffers_, now));
    callOffers_ = now;
}

void EventSource::emitRecordings()
{
    std::set<std::string> now;
    for (const auto& [id, startedAt] : *controller_.state().recordings)
        now.insert(id);
    emitAll(recordingEvents(recordings_, now));
    recordings_ = std::move(now);
}

void EventSource::settingsChanged()
{
    emitOutputs();
    if (isCollecting_ || settings_ == controller_.state().settings->apps)
        return;
    isCollecting_ = true;
    settingsTimer_ = mainLoop_.after(collecting, [this] { emitSettings(); });
}

void EventSource::emitSettings()
{
    isCollecting_ = false;
    const auto& now = controller_.state().settings->apps;
    emitAll(appSettingsEvents(settings_, now));
    settings_ = now;
}

void EventSource::emitAll(const Events& events)
{
    for (const auto& event : events)
        emit_(event);
}

}  // namespace fadeloom
