// SPDX-License-Identifier: MIT
// The desktop's settings as its portal tells them, and what they mean for the look.
#pragma once

#include "platform/DesktopLook.h"

#include <QMap>
#include <QStringList>
#include <QVariantMap>

namespace fadeloom {

/// The values by name, by name space.
using PortalSettings = QMap<QString, QVariantMap>;

/// Those that the look depends on.
[[nodiscard]] QStringList portalNameSpaces();

/// `isDark`: what holds where the settings say nothing about it.
[[nodiscard]] DesktopLook lookOf(const PortalSettings& settings, bool isDark);

}  // namespace fadeloom
