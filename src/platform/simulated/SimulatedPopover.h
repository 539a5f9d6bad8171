// SPDX-License-Identifier: MIT
// A popover without a window.
#pragma once

#include "platform/Popover.h"

#include <utility>

namespace fadeloom {

class SimulatedPopover final : public Popover {
public:
    void show() override
    {
        willShow_();
        isShown_ = true;
    }
    void close() override
    {
        if (std::exchange(isShown_, false))
            didClose_();
    }
    bool isShown() const override { return isShown_; }
    void setAnimated(bool isAnimated) override { isAnimated_ = isAnimated; }
    void whenShown(std::function<void()> willShow) override { willShow_ = std::move(willShow); }
    void whenClosed(std::function<void()> didClose) override { didClose_ = std::move(didClose); }

    [[nodiscard]] bool isAnimated() const { return isAnimated_; }

private:
    bool isShown_ = false;
    bool isAnimated_ = true;
    std::function<void()> willShow_ = [] { };
    std::function<void()> didClose_ = [] { };
};

}  // namespace fadeloom
