// SPDX-License-Identifier: MIT
// Marks the focused control; fills the control that contains it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

Rectangle {
    required property T.Control control
    property real gap: 2
    property real corner: 6

    anchors.fill: parent
    anchors.margins: -gap - 2
    visible: control.activeFocus && control.visualFocus
    color: "transparent"
    radius: corner + gap
    border.width: 2
    border.color: Theme.accent
}
