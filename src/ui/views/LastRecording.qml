// SPDX-License-Identifier: MIT
// The most recent recording, with a link to it.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: line

    required property PanelModel panel

    implicitHeight: 35

    Divider {
        width: parent.width
    }
    Symbol {
        x: 36 - width / 2
        y: 1 + (34 - height) / 2
        name: "waveform"
        size: 13
        colour: Theme.secondary
    }
    Label {
        x: 60
        y: 10
        width: show.x - x - 12
        elide: Text.ElideMiddle
        size: 11
        text: line.panel.lastRecording
    }
    LinkButton {
        id: show
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        y: 1 + (34 - height) / 2
        size: 11
        text: PlatformTexts.showRecording
        onClicked: line.panel.revealLastRecording()
    }
}
