// SPDX-License-Identifier: MIT
// Presets of the controller: applied, saved and deleted, always as a change of the settings.
#include "control/AudioController.h"
#include "control/UserPresets.h"
#include "platform/Text.h"

namespace fadeloom {

void AudioController::applyPreset(const EQPreset& preset, const std::string& bundleID)
{
    editSettings([&](SettingsData& settings) { fadeloom::applyPreset(settings, preset, bundleID); });
}

Outcome AudioController::saveUserPreset(const std::string& name, const std::string& bundleID)
{
    const auto trimmed = platform_.text.trimmed(name);
    if (trimmed.empty())
        return {};
    if (isBuiltInPresetName(trimmed, platform_.text))
        return failed(BuiltInPresetName{trimmed});
    editSettings([&](SettingsData& settings) {
        fadeloom::saveUserPreset(settings, trimmed, bundleID, platform_.text);
    });
    return {};
}

void AudioController::deleteUserPreset(const EQPreset& preset)
{
    editSettings([&](SettingsData& settings) { fadeloom::deleteUserPreset(settings, preset); });
}

}  // namespace fadeloom
