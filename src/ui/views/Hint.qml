// SPDX-License-Identifier: MIT
// A tooltip that appears when the pointer rests on its parent.
// Not bound: the Loader of Qt 6.4 rejects bound components.
// qmllint disable unqualified
import QtQuick
import QtQuick.Templates as T
import Fadeloom

Item {
    id: hint

    property string text

    anchors.fill: parent

    HoverHandler {
        id: hover
    }
    Timer {
        id: rest
        interval: 700
        running: hover.hovered && hint.text !== ""
        onTriggered: bubble.active = true
    }
    Loader {
        id: bubble
        active: false
        sourceComponent: T.ToolTip {
            parent: hint
            x: Math.round((hint.width - width) / 2)
            y: hint.height + 6
            scale: Theme.zoom
            transformOrigin: T.Popup.TopLeft
            margins: 6
            padding: 6
            leftPadding: 8
            rightPadding: 8
            implicitWidth: Math.min(implicitContentWidth, 260) + leftPadding + rightPadding
            implicitHeight: implicitContentHeight + topPadding + bottomPadding
            visible: true
            closePolicy: T.Popup.NoAutoClose
            contentItem: Label {
                size: 11
                line: 15
                wrapMode: Text.Wrap
                text: hint.text
                Accessible.ignored: true
            }
            background: Rectangle {
                radius: 6
                color: Theme.menuSurface
                border.width: 1
                border.color: Theme.menuOutline
            }
        }
    }
    Connections {
        target: hover
        function onHoveredChanged() {
            if (!hover.hovered)
                bubble.active = false;
        }
    }
}
