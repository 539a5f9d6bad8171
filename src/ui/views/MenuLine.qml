// SPDX-License-Identifier: MIT
// One entry of an open menu.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: line

    required property var entry
    required property bool isCurrent
    readonly property bool canBeChosen: !entry.isHeading && !entry.isSeparator
    readonly property color ink: isCurrent ? Theme.inkOnFill : entry.isHeading ? Theme.secondary : Theme.ink

    signal pointed
    signal chosen

    implicitWidth: words.implicitWidth + 26 + (entry.isSubmenu ? 30 : 14)
    implicitHeight: entry.isSeparator ? 11 : entry.isHeading ? 22 : 24
    Accessible.role: entry.isSeparator ? Accessible.Separator : entry.isHeading ? Accessible.StaticText : Accessible.MenuItem
    Accessible.name: entry.text
    Accessible.checkable: canBeChosen
    Accessible.checked: entry.isChecked
    Accessible.onPressAction: if (canBeChosen)
        chosen()

    Rectangle {
        visible: line.isCurrent
        anchors.fill: parent
        radius: 5
        color: Theme.fill
    }
    Symbol {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: line.entry.isChecked
        name: "checkmark"
        size: 11
        colour: line.ink
    }
    Label {
        id: words
        x: line.entry.isHeading ? 8 : 26
        width: Math.min(implicitWidth, line.width - x - 8)
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideMiddle
        size: line.entry.isHeading ? 10 : 12
        weight: line.entry.isHeading ? Font.DemiBold : Font.Normal
        color: line.ink
        text: line.entry.text
        Accessible.ignored: true
    }
    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        x: line.width - width - 8
        visible: line.entry.isSubmenu
        name: "chevron.down"
        rotation: -90
        size: 9
        colour: line.isCurrent ? Theme.inkOnFill : Theme.secondary
    }
    Divider {
        visible: line.entry.isSeparator
        x: 8
        y: 5
        width: parent.width - 16
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        enabled: line.canBeChosen
        onEntered: line.pointed()
        onClicked: line.chosen()
    }
}
