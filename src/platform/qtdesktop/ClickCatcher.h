// SPDX-License-Identifier: MIT
// A transparent surface that covers a screen below the panel: it receives clicks anywhere outside the panel.
#pragma once

#include "platform/qtdesktop/LayerSurface.h"

#include <QScreen>

#include <functional>
#include <optional>

namespace fadeloom {

/// Covers bars as well. Thread: main.
class ClickCatcher {
public:
    /// `closed`: called when the screen is removed.
    ClickCatcher(LayerShell& shell, QScreen& screen, std::function<void()> closed);
    ClickCatcher(const ClickCatcher&) = delete;
    ClickCatcher& operator=(const ClickCatcher&) = delete;
    ~ClickCatcher();

    /// Excludes this part of its screen.
    void exclude(const QRect& part);
    [[nodiscard]] bool isAt(const wl_surface* surface) const { return surface == surface_; }

private:
    void show(QSize size);

    LayerShell& shell_;
    wl_surface* const surface_;
    wp_viewport* const viewport_;
    std::optional<LayerSurface> role_;  // Destroyed before its surface.
};

}  // namespace fadeloom
