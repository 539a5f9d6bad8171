// SPDX-License-Identifier: MIT
// Whether the program starts when the user logs in.
#pragma once

#include "platform/LoginItemError.h"

#include <expected>

namespace fadeloom {

/// Thread: main.
class LoginItem {
public:
    /// `requiresApproval`: registered, but the user has to allow it in the system's settings.
    enum class Status { notRegistered, enabled, requiresApproval, notFound };

    virtual ~LoginItem() = default;

    /// As the system has it now, whoever made it so.
    [[nodiscard]] virtual Status status() const = 0;
    /// Both are no error when it is so already.
    virtual std::expected<void, LoginItemError> registerItem() = 0;
    virtual std::expected<void, LoginItemError> unregisterItem() = 0;
};

}  // namespace fadeloom
