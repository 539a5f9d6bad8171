// SPDX-License-Identifier: MIT
// One app's equalizer.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: section

    required property EQModel eq

    implicitHeight: naming.y + naming.height

    function startNaming() {
        naming.start();
    }

    EQHeader {
        id: header
        width: parent.width
        eq: section.eq
        onNameWanted: naming.start()
    }
    ResponseCurve {
        id: curve
        anchors.top: header.bottom
        anchors.topMargin: 8
        width: parent.width
        height: 56
        gains: section.eq.gains
        preamp: section.eq.preamp
        active: section.eq.isEnabled
        ink: Theme.ink
        Accessible.ignored: true
    }
    EQBands {
        id: bands
        anchors.top: curve.bottom
        anchors.topMargin: 14
        // Each band is below its point of the curve.
        x: 6
        eq: section.eq
    }
    EQPreamp {
        id: preamp
        anchors.top: bands.bottom
        anchors.topMargin: 8
        width: parent.width
        eq: section.eq
    }
    PresetNaming {
        id: naming
        anchors.top: preamp.bottom
        width: parent.width
        onNamed: name => section.eq.savePreset(name)
    }
}
