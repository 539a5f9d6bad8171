// SPDX-License-Identifier: MIT
// The panel in many states, for eyes to judge (DrawPictures) and for tests to hold (ReferencePicturesTest).
#pragma once

#include "settings/SettingsData.h"

#include <QImage>
#include <QString>

#include <functional>
#include <vector>

namespace fadeloom {

struct PictureScene {
    QString name;
    /// `scale`: pixels for each point. Null when there is no view.
    std::function<QImage(Theme theme, double scale)> draw;
};

/// Needs a QGuiApplication and `drawBySoftware`; texts are in the language that is installed.
[[nodiscard]] std::vector<PictureScene> pictureScenes();

}  // namespace fadeloom
