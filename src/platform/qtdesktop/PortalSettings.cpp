// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/PortalSettings.h"

#include <QDBusArgument>

#include <algorithm>
#include <array>
#include <cmath>

namespace fadeloom {
namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString kdeGeneral = QStringLiteral("org.kde.kdeglobals.General");
const QString kdeMotion = QStringLiteral("org.kde.kdeglobals.KDE");

constexpr double usualPoints = 10;  // Plasma's default font size.
constexpr double smallestText = 0.8;
constexpr double largestText = 2;

bool isDarkBy(const QVariant& scheme, bool otherwise)
{
    constexpr unsigned dark = 1;
    constexpr unsigned light = 2;
    const auto value = scheme.toUInt();
    return value == dark || (value != light && otherwise);
}

bool reducesMotion(const PortalSettings& settings)
{
    const auto isAnimated = settings[gnome].value(QStringLiteral("enable-animations"));
    const auto factor = settings[kdeMotion].value(QStringLiteral("AnimationDurationFactor"));
    return settings[appearance].value(QStringLiteral("reduced-motion")).toUInt() == 1
        || (isAnimated.isValid() && !isAnimated.toBool()) || (factor.isValid() && factor.toDouble() == 0);
}

double textScale(const PortalSettings& settings)
{
    bool isNumber = false;
    // "Noto Sans,12,-1,5,50,0,0,0,0,0"
    const auto points = settings[kdeGeneral]
                            .value(QStringLiteral("font"))
                            .toString()
                            .section(QLatin1Char(','), 1, 1)
                            .toDouble(&isNumber);
    double scale = isNumber && points > 0 ? points / usualPoints : 1;
    if (const auto factor = settings[gnome].value(QStringLiteral("text-scaling-factor")); factor.isValid())
        scale = factor.toDouble();
    return std::isfinite(scale) ? std::clamp(scale, smallestText, largestText) : 1;
}

/// Three components from 0 to 1; values outside mean that there is none.
std::optional<std::uint32_t> accent(const QVariant& value)
{
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return std::nullopt;
    std::array<double, 3> parts{};
    argument.beginStructure();
    for (auto& part : parts)
        argument >> part;
    argument.endStructure();
    std::uint32_t color = 0;
    for (const double part : parts) {
        if (!(part >= 0 && part <= 1))
            return std::nullopt;
        color = color << 8U | static_cast<std::uint32_t>(std::lround(part * 255));
    }
    return color;
}

}  // namespace

QStringList portalNameSpaces()
{
    return {appearance, gnome, kdeGeneral, kdeMotion};
}

DesktopAppearance desktopAppearanceOf(const PortalSettings& settings, bool isDark)
{
    const auto& asked = settings[appearance];
    return {
        .isDark = isDarkBy(asked.value(QStringLiteral("color-scheme")), isDark),
        .reducesMotion = reducesMotion(settings),
        .hasHighContrast = asked.value(QStringLiteral("contrast")).toUInt() == 1,
        .textScale = textScale(settings),
        .accent = accent(asked.value(QStringLiteral("accent-color"))),
    };
}

}  // namespace fadeloom
