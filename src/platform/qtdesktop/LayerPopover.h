// SPDX-License-Identifier: MIT
// The panel on a Wayland desktop that lets programs place a window: beside the icon, above everything, with a click
// anywhere else caught.
#pragma once

#include "platform/qtdesktop/ClickCatcher.h"
#include "platform/qtdesktop/IconPlace.h"
#include "platform/qtdesktop/LayerShell.h"
#include "platform/qtdesktop/LayerSurface.h"
#include "platform/qtdesktop/PopoverPlacement.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace fadeloom {

/// Drawing, keyboard, pointer, clipboard and accessibility of the window stay Qt's. While a dialog of the program is
/// open, the panel is behind it and keeps neither clicks nor keys. Thread: main.
class LayerPopover final : public QObject {
public:
    /// Before the window is made: leaves its place to us.
    static void prepare(QWindow& window);

    /// `dismissed`: the user has clicked elsewhere, or the screen has gone.
    LayerPopover(std::unique_ptr<LayerShell> shell, QWindow& window, std::function<void()> dismissed);
    LayerPopover(const LayerPopover&) = delete;
    LayerPopover& operator=(const LayerPopover&) = delete;
    ~LayerPopover() override;

    /// Shows the window. `fit` is told the height that the screen has for it, and gives the window its size.
    void open(const IconPlace& icon, const std::function<void(int availableHeight)>& fit);
    void close();
    [[nodiscard]] bool isOpen() const { return role_.has_value(); }
    [[nodiscard]] bool isBehindDialog() const { return !dialogs_.isEmpty(); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void makeCatchers();
    void waitForPointer();
    void released(const wl_surface* surface);
    void dismissLater();
    [[nodiscard]] std::optional<QRect> findIcon(const IconPlace& told) const;
    [[nodiscard]] LayerSurface::Place place() const;
    [[nodiscard]] QRect screen() const;
    void putInPlace();
    void leaveFree();
    void noteDialog(QWindow& dialog, bool isOpen);

    std::unique_ptr<LayerShell> shell_;
    QWindow& window_;
    std::function<void()> dismissed_;
    std::optional<QRect> icon_;  // Where it was found last.
    PopoverPlacement placement_;
    QSize free_;  // Of the screen, without what bars take.
    std::list<ClickCatcher> catchers_;
    std::optional<LayerSurface> role_;
    QList<QPointer<QWindow>> dialogs_;
};

}  // namespace fadeloom
