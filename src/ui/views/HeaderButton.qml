// SPDX-License-Identifier: MIT
// A symbol in the panel's header.
import QtQuick
import Fadeloom

SymbolButton {
    symbolSize: 13
    frame: 24
}
