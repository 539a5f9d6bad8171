// SPDX-License-Identifier: MIT
// The volume limit of apps.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsGroup {
    id: group

    required property SettingsModel settings

    title: qsTr("Volume & Safety")
    symbol: "shield.lefthalf.filled"

    SettingsRow {
        id: maximum
        width: parent.width
        title: qsTr("Maximum app volume")
        explanation: group.settings.isBoostAllowed ? qsTr("Boost makes apps louder than their original level. Peaks are limited to −1 dBFS, so the signal never clips, but loud content at high system volume can still strain small speakers. Raise it with care.") : qsTr("Apps can never play louder than their original level.")
        explanationColour: group.settings.isBoostAllowed ? Theme.orange : Theme.secondary

        PopUpButton {
            spokenName: maximum.title
            text: group.settings.volumeLimit
            entries: isOpen ? group.settings.volumeLimits : []
            onChosen: key => group.settings.chooseVolumeLimit(key)
        }
    }
    SettingsToggle {
        width: parent.width
        title: qsTr("Equalizer auto headroom")
        explanation: qsTr("Keeps the overall loudness unchanged when the equalizer is on, so EQ changes the tone, not the level. Peaks are limited to −1 dBFS.")
        isOn: group.settings.hasAutoHeadroom
        onAsked: isOn => group.settings.setAutoHeadroom(isOn)
    }
}
