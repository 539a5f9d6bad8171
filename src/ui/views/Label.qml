// SPDX-License-Identifier: MIT
// Text of the panel. A single line is centred in its height; wrapped text has a fixed line height.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Text {
    property int size: 12
    property int line: 16
    property int weight: Font.Normal

    color: Theme.ink
    font.family: Theme.family
    font.pixelSize: size
    font.weight: weight
    font.hintingPreference: Font.PreferNoHinting
    font.letterSpacing: size === 14 ? -0.1 : size === 13 ? -0.05 : 0
    height: wrapMode === Text.NoWrap ? line : implicitHeight
    lineHeight: wrapMode === Text.NoWrap ? 1 : line
    lineHeightMode: wrapMode === Text.NoWrap ? Text.ProportionalHeight : Text.FixedHeight
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
    renderType: Text.QtRendering

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
