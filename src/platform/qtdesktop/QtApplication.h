// SPDX-License-Identifier: MIT
// The program's windows as a whole.
#pragma once

#include "platform/Application.h"

#include <QPointer>

#include <functional>
#include <utility>

class QMessageBox;

namespace fadeloom {

/// Needs a QApplication, which knows the program's version and icon. Thread: main.
class QtApplication final : public Application {
public:
    /// `changed` hears of each choice, so that what Qt does not draw follows it as well.
    explicit QtApplication(std::function<void(Appearance)> changed)
        : changed_(std::move(changed))
    {
    }
    QtApplication(const QtApplication&) = delete;
    QtApplication& operator=(const QtApplication&) = delete;
    ~QtApplication() override;

    void setAppearance(Appearance appearance) override;
    /// Wayland and most window managers let no program come to the front by itself: its windows ask when they open.
    void activate() override { }
    void showAboutPanel(const AboutCredits& credits) override;

private:
    std::function<void(Appearance)> changed_;
    QPointer<QMessageBox> about_;
};

}  // namespace fadeloom
