// SPDX-License-Identifier: MIT
// The user's consent to capture what other applications play.
#pragma once

#include <functional>
#include <optional>

namespace fadeloom {

class CapturePermission {
public:
    virtual ~CapturePermission() = default;

    /// The privacy database's answer: 0 granted, 1 denied, other values undecided. Absent where the system has no
    /// such question. Thread: main.
    [[nodiscard]] virtual std::optional<int> preflight() const = 0;
    /// Whether the system can be asked to prompt the user.
    [[nodiscard]] virtual bool canRequest() const = 0;
    /// Prompts the user when undecided. `answered` is called on any thread. Only when `canRequest`.
    virtual void request(std::function<void(bool isGranted)> answered) = 0;
};

}  // namespace fadeloom
