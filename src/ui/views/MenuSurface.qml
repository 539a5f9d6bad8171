// SPDX-License-Identifier: MIT
// The background of an open menu, with its shadow.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: surface

    Repeater {
        model: [[16, 10, 0.08], [11, 7, 0.18], [7, 4, 0.35], [4, 2, 0.6], [2, 1, 1]]

        Rectangle {
            // Spread, vertical offset and opacity.
            required property var modelData

            x: -modelData[0]
            y: -modelData[0] + modelData[1]
            width: surface.width + 2 * modelData[0]
            height: surface.height + 2 * modelData[0]
            radius: 9 + modelData[0]
            color: Theme.shadow(Theme.menuShadow * modelData[2])
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: 9
        color: Theme.menuSurface
        border.width: 1
        border.color: Theme.menuOutline
    }
}
