// SPDX-License-Identifier: MIT
// The area for a message across the mixer, which expands and collapses.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Item {
    id: space

    required property PanelModel panel
    // The content is kept while the banner collapses.
    property int kind
    readonly property int wanted: panel.banner
    readonly property bool isOpen: wanted !== PanelModel.Banner.None
    readonly property bool isCall: kind === PanelModel.Banner.Call

    height: isOpen ? banner.implicitHeight + 10 : 0
    clip: true
    onWantedChanged: if (wanted !== PanelModel.Banner.None)
        kind = wanted
    Component.onCompleted: kind = wanted
    Behavior on height {
        enabled: Theme.animations
        NumberAnimation {
            duration: Theme.banner
            easing.type: Easing.OutCubic
        }
    }

    Banner {
        id: banner
        x: 12
        width: parent.width - 24
        height: implicitHeight
        opacity: space.isOpen ? 1 : 0
        visible: space.height > 0
        symbol: space.isCall ? "phone.fill" : "exclamationmark.triangle.fill"
        tint: space.isCall ? Theme.bannerGreen : Theme.bannerOrange
        message: space.panel.bannerText
        canClose: space.kind === PanelModel.Banner.Error
        onClosed: space.panel.dismissError()
        Behavior on opacity {
            enabled: Theme.animations
            NumberAnimation {
                duration: Theme.banner
                easing.type: Easing.OutCubic
            }
        }
    }
}
