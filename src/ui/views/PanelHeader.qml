// SPDX-License-Identifier: MIT
// The program's name, an available update, and the buttons for settings and quitting.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: header

    required property PanelModel panel

    implicitHeight: 46

    AppIcon {
        x: 23
        y: 10
    }
    Label {
        id: title
        x: 60
        y: 14
        size: 14
        line: 18
        weight: Font.DemiBold
        text: "Fadeloom"
    }
    PushButton {
        anchors.left: title.right
        anchors.leftMargin: 16
        y: 12
        width: Math.min(implicitWidth, settingsButton.x - 8 - x)
        visible: header.panel.availableVersion !== ""
        isSmall: true
        isProminent: true
        symbol: "arrow.down.circle.fill"
        text: qsTr("Update %1").arg(header.panel.availableVersion)
        help: qsTr("Download Fadeloom %1").arg(header.panel.availableVersion)
        onClicked: header.panel.openDownloadPage()
    }
    SymbolButton {
        id: settingsButton
        anchors.right: quitButton.left
        anchors.rightMargin: 4
        y: 11
        symbol: header.panel.showsSettings ? "chevron.backward" : "gearshape"
        text: header.panel.showsSettings ? qsTr("Back") : qsTr("Settings")
        onClicked: header.panel.showsSettings = !header.panel.showsSettings
    }
    SymbolButton {
        id: quitButton
        // The glyph, not the frame, is aligned to the right content edge.
        x: parent.width - Theme.margin - width + 6
        y: 11
        symbol: "power"
        text: qsTr("Quit Fadeloom")
        onClicked: header.panel.quit()
    }
}
