// SPDX-License-Identifier: MIT
// The simulated user's permission: the privacy database's status, and prompts that wait for a reply.
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

    /// The status returned by `preflight`; nullopt for a system that requires no permission.
    void set(std::optional<int> preflight) { preflight_ = preflight; }
    void setCanRequest(bool canRequest) { canRequest_ = canRequest; }
    /// The number of open prompts.
    [[nodiscard]] std::size_t promptCount() const { return prompts_.size(); }
    /// Replies to all prompts. Thread: any, one at a time.
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
