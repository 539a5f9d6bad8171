// SPDX-License-Identifier: MIT
// What all our buttons have in common: a press by mouse, key or an assistive program is one `clicked`.
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
