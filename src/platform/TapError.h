// SPDX-License-Identifier: MIT
// Why the sound of some processes cannot be captured.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

struct TapError {
    std::string step{};  // What was being done, in English; a key of the translations.
    std::int32_t status = 0;  // The system's own code, where it gives codes.
    std::string reason{};  // In English, where the system gives words instead.

    /// A sentence for the user, in English, without a full stop.
    [[nodiscard]] std::string description() const
    {
        return step + " failed"
            + (reason.empty() ? " (OSStatus " + std::to_string(status) + ")" : ": " + reason);
    }

    friend bool operator==(const TapError&, const TapError&) = default;
};

}  // namespace fadeloom
