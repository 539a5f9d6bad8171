// SPDX-License-Identifier: MIT
// A button that opens a menu.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

PushButton {
    id: button

    property alias entries: popup.entries
    property string spokenName

    signal chosen(string key)

    hasChevron: true
    // Menus are read only while they are open.
    isOpen: popup.isWanted
    Accessible.role: Accessible.ComboBox
    Accessible.name: spokenName === "" ? text : spokenName + ", " + text
    onClicked: popup.opened ? popup.close() : popup.openAt(button, 4)
    Keys.onDownPressed: popup.openAt(button, 4)

    PopUpMenu {
        id: popup
        onChosen: key => button.chosen(key)
    }
}
