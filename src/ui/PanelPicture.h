// SPDX-License-Identifier: MIT
// Renders the panel to an image, without a screen.
#pragma once

#include <QImage>

#include <functional>

class QQuickItem;

namespace fadeloom {

/// The view after its animations have finished, at `scale` pixels per point, with transparent corners. The view has no
/// parent afterwards. `interact` is called with the window's root item before rendering. Needs `drawBySoftware`.
[[nodiscard]] QImage pictureOf(
    QQuickItem& view, const std::function<void(QQuickItem& root)>& interact = {}, double scale = 2);

}  // namespace fadeloom
