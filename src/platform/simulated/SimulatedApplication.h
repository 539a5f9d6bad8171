// SPDX-License-Identifier: MIT
// Our own windows in a simulated session: appearance, activations, the contents of the About panel.
#pragma once

#include "platform/Application.h"

#include <optional>

namespace fadeloom {

class SimulatedApplication final : public Application {
public:
    void setAppearance(Appearance appearance) override { appearance_ = appearance; }
    void activate() override { activationCount_ += 1; }
    void showAboutPanel(const AboutCredits& credits) override { aboutPanel_ = credits; }

    [[nodiscard]] Appearance appearance() const { return appearance_; }
    [[nodiscard]] int activationCount() const { return activationCount_; }
    /// Set once the About panel has been opened.
    [[nodiscard]] const std::optional<AboutCredits>& aboutPanel() const { return aboutPanel_; }

private:
    Appearance appearance_ = Appearance::system;
    int activationCount_ = 0;
    std::optional<AboutCredits> aboutPanel_;
};

}  // namespace fadeloom
