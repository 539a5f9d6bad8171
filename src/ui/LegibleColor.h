// SPDX-License-Identifier: MIT
// Colours that others can be read on, or that can be read on others.
#pragma once

#include <QColor>

namespace fadeloom {

/// How far two colours differ in brightness to the eye: from 1, not at all, to 21, black and white. Text needs 4.5.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `color`, made as much darker or lighter as it takes for text between it and `other`.
[[nodiscard]] QColor legibleBeside(const QColor& color, const QColor& other);

}  // namespace fadeloom
