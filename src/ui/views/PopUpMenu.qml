// SPDX-License-Identifier: MIT
// An open menu. It stays inside the panel: the entries scroll, those of `pinned` stay below them.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.Popup {
    id: menu

    property var entries: []
    property var pinned: []
    // From just before the menu opens until it has closed; the owner fills it during that time.
    property bool isWanted: false
    // The width of the widest entry.
    property real natural: 0
    // The right edge and the top in the window, and the available height.
    property real right: 364
    property real top: 0
    readonly property real space: parent ? parent.height / Theme.zoom : 0
    // The origin, in the panel's coordinates.
    readonly property real upper: Math.max(6, Math.min(top, space - 6 - least))
    // It shrinks rather than cover its opener; in a low panel it moves up first.
    readonly property real wanted: content.wantedHeight + 2 * padding
    readonly property real least: Math.min(wanted, 220)
    readonly property MenuContent content: MenuContent {
        entries: menu.entries
        pinned: menu.pinned
        hasKeyboard: menu.opened
        onChosen: (key, isSubmenu) => {
            if (!isSubmenu)
                menu.close();
            menu.chosen(key, isSubmenu);
        }
    }

    signal chosen(string key, bool isSubmenu)

    parent: T.Overlay.overlay
    width: Math.min(natural + 2 * padding, Theme.panelWidth - 12)
    height: Math.min(wanted, space - 6 - upper)
    x: Math.max(6, right - width) * Theme.zoom
    y: upper * Theme.zoom
    scale: Theme.zoom
    transformOrigin: T.Popup.TopLeft
    padding: 5
    modal: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onClosed: isWanted = false
    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.menuIn
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            from: 1
            to: 0
            duration: Theme.menuOut
        }
    }
    background: MenuSurface {
    }
    contentItem: content

    function openAt(anchor, below) {
        const place = anchor.mapToItem(T.Overlay.overlay, anchor.width, anchor.height + below);
        right = Math.min(364, place.x / Theme.zoom + 6);
        top = place.y / Theme.zoom;
        openMeasured();
    }
    function openMeasured() {
        isWanted = true;
        if (content.all.length === 0) {
            isWanted = false;
            return;
        }
        natural = content.widest();
        content.current = content.all.findIndex(entry => entry.isChecked);
        open();
    }
}
