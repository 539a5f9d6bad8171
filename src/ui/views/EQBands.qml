// SPDX-License-Identifier: MIT
// The ten bands with their labels.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Row {
    id: bands

    required property EQModel eq

    Repeater {
        model: bands.eq.gains.length

        Item {
            id: band

            required property int index
            readonly property real gain: bands.eq.gains[index]

            width: 33.6
            height: 114

            VerticalSlider {
                width: parent.width
                height: 96
                modelValue: band.gain
                name: bands.eq.spokenBand(band.index)
                spokenValue: bands.eq.spokenGain(band.gain)
                help: bands.eq.bandHelp(band.index, band.gain)
                onEdited: wanted => bands.eq.setGain(band.index, wanted)
            }
            Label {
                y: 104
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                size: 8
                line: 10
                weight: Font.Medium
                color: Theme.secondary
                text: bands.eq.bandLabel(band.index)
            }
        }
    }
}
