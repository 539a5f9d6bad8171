// SPDX-License-Identifier: MIT
// A switch. It displays `isOn` and emits `asked` to request the opposite.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Fadeloom

T.CheckBox {
    id: toggle

    property bool isOn: false
    property bool isSmall: false
    readonly property real knob: isSmall ? 12 : 14

    signal asked(bool isOn)

    implicitWidth: isSmall ? 26 : 30
    implicitHeight: isSmall ? 16 : 18
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    checked: isOn
    // A click only requests a change; the state follows the model.
    nextCheckState: () => isOn ? Qt.Checked : Qt.Unchecked
    Accessible.name: text
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    Keys.onReturnPressed: flip()
    onClicked: flip()

    function flip() {
        if (enabled)
            asked(!isOn);
    }

    background: Rectangle {
        radius: height / 2
        opacity: toggle.enabled ? 1 : 0.4
        color: toggle.isOn ? Theme.switchOn : Theme.switchOff
        Behavior on color {
            enabled: Theme.animations
            ColorAnimation {
                duration: Theme.knob
            }
        }
        FocusRing {
            control: toggle
            corner: parent.radius
        }
        Rectangle {
            x: toggle.isOn ? parent.width - width - 2 : 2
            y: 2
            width: toggle.knob
            height: toggle.knob
            radius: width / 2
            color: Theme.inkOnFill
            Behavior on x {
                enabled: Theme.animations
                NumberAnimation {
                    duration: Theme.knob
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
    contentItem: Item {
    }
}
