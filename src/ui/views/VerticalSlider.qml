// SPDX-License-Identifier: MIT
// One band of the equalizer, in whole decibels.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: slider

    property real modelValue: 0
    property real minimumValue: -12
    property real maximumValue: 12
    property string name
    property string spokenValue
    property string help
    property bool visualFocus: false
    // Read and written by assistive technology; see onValueChanged.
    property real value: modelValue
    property real stepSize: 1

    signal edited(real wanted)

    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.description: spokenValue
    Accessible.focusable: true
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)

    function ask(wanted) {
        const whole = Math.round(Math.max(minimumValue, Math.min(maximumValue, wanted)));
        if (whole !== modelValue)
            edited(whole);
    }
    function step(by) {
        ask(modelValue + by);
    }
    function follow(y) {
        const fraction = 1 - Math.max(0, Math.min(height, y)) / height;
        ask(minimumValue + (maximumValue - minimumValue) * fraction);
    }
    function position(decibels) {
        return height * (maximumValue - decibels) / (maximumValue - minimumValue);
    }
    onModelValueChanged: value = modelValue
    onValueChanged: {
        if (value === modelValue)
            return;
        ask(value);
        value = modelValue;
    }
    onActiveFocusChanged: if (!activeFocus)
        visualFocus = false

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Up && event.key !== Qt.Key_Down)
            return;
        visualFocus = true;
        step(event.key === Qt.Key_Up ? 1 : -1);
        event.accepted = true;
    }
    // Only focus by keyboard is visible, focus by mouse is not.
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab)
            visualFocus = true;
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 3
        height: parent.height
        radius: 1.5
        color: Theme.layer(0.08)
    }
    Rectangle {
        readonly property real middle: slider.position(0)
        readonly property real end: slider.position(slider.modelValue)
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(middle, end)
        width: 3
        height: Math.abs(middle - end)
        radius: 1.5
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Theme.violet
            }
            GradientStop {
                position: 1
                color: Theme.cyan
            }
        }
    }
    Thumb {
        diameter: 11
        x: (slider.width - width) / 2
        y: slider.position(slider.modelValue) - height / 2
        isFocused: slider.activeFocus && slider.visualFocus
    }
    MouseArea {
        // Movement during a double click must not undo the reset.
        property bool wasReset: false

        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => {
            slider.forceActiveFocus(Qt.MouseFocusReason);
            slider.visualFocus = false;
            slider.follow(mouse.y);
        }
        onPositionChanged: mouse => {
            if (!wasReset)
                slider.follow(mouse.y);
        }
        onDoubleClicked: {
            wasReset = true;
            slider.ask(0);
        }
        onReleased: wasReset = false
        onCanceled: wasReset = false
    }
    Hint {
        text: slider.help
    }
}
