// SPDX-License-Identifier: MIT
// One app: its picture, its state, its fader, its meter; and what lies below them while it is open.
import QtQuick
import Fadeloom

Item {
    id: view

    property AppRowModel row
    property bool hasMeter: true
    property bool isExpanded: false

    signal toggled()

    implicitHeight: head.height + details.height
    Accessible.role: Accessible.Grouping
    Accessible.name: row ? row.name : ""

    CardBackground {
        anchors.fill: parent
        isHighlighted: view.isExpanded
    }
    Item {
        id: head
        width: parent.width
        height: view.hasMeter ? 83 : 72

        Image {
            x: 10
            y: 10
            width: 28
            height: 28
            sourceSize: Qt.size(28, 28)
            source: view.row ? view.row.iconSource : ""
        }
        Label {
            id: title
            x: 48
            y: 9.5
            width: mute.x - x - 8
            elide: Text.ElideRight
            size: 13
            weight: Font.Medium
            text: view.row ? view.row.name : ""
        }
        Row {
            id: statusLine
            x: 48
            y: 26.5
            spacing: 4
            Symbol {
                visible: name !== ""
                y: 0.5
                size: 11
                name: view.row ? view.row.statusSymbol : ""
                colour: status.color
            }
            Label {
                id: status
                size: 10
                line: 12
                width: Math.min(implicitWidth, mute.x - 48 - 60)
                elide: Text.ElideRight
                color: Theme.tone(view.row ? view.row.statusTone : "")
                text: view.row ? view.row.status : ""
                Hint {
                    text: view.row ? view.row.statusHelp : ""
                }
            }
            LinkButton {
                visible: view.row ? view.row.canRetry : false
                y: -5
                leftPadding: 2
                size: 10
                text: qsTr("Retry")
                onClicked: view.row.retry()
            }
        }
        SymbolButton {
            id: mute
            anchors.right: chevron.left
            anchors.rightMargin: 4
            y: 12
            symbolSize: 15
            symbol: view.row && view.row.isMuted ? "speaker.slash.fill" : "speaker.wave.2.fill"
            colour: view.row && view.row.isMuted ? Theme.secondary : Theme.ink
            text: view.row ? (view.row.isMuted ? qsTr("Unmute %1") : qsTr("Mute %1")).arg(view.row.name) : ""
            onClicked: view.row.toggleMuted()
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
            turn: view.isExpanded ? 180 : 0
            help: qsTr("Output, equalizer and recording")
            text: view.isExpanded ? qsTr("Collapse") : qsTr("Expand %1").arg(view.row ? view.row.name : "")
            onClicked: view.toggled()
        }
        Fader {
            x: 10
            y: 46
            width: 290
            from: 0
            to: view.row ? view.row.volumeLimit : 1
            boostFrom: 1
            stepSize: 0.05  // A smaller one would never leave the snap at 100 %.
            modelValue: view.row ? view.row.volume : 0
            isMuted: view.row ? view.row.isMuted : false
            Accessible.name: view.row ? qsTr("%1 volume").arg(view.row.name) : ""
            spokenValue: view.row ? view.row.spokenVolume : ""
            onEdited: wanted => view.row.setVolume(wanted)
        }
        Label {
            anchors.right: parent.right
            anchors.rightMargin: 10
            y: 46
            width: 38
            horizontalAlignment: Text.AlignRight
            size: 11
            weight: Font.Medium
            color: view.row && view.row.isBoosted ? Theme.orange : Theme.secondary
            text: view.row ? view.row.percent : ""
            MouseArea {
                anchors.fill: parent
                onDoubleClicked: view.row.resetVolume()
            }
            Hint {
                text: qsTr("Double-click to reset to 100%")
            }
        }
        LevelBar {
            visible: view.hasMeter
            x: 10
            y: 70
            width: parent.width - 20
            level: view.row ? view.row.level : 0
        }
    }
    Item {
        id: details
        y: head.height
        width: parent.width
        height: view.isExpanded ? content.implicitHeight : 0
        clip: true
        visible: height > 0
        Behavior on height {
            id: opening
            enabled: Theme.animations && view.isReady
            NumberAnimation { duration: Theme.row; easing.type: Easing.OutCubic }
        }
        Loader {
            id: content
            x: 10
            width: parent.width - 20
            active: view.isExpanded || details.height > 0
            sourceComponent: Column {
                Divider {
                    width: parent.width
                }
                Item {
                    width: 1
                    height: 8
                }
                DeviceRow {
                    width: parent.width
                    row: view.row
                }
                Item {
                    width: 1
                    height: 6
                }
                EQSection {
                    width: parent.width
                    eq: view.row ? view.row.eq : null
                }
                Item {
                    width: 1
                    height: 8
                }
                RecordRow {
                    width: parent.width
                    row: view.row
                }
                Item {
                    width: 1
                    height: 10
                }
            }
        }
    }
    property bool isReady: false
    Component.onCompleted: isReady = true
}
