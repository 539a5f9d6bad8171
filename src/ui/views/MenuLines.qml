// SPDX-License-Identifier: MIT
// Several entries of an open menu in a column.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Column {
    id: column

    required property var entries
    // The index of the current entry, and of our first one, in the whole menu.
    required property int current
    property int first: 0

    signal pointed(int index)
    signal chosen(int index)

    function lineAt(index) {
        return lines.itemAt(index - first);
    }
    function widest() {
        let width = 0;
        for (let i = 0; i < lines.count; ++i)
            width = Math.max(width, lines.itemAt(i).implicitWidth);
        return width;
    }

    Repeater {
        id: lines
        model: column.entries

        MenuLine {
            required property int index
            required property var modelData

            width: column.width
            entry: modelData
            isCurrent: column.current === column.first + index
            onPointed: column.pointed(column.first + index)
            onChosen: column.chosen(column.first + index)
        }
    }
}
