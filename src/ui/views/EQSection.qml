// SPDX-License-Identifier: MIT
// One app's equalizer.
import QtQuick
import Fadeloom

Item {
    id: section

    property EQModel eq
    property bool isNaming: false
    readonly property var gains: eq ? eq.gains : []

    implicitHeight: column.implicitHeight

    function startNaming() {
        isNaming = true
        field.text = ""
        field.forceActiveFocus()
    }
    function save() {
        eq.savePreset(field.text)
        isNaming = false
    }

    Column {
        id: column
        width: parent.width

        Item {
            width: parent.width
            height: 20
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "slider.vertical.3"
                size: 13
                colour: Theme.secondary
            }
            Label {
                id: title
                x: 19
                y: 2
                size: 11
                color: Theme.secondary
                text: qsTr("Equalizer")
            }
            ToggleSwitch {
                id: toggle
                anchors.left: title.right
                anchors.leftMargin: 10
                y: 2
                isSmall: true
                text: title.text
                isOn: section.eq ? section.eq.isEnabled : false
                onAsked: isOn => section.eq.setEnabled(isOn)
            }
            PresetMenu {
                anchors.right: parent.right
                y: 2
                width: Math.min(implicitWidth, parent.width - toggle.x - toggle.width - 16)
                eq: section.eq
                onNameWanted: section.startNaming()
            }
        }
        Item {
            width: 1
            height: 8
        }
        ResponseCurve {
            width: parent.width
            height: 56
            gains: section.gains
            preamp: section.eq ? section.eq.preamp : 0
            active: section.eq ? section.eq.isEnabled : false
            ink: Theme.ink
            Accessible.ignored: true
        }
        Item {
            width: 1
            height: 14
        }
        Row {
            // Each band stands under its point of the curve.
            x: 6
            Repeater {
                model: 10
                Item {
                    id: band
                    required property int index
                    readonly property real gain: section.gains.length > index ? section.gains[index] : 0

                    width: 33.6
                    height: 114
                    VerticalSlider {
                        width: parent.width
                        height: 96
                        modelValue: band.gain
                        name: section.eq ? section.eq.spokenBand(band.index) : ""
                        spokenValue: section.eq ? section.eq.spokenGain(band.gain) : ""
                        help: section.eq ? section.eq.bandHelp(band.index, band.gain) : ""
                        onEdited: wanted => section.eq.setGain(band.index, wanted)
                    }
                    Label {
                        y: 104
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        size: 8
                        line: 10
                        weight: Font.Medium
                        color: Theme.secondary
                        text: section.eq ? section.eq.bandLabel(band.index) : ""
                    }
                }
            }
        }
        Item {
            width: 1
            height: 8
        }
        Item {
            width: parent.width
            height: 16
            Label {
                id: preampTitle
                width: Math.max(48, Math.ceil(implicitWidth))
                size: 11
                text: qsTr("Preamp")
            }
            Fader {
                anchors.left: preampTitle.right
                anchors.leftMargin: 8
                anchors.right: preampValue.left
                anchors.rightMargin: 8
                height: 16
                from: -12
                to: 12
                stepSize: 1
                thumb: 12
                origin: 0
                modelValue: section.eq ? section.eq.preamp : 0
                spokenValue: section.eq ? section.eq.spokenPreamp : ""
                Accessible.name: preampTitle.text
                onEdited: wanted => section.eq.setPreamp(wanted)
            }
            Label {
                id: preampValue
                anchors.right: parent.right
                width: 44
                horizontalAlignment: Text.AlignRight
                size: 10
                line: 16
                color: Theme.secondary
                text: section.eq ? section.eq.preampText : ""
                MouseArea {
                    anchors.fill: parent
                    onDoubleClicked: section.eq.setPreamp(0)
                }
                Hint {
                    text: qsTr("Double-click to reset")
                }
            }
        }
        Item {
            visible: section.isNaming
            width: parent.width
            height: 32
            NameField {
                id: field
                y: 8
                anchors.left: parent.left
                anchors.right: saveButton.left
                anchors.rightMargin: 8
                placeholderText: qsTr("Preset name")
                onAccepted: section.save()
                Keys.onEscapePressed: section.isNaming = false
            }
            PushButton {
                id: saveButton
                y: 8
                anchors.right: cancelButton.left
                anchors.rightMargin: 8
                text: qsTr("Save")
                onClicked: section.save()
            }
            PushButton {
                id: cancelButton
                y: 8
                anchors.right: parent.right
                text: qsTr("Cancel")
                onClicked: section.isNaming = false
            }
        }
    }
}
