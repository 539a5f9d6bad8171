// SPDX-License-Identifier: MIT
// The system's output, what is to be said, and one row for each app.
import QtQuick
import Fadeloom

Column {
    id: mixer

    property PanelModel panel
    // The app whose row is open; at most one is.
    property string expandedApp
    // The height that there is.
    property real limit: 100000
    readonly property bool isEmpty: rows.count === 0

    OutputPicker {
        width: parent.width
        panel: mixer.panel
    }
    Item {
        id: bannerSpace

        // What is shown stays while the banner closes.
        property string kind
        readonly property string wanted: mixer.panel ? mixer.panel.bannerKind : ""
        onWantedChanged: if (wanted !== "") kind = wanted
        Component.onCompleted: kind = wanted

        width: parent.width
        height: wanted !== "" ? banner.implicitHeight + 10 : 0
        clip: true
        Behavior on height {
            enabled: Theme.animations
            NumberAnimation { duration: Theme.banner; easing.type: Easing.OutCubic }
        }

        Banner {
            id: banner
            x: 12
            width: parent.width - 24
            height: implicitHeight
            opacity: bannerSpace.wanted !== "" ? 1 : 0
            visible: bannerSpace.height > 0
            symbol: bannerSpace.kind === "call" ? "phone.fill" : "exclamationmark.triangle.fill"
            tint: bannerSpace.kind === "call" ? Theme.bannerGreen : Theme.bannerOrange
            message: mixer.panel ? mixer.panel.bannerText : ""
            canClose: bannerSpace.kind === "error"
            onClosed: mixer.panel.dismissError()
            Behavior on opacity {
                enabled: Theme.animations
                NumberAnimation { duration: Theme.banner; easing.type: Easing.OutCubic }
            }
        }
    }
    Divider {
        width: parent.width
    }
    EmptyState {
        visible: mixer.isEmpty
        width: parent.width
    }
    ScrollArea {
        visible: !mixer.isEmpty
        width: parent.width
        height: Math.min(contentHeight, 460, mixer.limit - y - (recordingLine.visible ? recordingLine.height + 1 : 0))
        contentHeight: list.implicitHeight + 20

        Column {
            id: list
            y: 10
            width: parent.width

            Repeater {
                id: rows
                model: mixer.panel ? mixer.panel.rows : null

                Item {
                    id: place

                    required property AppRowModel row
                    required property int index
                    readonly property int gap: index > 0 ? 9 : 0

                    width: list.width
                    height: view.implicitHeight + gap

                    Divider {
                        visible: place.index > 0
                        x: 22
                        y: 4
                        width: parent.width - 44
                        strength: 0.07
                    }
                    AppRowView {
                        id: view
                        x: 12
                        y: place.gap
                        width: parent.width - 24
                        height: implicitHeight
                        row: place.row
                        hasMeter: mixer.panel.levelMeters
                        isExpanded: mixer.expandedApp !== "" && mixer.expandedApp === place.row.bundleID
                        onToggled: mixer.expandedApp = isExpanded ? "" : place.row.bundleID
                    }
                }
            }
        }
    }
    Divider {
        visible: recordingLine.visible
        width: parent.width
    }
    Item {
        id: recordingLine
        visible: mixer.panel ? mixer.panel.lastRecording !== "" : false
        width: parent.width
        height: 34

        Symbol {
            x: 36 - width / 2
            anchors.verticalCenter: parent.verticalCenter
            name: "waveform"
            size: 13
            colour: Theme.secondary
        }
        Label {
            x: 60
            y: 9
            width: show.x - x - 12
            elide: Text.ElideMiddle
            size: 11
            text: mixer.panel ? mixer.panel.lastRecording : ""
        }
        LinkButton {
            id: show
            anchors.right: parent.right
            anchors.rightMargin: 22
            anchors.verticalCenter: parent.verticalCenter
            size: 11
            text: PlatformTexts.showRecording
            onClicked: mixer.panel.revealLastRecording()
        }
    }
}
