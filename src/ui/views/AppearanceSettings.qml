// SPDX-License-Identifier: MIT
// The panel's appearance.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsGroup {
    id: group

    required property SettingsModel settings

    title: qsTr("Appearance")
    symbol: "circle.lefthalf.filled"

    SettingsRow {
        width: parent.width
        title: qsTr("Theme")

        SegmentedPicker {
            choices: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
            current: group.settings.theme
            onAsked: choice => group.settings.setTheme(choice)
        }
    }
    SettingsToggle {
        width: parent.width
        title: qsTr("Glass effect")
        isOn: group.settings.glass
        onAsked: isOn => group.settings.setGlass(isOn)
    }
    SettingsToggle {
        width: parent.width
        title: qsTr("Animations")
        isOn: group.settings.animations
        onAsked: isOn => group.settings.setAnimations(isOn)
    }
    SettingsToggle {
        width: parent.width
        title: qsTr("Live level meters")
        explanation: qsTr("Turning off meters and animations saves a little CPU while the panel is open. Sound processing is not affected.")
        isOn: group.settings.levelMeters
        onAsked: isOn => group.settings.setLevelMeters(isOn)
    }
}
