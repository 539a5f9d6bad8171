// SPDX-License-Identifier: MIT
// A separator line.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Rectangle {
    property real strength: 0.10

    height: 1
    color: Theme.layer(strength)
}
