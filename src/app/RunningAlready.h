// SPDX-License-Identifier: MIT
// How a start ends when the program runs already.
#pragma once

#include "app/EarlyEnd.h"

namespace fadeloom::runningAlready {

inline constexpr int status = 3;

/// Its panel was asked for, and opened.
[[nodiscard]] inline EarlyEnd panelIsOpen()
{
    return {"it is running already; its panel is open now", 0};
}
/// Its panel was asked for, and it has none.
[[nodiscard]] inline EarlyEnd withoutPanel()
{
    return {"it is running already, without a panel (--headless)", status};
}
/// Nothing was asked for.
[[nodiscard]] inline EarlyEnd wouldCompete()
{
    return {"it is running already; two would take each other's applications away", status};
}

}  // namespace fadeloom::runningAlready
