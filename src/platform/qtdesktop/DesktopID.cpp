// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/DesktopID.h"

#include <QDir>

namespace fadeloom {

std::optional<std::string> desktopID(const QString& file, const QStringList& folders)
{
    constexpr QLatin1String ending(".desktop");
    const auto name = file.section(QLatin1Char('/'), -1);
    if (!name.endsWith(ending) || name.size() == ending.size())
        return std::nullopt;
    auto id = name;
    for (const auto& folder : folders) {
        const auto inside = QDir::cleanPath(folder) + QLatin1Char('/');
        if (file.startsWith(inside))
            id = file.mid(inside.size()).replace(QLatin1Char('/'), QLatin1Char('-'));
    }
    return id.chopped(ending.size()).toStdString();
}

}  // namespace fadeloom
