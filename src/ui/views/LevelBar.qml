// SPDX-License-Identifier: MIT
// The current level, drawn without animation.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Rectangle {
    id: bar

    property real level: 0

    implicitHeight: 3
    radius: height / 2
    color: Theme.layer(0.07)
    Accessible.ignored: true

    Rectangle {
        visible: width >= 1 // A decaying level takes seconds to reach zero, long after it is visible.
        width: bar.width * bar.level
        height: bar.height
        radius: Math.min(width, height) / 2
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop {
                position: 0
                color: Theme.cyan
            }
            GradientStop {
                position: 0.5
                color: Theme.violet
            }
            GradientStop {
                position: 1
                color: Theme.pink
            }
        }
    }
}
