// SPDX-License-Identifier: MIT
// A titled group of settings.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: group

    required property string title
    required property string symbol
    default property alias content: column.data

    implicitHeight: column.y + column.implicitHeight + 16
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Symbol {
        x: Theme.margin
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
        x: Theme.margin
        y: 38
        width: group.width - 2 * Theme.margin
        spacing: 10
    }
    Divider {
        x: Theme.margin
        y: parent.height - 1
        width: parent.width - 2 * Theme.margin
    }
}
