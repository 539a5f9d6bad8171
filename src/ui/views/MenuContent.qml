// SPDX-License-Identifier: MIT
// The entries of an open menu, with the current one highlighted.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

FocusScope {
    id: content

    required property var entries
    // These stay below the others, which scroll.
    required property var pinned
    // Whether the menu is open and therefore has the focus.
    required property bool hasKeyboard
    property int current: -1
    readonly property var all: [...entries, ...pinned]
    readonly property real pinnedHeight: pinned.length > 0 ? pinnedLines.implicitHeight + 11 : 0
    readonly property real wantedHeight: lines.implicitHeight + pinnedHeight

    signal chosen(string key, bool isSubmenu)

    focus: true
    Accessible.role: Accessible.PopupMenu
    onCurrentChanged: focusCurrent()
    onHasKeyboardChanged: focusCurrent()
    Keys.onDownPressed: move(1)
    Keys.onUpPressed: move(current < 0 ? 0 : -1)
    Keys.onReturnPressed: choose(current)
    Keys.onEnterPressed: choose(current)
    Keys.onSpacePressed: choose(current)
    Keys.onRightPressed: if (current >= 0 && all[current].isSubmenu)
        choose(current)

    function widest() {
        return Math.max(lines.widest(), pinnedLines.widest());
    }
    function canBeChosen(entry) {
        return entry && !entry.isHeading && !entry.isSeparator;
    }
    function choose(index) {
        const entry = all[index];
        if (canBeChosen(entry))
            chosen(entry.key, entry.isSubmenu);
    }
    function move(by) {
        let next = current;
        for (let i = 0; i < all.length; ++i) {
            next = (next + by + all.length) % all.length;
            if (canBeChosen(all[next]))
                break;
        }
        current = next;
        showCurrent();
    }
    // The entry gets the focus, so that a screen reader announces it.
    function focusCurrent() {
        const line = current < entries.length ? lines.lineAt(current) : pinnedLines.lineAt(current);
        if (hasKeyboard && line)
            line.forceActiveFocus();
    }
    function showCurrent() {
        const line = current < entries.length ? lines.lineAt(current) : null;
        if (!line)
            return;
        const lowest = Math.max(0, list.contentHeight - list.height);
        const shown = Math.max(line.y + line.height - list.height, Math.min(list.contentY, line.y));
        list.contentY = Math.max(0, Math.min(lowest, shown));
    }

    Flickable {
        id: list
        width: parent.width
        height: parent.height - content.pinnedHeight
        contentHeight: lines.implicitHeight
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        onHeightChanged: content.showCurrent()

        MenuLines {
            id: lines
            width: parent.width
            entries: content.entries
            current: content.current
            onPositioningComplete: content.showCurrent()
            onPointed: index => content.current = index
            onChosen: index => content.choose(index)
        }
    }
    Divider {
        visible: content.pinned.length > 0
        x: 8
        y: list.height + 5
        width: parent.width - 16
    }
    MenuLines {
        id: pinnedLines
        y: list.height + 11
        width: parent.width
        entries: content.pinned
        current: content.current
        first: content.entries.length
        onPointed: index => content.current = index
        onChosen: index => content.choose(index)
    }
}
