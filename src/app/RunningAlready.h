// SPDX-License-Identifier: MIT
// The outcomes of a start while another instance is running.
#pragma once

#include "app/EarlyEnd.h"

namespace fadeloom::runningAlready {

inline constexpr int status = 3;

/// Its panel was requested, and opened.
[[nodiscard]] inline EarlyEnd panelIsOpen()
{
    return {"it is running already; its panel is open now", 0};
}
/// Its panel was requested, and it has none.
[[nodiscard]] inline EarlyEnd withoutPanel()
{
    return {"it is running already, without a panel (--headless)", status};
}
/// Nothing was requested.
[[nodiscard]] inline EarlyEnd wouldCompete()
{
    return {"it is running already; two would take each other's applications away", status};
}

}  // namespace fadeloom::runningAlready
