// SPDX-License-Identifier: MIT
// Scrolling over the status icon, and its middle click: changes one app's volume without opening the panel.
#pragma once

#include "base/Subscription.h"
#include "settings/SettingsData.h"
#include "shell/Translate.h"

#include <map>
#include <optional>
#include <string>

namespace fadeloom {

class AudioController;
class StatusItem;

/// Of the playing apps it is the one whose settings were changed last, else the loudest since levels were last read.
/// Thread: main.
class IconVolume {
public:
    static constexpr float step = 0.05F;  // Of full volume, per notch of the wheel.

    /// All arguments must outlive this.
    IconVolume(AudioController& controller, StatusItem& icon, Translate translate);
    IconVolume(const IconVolume&) = delete;
    IconVolume& operator=(const IconVolume&) = delete;

private:
    [[nodiscard]] bool isPlaying(const std::string& bundleID) const;
    [[nodiscard]] std::optional<std::string> chosenApp() const;
    void scroll(int notches);
    void toggleMuted();
    void settingsChanged();
    void describe();

    AudioController& controller_;
    StatusItem& icon_;
    const Translate translate_;
    std::map<std::string, AppAudioSettings> known_;  // Before the last change.
    std::string changedLast_;
    Subscription settings_;
    Subscription apps_;
};

}  // namespace fadeloom
