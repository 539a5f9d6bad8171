// SPDX-License-Identifier: MIT
// The user's permission to capture other applications' audio.
//
// A system that requires no permission counts as granted: real obstacles then appear as tap failures.
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

    /// The page of the system settings where the user can change the permission; macOS only.
    static constexpr std::string_view settingsURL =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_AudioCapture";

    AudioPermission(CapturePermission& capturePermission, MainLoop& mainLoop)
        : capturePermission_(capturePermission)
        , mainLoop_(mainLoop)
    {
    }

    [[nodiscard]] State current() const;
    [[nodiscard]] bool canRequest() const { return capturePermission_.canRequest(); }
    /// Prompts the user if undecided; `completion` gets the result in a later iteration of the main loop. Only if
    /// `canRequest`.
    void requestAccess(std::function<void(bool isGranted)> completion) const;

    /// The state's name for the log.
    [[nodiscard]] static std::string_view name(State state);

private:
    CapturePermission& capturePermission_;
    MainLoop& mainLoop_;
};

}  // namespace fadeloom
