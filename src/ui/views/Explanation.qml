// SPDX-License-Identifier: MIT
// Small text below a setting that explains it.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Label {
    width: parent ? Math.min(318, parent.width) : 318
    wrapMode: Text.Wrap
    size: 11
    line: 15
    color: Theme.secondary
}
