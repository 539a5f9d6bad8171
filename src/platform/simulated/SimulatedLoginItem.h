// SPDX-License-Identifier: MIT
// The login items of a simulated session.
#pragma once

#include "platform/LoginItem.h"

#include <optional>
#include <utility>

namespace fadeloom {

class SimulatedLoginItem final : public LoginItem {
public:
    Status status() const override { return status_; }
    std::expected<void, LoginItemError> registerItem() override { return change(Status::enabled); }
    std::expected<void, LoginItemError> unregisterItem() override { return change(Status::notRegistered); }

    /// The user changes it in the system's settings.
    void set(Status status) { status_ = status; }
    /// All changes fail with this reason, until allowed again.
    void refuse(std::string reason) { refusal_ = std::move(reason); }
    void allow() { refusal_.reset(); }
    /// The status after registering: the user must approve.
    void askForApproval() { registered_ = Status::requiresApproval; }
    /// The number of requested changes.
    [[nodiscard]] int changeCount() const { return changeCount_; }

private:
    std::expected<void, LoginItemError> change(Status wanted)
    {
        changeCount_ += 1;
        if (refusal_)
            return std::unexpected(SystemMessage{*refusal_});
        status_ = wanted == Status::enabled ? registered_ : wanted;
        return {};
    }

    Status status_ = Status::notRegistered;
    Status registered_ = Status::enabled;
    std::optional<std::string> refusal_;
    int changeCount_ = 0;
};

}  // namespace fadeloom
