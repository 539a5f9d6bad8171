// SPDX-License-Identifier: MIT
// The user's consent in a simulated world: what the privacy database says, and a prompt that waits for its answer.
#pragma once

#include "platform/CapturePermission.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace fadeloom {

class SimulatedCapturePermission final : public CapturePermission {
public:
    static constexpr int granted = 0;
    static constexpr int denied = 1;
    static constexpr int undecided = 2;

    std::optional<int> preflight() const override { return preflight_; }
    bool canRequest() const override { return canRequest_; }
    void request(std::function<void(bool)> answered) override { prompts_.push_back(std::move(answered)); }

    /// What the next preflight says; absent for a system without the question.
    void set(std::optional<int> preflight) { preflight_ = preflight; }
    void setCanRequest(bool canRequest) { canRequest_ = canRequest; }
    /// How many prompts wait for the user.
    [[nodiscard]] std::size_t promptCount() const { return prompts_.size(); }
    /// The user answers every prompt. Thread: any, one at a time.
    void answer(bool isGranted)
    {
        preflight_ = isGranted ? granted : denied;
        for (const auto& answered : std::exchange(prompts_, {}))
            answered(isGranted);
    }

private:
    std::optional<int> preflight_ = granted;
    bool canRequest_ = true;
    std::vector<std::function<void(bool)>> prompts_;
};

}  // namespace fadeloom
