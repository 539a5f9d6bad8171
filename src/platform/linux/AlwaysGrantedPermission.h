// SPDX-License-Identifier: MIT
// The consent to capture on a system that does not ask for one.
#pragma once

#include "platform/CapturePermission.h"

namespace fadeloom {

class AlwaysGrantedPermission final : public CapturePermission {
public:
    /// Absent: there is no privacy database to ask.
    std::optional<int> preflight() const override { return std::nullopt; }
    bool canRequest() const override { return false; }
    /// Answers at once, on the caller's thread.
    void request(std::function<void(bool)> answered) override { answered(true); }
};

}  // namespace fadeloom
