// SPDX-License-Identifier: MIT
// A message across the mixer.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Rectangle {
    id: banner

    required property string symbol
    required property color tint
    required property string message
    property bool canClose: false

    signal closed

    implicitHeight: words.height + 20
    radius: 8
    color: Theme.at(tint, 0.12)

    Symbol {
        x: 10
        y: 11
        name: banner.symbol
        size: 13
        colour: banner.tint
    }
    Label {
        id: words
        x: 31
        y: 10
        width: banner.width - x - (banner.canClose ? 36 : 10)
        wrapMode: Text.Wrap
        size: 11
        line: 15
        text: banner.message
        Accessible.role: Accessible.AlertMessage
    }
    SymbolButton {
        visible: banner.canClose
        x: banner.width - 10 - width + 7
        y: 10 + (15 - height) / 2
        symbol: "xmark"
        symbolSize: 9
        colour: Theme.secondary
        text: qsTr("Dismiss")
        onClicked: banner.closed()
    }
}
