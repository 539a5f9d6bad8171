// SPDX-License-Identifier: MIT
// Asks for the permission to capture, or says how to give it.
import QtQuick
import Fadeloom

Item {
    id: view

    property PanelModel panel
    readonly property bool isDenied: panel ? panel.isAccessDenied : false

    implicitHeight: column.implicitHeight + 66

    Column {
        id: column
        x: 36
        y: 30
        width: parent.width - 72

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "waveform.badge.mic.light"
            size: 35
            colour: Theme.accent
        }
        Item {
            width: 1
            height: 14
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            size: 14
            line: 18
            weight: Font.DemiBold
            text: qsTr("Allow Fadeloom to control app audio")
        }
        Item {
            width: 1
            height: 8
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            line: 17
            color: Theme.secondary
            text: PlatformTexts.whyPermission
        }
        Item {
            visible: view.isDenied
            width: 1
            height: 12
        }
        Label {
            visible: view.isDenied
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            size: 11
            line: 15
            color: Theme.orange
            text: PlatformTexts.permissionDenied
        }
        Item {
            width: 1
            height: 18
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            implicitHeight: 28
            side: 16
            isProminent: true
            text: view.isDenied ? PlatformTexts.openSystemSettings : qsTr("Continue")
            onClicked: view.isDenied ? view.panel.openPrivacySettings() : view.panel.requestPermission()
        }
    }
}
