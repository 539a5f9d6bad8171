// SPDX-License-Identifier: MIT
#include "ui/VolumeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace fadeloom {
namespace {

int wholePercent(double factor)
{
    return static_cast<int>(std::lround(factor * 100));
}

}  // namespace

float snappedVolume(double value, float limit)
{
    constexpr float reach = 0.04F;
    const auto wanted = static_cast<float>(value);
    const float snapped = std::abs(wanted - 1) <= reach ? 1.0F : wanted;
    return std::clamp(snapped, 0.0F, limit);
}

QString percentText(double factor)
{
    return QStringLiteral("%1%").arg(wholePercent(factor));
}

QString spokenPercent(double factor)
{
    const int percent = wholePercent(factor);
    return QCoreApplication::translate("VolumeText", "%n percent", nullptr, percent);
}

double percentOf(float factor)
{
    constexpr double places = 1e4;  // Hides the rounding error of a float: 85, and not 85.0000024.
    return std::round(static_cast<double>(factor) * 100 * places) / places;
}

float steppedDuckLevel(double value)
{
    constexpr double steps = 20;  // For a factor of 1.
    return static_cast<float>(std::round(std::clamp(value, 0.0, 0.5) * steps) / steps);
}

}  // namespace fadeloom
