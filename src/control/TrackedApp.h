// SPDX-License-Identifier: MIT
// What the controller keeps of an app that has played, until its last audio process has gone.
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

/// An attempt at a tap that failed; it is not repeated while all of this is as it was.
struct FailedTap {
    std::string key{};  // Of processes and output.
    OutputDeviceID device = 0;
    double rate = 0;  // Hertz.

    friend bool operator==(const FailedTap&, const FailedTap&) = default;
};

struct TrackedApp {
    // Asked for once.
    AppIcon icon{};
    std::vector<std::string> callIDs{};

    /// Null before the first tap. Shared with the renderers of the app's taps and outliving them, so that the next tap
    /// sounds the same.
    std::shared_ptr<TapParameters> parameters{};
    std::map<std::string, std::unique_ptr<AppTap>> taps{};  // By the output's unique id.
    std::map<std::string, FailedTap> failures{};  // By the output's unique id.
    bool isAudioConfirmed = false;  // Audio was seen to flow through a tap.

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
