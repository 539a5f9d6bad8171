// SPDX-License-Identifier: MIT
// The panel in its own size: a header, and below it the settings, the question for permission, or the mixer.
// Not bound: the Loader of Qt 6.4 refuses components that are.
// qmllint disable unqualified
import QtQuick
import Fadeloom

Rectangle {
    id: root

    required property PanelModel panel
    // Lives as long as the view: a panel that is built again starts with all rows closed.
    property string expandedApp
    // The height that the screen leaves to the panel.
    property real availableHeight: 100000
    // Whether the window can be transparent outside of rounded corners.
    property bool hasRoundCorners: true
    // Off when the settings are to be seen at a stretch.
    property bool limitsSettings: true
    // The first page does not arrive.
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
