// SPDX-License-Identifier: MIT
// The equalizer's switch and its presets.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: header

    required property EQModel eq

    signal nameWanted

    implicitHeight: 20

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "slider.vertical.3"
        size: 13
        colour: Theme.secondary
    }
    Label {
        id: title
        x: 19
        y: 2
        size: 11
        color: Theme.secondary
        text: qsTr("Equalizer")
    }
    ToggleSwitch {
        id: toggle
        anchors.left: title.right
        anchors.leftMargin: 10
        y: 2
        isSmall: true
        text: title.text
        isOn: header.eq.isEnabled
        onAsked: isOn => header.eq.setEnabled(isOn)
    }
    PresetMenu {
        anchors.right: parent.right
        y: 2
        width: Math.min(implicitWidth, parent.width - toggle.x - toggle.width - 16)
        eq: header.eq
        onNameWanted: header.nameWanted()
    }
}
