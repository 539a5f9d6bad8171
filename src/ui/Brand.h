// SPDX-License-Identifier: MIT
// The three brand colours.
#pragma once

#include <QColor>

namespace fadeloom::Brand {

[[nodiscard]] inline const QColor& cyan()
{
    static const QColor colour = QColor::fromRgbF(0.25F, 0.85F, 0.96F);
    return colour;
}

[[nodiscard]] inline const QColor& violet()
{
    static const QColor colour = QColor::fromRgbF(0.65F, 0.30F, 0.94F);
    return colour;
}

[[nodiscard]] inline const QColor& pink()
{
    static const QColor colour = QColor::fromRgbF(0.96F, 0.36F, 0.62F);
    return colour;
}

}  // namespace fadeloom::Brand
