// SPDX-License-Identifier: MIT
// An app that may be on a call, suggested as a call app: accept or decline.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: offer

    required property AppRowModel row

    implicitHeight: row.callOffer === "" ? 0 : 28
    visible: implicitHeight > 0

    Symbol {
        x: 10
        y: 5
        name: "phone"
        size: 11
        colour: Theme.accent
    }
    LinkButton {
        x: 26
        width: Math.min(implicitWidth, decline.x - x - 8)
        size: 11
        text: offer.row.callOffer
        onClicked: offer.row.acceptCallOffer()
    }
    SymbolButton {
        id: decline
        x: parent.width - 10 - width + 6
        frame: 22
        symbol: "xmark"
        symbolSize: 9
        colour: Theme.secondary
        text: qsTr("Don’t offer this for %1 again").arg(offer.row.name)
        onClicked: offer.row.declineCallOffer()
    }
}
