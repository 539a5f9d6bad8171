// SPDX-License-Identifier: MIT
// Instances on macOS are the system's business.
#pragma once

#include "app/EarlyEnd.h"

#include <functional>
#include <optional>

namespace fadeloom {

/// The system itself opens a bundle only once; who starts the executable inside of it gets one more.
class HomeInstance {
public:
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
    };

    [[nodiscard]] std::optional<EarlyEnd> claim(bool /*wantsPanel*/) { return std::nullopt; }
    void serve(const Actions& /*actions*/) { }
    void beginEnding() { }
};

}  // namespace fadeloom
