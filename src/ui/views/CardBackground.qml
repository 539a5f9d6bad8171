// SPDX-License-Identifier: MIT
// The background of a row.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

CardSurface {
    property bool isHighlighted: false

    radius: 10
    glass: Theme.glass
    isDark: Theme.isDark
    ink: Theme.ink
    highlight: isHighlighted ? 1 : 0
    Behavior on highlight {
        enabled: Theme.animations
        NumberAnimation {
            duration: Theme.row
            easing.type: Easing.OutCubic
        }
    }
}
