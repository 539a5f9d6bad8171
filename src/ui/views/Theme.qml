// SPDX-License-Identifier: MIT
// Colours, fonts and durations. RootView sets the appearance; all other views read it.
pragma Singleton

import QtQuick
import Fadeloom

QtObject {
    property bool isDark: true
    property bool glass: true
    property bool animations: true
    property bool hasHighContrast: false
    // For the whole panel.
    property real zoom: 1
    // The desktop's accent colour, for text and backgrounds; transparent without one.
    property color accentInk: "transparent"
    property color accentFill: "transparent"
    readonly property bool hasAccent: accentFill.a > 0
    // Whether the window is translucent.
    property bool isTranslucent: false

    readonly property color panelTop: isDark ? "#23212b" : "#f8f7fb"
    readonly property color panelBottom: isDark ? "#1a1920" : "#efedf4"
    readonly property color panelOutline: hasHighContrast ? ink : isDark ? Qt.rgba(1, 1, 1, 0.13) : layer(0.16)
    readonly property color ink: isDark ? "#f3f2f7" : "#1d1b24"
    readonly property color secondary: hasHighContrast ? ink : isDark ? "#a9a6b4" : "#615e6b"
    readonly property color accent: hasAccent ? accentInk : isDark ? "#c795ff" : "#7a2cc9"
    readonly property color fill: hasAccent ? accentFill : isDark ? "#9138dd" : "#8a35d6"
    readonly property color fillHovered: hasAccent ? Qt.darker(accentFill, 1.1) : isDark ? "#9c46e6" : "#7f2cc9"
    readonly property color fillPressed: hasAccent ? Qt.darker(accentFill, 1.25) : isDark ? "#7d2cc4" : "#6f22b4"
    readonly property color switchOn: hasAccent ? accentFill : isDark ? "#b066f7" : "#8a35d6"
    readonly property color switchOff: hasHighContrast ? layer(0.75) : isDark ? "#827f8f" : "#868391"
    readonly property color orange: isDark ? "#ffa14a" : "#a04600"
    readonly property color red: isDark ? "#ff7a73" : "#bc2029"
    readonly property color green: isDark ? "#4fd482" : "#146c36"
    readonly property color bannerOrange: isDark ? "#ffa14a" : "#cc5c00"
    readonly property color bannerGreen: isDark ? "#4fd482" : "#17873f"
    readonly property color boost: isDark ? "#ffa14a" : "#d96a0c"
    readonly property color menuSurface: isDark ? "#2b2933" : "#ffffff"
    readonly property color menuOutline: hasHighContrast ? ink : isDark ? Qt.rgba(1, 1, 1, 0.14) : layer(0.12)
    readonly property real menuShadow: isDark ? 0.22 : 0.035
    readonly property color selectedSegment: isDark ? "#4a4755" : "#ffffff"
    readonly property color fieldBorder: hasHighContrast ? ink : isDark ? "#7d7a89" : "#8b8896"
    readonly property color field: isDark ? "#121117" : "#ffffff"
    readonly property color sliderTrack: layer(hasHighContrast ? 0.5 : isDark ? 0.14 : 0.12)
    readonly property color sliderFill: layer(hasHighContrast ? 1 : isDark ? 0.62 : 0.58)
    readonly property color sliderFillHovered: layer(hasHighContrast ? 1 : isDark ? 0.78 : 0.72)

    readonly property color cyan: Qt.rgba(0.25, 0.85, 0.96, 1)
    readonly property color violet: Qt.rgba(0.65, 0.30, 0.94, 1)
    readonly property color pink: Qt.rgba(0.96, 0.36, 0.62, 1)

    // For content on a filled background, and the knobs of controls.
    readonly property color inkOnFill: "#ffffff"

    readonly property int panelWidth: 380
    // Horizontal content margins.
    readonly property int margin: 22
    readonly property string family: "Fadeloom Inter"

    readonly property int hoverIn: time(60)
    readonly property int hoverOut: time(120)
    readonly property int knob: time(140)
    readonly property int row: time(180)
    readonly property int page: time(160)
    readonly property int banner: time(160)
    readonly property int menuIn: time(90)
    readonly property int menuOut: time(60)

    // The foreground colour at an opacity, for neutral layers.
    function layer(opacity) {
        return Qt.rgba(ink.r, ink.g, ink.b, opacity);
    }
    function at(colour, opacity) {
        return Qt.rgba(colour.r, colour.g, colour.b, opacity);
    }
    function shadow(opacity) {
        return Qt.rgba(0, 0, 0, opacity);
    }
    // The colour of a status.
    function tone(tone) {
        switch (tone) {
        case AppRowModel.Tone.Warning:
            return orange;
        case AppRowModel.Tone.Recording:
            return red;
        case AppRowModel.Tone.Call:
            return green;
        default:
            return secondary;
        }
    }
    function time(milliseconds) {
        return animations ? milliseconds : 0;
    }
}
