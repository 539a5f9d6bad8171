// SPDX-License-Identifier: MIT
// A horizontal slider. It shows `modelValue` and nothing else: what the hand does is asked for with `edited`, and the
// model's answer is what is seen, also when the model snaps or refuses.
import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.Slider {
    id: fader

    property real modelValue: 0
    // Where the fill begins.
    property real origin: from
    property real thumb: 14
    property bool isMuted: false
    // Above this the fill is a boost; a tick stands there when there is room beyond.
    property real boostFrom: to
    property string spokenValue
    // What the accessibility of Qt reads.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    property bool isReady: false

    signal edited(real wanted)

    implicitHeight: 16
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.description: spokenValue

    function shown(value) {
        return to > from ? Math.max(0, Math.min(1, (value - from) / (to - from))) : 0
    }
    function centre(value) {
        return thumb / 2 + shown(value) * (width - thumb)
    }
    function edge(value) {
        return value <= from ? 0 : value >= to ? width : centre(value)
    }
    function sync() {
        if (!pressed && value !== modelValue)
            value = modelValue
    }
    onModelValueChanged: sync()
    onPressedChanged: sync()
    // Also for the keyboard and for assistive programs, which move the value without a word.
    onValueChanged: {
        if (!isReady || Math.abs(value - Math.max(from, Math.min(to, modelValue))) < 1e-6)
            return
        edited(value)
        sync()
    }
    Component.onCompleted: {
        sync()
        isReady = true
    }

    background: Item {
        opacity: fader.enabled ? 1 : 0.4

        Rectangle {
            id: track
            y: (parent.height - height) / 2
            width: parent.width
            height: fader.hovered || fader.pressed ? 5 : 4
            radius: height / 2
            color: Theme.sliderTrack
        }
        Rectangle {
            readonly property real low: Math.min(fader.modelValue, fader.origin)
            readonly property real high: Math.min(Math.max(fader.modelValue, fader.origin), fader.boostFrom)
            x: low === fader.from ? 0 : fader.centre(low)
            y: track.y
            width: Math.max(0, fader.centre(high) - x)
            height: track.height
            radius: height / 2
            opacity: fader.isMuted ? 0.45 : 1
            color: fader.hovered || fader.pressed ? Theme.sliderFillHovered : Theme.sliderFill
        }
        Rectangle {
            visible: fader.modelValue > fader.boostFrom
            x: fader.centre(fader.boostFrom)
            y: track.y
            width: Math.max(0, fader.centre(fader.modelValue) - x)
            height: track.height
            opacity: fader.isMuted ? 0.45 : 1
            color: Theme.boost
        }
        Rectangle {
            visible: fader.boostFrom < fader.to
            x: Math.round(fader.centre(fader.boostFrom))
            y: (parent.height - height) / 2
            width: 1
            height: 14
            color: Theme.layer(0.30)
        }
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
