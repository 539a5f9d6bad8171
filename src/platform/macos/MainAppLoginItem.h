// SPDX-License-Identifier: MIT
// The program itself as a login item.
#pragma once

#include "platform/LoginItem.h"

namespace fadeloom {

class MainAppLoginItem final : public LoginItem {
public:
    Status status() const override;
    std::expected<void, LoginItemError> registerItem() override;
    std::expected<void, LoginItemError> unregisterItem() override;
};

}  // namespace fadeloom
