// SPDX-License-Identifier: MIT
// Texts that name a facility of the system. The keys are the macOS wording; the translations, including the English
// one, have the wording for a Linux desktop, and two tables override them on macOS.
pragma Singleton

import QtQuick

QtObject {
    readonly property string showRecording: qsTr("Show in Finder")
    readonly property string whyPermission: qsTr("macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.")
    readonly property string permissionDenied: qsTr("Access is turned off. Enable Fadeloom in System Settings › Privacy & Security › Screen & System Audio Recording.")
    readonly property string openSystemSettings: qsTr("Open System Settings")
}
