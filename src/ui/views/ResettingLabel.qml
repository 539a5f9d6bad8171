// SPDX-License-Identifier: MIT
// A value as text that a double click resets.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Label {
    id: label

    property string help

    signal reset

    horizontalAlignment: Text.AlignRight

    MouseArea {
        anchors.fill: parent
        onDoubleClicked: label.reset()
    }
    Hint {
        text: label.help
    }
}
