// SPDX-License-Identifier: MIT
// Colours with sufficient contrast.
#pragma once

#include <QColor>

namespace fadeloom {

/// The contrast ratio of two colours: from 1, equal, to 21, black and white. Text needs 4.5.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `color`, darkened or lightened as far as text in it on `other`, or the reverse, requires.
[[nodiscard]] QColor legibleBeside(const QColor& color, const QColor& other);

}  // namespace fadeloom
