// SPDX-License-Identifier: MIT
// The status icon of a Linux desktop.
#pragma once

#include "platform/StatusItem.h"
#include "platform/qtdesktop/IconPlace.h"
#include "platform/qtdesktop/StatusNotifierItem.h"
#include "platform/qtdesktop/TrayHost.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <optional>

namespace fadeloom {

/// Appears once the desktop can show it: as a StatusNotifierItem, or as an XEmbed window if that is the only way. Needs
/// a QApplication. Thread: main.
class QtTrayIcon final : public StatusItem {
public:
    /// `withoutHost` is called if nobody would show an icon; a host that appears later still shows it.
    QtTrayIcon(StatusNotifierItem::Picture picture, std::function<void()> withoutHost);
    QtTrayIcon(const QtTrayIcon&) = delete;
    QtTrayIcon& operator=(const QtTrayIcon&) = delete;

    void show(const std::string& name) override;
    void whenClicked(std::function<void()> clicked) override { clicked_ = std::move(clicked); }
    void whenMenuOpens(std::function<void()> willOpen) override { menuOpens_ = std::move(willOpen); }
    void setMenu(std::function<StatusMenu()> build) override { build_ = std::move(build); }
    void whenScrolled(std::function<void(int notches)> scrolled) override { scrolled_ = std::move(scrolled); }
    void whenMiddleClicked(std::function<void()> clicked) override { middleClicked_ = std::move(clicked); }
    void setDescription(const std::string& text) override;
    void setPicture(StatusNotifierItem::Picture picture);

    /// What is known about the icon's position on the screen.
    [[nodiscard]] IconPlace place() const;

private:
    void hostFound(TrayHost::Kind kind);
    void joinBus();
    void embed();
    /// The tooltip where that is a single text.
    [[nodiscard]] QString hint() const;
    void clickedInBar(const StatusNotifierItem::Click& click);
    void clickedAt(std::optional<QRect> place);
    void popUpMenu(QPoint place);
    void fillMenu();

    StatusNotifierItem::Picture picture_;
    std::function<void()> withoutHost_;
    std::function<void()> clicked_ = [] { };
    std::function<void()> middleClicked_ = [] { };
    std::function<void(int)> scrolled_ = [](int) { };
    std::function<void()> menuOpens_ = [] { };
    std::function<StatusMenu()> build_ = [] { return StatusMenu{}; };
    QString name_;
    QString description_;
    IconPlace lastClick_;
    QMenu menu_;
    std::unique_ptr<TrayHost> host_;
    std::unique_ptr<StatusNotifierItem> item_;
    std::unique_ptr<QSystemTrayIcon> embedded_;
};

}  // namespace fadeloom
