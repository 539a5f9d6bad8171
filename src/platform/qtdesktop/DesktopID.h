// SPDX-License-Identifier: MIT
// The identifier of a desktop entry.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace fadeloom {

/// The desktop id of the entry in `file`, without its ending: the way to it from the one of `folders` that it is in,
/// with dashes; elsewhere its name. Absent when it is no desktop entry by its name.
[[nodiscard]] std::optional<std::string> desktopID(const QString& file, const QStringList& folders);

}  // namespace fadeloom
