// SPDX-License-Identifier: MIT
// The D-Bus names of the status notifier watcher.
#pragma once

#include <QString>

namespace fadeloom {

// Also the name of its interface.
inline const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
inline const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

}  // namespace fadeloom
