// SPDX-License-Identifier: MIT
#include "platform/macos/CoreAudioSystem.h"

#include "base/Observers.h"
#include "platform/macos/AudioProcesses.h"
#include "platform/macos/CoreAudioTap.h"
#include "platform/macos/HAL.h"
#include "platform/macos/OutputDevices.h"
#include "platform/macos/ProcessListeners.h"
#include "platform/macos/PropertyListener.h"

#include <utility>

namespace fadeloom {

/// Watches individual processes while there are subscribers.
struct CoreAudioSystem::ProcessWatch {
    AudioProcesses processes;
    Observers observers;
    ProcessListeners listeners{[this] { observers.notify(); }};
};

CoreAudioSystem::CoreAudioSystem()
    : processWatch_(std::make_shared<ProcessWatch>())
{
}

CoreAudioSystem::~CoreAudioSystem() = default;

// Callers also poll, so a property that cannot be listened to is not lost.
Subscription CoreAudioSystem::listen(AudioObjectPropertySelector selector, Listener listener)
{
    struct Listening {
        std::unique_ptr<PropertyListener> property;
        Subscription restarts;
    };
    const auto add = [selector, listener] {
        auto added = PropertyListener::add(kAudioObjectSystemObject, HAL::address(selector), listener);
        return added ? std::move(*added) : nullptr;
    };
    auto listening = std::make_shared<Listening>();
    listening->property = add();
    if (!listening->property)
        return {};
    listening->restarts = restarts_.add([weakly = std::weak_ptr(listening), add, listener] {
        if (const auto kept = weakly.lock()) {
            kept->property.reset();
            kept->property = add();
            listener();
        }
    });
    // std::function must be copyable, even to end a subscription.
    return Subscription([listening]() mutable { listening.reset(); });
}

std::vector<AudioProcess> CoreAudioSystem::processes(ReadMic readMic)
{
    auto processes = processWatch_->processes.all(readMic);
    if (!processWatch_->observers.isEmpty())
        processWatch_->listeners.sync(processes);
    silentTaps_.check(processes);
    return processes;
}

Subscription CoreAudioSystem::whenProcessesChange(Listener listener)
{
    auto watched = std::make_shared<Subscription>(processWatch_->observers.add(listener));
    // Old ids may now belong to other objects.
    auto restarts = std::make_shared<Subscription>(restarts_.add([watch = std::weak_ptr(processWatch_)] {
        if (const auto alive = watch.lock()) {
            alive->processes = {};
            alive->listeners.sync({});
        }
    }));
    auto listed =
        std::make_shared<Subscription>(listen(kAudioHardwarePropertyProcessObjectList, std::move(listener)));
    return Subscription([watched, listed, restarts, watch = std::weak_ptr(processWatch_)] {
        listed->reset();
        restarts->reset();
        watched->reset();
        if (const auto alive = watch.lock(); alive && alive->observers.isEmpty())
            alive->listeners.sync({});
    });
}

std::vector<OutputDevice> CoreAudioSystem::outputDevices() const
{
    return OutputDevices::all();
}

Subscription CoreAudioSystem::whenOutputDevicesChange(Listener listener)
{
    return listen(kAudioHardwarePropertyDevices, std::move(listener));
}

double CoreAudioSystem::sampleRate(OutputDeviceID device) const
{
    return HAL::value<double>(device, HAL::address(kAudioDevicePropertyNominalSampleRate)).value_or(0);
}

std::optional<std::string> CoreAudioSystem::defaultOutput() const
{
    return OutputDevices::defaultOutputUID();
}

Subscription CoreAudioSystem::whenDefaultOutputChanges(Listener listener)
{
    return listen(kAudioHardwarePropertyDefaultOutputDevice, std::move(listener));
}

bool CoreAudioSystem::setDefaultOutput(const OutputDevice& device)
{
    return HAL::setValue(kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDefaultOutputDevice),
               AudioObjectID{device.id})
        == kAudioHardwareNoError;
}

HostTime CoreAudioSystem::hostTime() const
{
    return HostTime(AudioConvertHostTimeToNanos(AudioGetCurrentHostTime()));
}

std::expected<std::unique_ptr<ProcessTap>, TapError> CoreAudioSystem::createTap(
    const TapRequest& request, const AudioIOProcFactory& makeIOProc)
{
    return CoreAudioTap::create(request, makeIOProc, {restarts_, silentTaps_});
}

}  // namespace fadeloom
