// SPDX-License-Identifier: MIT
// A button with a ground of its own.
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
    readonly property color wordColour: isProminent ? "white" : Theme.ink

    implicitHeight: isSmall ? 22 : 24
    implicitWidth: Math.ceil(row.implicitWidth) + 2 * side

    background: Rectangle {
        radius: 6
        opacity: button.enabled ? 1 : 0.4
        color: button.isProminent
            ? (button.pressed ? Theme.fillPressed : button.hovered ? Theme.fillHovered : Theme.fill)
            : Theme.layer(button.pressed || button.isOpen ? 0.18 : button.hovered ? 0.13 : 0.09)
        Behavior on color {
            enabled: Theme.animations
            ColorAnimation { duration: button.hovered ? Theme.hoverIn : Theme.hoverOut }
        }
        FocusRing {
            control: button
        }
    }
    contentItem: Item {
        Row {
            id: row
            anchors.centerIn: parent
            spacing: button.hasChevron ? 6 : 5

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.symbol !== ""
                name: button.symbol
                size: 13
                colour: button.wordColour
            }
            Label {
                size: button.isSmall ? 11 : 12
                line: 16
                weight: button.hasChevron ? Font.Normal : Font.Medium
                color: button.wordColour
                text: button.text
                Accessible.ignored: true
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.hasChevron
                name: "chevron.down"
                size: 9
                colour: Theme.secondary
            }
        }
    }
}
