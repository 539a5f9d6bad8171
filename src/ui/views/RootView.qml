// SPDX-License-Identifier: MIT
// The panel's content: a header, and below it the settings, the question for permission, or the mixer.
import QtQuick
import Fadeloom

Rectangle {
    id: root

    required property PanelModel panel
    // Lives as long as the view: a panel that is built anew starts with all rows closed.
    property string expandedApp
    // The height that the screen leaves to the panel.
    property real availableHeight: 100000
    // Whether the window can be transparent outside of rounded corners, and a little everywhere.
    property bool hasRoundCorners: true
    property bool isTranslucent: false
    // Off when the settings are to be seen at a stretch.
    property bool limitsSettings: true

    width: 380
    height: implicitHeight
    implicitWidth: 380
    implicitHeight: Math.min(availableHeight, 47 + body.height)
    radius: hasRoundCorners ? 12 : 0
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.at(Theme.panelTop, Theme.isTranslucent ? 0.94 : 1) }
        GradientStop { position: 1; color: Theme.at(Theme.panelBottom, Theme.isTranslucent ? 0.94 : 1) }
    }
    Accessible.role: Accessible.Pane
    Accessible.name: "Fadeloom"

    Binding {
        target: Theme
        property: "isDark"
        value: root.panel.isDark
    }
    Binding {
        target: Theme
        property: "glass"
        value: root.panel.glass
    }
    Binding {
        target: Theme
        property: "isTranslucent"
        value: root.isTranslucent && root.panel.glass
    }
    Binding {
        target: Theme
        property: "animations"
        value: root.panel.animations
    }

    Item {
        id: header
        width: parent.width
        height: 46

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
            visible: root.panel.availableVersion !== ""
            isSmall: true
            isProminent: true
            symbol: "arrow.down.circle.fill"
            text: qsTr("Update %1").arg(root.panel.availableVersion)
            help: qsTr("Download Fadeloom %1").arg(root.panel.availableVersion)
            onClicked: root.panel.openDownloadPage()
        }
        HeaderButton {
            id: settingsButton
            anchors.right: quitButton.left
            anchors.rightMargin: 4
            y: 11
            symbol: root.panel.showsSettings ? "chevron.backward" : "gearshape"
            text: root.panel.showsSettings ? qsTr("Back") : qsTr("Settings")
            onClicked: root.panel.showsSettings = !root.panel.showsSettings
        }
        HeaderButton {
            id: quitButton
            // The glyph, not the frame, ends on the right content edge.
            x: parent.width - 22 - width + 6
            y: 11
            symbol: "power"
            text: qsTr("Quit Fadeloom")
            onClicked: root.panel.quit()
        }
    }
    Divider {
        y: 46
        width: parent.width
    }
    Loader {
        id: body
        y: 47
        width: parent.width
        focus: true
        sourceComponent: root.panel.page === "settings" ? settingsPage
            : root.panel.page === "permission" ? permissionPage : mixerPage
        onLoaded: arrival.restart()

        transform: Translate {
            id: slide
        }
        // A page that comes fades in and slides a little; with animations off it is simply there.
        ParallelAnimation {
            id: arrival
            NumberAnimation {
                target: body
                property: "opacity"
                from: Theme.animations && root.isReady ? 0 : 1
                to: 1
                duration: Theme.page
                easing.type: Easing.OutCubic
            }
            NumberAnimation {
                target: slide
                property: "x"
                from: Theme.animations && root.isReady ? (root.panel.showsSettings ? 8 : -8) : 0
                to: 0
                duration: Theme.page
                easing.type: Easing.OutCubic
            }
        }
    }
    property bool isReady: false
    Component.onCompleted: isReady = true

    Component {
        id: settingsPage
        SettingsView {
            panel: root.panel
            limit: root.limitsSettings ? Math.min(560, root.availableHeight - 47) : 100000
        }
    }
    Component {
        id: permissionPage
        PermissionView {
            panel: root.panel
        }
    }
    Component {
        id: mixerPage
        MixerView {
            panel: root.panel
            limit: root.availableHeight - 47
            expandedApp: root.expandedApp
            onExpandedAppChanged: root.expandedApp = expandedApp
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.panelOutline
    }
}
