// SPDX-License-Identifier: MIT
// Requests the permission to capture, or explains how to grant it.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: view

    required property PanelModel panel
    readonly property bool isDenied: panel.isAccessDenied

    component Words: Label {
        x: 36
        width: view.width - 72
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }

    implicitHeight: button.y + button.height + 36

    Symbol {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
        name: "waveform.badge.mic.light"
        size: 35
        colour: Theme.accent
    }
    Words {
        id: title
        anchors.top: picture.bottom
        anchors.topMargin: 14
        size: 14
        line: 18
        weight: Font.DemiBold
        text: qsTr("Allow Fadeloom to control app audio")
    }
    Words {
        id: reason
        anchors.top: title.bottom
        anchors.topMargin: 8
        line: 17
        color: Theme.secondary
        text: PlatformTexts.whyPermission
    }
    Words {
        id: denial
        anchors.top: reason.bottom
        anchors.topMargin: 12
        visible: view.isDenied
        size: 11
        line: 15
        color: Theme.orange
        text: PlatformTexts.permissionDenied
    }
    PushButton {
        id: button
        anchors.top: view.isDenied ? denial.bottom : reason.bottom
        anchors.topMargin: 18
        anchors.horizontalCenter: parent.horizontalCenter
        implicitHeight: 28
        side: 16
        isProminent: true
        text: view.isDenied ? PlatformTexts.openSystemSettings : qsTr("Continue")
        onClicked: view.isDenied ? view.panel.openPrivacySettings() : view.panel.requestPermission()
    }
}
