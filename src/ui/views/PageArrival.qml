// SPDX-License-Identifier: MIT
// A page that comes fades in and slides a little; without animations it is simply there.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

ParallelAnimation {
    id: arrival

    required property Item page
    required property Translate slide
    required property bool isAnimated
    // From where it slides to its place.
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
