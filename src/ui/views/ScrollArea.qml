// SPDX-License-Identifier: MIT
// Scrolls content that does not fit, and follows the focus.
pragma ComponentBehavior: Bound

import QtQuick

Flickable {
    id: area

    // The margin around the focused control.
    readonly property real margin: 12
    readonly property Item focused: Window.activeFocusItem
    // Until the user scrolls, the focused control stays visible, even if its size is still changing.
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
