// SPDX-License-Identifier: MIT
// The identifier of a desktop entry.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace fadeloom {

/// The desktop id of the entry in `file`, without its extension: its path relative to the one of `folders` that
/// contains it, with dashes; elsewhere its file name. nullopt if the name is not that of a desktop entry.
[[nodiscard]] std::optional<std::string> desktopID(const QString& file, const QStringList& folders);

}  // namespace fadeloom
