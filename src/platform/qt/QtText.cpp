// SPDX-License-Identifier: MIT
#include "platform/qt/QtText.h"

#include <QString>

namespace fadeloom {

std::string QtText::lowercased(std::string_view text) const
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLower().toStdString();
}

}  // namespace fadeloom
