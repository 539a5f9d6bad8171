// SPDX-License-Identifier: MIT
// A single-line text field.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.TextField {
    id: field

    implicitHeight: 24
    leftPadding: 9
    rightPadding: 9
    color: Theme.ink
    selectionColor: Theme.fill
    selectedTextColor: Theme.inkOnFill
    font.family: Theme.family
    font.pixelSize: 12
    font.hintingPreference: Font.PreferNoHinting
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    Label {
        anchors.fill: parent
        anchors.leftMargin: field.leftPadding
        visible: field.text === "" && field.preeditText === ""
        color: Theme.secondary
        text: field.placeholderText
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: 6
        color: Theme.field
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Theme.accent : Theme.fieldBorder
    }
}
