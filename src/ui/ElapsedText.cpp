// SPDX-License-Identifier: MIT
#include "ui/ElapsedText.h"

#include <algorithm>

namespace fadeloom {

QString elapsedText(std::chrono::system_clock::duration elapsed)
{
    const auto seconds = std::max(
        std::chrono::duration_cast<std::chrono::seconds>(elapsed).count(), std::chrono::seconds::rep{0});
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace fadeloom
