// SPDX-License-Identifier: MIT
// The controller's record of an app that has played, kept until its last audio process is gone.
#pragma once

#include "engine/AppTap.h"
#include "engine/TapParameters.h"
#include "platform/OutputDevice.h"
#include "platform/Workspace.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// A failed attempt at a tap; it is not retried while all of this is unchanged.
struct FailedTap {
    std::string key{};  // Of processes and output.
    OutputDeviceID device = 0;
    double rate = 0;  // Hertz.

    friend bool operator==(const FailedTap&, const FailedTap&) = default;
};

struct TrackedApp {
    // Queried once.
    AppIcon icon{};
    std::vector<std::string> callIDs{};

    /// Null before the first tap. Shared with the renderers of the app's taps, which it outlives, so that the next tap
    /// sounds the same.
    std::shared_ptr<TapParameters> parameters{};
    std::map<std::string, std::unique_ptr<AppTap>> taps{};  // By the output's unique id.
    std::map<std::string, FailedTap> failures{};  // By the output's unique id.
    bool isAudioConfirmed = false;  // Captured audio has been confirmed for a tap.

    /// The tap on the first of its outputs, or null.
    [[nodiscard]] const AppTap* firstTap() const
    {
        return taps.empty() ? nullptr : taps.begin()->second.get();
    }
    [[nodiscard]] bool isRefused(const std::string& outputUID, const FailedTap& attempt) const
    {
        const auto failure = failures.find(outputUID);
        return failure != failures.end() && failure->second == attempt;
    }
};

}  // namespace fadeloom
