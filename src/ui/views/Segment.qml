// SPDX-License-Identifier: MIT
// One option of a segmented picker.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.RadioButton {
    id: segment

    required property int index
    required property string modelData
    required property bool isCurrent
    required property int count

    signal asked(int choice)

    text: modelData
    implicitWidth: Math.ceil(implicitContentWidth) + 24
    implicitHeight: 20
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    checked: isCurrent
    Accessible.name: text
    Accessible.onPressAction: asked(index)
    Accessible.onToggleAction: asked(index)
    Keys.onReturnPressed: asked(index)
    Keys.onLeftPressed: if (index > 0)
        asked(index - 1)
    Keys.onRightPressed: if (index + 1 < count)
        asked(index + 1)
    onClicked: asked(index)

    background: Rectangle {
        radius: 5
        color: segment.isCurrent ? Theme.selectedSegment : Theme.layer(segment.hovered ? 0.06 : 0)
        FocusRing {
            control: segment
            corner: 5
            gap: 1
        }
    }
    contentItem: Label {
        weight: Font.Medium
        size: 11
        horizontalAlignment: Text.AlignHCenter
        color: segment.isCurrent ? Theme.ink : Theme.secondary
        text: segment.text
        Accessible.ignored: true
    }
}
