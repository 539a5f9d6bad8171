// SPDX-License-Identifier: MIT
// The part of a row that is always visible: icon, state, fader and meter.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: head

    required property AppRowModel row
    required property bool hasMeter
    required property bool isExpanded

    signal toggled

    implicitHeight: hasMeter ? 83 : 72

    Image {
        x: 10
        y: 10
        width: 28
        height: 28
        sourceSize.width: 28
        sourceSize.height: 28
        source: head.row.iconSource
    }
    Label {
        x: 48
        y: 9.5
        width: mute.x - x - 8
        elide: Text.ElideRight
        size: 13
        weight: Font.Medium
        text: head.row.name
    }
    StatusRow {
        x: 48
        y: 26.5
        widest: mute.x - 48 - 60
        row: head.row
    }
    SymbolButton {
        id: mute
        anchors.right: chevron.left
        anchors.rightMargin: 4
        y: 12
        symbolSize: 15
        symbol: head.row.isMuted ? "speaker.slash.fill" : "speaker.wave.2.fill"
        colour: head.row.isMuted ? Theme.secondary : Theme.ink
        text: (head.row.isMuted ? qsTr("Unmute %1") : qsTr("Mute %1")).arg(head.row.name)
        onClicked: head.row.toggleMuted()
    }
    SymbolButton {
        id: chevron
        // The glyph, not the frame, ends on the right content edge.
        x: parent.width - 10 - width + 6
        y: 13
        frame: 22
        symbolSize: 11
        symbol: "chevron.down"
        colour: Theme.secondary
        turn: head.isExpanded ? 180 : 0
        help: qsTr("Output, equalizer and recording")
        text: head.isExpanded ? qsTr("Collapse") : qsTr("Expand %1").arg(head.row.name)
        onClicked: head.toggled()
    }
    Fader {
        x: 10
        y: 46
        width: 290
        from: 0
        to: head.row.limitPercent
        boostFrom: 100
        stepSize: 5 // A smaller step would never leave the snap at 100 %.
        modelValue: head.row.volumePercent
        isMuted: head.row.isMuted
        spokenValue: head.row.spokenVolume
        Accessible.name: qsTr("%1 volume").arg(head.row.name)
        onEdited: wanted => head.row.setVolumePercent(wanted)
    }
    ResettingLabel {
        anchors.right: parent.right
        anchors.rightMargin: 10
        y: 46
        width: 38
        size: 11
        weight: Font.Medium
        color: head.row.isBoosted ? Theme.orange : Theme.secondary
        text: head.row.percent
        help: qsTr("Double-click to reset to 100%")
        onReset: head.row.resetVolume()
    }
    LevelBar {
        visible: head.hasMeter
        x: 10
        y: 70
        width: parent.width - 20
        level: head.row.level
    }
}
