// SPDX-License-Identifier: MIT
// How loud it is right now, drawn as it comes.
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
        visible: width >= 1  // A level that falls takes seconds to end, long after it can be seen.
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
