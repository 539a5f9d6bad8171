// SPDX-License-Identifier: MIT
// Selects one of a few options, all of them visible.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Rectangle {
    id: picker

    required property var choices
    required property int current

    signal asked(int choice)

    implicitWidth: Math.ceil(row.implicitWidth) + 4
    implicitHeight: 24
    radius: 7
    color: Theme.layer(0.08)

    Row {
        id: row
        x: 2
        y: 2

        Repeater {
            model: picker.choices

            Segment {
                isCurrent: index === picker.current
                count: picker.choices.length
                onAsked: choice => picker.asked(choice)
            }
        }
    }
}
