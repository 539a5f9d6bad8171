// SPDX-License-Identifier: MIT
// A setting: its text on the left, its control on the right edge, its explanation below.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Column {
    id: settingsRow

    required property string title
    property string explanation
    property color explanationColour: Theme.secondary
    default property alias control: side.data

    spacing: 3

    Item {
        width: parent.width
        height: Math.max(words.height, side.height, 20)

        Label {
            id: words
            y: (parent.height - height) / 2
            width: parent.width - side.width - 12
            wrapMode: Text.Wrap
            text: settingsRow.title
        }
        Row {
            id: side
            y: (parent.height - height) / 2
            anchors.right: parent.right
            spacing: 8
        }
    }
    Explanation {
        visible: settingsRow.explanation !== ""
        color: settingsRow.explanationColour
        text: settingsRow.explanation
    }
}
