// SPDX-License-Identifier: MIT
// Ducking of other apps during a call.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsGroup {
    id: group

    required property SettingsModel settings

    title: qsTr("Focus Mode")
    symbol: "phone"

    SettingsToggle {
        width: parent.width
        title: qsTr("Lower other apps during calls")
        explanation: qsTr("When a call app below uses the microphone, everything else fades down and comes back when the call ends.")
        isOn: group.settings.lowersOthers
        onAsked: isOn => group.settings.setLowersOthers(isOn)
    }
    Item {
        width: parent.width
        height: 24

        Label {
            id: lowerTo
            y: 4
            text: qsTr("Lower to")
        }
        Fader {
            anchors.left: lowerTo.right
            anchors.leftMargin: 12
            anchors.right: lowerValue.left
            anchors.rightMargin: 8
            y: 4
            from: 0
            to: 50
            stepSize: 5
            snapMode: Fader.SnapAlways
            thumb: 12
            modelValue: group.settings.duckLevelPercent
            spokenValue: group.settings.spokenDuckLevel
            Accessible.name: lowerTo.text
            onEdited: wanted => group.settings.setDuckLevelPercent(wanted)
        }
        Label {
            id: lowerValue
            anchors.right: parent.right
            y: 4
            width: 34
            horizontalAlignment: Text.AlignRight
            size: 11
            color: Theme.secondary
            text: group.settings.duckPercent
        }
    }
    CallAppList {
        width: parent.width
        settings: group.settings
    }
    Item {
        width: parent.width
        height: 24

        PopUpButton {
            text: qsTr("Add App")
            entries: isOpen ? group.settings.offeredApps : []
            onChosen: key => group.settings.addCallApp(key)
        }
        LinkButton {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Reset List")
            onClicked: group.settings.resetCallApps()
        }
    }
}
