// SPDX-License-Identifier: MIT
// Base of all our buttons: a press by mouse, key or assistive technology emits `clicked` once.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.AbstractButton {
    property string help

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Accessible.onPressAction: if (enabled)
        clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Hint {
        text: parent.help
    }
}
