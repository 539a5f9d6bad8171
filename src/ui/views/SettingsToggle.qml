// SPDX-License-Identifier: MIT
// A setting that is on or off.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

SettingsRow {
    id: setting

    property bool isOn: false

    signal asked(bool isOn)

    ToggleSwitch {
        text: setting.title
        isOn: setting.isOn
        onAsked: isOn => setting.asked(isOn)
    }
}
