// SPDX-License-Identifier: MIT
// The gain before the bands.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: preamp

    required property EQModel eq

    implicitHeight: 16

    Label {
        id: title
        width: Math.max(48, Math.ceil(implicitWidth))
        size: 11
        text: qsTr("Preamp")
    }
    Fader {
        anchors.left: title.right
        anchors.leftMargin: 8
        anchors.right: value.left
        anchors.rightMargin: 8
        height: 16
        from: -12
        to: 12
        stepSize: 1
        thumb: 12
        origin: 0
        modelValue: preamp.eq.preamp
        spokenValue: preamp.eq.spokenPreamp
        Accessible.name: title.text
        onEdited: wanted => preamp.eq.setPreamp(wanted)
    }
    ResettingLabel {
        id: value
        anchors.right: parent.right
        width: 44
        size: 10
        line: 16
        color: Theme.secondary
        text: preamp.eq.preampText
        help: qsTr("Double-click to reset")
        onReset: preamp.eq.setPreamp(0)
    }
}
