// SPDX-License-Identifier: MIT
// The system's output, messages, and one row per app.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Column {
    id: mixer

    required property PanelModel panel
    // The app whose row is expanded; at most one is.
    property string expandedApp
    // The available height.
    property real limit: 100000

    OutputPicker {
        width: parent.width
        panel: mixer.panel
    }
    MixerBanner {
        width: parent.width
        panel: mixer.panel
    }
    Divider {
        width: parent.width
    }
    EmptyState {
        visible: list.count === 0
        width: parent.width
    }
    AppList {
        id: list
        visible: count > 0
        width: parent.width
        height: Math.min(contentHeight, 460, mixer.limit - y - (recording.visible ? recording.height : 0))
        panel: mixer.panel
        expandedApp: mixer.expandedApp
        onExpandedAppChanged: mixer.expandedApp = expandedApp
    }
    LastRecording {
        id: recording
        visible: mixer.panel.lastRecording !== ""
        width: parent.width
        panel: mixer.panel
    }
}
