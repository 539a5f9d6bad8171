// SPDX-License-Identifier: MIT
// Text that opens a menu and shows its selection. It is aligned to the right edge; its background extends beyond it.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Pressable {
    id: label

    readonly property PopUpMenu menu: popup
    property alias entries: popup.entries
    property alias pinned: popup.pinned
    // Menus are read only while they are open.
    readonly property alias isOpen: popup.isWanted
    property int size: 12
    required property string spokenName

    signal chosen(string key, bool isSubmenu)

    implicitWidth: Math.ceil(implicitContentWidth) + 14
    implicitHeight: 16
    Accessible.role: Accessible.ComboBox
    Accessible.name: spokenName + ", " + text
    onClicked: popup.opened ? popup.close() : popup.openAt(label, 8)
    Keys.onDownPressed: popup.openAt(label, 8)

    background: Rectangle {
        x: -8
        y: -4
        width: label.width + 14
        height: label.height + 8
        radius: 6
        color: Theme.layer(popup.visible ? 0.14 : label.pressed ? 0.16 : label.hovered ? 0.08 : 0)
        FocusRing {
            control: label
            gap: 0
        }
    }
    contentItem: Item {
        implicitWidth: children[0].implicitWidth

        Label {
            width: parent.width - 14
            size: label.size
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignRight
            text: label.text
            Accessible.ignored: true
        }
        Symbol {
            // The glyph, not its box, is aligned to the edge.
            x: parent.width - width + 1
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 9
            colour: Theme.secondary
        }
    }
    PopUpMenu {
        id: popup
        onChosen: (key, isSubmenu) => label.chosen(key, isSubmenu)
    }
}
