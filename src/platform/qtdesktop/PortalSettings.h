// SPDX-License-Identifier: MIT
// The desktop settings from its portal, and the appearance that follows from them.
#pragma once

#include "platform/DesktopAppearance.h"

#include <QMap>
#include <QStringList>
#include <QVariantMap>

namespace fadeloom {

/// The values by name, by namespace.
using PortalSettings = QMap<QString, QVariantMap>;

/// Those that affect the appearance.
[[nodiscard]] QStringList portalNameSpaces();

/// `isDark`: the default if the settings do not specify it.
[[nodiscard]] DesktopAppearance desktopAppearanceOf(const PortalSettings& settings, bool isDark);

}  // namespace fadeloom
