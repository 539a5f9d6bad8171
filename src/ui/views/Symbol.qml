// SPDX-License-Identifier: MIT
// One of our symbols in one colour. Its box is square; it is rendered at device resolution.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

Image {
    property string name
    property color colour: Theme.ink
    property int size: 13

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: name === "" ? "" : "image://symbol/" + name + "/" + encodeURIComponent(argb(colour))
    asynchronous: false

    function argb(c) {
        const part = value => Math.round(value * 255).toString(16).padStart(2, "0");
        return "#" + part(c.a) + part(c.r) + part(c.g) + part(c.b);
    }
}
