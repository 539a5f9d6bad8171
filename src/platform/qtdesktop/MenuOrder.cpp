// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/MenuOrder.h"

#include <algorithm>

namespace fadeloom {

StatusMenu clickFirst(StatusMenu menu)
{
    const auto click = std::ranges::find_if(menu, &StatusMenuEntry::isClick);
    if (click == menu.end())
        return menu;
    auto group = click;
    while (group != menu.begin() && !std::prev(group)->isSeparator())
        --group;
    if (group == menu.begin())
        return menu;
    const auto end = std::ranges::find_if(click, menu.end(), &StatusMenuEntry::isSeparator);

    StatusMenu result(group, end);
    result.emplace_back();
    result.insert(result.end(), menu.begin(), std::prev(group));
    result.insert(result.end(), end, menu.end());
    return result;
}

}  // namespace fadeloom
