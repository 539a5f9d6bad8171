// SPDX-License-Identifier: MIT
// The program's own icon.
pragma ComponentBehavior: Bound

import QtQuick

Image {
    width: 26
    height: 26
    sourceSize.width: 26
    sourceSize.height: 26
    source: "image://appicon/?file=:/icons/app-icon-small.svg"
}
