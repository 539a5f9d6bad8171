// SPDX-License-Identifier: MIT
// Prompts for the name of a new preset. Collapsed, it has no height.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: naming

    property bool isOpen: false

    signal named(string name)

    visible: isOpen
    implicitHeight: isOpen ? 32 : 0

    function start() {
        isOpen = true;
        field.text = "";
        field.forceActiveFocus();
    }
    function save() {
        named(field.text);
        isOpen = false;
    }

    NameField {
        id: field
        y: 8
        anchors.left: parent.left
        anchors.right: saveButton.left
        anchors.rightMargin: 8
        placeholderText: qsTr("Preset name")
        onAccepted: naming.save()
        Keys.onEscapePressed: naming.isOpen = false
    }
    PushButton {
        id: saveButton
        y: 8
        anchors.right: cancelButton.left
        anchors.rightMargin: 8
        text: qsTr("Save")
        onClicked: naming.save()
    }
    PushButton {
        id: cancelButton
        y: 8
        anchors.right: parent.right
        text: qsTr("Cancel")
        onClicked: naming.isOpen = false
    }
}
