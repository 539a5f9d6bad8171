// SPDX-License-Identifier: MIT
#include "ui/ShortPath.h"

#include <QDir>

namespace fadeloom {

QString shortPath(const std::filesystem::path& path)
{
    const auto whole = QString::fromStdString(path.string());
    const auto home = QDir::homePath();
    if (whole == home)
        return QStringLiteral("~");
    return whole.startsWith(home + u'/') ? u'~' + whole.mid(home.size()) : whole;
}

}  // namespace fadeloom
