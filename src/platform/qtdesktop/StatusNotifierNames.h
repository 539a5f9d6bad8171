// SPDX-License-Identifier: MIT
// What the list of status icons is called on the message bus.
#pragma once

#include <QString>

namespace fadeloom {

inline const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");  // And of its interface.
inline const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

}  // namespace fadeloom
