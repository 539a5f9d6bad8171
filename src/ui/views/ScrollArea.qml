// SPDX-License-Identifier: MIT
// Shows a part of what is too high for its place, and follows the keyboard.
pragma ComponentBehavior: Bound

import QtQuick

Flickable {
    id: area

    // What stays free around the control with the keyboard.
    readonly property real margin: 12
    readonly property Item focused: Window.activeFocusItem
    // Until the user scrolls, what has the keyboard stays in sight: it may need room that is yet to come.
    property bool isFollowing: false

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    onFocusedChanged: {
        isFollowing = true;
        showFocused();
    }
    onContentHeightChanged: if (isFollowing)
        showFocused()
    onHeightChanged: if (isFollowing)
        showFocused()
    onMovementStarted: isFollowing = false

    function showFocused() {
        for (let item = focused; item; item = item.parent) {
            if (item !== contentItem)
                continue;
            const top = focused.mapToItem(contentItem, 0, 0).y;
            const lowest = Math.max(0, contentHeight - height);
            contentY = Math.max(0, Math.min(lowest, top - margin, Math.max(contentY, top + focused.height + margin - height)));
            return;
        }
    }
}
