// SPDX-License-Identifier: MIT
// A fader's groove: the filled part, a boost in a different colour, and a tick where that begins.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: groove

    required property bool isPointed
    required property bool isMuted
    // From the left edge: the ends of the fill, and of the boost beyond it, which is empty without one.
    required property real fillStart
    required property real fillEnd
    required property real boostStart
    required property real boostEnd
    // Whether the range includes a boost.
    required property bool hasTick
    readonly property real opacityOfFill: isMuted ? 0.45 : 1

    Rectangle {
        id: track
        y: (parent.height - height) / 2
        width: parent.width
        height: groove.isPointed ? 5 : 4
        radius: height / 2
        color: Theme.sliderTrack
    }
    Rectangle {
        x: groove.fillStart
        y: track.y
        width: Math.max(0, groove.fillEnd - x)
        height: track.height
        radius: height / 2
        opacity: groove.opacityOfFill
        color: groove.isPointed ? Theme.sliderFillHovered : Theme.sliderFill
    }
    Rectangle {
        visible: groove.boostEnd > groove.boostStart
        x: groove.boostStart
        y: track.y
        width: Math.max(0, groove.boostEnd - x)
        height: track.height
        opacity: groove.opacityOfFill
        color: Theme.boost
    }
    Rectangle {
        visible: groove.hasTick
        x: Math.round(groove.boostStart)
        y: (parent.height - height) / 2
        width: 1
        height: 14
        color: Theme.layer(0.30)
    }
}
