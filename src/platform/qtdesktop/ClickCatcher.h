// SPDX-License-Identifier: MIT
// A clear sheet over a whole screen, below the panel: a click beside the panel meets it, whatever lies there.
#pragma once

#include "platform/qtdesktop/LayerSurface.h"

#include <QScreen>

#include <functional>
#include <optional>

namespace fadeloom {

/// Covers bars as well. Thread: main.
class ClickCatcher {
public:
    /// `closed`: called when the screen goes.
    ClickCatcher(LayerShell& shell, QScreen& screen, std::function<void()> closed);
    ClickCatcher(const ClickCatcher&) = delete;
    ClickCatcher& operator=(const ClickCatcher&) = delete;
    ~ClickCatcher();

    /// Catches nothing in this part of its screen.
    void leaveFree(const QRect& part);
    [[nodiscard]] bool isAt(const wl_surface* surface) const { return surface == surface_; }

private:
    void show(QSize size);

    LayerShell& shell_;
    wl_surface* const surface_;
    wp_viewport* const viewport_;
    std::optional<LayerSurface> role_;  // Ends before its surface.
};

}  // namespace fadeloom
