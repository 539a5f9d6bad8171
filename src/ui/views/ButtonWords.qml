// SPDX-License-Identifier: MIT
// The content of a button: a symbol, text that is elided if necessary, and the menu indicator.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Row {
    id: row

    required property string symbol
    required property string text
    required property color colour
    required property bool hasChevron
    property int size: 12
    // The maximum and the natural width of the whole.
    required property real widest
    readonly property real natural: words.implicitWidth + widthOfSymbols
    readonly property real widthOfSymbols: (symbol !== "" ? 13 + spacing : 0) + (hasChevron ? 9 + spacing : 0)

    spacing: hasChevron ? 6 : 5

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        name: row.symbol
        size: 13
        colour: row.colour
    }
    Label {
        id: words
        width: row.natural > row.widest + 1 ? row.widest - row.widthOfSymbols : implicitWidth
        elide: Text.ElideRight
        size: row.size
        line: 16
        weight: row.hasChevron ? Font.Normal : Font.Medium
        color: row.colour
        text: row.text
        Accessible.ignored: true
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: row.hasChevron
        name: "chevron.down"
        size: 9
        colour: Theme.secondary
    }
}
