// SPDX-License-Identifier: MIT
// One app's output.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: deviceRow

    required property AppRowModel row

    implicitHeight: 20

    Label {
        id: title
        y: 2
        size: 11
        text: qsTr("Output")
    }
    MenuLabel {
        anchors.right: parent.right
        y: 2
        width: Math.min(implicitWidth, parent.width - title.implicitWidth - 20)
        size: 11
        spokenName: title.text
        text: deviceRow.row.output
        entries: isOpen ? deviceRow.row.outputEntries : []
        onChosen: key => deviceRow.row.chooseOutput(key)
    }
}
