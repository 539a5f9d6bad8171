// SPDX-License-Identifier: MIT
// Shown by the mixer while it is empty.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    implicitHeight: note.y + note.height + 36

    Symbol {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        y: 36
        name: "speaker.wave.2.light"
        size: 29
        colour: Theme.secondary
    }
    Label {
        id: title
        anchors.top: picture.bottom
        anchors.topMargin: 10
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        size: 13
        weight: Font.Medium
        text: qsTr("Nothing is playing")
    }
    Label {
        id: note
        anchors.top: title.bottom
        anchors.topMargin: 3
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        size: 11
        line: 15
        color: Theme.secondary
        text: qsTr("Apps appear here as soon as they play sound.")
    }
}
