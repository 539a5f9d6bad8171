// SPDX-License-Identifier: MIT
// The panel's content and appearance. With a larger text size on the desktop the whole panel is scaled, so no text is
// cramped.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: root

    required property PanelModel panel
    property alias expandedApp: sheet.expandedApp
    // The height available on the screen.
    property real availableHeight: 100000
    // Whether the window can be transparent outside of rounded corners, and slightly everywhere.
    property alias hasRoundCorners: sheet.hasRoundCorners
    property bool isTranslucent: false
    // Off for pictures of the complete settings.
    property alias limitsSettings: sheet.limitsSettings

    width: implicitWidth
    height: implicitHeight
    implicitWidth: Math.round(sheet.width * Theme.zoom)
    implicitHeight: Math.round(sheet.height * Theme.zoom)

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
        value: root.isTranslucent && root.panel.glass && !root.panel.hasHighContrast
    }
    Binding {
        target: Theme
        property: "animations"
        value: root.panel.animations
    }
    Binding {
        target: Theme
        property: "hasHighContrast"
        value: root.panel.hasHighContrast
    }
    Binding {
        target: Theme
        property: "accentInk"
        value: root.panel.accentInk
    }
    Binding {
        target: Theme
        property: "accentFill"
        value: root.panel.accentFill
    }
    Binding {
        target: Theme
        property: "zoom"
        value: root.panel.textScale
    }

    PanelSheet {
        id: sheet
        panel: root.panel
        availableHeight: root.availableHeight / Theme.zoom
        scale: Theme.zoom
        transformOrigin: Item.TopLeft
    }
}
