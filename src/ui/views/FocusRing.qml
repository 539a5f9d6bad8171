// SPDX-License-Identifier: MIT
// Shows where the keyboard is; fills the control that it lies in.
import QtQuick
import Fadeloom

Rectangle {
    property Item control: parent
    property real gap: 2
    property real corner: 6
    property bool isShown: control.activeFocus && control.visualFocus

    anchors.fill: parent
    anchors.margins: -gap - 2
    visible: isShown
    color: "transparent"
    radius: corner + gap
    border.width: 2
    border.color: Theme.accent
}
