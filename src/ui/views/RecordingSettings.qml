// SPDX-License-Identifier: MIT
// The recordings folder.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsGroup {
    id: group

    required property SettingsModel settings

    title: qsTr("Recording")
    symbol: "waveform"

    Column {
        width: parent.width
        spacing: 3

        Item {
            width: parent.width
            height: 24

            Label {
                y: 4
                width: change.x - 12
                elide: Text.ElideMiddle
                text: group.settings.recordingsFolder
            }
            PushButton {
                id: change
                anchors.right: parent.right
                text: qsTr("Change…")
                onClicked: group.settings.chooseRecordingsFolder()
            }
        }
        Explanation {
            text: qsTr("24-bit WAV at the output’s sample rate.")
        }
    }
}
