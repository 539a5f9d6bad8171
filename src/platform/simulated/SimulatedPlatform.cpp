// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedPlatform.h"

namespace fadeloom {

SimulatedPlatform::SimulatedPlatform(std::filesystem::path applicationSupport, Text* text)
    : folders_(std::move(applicationSupport))
    , text_(text == nullptr ? simpleText_ : *text)
{
}

Platform SimulatedPlatform::platform()
{
    return {audio_, audioFiles_, workspace_, permission_, loginItem_, mainLoop_, utilityQueue_, logQueue_,
        folders_, systemLog_, text_, wallClock_, userDefaults_, http_, &application_, &dialogs_};
}

ProcessID SimulatedPlatform::launchApp(const std::string& name, const SimulatedAppTraits& traits)
{
    return workspace_.launchApp(name, traits);
}

ProcessID SimulatedPlatform::launchHelper(ProcessID owner, const std::string& bundleID)
{
    const ProcessID pid = workspace_.launchHelper(owner);
    helperBundleIDs_[pid] = bundleID;
    return pid;
}

void SimulatedPlatform::quitApp(ProcessID pid)
{
    for (const ProcessID ended : workspace_.quit(pid)) {
        closeAudio(ended);
        helperBundleIDs_.erase(ended);
    }
}

std::string SimulatedPlatform::bundleIDOf(ProcessID pid) const
{
    if (const auto application = workspace_.runningApplication(pid))
        return application->bundleID.value_or("");
    const auto helper = helperBundleIDs_.find(pid);
    return helper == helperBundleIDs_.end() ? "" : helper->second;
}

AudioObjectID SimulatedPlatform::openAudio(ProcessID pid)
{
    return system_.openAudio(pid, bundleIDOf(pid));
}

AudioObjectID SimulatedPlatform::audioOf(ProcessID pid)
{
    const AudioObjectID open = system_.audioObjectOf(pid);
    return open == kAudioObjectUnknown ? openAudio(pid) : open;
}

void SimulatedPlatform::closeAudio(ProcessID pid)
{
    for (auto object = system_.audioObjectOf(pid); object != kAudioObjectUnknown;
        object = system_.audioObjectOf(pid))
        system_.closeAudio(object);
}

void SimulatedPlatform::startPlaying(ProcessID pid, SimulatedSignal signal)
{
    system_.startPlaying(audioOf(pid), std::move(signal));
}

void SimulatedPlatform::stopPlaying(ProcessID pid)
{
    system_.stopPlaying(system_.audioObjectOf(pid));
}

void SimulatedPlatform::startUsingMic(ProcessID pid)
{
    system_.setUsingMic(audioOf(pid), true);
}

void SimulatedPlatform::stopUsingMic(ProcessID pid)
{
    system_.setUsingMic(system_.audioObjectOf(pid), false);
}

void SimulatedPlatform::refuse(AudioOperation operation, HowOften howOften, AudioStatus status)
{
    refuse(SimulatedFaults::Match{operation}, howOften, status);
}

void SimulatedPlatform::refuse(const SimulatedFaults::Match& match, HowOften howOften, AudioStatus status)
{
    audio_.faults().refuse(match, howOften, status);
}

}  // namespace fadeloom
