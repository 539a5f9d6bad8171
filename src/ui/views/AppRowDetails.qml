// SPDX-License-Identifier: MIT
// An app's settings other than its volume.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: details

    required property AppRowModel row

    implicitHeight: recording.y + recording.height + 10

    Divider {
        id: line
        width: parent.width
    }
    DeviceRow {
        id: device
        anchors.top: line.bottom
        anchors.topMargin: 8
        width: parent.width
        row: details.row
    }
    EQSection {
        id: equalizer
        anchors.top: device.bottom
        anchors.topMargin: 6
        width: parent.width
        eq: details.row.eq
    }
    RecordRow {
        id: recording
        anchors.top: equalizer.bottom
        anchors.topMargin: 8
        width: parent.width
        row: details.row
    }
}
