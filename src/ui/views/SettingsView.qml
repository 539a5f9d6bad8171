// SPDX-License-Identifier: MIT
// Every global option.
import QtQuick
import Fadeloom

ScrollArea {
    id: view

    property PanelModel panel
    property real limit: 560
    readonly property SettingsModel settings: panel ? panel.settings : null

    implicitHeight: Math.min(contentHeight, limit)
    contentHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width

        SettingsGroup {
            title: qsTr("Focus Mode")
            symbol: "phone"

            SettingsToggle {
                title: qsTr("Lower other apps during calls")
                explanation: qsTr("When a call app below uses the microphone, everything else fades down and comes back when the call ends.")
                isOn: view.settings.lowersOthers
                onAsked: isOn => view.settings.setLowersOthers(isOn)
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
                    to: 0.5
                    stepSize: 0.05
                    snapMode: Fader.SnapAlways
                    thumb: 12
                    modelValue: view.settings.duckLevel
                    spokenValue: view.settings.spokenDuckLevel
                    Accessible.name: lowerTo.text
                    onEdited: wanted => view.settings.setDuckLevel(wanted)
                }
                Label {
                    id: lowerValue
                    anchors.right: parent.right
                    y: 4
                    width: 34
                    horizontalAlignment: Text.AlignRight
                    size: 11
                    color: Theme.secondary
                    text: view.settings.duckPercent
                }
            }
            CallAppList {
                settings: view.settings
            }
            Item {
                width: parent.width
                height: 24
                PopUpButton {
                    text: qsTr("Add App")
                    entries: view.settings.offeredApps
                    onChosen: key => view.settings.addCallApp(key)
                }
                LinkButton {
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Reset List")
                    onClicked: view.settings.resetCallApps()
                }
            }
        }
        SettingsGroup {
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
                        text: view.settings.recordingsFolder
                    }
                    PushButton {
                        id: change
                        anchors.right: parent.right
                        text: qsTr("Change…")
                        onClicked: view.settings.chooseRecordingsFolder()
                    }
                }
                Explanation {
                    text: qsTr("24-bit WAV at the output’s sample rate.")
                }
            }
        }
        SettingsGroup {
            title: qsTr("Volume & Safety")
            symbol: "shield.lefthalf.filled"

            SettingsRow {
                title: qsTr("Maximum app volume")
                explanation: view.settings.isBoostAllowed
                    ? qsTr("Boost makes apps louder than their original level. Peaks are limited to −1 dBFS, so the signal never clips, but loud content at high system volume can still strain small speakers. Raise it with care.")
                    : qsTr("Apps can never play louder than their original level.")
                explanationColour: view.settings.isBoostAllowed ? Theme.orange : Theme.secondary

                PopUpButton {
                    spokenName: qsTr("Maximum app volume")
                    text: view.settings.volumeLimit
                    entries: view.settings.volumeLimits
                    onChosen: key => view.settings.chooseVolumeLimit(key)
                }
            }
            SettingsToggle {
                title: qsTr("Equalizer auto headroom")
                explanation: qsTr("Keeps the overall loudness unchanged when the equalizer is on, so EQ changes the tone, not the level. Peaks are limited to −1 dBFS.")
                isOn: view.settings.hasAutoHeadroom
                onAsked: isOn => view.settings.setAutoHeadroom(isOn)
            }
        }
        SettingsGroup {
            title: qsTr("Appearance")
            symbol: "circle.lefthalf.filled"

            SettingsRow {
                title: qsTr("Theme")

                SegmentedPicker {
                    choices: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
                    current: view.settings.theme
                    onAsked: choice => view.settings.setTheme(choice)
                }
            }
            SettingsToggle {
                title: qsTr("Glass effect")
                isOn: view.settings.glass
                onAsked: isOn => view.settings.setGlass(isOn)
            }
            SettingsToggle {
                title: qsTr("Animations")
                isOn: view.settings.animations
                onAsked: isOn => view.settings.setAnimations(isOn)
            }
            SettingsToggle {
                title: qsTr("Live level meters")
                explanation: qsTr("Turning off meters and animations saves a little CPU while the panel is open. Sound processing is not affected.")
                isOn: view.settings.levelMeters
                onAsked: isOn => view.settings.setLevelMeters(isOn)
            }
        }
        SettingsGroup {
            title: qsTr("General")
            symbol: "gearshape"

            SettingsToggle {
                title: qsTr("Launch at login")
                isOn: view.settings.launchesAtLogin
                onAsked: isOn => view.settings.setLaunchesAtLogin(isOn)
            }
            SettingsRow {
                title: qsTr("Language")

                PushButton {
                    visible: view.settings.needsRestart
                    text: qsTr("Restart to Apply")
                    onClicked: view.settings.restart()
                }
                PopUpButton {
                    spokenName: qsTr("Language")
                    text: view.settings.language
                    entries: view.settings.languages
                    onChosen: key => view.settings.chooseLanguage(key)
                }
            }
            PushButton {
                text: qsTr("Reset All App Volumes and EQ")
                onClicked: view.settings.resetApps()
            }
        }
        Item {
            width: parent.width
            height: 42
            LinkButton {
                x: 22
                anchors.verticalCenter: parent.verticalCenter
                size: 11
                text: qsTr("About Fadeloom %1").arg(view.settings.version)
                onClicked: view.settings.openAboutPanel()
            }
            LinkButton {
                anchors.right: parent.right
                anchors.rightMargin: 22
                anchors.verticalCenter: parent.verticalCenter
                size: 11
                text: view.settings.webPageHost
                onClicked: view.settings.openWebPage()
            }
        }
    }
}
