// SPDX-License-Identifier: MIT
// Whether the user lets us capture what other applications play.
//
// A system that has no such question counts as one that allows it: a real obstacle then shows as the failure of a tap.
#pragma once

#include "platform/CapturePermission.h"
#include "platform/MainLoop.h"

#include <functional>
#include <string_view>

namespace fadeloom {

/// Thread: main.
class AudioPermission {
public:
    enum class State { granted, denied, notDetermined };

    /// The page of the system settings on which the user can change the answer; macOS only.
    static constexpr std::string_view settingsURL =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_AudioCapture";

    AudioPermission(CapturePermission& capturePermission, MainLoop& mainLoop)
        : capturePermission_(capturePermission)
        , mainLoop_(mainLoop)
    {
    }

    [[nodiscard]] State current() const;
    [[nodiscard]] bool canRequest() const { return capturePermission_.canRequest(); }
    /// Asks the user when undecided; `completion` gets the answer in a later turn of the main loop. Only when
    /// `canRequest`.
    void requestAccess(std::function<void(bool isGranted)> completion) const;

    /// The state's name as the log spells it.
    [[nodiscard]] static std::string_view name(State state);

private:
    CapturePermission& capturePermission_;
    MainLoop& mainLoop_;
};

}  // namespace fadeloom
