// SPDX-License-Identifier: MIT
// The panel on a Wayland desktop with the layer shell: placed beside the icon, above all windows, with outside clicks
// captured.
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

/// Rendering, keyboard, pointer, clipboard and accessibility of the window remain Qt's. While one of the program's
/// dialogs is open, the panel is behind it and receives neither clicks nor keys. Thread: main.
class LayerPopover final : public QObject {
public:
    /// Call before the window is created: lets us assign its shell role.
    static void prepare(QWindow& window);

    /// `dismissed`: the user has clicked elsewhere, or the screen was removed.
    LayerPopover(std::unique_ptr<LayerShell> shell, QWindow& window, std::function<void()> dismissed);
    LayerPopover(const LayerPopover&) = delete;
    LayerPopover& operator=(const LayerPopover&) = delete;
    ~LayerPopover() override;

    /// Shows the window. `fit` receives the height available on the screen, and sizes the window.
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
    void updatePlacement();
    void exclude();
    void noteDialog(QWindow& dialog, bool isOpen);

    std::unique_ptr<LayerShell> shell_;
    QWindow& window_;
    std::function<void()> dismissed_;
    std::optional<QRect> icon_;  // Its last known position.
    PopoverPlacement placement_;
    QSize free_;  // Of the screen, without bars.
    std::list<ClickCatcher> catchers_;
    std::optional<LayerSurface> role_;
    QList<QPointer<QWindow>> dialogs_;
};

}  // namespace fadeloom
