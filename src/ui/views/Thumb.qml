// SPDX-License-Identifier: MIT
// The round handle of a slider with its shadow.
import QtQuick
import Fadeloom

Item {
    id: thumb

    property real diameter: 14
    property bool isFocused: false

    width: diameter
    height: diameter

    Repeater {
        model: [{ grow: 1.5, strength: 0.07 }, { grow: 1, strength: 0.10 }, { grow: 0.5, strength: 0.14 }]
        Rectangle {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: 0.5
            width: thumb.diameter + 2 * modelData.grow
            height: width
            radius: width / 2
            color: Qt.rgba(0, 0, 0, modelData.strength)
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: "white"
        antialiasing: true
    }
    Rectangle {
        visible: thumb.isFocused
        anchors.centerIn: parent
        width: thumb.diameter + 6
        height: width
        radius: width / 2
        color: "transparent"
        border.width: 2
        border.color: Theme.accent
    }
}
