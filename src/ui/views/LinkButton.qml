// SPDX-License-Identifier: MIT
// Text that can be pressed.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Pressable {
    id: button

    property int size: 12

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding
    implicitHeight: 22
    Accessible.role: Accessible.Link

    contentItem: Label {
        size: button.size
        line: 16
        color: Theme.accent
        font.underline: button.hovered
        elide: Text.ElideRight
        text: button.text
        Accessible.ignored: true
    }
    background: Item {
        FocusRing {
            control: button
            gap: 1
        }
    }
    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
