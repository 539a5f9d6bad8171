// SPDX-License-Identifier: MIT
// A picture of the panel without a screen.
#pragma once

#include <QImage>

#include <functional>

class QQuickItem;

namespace fadeloom {

/// The view as it is after it has settled, `scale` pixels for each point, its corners transparent. The view keeps its
/// parent afterwards: none. `interact` gets the root of the window before the picture is taken. Needs `drawBySoftware`.
[[nodiscard]] QImage pictureOf(
    QQuickItem& view, const std::function<void(QQuickItem& root)>& interact = {}, double scale = 2);

}  // namespace fadeloom
