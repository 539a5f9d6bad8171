// SPDX-License-Identifier: MIT
// A button with a background.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Pressable {
    id: button

    property bool isProminent: false
    property bool isSmall: false
    property string symbol
    property int side: isSmall ? 9 : 10
    property bool hasChevron: false
    property bool isOpen: false
    readonly property color wordColour: isProminent ? Theme.inkOnFill : Theme.ink
    readonly property color ground: isProminent ? (pressed ? Theme.fillPressed : hovered ? Theme.fillHovered : Theme.fill) : Theme.layer(pressed || isOpen ? 0.18 : hovered ? 0.13 : 0.09)

    implicitHeight: isSmall ? 22 : 24
    implicitWidth: Math.ceil(implicitContentWidth) + 2 * side

    background: Rectangle {
        radius: 6
        opacity: button.enabled ? 1 : 0.4
        color: button.ground
        Behavior on color {
            enabled: Theme.animations
            ColorAnimation {
                duration: button.hovered ? Theme.hoverIn : Theme.hoverOut
            }
        }
        FocusRing {
            control: button
        }
    }
    contentItem: Item {
        implicitWidth: (children[0] as ButtonWords).natural

        ButtonWords {
            anchors.centerIn: parent
            widest: button.width - 2 * button.side
            symbol: button.symbol
            text: button.text
            colour: button.wordColour
            hasChevron: button.hasChevron
            size: button.isSmall ? 11 : 12
        }
    }
}
