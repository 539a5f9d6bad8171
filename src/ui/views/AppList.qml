// SPDX-License-Identifier: MIT
// The rows of the mixer, at most one of them expanded.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

ScrollArea {
    id: area

    required property PanelModel panel
    property string expandedApp
    readonly property alias count: rows.count

    contentHeight: list.implicitHeight + 20

    Column {
        id: list
        y: 10
        width: parent.width

        Repeater {
            id: rows
            model: area.panel.rows

            Item {
                id: place

                required property AppRowModel row
                required property int index
                readonly property int gap: index > 0 ? 9 : 0

                width: list.width
                height: view.implicitHeight + gap

                Divider {
                    visible: place.index > 0
                    x: Theme.margin
                    y: 4
                    width: parent.width - 2 * Theme.margin
                    strength: 0.07
                }
                AppRowView {
                    id: view
                    x: 12
                    y: place.gap
                    width: parent.width - 24
                    height: implicitHeight
                    row: place.row
                    hasMeter: area.panel.levelMeters
                    isExpanded: area.expandedApp !== "" && area.expandedApp === place.row.bundleID
                    onToggled: area.expandedApp = isExpanded ? "" : place.row.bundleID
                }
            }
        }
    }
}
