// SPDX-License-Identifier: MIT
#include "ui/LegibleColor.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {
namespace {

constexpr double enoughForText = 4.5;
constexpr float step = 0.01F;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double brightness(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, brighter] = std::minmax({brightness(one), brightness(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

QColor legibleBeside(const QColor& color, const QColor& other)
{
    // The direction with more contrast.
    const bool goesUp = contrast(other, Qt::white) > contrast(other, Qt::black);
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    color.getHslF(&hue, &saturation, &lightness);
    auto result = color;
    while (contrast(result, other) < enoughForText && (goesUp ? lightness < 1 : lightness > 0)) {
        lightness = std::clamp(lightness + (goesUp ? step : -step), 0.0F, 1.0F);
        result = QColor::fromHslF(std::max(hue, 0.0F), saturation, lightness);
    }
    return result;
}

}  // namespace fadeloom
