// SPDX-License-Identifier: MIT
// A titled group of settings.
import QtQuick
import Fadeloom

Item {
    id: group

    property string title
    property string symbol
    property bool isLast: false
    default property alias content: column.data

    width: parent ? parent.width : 0
    implicitHeight: column.y + column.implicitHeight + 16
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Symbol {
        x: 22
        y: 15
        name: group.symbol
        size: 13
        colour: Theme.secondary
    }
    Label {
        x: 43
        y: 14
        weight: Font.DemiBold
        text: group.title
    }
    Column {
        id: column
        x: 22
        y: 38
        width: group.width - 44
        spacing: 10
    }
    Divider {
        x: 22
        y: parent.height - 1
        width: parent.width - 44
    }
}
