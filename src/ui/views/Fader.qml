// SPDX-License-Identifier: MIT
// A horizontal slider. It displays only `modelValue`: user input emits `edited`, and the model's response is displayed,
// even if the model snaps or refuses.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.Slider {
    id: fader

    property real modelValue: 0
    // The origin of the fill.
    property real origin: from
    property real thumb: 14
    property bool isMuted: false
    // Above this the fill is a boost; a tick marks it if the range extends beyond.
    property real boostFrom: to
    property string spokenValue
    // Read by Qt's accessibility.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    readonly property real low: Math.min(modelValue, origin)
    readonly property real high: Math.min(Math.max(modelValue, origin), boostFrom)
    property bool isReady: false

    signal edited(real wanted)

    implicitHeight: 16
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.description: spokenValue

    function shown(value) {
        return to > from ? Math.max(0, Math.min(1, (value - from) / (to - from))) : 0;
    }
    function centre(value) {
        return thumb / 2 + shown(value) * (width - thumb);
    }
    function sync() {
        if (!pressed && value !== modelValue)
            value = modelValue;
    }
    onModelValueChanged: sync()
    onPressedChanged: sync()
    // Also for keyboard and assistive technology, which change the value without a move signal.
    onValueChanged: {
        if (!isReady || Math.abs(value - Math.max(from, Math.min(to, modelValue))) < 1e-6)
            return;
        edited(value);
        sync();
    }
    Component.onCompleted: {
        sync();
        isReady = true;
    }

    background: FaderGroove {
        opacity: fader.enabled ? 1 : 0.4
        isPointed: fader.hovered || fader.pressed
        isMuted: fader.isMuted
        fillStart: fader.low === fader.from ? 0 : fader.centre(fader.low)
        fillEnd: fader.centre(fader.high)
        boostStart: fader.centre(fader.boostFrom)
        boostEnd: fader.modelValue > fader.boostFrom ? fader.centre(fader.modelValue) : boostStart
        hasTick: fader.boostFrom < fader.to
    }
    handle: Item {
        x: fader.centre(fader.modelValue) - width / 2
        y: (fader.height - height) / 2
        width: fader.thumb
        height: fader.thumb

        Thumb {
            anchors.centerIn: parent
            diameter: fader.pressed ? fader.thumb * 15.7 / 14 : fader.thumb
            isFocused: fader.visualFocus
            opacity: fader.enabled ? 1 : 0.4
        }
    }
}
