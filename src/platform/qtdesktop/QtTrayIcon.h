// SPDX-License-Identifier: MIT
// The status icon of a Linux desktop, or of any other that Qt knows.
#pragma once

#include "platform/StatusItem.h"
#include "platform/qtdesktop/TrayHost.h"

#include <QIcon>
#include <QMenu>
#include <QRect>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <optional>

namespace fadeloom {

/// Appears when the desktop can show it. Needs a QApplication. Thread: main.
class QtTrayIcon final : public StatusItem {
public:
    /// `withoutHost` is called when there is nobody who would show an icon; one that comes later shows it all the same.
    QtTrayIcon(const QIcon& icon, std::function<void()> withoutHost);
    QtTrayIcon(const QtTrayIcon&) = delete;
    QtTrayIcon& operator=(const QtTrayIcon&) = delete;

    void show(const std::string& name) override;
    void whenClicked(std::function<void()> clicked) override { clicked_ = std::move(clicked); }
    void whenMenuOpens(std::function<void()> willOpen) override { menuOpens_ = std::move(willOpen); }
    void setMenu(std::function<StatusMenu()> build) override { build_ = std::move(build); }

    /// Where the icon is on the screen, or was clicked last; null when nobody knows.
    [[nodiscard]] QRect place() const;

private:
    void hostFound(TrayHost::Kind kind);
    void activated(QSystemTrayIcon::ActivationReason reason);
    void fillMenu();

    const QIcon icon_;
    std::function<void()> withoutHost_;
    std::function<void()> clicked_ = [] { };
    std::function<void()> menuOpens_ = [] { };
    std::function<StatusMenu()> build_ = [] { return StatusMenu{}; };
    QString name_;
    QRect lastClick_;
    QMenu menu_;
    std::optional<TrayHost> host_;
    std::unique_ptr<QSystemTrayIcon> tray_;
};

}  // namespace fadeloom
