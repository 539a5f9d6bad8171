// SPDX-License-Identifier: MIT
// The capture permission on a system that does not require one.
#pragma once

#include "platform/CapturePermission.h"

namespace fadeloom {

class AlwaysGrantedPermission final : public CapturePermission {
public:
    /// nullopt: there is no privacy database.
    std::optional<int> preflight() const override { return std::nullopt; }
    bool canRequest() const override { return false; }
    /// Replies immediately, on the caller's thread.
    void request(std::function<void(bool)> answered) override { answered(true); }
};

}  // namespace fadeloom
