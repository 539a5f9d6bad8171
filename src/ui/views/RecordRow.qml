// SPDX-License-Identifier: MIT
// Records one app.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: recordRow

    required property AppRowModel row
    readonly property string help: qsTr("Records this app’s sound (before volume and mute) to a WAV file")

    implicitHeight: 22

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "waveform"
        size: 13
        colour: Theme.secondary
    }
    Label {
        x: 19
        y: 3
        size: 11
        text: qsTr("Record")
    }
    Hint {
        width: 120
        anchors.right: undefined
        text: recordRow.help
    }
    Label {
        anchors.right: button.left
        anchors.rightMargin: 8
        y: 3
        visible: recordRow.row.isRecording
        size: 11
        color: Theme.secondary
        text: recordRow.row.elapsed
    }
    PushButton {
        id: button
        anchors.right: parent.right
        isSmall: true
        symbol: recordRow.row.isRecording ? "" : "record.circle"
        text: recordRow.row.isRecording ? qsTr("Stop") : qsTr("Start")
        help: recordRow.help
        onClicked: recordRow.row.isRecording ? recordRow.row.stopRecording() : recordRow.row.startRecording()
    }
}
