// SPDX-License-Identifier: MIT
// Properties of all windows of the program.
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
    /// `changed` is called for each choice, for everything that Qt does not draw.
    explicit QtApplication(std::function<void(Appearance)> changed)
        : changed_(std::move(changed))
    {
    }
    QtApplication(const QtApplication&) = delete;
    QtApplication& operator=(const QtApplication&) = delete;
    ~QtApplication() override;

    void setAppearance(Appearance appearance) override;
    /// Wayland and most window managers prevent focus stealing: windows request activation when they open.
    void activate() override { }
    void showAboutPanel(const AboutCredits& credits) override;

private:
    std::function<void(Appearance)> changed_;
    QPointer<QMessageBox> about_;
};

}  // namespace fadeloom
