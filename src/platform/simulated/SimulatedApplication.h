// SPDX-License-Identifier: MIT
// Our own windows in a simulated session: how they look, and how often they came to the front.
#pragma once

#include "platform/Application.h"

namespace fadeloom {

class SimulatedApplication final : public Application {
public:
    void setAppearance(Appearance appearance) override { appearance_ = appearance; }
    void activate() override { activationCount_ += 1; }

    [[nodiscard]] Appearance appearance() const { return appearance_; }
    [[nodiscard]] int activationCount() const { return activationCount_; }

private:
    Appearance appearance_ = Appearance::system;
    int activationCount_ = 0;
};

}  // namespace fadeloom
