// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/PanelPlace.h"

#include <algorithm>

namespace fadeloom {
namespace {

int inside(int wanted, int size, int first, int length)
{
    return std::max(first + panelGap, std::min(wanted, first + length - size - panelGap));
}

}  // namespace

QPoint panelPlace(const QRect& anchor, QSize panel, const QRect& screen)
{
    if (anchor.isNull())
        return {inside(screen.right(), panel.width(), screen.left(), screen.width()),
            inside(screen.top(), panel.height(), screen.top(), screen.height())};
    const bool isInUpperHalf = anchor.center().y() < screen.center().y();
    const int x = anchor.center().x() - panel.width() / 2;
    const int y = isInUpperHalf ? anchor.bottom() + 1 + panelGap : anchor.top() - panelGap - panel.height();
    return {inside(x, panel.width(), screen.left(), screen.width()),
        inside(y, panel.height(), screen.top(), screen.height())};
}

}  // namespace fadeloom
