// SPDX-License-Identifier: MIT
// An app's status, with actions for a failure.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Row {
    id: statusRow

    required property AppRowModel row
    // The maximum width of the text.
    required property real widest

    spacing: 4

    Symbol {
        visible: name !== ""
        y: 0.5
        size: 11
        name: statusRow.row.statusSymbol
        colour: words.color
    }
    Label {
        id: words
        size: 10
        line: 12
        width: Math.min(implicitWidth, statusRow.widest)
        elide: Text.ElideRight
        color: Theme.tone(statusRow.row.statusTone)
        text: statusRow.row.status
        Hint {
            text: statusRow.row.statusHelp
        }
    }
    LinkButton {
        visible: statusRow.row.canRetry
        y: -5
        leftPadding: 2
        size: 10
        text: qsTr("Retry")
        onClicked: statusRow.row.retry()
    }
}
