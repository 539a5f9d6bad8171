// SPDX-License-Identifier: MIT
// The program's windows as a whole.
#pragma once

#include "platform/Application.h"

namespace fadeloom {

/// Needs the application object, which Qt makes.
class AppKitApplication final : public Application {
public:
    void setAppearance(Appearance appearance) override;
    void activate() override;
    void showAboutPanel(const AboutCredits& credits) override;
};

}  // namespace fadeloom
