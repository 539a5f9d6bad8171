// SPDX-License-Identifier: MIT
// An open menu. It stays inside the panel: the entries scroll, those of `pinned` stay below them.
import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.Popup {
    id: menu

    property var entries: []
    property var pinned: []
    property int current: -1
    // The widest entry.
    property real natural: 0
    readonly property var all: [...entries, ...pinned]
    // The right edge and the top in the window, and the height that there is.
    property real right: 364
    property real top: 0
    // It rather shrinks below what opened it than covers that; in a low panel it moves up, and shrinks at last.
    readonly property real least: Math.min(wanted, 220)
    readonly property real room: (parent ? parent.height : 0) - 6 - y
    readonly property real pinnedHeight: pinned.length > 0 ? pinnedColumn.implicitHeight + 11 : 0
    readonly property real wanted: column.implicitHeight + pinnedHeight + 10

    signal chosen(string key, bool isSubmenu)

    parent: T.Overlay.overlay
    width: Math.min(natural + 10, (parent ? parent.width : 380) - 12)
    height: Math.min(wanted, room)
    x: Math.max(6, right - width)
    y: Math.max(6, Math.min(top, (parent ? parent.height : 0) - 6 - least))
    padding: 5
    modal: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onCurrentChanged: focusCurrent()
    onOpened: focusCurrent()
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.menuIn }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.menuOut }
    }

    function openAt(anchor, below) {
        const place = anchor.mapToItem(T.Overlay.overlay, anchor.width, anchor.height + below)
        right = Math.min(364, place.x + 6)
        top = place.y
        openMeasured()
    }
    function openMeasured() {
        if (all.length === 0)
            return
        natural = 0
        for (let i = 0; i < entries.length; ++i)
            natural = Math.max(natural, lines.itemAt(i).implicitWidth)
        for (let i = 0; i < pinned.length; ++i)
            natural = Math.max(natural, pinnedLines.itemAt(i).implicitWidth)
        current = all.findIndex(entry => entry.isChecked)
        open()
    }
    function choose(index) {
        const entry = all[index]
        if (!entry || entry.isHeading || entry.isSeparator)
            return
        if (!entry.isSubmenu)
            close()
        chosen(entry.key, entry.isSubmenu)
    }
    function move(by) {
        let next = current
        for (let i = 0; i < all.length; ++i) {
            next = (next + by + all.length) % all.length
            if (!all[next].isHeading && !all[next].isSeparator)
                break
        }
        current = next
        showCurrent()
    }
    function lineAt(index) {
        return index < 0 ? null : index < entries.length ? lines.itemAt(index) : pinnedLines.itemAt(index - entries.length)
    }
    // The entry has the keyboard, so that a screen reader speaks of it.
    function focusCurrent() {
        const line = lineAt(current)
        if (opened && line)
            line.forceActiveFocus()
    }
    function showCurrent() {
        const line = current < entries.length ? lineAt(current) : null
        if (line)
            list.contentY = Math.max(0, Math.min(Math.max(0, list.contentHeight - list.height),
                Math.max(line.y + line.height - list.height, Math.min(list.contentY, line.y))))
    }

    background: Item {
        Repeater {
            model: [[16, 10, 0.08], [11, 7, 0.18], [7, 4, 0.35], [4, 2, 0.6], [2, 1, 1]]
            Rectangle {
                x: -modelData[0]
                y: -modelData[0] + modelData[1]
                width: menu.width + 2 * modelData[0]
                height: menu.height + 2 * modelData[0]
                radius: 9 + modelData[0]
                color: Qt.rgba(0, 0, 0, Theme.menuShadow * modelData[2])
            }
        }
        Rectangle {
            anchors.fill: parent
            radius: 9
            color: Theme.menuSurface
            border.width: 1
            border.color: Theme.menuOutline
        }
    }
    contentItem: FocusScope {
        focus: true
        Accessible.role: Accessible.PopupMenu
        Keys.onDownPressed: menu.move(1)
        Keys.onUpPressed: menu.move(menu.current < 0 ? 0 : -1)
        Keys.onReturnPressed: menu.choose(menu.current)
        Keys.onEnterPressed: menu.choose(menu.current)
        Keys.onSpacePressed: menu.choose(menu.current)
        Keys.onRightPressed: if (menu.current >= 0 && menu.all[menu.current].isSubmenu) menu.choose(menu.current)

        Flickable {
            id: list
            width: parent.width
            height: parent.height - menu.pinnedHeight
            contentHeight: column.implicitHeight
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            onHeightChanged: menu.showCurrent()

            Column {
                id: column
                width: parent.width
                onPositioningComplete: menu.showCurrent()
                Repeater {
                    id: lines
                    model: menu.entries
                    MenuLine {
                        required property int index
                        required property var modelData
                        width: menu.availableWidth
                        entry: modelData
                        isCurrent: menu.current === index
                        onPointed: menu.current = index
                        onChosen: menu.choose(index)
                    }
                }
            }
        }
        Divider {
            visible: menu.pinned.length > 0
            x: 8
            y: list.height + 5
            width: parent.width - 16
        }
        Column {
            id: pinnedColumn
            y: list.height + 11
            width: parent.width
            Repeater {
                id: pinnedLines
                model: menu.pinned
                MenuLine {
                    required property int index
                    required property var modelData
                    width: menu.availableWidth
                    entry: modelData
                    isCurrent: menu.current === menu.entries.length + index
                    onPointed: menu.current = menu.entries.length + index
                    onChosen: menu.choose(menu.entries.length + index)
                }
            }
        }
    }
}
