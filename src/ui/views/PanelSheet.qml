// SPDX-License-Identifier: MIT
// The panel at its natural size: a header, and below it the settings, the permission request, or the mixer.
// Not bound: the Loader of Qt 6.4 rejects bound components.
// qmllint disable unqualified
import QtQuick
import Fadeloom

Rectangle {
    id: root

    required property PanelModel panel
    // Lives as long as the view: a recreated panel starts with all rows collapsed.
    property string expandedApp
    // The height available on the screen.
    property real availableHeight: 100000
    // Whether the window can be transparent outside of rounded corners.
    property bool hasRoundCorners: true
    // Off for pictures of the complete settings.
    property bool limitsSettings: true
    // No transition for the first page.
    property bool isReady: false
    readonly property real bodyLimit: availableHeight - body.y
    readonly property real opacityOfGround: Theme.isTranslucent ? 0.94 : 1

    width: Theme.panelWidth
    height: implicitHeight
    implicitWidth: Theme.panelWidth
    implicitHeight: Math.min(availableHeight, body.y + body.height)
    radius: hasRoundCorners ? 12 : 0
    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.at(Theme.panelTop, root.opacityOfGround)
        }
        GradientStop {
            position: 1
            color: Theme.at(Theme.panelBottom, root.opacityOfGround)
        }
    }
    Accessible.role: Accessible.Pane
    Accessible.name: "Fadeloom"
    Component.onCompleted: isReady = true

    PanelHeader {
        id: header
        width: parent.width
        panel: root.panel
    }
    Divider {
        id: line
        y: header.height
        width: parent.width
    }
    Loader {
        id: body
        y: line.y + line.height
        width: parent.width
        focus: true
        onLoaded: arrival.restart()
        transform: Translate {
            id: slide
        }
        sourceComponent: switch (root.panel.page) {
        case PanelModel.Page.Settings:
            return settingsPage;
        case PanelModel.Page.Permission:
            return permissionPage;
        default:
            return mixerPage;
        }
    }
    PageArrival {
        id: arrival
        page: body
        slide: slide
        isAnimated: Theme.animations && root.isReady
        offset: root.panel.showsSettings ? 8 : -8
    }
    Component {
        id: settingsPage
        SettingsView {
            panel: root.panel
            limit: root.limitsSettings ? Math.min(560, root.bodyLimit) : 100000
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
            limit: root.bodyLimit
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
