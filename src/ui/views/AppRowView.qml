// SPDX-License-Identifier: MIT
// One app: its row, and the details below while it is expanded.
// Not bound: the Loader of Qt 6.4 rejects bound components.
// qmllint disable unqualified
import QtQuick
import Fadeloom

Item {
    id: view

    required property AppRowModel row
    property bool hasMeter: true
    property bool isExpanded: false
    property bool isReady: false

    signal toggled

    implicitHeight: head.height + offer.height + details.height
    Accessible.role: Accessible.Grouping
    Accessible.name: row.name
    Component.onCompleted: isReady = true

    CardBackground {
        anchors.fill: parent
        isHighlighted: view.isExpanded
    }
    AppRowHead {
        id: head
        width: parent.width
        row: view.row
        hasMeter: view.hasMeter
        isExpanded: view.isExpanded
        onToggled: view.toggled()
    }
    CallOffer {
        id: offer
        y: head.height - 4
        width: parent.width
        height: implicitHeight
        row: view.row
    }
    Item {
        id: details
        y: head.height + offer.height
        width: parent.width
        height: view.isExpanded ? content.implicitHeight : 0
        clip: true
        visible: height > 0
        Behavior on height {
            enabled: Theme.animations && view.isReady
            NumberAnimation {
                duration: Theme.row
                easing.type: Easing.OutCubic
            }
        }

        Loader {
            id: content
            x: 10
            width: parent.width - 20
            active: view.isExpanded || details.height > 0
            sourceComponent: AppRowDetails {
                row: view.row
            }
        }
    }
}
