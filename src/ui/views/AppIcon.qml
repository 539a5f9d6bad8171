// SPDX-License-Identifier: MIT
// The program's own icon.
import QtQuick

Image {
    width: 26
    height: 26
    sourceSize: Qt.size(26, 26)
    source: "image://appicon/?file=:/icons/app-icon-small.svg"
}
