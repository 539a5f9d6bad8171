// SPDX-License-Identifier: MIT
// One of a few, all of them seen.
import QtQuick
import QtQuick.Templates as T
import Fadeloom

Rectangle {
    id: picker

    property var choices: []
    property int current: 0

    signal asked(int choice)

    implicitWidth: Math.ceil(row.implicitWidth) + 4
    implicitHeight: 24
    radius: 7
    color: Theme.layer(0.08)

    Row {
        id: row
        x: 2
        y: 2
        Repeater {
            model: picker.choices
            T.RadioButton {
                id: segment
                required property int index
                required property string modelData
                readonly property bool isCurrent: index === picker.current

                text: modelData
                implicitWidth: Math.ceil(words.implicitWidth) + 24
                implicitHeight: 20
                hoverEnabled: true
                focusPolicy: Qt.StrongFocus
                checked: isCurrent
                Accessible.name: text
                Accessible.onPressAction: picker.asked(index)
                Accessible.onToggleAction: picker.asked(index)
                Keys.onReturnPressed: picker.asked(index)
                Keys.onLeftPressed: if (index > 0) picker.asked(index - 1)
                Keys.onRightPressed: if (index + 1 < picker.choices.length) picker.asked(index + 1)
                onClicked: picker.asked(index)

                background: Rectangle {
                    radius: 5
                    color: segment.isCurrent ? Theme.selectedSegment : Theme.at(Theme.ink, segment.hovered ? 0.06 : 0)
                    FocusRing {
                        control: segment
                        corner: 5
                        gap: 1
                    }
                }
                contentItem: Label {
                    id: words
                    weight: Font.Medium
                    size: 11
                    horizontalAlignment: Text.AlignHCenter
                    color: segment.isCurrent ? Theme.ink : Theme.secondary
                    text: segment.text
                    Accessible.ignored: true
                }
            }
        }
    }
}
