// SPDX-License-Identifier: MIT
#include "control/OutputChoice.h"

#include <algorithm>
#include <iterator>

namespace fadeloom {

std::optional<std::string> chosenOutputUID(const SettingsData& settings, const std::string& bundleID)
{
    const auto app = settings.apps.find(bundleID);
    return app == settings.apps.end() ? std::nullopt : app->second.outputUID;
}

const OutputDevice* findDevice(std::span<const OutputDevice> devices, std::string_view uid)
{
    const auto device = std::ranges::find(devices, uid, &OutputDevice::uid);
    return device == devices.end() ? nullptr : &*device;
}

bool isOutputMissing(
    const SettingsData& settings, std::span<const OutputDevice> devices, const std::string& bundleID)
{
    const auto chosen = chosenOutputUID(settings, bundleID);
    return chosen && findDevice(devices, *chosen) == nullptr;
}

std::vector<OutputDevice> outputsOf(const SettingsData& settings, std::span<const OutputDevice> devices,
    const std::optional<std::string>& defaultUID, const std::string& bundleID,
    std::span<const std::string> ownUIDs)
{
    std::vector<OutputDevice> outputs;
    const auto add = [&](std::string_view uid) {
        if (const auto* const device = findDevice(devices, uid))
            outputs.push_back(*device);
    };
    const auto chosen = chosenOutputUID(settings, bundleID);
    if (chosen)
        add(*chosen);
    if (!chosen) {
        for (const auto& uid : ownUIDs)
            add(uid);
    }
    if (outputs.empty() && defaultUID)
        add(*defaultUID);
    return outputs;
}

std::set<std::string> difference(const std::set<std::string>& left, const std::set<std::string>& right)
{
    std::set<std::string> result;
    std::ranges::set_symmetric_difference(left, right, std::inserter(result, result.end()));
    return result;
}

}  // namespace fadeloom
