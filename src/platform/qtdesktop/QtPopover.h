// SPDX-License-Identifier: MIT
// The panel beside the status icon as a window without a frame, or an ordinary one where no icon is.
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

/// Closes when the user turns to another window, and by Escape. Its content gives it its size. Thread: main.
class QtPopover final : public Popover {
public:
    /// A second click on the icon takes the focus away first, and so closes the panel that it is to close.
    static constexpr int clickTime = 250;  // Milliseconds.
    static constexpr int fadeTime = 110;

    /// `place`: what is known of the icon's place, asked for at each opening.
    /// `reducesMotion`: whether the desktop wants nothing to move, whatever was set.
    explicit QtPopover(
        std::function<IconPlace()> place, std::function<bool()> reducesMotion = [] { return false; });
    QtPopover(const QtPopover&) = delete;
    QtPopover& operator=(const QtPopover&) = delete;
    ~QtPopover() override;

    /// May give null, after which the popover does not open.
    using MakeContent = std::function<std::unique_ptr<QQuickItem>()>;
    /// What is shown, made when the popover opens for the first time. Its implicit size is the window's, its properties `availableHeight`,
    /// `hasRoundCorners` and `isTranslucent` are told what the screen and the window allow.
    void setContent(MakeContent make) { makeContent_ = std::move(make); }
    [[nodiscard]] QQuickView& view();
    /// From now on it has a frame and a title, and stays open until it is closed. It opens where it was `left`, else in
    /// the middle of the screen; `leaves` is told each time where it is as it closes.
    void becomeOrdinaryWindow(
        std::optional<QPoint> left = {}, std::function<void(QPoint)> leaves = [](QPoint) { });

    void show() override;
    void close() override;
    /// Also for a moment after it has lost the focus: what took it may be the click that is to close it.
    bool isShown() const override;
    /// It fades in; it goes at once.
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
    void putInPlace();
    void activeChanged();
    [[nodiscard]] bool isSeen() const;
    void seenChanged();

    std::function<IconPlace()> place_;
    std::function<bool()> reducesMotion_;
    MakeContent makeContent_;  // Until the first opening.
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
    std::unique_ptr<LayerPopover> layer_;  // Where the desktop has such.
};

}  // namespace fadeloom
