// SPDX-License-Identifier: MIT
// All global settings.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

ScrollArea {
    id: view

    required property PanelModel panel
    property real limit: 560
    readonly property SettingsModel settings: panel.settings

    implicitHeight: Math.min(contentHeight, limit)
    contentHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width

        CallSettings {
            width: parent.width
            settings: view.settings
        }
        RecordingSettings {
            width: parent.width
            settings: view.settings
        }
        VolumeSettings {
            width: parent.width
            settings: view.settings
        }
        AppearanceSettings {
            width: parent.width
            settings: view.settings
        }
        GeneralSettings {
            width: parent.width
            settings: view.settings
        }
        Item {
            width: parent.width
            height: 42

            LinkButton {
                x: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                size: 11
                text: qsTr("About Fadeloom %1").arg(view.settings.version)
                onClicked: view.settings.openAboutPanel()
            }
            LinkButton {
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                size: 11
                text: view.settings.webPageHost
                onClicked: view.settings.openWebPage()
            }
        }
    }
}
