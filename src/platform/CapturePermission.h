// SPDX-License-Identifier: MIT
// The user's permission to capture other applications' audio.
#pragma once

#include <functional>
#include <optional>

namespace fadeloom {

class CapturePermission {
public:
    virtual ~CapturePermission() = default;

    /// The privacy database's status: 0 granted, 1 denied, other values undecided. nullopt if the system requires no
    /// permission. Thread: main.
    [[nodiscard]] virtual std::optional<int> preflight() const = 0;
    /// Whether the system can prompt the user.
    [[nodiscard]] virtual bool canRequest() const = 0;
    /// Prompts the user if undecided. `answered` is called on any thread. Only if `canRequest`.
    virtual void request(std::function<void(bool isGranted)> answered) = 0;
};

}  // namespace fadeloom
