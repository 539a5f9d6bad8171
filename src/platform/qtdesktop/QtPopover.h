// SPDX-License-Identifier: MIT
// The panel as a frameless window beside the status icon, or as an ordinary one if there is no icon.
#pragma once

#include "platform/Popover.h"
#include "platform/qtdesktop/IconPlace.h"
#include "platform/qtdesktop/LayerPopover.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQuickView>
#include <QTimeLine>

#include <functional>
#include <memory>
#include <optional>

namespace fadeloom {

/// Closes when another window gets the focus, and on Escape. Its content determines its size. Thread: main.
class QtPopover final : public Popover {
public:
    /// A second click on the icon takes the focus first, and would reopen the panel that it is meant to close.
    static constexpr int clickTime = 250;  // Milliseconds.
    static constexpr int fadeTime = 110;

    /// `place`: what is known about the icon's position, queried each time it opens.
    /// `reducesMotion`: whether the desktop asks for reduced motion, which takes precedence.
    explicit QtPopover(
        std::function<IconPlace()> place, std::function<bool()> reducesMotion = [] { return false; });
    QtPopover(const QtPopover&) = delete;
    QtPopover& operator=(const QtPopover&) = delete;
    ~QtPopover() override;

    /// May return null, in which case the popover does not open.
    using MakeContent = std::function<std::unique_ptr<QQuickItem>()>;
    /// Sets the factory of the content, called when the popover opens for the first time. Its implicit size is the
    /// window's; its properties `availableHeight`, `hasRoundCorners` and `isTranslucent` are set according to the
    /// screen and the window.
    void setContent(MakeContent make) { makeContent_ = std::move(make); }
    [[nodiscard]] QQuickView& view();
    /// Turns it into a window with a frame and a title, which stays open until it is closed. It opens where it was
    /// `left`, else in the middle of the screen; `leaves` receives its position each time it closes.
    void turnIntoOrdinaryWindow(
        std::optional<QPoint> left = {}, std::function<void(QPoint)> leaves = [](QPoint) { });

    void show() override;
    void close() override;
    /// Also for a moment after it has lost the focus: the cause may be the click that is to close it.
    bool isShown() const override;
    /// It fades in; it closes immediately.
    void setAnimated(bool isAnimated) override { isAnimated_ = isAnimated; }
    void whenShown(std::function<void()> willShow) override { willShow_ = std::move(willShow); }
    void whenClosed(std::function<void()> didClose) override { didClose_ = std::move(didClose); }

private:
    [[nodiscard]] bool hasContent();
    void fitContent(int availableHeight);
    [[nodiscard]] int availableHeight() const;
    void showAsWindow();
    void fadeIn();
    void windowMoved();
    void updatePlacement();
    void activeChanged();
    [[nodiscard]] bool isSeen() const;
    void seenChanged();

    std::function<IconPlace()> place_;
    std::function<bool()> reducesMotion_;
    MakeContent makeContent_;  // Until it is first opened.
    std::function<void()> willShow_ = [] { };
    std::function<void()> didClose_ = [] { };
    bool isAnimated_ = true;
    bool isOrdinary_ = false;
    std::optional<QPoint> left_;  // Of the ordinary window's frame.
    std::function<void(QPoint)> leaves_ = [](QPoint) { };
    bool wasActive_ = false;
    bool isOpen_ = false;
    QElapsedTimer sinceFocusLoss_;
    QTimeLine fade_{fadeTime};
    std::unique_ptr<QQuickView> view_;
    std::unique_ptr<LayerPopover> layer_;  // If the desktop has a layer shell.
};

}  // namespace fadeloom
