// SPDX-License-Identifier: MIT
// Properties of all windows of the program.
#pragma once

#include "platform/Application.h"

namespace fadeloom {

/// Needs the application object, which Qt creates.
class AppKitApplication final : public Application {
public:
    void setAppearance(Appearance appearance) override;
    void activate() override;
    void showAboutPanel(const AboutCredits& credits) override;
};

}  // namespace fadeloom
