// SPDX-License-Identifier: MIT
// What the mixer shows while there is nothing to mix.
import QtQuick
import Fadeloom

Item {
    implicitHeight: column.implicitHeight + 72

    Column {
        id: column
        y: 36
        width: parent.width

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "speaker.wave.2.light"
            size: 29
            colour: Theme.secondary
        }
        Item {
            width: 1
            height: 10
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            size: 13
            weight: Font.Medium
            text: qsTr("Nothing is playing")
        }
        Item {
            width: 1
            height: 3
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            size: 11
            line: 15
            color: Theme.secondary
            text: qsTr("Apps appear here as soon as they play sound.")
        }
    }
}
