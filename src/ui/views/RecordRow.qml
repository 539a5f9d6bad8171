// SPDX-License-Identifier: MIT
// Records one app's sound.
import QtQuick
import Fadeloom

Item {
    id: recordRow

    property AppRowModel row
    readonly property bool isRecording: row ? row.isRecording : false

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
        text: qsTr("Records this app’s sound (before volume and mute) to a WAV file")
    }
    Label {
        anchors.right: button.left
        anchors.rightMargin: 8
        y: 3
        visible: recordRow.isRecording
        size: 11
        color: Theme.secondary
        text: recordRow.row ? recordRow.row.elapsed : ""
    }
    PushButton {
        id: button
        anchors.right: parent.right
        isSmall: true
        symbol: recordRow.isRecording ? "" : "record.circle"
        text: recordRow.isRecording ? qsTr("Stop") : qsTr("Start")
        help: qsTr("Records this app’s sound (before volume and mute) to a WAV file")
        onClicked: recordRow.isRecording ? recordRow.row.stopRecording() : recordRow.row.startRecording()
    }
}
