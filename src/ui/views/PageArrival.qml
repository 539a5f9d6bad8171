// SPDX-License-Identifier: MIT
// The transition to a page: it fades in and slides a little; without animations it appears immediately.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

ParallelAnimation {
    id: arrival

    required property Item page
    required property Translate slide
    required property bool isAnimated
    // The initial offset.
    required property real offset

    NumberAnimation {
        target: arrival.page
        property: "opacity"
        from: arrival.isAnimated ? 0 : 1
        to: 1
        duration: Theme.page
        easing.type: Easing.OutCubic
    }
    NumberAnimation {
        target: arrival.slide
        property: "x"
        from: arrival.isAnimated ? arrival.offset : 0
        to: 0
        duration: Theme.page
        easing.type: Easing.OutCubic
    }
}
