// SPDX-License-Identifier: MIT
// Routing of the controller: devices, the output of each app, and missing outputs.
#include "control/AudioController.h"
#include "control/OutputChoice.h"
#include "platform/AudioSystem.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

void AudioController::devicesChanged()
{
    refreshDevices();
    schedulePoll();
}

void AudioController::refreshDevices()
{
    state_.devices.assignIfDifferent(platform_.audio.outputDevices());
    state_.defaultDeviceUID.assignIfDifferent(platform_.audio.defaultOutput());
}

std::vector<OutputDevice> AudioController::outputs(const std::string& bundleID) const
{
    const auto entry = std::ranges::find(*state_.apps, bundleID, &AppEntry::bundleID);
    const auto own = entry == state_.apps->end() ? std::vector<std::string>{} : entry->ownOutputs;
    return outputsOf(*state_.settings, *state_.devices, *state_.defaultDeviceUID, bundleID, own);
}

std::optional<std::string> AudioController::outputUID(const std::string& bundleID) const
{
    const auto devices = outputs(bundleID);
    return devices.empty() ? std::nullopt : std::optional(devices.front().uid);
}

bool AudioController::isOutputMissing(const std::string& bundleID) const
{
    return fadeloom::isOutputMissing(*state_.settings, *state_.devices, bundleID);
}

void AudioController::updateMissingOutput()
{
    std::set<std::string> missing;
    for (const auto& entry : *state_.apps) {
        if (isOutputMissing(entry.bundleID))
            missing.insert(entry.bundleID);
    }
    if (missing == *state_.missingOutput)
        return;
    const auto changed = difference(*state_.missingOutput, missing);
    state_.missingOutput.assign(missing);
    for (const auto& id : changed) {
        engineLog_.notice((missing.contains(id) ? "output missing, muting: " : "output back: ") + id);
        pushSettings(id);
    }
}

Outcome AudioController::setSystemOutput(const OutputDevice& device)
{
    Outcome outcome;
    if (!platform_.audio.setDefaultOutput(device))
        outcome = failed(OutputRefused{device.name});
    poll();
    return outcome;
}

}  // namespace fadeloom
