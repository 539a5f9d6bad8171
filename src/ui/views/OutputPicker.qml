// SPDX-License-Identifier: MIT
// The system's default output.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: picker

    required property PanelModel panel

    implicitHeight: 38

    Symbol {
        x: 36 - width / 2
        anchors.verticalCenter: parent.verticalCenter
        name: "hifispeaker.2"
        size: 15
        colour: Theme.secondary
    }
    Label {
        id: title
        x: 60
        y: 11
        weight: Font.Medium
        text: qsTr("Output")
    }
    MenuLabel {
        id: output
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        y: 11
        width: Math.min(implicitWidth, picker.width - Theme.margin - title.x - title.implicitWidth - 20)
        spokenName: title.text
        text: picker.panel.output
        entries: isOpen ? picker.panel.outputEntries : []
        onChosen: key => picker.panel.chooseOutput(key)
    }
}
