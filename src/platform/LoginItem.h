// SPDX-License-Identifier: MIT
// Whether the program starts when the user logs in.
#pragma once

#include "platform/LoginItemError.h"

#include <expected>

namespace fadeloom {

/// Thread: main.
class LoginItem {
public:
    /// `requiresApproval`: registered, but the user must allow it in the system's settings.
    enum class Status { notRegistered, enabled, requiresApproval, notFound };

    virtual ~LoginItem() = default;

    /// The current state on the system, whoever set it.
    [[nodiscard]] virtual Status status() const = 0;
    /// Neither is an error if the state is already as requested.
    virtual std::expected<void, LoginItemError> registerItem() = 0;
    virtual std::expected<void, LoginItemError> unregisterItem() = 0;
};

}  // namespace fadeloom
