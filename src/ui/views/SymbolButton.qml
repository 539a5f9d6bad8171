// SPDX-License-Identifier: MIT
// A symbol that can be pressed; its text is for screen readers and the tooltip.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Pressable {
    id: button

    property string symbol
    property int symbolSize: 13
    property int frame: 24
    property color colour: Theme.ink
    property real turn: 0
    readonly property real pixels: Screen.devicePixelRatio

    implicitWidth: frame
    implicitHeight: frame
    help: text

    background: Rectangle {
        radius: 6
        color: Theme.layer(button.pressed ? 0.16 : button.hovered ? 0.08 : 0)
        Behavior on color {
            enabled: Theme.animations
            ColorAnimation {
                duration: button.hovered ? Theme.hoverIn : Theme.hoverOut
            }
        }
        FocusRing {
            control: button
            gap: 0
        }
    }
    contentItem: Item {
        Symbol {
            x: Math.round((parent.width - width) / 2 * button.pixels) / button.pixels
            y: Math.round((parent.height - height) / 2 * button.pixels) / button.pixels
            name: button.symbol
            size: button.symbolSize
            colour: button.colour
            rotation: button.turn
            Behavior on rotation {
                enabled: Theme.animations
                NumberAnimation {
                    duration: Theme.row
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
