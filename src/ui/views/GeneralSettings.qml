// SPDX-License-Identifier: MIT
// Start at login, language, and reset.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsGroup {
    id: group

    required property SettingsModel settings

    title: qsTr("General")
    symbol: "gearshape"

    SettingsToggle {
        width: parent.width
        title: qsTr("Launch at login")
        isOn: group.settings.launchesAtLogin
        onAsked: isOn => group.settings.setLaunchesAtLogin(isOn)
    }
    SettingsRow {
        id: language
        width: parent.width
        title: qsTr("Language")

        PushButton {
            visible: group.settings.needsRestart
            text: qsTr("Restart to Apply")
            onClicked: group.settings.restart()
        }
        PopUpButton {
            spokenName: language.title
            text: group.settings.language
            entries: isOpen ? group.settings.languages : []
            onChosen: key => group.settings.chooseLanguage(key)
        }
    }
    PushButton {
        text: qsTr("Reset All App Volumes and EQ")
        onClicked: group.settings.resetApps()
    }
}
