// SPDX-License-Identifier: MIT
// The round handle of a slider with its shadow.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: thumb

    property real diameter: 14
    property bool isFocused: false

    width: diameter
    height: diameter

    Repeater {
        model: [Qt.point(1.5, 0.07), Qt.point(1, 0.10), Qt.point(0.5, 0.14)]

        Rectangle {
            // Spread and opacity.
            required property point modelData

            anchors.centerIn: parent
            anchors.verticalCenterOffset: 0.5
            width: thumb.diameter + 2 * modelData.x
            height: width
            radius: width / 2
            color: Theme.shadow(modelData.y)
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: Theme.inkOnFill
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
