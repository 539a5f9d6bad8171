// SPDX-License-Identifier: MIT
// Why an app's sound cannot be captured.
#pragma once

#include "platform/AudioObject.h"

#include <string>

namespace fadeloom {

struct TapError {
    std::string step{};  // What was being done, in English; a key of the translations.
    AudioStatus status = kAudioHardwareNoError;

    /// A sentence for the user, in English.
    [[nodiscard]] std::string description() const
    {
        return step + " failed (OSStatus " + std::to_string(status) + ")";
    }

    friend bool operator==(const TapError&, const TapError&) = default;
};

}  // namespace fadeloom
