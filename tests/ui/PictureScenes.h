// SPDX-License-Identifier: MIT
// The panel in many states, for visual inspection (DrawPictures) and regression tests (ReferencePicturesTest).
#pragma once

#include "settings/SettingsData.h"

#include <QImage>
#include <QString>

#include <functional>
#include <vector>

namespace fadeloom {

struct PictureScene {
    QString name;
    /// `scale`: pixels per point. Null if there is no view.
    std::function<QImage(Theme theme, double scale)> draw;
};

/// Needs a QGuiApplication and `drawBySoftware`; texts are in the installed language.
[[nodiscard]] std::vector<PictureScene> pictureScenes();

}  // namespace fadeloom
