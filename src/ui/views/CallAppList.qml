// SPDX-License-Identifier: MIT
// The apps whose calls duck the others.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Rectangle {
    id: list

    required property SettingsModel settings

    implicitHeight: column.implicitHeight + 6
    radius: 6
    color: Theme.layer(0.04)

    Column {
        id: column
        y: 3
        width: parent.width

        Repeater {
            model: list.settings.callApps

            Item {
                id: line

                required property var modelData

                width: column.width
                height: 22

                Label {
                    x: 10
                    y: 3
                    width: remove.x - x - 8
                    elide: Text.ElideMiddle
                    text: line.modelData.text
                }
                SymbolButton {
                    id: remove
                    x: parent.width - 10 - 13 - (frame - 13) / 2
                    frame: 22
                    symbol: "minus.circle.fill"
                    colour: Theme.secondary
                    text: qsTr("Remove %1").arg(line.modelData.text)
                    onClicked: list.settings.removeCallApp(line.modelData.key)
                }
            }
        }
    }
}
